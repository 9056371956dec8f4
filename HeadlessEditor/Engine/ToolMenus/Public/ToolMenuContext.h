#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "UObject/Object.h"

#include "ToolMenuContext.generated.h"

/** What a menu is generated for: the command list its entries run in, extenders and context objects. */
USTRUCT(BlueprintType)
struct TOOLMENUS_API FToolMenuContext
{
	GENERATED_BODY()

public:
	FToolMenuContext() = default;
	FToolMenuContext(UObject* InContext);
	FToolMenuContext(TSharedPtr<FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), UObject* InContext = nullptr);

	/** The command list entries of the generated menu look their commands up in. */
	TSharedPtr<FUICommandList> GetCommandList() const { return CommandList; }

private:
	TArray<UObject*> ContextObjects;
	TSharedPtr<FUICommandList> CommandList;
	TSharedPtr<FExtender> Extender;
};
