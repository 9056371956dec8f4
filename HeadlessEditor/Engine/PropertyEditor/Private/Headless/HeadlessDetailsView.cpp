#include "HeadlessDetailsView.h"

#include "DetailLayoutBuilderImpl.h"
#include "DetailPropertyNode.h"
#include "PropertyHandleImpl.h"
#include "SDetailsView.h"
#include "UObject/Class.h"

using namespace UE::Headless;

namespace
{
	void CollectHidden(const TSharedRef<FDetailPropertyNode>& Node, TArray<FName>& OutNames)
	{
		for (const TSharedRef<FDetailPropertyNode>& Child : Node->GetChildren())
		{
			if (Child->bHiddenByCustomization && Child->GetProperty())
			{
				OutNames.Add(Child->GetProperty()->GetFName());
			}
			CollectHidden(Child, OutNames);
		}
	}

	/** A row's place in the layout: its category, then each row above it by name (or by index when it has none). */
	FString RowSegment(const FHeadlessDetailRow& Row, int32 Index)
	{
		return Row.Name.IsNone() ? FString::Printf(TEXT("#%d"), Index) : Row.Name.ToString();
	}

	template <typename VisitorType>
	void VisitRows(const TArray<TSharedRef<FHeadlessDetailRow>>& Rows, const FString& ParentPath, VisitorType& Visitor)
	{
		for (int32 Index = 0; Index < Rows.Num(); ++Index)
		{
			const FString Path = ParentPath + TEXT("/") + RowSegment(*Rows[Index], Index);
			Visitor(*Rows[Index], Path);
			VisitRows(Rows[Index]->Children, Path, Visitor);
		}
	}

	FString CategoryKey(const FHeadlessDetailCategory& Category)
	{
		return TEXT("Category:") + Category.Name.ToString();
	}

	void Restore(const TMap<FString, bool>& Saved, const FString& Key, bool& bOutState)
	{
		if (const bool* bSaved = Saved.Find(Key))
		{
			bOutState = *bSaved;
		}
	}
	FString AdvancedKey(const FHeadlessDetailCategory& Category)
	{
		return TEXT("Advanced:") + Category.Name.ToString();
	}
}

FHeadlessDetailsView::FHeadlessDetailsView() = default;

FHeadlessDetailsView::~FHeadlessDetailsView()
{
	Categories.Empty();
	LayoutBuilder.Reset();
	RootNode.Reset();
}

void FHeadlessDetailsView::SetObjects(const TArray<UObject*>& InObjects)
{
	Objects.Empty();
	for (UObject* Object : InObjects)
	{
		if (Object)
		{
			Objects.Add(Object);
		}
	}
	Rebuild();
}

void FHeadlessDetailsView::Rebuild()
{
	bRefreshRequested = false;
	const TMap<FString, bool> Expansion = SaveExpansion();
	// The old layout, its rows and its customisation instances go before the new ones are made.
	Categories.Empty();
	LayoutBuilder.Reset();
	RootNode.Reset();
	++BuildCount;

	TArray<UObject*> Live;
	for (const TWeakObjectPtr<UObject>& Object : Objects)
	{
		if (UObject* Pinned = Object.Get())
		{
			Live.Add(Pinned);
		}
	}
	if (Live.Num() > 0)
	{
		RootNode = MakeShared<FDetailPropertyNode>(this, Objects);
		LayoutBuilder = MakeShared<FDetailLayoutBuilderImpl>(*this, RootNode.ToSharedRef());
		Categories = LayoutBuilder->Build();
		RestoreExpansion(Expansion);
	}
	LayoutChanged.Broadcast();
}

void FHeadlessDetailsView::SetExpanded(FHeadlessDetailCategory& Category, bool bExpanded)
{
	Category.bExpanded = bExpanded;
	LayoutChanged.Broadcast();
}

void FHeadlessDetailsView::SetExpanded(FHeadlessDetailRow& Row, bool bExpanded)
{
	Row.bExpanded = bExpanded;
	LayoutChanged.Broadcast();
}

void FHeadlessDetailsView::SetAdvancedShown(FHeadlessDetailCategory& Category, bool bShown)
{
	Category.bShowAdvanced = bShown;
	LayoutChanged.Broadcast();
}

TMap<FString, bool> FHeadlessDetailsView::SaveExpansion() const
{
	TMap<FString, bool> Saved;
	for (const TSharedRef<FHeadlessDetailCategory>& Category : Categories)
	{
		Saved.Add(CategoryKey(*Category), Category->bExpanded);
		Saved.Add(AdvancedKey(*Category), Category->bShowAdvanced);
		auto SaveRow = [&Saved](const FHeadlessDetailRow& Row, const FString& Path)
		{ Saved.Add(Path, Row.bExpanded); };
		VisitRows(Category->Rows, CategoryKey(*Category), SaveRow);
	}
	return Saved;
}

void FHeadlessDetailsView::RestoreExpansion(const TMap<FString, bool>& Saved)
{
	for (const TSharedRef<FHeadlessDetailCategory>& Category : Categories)
	{
		Restore(Saved, CategoryKey(*Category), Category->bExpanded);
		Restore(Saved, AdvancedKey(*Category), Category->bShowAdvanced);
		auto RestoreRow = [&Saved](FHeadlessDetailRow& Row, const FString& Path)
		{ Restore(Saved, Path, Row.bExpanded); };
		VisitRows(Category->Rows, CategoryKey(*Category), RestoreRow);
	}
}

bool FHeadlessDetailsView::Tick()
{
	TArray<FSimpleDelegate> Actions = MoveTemp(DeferredActions);
	DeferredActions.Empty();
	for (FSimpleDelegate& Action : Actions)
	{
		Action.ExecuteIfBound();
	}
	if (!bRefreshRequested)
	{
		return Actions.Num() > 0;
	}
	Rebuild();
	return true;
}

TArray<FName> FHeadlessDetailsView::GetHiddenPropertyNames() const
{
	TArray<FName> Names;
	if (RootNode.IsValid())
	{
		CollectHidden(RootNode.ToSharedRef(), Names);
	}
	return Names;
}

TSharedRef<IPropertyHandle> FHeadlessDetailsView::GetPropertyHandle(FName PropertyPath) const
{
	if (LayoutBuilder.IsValid())
	{
		return LayoutBuilder->GetProperty(PropertyPath);
	}
	return MakeShared<FPropertyHandleImpl>(TSharedPtr<FDetailPropertyNode>());
}

UClass* FHeadlessDetailsView::FindCommonBaseClass(const TArray<UObject*>& InObjects)
{
	UClass* Common = nullptr;
	for (const UObject* Object : InObjects)
	{
		UClass* Class = Object->GetClass();
		if (!Common)
		{
			Common = Class;
			continue;
		}
		while (Common && !Class->IsChildOf(Common))
		{
			Common = Common->GetSuperClass();
		}
	}
	return Common;
}

void FHeadlessDetailsView::EnqueueDeferredAction(FSimpleDelegate DeferredAction)
{
	DeferredActions.Add(MoveTemp(DeferredAction));
}

void FHeadlessDetailsView::NotifyFinishedChangingProperties(const FPropertyChangedEvent& PropertyChangedEvent)
{
	++FinishedChangingCount;
	FinishedChanging.Broadcast(PropertyChangedEvent);
}

bool FHeadlessDetailsView::HasClassDefaultObject() const
{
	for (const TWeakObjectPtr<UObject>& Object : Objects)
	{
		if (Object.IsValid() && Object->HasAnyFlags(RF_ClassDefaultObject))
		{
			return true;
		}
	}
	return false;
}

FHeadlessDetailsView& UE::Headless::GetDetailsViewModel(IDetailsView& View)
{
	// Every details view the property editor makes is an SDetailsView.
	return static_cast<SDetailsView&>(View).GetModel();
}
