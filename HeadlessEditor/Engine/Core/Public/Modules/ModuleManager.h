#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "UObject/NameTypes.h"

#include <memory>

enum class ELoadModuleFlags
{
	None = 0x0,
	LogFailures = 1 << 0,
};

typedef IModuleInterface* (*FInitializeModuleFunctionPtr)();

/**
 * Loads, starts and shuts down modules by name. Every module of the process registers its factory
 * through IMPLEMENT_MODULE; loading creates the module object and calls StartupModule.
 */
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();

	bool IsModuleLoaded(const FName InModuleName) const;
	IModuleInterface* LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags = ELoadModuleFlags::None);
	IModuleInterface& LoadModuleChecked(const FName InModuleName);
	IModuleInterface* GetModule(const FName InModuleName);
	bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);
	bool ModuleExists(const TCHAR* ModuleName) const;
	/** Shuts every loaded module down, most recently loaded first, as the editor does at exit. */
	void UnloadModulesAtShutdown();

	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<TModuleInterface&>(Get().LoadModuleChecked(InModuleName));
	}
	template <typename TModuleInterface>
	static TModuleInterface& GetModuleChecked(const FName ModuleName)
	{
		FModuleManager& ModuleManager = Get();
		checkf(ModuleManager.IsModuleLoaded(ModuleName), TEXT("Tried to get module interface for unloaded module: '%s'"), *ModuleName.ToString());
		return static_cast<TModuleInterface&>(*ModuleManager.GetModule(ModuleName));
	}
	template <typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName ModuleName)
	{
		return static_cast<TModuleInterface*>(Get().GetModule(ModuleName));
	}
	template <typename TModuleInterface>
	static TModuleInterface* LoadModulePtr(const FName InModuleName)
	{
		return static_cast<TModuleInterface*>(Get().LoadModule(InModuleName));
	}

	DECLARE_DELEGATE_RetVal(IModuleInterface*, FInitializeStaticallyLinkedModule)

		/** Called by IMPLEMENT_MODULE when the module's library is loaded into the process. */
		void RegisterStaticallyLinkedModule(const FLazyName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate);

private:
	struct FModuleInfo
	{
		FName Name;
		FInitializeStaticallyLinkedModule Initializer;
		std::unique_ptr<IModuleInterface> Module;
		int32 LoadOrder = INDEX_NONE;
	};

	FModuleInfo* FindModule(const FName InModuleName);
	const FModuleInfo* FindModule(const FName InModuleName) const;

	TArray<std::shared_ptr<FModuleInfo>> Modules;
	int32 NextLoadOrder = 0;
};

#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	namespace \
	{ \
		IModuleInterface* InitializeModule_##ModuleName() \
		{ \
			return new ModuleImplClass(); \
		} \
		struct FModuleRegistrant_##ModuleName \
		{ \
			FModuleRegistrant_##ModuleName() \
			{ \
				FModuleManager::Get().RegisterStaticallyLinkedModule(TEXT(#ModuleName), FModuleManager::FInitializeStaticallyLinkedModule::CreateStatic(&InitializeModule_##ModuleName)); \
			} \
		} ModuleRegistrant_##ModuleName; \
	} \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() \
	{ \
	}

#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)

/** A module with no code of its own. */
class FDefaultModuleImpl : public IModuleInterface
{
};
