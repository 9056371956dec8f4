#include "Framework/Commands/UICommandList.h"

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, ExecuteAction, FCanExecuteAction(), FIsActionChecked(), FIsActionButtonVisible(), RepeatMode);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, ExecuteAction, CanExecuteAction, FIsActionChecked(), FIsActionButtonVisible(), RepeatMode);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, ExecuteAction, CanExecuteAction, IsCheckedDelegate, FIsActionButtonVisible(), RepeatMode);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FGetActionCheckState GetActionCheckState, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, ExecuteAction, CanExecuteAction, GetActionCheckState, FIsActionButtonVisible(), RepeatMode);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, FIsActionButtonVisible IsVisibleDelegate, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, IsCheckedDelegate, IsVisibleDelegate, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FGetActionCheckState GetActionCheckState, FIsActionButtonVisible IsVisibleDelegate, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, GetActionCheckState, IsVisibleDelegate, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction)
{
	if (!ensure(InUICommandInfo.IsValid()))
	{
		return;
	}
	UICommandBindingMap.Add(InUICommandInfo, InUIAction);
}

void FUICommandList::UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo)
{
	UICommandBindingMap.Remove(InUICommandInfo);
}

bool FUICommandList::IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const
{
	return UICommandBindingMap.Contains(InUICommandInfo);
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	// As the engine: a mapped command counts as handled even when its action cannot run.
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	if (Action)
	{
		Action->Execute();
		return true;
	}
	return false;
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	// As the engine: without an action (a menu entry whose children do the work) the command can run.
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action ? Action->CanExecute() : true;
}

ECheckBoxState FUICommandList::GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action ? Action->GetCheckState() : ECheckBoxState::Unchecked;
}

const FUIAction* FUICommandList::GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const
{
	return UICommandBindingMap.Find(Command);
}
