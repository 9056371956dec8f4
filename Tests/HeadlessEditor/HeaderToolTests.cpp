#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
	namespace fs = std::filesystem;

	/** Runs the header tool built next to this test on headers written into a scratch folder. */
	class HeaderTool : public ::testing::Test
	{
	protected:
		struct FRun
		{
			int ExitCode = -1;
			std::string Output;
		};

		HeaderTool()
			: Folder(fs::temp_directory_path() / ("HeaderTool-" + std::to_string(::getpid()) + "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name()))
		{
			fs::remove_all(Folder);
			fs::create_directories(Folder / "Public");
		}

		~HeaderTool() override
		{
			fs::remove_all(Folder);
		}

		/** A header with one struct whose only member is Member. */
		fs::path WriteStruct(const std::string& Member)
		{
			const fs::path Path = Folder / "Public" / "Probe.h";
			std::ofstream(Path) << "#pragma once\n\nUSTRUCT()\nstruct FProbe\n{\n\tGENERATED_BODY()\n\tUPROPERTY()\n\t" << Member << "\n};\n";
			return Path;
		}

		FRun Run(const fs::path& Header) const
		{
			const fs::path Tool = fs::read_symlink("/proc/self/exe").parent_path() / "HeaderTool";
			const fs::path Log = Folder / "log.txt";
			const std::string Command = "'" + Tool.string() + "' --module Probe --output '" + (Folder / "Out").string() + "' '" + Header.string() + "' > '" + Log.string() + "' 2>&1";
			FRun Result;
			const int Status = std::system(Command.c_str());
			Result.ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
			Result.Output = ReadText(Log);
			return Result;
		}

		fs::path GeneratedSource() const { return Folder / "Out" / "Src" / "Probe.gen.cpp"; }

		static std::string ReadText(const fs::path& Path)
		{
			std::ostringstream Buffer;
			Buffer << std::ifstream(Path).rdbuf();
			return Buffer.str();
		}

		fs::path Folder;
	};

	TEST_F(HeaderTool, ReflectsAOneBitFieldOfAnyUnsignedIntegerAsAByteSizedBoolFoundBySettingIt)
	{
		const FRun Result = Run(WriteStruct("uint32 bWide : 1;"));
		ASSERT_EQ(Result.ExitCode, 0) << Result.Output;
		EXPECT_EQ(Result.Output, "");
		const std::string Source = ReadText(GeneratedSource());
		EXPECT_NE(Source.find("static void bWide_SetBit(void* Object)\n\t{\n\t\tstatic_cast<FProbe*>(Object)->bWide = 1;\n\t}"), std::string::npos) << Source;
		EXPECT_NE(Source.find("new FBoolProperty(Owner, TEXT(\"bWide\"), EPropertyFlags(CPF_NativeAccessSpecifierPublic), sizeof(uint8), sizeof(FProbe), &bWide_SetBit)"), std::string::npos) << Source;
	}

	TEST_F(HeaderTool, RefusesBitfieldsWiderThanOneBitOrOfAnotherType)
	{
		const std::pair<const char*, const char*> Cases[] = {
			{"uint8 bTwo : 2;", "Probe.h:7: error: bitfield bTwo must be one bit wide"},
			{"bool bFlag : 1;", "Probe.h:7: error: bitfield bFlag must be of an unsigned integer type"},
			{"int32 bSigned : 1;", "Probe.h:7: error: bitfield bSigned must be of an unsigned integer type"},
		};
		for (const auto& [Member, Message] : Cases)
		{
			const FRun Result = Run(WriteStruct(Member));
			EXPECT_EQ(Result.ExitCode, 1) << Member;
			EXPECT_NE(Result.Output.find(Message), std::string::npos) << Result.Output;
		}
	}

	TEST_F(HeaderTool, NamesTheFileAndLineOfWhatItCannotRead)
	{
		FRun Result = Run(WriteStruct("int16 Count;"));
		EXPECT_EQ(Result.ExitCode, 1);
		EXPECT_NE(Result.Output.find("Probe.h:7: error: unsupported property type 'int16'"), std::string::npos) << Result.Output;

		const fs::path Header = Folder / "Public" / "Probe.h";
		std::ofstream(Header) << "USTRUCT()\nstruct FProbe\n{\n\tUPROPERTY()\n\tint32 Count;\n};\n";
		Result = Run(Header);
		EXPECT_EQ(Result.ExitCode, 1);
		EXPECT_NE(Result.Output.find("Probe.h:6: error: FProbe has no GENERATED_BODY()"), std::string::npos) << Result.Output;
	}

	TEST_F(HeaderTool, AnOutputThatStaysTheSameStillBecomesNewerForTheBuild)
	{
		const fs::path Header = WriteStruct("int32 Count;");
		ASSERT_EQ(Run(Header).ExitCode, 0);
		const std::string First = ReadText(GeneratedSource());
		const fs::file_time_type Old = fs::last_write_time(GeneratedSource()) - std::chrono::hours(1);
		fs::last_write_time(GeneratedSource(), Old);

		ASSERT_EQ(Run(Header).ExitCode, 0);
		EXPECT_EQ(ReadText(GeneratedSource()), First);
		EXPECT_GT(fs::last_write_time(GeneratedSource()), Old);
	}
}
