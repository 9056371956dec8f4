#include "SlotBase.h"

#include "Layout/Children.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

FSlotBase::FSlotBase()
	: Owner(nullptr)
	, Widget(SNullWidget::NullWidget)
{
}

FSlotBase::FSlotBase(const TSharedRef<SWidget>& InWidget)
	: Owner(nullptr)
	, Widget(InWidget)
{
}

FSlotBase::~FSlotBase()
{
	DetachParentFromContent();
}

void FSlotBase::SetOwner(const FChildren& Children)
{
	Owner = &Children;
	AssignParentToContent();
}

SWidget* FSlotBase::GetOwnerWidget() const
{
	return Owner ? &Owner->GetOwner() : nullptr;
}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	DetachParentFromContent();
	Widget = InWidget;
	AssignParentToContent();
}

const TSharedPtr<SWidget> FSlotBase::DetachWidget()
{
	if (Widget == SNullWidget::NullWidget)
	{
		return TSharedPtr<SWidget>();
	}
	DetachParentFromContent();
	TSharedRef<SWidget> Detached = Widget;
	Widget = SNullWidget::NullWidget;
	return Detached;
}

void FSlotBase::DetachParentFromContent()
{
	if (SWidget* OwnerWidget = GetOwnerWidget())
	{
		Widget->ConditionallyDetatchParentWidget(OwnerWidget);
	}
}

void FSlotBase::AssignParentToContent()
{
	// A widget only becomes a parent once a shared pointer owns it (SNew always does).
	SWidget* OwnerWidget = GetOwnerWidget();
	if (OwnerWidget && OwnerWidget->DoesSharedInstanceExist() && Widget != SNullWidget::NullWidget)
	{
		Widget->AssignParentWidget(OwnerWidget->AsShared());
	}
}
