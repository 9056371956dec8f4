#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"

#include <string>

namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase,
	};
}

namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd,
	};
}

/** The engine's string of TCHARs. Equality operators ignore case (ASCII letters), as in the engine. */
class CORE_API FString
{
public:
	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) = default;

	FString(const TCHAR* Str);
	/** Narrow strings are read as UTF-8. */
	FString(const ANSICHAR* Str);
	explicit FString(int32 InCount, const TCHAR* InSrc);
	FString& operator=(const TCHAR* Str);

	const TCHAR* operator*() const { return Data.c_str(); }
	TCHAR& operator[](int32 Index);
	const TCHAR& operator[](int32 Index) const;

	int32 Len() const { return static_cast<int32>(Data.size()); }
	bool IsEmpty() const { return Data.empty(); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	void Empty(int32 Slack = 0);
	void Reset(int32 NewReservedSize = 0) { Empty(NewReservedSize); }
	void Reserve(int32 CharacterCount) { Data.reserve(static_cast<SIZE_T>(CharacterCount)); }

	FString& Append(const FString& Text);
	FString& Append(const TCHAR* Text, int32 Count);
	FString& AppendChar(TCHAR InChar);
	FString& operator+=(const FString& Str) { return Append(Str); }
	FString& operator+=(const TCHAR* Str) { return Append(FString(Str)); }
	FString& operator+=(TCHAR InChar) { return AppendChar(InChar); }
	FString& operator/=(const FString& Str);
	FString& operator/=(const TCHAR* Str) { return *this /= FString(Str); }

	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	int32 Find(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(*SubStr, SearchCase, SearchDir, StartPosition);
	}
	bool Contains(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(*SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool FindChar(TCHAR InChar, int32& Index) const;
	bool FindLastChar(TCHAR InChar, int32& Index) const;
	bool StartsWith(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	FString Left(int32 Count) const;
	FString LeftChop(int32 Count) const;
	FString Right(int32 Count) const;
	FString RightChop(int32 Count) const;
	FString Mid(int32 Start, int32 Count = 0x7fffffff) const;
	bool Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty = true) const;

	FString ToUpper() const;
	FString ToLower() const;
	FString TrimStart() const;
	FString TrimEnd() const;
	FString TrimStartAndEnd() const;
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool IsNumeric() const;

	TArray<TCHAR> GetCharArray() const;

	static FString Printf(const TCHAR* Format, ...);
	static FString FromInt(int32 Num);
	static FString Chr(TCHAR Ch);
	static FString ChrN(int32 NumCharacters, TCHAR Char);
	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			Result += Element;
			bFirst = false;
		}
		return Result;
	}

	friend bool operator==(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator==(const FString& A, const TCHAR* B) { return A.Equals(FString(B), ESearchCase::IgnoreCase); }
	friend bool operator==(const TCHAR* A, const FString& B) { return B == A; }
	friend bool operator!=(const FString& A, const FString& B) { return !(A == B); }
	friend bool operator!=(const FString& A, const TCHAR* B) { return !(A == B); }
	friend bool operator!=(const TCHAR* A, const FString& B) { return !(B == A); }
	friend bool operator<(const FString& A, const FString& B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }

	friend FString operator+(const FString& A, const FString& B)
	{
		FString Result(A);
		Result += B;
		return Result;
	}
	friend FString operator+(const FString& A, const TCHAR* B) { return A + FString(B); }
	friend FString operator+(const TCHAR* A, const FString& B) { return FString(A) + B; }
	friend FString operator/(const FString& A, const FString& B)
	{
		FString Result(A);
		Result /= B;
		return Result;
	}
	friend FString operator/(const FString& A, const TCHAR* B) { return A / FString(B); }

	auto begin() const { return Data.begin(); }
	auto end() const { return Data.end(); }

private:
	std::u16string Data;
};

CORE_API uint32 GetTypeHash(const FString& S);

/** Character classification as the engine's TChar<WIDECHAR> does it. */
struct CORE_API FChar
{
	static TCHAR ToUpper(TCHAR Char) { return (Char >= u'a' && Char <= u'z') ? TCHAR(Char - (u'a' - u'A')) : Char; }
	static TCHAR ToLower(TCHAR Char) { return (Char >= u'A' && Char <= u'Z') ? TCHAR(Char + (u'a' - u'A')) : Char; }
	static bool IsWhitespace(TCHAR Char);
	static bool IsDigit(TCHAR Char) { return Char >= u'0' && Char <= u'9'; }
	static bool IsAlpha(TCHAR Char) { return (Char >= u'a' && Char <= u'z') || (Char >= u'A' && Char <= u'Z'); }
	static bool IsAlnum(TCHAR Char) { return IsAlpha(Char) || IsDigit(Char); }
};

/** Lexical conversions used by the engine's string utilities. */
CORE_API FString LexToString(int32 Value);
CORE_API FString LexToString(uint64 Value);
CORE_API FString LexToString(double Value);
