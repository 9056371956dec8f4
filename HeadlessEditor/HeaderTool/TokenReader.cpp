#include "TokenReader.h"

#include <stdexcept>

void HeaderTool::Fail(const std::string& File, int Line, const std::string& Message)
{
	throw std::runtime_error(File + ":" + std::to_string(Line) + ": error: " + Message);
}

HeaderTool::FTokenReader::FTokenReader(std::string InFile, std::vector<FToken> InTokens)
	: File(std::move(InFile))
	, Tokens(std::move(InTokens))
{
}

const HeaderTool::FToken& HeaderTool::FTokenReader::Peek(size_t Offset) const
{
	static const FToken End{ETokenKind::Symbol, "", 0};
	return Pos + Offset < Tokens.size() ? Tokens[Pos + Offset] : End;
}

bool HeaderTool::FTokenReader::IsMacroCall(const char* Name) const
{
	return Peek().Text == Name && Peek(1).Text == "(";
}

std::string HeaderTool::FTokenReader::Expect(ETokenKind Kind, const std::string& What)
{
	if (AtEnd() || Peek().Kind != Kind)
	{
		Fail("expected " + What + ", found '" + Peek().Text + "'");
	}
	return Next().Text;
}

void HeaderTool::FTokenReader::ExpectSymbol(const std::string& Symbol)
{
	if (Peek().Text != Symbol)
	{
		Fail("expected '" + Symbol + "', found '" + Peek().Text + "'");
	}
	Skip();
}

std::vector<HeaderTool::FToken> HeaderTool::FTokenReader::ReadBalanced(const std::string& Open, const std::string& Close)
{
	std::vector<FToken> Result;
	int Depth = 1;
	while (!AtEnd())
	{
		const FToken& Token = Next();
		if (Token.Kind == ETokenKind::Symbol && Token.Text == Open)
		{
			++Depth;
		}
		else if (Token.Kind == ETokenKind::Symbol && Token.Text == Close && --Depth == 0)
		{
			return Result;
		}
		Result.push_back(Token);
	}
	Fail("unbalanced '" + Open + "'");
}

void HeaderTool::FTokenReader::Fail(const std::string& Message) const
{
	HeaderTool::Fail(File, Line(), Message);
}
