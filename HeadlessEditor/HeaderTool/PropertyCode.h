#pragma once

#include "ReflectionModel.h"

#include <string>

namespace HeaderTool
{
	/** The EPropertyFlags expression of a property's access and specifiers. */
	std::string PropertyFlags(const FPropertyDecl& Property);

	/**
	 * An expression creating the property; Owner, Name, Flags and Location are C++ expressions. Location
	 * is the member's offset, or for a bitfield the arguments that let the property find its bit.
	 */
	std::string PropertyExpression(const FPropertyType& Type, const std::string& Owner, const std::string& Name, const std::string& Flags, const std::string& Location);
}
