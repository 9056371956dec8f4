#include "KyroTelemetry.h"

#include "CastellanRuntimeState.h"

void KyroTelemetry::WizardEditorOpened()
{
	++FCastellanRuntimeState::Get().WizardEditorOpenedCount;
}
