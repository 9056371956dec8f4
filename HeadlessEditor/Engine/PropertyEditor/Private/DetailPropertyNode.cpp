#include "DetailPropertyNode.h"

#include "HeadlessDetailsView.h"
#include "UObject/Object.h"

FDetailPropertyNode::FDetailPropertyNode(FHeadlessDetailsView* InView, const TArray<TWeakObjectPtr<UObject>>& InObjects)
	: View(InView)
	, Objects(InObjects)
{
}

FDetailPropertyNode::FDetailPropertyNode(FDetailPropertyNode* InParent, FProperty* InProperty, int32 InArrayIndex)
	: Parent(InParent)
	, Property(InProperty)
	, ArrayIndex(InArrayIndex)
{
}

FHeadlessDetailsView* FDetailPropertyNode::GetView() const
{
	const FDetailPropertyNode* Node = this;
	while (Node->Parent)
	{
		Node = Node->Parent;
	}
	return Node->View;
}

FProperty* FDetailPropertyNode::GetMemberProperty() const
{
	const FDetailPropertyNode* Node = this;
	while (Node->Parent && !Node->Parent->IsRoot())
	{
		Node = Node->Parent;
	}
	return Node->Property;
}

const TArray<TSharedRef<FDetailPropertyNode>>& FDetailPropertyNode::GetChildren()
{
	if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
	{
		// Elements follow the first object's array, as the engine shows them.
		const TArray<UObject*> Edited = GetObjects();
		uint8* ArrayAddress = Edited.Num() > 0 ? GetValueAddress(Edited[0]) : nullptr;
		const int32 Count = ArrayAddress ? FScriptArrayHelper(ArrayProperty, ArrayAddress).Num() : 0;
		if (Children.Num() != Count)
		{
			Children.Empty();
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Children.Add(MakeShared<FDetailPropertyNode>(this, ArrayProperty->Inner, Index));
			}
		}
		return Children;
	}
	if (bChildrenBuilt)
	{
		return Children;
	}
	bChildrenBuilt = true;

	const UStruct* Struct = nullptr;
	if (IsRoot())
	{
		const TArray<UObject*> Edited = GetObjects();
		Struct = Edited.Num() > 0 ? FHeadlessDetailsView::FindCommonBaseClass(Edited) : nullptr;
	}
	else if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
	{
		Struct = StructProperty->Struct;
	}
	if (Struct)
	{
		// Base class members first, as the details panel lists them.
		TArray<const UStruct*> Chain;
		for (const UStruct* Current = Struct; Current; Current = Current->GetSuperStruct())
		{
			Chain.Insert(Current, 0);
		}
		for (const UStruct* Current : Chain)
		{
			for (TFieldIterator<FProperty> Member(Current, EFieldIteratorFlags::ExcludeSuper); Member; ++Member)
			{
				if (Member->HasAnyPropertyFlags(CPF_Edit))
				{
					Children.Add(MakeShared<FDetailPropertyNode>(this, *Member, INDEX_NONE));
				}
			}
		}
	}
	return Children;
}

TSharedPtr<FDetailPropertyNode> FDetailPropertyNode::FindChild(FName ChildName, bool bRecurse)
{
	for (const TSharedRef<FDetailPropertyNode>& Child : GetChildren())
	{
		if (Child->ArrayIndex == INDEX_NONE && Child->Property && Child->Property->GetFName() == ChildName)
		{
			return Child;
		}
	}
	if (bRecurse)
	{
		for (const TSharedRef<FDetailPropertyNode>& Child : GetChildren())
		{
			if (TSharedPtr<FDetailPropertyNode> Found = Child->FindChild(ChildName, true))
			{
				return Found;
			}
		}
	}
	return nullptr;
}

TArray<UObject*> FDetailPropertyNode::GetObjects() const
{
	const FDetailPropertyNode* Root = this;
	while (Root->Parent)
	{
		Root = Root->Parent;
	}
	TArray<UObject*> Result;
	for (const TWeakObjectPtr<UObject>& Object : Root->Objects)
	{
		if (UObject* Live = Object.Get())
		{
			Result.Add(Live);
		}
	}
	return Result;
}

uint8* FDetailPropertyNode::GetValueAddress(UObject* Object) const
{
	if (IsRoot())
	{
		return reinterpret_cast<uint8*>(Object);
	}
	uint8* ContainerAddress = Parent->GetValueAddress(Object);
	if (!ContainerAddress)
	{
		return nullptr;
	}
	if (ArrayIndex != INDEX_NONE)
	{
		FScriptArrayHelper Helper(CastFieldChecked<FArrayProperty>(Parent->Property), ContainerAddress);
		return Helper.IsValidIndex(ArrayIndex) ? Helper.GetRawPtr(ArrayIndex) : nullptr;
	}
	return Property->ContainerPtrToValuePtr<uint8>(static_cast<void*>(ContainerAddress));
}

void FDetailPropertyNode::NotifyPreChange()
{
	FProperty* MemberProperty = GetMemberProperty();
	for (UObject* Object : GetObjects())
	{
		// UObject::PreEditChange records the object for undo and dirties its package.
		Object->Modify();
		Object->PreEditChange(MemberProperty);
	}
}

void FDetailPropertyNode::NotifyPostChange(EPropertyChangeType::Type ChangeType)
{
	const TArray<UObject*> Edited = GetObjects();
	TArray<const UObject*> TopLevelObjects;
	for (UObject* Object : Edited)
	{
		TopLevelObjects.Add(Object);
	}
	for (int32 Index = 0; Index < Edited.Num(); ++Index)
	{
		FPropertyChangedEvent Event(Property, ChangeType, &TopLevelObjects);
		Event.SetActiveMemberProperty(GetMemberProperty());
		Event.ObjectIteratorIndex = Index;
		Edited[Index]->PostEditChangeProperty(Event);
	}

	OnValueChanged.Broadcast();
	for (FDetailPropertyNode* Ancestor = Parent; Ancestor; Ancestor = Ancestor->Parent)
	{
		Ancestor->OnChildValueChanged.Broadcast();
	}
}
