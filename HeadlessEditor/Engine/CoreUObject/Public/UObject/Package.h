#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

/** The outermost object of an asset or of a map; it carries the dirty state the editor saves by. */
class COREUOBJECT_API UPackage : public UObject
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UPackage, UObject, COREUOBJECT_API)

public:
	/** Marks the package as needing a save (or clears it). */
	void SetDirtyFlag(bool bIsDirty);
	bool IsDirty() const { return bDirty; }

	EPackageFlags GetPackageFlags() const { return PackageFlags; }
	void SetPackageFlags(EPackageFlags NewFlags) { PackageFlags = PackageFlags | NewFlags; }
	bool HasAnyPackageFlags(EPackageFlags FlagsToCheck) const { return (uint32(PackageFlags) & uint32(FlagsToCheck)) != 0; }

	/** Broadcast when an object marks its package dirty; the bool says whether it already was. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnPackageMarkedDirty, class UPackage*, bool);
	static FOnPackageMarkedDirty PackageMarkedDirtyEvent;
	/** Broadcast when the dirty flag changes. */
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnPackageDirtyStateChanged, class UPackage*);
	static FOnPackageDirtyStateChanged PackageDirtyStateChangedEvent;

private:
	bool bDirty = false;
	EPackageFlags PackageFlags = PKG_None;
};
