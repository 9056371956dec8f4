// Product code reaching a module's instruments: the engine has no such header.
#include "CoreMinimal.h"
#include "HeadlessDesktop.h"
