#pragma once

#include "Tokenizer.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	/** Throws the error "File:Line: error: Message". */
	[[noreturn]] void Fail(const std::string& File, int Line, const std::string& Message);

	/** A cursor over one file's tokens, with the checks the parsers share. */
	class FTokenReader
	{
	public:
		FTokenReader(std::string InFile, std::vector<FToken> InTokens);

		const std::string& GetFile() const { return File; }
		bool AtEnd() const { return Pos >= Tokens.size(); }
		/** The token Offset places ahead, or an empty symbol past the end. */
		const FToken& Peek(size_t Offset = 0) const;
		const FToken& Next() { return Tokens[Pos++]; }
		void Skip(size_t Count = 1) { Pos += Count; }
		/** Whether the next tokens are Name followed by '('. */
		bool IsMacroCall(const char* Name) const;
		int Line() const { return Peek().Line; }

		/** The next token's text, which must be of Kind. */
		std::string Expect(ETokenKind Kind, const std::string& What);
		void ExpectSymbol(const std::string& Symbol);
		/** The tokens up to the bracket that closes the one just read, which is consumed too. */
		std::vector<FToken> ReadBalanced(const std::string& Open, const std::string& Close);

		[[noreturn]] void Fail(const std::string& Message) const;

	private:
		std::string File;
		std::vector<FToken> Tokens;
		size_t Pos = 0;
	};
}
