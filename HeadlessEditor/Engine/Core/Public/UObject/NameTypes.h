#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

#include <memory>

class FText;

enum EName : uint32
{
	NAME_None = 0,
};

enum EFindName
{
	FNAME_Find,
	FNAME_Add,
};

/** Maximum size of a name, its terminating null included. */
enum
{
	NAME_SIZE = 1024
};

/** Characters that object names may not contain. */
#define INVALID_OBJECTNAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")
#define INVALID_LONGPACKAGE_CHARACTERS TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")

/**
 * A case-insensitive, case-preserving name, as editor builds of the engine keep them. Each distinct
 * spelling is stored once, so copies and comparisons are cheap.
 */
class CORE_API FName
{
public:
	FName() = default;
	FName(EName N)
	{
	}
	FName(const WIDECHAR* Name, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);

	/** Whether the name holds none of InInvalidChars; an empty name is valid. */
	static bool IsValidXName(const FString& InName, const FString& InInvalidChars, FText* OutReason = nullptr, const FText* InErrorCtx = nullptr);
	bool IsValidObjectName(FText& OutReason) const { return IsValidXName(ToString(), INVALID_OBJECTNAME_CHARACTERS, &OutReason); }

	/** A name as the editor shows it: "TextureRenderTarget2D" becomes "Texture Render Target 2D", and a bool's "bEnabled" "Enabled". */
	static FString NameToDisplayString(const FString& InDisplayName, const bool bIsBool);

	FString ToString() const;
	void ToString(FString& Out) const { Out = ToString(); }
	FString GetPlainNameString() const { return ToString(); }
	bool IsNone() const { return !Entry; }
	bool IsValid() const { return true; }
	bool IsEqual(const FName& Other) const;

	friend bool operator==(const FName& A, const FName& B) { return A.IsEqual(B); }
	friend bool operator!=(const FName& A, const FName& B) { return !A.IsEqual(B); }
	friend bool operator==(const FName& A, EName B) { return A.IsEqual(FName(B)); }
	friend bool operator!=(const FName& A, EName B) { return !A.IsEqual(FName(B)); }
	/** Lexical order ignoring case, as FName::LexicalLess does. */
	bool LexicalLess(const FName& Other) const { return ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase) < 0; }
	friend bool operator<(const FName& A, const FName& B) { return A.LexicalLess(B); }

	friend CORE_API uint32 GetTypeHash(const FName& Name);

	/** One spelling of a name in the process-wide name table. */
	struct FEntry;

private:
	const FEntry* Entry = nullptr;
};

CORE_API uint32 GetTypeHash(const FName& Name);

inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}

/**
 * A name that becomes an FName only when it is first used, so that it can be declared where names
 * cannot be made yet, such as in static initialisers.
 */
class FLazyName
{
public:
	FLazyName() = default;

	template <int N>
	FLazyName(const WIDECHAR (&Literal)[N])
		: WideLiteral(Literal)
	{
	}

	template <int N>
	FLazyName(const ANSICHAR (&Literal)[N])
		: AnsiLiteral(Literal)
	{
	}

	explicit FLazyName(FName Name)
		: Resolved(Name)
	{
	}

	operator FName() const { return Resolve(); }

	CORE_API FName Resolve() const;

private:
	const WIDECHAR* WideLiteral = nullptr;
	const ANSICHAR* AnsiLiteral = nullptr;
	mutable FName Resolved;
};
