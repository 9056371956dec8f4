#include "Tokenizer.h"

#include <algorithm>
#include <cctype>

namespace
{
	using HeaderTool::ETokenKind;
	using HeaderTool::FToken;

	bool IsSpace(char Ch)
	{
		return std::isspace(static_cast<unsigned char>(Ch)) != 0;
	}

	bool IsDigit(char Ch)
	{
		return std::isdigit(static_cast<unsigned char>(Ch)) != 0;
	}

	bool IsIdentifierStart(char Ch)
	{
		return std::isalpha(static_cast<unsigned char>(Ch)) || Ch == '_';
	}

	bool IsIdentifierChar(char Ch)
	{
		return std::isalnum(static_cast<unsigned char>(Ch)) || Ch == '_';
	}

	/** Walks the source once, keeping the line count across comments, directives and literals. */
	class FTokenizer
	{
	public:
		explicit FTokenizer(const std::string& InSource)
			: Source(InSource)
		{
		}

		std::vector<FToken> Run()
		{
			while (Index < Source.size())
			{
				ReadNext();
			}
			return std::move(Tokens);
		}

	private:
		void ReadNext()
		{
			const char Ch = Source[Index];
			if (Ch == '\n')
			{
				++Line;
				bLineStart = true;
				++Index;
			}
			else if (IsSpace(Ch))
			{
				++Index;
			}
			else if (Ch == '#' && bLineStart)
			{
				SkipDirective();
			}
			else
			{
				bLineStart = false;
				ReadToken(Ch);
			}
		}

		void ReadToken(char Ch)
		{
			if (StartsWith("//"))
			{
				SkipLineComment();
			}
			else if (StartsWith("/*"))
			{
				SkipBlockComment();
			}
			else if (Ch == '"' || Ch == '\'')
			{
				ReadQuoted(Ch);
			}
			else if (IsIdentifierStart(Ch))
			{
				ReadWhile(ETokenKind::Identifier, IsIdentifierChar);
			}
			else if (StartsNumber(Ch))
			{
				ReadWhile(ETokenKind::Number, [](char Next)
					{ return std::isalnum(static_cast<unsigned char>(Next)) || Next == '.'; });
			}
			else
			{
				ReadSymbol();
			}
		}

		bool StartsWith(const char* Text) const
		{
			return Source.compare(Index, std::char_traits<char>::length(Text), Text) == 0;
		}

		bool StartsNumber(char Ch) const
		{
			return IsDigit(Ch) || (Ch == '.' && Index + 1 < Source.size() && IsDigit(Source[Index + 1]));
		}

		/** A preprocessor line, with its backslash continuations. */
		void SkipDirective()
		{
			while (Index < Source.size() && Source[Index] != '\n')
			{
				if (Source[Index] == '\\' && Index + 1 < Source.size() && Source[Index + 1] == '\n')
				{
					++Line;
					++Index;
				}
				++Index;
			}
		}

		void SkipLineComment()
		{
			while (Index < Source.size() && Source[Index] != '\n')
			{
				++Index;
			}
		}

		void SkipBlockComment()
		{
			const size_t End = Source.find("*/", Index + 2);
			const size_t Stop = End == std::string::npos ? Source.size() : End + 2;
			Line += static_cast<int>(std::count(Source.begin() + Index, Source.begin() + Stop, '\n'));
			Index = Stop;
		}

		/** A string or character literal; escapes are kept as written. */
		void ReadQuoted(char Quote)
		{
			std::string Text;
			++Index;
			while (Index < Source.size() && Source[Index] != Quote)
			{
				if (Source[Index] == '\\' && Index + 1 < Source.size())
				{
					Text += Source[Index++];
				}
				Text += Source[Index++];
			}
			++Index;
			Tokens.push_back({Quote == '"' ? ETokenKind::String : ETokenKind::Number, Text, Line});
		}

		template <typename PredicateType>
		void ReadWhile(ETokenKind Kind, PredicateType Predicate)
		{
			const size_t Start = Index;
			while (Index < Source.size() && Predicate(Source[Index]))
			{
				++Index;
			}
			Tokens.push_back({Kind, Source.substr(Start, Index - Start), Line});
		}

		void ReadSymbol()
		{
			const size_t Length = StartsWith("::") ? 2 : 1;
			Tokens.push_back({ETokenKind::Symbol, Source.substr(Index, Length), Line});
			Index += Length;
		}

		const std::string& Source;
		std::vector<FToken> Tokens;
		size_t Index = 0;
		int Line = 1;
		bool bLineStart = true;
	};
}

std::vector<FToken> HeaderTool::Tokenize(const std::string& Source)
{
	return FTokenizer(Source).Run();
}
