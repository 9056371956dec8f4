#include "Factories/Factory.h"

#include "AssetTypeCategories.h"
#include "UObject/Class.h"

UFactory::UFactory(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bCreateNew(false)
	, bEditAfterNew(false)
	, bEditorImport(false)
	, bText(false)
	, ImportPriority(100)
{
}

UObject* UFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn)
{
	return nullptr;
}

UObject* UFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn, FName CallingContext)
{
	return FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn);
}

bool UFactory::CanCreateNew() const
{
	return bCreateNew;
}

FText UFactory::GetDisplayName() const
{
	// The engine uses the class's display-name metadata, which the headless reflection does not keep.
	if (UClass* LocalSupportedClass = GetSupportedClass())
	{
		return FText::FromString(LocalSupportedClass->GetName());
	}
	return FText::FromString(GetName());
}

bool UFactory::ShouldShowInNewMenu() const
{
	return CanCreateNew();
}

bool UFactory::ConfigureProperties()
{
	return true;
}

UClass* UFactory::GetSupportedClass() const
{
	return SupportedClass;
}

FName UFactory::GetNewAssetThumbnailOverride() const
{
	return NAME_None;
}

uint32 UFactory::GetMenuCategories() const
{
	// The asset type actions of the supported class would choose the groups; the headless editor
	// registers none, so every factory falls in the group of factories whose class has none.
	return EAssetTypeCategories::Misc;
}

const TArray<FText>& UFactory::GetMenuCategorySubMenus() const
{
	static const TArray<FText> EmptySubMenus;
	return EmptySubMenus;
}
