#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

class FChildren;
class SWidget;

/** A place for one child widget in a parent; attaching a widget makes the owner its parent. */
class SLATECORE_API FSlotBase
{
public:
	FSlotBase();
	FSlotBase(const TSharedRef<SWidget>& InWidget);
	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;
	virtual ~FSlotBase();

	/** Sets the children this slot belongs to; the current widget's parent becomes their owner. */
	void SetOwner(const FChildren& Children);
	const FChildren* GetOwner() const { return Owner; }
	SWidget* GetOwnerWidget() const;

	/** Puts a widget in the slot, detaching the previous one from the owner. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget);
	const TSharedRef<SWidget>& GetWidget() const { return Widget; }
	/** Empties the slot; @return the widget it held, if any. */
	const TSharedPtr<SWidget> DetachWidget();

private:
	void DetachParentFromContent();
	void AssignParentToContent();

	const FChildren* Owner;
	TSharedRef<SWidget> Widget;
};

/** A slot of a given type, with the arguments used to declare it (`+ SPanel::Slot()[ W ]`). */
template <typename SlotType>
class TSlotBase : public FSlotBase
{
public:
	using FSlotBase::FSlotBase;

	SlotType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		this->AttachWidget(InChildWidget);
		return static_cast<SlotType&>(*this);
	}

	SlotType& Expose(SlotType*& OutVarToInit)
	{
		OutVarToInit = static_cast<SlotType*>(this);
		return static_cast<SlotType&>(*this);
	}

	struct FSlotArguments
	{
	public:
		FSlotArguments(TUniquePtr<SlotType> InSlot)
			: Slot(MoveTemp(InSlot))
		{
		}
		FSlotArguments(FSlotArguments&&) = default;
		FSlotArguments& operator=(FSlotArguments&&) = default;

		typename SlotType::FSlotArguments& operator[](const TSharedRef<SWidget>& InChildWidget)
		{
			ChildWidget = InChildWidget;
			return Me();
		}

		typename SlotType::FSlotArguments& Expose(SlotType*& OutVarToInit)
		{
			OutVarToInit = Slot.get();
			return Me();
		}

		void AttachWidget(const TSharedRef<SWidget>& InChildWidget) { ChildWidget = InChildWidget; }
		const TSharedPtr<SWidget>& GetAttachedWidget() const { return ChildWidget; }
		SlotType* GetSlot() const { return Slot.get(); }
		TUniquePtr<SlotType> StealSlot() { return MoveTemp(Slot); }

		typename SlotType::FSlotArguments& Me() { return static_cast<typename SlotType::FSlotArguments&>(*this); }

	private:
		TSharedPtr<SWidget> ChildWidget;
		TUniquePtr<SlotType> Slot;
	};

	void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		if (InArgs.GetAttachedWidget())
		{
			this->AttachWidget(InArgs.GetAttachedWidget().ToSharedRef());
		}
		this->SetOwner(SlotOwner);
	}
};
