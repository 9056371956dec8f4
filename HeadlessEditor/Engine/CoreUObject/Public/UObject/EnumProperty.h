#pragma once

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"

class UEnum;

/** A UENUM enum class member; the underlying property reads and writes its integer value. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
public:
	FEnumProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UEnum* InEnum, int32 InSize);
	virtual ~FEnumProperty() override;
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual void InitializeValue(void* Dest) const override;
	virtual void DestroyValue(void* Dest) const override {}
	UEnum* GetEnum() const { return Enum; }
	FProperty* GetUnderlyingProperty() const { return UnderlyingProp; }

protected:
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;

private:
	int64 GetValue(const void* Data) const;
	void SetValue(void* Data, int64 Value) const;

	UEnum* Enum = nullptr;
	FProperty* UnderlyingProp = nullptr;
};
