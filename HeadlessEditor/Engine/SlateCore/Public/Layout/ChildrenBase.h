#pragma once

#include "CoreMinimal.h"
#include "SlotBase.h"

class SWidget;

/** The children of a widget, as the framework walks them. */
class SLATECORE_API FChildren
{
public:
	FChildren(SWidget* InOwner)
		: Owner(InOwner)
	{
	}
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) = 0;
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const = 0;

	/** Calls Pred with each child widget, in slot order. */
	template <typename Predicate>
	void ForEachWidget(Predicate Pred)
	{
		const int32 WidgetCount = Num();
		for (int32 Index = 0; Index < WidgetCount; ++Index)
		{
			Pred(GetChildAt(Index).Get());
		}
	}

	virtual int32 NumSlot() const { return Num(); }
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const = 0;

	/** The widget these children belong to. */
	SWidget& GetOwner() const { return *Owner; }

private:
	SWidget* Owner;
};
