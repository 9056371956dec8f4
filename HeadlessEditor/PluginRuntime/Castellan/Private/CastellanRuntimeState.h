#pragma once

#include "CoreMinimal.h"

/** What the runtime stand-in records for tests to read (through HeadlessEditor/Testing). */
struct FCastellanRuntimeState
{
	int32 WizardEditorOpenedCount = 0;

	static CASTELLAN_API FCastellanRuntimeState& Get();
};
