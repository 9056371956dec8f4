#include "Framework/MultiBox/MultiBox.h"

#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

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

const FMultiBoxCustomization FMultiBoxCustomization::None(NAME_None);

FMultiBox::FMultiBox(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection)
	: Type(InType)
	, Customization(InCustomization)
	, bShouldCloseWindowAfterMenuSelection(bInShouldCloseWindowAfterMenuSelection)
{
}

TSharedRef<FMultiBox> FMultiBox::Create(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection)
{
	return MakeShareable(new FMultiBox(InType, InCustomization, bInShouldCloseWindowAfterMenuSelection));
}

FName FMultiBox::GetCustomizationName() const
{
	return Customization.GetCustomizationName();
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
		InMakeMultiBoxBuilderOverride->Execute(AsShared(), NewMultiBoxWidget);
	}
	else
	{
		NewMultiBoxWidget->BuildMultiBoxWidget();
	}
	return NewMultiBoxWidget;
}

void SMultiBoxWidget::Construct(const FArguments& InArgs)
{
}

void SMultiBoxWidget::BuildMultiBoxWidget()
{
	// A menu stacks its entries in a scroll box, which a height limit caps; other boxes lay theirs in a row.
	TSharedPtr<SWidget> MainWidget;
	if (MultiBox->GetType() == EMultiBoxType::Menu)
	{
		const TSharedRef<SScrollBox> ScrollBox = SNew(SScrollBox) + SScrollBox::Slot()[SNew(SVerticalBox)];
		if (MaxHeight.IsSet())
		{
			MainWidget = SNew(SVerticalBox) + SVerticalBox::Slot().MaxHeight(MaxHeight)[ScrollBox];
		}
		else
		{
			MainWidget = ScrollBox;
		}
	}
	else
	{
		MainWidget = SNew(SHorizontalBox);
	}
	ChildSlot
		[SNew(SBorder)
				.Padding(0.0f)
				.BorderImage(FStyleDefaults::GetNoBrush())
				.ForegroundColor(FAppStyle::Get().GetSlateColor("DefaultForeground"))[MainWidget.ToSharedRef()]];
}
