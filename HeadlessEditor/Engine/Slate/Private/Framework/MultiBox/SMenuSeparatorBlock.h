#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"

/** A line between groups of entries. */
class FMenuSeparatorBlock : public FMultiBlock
{
public:
	FMenuSeparatorBlock(const FName& InExtensionHook, bool bInIsPartOfHeading);

private:
	virtual TSharedRef<IMultiBlockBaseWidget> ConstructWidget() const override;
};

/** A thin line across the menu, with room above and below. */
class SMenuSeparatorBlock : public SMultiBlockBaseWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuSeparatorBlock)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName) override;
};
