// Copyright Nimbrel. All Rights Reserved.

#include "Factories/KyroNDISoundWaveFactory.h"

#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "KyroNDISoundWaveFactory"

UKyroNDISoundWaveFactory::UKyroNDISoundWaveFactory(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bCreateNew = true;
	SupportedClass = UKyroNDISoundWave::StaticClass();
	bEditAfterNew = false;
}

UObject* UKyroNDISoundWaveFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn)
{
	return NewObject<UKyroNDISoundWave>(InParent, InName, Flags);
}

bool UKyroNDISoundWaveFactory::CanCreateNew() const
{
	return true;
}

FText UKyroNDISoundWaveFactory::GetDisplayName() const
{
	return LOCTEXT("KyroNDISoundWaveFactoryDisplayName", "Kyro NDI Sound Wave");
}

#undef LOCTEXT_NAMESPACE
