#include "HeadlessDesktop.h"

namespace UE::Headless
{
	TArray<FString>& GetMutableLaunchedURLs()
	{
		static TArray<FString> LaunchedURLs;
		return LaunchedURLs;
	}

	TArray<FShownMessageDialog>& GetMutableShownMessageDialogs()
	{
		static TArray<FShownMessageDialog> Dialogs;
		return Dialogs;
	}

	const TArray<FString>& GetLaunchedURLs()
	{
		return GetMutableLaunchedURLs();
	}

	const TArray<FShownMessageDialog>& GetShownMessageDialogs()
	{
		return GetMutableShownMessageDialogs();
	}

	void ResetDesktop()
	{
		GetMutableLaunchedURLs().Reset();
		GetMutableShownMessageDialogs().Reset();
	}
}
