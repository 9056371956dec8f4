#pragma once

#include "ReflectionModel.h"
#include "TokenReader.h"

#include <set>
#include <string>

namespace HeaderTool
{
	/** Reads the member declaration after UPROPERTY(...) up to its ';' into Property's name and type. */
	void ParsePropertyDeclaration(FTokenReader& Reader, const std::set<std::string>& KnownEnums, FPropertyDecl& Property);
}
