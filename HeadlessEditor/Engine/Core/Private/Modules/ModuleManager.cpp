#include "Modules/ModuleManager.h"

#include <algorithm>

FModuleManager& FModuleManager::Get()
{
	static FModuleManager* Manager = new FModuleManager();
	return *Manager;
}

void FModuleManager::RegisterStaticallyLinkedModule(const FLazyName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate)
{
	const FName ModuleName = InModuleName;
	if (FModuleInfo* Existing = FindModule(ModuleName))
	{
		Existing->Initializer = InInitializerDelegate;
		return;
	}
	auto Info = std::make_shared<FModuleInfo>();
	Info->Name = ModuleName;
	Info->Initializer = InInitializerDelegate;
	Modules.Add(Info);
}

FModuleManager::FModuleInfo* FModuleManager::FindModule(const FName InModuleName)
{
	for (const std::shared_ptr<FModuleInfo>& Info : Modules)
	{
		if (Info->Name == InModuleName)
		{
			return Info.get();
		}
	}
	return nullptr;
}

const FModuleManager::FModuleInfo* FModuleManager::FindModule(const FName InModuleName) const
{
	return const_cast<FModuleManager*>(this)->FindModule(InModuleName);
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	const FModuleInfo* Info = FindModule(InModuleName);
	return Info && Info->Module;
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return FindModule(FName(ModuleName)) != nullptr;
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags)
{
	FModuleInfo* Info = FindModule(InModuleName);
	if (!Info || !Info->Initializer.IsBound())
	{
		return nullptr;
	}
	if (!Info->Module)
	{
		Info->Module.reset(Info->Initializer.Execute());
		Info->Module->StartupModule();
		// Ordered after the modules its start-up loaded, so it shuts down before them.
		Info->LoadOrder = NextLoadOrder++;
	}
	return Info->Module.get();
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* Module = LoadModule(InModuleName);
	checkf(Module, TEXT("%s"), *InModuleName.ToString());
	return *Module;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	FModuleInfo* Info = FindModule(InModuleName);
	return Info ? Info->Module.get() : nullptr;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	FModuleInfo* Info = FindModule(InModuleName);
	if (!Info || !Info->Module)
	{
		return false;
	}
	Info->Module->ShutdownModule();
	Info->Module.reset();
	Info->LoadOrder = INDEX_NONE;
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	TArray<FModuleInfo*> Loaded;
	for (const std::shared_ptr<FModuleInfo>& Info : Modules)
	{
		if (Info->Module && Info->Module->SupportsAutomaticShutdown())
		{
			Loaded.Add(Info.get());
		}
	}
	std::sort(Loaded.begin(), Loaded.end(), [](const FModuleInfo* A, const FModuleInfo* B)
		{ return A->LoadOrder > B->LoadOrder; });
	// Every module hears PreUnloadCallback before the first one shuts down.
	for (FModuleInfo* Info : Loaded)
	{
		Info->Module->PreUnloadCallback();
	}
	for (FModuleInfo* Info : Loaded)
	{
		UnloadModule(Info->Name, true);
	}
}
