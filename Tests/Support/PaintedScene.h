#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/SlateRect.h"

#include <ostream>

class FSlateShaderResourceProxy;
class SWidget;
struct FSlateBrush;

/** What a widget tree draws when a window of the given size shows it: its lines of text and its images. */
class FPaintedScene
{
public:
	/** Lays the tree out at Size and paints it as the widget renderer does. */
	FPaintedScene(const TSharedRef<SWidget>& Root, const FVector2D& Size);

	struct FLine
	{
		FString Text;
		FSlateFontInfo Font;
		FSlateRect Rect;
	};

	/** The lines drawn, in paint order. */
	const TArray<FLine>& GetLines() const { return Lines; }
	/** The texts of the lines, top to bottom (then left to right). */
	TArray<FString> GetTextsTopToBottom() const;
	/** The first line with exactly that text; null if none. */
	const FLine* FindLine(const FString& Text) const;
	/** Where the image of a brush (its file, at any size or tint) was drawn. */
	TArray<FSlateRect> FindImage(const FSlateBrush& Brush) const;

private:
	TArray<FLine> Lines;
	TArray<TPair<const FSlateShaderResourceProxy*, FSlateRect>> Images;
};

/** Lists of texts read as ["a", "b"] in the test output. */
void PrintTo(const TArray<FString>& Texts, std::ostream* Stream);
