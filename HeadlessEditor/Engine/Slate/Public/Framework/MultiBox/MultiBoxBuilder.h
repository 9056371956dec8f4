#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/SlateDelegates.h"
#include "Layout/Visibility.h"
#include "Styling/CoreStyle.h"
#include "Textures/SlateIcon.h"

#include <climits>

class SWidget;

DECLARE_DELEGATE_OneParam(FNewMenuDelegate, class FMenuBuilder&);

/** Builds a multi-box (a menu, menu bar or toolbar) entry by entry. */
class SLATE_API FMultiBoxBuilder
{
public:
	FMultiBoxBuilder(const EMultiBoxType InType, FMultiBoxCustomization InCustomization, const bool bInShouldCloseWindowAfterMenuSelection, const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), FName InTutorialHighlightName = NAME_None, FName InMenuName = NAME_None);
	virtual ~FMultiBoxBuilder() {}

	virtual TSharedRef<class SWidget> MakeWidget(FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = INT_MAX);
	TSharedRef<class FMultiBox> GetMultiBox();

	/** The style set and the style name the box and its blocks are drawn with. */
	void SetStyle(const ISlateStyle* InStyleSet, const FName& InStyleName);

protected:
	/** Adds what a section starts with (its heading or separator) before the section's first block. */
	virtual void ApplySectionBeginning() {}

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
	/** An entry that shows a widget of its own and runs an action when clicked. */
	void AddMenuEntry(const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const FName& InExtensionHook = NAME_None, const TAttribute<FText>& InToolTip = TAttribute<FText>(), const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button, FName InTutorialHighlightName = NAME_None);

protected:
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

	/** An entry that opens a sub-menu, filled by InSubMenu each time it opens. */
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu, const FUIAction& InUIAction, FName InExtensionHook, const EUserInterfaceActionType InUserInterfaceActionType, const bool bInOpenSubMenuOnClick = false, const FSlateIcon& InIcon = FSlateIcon(), const bool bInShouldCloseWindowAfterMenuSelection = true);
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu, const bool bInOpenSubMenuOnClick = false, const FSlateIcon& InIcon = FSlateIcon(), const bool bInShouldCloseWindowAfterMenuSelection = true, FName InExtensionHook = NAME_None);

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

/** Builds a toolbar: buttons, combo buttons and widgets in a row, sections between separators. */
class SLATE_API FToolBarBuilder : public FMultiBoxBuilder
{
public:
	FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender = nullptr, const bool InForceSmallIcons = false)
		: FMultiBoxBuilder(EMultiBoxType::ToolBar, InCustomization, false, InCommandList, InExtender)
		, bSectionNeedsToBeApplied(false)
		, bForceSmallIcons(InForceSmallIcons)
	{
	}

	void SetLabelVisibility(EVisibility InLabelVisibility) { LabelVisibility = InLabelVisibility; }

	/** A button with a drop-down menu made by InMenuContentGenerator when it opens. */
	void AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);

	/** Starts a section; a separator is added before it with its first block, unless it is the first. */
	void BeginSection(FName InExtensionHook);
	void EndSection();

	/** The style used for any added blocks until EndStyleOverride is called */
	void BeginStyleOverride(FName StyleOverrideName);
	void EndStyleOverride();

protected:
	FToolBarBuilder(EMultiBoxType InType, TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool InForceSmallIcons = false)
		: FMultiBoxBuilder(InType, InCustomization, false, InCommandList, InExtender)
		, bSectionNeedsToBeApplied(false)
		, bForceSmallIcons(InForceSmallIcons)
	{
	}

	virtual void ApplySectionBeginning() override;

private:
	FName CurrentSectionExtensionHook;
	FName CurrentStyleOverride;
	TOptional<EVisibility> LabelVisibility;
	bool bSectionNeedsToBeApplied;
	bool bForceSmallIcons;
};

/** Builds a slim toolbar: small icons with their labels beside them, as the level editor's toolbar has. */
class SLATE_API FSlimHorizontalToolBarBuilder : public FToolBarBuilder
{
public:
	FSlimHorizontalToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization, TSharedPtr<FExtender> InExtender = nullptr, const bool InForceSmallIcons = false)
		: FToolBarBuilder(EMultiBoxType::SlimHorizontalToolBar, InCommandList, InCustomization, InExtender, InForceSmallIcons)
	{
	}
};
