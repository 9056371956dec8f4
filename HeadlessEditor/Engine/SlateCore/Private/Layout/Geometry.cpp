#include "Layout/Geometry.h"

#include "Layout/ArrangedWidget.h"
#include "Widgets/SWidget.h"

#include <new>

FGeometry::FGeometry()
	: Size(0.0, 0.0)
	, Scale(1.0f)
	, AbsolutePosition(0.0f, 0.0f)
	, Position(0.0f, 0.0f)
{
}

FGeometry& FGeometry::operator=(const FGeometry& RHS)
{
	// The members are const so that nobody edits a geometry in place; assignment replaces it whole.
	if (this != &RHS)
	{
		this->~FGeometry();
		new (this) FGeometry(RHS);
	}
	return *this;
}

FGeometry::FGeometry(const FVector2D& OffsetFromParent, const FVector2D& ParentAbsolutePosition, const FVector2D& InLocalSize, float InScale)
	: FGeometry(InLocalSize, FSlateLayoutTransform(OffsetFromParent * static_cast<double>(InScale)), FSlateLayoutTransform(InScale, ParentAbsolutePosition))
{
}

FGeometry::FGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalLayoutTransform, const FSlateLayoutTransform& ParentAccumulatedLayoutTransform)
	: Size(InLocalSize)
	, Scale(Concatenate(InLocalLayoutTransform, ParentAccumulatedLayoutTransform).GetScale())
	, AbsolutePosition(Concatenate(InLocalLayoutTransform, ParentAccumulatedLayoutTransform).GetTranslation())
	, Position(InLocalLayoutTransform.GetTranslation())
{
}

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	return FGeometry(InLocalSize, LayoutTransform, FSlateLayoutTransform());
}

FGeometry FGeometry::MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	return FGeometry(InLocalSize, LayoutTransform, GetAccumulatedLayoutTransform());
}

FGeometry FGeometry::MakeChild(const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale) const
{
	return MakeChild(InLocalSize, FSlateLayoutTransform(ChildScale, ChildOffset * static_cast<double>(ChildScale)));
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	return FArrangedWidget(ChildWidget, MakeChild(InLocalSize, LayoutTransform));
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale) const
{
	return FArrangedWidget(ChildWidget, MakeChild(ChildOffset, InLocalSize, ChildScale));
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const
{
	const FSlateLayoutTransform Accumulated = Concatenate(InLayoutTransform, GetAccumulatedLayoutTransform());
	return FPaintGeometry(Accumulated.GetTranslation(), Accumulated.TransformVector(InLocalSize), Accumulated.GetScale());
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& InLocalOffset, const FVector2D& InLocalSize, float InLocalScale) const
{
	return ToPaintGeometry(InLocalSize, FSlateLayoutTransform(InLocalScale, InLocalOffset * static_cast<double>(InLocalScale)));
}

FPaintGeometry FGeometry::ToInflatedPaintGeometry(const FVector2D& InflateAmount) const
{
	return ToPaintGeometry(Size + InflateAmount * 2.0, FSlateLayoutTransform(-InflateAmount));
}

bool FGeometry::IsUnderLocation(const FVector2D& AbsoluteCoordinate) const
{
	return GetLayoutBoundingRect().ContainsPoint(AbsoluteCoordinate);
}

FVector2D FGeometry::AbsoluteToLocal(FVector2D AbsoluteCoordinate) const
{
	return GetAccumulatedLayoutTransform().Inverse().TransformPoint(AbsoluteCoordinate);
}

FVector2D FGeometry::LocalToAbsolute(FVector2D LocalCoordinate) const
{
	return GetAccumulatedLayoutTransform().TransformPoint(LocalCoordinate);
}

FSlateRect FGeometry::GetLayoutBoundingRect(const FSlateRect& LocalSpaceRect) const
{
	const FSlateLayoutTransform Transform = GetAccumulatedLayoutTransform();
	return FSlateRect(Transform.TransformPoint(LocalSpaceRect.GetTopLeft2f()), Transform.TransformPoint(LocalSpaceRect.GetBottomRight2f()));
}

FString FGeometry::ToString() const
{
	return FString::Printf(TEXT("[Abs=(%f, %f) Scale=%f Size=(%f, %f)]"), AbsolutePosition.X, AbsolutePosition.Y, Scale, Size.X, Size.Y);
}

void FGeometry::AppendTransform(const FSlateLayoutTransform& LayoutTransform)
{
	const FSlateLayoutTransform Accumulated = Concatenate(GetAccumulatedLayoutTransform(), LayoutTransform);
	const_cast<FVector2f&>(AbsolutePosition) = FVector2f(Accumulated.GetTranslation());
	const_cast<float&>(Scale) = Accumulated.GetScale();
}
