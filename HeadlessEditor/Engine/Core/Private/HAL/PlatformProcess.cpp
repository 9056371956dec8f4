#include "HAL/PlatformProcess.h"

#include "HeadlessDesktop.h"

namespace UE::Headless
{
	TArray<FString>& GetMutableLaunchedURLs();
}

void FGenericPlatformProcess::LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error)
{
	// The headless desktop has no browser: the launch is recorded and counts as a success.
	FString Launched(URL);
	if (Parms && *Parms)
	{
		Launched += TEXT(" ");
		Launched += Parms;
	}
	UE::Headless::GetMutableLaunchedURLs().Add(Launched);
	if (Error)
	{
		Error->Empty();
	}
}

bool FGenericPlatformProcess::CanLaunchURL(const TCHAR* URL)
{
	return URL != nullptr && *URL != 0;
}
