#include "CastellanModule.h"

#include "HeadlessHardwareEncoders.h"
#include "Modules/ModuleManager.h"

namespace
{
	/** The runtime's view of the "HardwareEncoders" plugin. */
	struct FHardwareEncodersState
	{
		bool bSuggestLoading = true;
		/** Set once enabling the plugin awaits a restart; lasts for the process. */
		bool bPendingRestart = false;
	};

	FHardwareEncodersState& HardwareEncoders()
	{
		static FHardwareEncodersState State;
		return State;
	}
}

void FCastellanModule::StartupModule()
{
}

void FCastellanModule::ShutdownModule()
{
}

bool FCastellanModule::SuggestLoadingHardwareEncodersPlugin()
{
	return HardwareEncoders().bSuggestLoading;
}

bool FCastellanModule::IsHardwareEncodersPluginPendingRestart()
{
	return HardwareEncoders().bPendingRestart;
}

void FCastellanModule::SetHardwareEncodersPendingRestart()
{
	HardwareEncoders().bPendingRestart = true;
}

void UE::Headless::SetSuggestLoadingHardwareEncodersPlugin(bool bSuggest)
{
	HardwareEncoders().bSuggestLoading = bSuggest;
}

void UE::Headless::ClearHardwareEncodersPendingRestart()
{
	HardwareEncoders().bPendingRestart = false;
}

IMPLEMENT_MODULE(FCastellanModule, Castellan)
