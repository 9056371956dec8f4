#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Styling/CoreStyle.h"
#include "Textures/SlateIcon.h"

#include <climits>

class SWidget;

/** Builds a multi-box (a menu, menu bar or toolbar) entry by entry. */
class SLATE_API FMultiBoxBuilder
{
public:
	FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), FName InTutorialHighlightName = NAME_None, FName InMenuName = NAME_None);
	virtual ~FMultiBoxBuilder() {}

	virtual TSharedRef<class SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = INT_MAX);
	TSharedRef<class FMultiBox> GetMultiBox();

protected:
	TSharedRef<class FMultiBox> MultiBox;
	TArray<TSharedPtr<const FUICommandList>> CommandListStack;
	FName TutorialHighlightName;
	FName MenuName;
};

/** Builds menus: entries for commands or for actions. */
class SLATE_API FBaseMenuBuilder : public FMultiBoxBuilder
{
public:
	FBaseMenuBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, bool bInCloseSelfOnly, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const ISlateStyle* InStyleSet = &FCoreStyle::Get(), FName InTutorialHighlightName = NAME_None, FName InMenuName = NAME_None);

	/** An entry for a command: label, tooltip, icon and type come from the command unless overridden. */
	void AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const FSlateIcon& InIconOverride = FSlateIcon(), FName InTutorialHighlightName = NAME_None);
	void AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& UIAction, FName InExtensionHook = NAME_None, const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button, FName InTutorialHighlightName = NAME_None);

protected:
	virtual void ApplySectionBeginning() {}

	bool bCloseSelfOnly;
};

/** Builds a drop-down or context menu. */
class SLATE_API FMenuBuilder : public FBaseMenuBuilder
{
public:
	FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool bCloseSelfOnly = false, const ISlateStyle* InStyleSet = &FCoreStyle::Get(), bool bInSearchable = true, FName InMenuName = NAME_None, bool bInRecursivelySearchable = true);

	/** Starts a section; its heading is added with its first entry, so an empty section shows nothing. */
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());
	void EndSection();
	void AddSeparator(FName InExtensionHook = NAME_None);
	void AddMenuSeparator(FName InExtensionHook = NAME_None) { AddSeparator(InExtensionHook); }

	virtual TSharedRef<SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = 1000) override;

protected:
	virtual void ApplySectionBeginning() override;

private:
	FName CurrentSectionExtensionHook;
	FText CurrentSectionHeadingText;
	bool bSectionNeedsToBeApplied;
	bool bSearchable;
	bool bRecursivelySearchable;
};

DECLARE_DELEGATE_OneParam(FNewMenuDelegate, class FMenuBuilder&);
