#pragma once

#include "CoreMinimal.h"

/** Whether actors may run script (Blueprint) code while in the editor world. */
extern COREUOBJECT_API bool GAllowActorScriptExecutionInEditor;

/** Allows script execution in the editor for its lifetime, then restores the previous state. */
struct COREUOBJECT_API FEditorScriptExecutionGuard
{
	FEditorScriptExecutionGuard();
	~FEditorScriptExecutionGuard();

private:
	bool bOldGAllowScriptExecutionInEditor;
};
