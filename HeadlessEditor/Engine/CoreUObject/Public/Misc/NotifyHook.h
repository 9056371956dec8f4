#pragma once

#include "CoreMinimal.h"

class FProperty;
class FEditPropertyChain;
struct FPropertyChangedEvent;

/** Receives property change notifications from the property editor. */
class COREUOBJECT_API FNotifyHook
{
public:
	virtual ~FNotifyHook() = default;
	virtual void NotifyPreChange(FProperty* PropertyAboutToChange) {}
	virtual void NotifyPostChange(const FPropertyChangedEvent& PropertyChangedEvent, FProperty* PropertyThatChanged) {}
};
