#pragma once

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"

/** FText compares by its display string here; the engine compares identity and then the string. */
class COREUOBJECT_API FTextProperty : public TProperty<FText>
{
public:
	using TProperty<FText>::TProperty;
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;

protected:
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;
};
