#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"

/** The line between two sections of a toolbar. */
class FToolBarSeparatorBlock : public FMultiBlock
{
public:
	FToolBarSeparatorBlock(const FName& InExtensionHook);

private:
	virtual TSharedRef<IMultiBlockBaseWidget> ConstructWidget() const override;
};

/** A short upright line in the toolbar's separator colour. */
class SToolBarSeparatorBlock : public SMultiBlockBaseWidget
{
public:
	SLATE_BEGIN_ARGS(SToolBarSeparatorBlock)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName) override;
};
