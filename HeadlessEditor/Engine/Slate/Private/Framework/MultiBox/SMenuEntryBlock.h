#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Textures/SlateIcon.h"

class SMenuAnchor;

/** An entry of a menu: a command from a command list, a direct action, a custom widget or a sub-menu. */
class FMenuEntryBlock : public FMultiBlock
{
public:
	/** An entry for a command, looked up in its command list when shown or clicked. */
	FMenuEntryBlock(const FName& InExtensionHook, const TSharedPtr<const FUICommandInfo>& InCommand, TSharedPtr<const FUICommandList> InCommandList, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, bool bInCloseSelfOnly);

	/** An entry that runs its own action. */
	FMenuEntryBlock(const FName& InExtensionHook, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& InUIAction, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly);

	/** An entry that opens a sub-menu the builder fills when it opens. */
	FMenuEntryBlock(const FName& InExtensionHook, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InEntryBuilder, TSharedPtr<FExtender> InExtender, bool bInSubMenu, bool bInSubMenuOnClick, const FSlateIcon& InIcon, const FUIAction& InUIAction, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly, bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList);

	/** An entry that shows a widget of its own in place of the icon and label. */
	FMenuEntryBlock(const FName& InExtensionHook, const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const TAttribute<FText>& InToolTip, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly, bool bInShouldCloseWindowAfterMenuSelection);

	virtual bool HasIcon() const override;

	/** The icon the entry shows: its own, or its command's. */
	FSlateIcon GetIcon() const;

	TAttribute<FText> LabelOverride;
	TAttribute<FText> ToolTipOverride;
	FSlateIcon IconOverride;
	/** Fills the sub-menu when it opens. */
	FNewMenuDelegate EntryBuilder;
	/** Shown in place of the icon and label, if set. */
	TSharedPtr<SWidget> EntryWidget;
	bool bIsSubMenu = false;
	bool bOpenSubMenuOnClick = false;
	EUserInterfaceActionType UserInterfaceActionType;
	bool bCloseSelfOnly;
	TSharedPtr<FExtender> Extender;
	bool bShouldCloseWindowAfterMenuSelection = true;

private:
	virtual TSharedRef<IMultiBlockBaseWidget> ConstructWidget() const override;
};

/** The widget of a menu entry: check box column, icon, label and shortcut, or a sub-menu's arrow. */
class SMenuEntryBlock : public SMultiBlockBaseWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuEntryBlock)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName) override;

private:
	/** What an entry is built from: its texts, command and styles. */
	struct FMenuEntryBuildParams
	{
		TSharedPtr<const FMultiBox> MultiBox;
		TSharedPtr<const FMenuEntryBlock> MenuEntryBlock;
		TSharedPtr<const FUICommandInfo> UICommand;
		TAttribute<FText> Label;
		TAttribute<FText> ToolTip;
		TAttribute<FText> InputBinding;
		const ISlateStyle* StyleSet = nullptr;
		FName StyleName;
	};

	TSharedRef<SWidget> BuildMenuEntryWidget(const FMenuEntryBuildParams& InBuildParams);
	TSharedRef<SWidget> BuildSubMenuWidget(const FMenuEntryBuildParams& InBuildParams);
	/** The check box column, the icon and the label, shared by entries and sub-menu entries. */
	TSharedRef<SWidget> BuildCheckBoxAndButtonContent(const FMenuEntryBuildParams& InBuildParams, bool bShowInputBinding);
	EUserInterfaceActionType GetUserInterfaceType(const FMenuEntryBuildParams& InBuildParams) const;

	/** Fills a new menu with the sub-menu's entries, in the parent menu's style. */
	TSharedRef<SWidget> MakeNewMenuWidget() const;

	FReply OnMenuItemButtonClicked();
	void OnCheckStateChanged(const ECheckBoxState NewCheckedState);
	ECheckBoxState IsChecked() const;
	bool IsEnabled() const;
	EVisibility GetVisibility() const;
	const FSlateBrush* GetCheckBoxImageBrushFromStyle(const FCheckBoxStyle* Style) const;

	TWeakPtr<SMenuAnchor> MenuAnchor;
};
