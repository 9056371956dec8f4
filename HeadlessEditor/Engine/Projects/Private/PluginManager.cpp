#include "Interfaces/IPluginManager.h"

#include "HeadlessPlugins.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

namespace
{
	class FPlugin final : public IPlugin
	{
	public:
		FPlugin(const FString& InName, const FString& InBaseDir, const FPluginDescriptor& InDescriptor)
			: Name(InName)
			, BaseDir(InBaseDir)
			, Descriptor(InDescriptor)
		{
		}

		virtual const FString& GetName() const override { return Name; }
		virtual const FString& GetFriendlyName() const override { return Descriptor.FriendlyName.IsEmpty() ? Name : Descriptor.FriendlyName; }
		virtual FString GetBaseDir() const override { return BaseDir; }
		virtual FString GetContentDir() const override { return BaseDir / TEXT("Content"); }
		virtual bool IsEnabled() const override { return true; }
		virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

	private:
		FString Name;
		FString BaseDir;
		FPluginDescriptor Descriptor;
	};

	class FPluginManager final : public IPluginManager
	{
	public:
		virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) override
		{
			const FString Wanted(Name.Len(), Name.GetData());
			for (const TSharedRef<IPlugin>& Plugin : Plugins)
			{
				if (Plugin->GetName() == Wanted)
				{
					return Plugin;
				}
			}
			return nullptr;
		}

		virtual TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name) override { return FindPlugin(FStringView(FString(Name))); }

		virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() override { return Plugins; }

		TArray<TSharedRef<IPlugin>> Plugins;
	};

	FPluginManager& GetPluginManager()
	{
		static FPluginManager* Manager = new FPluginManager();
		return *Manager;
	}
}

IPluginManager& IPluginManager::Get()
{
	return GetPluginManager();
}

void UE::Headless::MountPlugin(const FString& Name, const FString& BaseDir, const FPluginDescriptor& Descriptor)
{
	GetPluginManager().Plugins.Add(MakeShared<FPlugin>(Name, BaseDir, Descriptor));
}

void UE::Headless::UnmountAllPlugins()
{
	GetPluginManager().Plugins.Reset();
}

IMPLEMENT_MODULE(FDefaultModuleImpl, Projects)
