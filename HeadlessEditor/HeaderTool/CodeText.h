#pragma once

#include "ReflectionModel.h"

#include <string>

namespace HeaderTool
{
	/** Value as a TEXT("...") literal; surrounding quotes are dropped first. */
	std::string Quote(const std::string& Value);

	/** The call that returns the class named Name without registering it. */
	std::string ClassRef(const std::string& Name);

	/** One Target->SetMetaData(Key, Value); statement per entry; an empty value stands for "true". */
	std::string MetaDataStatements(const std::string& Target, const FKeyValueList& Meta, const std::string& Indent);
}
