#include "RuntimeControls.h"

#include "CastellanRuntimeState.h"

int32 HeadlessRuntime::GetWizardEditorOpenedCount()
{
	return FCastellanRuntimeState::Get().WizardEditorOpenedCount;
}
