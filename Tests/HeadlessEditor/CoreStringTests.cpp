#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "CoreStringTests"

TEST(CoreString, FStringEqualityOperatorFoldsOnlyAsciiLetters)
{
	EXPECT_TRUE(FString(TEXT("Livestream")) == FString(TEXT("LIVESTREAM")));
	EXPECT_TRUE(FString(TEXT("Livestream")) == TEXT("livestream"));
	EXPECT_TRUE(TEXT("livestream") == FString(TEXT("LiveStream")));
	EXPECT_FALSE(FString(TEXT("Livestream")) != FString(TEXT("LIVESTREAM")));
	// Non-ASCII letters are compared by code unit.
	EXPECT_TRUE(FString(u"Caf\u00e9") == FString(u"CAF\u00e9"));
	EXPECT_FALSE(FString(u"caf\u00e9") == FString(u"CAF\u00c9"));
	EXPECT_FALSE(FString(TEXT("Stream")) == FString(TEXT("Streams")));
}

TEST(CoreString, FStringEqualsIsCaseSensitiveUnlessAskedOtherwise)
{
	const FString Name(TEXT("Castellan"));
	EXPECT_FALSE(Name.Equals(TEXT("castellan")));
	EXPECT_TRUE(Name.Equals(TEXT("castellan"), ESearchCase::IgnoreCase));
	EXPECT_TRUE(Name.Equals(TEXT("Castellan")));
	EXPECT_FALSE(FString(u"\u00e9").Equals(FString(u"\u00c9"), ESearchCase::IgnoreCase));
}

TEST(CoreString, FStringCompareOrdersLexicallyAndShorterPrefixFirst)
{
	EXPECT_LT(FString(TEXT("abc")).Compare(TEXT("abd")), 0);
	EXPECT_GT(FString(TEXT("abc")).Compare(TEXT("ab")), 0);
	EXPECT_LT(FString(TEXT("ABC")).Compare(TEXT("abc")), 0);
	EXPECT_EQ(FString(TEXT("ABC")).Compare(TEXT("abc"), ESearchCase::IgnoreCase), 0);
}

TEST(CoreString, FStringFindIgnoresCaseByDefault)
{
	const FString Text(TEXT("Stream to NDI and ndi"));
	EXPECT_EQ(Text.Find(TEXT("ndi")), 10);
	EXPECT_EQ(Text.Find(TEXT("ndi"), ESearchCase::CaseSensitive), 18);
	EXPECT_EQ(Text.Find(TEXT("spout")), INDEX_NONE);
	EXPECT_TRUE(Text.Contains(TEXT("STREAM")));
	EXPECT_FALSE(Text.Contains(TEXT("STREAM"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FStringFindFromStartClampsTheStartPosition)
{
	const FString Text(TEXT("abcabc"));
	EXPECT_EQ(Text.Find(TEXT("abc"), ESearchCase::CaseSensitive, ESearchDir::FromStart, 1), 3);
	EXPECT_EQ(Text.Find(TEXT("abc"), ESearchCase::CaseSensitive, ESearchDir::FromStart, -7), 0);
	EXPECT_EQ(Text.Find(TEXT("c"), ESearchCase::CaseSensitive, ESearchDir::FromStart, 100), 5);
	EXPECT_EQ(Text.Find(TEXT("abc"), ESearchCase::CaseSensitive, ESearchDir::FromStart, 100), INDEX_NONE);
}

TEST(CoreString, FStringFindFromEndMatchesBeforeTheStartPosition)
{
	const FString Text(TEXT("abcABC"));
	EXPECT_EQ(Text.Find(TEXT("abc"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 3);
	EXPECT_EQ(Text.Find(TEXT("abc"), ESearchCase::CaseSensitive, ESearchDir::FromEnd), 0);
	// The match must end at or before the start position.
	EXPECT_EQ(Text.Find(TEXT("ABC"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 5), 0);
	EXPECT_EQ(Text.Find(TEXT("ABC"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 6), 3);
	EXPECT_EQ(Text.Find(TEXT("ABC"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 60), 3);
	EXPECT_EQ(Text.Find(TEXT("ABC"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 2), INDEX_NONE);
}

TEST(CoreString, FStringFindCharAndFindLastChar)
{
	const FString Path(TEXT("/Game/Maps/Main.umap"));
	int32 Index = 42;
	EXPECT_TRUE(Path.FindChar(TEXT('/'), Index));
	EXPECT_EQ(Index, 0);
	EXPECT_TRUE(Path.FindLastChar(TEXT('/'), Index));
	EXPECT_EQ(Index, 10);
	EXPECT_FALSE(Path.FindLastChar(TEXT('\\'), Index));
	EXPECT_EQ(Index, INDEX_NONE);
	EXPECT_FALSE(FString().FindLastChar(TEXT('/'), Index));
	EXPECT_EQ(Index, INDEX_NONE);
}

TEST(CoreString, FStringStartsWithAndEndsWithIgnoreCaseByDefault)
{
	const FString Name(TEXT("KyroCastellan"));
	EXPECT_TRUE(Name.StartsWith(TEXT("kyro")));
	EXPECT_FALSE(Name.StartsWith(TEXT("kyro"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Name.EndsWith(TEXT("CASTELLAN")));
	EXPECT_FALSE(Name.EndsWith(TEXT("KyroCastellanX")));
	EXPECT_TRUE(Name.StartsWith(FString()));
}

TEST(CoreString, FStringSplitAtFirstOrLastOccurrence)
{
	const FString Pair(TEXT("Key=Value=More"));
	FString Left;
	FString Right;
	ASSERT_TRUE(Pair.Split(TEXT("="), &Left, &Right));
	EXPECT_EQ(Left, TEXT("Key"));
	EXPECT_EQ(Right, TEXT("Value=More"));
	ASSERT_TRUE(Pair.Split(TEXT("="), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_EQ(Left, TEXT("Key=Value"));
	EXPECT_EQ(Right, TEXT("More"));
}

TEST(CoreString, FStringSplitIgnoresCaseAndLeavesOutputsWhenNotFound)
{
	FString Left(TEXT("untouched"));
	FString Right(TEXT("untouched"));
	EXPECT_FALSE(FString(TEXT("a-b")).Split(TEXT("+"), &Left, &Right));
	EXPECT_TRUE(Left.Equals(TEXT("untouched")));
	EXPECT_TRUE(Right.Equals(TEXT("untouched")));
	ASSERT_TRUE(FString(TEXT("OneANDTwo")).Split(TEXT("and"), &Left, nullptr));
	EXPECT_TRUE(Left.Equals(TEXT("One")));
	ASSERT_TRUE(FString(TEXT("OneANDTwo")).Split(TEXT("and"), nullptr, &Right));
	EXPECT_TRUE(Right.Equals(TEXT("Two")));
}

TEST(CoreString, FStringLeftRightAndChopsClampTheirCounts)
{
	const FString Text(TEXT("abcdef"));
	EXPECT_TRUE(Text.Left(2).Equals(TEXT("ab")));
	EXPECT_TRUE(Text.Left(-1).IsEmpty());
	EXPECT_TRUE(Text.Left(99).Equals(TEXT("abcdef")));
	EXPECT_TRUE(Text.LeftChop(2).Equals(TEXT("abcd")));
	EXPECT_TRUE(Text.LeftChop(99).IsEmpty());
	EXPECT_TRUE(Text.Right(2).Equals(TEXT("ef")));
	EXPECT_TRUE(Text.Right(99).Equals(TEXT("abcdef")));
	EXPECT_TRUE(Text.RightChop(2).Equals(TEXT("cdef")));
	EXPECT_TRUE(Text.RightChop(-3).Equals(TEXT("abcdef")));
	EXPECT_TRUE(Text.RightChop(6).IsEmpty());
	EXPECT_TRUE(Text.RightChop(60).IsEmpty());
}

TEST(CoreString, FStringMidMeasuresItsEndFromTheRequestedStart)
{
	const FString Text(TEXT("abcdef"));
	EXPECT_TRUE(Text.Mid(2).Equals(TEXT("cdef")));
	EXPECT_TRUE(Text.Mid(2, 3).Equals(TEXT("cde")));
	EXPECT_TRUE(Text.Mid(4, 10).Equals(TEXT("ef")));
	EXPECT_TRUE(Text.Mid(-2, 4).Equals(TEXT("ab")));
	EXPECT_TRUE(Text.Mid(-5, 2).IsEmpty());
	EXPECT_TRUE(Text.Mid(2, -1).IsEmpty());
	EXPECT_TRUE(Text.Mid(9, 2).IsEmpty());
}

TEST(CoreString, FStringParseIntoArrayCullsEmptyPiecesOnRequest)
{
	TArray<FString> Pieces;
	EXPECT_EQ(FString(TEXT("a,,b")).ParseIntoArray(Pieces, TEXT(","), true), 2);
	EXPECT_TRUE(Pieces[1].Equals(TEXT("b")));
	EXPECT_EQ(FString(TEXT(",a,")).ParseIntoArray(Pieces, TEXT(","), false), 3);
	EXPECT_TRUE(Pieces[0].IsEmpty());
	EXPECT_TRUE(Pieces[1].Equals(TEXT("a")));
	EXPECT_TRUE(Pieces[2].IsEmpty());
	EXPECT_EQ(FString(TEXT("one::two")).ParseIntoArray(Pieces, TEXT("::")), 2);
	EXPECT_TRUE(Pieces[1].Equals(TEXT("two")));
	// The delimiter is matched with case.
	EXPECT_EQ(FString(TEXT("aXbxc")).ParseIntoArray(Pieces, TEXT("x")), 2);
	EXPECT_TRUE(Pieces[0].Equals(TEXT("aXb")));
}

TEST(CoreString, FStringParseIntoArrayOfAnEmptyStringOrDelimiterYieldsNothing)
{
	TArray<FString> Pieces;
	Pieces.Add(TEXT("stale"));
	EXPECT_EQ(FString().ParseIntoArray(Pieces, TEXT(","), false), 0);
	EXPECT_EQ(Pieces.Num(), 0);
	EXPECT_EQ(FString(TEXT("a,b")).ParseIntoArray(Pieces, TEXT(""), false), 0);
}

TEST(CoreString, FStringTrimRemovesAsciiWhitespaceAtEitherEnd)
{
	const FString Padded(TEXT(" \t\r\n\v\fStream Name \t\r\n"));
	EXPECT_TRUE(Padded.TrimStartAndEnd().Equals(TEXT("Stream Name")));
	EXPECT_TRUE(Padded.TrimStart().Equals(TEXT("Stream Name \t\r\n")));
	EXPECT_TRUE(Padded.TrimEnd().Equals(TEXT(" \t\r\n\v\fStream Name")));
	EXPECT_TRUE(FString(TEXT(" \t ")).TrimStartAndEnd().IsEmpty());
}

TEST(CoreString, FStringReplaceIgnoresCaseByDefault)
{
	const FString Text(TEXT("NDI ndi Ndi"));
	EXPECT_TRUE(Text.Replace(TEXT("ndi"), TEXT("Spout")).Equals(TEXT("Spout Spout Spout")));
	EXPECT_TRUE(Text.Replace(TEXT("ndi"), TEXT("Spout"), ESearchCase::CaseSensitive).Equals(TEXT("NDI Spout Ndi")));
	EXPECT_TRUE(Text.Replace(TEXT(""), TEXT("x")).Equals(Text));
}

TEST(CoreString, FStringCaseConversionTouchesOnlyAsciiLetters)
{
	EXPECT_TRUE(FString(u"abc\u00e9").ToUpper().Equals(FString(u"ABC\u00e9")));
	EXPECT_TRUE(FString(u"ABC\u00c9").ToLower().Equals(FString(u"abc\u00c9")));
}

TEST(CoreString, FStringIsNumericAcceptsSignedDecimals)
{
	EXPECT_TRUE(FString(TEXT("42")).IsNumeric());
	EXPECT_TRUE(FString(TEXT("-4.5")).IsNumeric());
	EXPECT_TRUE(FString(TEXT("+.5")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.2.3")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("12a")).IsNumeric());
	// A lone sign or dot passes the engine's check.
	EXPECT_TRUE(FString(TEXT("-")).IsNumeric());
	EXPECT_TRUE(FString(TEXT(".")).IsNumeric());
}

TEST(CoreString, FStringSlashOperatorJoinsWithExactlyOneSeparator)
{
	EXPECT_TRUE((FString(TEXT("Dir")) / TEXT("File")).Equals(TEXT("Dir/File")));
	EXPECT_TRUE((FString(TEXT("Dir/")) / TEXT("File")).Equals(TEXT("Dir/File")));
	EXPECT_TRUE((FString(TEXT("Dir")) / TEXT("/File")).Equals(TEXT("Dir/File")));
	// Only a leading slash of the right-hand side is considered, not an existing doubled one.
	EXPECT_TRUE((FString(TEXT("Dir/")) / TEXT("/File")).Equals(TEXT("Dir//File")));
	EXPECT_TRUE((FString(TEXT("C:\\Dir\\")) / TEXT("File")).Equals(TEXT("C:\\Dir\\File")));
	EXPECT_TRUE((FString() / TEXT("File")).Equals(TEXT("File")));
	EXPECT_TRUE((FString(TEXT("Dir")) / FString()).Equals(TEXT("Dir/")));
	EXPECT_TRUE((FString(TEXT("Dir/")) / FString()).Equals(TEXT("Dir/")));
	EXPECT_TRUE((FString() / FString()).IsEmpty());
	FString Path(TEXT("Root"));
	Path /= TEXT("Sub");
	Path /= FString(TEXT("Leaf.png"));
	EXPECT_TRUE(Path.Equals(TEXT("Root/Sub/Leaf.png")));
}

TEST(CoreString, FStringPrintfConvertsTheCommonSpecifiers)
{
	EXPECT_TRUE(FString::Printf(TEXT("%d|%i|%u"), -12, 7, 9u).Equals(TEXT("-12|7|9")));
	EXPECT_TRUE(FString::Printf(TEXT("%03d|%-3d|%+d"), 5, 5, 5).Equals(TEXT("005|5  |+5")));
	EXPECT_TRUE(FString::Printf(TEXT("%x|%X|%lld"), 255, 255, 1234567890123ll).Equals(TEXT("ff|FF|1234567890123")));
	EXPECT_TRUE(FString::Printf(TEXT("%.2f|%5.1f|%f"), 3.14159, 2.26, 0.5).Equals(TEXT("3.14|  2.3|0.500000")));
	EXPECT_TRUE(FString::Printf(TEXT("%s-%s"), TEXT("NDI"), *FString(TEXT("Out"))).Equals(TEXT("NDI-Out")));
	EXPECT_TRUE(FString::Printf(TEXT("100%%")).Equals(TEXT("100%")));
	EXPECT_TRUE(FString::Printf(TEXT("%c%c"), TEXT('o'), TEXT('k')).Equals(TEXT("ok")));
}

TEST(CoreString, FStringFromIntJoinAndChrN)
{
	EXPECT_TRUE(FString::FromInt(-2048).Equals(TEXT("-2048")));
	const TArray<FString> Parts{TEXT("a"), TEXT("b"), TEXT("c")};
	EXPECT_TRUE(FString::Join(Parts, TEXT(", ")).Equals(TEXT("a, b, c")));
	EXPECT_TRUE(FString::Join(TArray<FString>(), TEXT(", ")).IsEmpty());
	EXPECT_TRUE(FString::ChrN(3, TEXT('-')).Equals(TEXT("---")));
}

namespace
{
	FString FromUtf8(const ANSICHAR* Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8));
	}
}

TEST(CoreString, Utf8RoundTripKeepsSupplementaryCharacters)
{
	const FString Text = FromUtf8("Caf\xC3\xA9 \xF0\x9F\x8E\xA5");
	EXPECT_EQ(Text.Len(), 7);
	EXPECT_EQ(Text[3], TCHAR(0x00E9));
	EXPECT_STREQ(TCHAR_TO_UTF8(*Text), "Caf\xC3\xA9 \xF0\x9F\x8E\xA5");
}

TEST(CoreString, Utf8SequenceCutShortByTheEndOfTheTextBecomesOneBogusCharacter)
{
	EXPECT_TRUE(FromUtf8("ab\xE2\x82").Equals(TEXT("ab?")));
	EXPECT_TRUE(FromUtf8("x\xF0\x9F\x8E").Equals(TEXT("x?")));
	EXPECT_TRUE(FromUtf8("\xC3").Equals(TEXT("?")));
	const FUTF8ToTCHAR CutByLength("Caf\xC3\xA9", 4);
	EXPECT_EQ(FString(CutByLength.Length(), CutByLength.Get()), FString(TEXT("Caf?")));
}

TEST(CoreString, MalformedUtf8BecomesOneBogusCharacterPerSequence)
{
	EXPECT_TRUE(FromUtf8("a\x80z").Equals(TEXT("a?z"))) << "A lone continuation octet";
	EXPECT_TRUE(FromUtf8("\xC0\xAFz").Equals(TEXT("?z"))) << "An overlong form";
	EXPECT_TRUE(FromUtf8("\xED\xA0\x80z").Equals(TEXT("?z"))) << "An encoded surrogate";
	EXPECT_TRUE(FromUtf8("\xF4\x90\x80\x80z").Equals(TEXT("?z"))) << "Beyond U+10FFFF";
	EXPECT_TRUE(FromUtf8("\xC3(z").Equals(TEXT("?z"))) << "The octet that fails to continue a sequence goes with it";
}

TEST(CoreString, UnpairedSurrogatesBecomeBogusCharactersInUtf8)
{
	const TCHAR Text[] = {TCHAR(0xD800), TEXT('a'), TCHAR(0xDC00), 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(Text), "?a?");
}

TEST(CoreStringDeathTest, FStringIndexingOutOfRangeIsFatal)
{
	const FString Text(TEXT("abc"));
	EXPECT_DEATH((void)Text[3], "String index out of bounds: Index 3 from a string with a length of 3");
	EXPECT_DEATH((void)Text[-1], "String index out of bounds: Index -1");
}

TEST(CoreString, FNameComparesIgnoringCaseButKeepsEachSpelling)
{
	const FName Upper(TEXT("LivestreamWizard"));
	const FName Lower(TEXT("livestreamwizard"));
	EXPECT_EQ(Upper, Lower);
	EXPECT_TRUE(Upper.ToString().Equals(TEXT("LivestreamWizard"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Lower.ToString().Equals(TEXT("livestreamwizard"), ESearchCase::CaseSensitive));
	EXPECT_EQ(GetTypeHash(Upper), GetTypeHash(Lower));
	EXPECT_NE(FName(TEXT("Spout")), FName(TEXT("Spouts")));
}

TEST(CoreString, FNameNoneEmptyAndTheWordNoneAreAllNameNone)
{
	EXPECT_TRUE(FName().IsNone());
	EXPECT_TRUE(FName(TEXT("")).IsNone());
	EXPECT_TRUE(FName(TEXT("None")).IsNone());
	EXPECT_TRUE(FName(TEXT("nOnE")).IsNone());
	EXPECT_EQ(FName(TEXT("None")), NAME_None);
	EXPECT_EQ(FName(NAME_None), FName());
	EXPECT_TRUE(FName().ToString().Equals(TEXT("None"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FName(TEXT("none")).ToString().Equals(TEXT("None"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(FName(TEXT("Nones")).IsNone());
}

TEST(CoreString, LocTextRecordsNamespaceAndKey)
{
	const FText Title = LOCTEXT("WizardTitle", "Livestream Wizard");
	EXPECT_TRUE(Title.ToString().Equals(TEXT("Livestream Wizard"), ESearchCase::CaseSensitive));
	ASSERT_TRUE(FTextInspector::GetNamespace(Title).IsSet());
	EXPECT_TRUE(FTextInspector::GetNamespace(Title).GetValue().Equals(TEXT("CoreStringTests"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FTextInspector::GetKey(Title).GetValue().Equals(TEXT("WizardTitle"), ESearchCase::CaseSensitive));

	const FText Other = NSLOCTEXT("OtherSpace", "OtherKey", "Other");
	EXPECT_TRUE(FTextInspector::GetNamespace(Other).GetValue().Equals(TEXT("OtherSpace"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(FTextInspector::GetKey(Other).GetValue().Equals(TEXT("OtherKey"), ESearchCase::CaseSensitive));

	EXPECT_FALSE(FTextInspector::GetKey(FText::FromString(TEXT("Plain"))).IsSet());
	EXPECT_TRUE(INVTEXT("Invariant").IsCultureInvariant());
	EXPECT_FALSE(FText::FromString(TEXT("Plain")).IsCultureInvariant());
}

TEST(CoreString, FTextEqualToIsCaseSensitiveAndEmptyTextIsEmpty)
{
	EXPECT_TRUE(FText::FromString(TEXT("Go")).EqualTo(FText::FromString(TEXT("Go"))));
	EXPECT_FALSE(FText::FromString(TEXT("Go")).EqualTo(FText::FromString(TEXT("GO"))));
	EXPECT_TRUE(FText::FromString(TEXT("Go")).EqualToCaseIgnored(FText::FromString(TEXT("GO"))));
	EXPECT_TRUE(FText::GetEmpty().IsEmpty());
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::FromName(NAME_None).ToString().Equals(TEXT("None")));
}

TEST(CoreString, FTextOrderedArgumentsFillByIndexAndMayRepeat)
{
	const FText Result = FText::Format(LOCTEXT("Ordered", "{1} then {0}, {1} again"), FText::FromString(TEXT("A")), FText::FromString(TEXT("B")));
	EXPECT_TRUE(Result.ToString().Equals(TEXT("B then A, B again"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FTextMissingArgumentsStayInTheText)
{
	const FText Result = FText::Format(LOCTEXT("Missing", "{0} and {3}"), FText::FromString(TEXT("A")));
	EXPECT_TRUE(Result.ToString().Equals(TEXT("A and {3}"), ESearchCase::CaseSensitive));

	FFormatNamedArguments Named;
	Named.Add(TEXT("Name"), FText::FromString(TEXT("Out")));
	const FText NamedResult = FText::Format(LOCTEXT("MissingNamed", "{Name}/{Other}"), Named);
	EXPECT_TRUE(NamedResult.ToString().Equals(TEXT("Out/{Other}"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FTextNamedArgumentsMatchTheirNameWithCase)
{
	FFormatNamedArguments Named;
	Named.Add(TEXT("Count"), 3);
	const FText Result = FText::Format(LOCTEXT("NamedCase", "{Count} / {count}"), Named);
	EXPECT_TRUE(Result.ToString().Equals(TEXT("3 / {count}"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FTextNamedPlaceholdersWithOrderedArgumentsUseTheirPosition)
{
	// A placeholder that is not a number takes the argument at its own position among the placeholders.
	const FText Result = FText::Format(FText::FromString(TEXT("{First}-{0}-{Third}")), 10, 20, 30);
	EXPECT_TRUE(Result.ToString().Equals(TEXT("10-10-30"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FTextBacktickEscapesTheFormatCharacters)
{
	const FText Result = FText::Format(FText::FromString(TEXT("`{0`} ``{0} `|pipe `x")), FText::FromString(TEXT("v")));
	EXPECT_TRUE(Result.ToString().Equals(TEXT("{0} `v |pipe `x"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FTextNumericArgumentsAreGroupedAsNumbers)
{
	const FText Result = FText::Format(FText::FromString(TEXT("{0} {1} {2}")), 1234567, -1234.5, 12u);
	EXPECT_TRUE(Result.ToString().Equals(TEXT("1,234,567 -1,234.5 12"), ESearchCase::CaseSensitive));
}

TEST(CoreString, FTextIntegersAreGroupedByThousands)
{
	EXPECT_TRUE(FText::AsNumber(0).ToString().Equals(TEXT("0")));
	EXPECT_TRUE(FText::AsNumber(999).ToString().Equals(TEXT("999")));
	EXPECT_TRUE(FText::AsNumber(1000).ToString().Equals(TEXT("1,000")));
	EXPECT_TRUE(FText::AsNumber(1234567).ToString().Equals(TEXT("1,234,567")));
	EXPECT_TRUE(FText::AsNumber(-123).ToString().Equals(TEXT("-123")));
	EXPECT_TRUE(FText::AsNumber(-1234).ToString().Equals(TEXT("-1,234")));
	EXPECT_TRUE(FText::AsNumber(int64(-9876543210)).ToString().Equals(TEXT("-9,876,543,210")));
	EXPECT_TRUE(FText::AsNumber(uint64(18446744073709551615ull)).ToString().Equals(TEXT("18,446,744,073,709,551,615")));
}

TEST(CoreString, FTextFractionsKeepAtMostThreeDigitsWithoutTrailingZeros)
{
	EXPECT_TRUE(FText::AsNumber(1.0).ToString().Equals(TEXT("1")));
	EXPECT_TRUE(FText::AsNumber(0.5f).ToString().Equals(TEXT("0.5")));
	EXPECT_TRUE(FText::AsNumber(1234.5678).ToString().Equals(TEXT("1,234.568")));
	EXPECT_TRUE(FText::AsNumber(-1234.5).ToString().Equals(TEXT("-1,234.5")));
	EXPECT_TRUE(FText::AsNumber(0.1f).ToString().Equals(TEXT("0.1")));
	EXPECT_TRUE(FText::AsNumber(12.04).ToString().Equals(TEXT("12.04")));
}

TEST(CoreString, FTextFractionsRoundHalfToEven)
{
	EXPECT_TRUE(FText::AsNumber(0.0125).ToString().Equals(TEXT("0.012")));
	EXPECT_TRUE(FText::AsNumber(0.0135).ToString().Equals(TEXT("0.014")));
	EXPECT_TRUE(FText::AsNumber(0.0005).ToString().Equals(TEXT("0")));
	EXPECT_TRUE(FText::AsNumber(2.0625).ToString().Equals(TEXT("2.062")));
	// Rounding up can carry into the integral part.
	EXPECT_TRUE(FText::AsNumber(999.9996).ToString().Equals(TEXT("1,000")));
	EXPECT_TRUE(FText::AsNumber(-1.9999).ToString().Equals(TEXT("-2")));
}

TEST(CoreString, FTextNegativeValuesThatRoundToZeroKeepTheirSign)
{
	EXPECT_TRUE(FText::AsNumber(-0.0001).ToString().Equals(TEXT("-0")));
	EXPECT_TRUE(FText::AsNumber(-0.0).ToString().Equals(TEXT("-0")));
	EXPECT_TRUE(FText::AsNumber(0.0).ToString().Equals(TEXT("0")));
}

TEST(CoreString, FTextEmptyOrWhitespaceFollowsUnicodeWhiteSpace)
{
	EXPECT_TRUE(FText::GetEmpty().IsEmptyOrWhitespace());
	EXPECT_TRUE(FText::FromString(TEXT(" \t\r\n")).IsEmptyOrWhitespace());
	EXPECT_TRUE(FText::FromString(FString(u"\u3000\u2003\u2028\u1680")).IsEmptyOrWhitespace());
	EXPECT_TRUE(FText::FromString(FString(u"\u001f")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(TEXT(" x ")).IsEmptyOrWhitespace());
}

TEST(CoreString, FTextNoBreakSpacesAreNotWhitespace)
{
	EXPECT_FALSE(FText::FromString(FString(u"\u00a0")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(FString(u"\u2007")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(FString(u" \u202f ")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::IsWhitespace(0x0085));
	EXPECT_TRUE(FText::IsWhitespace(0x205F));
}

TEST(CoreString, TextBuilderIndentsByFourSpacesPerLevel)
{
	FTextBuilder Builder;
	EXPECT_TRUE(Builder.IsEmpty());
	Builder.Indent();
	Builder.Indent();
	Builder.AppendLineFormat(FText::FromString(TEXT("{0}: {1}")), FFormatOrderedArguments{FText::FromString(TEXT("NDI")), 2});
	EXPECT_FALSE(Builder.IsEmpty());
	EXPECT_TRUE(Builder.ToText().ToString().Equals(TEXT("        NDI: 2"), ESearchCase::CaseSensitive));
}

TEST(CoreString, ClearDropsTheLinesButKeepsTheIndentation)
{
	FTextBuilder Builder;
	Builder.Indent();
	Builder.AppendLine(FString(TEXT("first")));
	Builder.Clear();
	EXPECT_TRUE(Builder.IsEmpty());
	Builder.AppendLine(FName(TEXT("Second")));
	EXPECT_TRUE(Builder.ToText().ToString().Equals(TEXT("    Second"), ESearchCase::CaseSensitive));
}

#undef LOCTEXT_NAMESPACE
