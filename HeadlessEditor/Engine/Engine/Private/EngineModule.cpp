#include "Engine/Engine.h"

#include "Engine/World.h"
#include "Modules/ModuleManager.h"

UEngine* GEngine = nullptr;

UEngine::UEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UWorld* UEngine::GetWorldFromContextObject(const UObject* Object, EGetWorldErrorMode ErrorMode) const
{
	UWorld* World = Object ? Object->GetWorld() : nullptr;
	checkf(World || ErrorMode != EGetWorldErrorMode::Assert, TEXT("No world was found for object (%s) passed in to UEngine::GetWorldFromContextObject()."), Object ? *Object->GetFullName() : TEXT("None"));
	return World;
}

IMPLEMENT_MODULE(FDefaultModuleImpl, Engine)
