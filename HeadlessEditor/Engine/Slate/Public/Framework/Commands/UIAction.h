#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Styling/SlateTypes.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked);
DECLARE_DELEGATE_RetVal(ECheckBoxState, FGetActionCheckState);
DECLARE_DELEGATE_RetVal(bool, FIsActionButtonVisible);

/** Whether holding the shortcut repeats the action. */
enum class EUIActionRepeatMode
{
	RepeatDisabled,
	RepeatEnabled,
};

/** What a menu entry, button or shortcut does: execute, can-execute, check state and visibility. */
struct SLATE_API FUIAction
{
	FExecuteAction ExecuteAction;
	FCanExecuteAction CanExecuteAction;
	FGetActionCheckState GetActionCheckState;
	FIsActionButtonVisible IsActionVisibleDelegate;
	EUIActionRepeatMode RepeatMode;

	FUIAction();
	FUIAction(FExecuteAction InitExecuteAction, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FIsActionChecked InitIsCheckedDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FGetActionCheckState InitGetActionCheckStateDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FIsActionChecked InitIsCheckedDelegate, FIsActionButtonVisible InitIsActionVisibleDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FGetActionCheckState InitGetActionCheckStateDelegate, FIsActionButtonVisible InitIsActionVisibleDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** An unbound can-execute delegate means the action can always run. */
	bool CanExecute() const;
	/** Runs the action if it can run. @return whether it ran. */
	bool Execute() const;
	/** An unbound check-state delegate means unchecked. */
	ECheckBoxState GetCheckState() const;
	EVisibility IsVisible() const;
	bool IsBound() const { return ExecuteAction.IsBound(); }

	static ECheckBoxState IsActionCheckedPassthrough(FIsActionChecked InDelegate)
	{
		if (InDelegate.IsBound())
		{
			return InDelegate.Execute() ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
		}
		return ECheckBoxState::Unchecked;
	}
};
