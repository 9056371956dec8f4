#include "Headless/HeadlessDesktop.h"

namespace UE::Headless
{
	TArray<FShownMessageDialog>& GetMutableShownMessageDialogs()
	{
		static TArray<FShownMessageDialog> Dialogs;
		return Dialogs;
	}

	const TArray<FShownMessageDialog>& GetShownMessageDialogs()
	{
		return GetMutableShownMessageDialogs();
	}

	void ResetDesktop()
	{
		GetMutableShownMessageDialogs().Reset();
	}
}
