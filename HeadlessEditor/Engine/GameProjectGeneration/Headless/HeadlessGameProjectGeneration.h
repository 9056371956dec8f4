#pragma once

#include "CoreMinimal.h"

/** Headless editor only: what the game-project services were asked to do. */
namespace UE::Headless
{
	/** Every file passed to TryMakeProjectFileWriteable, in order. */
	GAMEPROJECTGENERATION_API TArray<FString>& GetProjectFilesMadeWriteable();
}
