#include "Framework/Commands/UICommandInfo.h"

#include "Framework/Commands/InputBindingManager.h"

FOnBindingContextChanged FBindingContext::CommandsChanged;

FUICommandInfo::FUICommandInfo(const FName InBindingContext)
	: BindingContext(InBindingContext)
	, UserInterfaceType(EUserInterfaceActionType::Button)
{
	ActiveChords.Add(MakeShared<FInputChord>());
	ActiveChords.Add(MakeShared<FInputChord>());
	DefaultChords.Add(FInputChord());
	DefaultChords.Add(FInputChord());
}

void FUICommandInfo::MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord, const FName InBundle)
{
	ensureMsgf(!InCommandLabel.IsEmpty(), TEXT("Command labels cannot be empty"));

	OutCommand = MakeShareable(new FUICommandInfo(InContext->GetContextName()));
	OutCommand->CommandName = InCommandName;
	OutCommand->Label = InCommandLabel;
	OutCommand->Description = InCommandDesc;
	OutCommand->Icon = InIcon;
	OutCommand->UserInterfaceType = InUserInterfaceType;
	OutCommand->DefaultChords[static_cast<uint8>(EMultipleKeyBindingIndex::Primary)] = InDefaultChord;
	OutCommand->DefaultChords[static_cast<uint8>(EMultipleKeyBindingIndex::Secondary)] = InAlternateDefaultChord;
	OutCommand->Bundle = InBundle;
	FInputBindingManager::Get().CreateInputCommand(InContext, OutCommand.ToSharedRef());
}

void FUICommandInfo::UnregisterCommandInfo(const TSharedRef<FBindingContext>& InContext, const TSharedRef<FUICommandInfo>& InCommand)
{
	FInputBindingManager::Get().RemoveInputCommand(InContext, InCommand);
}

const FText FUICommandInfo::GetInputText() const
{
	for (const TSharedRef<FInputChord>& Chord : ActiveChords)
	{
		if (Chord->IsValidChord())
		{
			return Chord->GetInputText();
		}
	}
	return FText::GetEmpty();
}
