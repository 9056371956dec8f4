#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <memory>
#include <variant>

class FText;
class FTextFormat;
class FFormatArgumentValue;
class FCulture;
struct FNumberFormattingOptions;

typedef TArray<FFormatArgumentValue> FFormatOrderedArguments;
typedef TMap<FString, FFormatArgumentValue> FFormatNamedArguments;
typedef TSharedPtr<FCulture, ESPMode::ThreadSafe> FCulturePtr;

/**
 * Localisable, immutable display text. Texts made by LOCTEXT/NSLOCTEXT remember their namespace
 * and key (see FTextInspector); the headless editor always shows the source (native) string.
 */
/** How closely texts are compared: from the letters alone to every difference. */
namespace ETextComparisonLevel
{
	enum Type
	{
		Default,
		Primary,
		Secondary,
		Tertiary,
		Quaternary,
		Quinary,
	};
}

class CORE_API FText
{
public:
	FText();

	static const FText& GetEmpty();
	static FText FromString(const FString& String);
	static FText FromString(FString&& String);
	static FText FromName(const FName& Val);
	static FText FromStringView(FStringView InString);
	static FText AsCultureInvariant(const FString& String);
	static FText AsCultureInvariant(FText Text);

	static FText AsNumber(float Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(double Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(int8 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(int16 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(int32 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(int64 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(uint8 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(uint16 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(uint32 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(uint64 Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);
	static FText AsNumber(long Val, const FNumberFormattingOptions* const Options = nullptr, const FCulturePtr& TargetCulture = nullptr);

	static FText Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments);
	static FText Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments);
	template <typename... ArgTypes>
	static FText Format(FTextFormat Fmt, ArgTypes... Args);

	const FString& ToString() const;
	bool IsEmpty() const;
	bool IsEmptyOrWhitespace() const;
	static bool IsWhitespace(const TCHAR Char);
	bool IsCultureInvariant() const;
	bool IsFromStringTable() const { return false; }
	FText ToUpper() const;
	FText ToLower() const;
	bool EqualTo(const FText& Other) const;
	bool EqualToCaseIgnored(const FText& Other) const;
	/** Orders texts as the culture sorts them: by letters first, and only then lower case before upper. */
	int32 CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	int32 CompareToCaseIgnored(const FText& Other) const;
	bool IdenticalTo(const FText& Other) const;

private:
	friend class FTextCache;
	friend class FTextInspector;

	struct FData
	{
		FString Display;
		TOptional<FString> Namespace;
		TOptional<FString> Key;
		bool bCultureInvariant = false;
	};

	explicit FText(std::shared_ptr<const FData> InData);

	std::shared_ptr<const FData> Data;
};

/** Reads where a text came from. */
class CORE_API FTextInspector
{
public:
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
	static const FString* GetSourceString(const FText& Text);
	static const FString& GetDisplayString(const FText& Text);
};

/** One argument of FText::Format. */
class CORE_API FFormatArgumentValue
{
public:
	FFormatArgumentValue();
	FFormatArgumentValue(const int32 Value);
	FFormatArgumentValue(const uint32 Value);
	FFormatArgumentValue(const int64 Value);
	FFormatArgumentValue(const uint64 Value);
	FFormatArgumentValue(const float Value);
	FFormatArgumentValue(const double Value);
	FFormatArgumentValue(const FText& Value);
	FFormatArgumentValue(FText&& Value);

	FString ToFormattedString() const;

	bool operator==(const FFormatArgumentValue& Other) const { return ToFormattedString().Equals(Other.ToFormattedString()); }

private:
	std::variant<std::monostate, int64, uint64, double, FText> Value;
};

/** A parsed format pattern such as "Livestream '{0}' created!". */
class CORE_API FTextFormat
{
public:
	FTextFormat();
	FTextFormat(const FText& InText);

	const FText& GetSourceText() const { return SourceText; }

private:
	FText SourceText;
};

template <typename... ArgTypes>
FText FText::Format(FTextFormat Fmt, ArgTypes... Args)
{
	static_assert(sizeof...(Args) > 0, "FText::Format expects at least one extra argument");
	FFormatOrderedArguments FormatArguments;
	(FormatArguments.Add(FFormatArgumentValue(MoveTemp(Args))), ...);
	return Format(MoveTemp(Fmt), FormatArguments);
}

/** Builds multi-line text with indentation. */
class CORE_API FTextBuilder
{
public:
	void Indent();
	void Unindent();
	void AppendLine();
	void AppendLine(const FText& Text);
	void AppendLine(const FString& String);
	void AppendLine(const FName& Name);
	void AppendLineFormat(const FTextFormat& Pattern, const FFormatOrderedArguments& Arguments);
	void AppendLineFormat(const FTextFormat& Pattern, const FFormatNamedArguments& Arguments);
	void Clear();
	bool IsEmpty();
	FText ToText() const;

private:
	TArray<FString> Lines;
	int32 IndentCount = 0;
};
