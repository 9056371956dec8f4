#include "Containers/UnrealString.h"

#include "Containers/UnrealStringFormat.h"
#include "Containers/Utf8.h"

#include <cstdarg>
#include <cstdio>

namespace
{
	/** A string of exactly these characters. */
	FString MakeString(std::u16string_view View)
	{
		FString Result;
		Result.Append(View.data(), static_cast<int32>(View.size()));
		return Result;
	}

	int32 CompareCharacters(std::u16string_view A, std::u16string_view B, ESearchCase::Type SearchCase)
	{
		const SIZE_T Common = A.size() < B.size() ? A.size() : B.size();
		for (SIZE_T Index = 0; Index < Common; ++Index)
		{
			TCHAR CharA = A[Index];
			TCHAR CharB = B[Index];
			if (SearchCase == ESearchCase::IgnoreCase)
			{
				CharA = FChar::ToLower(CharA);
				CharB = FChar::ToLower(CharB);
			}
			if (CharA != CharB)
			{
				return CharA < CharB ? -1 : 1;
			}
		}
		if (A.size() == B.size())
		{
			return 0;
		}
		return A.size() < B.size() ? -1 : 1;
	}

	FString FormatWithPrintf(const char* NarrowSpec, ...)
	{
		char Buffer[128];
		va_list Args;
		va_start(Args, NarrowSpec);
		std::vsnprintf(Buffer, sizeof(Buffer), NarrowSpec, Args);
		va_end(Args);
		return FString(Buffer);
	}
}

FString::FString(const TCHAR* Str)
	: Data(Str ? Str : u"")
{
}

FString::FString(const ANSICHAR* Str)
	: Data(Str ? UE::Core::Private::DecodeUtf8(Str) : std::u16string())
{
}

FString::FString(int32 InCount, const TCHAR* InSrc)
	: Data(InSrc, static_cast<SIZE_T>(InCount))
{
}

FString& FString::operator=(const TCHAR* Str)
{
	Data = Str ? Str : u"";
	return *this;
}

TCHAR& FString::operator[](int32 Index)
{
	checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
	return Data[static_cast<SIZE_T>(Index)];
}

const TCHAR& FString::operator[](int32 Index) const
{
	checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
	return Data[static_cast<SIZE_T>(Index)];
}

void FString::Empty(int32 Slack)
{
	Data.clear();
	Data.reserve(static_cast<SIZE_T>(Slack));
}

FString& FString::Append(const FString& Text)
{
	Data += Text.Data;
	return *this;
}

FString& FString::Append(const TCHAR* Text, int32 Count)
{
	Data.append(Text, static_cast<SIZE_T>(Count));
	return *this;
}

FString& FString::AppendChar(TCHAR InChar)
{
	Data.push_back(InChar);
	return *this;
}

FString& FString::operator/=(const FString& Str)
{
	// Either separator ends a directory, so neither gets another one appended.
	if (!Data.empty() && Data.back() != u'/' && Data.back() != u'\\' && !(Str.Len() > 0 && Str.Data.front() == u'/'))
	{
		Data.push_back(u'/');
	}
	Data += Str.Data;
	return *this;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return Data.size() == Other.Data.size() && CompareCharacters(Data, Other.Data, SearchCase) == 0;
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return CompareCharacters(Data, Other.Data, SearchCase);
}

int32 FString::Find(const TCHAR* SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	const std::u16string_view Needle(SubStr ? SubStr : u"");
	if (Needle.empty())
	{
		return INDEX_NONE;
	}
	const int32 NeedleLen = static_cast<int32>(Needle.size());
	auto MatchesAt = [&](int32 Position)
	{
		return CompareCharacters(std::u16string_view(Data).substr(static_cast<SIZE_T>(Position), Needle.size()), Needle, SearchCase) == 0;
	};
	if (SearchDir == ESearchDir::FromStart)
	{
		// A start position is clamped into the string, as the engine does.
		int32 Position = 0;
		if (StartPosition != INDEX_NONE && Len() > 0)
		{
			Position = StartPosition < 0 ? 0 : (StartPosition > Len() - 1 ? Len() - 1 : StartPosition);
		}
		for (; Position + NeedleLen <= Len(); ++Position)
		{
			if (MatchesAt(Position))
			{
				return Position;
			}
		}
	}
	else
	{
		// Searching backwards starts at the end when the position is past it.
		const int32 SearchEnd = (StartPosition == INDEX_NONE || StartPosition >= Len()) ? Len() : StartPosition;
		for (int32 Position = SearchEnd - NeedleLen; Position >= 0; --Position)
		{
			if (MatchesAt(Position))
			{
				return Position;
			}
		}
	}
	return INDEX_NONE;
}

bool FString::FindChar(TCHAR InChar, int32& Index) const
{
	const SIZE_T Found = Data.find(InChar);
	Index = Found == std::u16string::npos ? INDEX_NONE : static_cast<int32>(Found);
	return Index != INDEX_NONE;
}

bool FString::FindLastChar(TCHAR InChar, int32& Index) const
{
	const SIZE_T Found = Data.rfind(InChar);
	Index = Found == std::u16string::npos ? INDEX_NONE : static_cast<int32>(Found);
	return Index != INDEX_NONE;
}

bool FString::StartsWith(const FString& InPrefix, ESearchCase::Type SearchCase) const
{
	return InPrefix.Len() <= Len() && CompareCharacters(std::u16string_view(Data).substr(0, InPrefix.Data.size()), InPrefix.Data, SearchCase) == 0;
}

bool FString::EndsWith(const FString& InSuffix, ESearchCase::Type SearchCase) const
{
	return InSuffix.Len() <= Len() && CompareCharacters(std::u16string_view(Data).substr(Data.size() - InSuffix.Data.size()), InSuffix.Data, SearchCase) == 0;
}

FString FString::Left(int32 Count) const
{
	return MakeString(std::u16string_view(Data).substr(0, static_cast<SIZE_T>(Count < 0 ? 0 : Count)));
}

FString FString::LeftChop(int32 Count) const
{
	return Left(Len() - Count);
}

FString FString::Right(int32 Count) const
{
	const int32 Clamped = Count < 0 ? 0 : (Count > Len() ? Len() : Count);
	return MakeString(std::u16string_view(Data).substr(Data.size() - static_cast<SIZE_T>(Clamped)));
}

FString FString::RightChop(int32 Count) const
{
	const int32 Clamped = Count < 0 ? 0 : (Count > Len() ? Len() : Count);
	return MakeString(std::u16string_view(Data).substr(static_cast<SIZE_T>(Clamped)));
}

FString FString::Mid(int32 Start, int32 Count) const
{
	if (Count < 0)
	{
		return FString();
	}
	// The end is measured from the requested start, so a negative start shortens the result.
	const int64 RequestedEnd = static_cast<int64>(Start) + Count;
	const int32 ClampedStart = Start < 0 ? 0 : (Start > Len() ? Len() : Start);
	const int32 End = static_cast<int32>(RequestedEnd < ClampedStart ? ClampedStart : (RequestedEnd > Len() ? Len() : RequestedEnd));
	return MakeString(std::u16string_view(Data).substr(static_cast<SIZE_T>(ClampedStart), static_cast<SIZE_T>(End - ClampedStart)));
}

bool FString::Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Position = Find(*InS, SearchCase, SearchDir);
	if (Position == INDEX_NONE)
	{
		return false;
	}
	if (LeftS)
	{
		*LeftS = Left(Position);
	}
	if (RightS)
	{
		*RightS = Mid(Position + InS.Len());
	}
	return true;
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty) const
{
	check(pchDelim);
	OutArray.Reset();
	const std::u16string_view Delim(pchDelim);
	// An empty string or delimiter yields no pieces at all, even when empty pieces are kept.
	if (Data.empty() || Delim.empty())
	{
		return 0;
	}
	SIZE_T Start = 0;
	while (Start <= Data.size())
	{
		const SIZE_T Found = Data.find(Delim, Start);
		const SIZE_T End = Found == std::u16string::npos ? Data.size() : Found;
		const FString Piece = MakeString(std::u16string_view(Data).substr(Start, End - Start));
		if (!InCullEmpty || !Piece.IsEmpty())
		{
			OutArray.Add(Piece);
		}
		if (Found == std::u16string::npos)
		{
			break;
		}
		Start = Found + Delim.size();
	}
	return OutArray.Num();
}

FString FString::ToUpper() const
{
	FString Result(*this);
	for (TCHAR& Char : Result.Data)
	{
		Char = FChar::ToUpper(Char);
	}
	return Result;
}

FString FString::ToLower() const
{
	FString Result(*this);
	for (TCHAR& Char : Result.Data)
	{
		Char = FChar::ToLower(Char);
	}
	return Result;
}

FString FString::TrimStart() const
{
	SIZE_T Start = 0;
	while (Start < Data.size() && FChar::IsWhitespace(Data[Start]))
	{
		++Start;
	}
	return MakeString(std::u16string_view(Data).substr(Start));
}

FString FString::TrimEnd() const
{
	SIZE_T End = Data.size();
	while (End > 0 && FChar::IsWhitespace(Data[End - 1]))
	{
		--End;
	}
	return MakeString(std::u16string_view(Data).substr(0, End));
}

FString FString::TrimStartAndEnd() const
{
	return TrimStart().TrimEnd();
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	const FString FromString(From);
	if (FromString.IsEmpty())
	{
		return *this;
	}
	FString Result;
	int32 Position = 0;
	while (true)
	{
		const int32 Found = Find(From, SearchCase, ESearchDir::FromStart, Position);
		if (Found == INDEX_NONE)
		{
			Result += Mid(Position);
			return Result;
		}
		Result += Mid(Position, Found - Position);
		Result += To;
		Position = Found + FromString.Len();
	}
}

bool FString::IsNumeric() const
{
	if (Data.empty())
	{
		return false;
	}
	// As the engine's check: an optional sign, then digits with at most one dot (a bare sign or dot passes).
	SIZE_T Index = (Data[0] == u'-' || Data[0] == u'+') ? 1 : 0;
	bool bHasDot = false;
	for (; Index < Data.size(); ++Index)
	{
		if (Data[Index] == u'.')
		{
			if (bHasDot)
			{
				return false;
			}
			bHasDot = true;
		}
		else if (!FChar::IsDigit(Data[Index]))
		{
			return false;
		}
	}
	return true;
}

TArray<TCHAR> FString::GetCharArray() const
{
	TArray<TCHAR> Result(Data.c_str(), Len() + 1);
	return Result;
}

FString FString::Printf(const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	FString Result = UE::Core::Private::FormatV(Format, Args);
	va_end(Args);
	return Result;
}

FString UE::Core::Private::FormatV(const TCHAR* Format, va_list Args)
{
	FString Result;
	for (const TCHAR* Cursor = Format; Cursor && *Cursor; ++Cursor)
	{
		if (*Cursor != u'%')
		{
			Result.AppendChar(*Cursor);
			continue;
		}
		// Collect the conversion specifier in narrow form for vsnprintf.
		std::string Specifier = "%";
		++Cursor;
		while (*Cursor && std::string("-+ #0123456789.").find(static_cast<char>(*Cursor)) != std::string::npos)
		{
			Specifier.push_back(static_cast<char>(*Cursor++));
		}
		std::string Length;
		while (*Cursor == u'l' || *Cursor == u'h' || *Cursor == u'z' || *Cursor == u'j')
		{
			Length.push_back(static_cast<char>(*Cursor++));
		}
		const TCHAR Conversion = *Cursor;
		switch (Conversion)
		{
			case u'%':
				Result.AppendChar(u'%');
				break;
			case u's':
			{
				const TCHAR* Str = va_arg(Args, const TCHAR*);
				Result += Str ? Str : TEXT("(null)");
				break;
			}
			case u'c':
				Result.AppendChar(static_cast<TCHAR>(va_arg(Args, int)));
				break;
			case u'd':
			case u'i':
			case u'u':
			case u'x':
			case u'X':
				Specifier += Length;
				Specifier.push_back(static_cast<char>(Conversion));
				if (Length == "ll" || Length == "l" || Length == "z" || Length == "j")
				{
					Result += FormatWithPrintf(Specifier.c_str(), va_arg(Args, long long));
				}
				else
				{
					Result += FormatWithPrintf(Specifier.c_str(), va_arg(Args, int));
				}
				break;
			case u'f':
			case u'g':
			case u'e':
				Specifier.push_back(static_cast<char>(Conversion));
				Result += FormatWithPrintf(Specifier.c_str(), va_arg(Args, double));
				break;
			case u'p':
				Result += FormatWithPrintf("%p", va_arg(Args, void*));
				break;
			default:
				checkf(false, TEXT("Unsupported format conversion in FString::Printf"));
		}
		if (!*Cursor)
		{
			break;
		}
	}
	return Result;
}

FString FString::FromInt(int32 Num)
{
	return LexToString(Num);
}

FString FString::Chr(TCHAR Ch)
{
	FString Result;
	Result.AppendChar(Ch);
	return Result;
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	FString Result;
	Result.Data.assign(static_cast<SIZE_T>(NumCharacters), Char);
	return Result;
}

uint32 GetTypeHash(const FString& S)
{
	// Case-insensitive, like the engine's string hash, so that equal strings hash alike.
	uint32 Hash = 2166136261u;
	for (TCHAR Char : S)
	{
		Hash = (Hash ^ FChar::ToLower(Char)) * 16777619u;
	}
	return Hash;
}

bool FChar::IsWhitespace(TCHAR Char)
{
	switch (Char)
	{
		case 0x0009:
		case 0x000A:
		case 0x000B:
		case 0x000C:
		case 0x000D:
		case 0x0020:
		case 0x0085:
		case 0x00A0:
		case 0x1680:
		case 0x2028:
		case 0x2029:
		case 0x202F:
		case 0x205F:
		case 0x3000:
			return true;
		default:
			return Char >= 0x2000 && Char <= 0x200A;
	}
}

FString LexToString(int32 Value)
{
	return FString(std::to_string(Value).c_str());
}

FString LexToString(uint64 Value)
{
	return FString(std::to_string(Value).c_str());
}

FString LexToString(double Value)
{
	return FormatWithPrintf("%f", Value);
}
