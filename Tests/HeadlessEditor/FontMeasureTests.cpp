#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessSlateRenderer.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/CoreStyle.h"

#include <gtest/gtest.h>

namespace
{
	class FontMeasure : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
		}
		void TearDown() override { FSlateApplication::Shutdown(); }

		/** The measure service, reached as widgets reach it. */
		static const FSlateFontMeasure& Measure() { return FSlateApplication::Get().GetRenderer()->GetFontMeasureService().Get(); }

		static FVector2D MeasureText(const FString& Text, const FSlateFontInfo& Font) { return Measure().Measure(Text, Font); }

		/** A Slate font size is in points at 96 dots per inch: this many pixels to the em. */
		static double PixelsPerEm(int32 Size) { return Size * 96.0 / 72.0; }
	};
}

TEST_F(FontMeasure, TextGrowsWiderWithEveryCharacterAndKeepsItsLineHeight)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 10);
	const FVector2D Short = MeasureText(TEXT("Live"), Font);
	const FVector2D Long = MeasureText(TEXT("Livestream"), Font);
	EXPECT_GT(Short.X, 0.0);
	EXPECT_GT(Long.X, Short.X);
	EXPECT_EQ(Short.Y, Long.Y);
	EXPECT_EQ(Short.Y, Measure().GetMaxCharacterHeight(Font));
	// A line holds its ascent and descent: taller than the em, not twice as tall.
	EXPECT_GT(Short.Y, PixelsPerEm(10));
	EXPECT_LT(Short.Y, 2.0 * PixelsPerEm(10));
	// The baseline is given as the descent below it, a negative offset, as the engine gives it.
	EXPECT_LT(Measure().GetBaseline(Font), 0);
	EXPECT_GT(Measure().GetBaseline(Font), -Short.Y / 2.0);
}

TEST_F(FontMeasure, TextScalesWithTheFontSizeAndTheFontScale)
{
	const FVector2D Small = MeasureText(TEXT("Create Setup"), FCoreStyle::GetDefaultFontStyle("Regular", 10));
	const FVector2D Large = MeasureText(TEXT("Create Setup"), FCoreStyle::GetDefaultFontStyle("Regular", 20));
	// Hinting rounds each advance and the line's ascent and descent, so sizes are only nearly proportional.
	EXPECT_NEAR(Large.X / Small.X, 2.0, 0.1);
	EXPECT_NEAR(Large.Y, 2.0 * Small.Y, 3.0);
	const FVector2D Scaled = Measure().Measure(TEXT("Create Setup"), FCoreStyle::GetDefaultFontStyle("Regular", 10), 2.0f);
	EXPECT_EQ(Scaled, Large);
}

TEST_F(FontMeasure, BoldTypefaceIsWiderThanRegular)
{
	const FVector2D Regular = MeasureText(TEXT("Livestream Wizard"), FCoreStyle::GetDefaultFontStyle("Regular", 12));
	const FVector2D Bold = MeasureText(TEXT("Livestream Wizard"), FCoreStyle::GetDefaultFontStyle("Bold", 12));
	EXPECT_GT(Bold.X, Regular.X);
}

TEST_F(FontMeasure, JapaneseTextMeasuresInAFullWidthFace)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 12);
	// Five kana and kanji: a Japanese face draws each a full em wide, unlike the hex boxes drawn for missing glyphs.
	const FVector2D Japanese = MeasureText(TEXT("\u30E9\u30A4\u30D6\u914D\u4FE1"), Font);
	EXPECT_NEAR(Japanese.X, 5.0 * PixelsPerEm(12), 2.0);
	const FVector2D Latin = MeasureText(TEXT("Live!"), Font);
	EXPECT_LT(Latin.X, Japanese.X * 0.7);
	// The line is high enough for the fallback face's characters.
	EXPECT_GE(Japanese.Y, PixelsPerEm(12));
}

TEST_F(FontMeasure, EmptyTextIsOneEmptyLineAndLinesStack)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 10);
	const FVector2D Empty = MeasureText(FString(), Font);
	const FVector2D OneLine = MeasureText(TEXT("Stage"), Font);
	const FVector2D TwoLines = MeasureText(TEXT("Stage\nStage two"), Font);
	EXPECT_EQ(Empty.X, 0.0);
	EXPECT_EQ(Empty.Y, OneLine.Y);
	EXPECT_EQ(TwoLines.Y, 2.0 * OneLine.Y);
	EXPECT_EQ(TwoLines.X, MeasureText(TEXT("Stage two"), Font).X);
}

TEST_F(FontMeasure, ARangeMeasuresOnlyItsCharacters)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 10);
	EXPECT_EQ(Measure().Measure(TEXT("Stage two"), 0, 5, Font).X, MeasureText(TEXT("Stage"), Font).X);
	EXPECT_EQ(Measure().Measure(TEXT("Stage two"), 6, 9, Font).X, MeasureText(TEXT("two"), Font).X);
}
