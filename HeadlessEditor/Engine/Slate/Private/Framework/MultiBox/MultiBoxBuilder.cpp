#include "Framework/MultiBox/MultiBoxBuilder.h"

#include "Framework/MultiBox/SToolBarComboButtonBlock.h"
#include "SHeadingBlock.h"
#include "SMenuEntryBlock.h"
#include "SMenuSeparatorBlock.h"
#include "SToolBarSeparatorBlock.h"

namespace
{
	/** The name tutorials use to highlight a block: the container's name, then the element's or command's. */
	FName GenerateTutorialIdentifierName(FName InContainerName, FName InElementName, const TSharedPtr<const FUICommandInfo> InCommand, int32 InIndex)
	{
		FString BaseName;
		if (InContainerName != NAME_None)
		{
			BaseName = InContainerName.ToString() + TEXT(".");
		}
		if (InElementName != NAME_None)
		{
			return FName(*(BaseName + InElementName.ToString()));
		}
		if (InCommand.IsValid() && InCommand->GetCommandName() != NAME_None)
		{
			return FName(*(BaseName + InCommand->GetCommandName().ToString()));
		}
		return FName(*(BaseName + FString::Printf(TEXT("MultiboxWidget%d"), InIndex)));
	}
}

FMultiBoxBuilder::FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender, FName InTutorialHighlightName, FName InMenuName)
	: MultiBox(FMultiBox::Create(InType, InCustomization, bInShouldCloseWindowAfterMenuSelection))
	, TutorialHighlightName(InTutorialHighlightName)
	, MenuName(InMenuName)
{
	CommandListStack.Add(InCommandList);
}

TSharedRef<SWidget> FMultiBoxBuilder::MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, uint32 MaxHeight)
{
	return MultiBox->MakeWidget(false, InMakeMultiBoxBuilderOverride);
}

TSharedRef<FMultiBox> FMultiBoxBuilder::GetMultiBox()
{
	return MultiBox;
}

void FMultiBoxBuilder::SetStyle(const ISlateStyle* InStyleSet, const FName& InStyleName)
{
	MultiBox->SetStyle(InStyleSet, InStyleName);
}

FBaseMenuBuilder::FBaseMenuBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, bool bInCloseSelfOnly, TSharedPtr<FExtender> InExtender, const ISlateStyle* InStyleSet, FName InTutorialHighlightName, FName InMenuName)
	: FMultiBoxBuilder(InType, FMultiBoxCustomization::None, bInShouldCloseWindowAfterMenuSelection, InCommandList, InExtender, InTutorialHighlightName, InMenuName)
	, bCloseSelfOnly(bInCloseSelfOnly)
{
	MultiBox->SetStyle(InStyleSet, TEXT("Menu"));
}

void FBaseMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, FName InTutorialHighlightName)
{
	ApplySectionBeginning();

	check(InCommand.IsValid());
	TSharedRef<FMenuEntryBlock> NewMenuEntryBlock = MakeShared<FMenuEntryBlock>(InExtensionHook, InCommand, CommandListStack.Last(), InLabelOverride, InToolTipOverride, InIconOverride, bCloseSelfOnly);
	NewMenuEntryBlock->SetTutorialHighlightName(GenerateTutorialIdentifierName(TutorialHighlightName, InTutorialHighlightName, InCommand, MultiBox->GetBlocks().Num()));
	MultiBox->AddMultiBlock(NewMenuEntryBlock);
}

void FBaseMenuBuilder::AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& UIAction, FName InExtensionHook, const EUserInterfaceActionType UserInterfaceActionType, FName InTutorialHighlightName)
{
	ApplySectionBeginning();

	TSharedRef<FMenuEntryBlock> NewMenuEntryBlock = MakeShared<FMenuEntryBlock>(InExtensionHook, InLabel, InToolTip, InIcon, UIAction, UserInterfaceActionType, bCloseSelfOnly);
	NewMenuEntryBlock->SetTutorialHighlightName(GenerateTutorialIdentifierName(TutorialHighlightName, InTutorialHighlightName, nullptr, MultiBox->GetBlocks().Num()));
	MultiBox->AddMultiBlock(NewMenuEntryBlock);
}

void FBaseMenuBuilder::AddMenuEntry(const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const FName& InExtensionHook, const TAttribute<FText>& InToolTip, const EUserInterfaceActionType UserInterfaceActionType, FName InTutorialHighlightName)
{
	ApplySectionBeginning();

	TSharedRef<FMenuEntryBlock> NewMenuEntryBlock = MakeShared<FMenuEntryBlock>(InExtensionHook, UIAction, Contents, InToolTip, UserInterfaceActionType, bCloseSelfOnly, MultiBox->ShouldCloseWindowAfterMenuSelection());
	NewMenuEntryBlock->SetTutorialHighlightName(GenerateTutorialIdentifierName(TutorialHighlightName, InTutorialHighlightName, nullptr, MultiBox->GetBlocks().Num()));
	MultiBox->AddMultiBlock(NewMenuEntryBlock);
}

FMenuBuilder::FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, const bool bCloseSelfOnly, const ISlateStyle* InStyleSet, bool bInSearchable, FName InMenuName, bool bInRecursivelySearchable)
	: FBaseMenuBuilder(EMultiBoxType::Menu, bInShouldCloseWindowAfterMenuSelection, InCommandList, bCloseSelfOnly, InExtender, InStyleSet, NAME_None, InMenuName)
	, bSectionNeedsToBeApplied(false)
	, bSearchable(bInSearchable)
	, bRecursivelySearchable(bInRecursivelySearchable)
{
}

void FMenuBuilder::BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	check(CurrentSectionExtensionHook == NAME_None && !bSectionNeedsToBeApplied);

	bSectionNeedsToBeApplied = true;
	CurrentSectionExtensionHook = InExtensionHook;
	CurrentSectionHeadingText = InHeadingText.Get(FText::GetEmpty());
}

void FMenuBuilder::EndSection()
{
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
	CurrentSectionHeadingText = FText::GetEmpty();
}

void FMenuBuilder::AddSeparator(FName InExtensionHook)
{
	ApplySectionBeginning();

	// A separator is never the first block of a menu.
	if (MultiBox->GetBlocks().Num() > 0)
	{
		MultiBox->AddMultiBlock(MakeShared<FMenuSeparatorBlock>(InExtensionHook, false));
	}
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu, const FUIAction& InUIAction, FName InExtensionHook, const EUserInterfaceActionType InUserInterfaceActionType, const bool bInOpenSubMenuOnClick, const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection)
{
	ApplySectionBeginning();

	MultiBox->AddMultiBlock(MakeShared<FMenuEntryBlock>(InExtensionHook, InMenuLabel, InToolTip, InSubMenu, nullptr, true, bInOpenSubMenuOnClick, InIcon, InUIAction, InUserInterfaceActionType, bCloseSelfOnly, bInShouldCloseWindowAfterMenuSelection, CommandListStack.Last()));
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu, const bool bInOpenSubMenuOnClick, const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection, FName InExtensionHook)
{
	AddSubMenu(InMenuLabel, InToolTip, InSubMenu, FUIAction(), InExtensionHook, EUserInterfaceActionType::Button, bInOpenSubMenuOnClick, InIcon, bInShouldCloseWindowAfterMenuSelection);
}

TSharedRef<SWidget> FMenuBuilder::MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride, uint32 MaxHeight)
{
	TAttribute<float> MaxHeightAttribute;
	if (MaxHeight < INT_MAX)
	{
		MaxHeightAttribute.Set((float)MaxHeight);
	}
	return MultiBox->MakeWidget(bSearchable, InMakeMultiBoxBuilderOverride, MaxHeightAttribute);
}

void FMenuBuilder::ApplySectionBeginning()
{
	if (bSectionNeedsToBeApplied)
	{
		if (!CurrentSectionHeadingText.IsEmpty())
		{
			MultiBox->AddMultiBlock(MakeShared<FHeadingBlock>(CurrentSectionExtensionHook, CurrentSectionHeadingText));
		}
		bSectionNeedsToBeApplied = false;
		CurrentSectionHeadingText = FText::GetEmpty();
	}
}

void FToolBarBuilder::AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, bool bInSimpleComboBox, FName InTutorialHighlightName)
{
	ApplySectionBeginning();

	TSharedRef<FToolBarComboButtonBlock> NewToolBarComboButtonBlock = MakeShared<FToolBarComboButtonBlock>(InAction, InMenuContentGenerator, InLabelOverride, InToolTipOverride, InIconOverride, bInSimpleComboBox);
	if (LabelVisibility.IsSet())
	{
		NewToolBarComboButtonBlock->SetLabelVisibility(LabelVisibility.GetValue());
	}
	NewToolBarComboButtonBlock->SetForceSmallIcons(bForceSmallIcons);
	NewToolBarComboButtonBlock->SetTutorialHighlightName(GenerateTutorialIdentifierName(TutorialHighlightName, InTutorialHighlightName, nullptr, MultiBox->GetBlocks().Num()));
	NewToolBarComboButtonBlock->SetStyleNameOverride(CurrentStyleOverride);
	MultiBox->AddMultiBlock(NewToolBarComboButtonBlock);
}

void FToolBarBuilder::BeginSection(FName InExtensionHook)
{
	checkf(CurrentSectionExtensionHook == NAME_None && !bSectionNeedsToBeApplied, TEXT("Did you forget to call EndSection()?"));

	// Applied with the section's first block, so that an empty section leaves no separator.
	bSectionNeedsToBeApplied = true;
	CurrentSectionExtensionHook = InExtensionHook;
}

void FToolBarBuilder::EndSection()
{
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
}

void FToolBarBuilder::BeginStyleOverride(FName StyleOverrideName)
{
	CurrentStyleOverride = StyleOverrideName;
}

void FToolBarBuilder::EndStyleOverride()
{
	CurrentStyleOverride = NAME_None;
}

void FToolBarBuilder::ApplySectionBeginning()
{
	if (bSectionNeedsToBeApplied)
	{
		if (MultiBox->GetBlocks().Num() > 0)
		{
			TSharedRef<FToolBarSeparatorBlock> NewSeparatorBlock = MakeShared<FToolBarSeparatorBlock>(CurrentSectionExtensionHook);
			NewSeparatorBlock->SetStyleNameOverride(CurrentStyleOverride);
			MultiBox->AddMultiBlock(NewSeparatorBlock);
		}
		bSectionNeedsToBeApplied = false;
	}
}
