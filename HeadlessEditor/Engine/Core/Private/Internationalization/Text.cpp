#include "Internationalization/Text.h"

#include "Internationalization/Internationalization.h"

#include <cmath>
#include <cstdio>
#include <string>

namespace
{
	// Numbers are shown as the engine's default (English) culture shows them: grouped by thousands.
	FString GroupDigits(const std::string& Digits)
	{
		std::string Grouped;
		const SIZE_T Start = (!Digits.empty() && Digits[0] == '-') ? 1 : 0;
		for (SIZE_T Index = 0; Index < Digits.size(); ++Index)
		{
			if (Index > Start && (Digits.size() - Index) % 3 == 0)
			{
				Grouped.push_back(',');
			}
			Grouped.push_back(Digits[Index]);
		}
		return FString(Grouped.c_str());
	}

	FString FormatInteger(int64 Value)
	{
		return GroupDigits(std::to_string(Value));
	}

	FString FormatUnsigned(uint64 Value)
	{
		return GroupDigits(std::to_string(Value));
	}

	// Rounds half to even after snapping values within a hair of one half onto it, as FMath does.
	double RoundHalfToEven(double Value)
	{
		double IntegralPart = 0.0;
		const double FractionalPart = std::modf(Value, &IntegralPart);
		const double Half = Value < 0.0 ? -0.5 : 0.5;
		if (std::fabs(FractionalPart - Half) <= 1.e-8)
		{
			Value = IntegralPart + Half;
		}
		const bool bIsNegative = Value < 0.0;
		const bool bIsEven = static_cast<uint64>(std::floor(bIsNegative ? -Value : Value)) % 2 == 0;
		if (bIsEven)
		{
			return bIsNegative ? std::floor(Value + 0.5) : std::ceil(Value - 0.5);
		}
		return bIsNegative ? std::ceil(Value - 0.5) : std::floor(Value + 0.5);
	}

	FString FormatDouble(double Value)
	{
		// The default options: at most three fractional digits, rounded half to even, trailing zeros
		// dropped; negative zero keeps its sign.
		constexpr int32 MaximumFractionalDigits = 3;
		constexpr double FractionalScale = 1000.0;
		if (std::isnan(Value))
		{
			return FString(TEXT("NaN"));
		}
		const bool bIsNegative = std::signbit(Value);
		double IntegralPart = 0.0;
		double Fraction = RoundHalfToEven(std::modf(Value, &IntegralPart) * FractionalScale);
		if (std::fabs(Fraction) >= FractionalScale)
		{
			IntegralPart += bIsNegative ? -1.0 : 1.0;
			Fraction += bIsNegative ? FractionalScale : -FractionalScale;
		}
		FString Result = GroupDigits(std::to_string(static_cast<uint64>(std::fabs(IntegralPart))));
		std::string FractionDigits = std::to_string(static_cast<uint64>(std::fabs(Fraction)));
		if (FractionDigits != "0")
		{
			FractionDigits.insert(0, static_cast<SIZE_T>(MaximumFractionalDigits) - FractionDigits.size(), '0');
			while (FractionDigits.back() == '0')
			{
				FractionDigits.pop_back();
			}
			Result += TEXT(".");
			Result += FString(FractionDigits.c_str());
		}
		return bIsNegative ? TEXT("-") + Result : Result;
	}

	/** Lookup receives the argument's name and its position among the pattern's arguments. */
	template <typename LookupType>
	FString ApplyPattern(const FString& Pattern, const LookupType& Lookup)
	{
		FString Result;
		int32 ArgumentNumber = 0;
		const int32 Length = Pattern.Len();
		for (int32 Index = 0; Index < Length; ++Index)
		{
			const TCHAR Char = Pattern[Index];
			if (Char == u'`' && Index + 1 < Length && (Pattern[Index + 1] == u'{' || Pattern[Index + 1] == u'}' || Pattern[Index + 1] == u'`' || Pattern[Index + 1] == u'|'))
			{
				Result.AppendChar(Pattern[++Index]);
				continue;
			}
			if (Char == u'{')
			{
				int32 Close = INDEX_NONE;
				for (int32 Scan = Index + 1; Scan < Length; ++Scan)
				{
					if (Pattern[Scan] == u'}')
					{
						Close = Scan;
						break;
					}
				}
				if (Close != INDEX_NONE)
				{
					const FString ArgumentName = Pattern.Mid(Index + 1, Close - Index - 1);
					const FFormatArgumentValue* Argument = Lookup(ArgumentName, ArgumentNumber++);
					// An argument that was not given stays in the text, as the engine leaves it.
					Result += Argument ? Argument->ToFormattedString() : Pattern.Mid(Index, Close - Index + 1);
					Index = Close;
					continue;
				}
			}
			Result.AppendChar(Char);
		}
		return Result;
	}
}

FText::FText()
	: Data(std::make_shared<const FData>())
{
}

FText::FText(std::shared_ptr<const FData> InData)
	: Data(std::move(InData))
{
}

const FText& FText::GetEmpty()
{
	static const FText* Empty = new FText();
	return *Empty;
}

FText FText::FromString(const FString& String)
{
	auto NewData = std::make_shared<FData>();
	NewData->Display = String;
	return FText(NewData);
}

FText FText::FromString(FString&& String)
{
	auto NewData = std::make_shared<FData>();
	NewData->Display = MoveTemp(String);
	return FText(NewData);
}

FText FText::FromName(const FName& Val)
{
	return FromString(Val.ToString());
}

FText FText::FromStringView(FStringView InString)
{
	return FromString(FString(InString.Len(), InString.GetData()));
}

FText FText::AsCultureInvariant(const FString& String)
{
	auto NewData = std::make_shared<FData>();
	NewData->Display = String;
	NewData->bCultureInvariant = true;
	return FText(NewData);
}

FText FText::AsCultureInvariant(FText Text)
{
	return AsCultureInvariant(Text.ToString());
}

#define CASTELLAN_TEXT_AS_NUMBER(Type, Formatter) \
	FText FText::AsNumber(Type Val, const FNumberFormattingOptions* const, const FCulturePtr&) \
	{ \
		return FromString(Formatter(Val)); \
	}
CASTELLAN_TEXT_AS_NUMBER(float, FormatDouble)
CASTELLAN_TEXT_AS_NUMBER(double, FormatDouble)
CASTELLAN_TEXT_AS_NUMBER(int8, FormatInteger)
CASTELLAN_TEXT_AS_NUMBER(int16, FormatInteger)
CASTELLAN_TEXT_AS_NUMBER(int32, FormatInteger)
CASTELLAN_TEXT_AS_NUMBER(int64, FormatInteger)
CASTELLAN_TEXT_AS_NUMBER(long, FormatInteger)
CASTELLAN_TEXT_AS_NUMBER(uint8, FormatUnsigned)
CASTELLAN_TEXT_AS_NUMBER(uint16, FormatUnsigned)
CASTELLAN_TEXT_AS_NUMBER(uint32, FormatUnsigned)
CASTELLAN_TEXT_AS_NUMBER(uint64, FormatUnsigned)
#undef CASTELLAN_TEXT_AS_NUMBER

FText FText::Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments)
{
	// Argument names match exactly, case included.
	return FromString(ApplyPattern(Fmt.GetSourceText().ToString(), [&InArguments](const FString& Name, int32) -> const FFormatArgumentValue*
		{
		for (const TPair<FString, FFormatArgumentValue>& Pair : InArguments)
		{
			if (Pair.Key.Equals(Name, ESearchCase::CaseSensitive))
			{
				return &Pair.Value;
			}
		}
		return nullptr; }));
}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments)
{
	return FromString(ApplyPattern(Fmt.GetSourceText().ToString(), [&InArguments](const FString& Name, int32 ArgumentNumber) -> const FFormatArgumentValue*
		{
		// A name that is not a plain number stands for the argument at its own position in the pattern.
		int32 Index = Name.IsEmpty() ? INDEX_NONE : 0;
		for (const TCHAR Char : Name)
		{
			if (!FChar::IsDigit(Char))
			{
				Index = INDEX_NONE;
				break;
			}
			Index = Index * 10 + (Char - u'0');
		}
		if (Index == INDEX_NONE)
		{
			Index = ArgumentNumber;
		}
		return InArguments.IsValidIndex(Index) ? &InArguments[Index] : nullptr; }));
}

const FString& FText::ToString() const
{
	return Data->Display;
}

bool FText::IsEmpty() const
{
	return Data->Display.IsEmpty();
}

bool FText::IsWhitespace(const TCHAR Char)
{
	// Unicode's White_Space as ICU's u_isWhitespace reads it: separators except the no-break
	// spaces, plus the ASCII control whitespace and the information separators.
	switch (Char)
	{
		case 0x00A0:
		case 0x2007:
		case 0x202F:
			return false;
		case 0x0020:
		case 0x1680:
		case 0x205F:
		case 0x3000:
		case 0x2028:
		case 0x2029:
			return true;
		default:
			return (Char >= 0x0009 && Char <= 0x000D) || (Char >= 0x001C && Char <= 0x001F) || (Char >= 0x2000 && Char <= 0x200A);
	}
}

bool FText::IsEmptyOrWhitespace() const
{
	for (const TCHAR Character : Data->Display)
	{
		if (!IsWhitespace(Character))
		{
			return false;
		}
	}
	return true;
}

bool FText::IsCultureInvariant() const
{
	return Data->bCultureInvariant;
}

FText FText::ToUpper() const
{
	return FromString(Data->Display.ToUpper());
}

FText FText::ToLower() const
{
	return FromString(Data->Display.ToLower());
}

bool FText::EqualTo(const FText& Other) const
{
	return Data->Display.Equals(Other.Data->Display, ESearchCase::CaseSensitive);
}

bool FText::EqualToCaseIgnored(const FText& Other) const
{
	return Data->Display.Equals(Other.Data->Display, ESearchCase::IgnoreCase);
}

int32 FText::CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	// The root collation for the editor's texts: letters decide, case only breaks ties, lower case first.
	const int32 CaseIgnored = CompareToCaseIgnored(Other);
	if (CaseIgnored != 0 || ComparisonLevel == ETextComparisonLevel::Primary || ComparisonLevel == ETextComparisonLevel::Secondary)
	{
		return CaseIgnored;
	}
	return -Data->Display.Compare(Other.Data->Display, ESearchCase::CaseSensitive);
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	return Data->Display.Compare(Other.Data->Display, ESearchCase::IgnoreCase);
}

bool FText::IdenticalTo(const FText& Other) const
{
	return Data == Other.Data;
}

/** Makes the texts of LOCTEXT and NSLOCTEXT. There is no localisation data, so a text shows its source string. */
class FTextCache
{
public:
	static FText FindOrCache(const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
	{
		auto NewData = std::make_shared<FText::FData>();
		NewData->Display = InTextLiteral;
		NewData->Namespace = FString(InNamespace);
		NewData->Key = FString(InKey);
		return FText(NewData);
	}
};

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
{
	return FTextCache::FindOrCache(InTextLiteral, InNamespace, InKey);
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data->Namespace;
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data->Key;
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	return &Text.Data->Display;
}

const FString& FTextInspector::GetDisplayString(const FText& Text)
{
	return Text.Data->Display;
}

FFormatArgumentValue::FFormatArgumentValue() = default;
FFormatArgumentValue::FFormatArgumentValue(const int32 InValue)
	: Value(static_cast<int64>(InValue))
{
}
FFormatArgumentValue::FFormatArgumentValue(const uint32 InValue)
	: Value(static_cast<uint64>(InValue))
{
}
FFormatArgumentValue::FFormatArgumentValue(const int64 InValue)
	: Value(InValue)
{
}
FFormatArgumentValue::FFormatArgumentValue(const uint64 InValue)
	: Value(InValue)
{
}
FFormatArgumentValue::FFormatArgumentValue(const float InValue)
	: Value(static_cast<double>(InValue))
{
}
FFormatArgumentValue::FFormatArgumentValue(const double InValue)
	: Value(InValue)
{
}
FFormatArgumentValue::FFormatArgumentValue(const FText& InValue)
	: Value(InValue)
{
}
FFormatArgumentValue::FFormatArgumentValue(FText&& InValue)
	: Value(MoveTemp(InValue))
{
}

FString FFormatArgumentValue::ToFormattedString() const
{
	if (const int64* Signed = std::get_if<int64>(&Value))
	{
		return FormatInteger(*Signed);
	}
	if (const uint64* Unsigned = std::get_if<uint64>(&Value))
	{
		return FormatUnsigned(*Unsigned);
	}
	if (const double* Double = std::get_if<double>(&Value))
	{
		return FormatDouble(*Double);
	}
	if (const FText* Text = std::get_if<FText>(&Value))
	{
		return Text->ToString();
	}
	return FString();
}

FTextFormat::FTextFormat() = default;

FTextFormat::FTextFormat(const FText& InText)
	: SourceText(InText)
{
}

void FTextBuilder::Indent()
{
	++IndentCount;
}

void FTextBuilder::Unindent()
{
	--IndentCount;
}

void FTextBuilder::AppendLine()
{
	Lines.Add(FString());
}

void FTextBuilder::AppendLine(const FText& Text)
{
	AppendLine(Text.ToString());
}

void FTextBuilder::AppendLine(const FString& String)
{
	Lines.Add(FString::ChrN(IndentCount * 4, u' ') + String);
}

void FTextBuilder::AppendLine(const FName& Name)
{
	AppendLine(Name.ToString());
}

void FTextBuilder::AppendLineFormat(const FTextFormat& Pattern, const FFormatOrderedArguments& Arguments)
{
	AppendLine(FText::Format(Pattern, Arguments));
}

void FTextBuilder::AppendLineFormat(const FTextFormat& Pattern, const FFormatNamedArguments& Arguments)
{
	AppendLine(FText::Format(Pattern, Arguments));
}

void FTextBuilder::Clear()
{
	// Clearing drops the lines only; the indentation carries on.
	Lines.Reset();
}

bool FTextBuilder::IsEmpty()
{
	return Lines.IsEmpty();
}

FText FTextBuilder::ToText() const
{
	return FText::FromString(FString::Join(Lines, TEXT("\n")));
}
