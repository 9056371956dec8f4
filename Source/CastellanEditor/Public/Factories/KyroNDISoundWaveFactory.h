// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "KyroNDISoundWave.h"
#include "UObject/ObjectMacros.h"

#include "KyroNDISoundWaveFactory.generated.h"

/** Makes new NDI sound-wave assets from the content browser. */
UCLASS()
class CASTELLANEDITOR_API UKyroNDISoundWaveFactory : public UFactory
{
	GENERATED_UCLASS_BODY()

public:
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	virtual bool CanCreateNew() const override;
	virtual FText GetDisplayName() const override;
};
