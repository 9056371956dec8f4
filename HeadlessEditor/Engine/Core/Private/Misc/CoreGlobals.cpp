#include "CoreGlobals.h"

ITransaction* GUndo = nullptr;
