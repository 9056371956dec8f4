#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuOwner.h"

#include "ToolMenuEntry.generated.h"

/** What a toolbar entry keeps for its drop-down. */
struct FToolMenuEntryToolBarData
{
public:
	FToolMenuEntryToolBarData()
		: bSimpleComboBox(false)
		, bIsFocusable(false)
	{
	}

	/** Makes the combo button's menu content when the menu is summoned. */
	FNewToolMenuChoice ComboButtonContextMenuGenerator;
	bool bSimpleComboBox;
	bool bIsFocusable;
};

/** One entry of a menu section. */
USTRUCT(BlueprintType)
struct TOOLMENUS_API FToolMenuEntry
{
	GENERATED_BODY()

	FToolMenuEntry();
	FToolMenuEntry(const FToolMenuOwner InOwner, const FName InName, EMultiBlockType InType);

	/** A toolbar button with a drop-down menu made by InMenuContentGenerator when it opens. */
	static FToolMenuEntry InitComboButton(const FName InName, const FToolUIActionChoice& InAction, const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);

	FName Name;
	FToolMenuOwner Owner;
	EMultiBlockType Type;
	FName TutorialHighlightName;
	FName StyleNameOverride;

	FToolMenuEntryToolBarData ToolBarData;

	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;

private:
	friend class UToolMenus;
	friend class FPopulateMenuBuilderWithToolMenuEntry;

	FToolUIActionChoice Action;
};
