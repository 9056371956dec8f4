#include "Framework/Commands/InputBindingManager.h"

FInputBindingManager& FInputBindingManager::Get()
{
	static FInputBindingManager* Manager = new FInputBindingManager();
	return *Manager;
}

void FInputBindingManager::CreateInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo)
{
	check(InCommandInfo->BindingContext == InBindingContext->GetContextName());

	FContextEntry& Entry = ContextMap.FindOrAdd(InBindingContext->GetContextName());
	if (!Entry.BindingContext.IsValid())
	{
		Entry.BindingContext = InBindingContext;
	}
	checkf(!Entry.Commands.ContainsByPredicate([&InCommandInfo](const TSharedRef<FUICommandInfo>& Existing)
			   { return Existing->GetCommandName() == InCommandInfo->GetCommandName(); }),
		TEXT("A command named %s already exists in context %s"), *InCommandInfo->GetCommandName().ToString(), *InBindingContext->GetContextName().ToString());
	Entry.Commands.Add(InCommandInfo);

	// The headless editor has no user key bindings, so each command's shortcuts are its defaults.
	for (int32 Index = 0; Index < InCommandInfo->ActiveChords.Num(); ++Index)
	{
		*InCommandInfo->ActiveChords[Index] = InCommandInfo->DefaultChords[Index];
	}
}

void FInputBindingManager::RemoveInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo)
{
	if (FContextEntry* Entry = ContextMap.Find(InBindingContext->GetContextName()))
	{
		Entry->Commands.Remove(InCommandInfo);
	}
}

TSharedPtr<FBindingContext> FInputBindingManager::GetContextByName(const FName& InContextName)
{
	if (FContextEntry* Entry = ContextMap.Find(InContextName))
	{
		return Entry->BindingContext;
	}
	return nullptr;
}

void FInputBindingManager::RemoveContextByName(const FName& InContextName)
{
	ContextMap.Remove(InContextName);
}

const TSharedPtr<FUICommandInfo> FInputBindingManager::FindCommandInContext(const FName InBindingContext, const FName CommandName) const
{
	if (const FContextEntry* Entry = ContextMap.Find(InBindingContext))
	{
		for (const TSharedRef<FUICommandInfo>& Command : Entry->Commands)
		{
			if (Command->GetCommandName() == CommandName)
			{
				return Command;
			}
		}
	}
	return nullptr;
}

void FInputBindingManager::GetCommandInfosFromContext(const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const
{
	OutCommandInfos.Reset();
	if (const FContextEntry* Entry = ContextMap.Find(InBindingContext))
	{
		for (const TSharedRef<FUICommandInfo>& Command : Entry->Commands)
		{
			OutCommandInfos.Add(Command);
		}
	}
}
