#pragma once

#include "ReflectionModel.h"
#include "Tokenizer.h"

#include <vector>

namespace HeaderTool
{
	/** Splits "A, B=C" into keys and values; a value is its tokens' text run together. */
	FKeyValueList ParseKeyValues(const std::vector<FToken>& List);

	/** Splits "A, B=C, meta=(D=E)" into specifiers and metadata. */
	FSpecifiers ParseSpecifiers(const std::vector<FToken>& List);
}
