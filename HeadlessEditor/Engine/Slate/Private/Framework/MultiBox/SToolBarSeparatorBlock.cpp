#include "SToolBarSeparatorBlock.h"

#include "Styling/ISlateStyle.h"
#include "Styling/ToolBarStyle.h"
#include "Widgets/Layout/SSeparator.h"
#include "Widgets/SBoxPanel.h"

FToolBarSeparatorBlock::FToolBarSeparatorBlock(const FName& InExtensionHook)
	: FMultiBlock(nullptr, nullptr, InExtensionHook, EMultiBlockType::Separator)
{
}

TSharedRef<IMultiBlockBaseWidget> FToolBarSeparatorBlock::ConstructWidget() const
{
	return SNew(SToolBarSeparatorBlock);
}

void SToolBarSeparatorBlock::Construct(const FArguments& InArgs)
{
}

void SToolBarSeparatorBlock::BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName)
{
	const FToolBarStyle& ToolBarStyle = StyleSet->GetWidgetStyle<FToolBarStyle>(StyleName);
	ChildSlot
		[SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().Padding(ToolBarStyle.SeparatorPadding)[SNew(SSeparator).Orientation(Orient_Vertical).Thickness(2.0f).SeparatorImage(&ToolBarStyle.SeparatorBrush)]];
}
