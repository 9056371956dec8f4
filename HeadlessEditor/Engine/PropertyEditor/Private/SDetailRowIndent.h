#pragma once

#include "CoreMinimal.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SDetailTableRowBase;

/** The indent at the left of a details row, 16 units per level, each level in its own shade. */
class SDetailRowIndent : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDetailRowIndent)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedRef<SDetailTableRowBase> DetailsRow);

	/** A band of background for each level of indent, left to right. */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	FOptionalSize GetIndentWidth() const;

	TWeakPtr<SDetailTableRowBase> Row;
};
