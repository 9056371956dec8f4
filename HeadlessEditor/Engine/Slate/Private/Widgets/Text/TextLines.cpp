#include "Widgets/Text/TextLines.h"

#include "Fonts/FontMeasure.h"

namespace
{
	/** Han, kana and hangul characters may be broken before or after, as the engine's line breaker allows. */
	bool IsBreakableIdeograph(TCHAR Character)
	{
		return (Character >= 0x2E80 && Character <= 0x9FFF) || (Character >= 0xAC00 && Character <= 0xD7AF) || (Character >= 0xF900 && Character <= 0xFAFF) || (Character >= 0xFF00 && Character <= 0xFFEF);
	}

	/** Splits a paragraph into pieces that may each start a line: words with their trailing spaces, ideographs alone. */
	TArray<FString> SplitAtBreakOpportunities(const FString& Paragraph)
	{
		TArray<FString> Pieces;
		FString Current;
		for (int32 Index = 0; Index < Paragraph.Len(); ++Index)
		{
			const TCHAR Character = Paragraph[Index];
			const bool bIdeograph = IsBreakableIdeograph(Character);
			const bool bAfterSpace = Current.Len() > 0 && Current[Current.Len() - 1] == TEXT(' ') && Character != TEXT(' ');
			if (Current.Len() > 0 && (bIdeograph || bAfterSpace || IsBreakableIdeograph(Current[Current.Len() - 1])))
			{
				Pieces.Add(Current);
				Current.Empty();
			}
			Current += FString::Chr(Character);
		}
		if (Current.Len() > 0 || Pieces.Num() == 0)
		{
			Pieces.Add(Current);
		}
		return Pieces;
	}

	FString TrimTrailingSpaces(const FString& Line)
	{
		int32 End = Line.Len();
		while (End > 0 && Line[End - 1] == TEXT(' '))
		{
			--End;
		}
		return Line.Left(End);
	}

	float MeasureWidth(const FString& Text, const FSlateFontInfo& Font, float FontScale, const FSlateFontMeasure& FontMeasure)
	{
		return static_cast<float>(FontMeasure.Measure(Text, Font, FontScale).X);
	}

	void BreakParagraph(const FString& Paragraph, const FSlateFontInfo& Font, float FontScale, float WrapWidth, const FSlateFontMeasure& FontMeasure, TArray<FTextLine>& OutLines)
	{
		if (WrapWidth <= 0.0f)
		{
			OutLines.Add({Paragraph, MeasureWidth(Paragraph, Font, FontScale, FontMeasure)});
			return;
		}
		FString Line;
		for (const FString& Piece : SplitAtBreakOpportunities(Paragraph))
		{
			const FString Candidate = Line + Piece;
			if (Line.Len() > 0 && MeasureWidth(TrimTrailingSpaces(Candidate), Font, FontScale, FontMeasure) > WrapWidth)
			{
				const FString Finished = TrimTrailingSpaces(Line);
				OutLines.Add({Finished, MeasureWidth(Finished, Font, FontScale, FontMeasure)});
				Line = Piece;
			}
			else
			{
				Line = Candidate;
			}
		}
		const FString Last = TrimTrailingSpaces(Line);
		OutLines.Add({Last, MeasureWidth(Last, Font, FontScale, FontMeasure)});
	}
}

TArray<FTextLine> BreakTextIntoLines(const FString& Text, const FSlateFontInfo& Font, float FontScale, float WrapWidth, const FSlateFontMeasure& FontMeasure)
{
	TArray<FTextLine> Lines;
	int32 ParagraphStart = 0;
	for (int32 Index = 0; Index <= Text.Len(); ++Index)
	{
		if (Index == Text.Len() || Text[Index] == TEXT('\n'))
		{
			BreakParagraph(Text.Mid(ParagraphStart, Index - ParagraphStart), Font, FontScale, WrapWidth, FontMeasure, Lines);
			ParagraphStart = Index + 1;
		}
	}
	return Lines;
}
