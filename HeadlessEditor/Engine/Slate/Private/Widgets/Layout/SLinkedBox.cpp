#include "Widgets/Layout/SLinkedBox.h"

#include <algorithm>

FLinkedBoxManager::FLinkedBoxManager() = default;

FLinkedBoxManager::~FLinkedBoxManager() = default;

void FLinkedBoxManager::RegisterLinkedBox(SLinkedBox* InBox)
{
	Siblings.AddUnique(InBox);
}

void FLinkedBoxManager::UnregisterLinkedBox(SLinkedBox* InBox)
{
	Siblings.Remove(InBox);
}

FVector2D FLinkedBoxManager::GetUniformCellSize() const
{
	FVector2D MaxDesiredSize = FVector2D::ZeroVector;
	for (SLinkedBox* Sibling : Siblings)
	{
		if (Sibling->GetVisibility() != EVisibility::Collapsed)
		{
			Sibling->CustomChildPrepass();
			const FVector2D SiblingDesiredSize = Sibling->GetChildrensDesiredSize();
			MaxDesiredSize.X = std::max(MaxDesiredSize.X, SiblingDesiredSize.X);
			MaxDesiredSize.Y = std::max(MaxDesiredSize.Y, SiblingDesiredSize.Y);
		}
	}
	return MaxDesiredSize;
}

SLinkedBox::SLinkedBox() = default;

SLinkedBox::~SLinkedBox()
{
	if (Manager.IsValid())
	{
		Manager->UnregisterLinkedBox(this);
	}
}

void SLinkedBox::Construct(const FArguments& InArgs, TSharedRef<FLinkedBoxManager> InManager)
{
	Manager = InManager;
	Manager->RegisterLinkedBox(this);
	SBox::Construct(SBox::FArguments().HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget]);
}

void SLinkedBox::CustomChildPrepass()
{
	const TSharedRef<SWidget> Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() != EVisibility::Collapsed)
	{
		Child->SlatePrepass(GetPrepassLayoutScaleMultiplier());
	}
}

FVector2D SLinkedBox::GetChildrensDesiredSize() const
{
	const TSharedRef<SWidget> Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D::ZeroVector;
	}
	return Child->GetDesiredSize() + ChildSlot.GetPadding().GetDesiredSize();
}

FVector2D SLinkedBox::ComputeDesiredSize(float) const
{
	return Manager->GetUniformCellSize();
}
