#pragma once

#include "CommandLine.h"

#include <vector>

/** The program's commands: one table entry and one function each. */
namespace CastellanCommands
{
	const std::vector<CastellanCommandLine::FCommandSpec>& GetCommands();
}
