#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"

/** Binds commands to the actions they run. */
class SLATE_API FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	virtual ~FUICommandList() {}

	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FGetActionCheckState GetActionCheckState, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, FIsActionButtonVisible IsVisibleDelegate, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, FCanExecuteAction CanExecuteAction, FGetActionCheckState GetActionCheckState, FIsActionButtonVisible IsVisibleDelegate, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction);

	void UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo);
	bool IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const;

	/** Runs the command's action if it is mapped and can run. @return whether it ran. */
	bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** Whether the command can run; an unmapped command cannot. */
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** The command's check state, asked of its action now. */
	ECheckBoxState GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const;

private:
	TMap<TSharedPtr<const FUICommandInfo>, FUIAction> UICommandBindingMap;
};
