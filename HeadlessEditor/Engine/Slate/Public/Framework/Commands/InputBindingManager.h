#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"

/** The process-wide registry of binding contexts and their commands; it keeps them alive. */
class SLATE_API FInputBindingManager
{
public:
	static FInputBindingManager& Get();

	/** Adds the command to its context, registering the context on its first command. */
	void CreateInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo);
	void RemoveInputCommand(const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo);

	TSharedPtr<FBindingContext> GetContextByName(const FName& InContextName);
	void RemoveContextByName(const FName& InContextName);

	/** The command of that name in the context, or null. */
	const TSharedPtr<FUICommandInfo> FindCommandInContext(const FName InBindingContext, const FName CommandName) const;
	/** The commands of a context, in creation order. */
	void GetCommandInfosFromContext(const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const;

private:
	struct FContextEntry
	{
		TSharedPtr<FBindingContext> BindingContext;
		TArray<TSharedRef<FUICommandInfo>> Commands;
	};

	TMap<FName, FContextEntry> ContextMap;
};
