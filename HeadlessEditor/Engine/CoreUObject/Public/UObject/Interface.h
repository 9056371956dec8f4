#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

/** The base of every UINTERFACE's U-class. */
class COREUOBJECT_API UInterface : public UObject
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UInterface, UObject, COREUOBJECT_API)

public:
	using UObject::UObject;
};

class COREUOBJECT_API IInterface
{
protected:
	virtual ~IInterface() = default;

public:
	typedef UInterface UClassType;
};
