#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** How a box slot takes up space along the box's direction. */
struct FSizeParam
{
	enum ESizeRule
	{
		SizeRule_Auto,
		SizeRule_Stretch
	};

	ESizeRule SizeRule = SizeRule_Stretch;
	TAttribute<float> Value = 1.0f;
};

/** A panel that stacks its children along one direction. */
class SLATECORE_API SBoxPanel : public SPanel
{
public:
	/** A box slot: padding, alignment, and how it is sized along the box. */
	template <typename SlotType>
	class TSlot : public TBasicLayoutWidgetSlot<SlotType>
	{
	public:
		FSizeParam::ESizeRule GetSizeRule() const { return SizeParam.SizeRule; }
		float GetSizeValue() const { return SizeParam.Value.Get(); }
		TOptional<float> GetMaxSize() const { return MaxSize.IsSet() && MaxSize.Get() > 0.0f ? TOptional<float>(MaxSize.Get()) : TOptional<float>(); }

		void SetAutoSize() { SizeParam.SizeRule = FSizeParam::SizeRule_Auto; }
		void SetSizeToStretch(TAttribute<float> StretchCoefficient)
		{
			SizeParam.SizeRule = FSizeParam::SizeRule_Stretch;
			SizeParam.Value = MoveTemp(StretchCoefficient);
		}
		void SetMaxSize(TAttribute<float> InMaxSize) { MaxSize = MoveTemp(InMaxSize); }

	private:
		FSizeParam SizeParam;
		TAttribute<float> MaxSize = 0.0f;
	};

	EOrientation GetOrientation() const { return Orientation; }
	virtual int32 NumSlots() const = 0;
	virtual void ClearChildren() = 0;

protected:
	SBoxPanel(EOrientation InOrientation)
		: Orientation(InOrientation)
	{
	}

private:
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
			_SizeRule = FSizeParam::SizeRule_Auto;
			return Me();
		}
		/** The slot shares the free width in proportion to this coefficient. */
		FSlotArguments& FillWidth(TAttribute<float> InStretchCoefficient)
		{
			_SizeRule = FSizeParam::SizeRule_Stretch;
			_StretchCoefficient = MoveTemp(InStretchCoefficient);
			return Me();
		}
		FSlotArguments& MaxWidth(TAttribute<float> InMaxWidth)
		{
			_MaxSize = MoveTemp(InMaxWidth);
			return Me();
		}
		TOptional<FSizeParam::ESizeRule> _SizeRule;
		TAttribute<float> _StretchCoefficient;
		TAttribute<float> _MaxSize;
		SLATE_SLOT_END_ARGS()

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SHorizontalBox)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SLOT_ARGUMENT(SHorizontalBox::FSlot, Slots)
	SLATE_END_ARGS()

	SHorizontalBox();
	void Construct(const FArguments& InArgs);

	FScopedWidgetSlotArguments AddSlot();
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE);
	FSlot& GetSlot(int32 SlotIndex) { return Children[SlotIndex]; }

	virtual int32 NumSlots() const override { return Children.Num(); }
	virtual void ClearChildren() override { Children.Empty(); }
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
			_SizeRule = FSizeParam::SizeRule_Auto;
			return Me();
		}
		/** The slot shares the free height in proportion to this coefficient. */
		FSlotArguments& FillHeight(TAttribute<float> InStretchCoefficient)
		{
			_SizeRule = FSizeParam::SizeRule_Stretch;
			_StretchCoefficient = MoveTemp(InStretchCoefficient);
			return Me();
		}
		FSlotArguments& MaxHeight(TAttribute<float> InMaxHeight)
		{
			_MaxSize = MoveTemp(InMaxHeight);
			return Me();
		}
		TOptional<FSizeParam::ESizeRule> _SizeRule;
		TAttribute<float> _StretchCoefficient;
		TAttribute<float> _MaxSize;
		SLATE_SLOT_END_ARGS()

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SVerticalBox)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SLOT_ARGUMENT(SVerticalBox::FSlot, Slots)
	SLATE_END_ARGS()

	SVerticalBox();
	void Construct(const FArguments& InArgs);

	FScopedWidgetSlotArguments AddSlot();
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE);
	FSlot& GetSlot(int32 SlotIndex) { return Children[SlotIndex]; }

	virtual int32 NumSlots() const override { return Children.Num(); }
	virtual void ClearChildren() override { Children.Empty(); }
	virtual FChildren* GetChildren() override { return &Children; }

private:
	TPanelChildren<FSlot> Children;
};
