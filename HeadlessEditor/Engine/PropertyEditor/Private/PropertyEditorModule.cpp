#include "PropertyEditorModule.h"

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FPropertyEditorModule, PropertyEditor)

void FPropertyEditorModule::StartupModule()
{
}

void FPropertyEditorModule::ShutdownModule()
{
	ClassNameToDetailLayoutNameMap.Empty();
	GlobalPropertyTypeToLayoutMap.Empty();
}

void FPropertyEditorModule::RegisterCustomClassLayout(FName ClassName, FOnGetDetailCustomizationInstance DetailLayoutDelegate)
{
	if (ClassName.IsNone())
	{
		return;
	}
	FDetailLayoutCallback Callback;
	Callback.DetailLayoutDelegate = DetailLayoutDelegate;
	// Later registrations are applied after earlier ones, as the engine orders them.
	Callback.Order = ClassNameToDetailLayoutNameMap.Num();
	ClassNameToDetailLayoutNameMap.Add(ClassName, Callback);
}

void FPropertyEditorModule::UnregisterCustomClassLayout(FName ClassName)
{
	ClassNameToDetailLayoutNameMap.Remove(ClassName);
}

void FPropertyEditorModule::RegisterCustomPropertyTypeLayout(FName PropertyTypeName, FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate, TSharedPtr<IPropertyTypeIdentifier> Identifier)
{
	if (PropertyTypeName.IsNone())
	{
		return;
	}
	FPropertyTypeLayoutCallback Callback;
	Callback.PropertyTypeLayoutDelegate = PropertyTypeLayoutDelegate;
	Callback.PropertyTypeIdentifier = Identifier;

	FPropertyTypeLayoutCallbackList& Callbacks = GlobalPropertyTypeToLayoutMap.FindOrAdd(PropertyTypeName);
	if (Identifier.IsValid())
	{
		Callbacks.IdentifierList.Add(Callback);
	}
	else
	{
		Callbacks.BaseCallback = Callback;
	}
}

void FPropertyEditorModule::UnregisterCustomPropertyTypeLayout(FName PropertyTypeName, TSharedPtr<IPropertyTypeIdentifier> InIdentifier)
{
	FPropertyTypeLayoutCallbackList* Callbacks = GlobalPropertyTypeToLayoutMap.Find(PropertyTypeName);
	if (!Callbacks)
	{
		return;
	}
	if (InIdentifier.IsValid())
	{
		Callbacks->IdentifierList.RemoveAll([&InIdentifier](const FPropertyTypeLayoutCallback& Callback)
			{ return Callback.PropertyTypeIdentifier == InIdentifier; });
	}
	else
	{
		Callbacks->BaseCallback = FPropertyTypeLayoutCallback();
	}
	if (!Callbacks->BaseCallback.IsValid() && Callbacks->IdentifierList.IsEmpty())
	{
		GlobalPropertyTypeToLayoutMap.Remove(PropertyTypeName);
	}
}

void FPropertyEditorModule::NotifyCustomizationModuleChanged()
{
	++CustomizationModuleChangedCount;
}
