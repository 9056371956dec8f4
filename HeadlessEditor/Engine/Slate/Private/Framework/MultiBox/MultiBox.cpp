#include "Framework/MultiBox/MultiBox.h"

FMultiBlock::FMultiBlock(const TSharedPtr<const FUICommandInfo> InCommand, TSharedPtr<const FUICommandList> InCommandList, FName InExtensionHook, EMultiBlockType InType, bool bInIsPartOfHeading)
	: CommandInfo(InCommand)
	, ActionList(InCommandList)
	, ExtensionHook(InExtensionHook)
	, Type(InType)
	, bIsPartOfHeading(bInIsPartOfHeading)
{
}

FMultiBlock::FMultiBlock(const FUIAction& InAction, FName InExtensionHook, EMultiBlockType InType, bool bInIsPartOfHeading)
	: Action(InAction)
	, ExtensionHook(InExtensionHook)
	, Type(InType)
	, bIsPartOfHeading(bInIsPartOfHeading)
{
}

FMultiBox::FMultiBox(const EMultiBoxType InType, bool bInShouldCloseWindowAfterMenuSelection)
	: Type(InType)
	, bShouldCloseWindowAfterMenuSelection(bInShouldCloseWindowAfterMenuSelection)
{
}

TSharedRef<FMultiBox> FMultiBox::Create(const EMultiBoxType InType, bool bInShouldCloseWindowAfterMenuSelection)
{
	return MakeShareable(new FMultiBox(InType, bInShouldCloseWindowAfterMenuSelection));
}

void FMultiBox::AddMultiBlock(TSharedRef<const FMultiBlock> InBlock)
{
	Blocks.Add(InBlock);
}

void FMultiBox::SetStyle(const ISlateStyle* InStyle, const FName& InStyleName)
{
	StyleSet = InStyle;
	StyleName = InStyleName;
}

TSharedRef<SMultiBoxWidget> FMultiBox::MakeWidget(bool bSearchable, FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, TAttribute<float> InMaxHeight)
{
	TSharedRef<SMultiBoxWidget> NewMultiBoxWidget = SNew(SMultiBoxWidget);
	NewMultiBoxWidget->SetSearchable(bSearchable);
	NewMultiBoxWidget->SetMultiBox(AsShared());
	NewMultiBoxWidget->SetMaxHeight(InMaxHeight);
	if (InMakeMultiBoxBuilderOverride && InMakeMultiBoxBuilderOverride->IsBound())
	{
		InMakeMultiBoxBuilderOverride->Execute(AsShared());
	}
	return NewMultiBoxWidget;
}

void SMultiBoxWidget::Construct(const FArguments& InArgs)
{
}
