#include "SHeadingBlock.h"

#include "Styling/ISlateStyle.h"
#include "Widgets/Layout/SSeparator.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

FHeadingBlock::FHeadingBlock(const FName& InExtensionHook, const TAttribute<FText>& InHeadingText)
	: FMultiBlock(nullptr, nullptr, InExtensionHook, EMultiBlockType::Heading, true)
	, HeadingText(InHeadingText)
{
}

TSharedRef<IMultiBlockBaseWidget> FHeadingBlock::ConstructWidget() const
{
	return SNew(SHeadingBlock);
}

void SHeadingBlock::Construct(const FArguments& InArgs)
{
}

void SHeadingBlock::BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName)
{
	const TSharedRef<const FHeadingBlock> HeadingBlock = StaticCastSharedRef<const FHeadingBlock>(MultiBlock.ToSharedRef());
	ChildSlot.Padding(StyleSet->GetMargin(StyleName, ".Heading.Padding"))
		[SNew(SHorizontalBox) + SHorizontalBox::Slot().VAlign(VAlign_Center).AutoWidth()[SNew(STextBlock).Text(HeadingBlock->HeadingText.Get(FText::GetEmpty()).ToUpper()).TextStyle(StyleSet, ISlateStyle::Join(StyleName, ".Heading"))] + SHorizontalBox::Slot().Padding(FMargin(14.0f, 0.0f, 0.0f, 0.0f)).VAlign(VAlign_Center).HAlign(HAlign_Fill)[SNew(SSeparator).Orientation(Orient_Horizontal).Thickness(1.0f).SeparatorImage(StyleSet->GetBrush(StyleName, ".Separator"))]];
}
