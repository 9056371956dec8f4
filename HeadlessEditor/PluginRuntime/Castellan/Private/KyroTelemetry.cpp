#include "KyroTelemetry.h"

#include "HeadlessTelemetry.h"

namespace
{
	int32& WizardEditorOpenedCount()
	{
		static int32 Count = 0;
		return Count;
	}
}

void KyroTelemetry::WizardEditorOpened()
{
	++WizardEditorOpenedCount();
}

int32 UE::Headless::GetWizardEditorOpenedCount()
{
	return WizardEditorOpenedCount();
}
