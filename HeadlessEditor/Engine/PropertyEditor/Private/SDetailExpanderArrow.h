#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SDetailTableRowBase;
struct FSlateBrush;

/** The arrow at the left of a details row that opens and closes it; it keeps its room, empty, on rows with nothing under them. */
class SDetailExpanderArrow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDetailExpanderArrow)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedRef<SDetailTableRowBase> DetailsRow);

private:
	EVisibility GetExpanderVisibility() const;
	const FSlateBrush* GetExpanderImage() const;
	FReply OnExpanderClicked();

	TWeakPtr<SDetailTableRowBase> Row;
};
