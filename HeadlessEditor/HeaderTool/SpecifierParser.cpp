#include "SpecifierParser.h"

#include <algorithm>

namespace
{
	using HeaderTool::ETokenKind;
	using HeaderTool::FToken;

	using FEntry = std::vector<FToken>;

	bool IsSymbol(const FToken& Token, const char* Text)
	{
		return Token.Kind == ETokenKind::Symbol && Token.Text == Text;
	}

	/** The entries between the commas that are outside parentheses; empty entries are dropped. */
	std::vector<FEntry> SplitEntries(const std::vector<FToken>& List)
	{
		std::vector<FEntry> Entries(1);
		int Depth = 0;
		for (const FToken& Token : List)
		{
			if (Depth == 0 && IsSymbol(Token, ","))
			{
				Entries.emplace_back();
				continue;
			}
			Depth += IsSymbol(Token, "(") ? 1 : (IsSymbol(Token, ")") ? -1 : 0);
			Entries.back().push_back(Token);
		}
		Entries.erase(std::remove_if(Entries.begin(), Entries.end(), [](const FEntry& Entry)
						  { return Entry.empty(); }),
			Entries.end());
		return Entries;
	}

	bool HasValue(const FEntry& Entry)
	{
		return Entry.size() > 1 && Entry[1].Text == "=";
	}

	std::string ValueOf(const FEntry& Entry)
	{
		std::string Value;
		for (size_t Index = 2; HasValue(Entry) && Index < Entry.size(); ++Index)
		{
			Value += Entry[Index].Text;
		}
		return Value;
	}

	/** The tokens inside "meta=(...)", or none when the value is not in parentheses. */
	std::vector<FToken> MetaListOf(const FEntry& Entry)
	{
		if (!HasValue(Entry) || Entry.size() < 4 || Entry[2].Text != "(")
		{
			return {};
		}
		return std::vector<FToken>(Entry.begin() + 3, Entry.end() - 1);
	}
}

HeaderTool::FKeyValueList HeaderTool::ParseKeyValues(const std::vector<FToken>& List)
{
	FKeyValueList Result;
	for (const FEntry& Entry : SplitEntries(List))
	{
		Result.emplace_back(Entry[0].Text, ValueOf(Entry));
	}
	return Result;
}

HeaderTool::FSpecifiers HeaderTool::ParseSpecifiers(const std::vector<FToken>& List)
{
	FSpecifiers Result;
	for (const FEntry& Entry : SplitEntries(List))
	{
		if (EqualsNoCase(Entry[0].Text, "meta"))
		{
			const FKeyValueList Meta = ParseKeyValues(MetaListOf(Entry));
			Result.Meta.insert(Result.Meta.end(), Meta.begin(), Meta.end());
		}
		else
		{
			Result.Items.emplace_back(Entry[0].Text, ValueOf(Entry));
		}
	}
	return Result;
}
