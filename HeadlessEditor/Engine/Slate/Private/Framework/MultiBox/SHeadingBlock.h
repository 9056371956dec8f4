#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"

/** A section's heading in a menu. */
class FHeadingBlock : public FMultiBlock
{
public:
	FHeadingBlock(const FName& InExtensionHook, const TAttribute<FText>& InHeadingText);

	TAttribute<FText> HeadingText;

private:
	virtual TSharedRef<IMultiBlockBaseWidget> ConstructWidget() const override;
};

/** The heading of a section: its name in small capitals, then a line to the menu's edge. */
class SHeadingBlock : public SMultiBlockBaseWidget
{
public:
	SLATE_BEGIN_ARGS(SHeadingBlock)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName) override;
};
