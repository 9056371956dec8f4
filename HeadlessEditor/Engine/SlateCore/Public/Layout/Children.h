#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Layout/ChildrenBase.h"
#include "SlotBase.h"
#include "Templates/UniquePtr.h"
#include "Widgets/SWidget.h"

/** No children at all, for leaf widgets. */
class SLATECORE_API FNoChildren : public FChildren
{
public:
	static FNoChildren NoChildrenInstance;

	FNoChildren()
		: FChildren(nullptr)
	{
	}

	virtual int32 Num() const override { return 0; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override;
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const override;

private:
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override;
};

/** A single child held in a slot with padding and alignment: the ChildSlot of compound widgets. */
template <EInvalidateWidgetReason InPaddingInvalidationReason = EInvalidateWidgetReason::Layout>
class TSingleWidgetChildrenWithBasicLayoutSlot : public FChildren, public TBasicLayoutWidgetSlot<TSingleWidgetChildrenWithBasicLayoutSlot<InPaddingInvalidationReason>>
{
public:
	using WidgetArgsType = TSingleWidgetChildrenWithBasicLayoutSlot;

	TSingleWidgetChildrenWithBasicLayoutSlot(SWidget* InOwner)
		: FChildren(InOwner)
	{
		this->SetOwner(*this);
	}

	virtual int32 Num() const override { return 1; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override
	{
		check(Index == 0);
		return this->GetWidget();
	}
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const override
	{
		check(Index == 0);
		return this->GetWidget();
	}
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override
	{
		check(ChildIndex == 0);
		return *this;
	}

	WidgetArgsType& Padding(TAttribute<FMargin> InPadding)
	{
		this->SetPadding(MoveTemp(InPadding));
		return *this;
	}
	WidgetArgsType& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
	WidgetArgsType& Padding(float Horizontal, float Vertical) { return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical))); }
	WidgetArgsType& Padding(float Left, float Top, float Right, float Bottom) { return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom))); }
	WidgetArgsType& HAlign(EHorizontalAlignment InHAlignment)
	{
		this->SetHorizontalAlignment(InHAlignment);
		return *this;
	}
	WidgetArgsType& VAlign(EVerticalAlignment InVAlignment)
	{
		this->SetVerticalAlignment(InVAlignment);
		return *this;
	}
};

/** An ordered list of slots, each holding one child: the children of panels. */
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	using FChildren::FChildren;

	virtual int32 Num() const override { return Children.Num(); }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override { return Children[Index]->GetWidget(); }
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const override { return Children[Index]->GetWidget(); }
	bool IsValidIndex(int32 Index) const { return Children.IsValidIndex(Index); }
	void Reserve(int32 NumToReserve) { Children.Reserve(NumToReserve); }

	int32 AddSlot(typename SlotType::FSlotArguments&& SlotArgument)
	{
		TUniquePtr<SlotType> NewSlot = SlotArgument.StealSlot();
		check(NewSlot.get());
		NewSlot->Construct(*this, MoveTemp(SlotArgument));
		return Children.Add(MoveTemp(NewSlot));
	}

	void AddSlots(TArray<typename SlotType::FSlotArguments> SlotArguments)
	{
		for (typename SlotType::FSlotArguments& Arguments : SlotArguments)
		{
			AddSlot(MoveTemp(Arguments));
		}
	}

	void InsertSlot(typename SlotType::FSlotArguments&& SlotArgument, int32 Index)
	{
		TUniquePtr<SlotType> NewSlot = SlotArgument.StealSlot();
		check(NewSlot.get());
		NewSlot->Construct(*this, MoveTemp(SlotArgument));
		Children.Insert(MoveTemp(NewSlot), Index);
	}

	/** Removes the slot holding the widget. @return the slot's index, or INDEX_NONE */
	int32 Remove(const TSharedRef<SWidget>& SlotWidget)
	{
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			if (Children[Index]->GetWidget() == SlotWidget)
			{
				RemoveAt(Index);
				return Index;
			}
		}
		return INDEX_NONE;
	}

	void RemoveAt(int32 Index)
	{
		Children[Index]->DetachWidget();
		Children.RemoveAt(Index);
	}

	void Empty(int32 Slack = 0)
	{
		for (TUniquePtr<SlotType>& Slot : Children)
		{
			Slot->DetachWidget();
		}
		Children.Empty(Slack);
	}

	SlotType& operator[](int32 Index) { return *Children[Index]; }
	const SlotType& operator[](int32 Index) const { return *Children[Index]; }

	/** Slot arguments that add their slot to the children when they go out of scope (AddSlot()...). */
	struct FScopedWidgetSlotArguments final : public SlotType::FSlotArguments
	{
	public:
		FScopedWidgetSlotArguments(TUniquePtr<SlotType> InSlot, TPanelChildren<SlotType>& InChildren, int32 InIndex)
			: SlotType::FSlotArguments(MoveTemp(InSlot))
			, Children(InChildren)
			, Index(InIndex)
		{
		}
		FScopedWidgetSlotArguments(const FScopedWidgetSlotArguments&) = delete;
		FScopedWidgetSlotArguments& operator=(const FScopedWidgetSlotArguments&) = delete;

		~FScopedWidgetSlotArguments()
		{
			if (this->GetSlot())
			{
				if (Index == INDEX_NONE)
				{
					Children.AddSlot(MoveTemp(*this));
				}
				else
				{
					Children.InsertSlot(MoveTemp(*this), Index);
				}
			}
		}

	private:
		TPanelChildren<SlotType>& Children;
		int32 Index;
	};

protected:
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override { return *Children[ChildIndex]; }

private:
	TArray<TUniquePtr<SlotType>> Children;
};
