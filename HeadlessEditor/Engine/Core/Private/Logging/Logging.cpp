#include "Logging/LogMacros.h"

#include <algorithm>

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogOutputDevice);

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	switch (Verbosity & ELogVerbosity::VerbosityMask)
	{
		case ELogVerbosity::NoLogging:
			return TEXT("NoLogging");
		case ELogVerbosity::Fatal:
			return TEXT("Fatal");
		case ELogVerbosity::Error:
			return TEXT("Error");
		case ELogVerbosity::Warning:
			return TEXT("Warning");
		case ELogVerbosity::Display:
			return TEXT("Display");
		case ELogVerbosity::Log:
			return TEXT("Log");
		case ELogVerbosity::Verbose:
			return TEXT("Verbose");
		case ELogVerbosity::VeryVerbose:
			return TEXT("VeryVerbose");
		default:
			return TEXT("UnknownVerbosity");
	}
}

FLogCategoryBase::FLogCategoryBase(const TCHAR* InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: Verbosity(InDefaultVerbosity)
	, CategoryName(InCategoryName)
{
}

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	static FOutputDeviceRedirector* Redirector = new FOutputDeviceRedirector();
	return Redirector;
}

FOutputDeviceRedirector* GLog = FOutputDeviceRedirector::Get();

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	if (OutputDevice && std::find(OutputDevices.begin(), OutputDevices.end(), OutputDevice) == OutputDevices.end())
	{
		OutputDevices.push_back(OutputDevice);
	}
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	OutputDevices.erase(std::remove(OutputDevices.begin(), OutputDevices.end(), OutputDevice), OutputDevices.end());
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const std::vector<FOutputDevice*> Devices = OutputDevices;
	for (FOutputDevice* Device : Devices)
	{
		Device->Serialize(V, Verbosity, Category);
	}
}
