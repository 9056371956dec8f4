#pragma once

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtr.h"

namespace UE::Headless
{
	class FHeadlessDetailsView;
}
using UE::Headless::FHeadlessDetailsView;

/**
 * One property of the objects a details view edits: a member of the objects, a member of a
 * struct, or an element of an array. The root stands for the objects themselves. Handles keep
 * weak pointers to nodes, and the value-changed callbacks live here, shared by every handle.
 */
class FDetailPropertyNode : public TSharedFromThis<FDetailPropertyNode>
{
public:
	/** The root over the edited objects. */
	FDetailPropertyNode(FHeadlessDetailsView* InView, const TArray<TWeakObjectPtr<UObject>>& InObjects);
	/** A property node below Parent; ArrayIndex is set for array elements. */
	FDetailPropertyNode(FDetailPropertyNode* InParent, FProperty* InProperty, int32 InArrayIndex);

	FProperty* GetProperty() const { return Property; }
	FDetailPropertyNode* GetParent() const { return Parent; }
	int32 GetArrayIndex() const { return ArrayIndex; }
	FHeadlessDetailsView* GetView() const;
	bool IsRoot() const { return Parent == nullptr; }

	/** The objects' own property this node lies in (the node itself for a member of the objects). */
	FProperty* GetMemberProperty() const;

	/** The children: struct members that are editable, or array elements (rebuilt when the count changes). */
	const TArray<TSharedRef<FDetailPropertyNode>>& GetChildren();
	TSharedPtr<FDetailPropertyNode> FindChild(FName ChildName, bool bRecurse);

	/** The edited objects that still exist. */
	TArray<UObject*> GetObjects() const;
	/** The value's address in one object, or null if it has none (an array too short). */
	uint8* GetValueAddress(UObject* Object) const;

	/** PreEditChange on every object, after recording them for undo. */
	void NotifyPreChange();
	/** PostEditChangeProperty on every object, then the value-changed callbacks. */
	void NotifyPostChange(EPropertyChangeType::Type ChangeType);

	FSimpleMulticastDelegate OnValueChanged;
	FSimpleMulticastDelegate OnChildValueChanged;
	bool bHiddenByCustomization = false;
	bool bCustomized = false;

private:
	FHeadlessDetailsView* View = nullptr;
	TArray<TWeakObjectPtr<UObject>> Objects;
	FDetailPropertyNode* Parent = nullptr;
	FProperty* Property = nullptr;
	int32 ArrayIndex = INDEX_NONE;
	TArray<TSharedRef<FDetailPropertyNode>> Children;
	bool bChildrenBuilt = false;
};
