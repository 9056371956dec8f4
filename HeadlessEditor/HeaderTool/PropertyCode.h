#pragma once

#include "ReflectionModel.h"

#include <string>

namespace HeaderTool
{
	/** The EPropertyFlags expression of a property's access and specifiers. */
	std::string PropertyFlags(const FPropertyDecl& Property);

	/** An expression creating the property; Owner, Name, Flags and Offset are C++ expressions. */
	std::string PropertyExpression(const FPropertyType& Type, const std::string& Owner, const std::string& Name, const std::string& Flags, const std::string& Offset);
}
