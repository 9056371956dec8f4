// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IDetailCustomization.h"
#include "Styling/SlateTypes.h"

class IPropertyHandle;
class UObject;

/** Shows a capture component's show-flag overrides as check boxes, grouped as the engine groups its show flags. */
class FCaptureComponentDetailsCustomisation : public IDetailCustomization
{
public:
	static TSharedRef<IDetailCustomization> MakeInstance();

	using IDetailCustomization::CustomizeDetails;
	virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override;

private:
	/** The effective value of the flag over every edited component; undetermined when they disagree. */
	ECheckBoxState GetShowFlagCheckState(FString FlagName) const;

	/** Stores the value on every edited component, as an override only where it differs from the archetype's. */
	void OnShowFlagCheckStateChanged(ECheckBoxState NewState, FString FlagName);

	/** The flag as the object's archetype has it; false without a capture-class archetype or for an unknown name. */
	static bool GetArchetypeDefault(const UObject* OuterObject, const FString& FlagName);

	static FText GetGroupLabel(int32 Group);

	TSharedPtr<IPropertyHandle> ShowFlagSettingsProperty;
};
