#include "PropertyEditorModule.h"

#include "Framework/Application/SlateApplication.h"
#include "HeadlessPropertyEditor.h"
#include "Modules/ModuleManager.h"
#include "PropertyHandle.h"
#include "SDetailsView.h"
#include "UObject/Class.h"

IMPLEMENT_MODULE(FPropertyEditorModule, PropertyEditor)

namespace
{
	/** What the module holds beyond its class layouts. */
	struct FPropertyEditorState
	{
		FCustomPropertyTypeLayoutMap GlobalPropertyTypeToLayoutMap;
		/** How often customisation modules reported a change since the module started (open panels refresh each time). */
		int32 CustomizationModuleChangedCount = 0;
		/** Every details view the module made that still exists. */
		TArray<TWeakPtr<SDetailsView>> AllDetailViews;
	};

	FPropertyEditorState& GetState()
	{
		static FPropertyEditorState State;
		return State;
	}
}

TSharedRef<IPropertyTypeCustomization> FPropertyTypeLayoutCallback::GetCustomizationInstance() const
{
	return PropertyTypeLayoutDelegate.Execute();
}

void FPropertyTypeLayoutCallbackList::Add(const FPropertyTypeLayoutCallback& NewCallback)
{
	if (NewCallback.PropertyTypeIdentifier.IsValid())
	{
		IdentifierList.Add(NewCallback);
	}
	else
	{
		BaseCallback = NewCallback;
	}
}

void FPropertyTypeLayoutCallbackList::Remove(const TSharedPtr<IPropertyTypeIdentifier>& InIdentifier)
{
	if (InIdentifier.IsValid())
	{
		IdentifierList.RemoveAll([&InIdentifier](const FPropertyTypeLayoutCallback& Callback)
			{ return Callback.PropertyTypeIdentifier == InIdentifier; });
	}
	else
	{
		BaseCallback = FPropertyTypeLayoutCallback();
	}
}

const FPropertyTypeLayoutCallback& FPropertyTypeLayoutCallbackList::Find(const IPropertyHandle& PropertyHandle) const
{
	for (const FPropertyTypeLayoutCallback& Callback : IdentifierList)
	{
		if (Callback.IsValid() && Callback.PropertyTypeIdentifier->IsPropertyTypeCustomized(PropertyHandle))
		{
			return Callback;
		}
	}
	return BaseCallback;
}

void FPropertyEditorModule::StartupModule()
{
	GetState() = FPropertyEditorState();
}

void FPropertyEditorModule::ShutdownModule()
{
	ClassNameToDetailLayoutNameMap.Empty();
	GetState().GlobalPropertyTypeToLayoutMap.Empty();
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

	GetState().GlobalPropertyTypeToLayoutMap.FindOrAdd(PropertyTypeName).Add(Callback);
}

void FPropertyEditorModule::UnregisterCustomPropertyTypeLayout(FName PropertyTypeName, TSharedPtr<IPropertyTypeIdentifier> InIdentifier)
{
	FPropertyTypeLayoutCallbackList* Callbacks = GetState().GlobalPropertyTypeToLayoutMap.Find(PropertyTypeName);
	if (!Callbacks)
	{
		return;
	}
	Callbacks->Remove(InIdentifier);
	if (!Callbacks->BaseCallback.IsValid() && Callbacks->IdentifierList.IsEmpty())
	{
		GetState().GlobalPropertyTypeToLayoutMap.Remove(PropertyTypeName);
	}
}

void FPropertyEditorModule::NotifyCustomizationModuleChanged()
{
	++GetState().CustomizationModuleChangedCount;
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	// The customisations changed: every open details view lays itself out again with the ones now registered.
	for (const TWeakPtr<SDetailsView>& View : GetState().AllDetailViews)
	{
		if (const TSharedPtr<SDetailsView> Pinned = View.Pin())
		{
			Pinned->ForceRefresh();
		}
	}
}

TSharedRef<IDetailsView> FPropertyEditorModule::CreateDetailView(const FDetailsViewArgs& DetailsViewArgs)
{
	TArray<TWeakPtr<SDetailsView>>& Views = GetState().AllDetailViews;
	Views.RemoveAll([](const TWeakPtr<SDetailsView>& View)
		{ return !View.IsValid(); });
	const TSharedRef<SDetailsView> View = SNew(SDetailsView, DetailsViewArgs);
	Views.Add(View);
	return View;
}

FPropertyTypeLayoutCallback FPropertyEditorModule::FindPropertyTypeLayoutCallback(FName PropertyTypeName, const IPropertyHandle& PropertyHandle, const FCustomPropertyTypeLayoutMap& InstancedPropertyTypeLayoutMap)
{
	if (PropertyTypeName.IsNone())
	{
		return FPropertyTypeLayoutCallback();
	}
	const FPropertyTypeLayoutCallbackList* Callbacks = InstancedPropertyTypeLayoutMap.Find(PropertyTypeName);
	if (!Callbacks)
	{
		Callbacks = GetState().GlobalPropertyTypeToLayoutMap.Find(PropertyTypeName);
	}
	return Callbacks ? Callbacks->Find(PropertyHandle) : FPropertyTypeLayoutCallback();
}

bool FPropertyEditorModule::IsCustomizedStruct(const UStruct* Struct, const FCustomPropertyTypeLayoutMap& InstancePropertyTypeLayoutMap) const
{
	return Struct && (InstancePropertyTypeLayoutMap.Contains(Struct->GetFName()) || GetState().GlobalPropertyTypeToLayoutMap.Contains(Struct->GetFName()));
}

int32 UE::Headless::GetCustomizationModuleChangedCount()
{
	return GetState().CustomizationModuleChangedCount;
}

TArray<FName> UE::Headless::GetCustomizedPropertyTypeNames()
{
	TArray<FName> Names;
	GetState().GlobalPropertyTypeToLayoutMap.GetKeys(Names);
	return Names;
}

int32 UE::Headless::GetPropertyTypeLayoutCount(FName PropertyTypeName)
{
	const FPropertyTypeLayoutCallbackList* Callbacks = GetState().GlobalPropertyTypeToLayoutMap.Find(PropertyTypeName);
	return Callbacks ? (Callbacks->BaseCallback.IsValid() ? 1 : 0) + Callbacks->IdentifierList.Num() : 0;
}
