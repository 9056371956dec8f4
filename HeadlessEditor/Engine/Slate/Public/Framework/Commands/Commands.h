#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"

/** Builds a command for the UI_COMMAND macro; call the macro, whose arguments are gathered for localisation. */
SLATE_API void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace, const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName, const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord = FInputChord());

#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, InDefaultChord, ...) \
	MakeUICommand_InternalUseOnly(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId), TEXT(#CommandId) TEXT("_ToolTip"), "." #CommandId, TEXT(FriendlyName), TEXT(InDescription), CommandType, InDefaultChord, ##__VA_ARGS__);

/** A set of commands; derive from it and fill the commands in RegisterCommands. */
template <typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	/** Creates the set, unless a context of the same name is registered already: then that one is reused. */
	static void Register()
	{
		if (!Instance.IsValid())
		{
			TSharedRef<CommandContextType> NewInstance = MakeShareable(new CommandContextType());
			TSharedPtr<FBindingContext> ExistingBindingContext = FInputBindingManager::Get().GetContextByName(NewInstance->GetContextName());
			if (ExistingBindingContext.IsValid())
			{
				Instance = StaticCastSharedPtr<CommandContextType>(ExistingBindingContext);
			}
			else
			{
				Instance = NewInstance;
				NewInstance->RegisterCommands();
				CommandsChanged.Broadcast(*NewInstance);
			}
		}
	}

	static bool IsRegistered()
	{
		return Instance.IsValid();
	}

	static const CommandContextType& Get()
	{
		return *(Instance.Pin());
	}

	/** Removes the set's context; nothing else may still hold it. */
	static void Unregister()
	{
		if (Instance.IsValid())
		{
			TSharedPtr<CommandContextType> InstancePtr = Instance.Pin();
			FInputBindingManager::Get().RemoveContextByName(InstancePtr->GetContextName());
			CommandsChanged.Broadcast(*InstancePtr);
			check(InstancePtr.IsUnique());
			InstancePtr.Reset();
		}
	}

	static const FBindingContext& GetContext()
	{
		check(Instance.IsValid());
		return *(Instance.Pin());
	}

protected:
	TCommands(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: FBindingContext(InContextName, InContextDesc, InContextParent, InStyleSetName)
	{
	}

	virtual ~TCommands()
	{
	}

	/** The binding manager holds the strong reference. */
	static TWeakPtr<CommandContextType> Instance;

	virtual void RegisterCommands() = 0;
};

template <typename CommandContextType>
TWeakPtr<CommandContextType> TCommands<CommandContextType>::Instance = nullptr;
