// Plays Unreal Header Tool's part for the headless editor: reads the reflected types of a module's
// headers and writes, per header, the "<Base>.generated.h" that GENERATED_BODY() expands through and
// the "<Base>.gen.cpp" that registers classes, structs, enums and their properties at load.

#include "ModuleGenerator.h"

#include <exception>
#include <iostream>
#include <string>

namespace
{
	/** Reads "--module <Name> --output <Dir> <headers...>"; false when the module or the folder is missing. */
	bool ParseCommandLine(int ArgC, char** ArgV, HeaderTool::FModuleJob& Job)
	{
		for (int Index = 1; Index < ArgC; ++Index)
		{
			const std::string Arg = ArgV[Index];
			if (Arg == "--module" && Index + 1 < ArgC)
			{
				Job.Module = ArgV[++Index];
			}
			else if (Arg == "--output" && Index + 1 < ArgC)
			{
				Job.OutputDir = ArgV[++Index];
			}
			else
			{
				Job.Headers.push_back(Arg);
			}
		}
		return !Job.Module.empty() && !Job.OutputDir.empty();
	}
}

int main(int ArgC, char** ArgV)
{
	HeaderTool::FModuleJob Job;
	if (!ParseCommandLine(ArgC, ArgV, Job))
	{
		std::cerr << "usage: HeaderTool --module <Name> --output <Dir> <headers...>\n";
		return 2;
	}
	try
	{
		HeaderTool::GenerateModule(Job);
	}
	catch (const std::exception& Error)
	{
		std::cerr << Error.what() << "\n";
		return 1;
	}
	return 0;
}
