#include "UObject/NameTypes.h"

#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"
#include "Misc/AssertionMacros.h"

#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

struct FName::FEntry
{
	FString Display;
	/** Lower-cased key shared by every spelling of the name. */
	std::u16string Comparison;
};

namespace
{
	std::u16string MakeComparisonKey(const FString& Name)
	{
		const FString Lower = Name.ToLower();
		return std::u16string(*Lower, static_cast<SIZE_T>(Lower.Len()));
	}

	struct FNameTable
	{
		std::mutex Mutex;
		std::unordered_map<std::u16string, std::unique_ptr<FName::FEntry>> BySpelling;
	};

	FNameTable& GetNameTable()
	{
		static FNameTable* Table = new FNameTable();
		return *Table;
	}
}

FName::FName(const WIDECHAR* Name, EFindName FindType)
{
	// "None" in any case is the name table's first entry, NAME_None.
	if (Name && *Name && !FString(Name).Equals(TEXT("None"), ESearchCase::IgnoreCase))
	{
		const int32 Len = static_cast<int32>(std::char_traits<WIDECHAR>::length(Name));
		checkf(Len < NAME_SIZE, TEXT("FName's %d max length exceeded. Got %d characters excluding null-terminator."), NAME_SIZE - 1, Len);
		FNameTable& Table = GetNameTable();
		std::lock_guard<std::mutex> Lock(Table.Mutex);
		std::unique_ptr<FEntry>& Slot = Table.BySpelling[std::u16string(Name)];
		if (!Slot)
		{
			Slot = std::make_unique<FEntry>();
			Slot->Display = FString(Name);
			Slot->Comparison = MakeComparisonKey(Slot->Display);
		}
		Entry = Slot.get();
	}
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
	: FName(Name ? *FString(Name) : static_cast<const WIDECHAR*>(nullptr), FindType)
{
}

bool FName::IsValidXName(const FString& InName, const FString& InInvalidChars, FText* OutReason, const FText* InErrorCtx)
{
	FString MatchedInvalidChars;
	for (int32 Index = 0; Index < InInvalidChars.Len(); ++Index)
	{
		int32 Found = INDEX_NONE;
		if (InName.FindChar(InInvalidChars[Index], Found) && !MatchedInvalidChars.FindChar(InInvalidChars[Index], Found))
		{
			MatchedInvalidChars.AppendChar(InInvalidChars[Index]);
		}
	}
	if (MatchedInvalidChars.IsEmpty())
	{
		return true;
	}
	if (OutReason)
	{
		FFormatNamedArguments Args;
		Args.Add(TEXT("ErrorCtx"), InErrorCtx ? *InErrorCtx : NSLOCTEXT("Core", "NameDefaultErrorCtx", "Name"));
		Args.Add(TEXT("IllegalNameCharacters"), FText::FromString(MatchedInvalidChars));
		*OutReason = FText::Format(NSLOCTEXT("Core", "NameContainsInvalidCharacters", "{ErrorCtx} may not contain the following characters: {IllegalNameCharacters}"), Args);
	}
	return false;
}

FString FName::ToString() const
{
	return Entry ? Entry->Display : FString(TEXT("None"));
}

bool FName::IsEqual(const FName& Other) const
{
	if (Entry == Other.Entry)
	{
		return true;
	}
	if (!Entry || !Other.Entry)
	{
		return false;
	}
	return Entry->Comparison == Other.Entry->Comparison;
}

uint32 GetTypeHash(const FName& Name)
{
	return Name.Entry ? static_cast<uint32>(std::hash<std::u16string>()(Name.Entry->Comparison)) : 0u;
}

FString FName::NameToDisplayString(const FString& InDisplayName, const bool bIsBool)
{
	FString Source = InDisplayName;
	if (bIsBool && Source.Len() > 1 && Source[0] == TEXT('b') && Source[1] >= TEXT('A') && Source[1] <= TEXT('Z'))
	{
		Source = Source.RightChop(1);
	}
	auto IsUpper = [](TCHAR Ch)
	{ return Ch >= TEXT('A') && Ch <= TEXT('Z'); };
	auto IsLower = [](TCHAR Ch)
	{ return Ch >= TEXT('a') && Ch <= TEXT('z'); };
	auto IsDigit = [](TCHAR Ch)
	{ return Ch >= TEXT('0') && Ch <= TEXT('9'); };
	FString Result;
	for (int32 Index = 0; Index < Source.Len(); ++Index)
	{
		const TCHAR Ch = Source[Index];
		if (Ch == TEXT('_'))
		{
			Result += TEXT(' ');
			continue;
		}
		if (Index > 0)
		{
			const TCHAR Prev = Source[Index - 1];
			const bool bNextLower = Index + 1 < Source.Len() && IsLower(Source[Index + 1]);
			const bool bBreak = (IsUpper(Ch) && (IsLower(Prev) || IsDigit(Prev) || (IsUpper(Prev) && bNextLower))) || (IsDigit(Ch) && !IsDigit(Prev));
			if (bBreak && Prev != TEXT('_'))
			{
				Result += TEXT(' ');
			}
		}
		Result += Ch;
	}
	return Result;
}

FName FLazyName::Resolve() const
{
	if (Resolved.IsNone())
	{
		if (WideLiteral)
		{
			Resolved = FName(WideLiteral);
		}
		else if (AnsiLiteral)
		{
			Resolved = FName(AnsiLiteral);
		}
	}
	return Resolved;
}
