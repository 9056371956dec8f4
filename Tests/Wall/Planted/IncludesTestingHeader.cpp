// Product code reaching the test drivers: the engine has no such header.
#include "CoreMinimal.h"
#include "HeadlessEditorSession.h"
