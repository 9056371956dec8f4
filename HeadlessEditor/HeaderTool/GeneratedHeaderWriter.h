#pragma once

#include "ReflectionModel.h"

#include <string>

namespace HeaderTool
{
	/** The "<Base>.generated.h" of Header: the body macros GENERATED_BODY() expands to and the accessors' declarations. */
	std::string MakeGeneratedHeader(const FHeader& Header, const std::string& Module);
}
