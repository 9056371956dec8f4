#include "Framework/MultiBox/MultiBox.h"

#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/StyleDefaults.h"
#include "Styling/ToolBarStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SLinkedBox.h"
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

TSharedRef<IMultiBlockBaseWidget> FMultiBlock::MakeWidget(TSharedRef<SMultiBoxWidget> InOwnerMultiBoxWidget, EMultiBlockLocation::Type InLocation, bool bSectionContainsIcons, TSharedPtr<SWidget> OptionsBlockWidget) const
{
	TSharedRef<IMultiBlockBaseWidget> NewMultiBlockWidget = ConstructWidget();
	NewMultiBlockWidget->SetOwnerMultiBoxWidget(InOwnerMultiBoxWidget);
	NewMultiBlockWidget->SetMultiBlock(AsShared());
	NewMultiBlockWidget->SetOptionsBlockWidget(OptionsBlockWidget);
	NewMultiBlockWidget->SetMultiBlockLocation(InLocation, bSectionContainsIcons);
	// A block may be drawn in a style of its own, such as a toolbar button that calls itself out.
	const FName StyleName = StyleNameOverride != NAME_None ? StyleNameOverride : InOwnerMultiBoxWidget->GetStyleName();
	NewMultiBlockWidget->BuildMultiBlockWidget(InOwnerMultiBoxWidget->GetStyleSet(), StyleName);
	return NewMultiBlockWidget;
}

const FMultiBoxCustomization FMultiBoxCustomization::None(NAME_None);

FMultiBox::FMultiBox(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection)
	: StyleSet(&FCoreStyle::Get())
	, StyleName(TEXT("ToolBar"))
	, Type(InType)
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

TSharedRef<SWidget> SMultiBlockBaseWidget::AsWidget()
{
	return this->AsShared();
}

TSharedRef<const SWidget> SMultiBlockBaseWidget::AsWidget() const
{
	return this->AsShared();
}

void SMultiBlockBaseWidget::SetOwnerMultiBoxWidget(TSharedRef<SMultiBoxWidget> InOwnerMultiBoxWidget)
{
	OwnerMultiBoxWidget = InOwnerMultiBoxWidget;
}

void SMultiBlockBaseWidget::SetMultiBlock(TSharedRef<const FMultiBlock> InMultiBlock)
{
	MultiBlock = InMultiBlock;
}

void SMultiBlockBaseWidget::SetOptionsBlockWidget(TSharedPtr<SWidget> InOptionsBlock)
{
	OptionsBlockWidget = InOptionsBlock;
}

void SMultiBlockBaseWidget::SetMultiBlockLocation(EMultiBlockLocation::Type InLocation, bool bInSectionContainsIcons)
{
	Location = InLocation;
	bSectionContainsIcons = bInSectionContainsIcons;
}

EMultiBlockLocation::Type SMultiBlockBaseWidget::GetMultiBlockLocation()
{
	return Location;
}

bool SMultiBlockBaseWidget::IsInEditMode() const
{
	return false;
}

void SMultiBoxWidget::Construct(const FArguments& InArgs)
{
	LinkedBoxManager = MakeShared<FLinkedBoxManager>();
}

void SMultiBoxWidget::BuildMultiBoxWidget()
{
	check(MultiBox.IsValid());
	const TArray<TSharedRef<const FMultiBlock>>& Blocks = MultiBox->GetBlocks();
	if (Blocks.Num() == 0)
	{
		ChildSlot[SNullWidget::NullWidget];
		return;
	}

	// A menu stacks its entries in a scroll box, which a height limit caps; toolbars lay theirs in a row.
	TSharedPtr<SWidget> MainWidget;
	TSharedPtr<SVerticalBox> VerticalBox;
	TSharedPtr<SHorizontalBox> HorizontalBox;
	switch (MultiBox->GetType())
	{
		case EMultiBoxType::Menu:
		{
			const TSharedRef<SScrollBox> ScrollBox = SNew(SScrollBox) + SScrollBox::Slot()[SAssignNew(VerticalBox, SVerticalBox)];
			MainWidget = MaxHeight.IsSet() ? StaticCastSharedRef<SWidget>(SNew(SVerticalBox) + SVerticalBox::Slot().MaxHeight(MaxHeight)[ScrollBox]) : StaticCastSharedRef<SWidget>(ScrollBox);
			break;
		}
		case EMultiBoxType::VerticalToolBar:
			MainWidget = SAssignNew(VerticalBox, SVerticalBox);
			break;
		default:
			MainWidget = SAssignNew(HorizontalBox, SHorizontalBox);
			break;
	}

	// A section keeps an icon column when any of its blocks has an icon; sections end at separators.
	bool bSectionContainsIcons = false;
	int32 NextMenuSeparator = INDEX_NONE;
	int32 ConsecutiveSeparatorCount = 0;
	for (int32 Index = 0; Index < Blocks.Num(); ++Index)
	{
		if (NextMenuSeparator < Index)
		{
			bSectionContainsIcons = false;
			for (++NextMenuSeparator; NextMenuSeparator < Blocks.Num(); ++NextMenuSeparator)
			{
				bSectionContainsIcons |= Blocks[NextMenuSeparator]->HasIcon();
				if (Blocks[NextMenuSeparator]->IsSeparator())
				{
					break;
				}
			}
		}

		// However many separators follow each other, one is drawn.
		const FMultiBlock& Block = *Blocks[Index];
		ConsecutiveSeparatorCount = Block.IsSeparator() ? ConsecutiveSeparatorCount + 1 : 0;
		if (ConsecutiveSeparatorCount > 1)
		{
			continue;
		}
		AddBlockWidget(Block, HorizontalBox, VerticalBox, EMultiBlockLocation::None, bSectionContainsIcons);
	}

	// Menus keep clear of the pop-up's top and bottom edges; toolbars draw their background.
	FMargin BorderPadding(0.0f);
	const FSlateBrush* BorderBrush = FStyleDefaults::GetNoBrush();
	FSlateColor BorderForegroundColor = FSlateColor::UseForeground();
	const ISlateStyle* const StyleSet = MultiBox->GetStyleSet();
	const FName& StyleName = MultiBox->GetStyleName();
	if (MultiBox->GetType() == EMultiBoxType::Menu)
	{
		BorderPadding = FMargin(0.0f, 8.0f, 0.0f, 8.0f);
	}
	else
	{
		if (StyleSet->HasWidgetStyle<FToolBarStyle>(StyleName))
		{
			const FToolBarStyle& Style = StyleSet->GetWidgetStyle<FToolBarStyle>(StyleName);
			BorderBrush = &Style.BackgroundBrush;
			BorderPadding = Style.BackgroundPadding;
		}
		else
		{
			BorderBrush = StyleSet->GetOptionalBrush(StyleName, ".Background", FStyleDefaults::GetNoBrush());
		}
		BorderForegroundColor = FCoreStyle::Get().GetSlateColor("DefaultForeground");
	}
	ChildSlot[SNew(SBorder).Padding(BorderPadding).BorderImage(BorderBrush).ForegroundColor(BorderForegroundColor)[MainWidget.ToSharedRef()]];
}

void SMultiBoxWidget::AddBlockWidget(const FMultiBlock& Block, TSharedPtr<SHorizontalBox> HorizontalBox, TSharedPtr<SVerticalBox> VerticalBox, EMultiBlockLocation::Type InLocation, bool bSectionContainsIcons)
{
	const TSharedRef<SWidget> BlockWidget = Block.MakeWidget(SharedThis(this), InLocation, bSectionContainsIcons, nullptr)->AsWidget();
	switch (MultiBox->GetType())
	{
		case EMultiBoxType::Menu:
			VerticalBox->AddSlot().AutoHeight().Padding(0.0f)[BlockWidget];
			break;
		case EMultiBoxType::VerticalToolBar:
			VerticalBox->AddSlot().AutoHeight().Padding(0.0f, 1.0f, 0.0f, 1.0f)[BlockWidget];
			break;
		default:
			HorizontalBox->AddSlot().AutoWidth().Padding(0.0f)[BlockWidget];
			break;
	}
}
