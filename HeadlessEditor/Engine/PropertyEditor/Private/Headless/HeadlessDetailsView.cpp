#include "HeadlessDetailsView.h"

#include "DetailLayoutBuilderImpl.h"
#include "DetailPropertyNode.h"
#include "Internationalization/Internationalization.h"
#include "PropertyHandleImpl.h"
#include "UObject/Class.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

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
	if (Live.Num() == 0)
	{
		return;
	}
	RootNode = MakeShared<FDetailPropertyNode>(this, Objects);
	LayoutBuilder = MakeShared<FDetailLayoutBuilderImpl>(*this, RootNode.ToSharedRef());
	Categories = LayoutBuilder->Build();
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

TSharedRef<SWidget> FHeadlessDetailsView::MakeDefaultValueWidget(const TSharedRef<IPropertyHandle>& Handle)
{
	const FProperty* Property = Handle->GetProperty();
	if (!Property || CastField<FStructProperty>(Property))
	{
		return SNullWidget::NullWidget;
	}
	if (CastField<FBoolProperty>(Property))
	{
		return SNew(SCheckBox)
			.IsChecked_Lambda([Handle]()
				{
					bool bValue = false;
					const FPropertyAccess::Result Result = Handle->GetValue(bValue);
					if (Result == FPropertyAccess::MultipleValues)
					{
						return ECheckBoxState::Undetermined;
					}
					return Result == FPropertyAccess::Success && bValue ? ECheckBoxState::Checked : ECheckBoxState::Unchecked; })
			.OnCheckStateChanged_Lambda([Handle](ECheckBoxState NewState)
				{ Handle->SetValue(NewState == ECheckBoxState::Checked); });
	}
	if (CastField<FArrayProperty>(Property))
	{
		return SNew(STextBlock)
			.Font(IDetailLayoutBuilder::GetDetailFont())
			.Text_Lambda([Handle]()
				{
					uint32 Count = 0;
					Handle->GetNumChildren(Count);
					return FText::Format(NSLOCTEXT("PropertyEditor", "NumArrayItemsFmt", "{0} Array elements"), FText::AsNumber(Count)); });
	}
	// Numbers, names, strings, texts, enumerations and objects are edited as their text form.
	return SNew(SEditableTextBox)
		.Font(IDetailLayoutBuilder::GetDetailFont())
		.Text_Lambda([Handle]()
			{
				FString Value;
				Handle->GetValueAsFormattedString(Value);
				return FText::FromString(Value); })
		.OnTextCommitted_Lambda([Handle](const FText& NewText, ETextCommit::Type CommitType)
			{ Handle->SetValueFromFormattedString(NewText.ToString()); });
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
