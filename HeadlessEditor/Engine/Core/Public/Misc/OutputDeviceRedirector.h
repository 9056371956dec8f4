#pragma once

#include "CoreTypes.h"
#include "Misc/OutputDevice.h"

#include <vector>

/** Forwards every log line to the output devices added to it. */
class CORE_API FOutputDeviceRedirector : public FOutputDevice
{
public:
	static FOutputDeviceRedirector* Get();

	void AddOutputDevice(FOutputDevice* OutputDevice);
	void RemoveOutputDevice(FOutputDevice* OutputDevice);
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	std::vector<FOutputDevice*> OutputDevices;
};

extern CORE_API FOutputDeviceRedirector* GLog;
