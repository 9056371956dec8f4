#include "SDetailRowIndent.h"

#include "PropertyEditorConstants.h"
#include "Rendering/DrawElements.h"
#include "SDetailTableRowBase.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Widgets/Layout/SBox.h"

namespace
{
	const float IndentStep = 16.0f;
}

void SDetailRowIndent::Construct(const FArguments& InArgs, TSharedRef<SDetailTableRowBase> DetailsRow)
{
	Row = DetailsRow;
	ChildSlot[SNew(SBox).WidthOverride(this, &SDetailRowIndent::GetIndentWidth)];
}

int32 SDetailRowIndent::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const TSharedPtr<SDetailTableRowBase> RowPtr = Row.Pin();
	if (!RowPtr.IsValid())
	{
		return LayerId;
	}
	const FSlateBrush* Brush = FAppStyle::Get().GetBrush("DetailsView.CategoryMiddle");
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	for (int32 Level = 0; Level < RowPtr->GetIndentLevelForBackgroundColor(); ++Level)
	{
		// The headless editor has no mouse, so no row is ever hovered.
		const FLinearColor Color = PropertyEditorConstants::GetRowBackgroundColor(Level, false).GetColor(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(FVector2D(IndentStep * Level, 0.0), FVector2D(IndentStep, Size.Y)), Brush, ESlateDrawEffect::None, Color);
	}
	return LayerId;
}

FOptionalSize SDetailRowIndent::GetIndentWidth() const
{
	const TSharedPtr<SDetailTableRowBase> RowPtr = Row.Pin();
	return RowPtr.IsValid() ? IndentStep * RowPtr->GetIndentLevelForBackgroundColor() : 0.0f;
}
