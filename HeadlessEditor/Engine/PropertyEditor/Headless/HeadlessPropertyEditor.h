#pragma once

#include "CoreMinimal.h"

/** Headless editor only: what the property editor was told, which no details panel shows. */
namespace UE::Headless
{
	/** How often customisation modules reported a change since the module started (open panels refresh each time). */
	PROPERTYEDITOR_API int32 GetCustomizationModuleChangedCount();
	/** The property types that have layouts registered, in the order they were first registered. */
	PROPERTYEDITOR_API TArray<FName> GetCustomizedPropertyTypeNames();
	/** How many layouts are registered for the property type: its own, plus one per identifier. */
	PROPERTYEDITOR_API int32 GetPropertyTypeLayoutCount(FName PropertyTypeName);
}
