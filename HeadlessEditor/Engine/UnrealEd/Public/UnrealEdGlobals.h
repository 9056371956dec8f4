#pragma once

#include "CoreMinimal.h"

class UUnrealEdEngine;

/** The editor engine as the full editor application's engine. */
extern UNREALED_API class UUnrealEdEngine* GUnrealEd;
