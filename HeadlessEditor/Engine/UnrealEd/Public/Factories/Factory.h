#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "Factory.generated.h"

class FFeedbackContext;

/** Makes new assets of one class, from scratch or by importing files. */
UCLASS(abstract)
class UNREALED_API UFactory : public UObject
{
	GENERATED_UCLASS_BODY()

public:
	/** Makes a new object of the supported class inside InParent; the base makes nothing. */
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn);
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn, FName CallingContext);

	/** Whether the factory makes assets from scratch; the default is bCreateNew. */
	virtual bool CanCreateNew() const;
	/** The name the new-asset menu lists; the default is the supported class's name. */
	virtual FText GetDisplayName() const;
	/** Whether the content browser's new-asset menu lists this factory; the default is CanCreateNew(). */
	virtual bool ShouldShowInNewMenu() const;
	/** The thumbnail brush the new-asset menu shows for the factory in place of its class's. */
	virtual FName GetNewAssetThumbnailOverride() const;
	/** The groups of the new-asset menu the factory is listed in, as EAssetTypeCategories bits. */
	virtual uint32 GetMenuCategories() const;
	/** The sub-menus, within its group, the factory is listed in. */
	virtual const TArray<FText>& GetMenuCategorySubMenus() const;
	/** Asks the user for creation options; false cancels the creation. */
	virtual bool ConfigureProperties();

	UClass* GetSupportedClass() const;

protected:
	/** Whether this factory makes new assets from scratch (as opposed to importing them). */
	uint32 bCreateNew : 1;

public:
	/** The class of the objects this factory makes. */
	TSubclassOf<UObject> SupportedClass;
	/** The class of the context object, if the factory needs one. */
	TSubclassOf<UObject> ContextClass;
	/** The file formats the factory imports, as "ext;Description". */
	TArray<FString> Formats;
	/** Whether the asset's editor opens after a new asset was made. */
	uint32 bEditAfterNew : 1;
	uint32 bEditorImport : 1;
	uint32 bText : 1;
	int32 ImportPriority;
};
