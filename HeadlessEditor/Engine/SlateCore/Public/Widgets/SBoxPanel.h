#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

class FArrangedChildren;

/**
 * A panel that stacks its children along one direction. Auto slots take their content's size, stretch
 * slots share what is left in proportion to their coefficients; a max size caps either.
 */
class SLATECORE_API SBoxPanel : public SPanel
{
protected:
	/** A box slot: padding, alignment, and how it is sized along the box. */
	template <typename SlotType>
	class TSlot : public TBasicLayoutWidgetSlot<SlotType>
	{
	public:
		SLATE_SLOT_BEGIN_ARGS(TSlot, TBasicLayoutWidgetSlot<SlotType>)
		SLATE_ARGUMENT(TOptional<FSizeParam>, SizeParam)
		TAttribute<float> _MaxSize;
		SLATE_SLOT_END_ARGS()

	protected:
		TSlot()
			: TBasicLayoutWidgetSlot<SlotType>(HAlign_Fill, VAlign_Fill)
			, SizeRule(FSizeParam::SizeRule_Stretch)
			, SizeValue(1.0f)
			, MaxSize(0.0f)
		{
		}

	public:
		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
		{
			if (InArgs._MaxSize.IsSet())
			{
				SetMaxSize(MoveTemp(InArgs._MaxSize));
			}
			if (InArgs._SizeParam.IsSet())
			{
				SetSizeParam(InArgs._SizeParam.GetValue());
			}
			TBasicLayoutWidgetSlot<SlotType>::Construct(SlotOwner, MoveTemp(InArgs));
		}

		FSizeParam::ESizeRule GetSizeRule() const { return SizeRule; }
		float GetSizeValue() const { return SizeValue.Get(); }
		/** The largest size the slot may take along the box; zero or less means no limit. */
		float GetMaxSize() const { return MaxSize.Get(); }

	public:
		void SetSizeParam(FSizeParam InSizeParam)
		{
			SizeRule = InSizeParam.SizeRule;
			SizeValue = MoveTemp(InSizeParam.Value);
		}
		void SetSizeToAuto() { SetSizeParam(FAuto()); }
		void SetSizeToStretch(TAttribute<float> StretchCoefficient) { SetSizeParam(FStretch(MoveTemp(StretchCoefficient))); }
		void SetMaxSize(TAttribute<float> InMaxSize) { MaxSize = MoveTemp(InMaxSize); }

	private:
		FSizeParam::ESizeRule SizeRule;
		TAttribute<float> SizeValue;
		TAttribute<float> MaxSize;
	};

public:
	/** Removes the slot holding the widget. @return the slot's index, or INDEX_NONE */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();
	int32 NumSlots() const;
	bool IsValidSlotIndex(int32 Index) const;

public:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float) const override;

protected:
	SBoxPanel(EOrientation InOrientation);

	EOrientation GetOrientation() const { return Orientation; }

protected:
	EOrientation Orientation;
};

/** A box panel that stacks its children left to right. */
class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	class FSlot : public SBoxPanel::TSlot<FSlot>
	{
	public:
		SLATE_SLOT_BEGIN_ARGS(FSlot, SBoxPanel::TSlot<FSlot>)
		/** The slot takes the width its content asks for. */
		FSlotArguments& AutoWidth()
		{
			_SizeParam = FAuto();
			return Me();
		}
		/** The slot shares the free width in proportion to this coefficient. */
		FSlotArguments& FillWidth(TAttribute<float> InStretchCoefficient)
		{
			_SizeParam = FStretch(MoveTemp(InStretchCoefficient));
			return Me();
		}
		FSlotArguments& MaxWidth(TAttribute<float> InMaxWidth)
		{
			_MaxSize = MoveTemp(InMaxWidth);
			return Me();
		}
		SLATE_SLOT_END_ARGS()

		void SetAutoWidth() { this->SetSizeToAuto(); }
		void SetFillWidth(TAttribute<float> InStretchCoefficient) { this->SetSizeToStretch(MoveTemp(InStretchCoefficient)); }
		void SetMaxWidth(TAttribute<float> InMaxWidth) { this->SetMaxSize(MoveTemp(InMaxWidth)); }

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs) { SBoxPanel::TSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs)); }
	};

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(MakeUnique<FSlot>()); }

	SLATE_BEGIN_ARGS(SHorizontalBox)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SLOT_ARGUMENT(SHorizontalBox::FSlot, Slots)
	SLATE_END_ARGS()

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	FScopedWidgetSlotArguments AddSlot() { return InsertSlot(INDEX_NONE); }
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Children, Index); }

	FSlot& GetSlot(int32 SlotIndex);
	const FSlot& GetSlot(int32 SlotIndex) const;

	SHorizontalBox();
	void Construct(const FArguments& InArgs);

	virtual FChildren* GetChildren() override { return &Children; }

private:
	TPanelChildren<FSlot> Children;
};

/** A box panel that stacks its children top to bottom. */
class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	class FSlot : public SBoxPanel::TSlot<FSlot>
	{
	public:
		SLATE_SLOT_BEGIN_ARGS(FSlot, SBoxPanel::TSlot<FSlot>)
		/** The slot takes the height its content asks for. */
		FSlotArguments& AutoHeight()
		{
			_SizeParam = FAuto();
			return Me();
		}
		/** The slot shares the free height in proportion to this coefficient. */
		FSlotArguments& FillHeight(TAttribute<float> InStretchCoefficient)
		{
			_SizeParam = FStretch(MoveTemp(InStretchCoefficient));
			return Me();
		}
		FSlotArguments& MaxHeight(TAttribute<float> InMaxHeight)
		{
			_MaxSize = MoveTemp(InMaxHeight);
			return Me();
		}
		SLATE_SLOT_END_ARGS()

		void SetAutoHeight() { this->SetSizeToAuto(); }
		void SetFillHeight(TAttribute<float> InStretchCoefficient) { this->SetSizeToStretch(MoveTemp(InStretchCoefficient)); }
		void SetMaxHeight(TAttribute<float> InMaxHeight) { this->SetMaxSize(MoveTemp(InMaxHeight)); }

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs) { SBoxPanel::TSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs)); }
	};

	static FSlot::FSlotArguments Slot() { return FSlot::FSlotArguments(MakeUnique<FSlot>()); }

	SLATE_BEGIN_ARGS(SVerticalBox)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SLOT_ARGUMENT(SVerticalBox::FSlot, Slots)
	SLATE_END_ARGS()

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	FScopedWidgetSlotArguments AddSlot() { return InsertSlot(INDEX_NONE); }
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Children, Index); }

	FSlot& GetSlot(int32 SlotIndex);
	const FSlot& GetSlot(int32 SlotIndex) const;

	SVerticalBox();
	void Construct(const FArguments& InArgs);

	virtual FChildren* GetChildren() override { return &Children; }

private:
	TPanelChildren<FSlot> Children;
};
