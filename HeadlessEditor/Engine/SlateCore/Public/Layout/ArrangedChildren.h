#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

/**
 * The children a panel arranged, each with its geometry, in paint order. A visibility filter decides
 * which children are kept: painting keeps only visible ones, hit tests and drivers may keep all.
 */
class SLATECORE_API FArrangedChildren
{
private:
	EVisibility VisibilityFilter;

public:
	typedef TArray<FArrangedWidget, TInlineAllocator<4>> FArrangedWidgetArray;

	FArrangedChildren(EVisibility InVisibilityFilter, bool bInAllow3DWidgets = false)
		: VisibilityFilter(InVisibilityFilter)
		, bAllow3DWidgets(bInAllow3DWidgets)
	{
	}

	/** Reverses the order of the arranged children */
	void Reverse()
	{
		const int32 LastIndex = Array.Num() - 1;
		for (int32 Index = 0; Index < Array.Num() / 2; ++Index)
		{
			std::swap(Array[Index], Array[LastIndex - Index]);
		}
	}

	/** Adds the widget if a widget of that visibility passes the filter. */
	void AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry)
	{
		if (Accepts(VisibilityOverride))
		{
			Array.Add(InWidgetGeometry);
		}
	}

	void InsertWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry, int32 Index)
	{
		if (Accepts(VisibilityOverride))
		{
			Array.Insert(InWidgetGeometry, Index);
		}
	}

	/** Adds the widget if its own visibility passes the filter. */
	void AddWidget(const FArrangedWidget& InWidgetGeometry);
	void InsertWidget(const FArrangedWidget& InWidgetGeometry, int32 Index);

	void SetFilter(EVisibility InVisibility) { VisibilityFilter = InVisibility; }
	EVisibility GetFilter() const { return VisibilityFilter; }
	bool Accepts(EVisibility InVisibility) const { return EVisibility::DoesVisibilityPassFilter(InVisibility, VisibilityFilter); }
	bool Allows3DWidgets() const { return bAllow3DWidgets; }

private:
	FArrangedWidgetArray Array;
	bool bAllow3DWidgets;

public:
	FArrangedWidgetArray& GetInternalArray() { return Array; }
	const FArrangedWidgetArray& GetInternalArray() const { return Array; }
	int32 Num() const { return Array.Num(); }
	const FArrangedWidget& operator[](int32 Index) const { return Array[Index]; }
	FArrangedWidget& operator[](int32 Index) { return Array[Index]; }
	const FArrangedWidget& Last() const { return Array.Last(); }
	FArrangedWidget& Last() { return Array.Last(); }
	int32 FindItemIndex(const FArrangedWidget& ItemToFind) const { return Array.Find(ItemToFind); }
	void Remove(int32 Index, int32 Count = 1) { Array.RemoveAt(Index, Count); }
	void Append(const FArrangedChildren& Source) { Array.Append(Source.Array); }
	void Empty() { Array.Reset(); }
	bool IsValidIndex(int32 Index) { return Array.IsValidIndex(Index); }
};
