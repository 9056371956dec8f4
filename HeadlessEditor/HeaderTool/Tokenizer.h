#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	enum class ETokenKind
	{
		Identifier,
		Number,
		String,
		Symbol
	};

	/** One token of C++ source; string and character literals keep their text without the quotes. */
	struct FToken
	{
		ETokenKind Kind;
		std::string Text;
		int Line;
	};

	/** Splits C++ source into tokens; comments and preprocessor lines are dropped. */
	std::vector<FToken> Tokenize(const std::string& Source);
}
