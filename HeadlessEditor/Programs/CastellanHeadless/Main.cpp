// Boots the headless editor with the CastellanEditor module and shows what a user would see.

#include "CommandLine.h"
#include "Commands.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

int main(int ArgumentCount, char** Arguments)
{
	using namespace CastellanCommandLine;

	const std::vector<FCommandSpec>& Commands = CastellanCommands::GetCommands();
	const std::vector<std::string> Given(Arguments + 1, Arguments + ArgumentCount);
	if (Given.empty())
	{
		std::fputs(FormatUsage(Commands).c_str(), stderr);
		return ExitBadCommandLine;
	}
	const FParseResult Result = Parse(Commands, Given);
	if (!Result.Parsed)
	{
		std::fprintf(stderr, "%s: %s\n", ProgramName, Result.Error.c_str());
		return ExitBadCommandLine;
	}
	const FParsedCommand& Parsed = *Result.Parsed;
	if (Parsed.bHelp)
	{
		std::fputs(FormatHelp(Commands, Parsed).c_str(), stdout);
		return ExitDone;
	}
	return Parsed.Command->Run(Parsed);
}
