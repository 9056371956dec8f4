#include "Interfaces/IProjectManager.h"

#include "HeadlessProjectManager.h"

namespace UE::Headless
{
	FProjectManagerState& GetProjectManagerState()
	{
		static FProjectManagerState State;
		return State;
	}

	void ResetProjectManager()
	{
		GetProjectManagerState() = FProjectManagerState();
	}
}

namespace
{
	class FProjectManager final : public IProjectManager
	{
	public:
		virtual bool SetPluginEnabled(const FString& PluginName, bool bEnabled, FText& OutFailReason) override
		{
			UE::Headless::FProjectManagerState& State = UE::Headless::GetProjectManagerState();
			if (State.PluginEnableFailure.IsSet())
			{
				OutFailReason = State.PluginEnableFailure.GetValue();
				return false;
			}

			const bool bWasEnabled = State.EnabledPlugins.Contains(PluginName);
			if (bEnabled && !bWasEnabled)
			{
				State.EnabledPlugins.Add(PluginName);
				State.bProjectDirty = true;
			}
			else if (!bEnabled && bWasEnabled)
			{
				State.EnabledPlugins.Remove(PluginName);
				State.bProjectDirty = true;
			}
			return true;
		}

		virtual bool IsCurrentProjectDirty() const override { return UE::Headless::GetProjectManagerState().bProjectDirty; }

		virtual bool SaveCurrentProjectToDisk(FText& OutFailReason) override
		{
			UE::Headless::FProjectManagerState& State = UE::Headless::GetProjectManagerState();
			if (State.SaveFailure.IsSet())
			{
				OutFailReason = State.SaveFailure.GetValue();
				return false;
			}
			State.bProjectDirty = false;
			++State.SaveCount;
			return true;
		}
	};
}

IProjectManager& IProjectManager::Get()
{
	static FProjectManager ProjectManager;
	return ProjectManager;
}
