#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/SlateDelegates.h"

class UToolMenu;

DECLARE_DELEGATE_OneParam(FNewToolMenuDelegate, UToolMenu*);

/** How a menu's content is made: a widget straight away, a tool menu, or a legacy menu builder. */
struct TOOLMENUS_API FNewToolMenuChoice
{
	FNewToolMenuChoice() {}
	FNewToolMenuChoice(const FOnGetContent& InOnGetContent)
		: OnGetContent(InOnGetContent)
	{
	}
	FNewToolMenuChoice(const FNewToolMenuDelegate& InNewToolMenu)
		: NewToolMenu(InNewToolMenu)
	{
	}
	FNewToolMenuChoice(const FNewMenuDelegate& InNewMenuLegacy)
		: NewMenuLegacy(InNewMenuLegacy)
	{
	}

	FOnGetContent OnGetContent;
	FNewToolMenuDelegate NewToolMenu;
	FNewMenuDelegate NewMenuLegacy;
};

/** The action of a menu entry or toolbar button. */
struct TOOLMENUS_API FToolUIActionChoice
{
public:
	FToolUIActionChoice() {}
	FToolUIActionChoice(const FUIAction& InAction)
		: Action(InAction)
	{
	}
	FToolUIActionChoice(const FExecuteAction& InExecuteAction)
		: Action(FUIAction(InExecuteAction))
	{
	}

	const FUIAction* GetUIAction() const
	{
		return Action.IsSet() ? &Action.GetValue() : nullptr;
	}

private:
	TOptional<FUIAction> Action;
};
