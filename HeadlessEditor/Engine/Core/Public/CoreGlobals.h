#pragma once

#include "CoreTypes.h"

class ITransaction;

/** The transaction open in the editor, or null when no change is being recorded. */
extern CORE_API ITransaction* GUndo;
