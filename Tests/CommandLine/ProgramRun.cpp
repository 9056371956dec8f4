#include "ProgramRun.h"

#include <cerrno>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{
	struct FPipe
	{
		int Read = -1;
		int Write = -1;

		FPipe()
		{
			int Ends[2];
			if (pipe(Ends) != 0)
			{
				throw std::runtime_error("pipe failed");
			}
			Read = Ends[0];
			Write = Ends[1];
		}
	};

	::testing::AssertionResult Judge(bool bHolds, const std::string& Text, const char* Relation, const std::string& Part)
	{
		return bHolds ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << "the text\n"
																					  << Text << "\ndoes not " << Relation << "\n"
																					  << Part;
	}

	/** Reads both pipes to their end at once, so that neither fills up while the other is read. */
	void ReadBoth(int OutFd, int ErrFd, std::string& Out, std::string& Err)
	{
		pollfd Fds[2] = {{OutFd, POLLIN, 0}, {ErrFd, POLLIN, 0}};
		std::string* Targets[2] = {&Out, &Err};
		int Open = 2;
		while (Open > 0)
		{
			if (poll(Fds, 2, -1) < 0 && errno != EINTR)
			{
				throw std::runtime_error("poll failed");
			}
			for (int Index = 0; Index < 2; ++Index)
			{
				if (Fds[Index].fd < 0 || Fds[Index].revents == 0)
				{
					continue;
				}
				char Buffer[4096];
				const ssize_t Count = read(Fds[Index].fd, Buffer, sizeof(Buffer));
				if (Count > 0)
				{
					Targets[Index]->append(Buffer, static_cast<size_t>(Count));
				}
				else if (Count == 0 || errno != EINTR)
				{
					close(Fds[Index].fd);
					Fds[Index].fd = -1;
					--Open;
				}
			}
		}
	}
}

FProgramRun RunCastellanHeadless(const std::vector<std::string>& Arguments)
{
	std::vector<std::string> Words{CASTELLAN_HEADLESS_PROGRAM};
	Words.insert(Words.end(), Arguments.begin(), Arguments.end());
	std::vector<char*> Argv;
	for (std::string& Word : Words)
	{
		Argv.push_back(Word.data());
	}
	Argv.push_back(nullptr);

	FPipe OutPipe;
	FPipe ErrPipe;
	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_adddup2(&Actions, OutPipe.Write, STDOUT_FILENO);
	posix_spawn_file_actions_adddup2(&Actions, ErrPipe.Write, STDERR_FILENO);
	posix_spawn_file_actions_addclose(&Actions, OutPipe.Read);
	posix_spawn_file_actions_addclose(&Actions, ErrPipe.Read);
	pid_t Child = 0;
	const int SpawnError = posix_spawn(&Child, Argv[0], &Actions, nullptr, Argv.data(), environ);
	posix_spawn_file_actions_destroy(&Actions);
	close(OutPipe.Write);
	close(ErrPipe.Write);
	if (SpawnError != 0)
	{
		close(OutPipe.Read);
		close(ErrPipe.Read);
		throw std::runtime_error("cannot start " + Words[0]);
	}

	FProgramRun Run;
	ReadBoth(OutPipe.Read, ErrPipe.Read, Run.Out, Run.Err);
	int Status = 0;
	while (waitpid(Child, &Status, 0) < 0 && errno == EINTR)
	{
	}
	Run.ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
	return Run;
}

bool ContainsRawControlCharacters(const std::string& Text)
{
	for (size_t Index = 0; Index < Text.size(); ++Index)
	{
		const unsigned char Byte = static_cast<unsigned char>(Text[Index]);
		const bool bC0 = Byte < 0x20 && Byte != '\n';
		// C1 controls are U+0080 to U+009F: 0xC2 followed by 0x80 to 0x9F.
		const bool bC1 = Byte == 0xC2 && Index + 1 < Text.size() && static_cast<unsigned char>(Text[Index + 1]) <= 0x9F;
		if (bC0 || Byte == 0x7F || bC1)
		{
			return true;
		}
	}
	return false;
}

::testing::AssertionResult Contains(const std::string& Text, const std::string& Part)
{
	return Judge(Text.find(Part) != std::string::npos, Text, "contain", Part);
}

::testing::AssertionResult BeginsWith(const std::string& Text, const std::string& Prefix)
{
	return Judge(Text.compare(0, Prefix.size(), Prefix) == 0, Text, "begin with", Prefix);
}

::testing::AssertionResult EndsWith(const std::string& Text, const std::string& Suffix)
{
	return Judge(Text.size() >= Suffix.size() && Text.compare(Text.size() - Suffix.size(), Suffix.size(), Suffix) == 0, Text, "end with", Suffix);
}
