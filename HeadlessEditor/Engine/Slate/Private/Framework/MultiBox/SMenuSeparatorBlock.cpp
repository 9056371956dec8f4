#include "SMenuSeparatorBlock.h"

#include "Styling/ISlateStyle.h"
#include "Widgets/Layout/SSeparator.h"
#include "Widgets/SBoxPanel.h"

FMenuSeparatorBlock::FMenuSeparatorBlock(const FName& InExtensionHook, bool bInIsPartOfHeading)
	: FMultiBlock(nullptr, nullptr, InExtensionHook, EMultiBlockType::Separator, bInIsPartOfHeading)
{
}

TSharedRef<IMultiBlockBaseWidget> FMenuSeparatorBlock::ConstructWidget() const
{
	return SNew(SMenuSeparatorBlock);
}

void SMenuSeparatorBlock::Construct(const FArguments& InArgs)
{
}

void SMenuSeparatorBlock::BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName)
{
	ChildSlot
		[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().Padding(StyleSet->GetMargin(StyleName, ".Separator.Padding"))[SNew(SSeparator).SeparatorImage(StyleSet->GetBrush(StyleName, ".Separator")).Thickness(1.0f)]];
}
