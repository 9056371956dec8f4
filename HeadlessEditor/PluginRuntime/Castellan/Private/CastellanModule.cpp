#include "CastellanModule.h"

#include "HardwareEncodersState.h"
#include "Modules/ModuleManager.h"

FHardwareEncodersState& FHardwareEncodersState::Get()
{
	static FHardwareEncodersState State;
	return State;
}

void FCastellanModule::StartupModule()
{
}

void FCastellanModule::ShutdownModule()
{
}

bool FCastellanModule::SuggestLoadingHardwareEncodersPlugin()
{
	return FHardwareEncodersState::Get().bSuggestLoading;
}

bool FCastellanModule::IsHardwareEncodersPluginPendingRestart()
{
	return FHardwareEncodersState::Get().bPendingRestart;
}

void FCastellanModule::SetHardwareEncodersPendingRestart()
{
	FHardwareEncodersState::Get().bPendingRestart = true;
}

IMPLEMENT_MODULE(FCastellanModule, Castellan)
