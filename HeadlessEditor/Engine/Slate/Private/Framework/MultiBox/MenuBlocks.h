#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Textures/SlateIcon.h"

/** A section's heading in a menu. */
class FHeadingBlock : public FMultiBlock
{
public:
	FHeadingBlock(const FName& InExtensionHook, const TAttribute<FText>& InHeadingText)
		: FMultiBlock(nullptr, nullptr, InExtensionHook, EMultiBlockType::Heading, true)
		, HeadingText(InHeadingText)
	{
	}

	TAttribute<FText> HeadingText;
};

/** A line between groups of entries. */
class FMenuSeparatorBlock : public FMultiBlock
{
public:
	FMenuSeparatorBlock(const FName& InExtensionHook, bool bInIsPartOfHeading)
		: FMultiBlock(nullptr, nullptr, InExtensionHook, EMultiBlockType::Separator, bInIsPartOfHeading)
	{
	}
};

/** An entry of a menu: a command from a command list, or a direct action. */
class FMenuEntryBlock : public FMultiBlock
{
public:
	FMenuEntryBlock(const FName& InExtensionHook, const TSharedPtr<const FUICommandInfo>& InCommand, TSharedPtr<const FUICommandList> InCommandList, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, bool bInCloseSelfOnly)
		: FMultiBlock(InCommand, InCommandList, InExtensionHook, EMultiBlockType::MenuEntry)
		, LabelOverride(InLabelOverride)
		, ToolTipOverride(InToolTipOverride)
		, IconOverride(InIconOverride)
		, UserInterfaceActionType(InCommand->GetUserInterfaceType())
		, bCloseSelfOnly(bInCloseSelfOnly)
	{
	}

	FMenuEntryBlock(const FName& InExtensionHook, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& InUIAction, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly)
		: FMultiBlock(InUIAction, InExtensionHook, EMultiBlockType::MenuEntry)
		, LabelOverride(InLabel)
		, ToolTipOverride(InToolTip)
		, IconOverride(InIcon)
		, UserInterfaceActionType(InUserInterfaceActionType)
		, bCloseSelfOnly(bInCloseSelfOnly)
	{
	}

	TAttribute<FText> LabelOverride;
	TAttribute<FText> ToolTipOverride;
	FSlateIcon IconOverride;
	EUserInterfaceActionType UserInterfaceActionType;
	bool bCloseSelfOnly;
};
