#pragma once

#include "ReflectionModel.h"

#include <string>

namespace HeaderTool
{
	/** The "<Base>.gen.cpp" of Header: the code that registers its classes, structs, enums and properties at load. */
	std::string MakeGeneratedSource(const FHeader& Header, const std::string& Module);
}
