#include "Framework/Commands/Commands.h"

void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* InSubNamespace, const TCHAR* InCommandName, const TCHAR* InCommandNameUnderscoreTooltip, const ANSICHAR* DotCommandName, const TCHAR* FriendlyName, const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord)
{
	// As in the engine, command texts live under "UICommands.<LOCTEXT_NAMESPACE>", keyed by the command's
	// name, and the icon's style name is the context name joined with ".<command name>".
	static const FString UICommandsStr(TEXT("UICommands"));
	const FString SubNamespace(InSubNamespace ? InSubNamespace : TEXT(""));
	const FString Namespace = SubNamespace.IsEmpty() ? UICommandsStr : UICommandsStr + TEXT(".") + SubNamespace;

	FUICommandInfo::MakeCommandInfo(
		This->AsShared(),
		OutCommand,
		InCommandName,
		FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(FriendlyName, *Namespace, InCommandName),
		FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(InDescription, *Namespace, InCommandNameUnderscoreTooltip),
		FSlateIcon(This->GetStyleSetName(), FName(*(This->GetContextName().ToString() + FString(DotCommandName)))),
		CommandType,
		InDefaultChord,
		InAlternateDefaultChord);
}
