#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"

#include <algorithm>
#include <cmath>

/** An axis-aligned rectangle: left and top edges, right and bottom edges. */
class SLATECORE_API FSlateRect
{
public:
	float Left;
	float Top;
	float Right;
	float Bottom;

	explicit FSlateRect(float InLeft = -1, float InTop = -1, float InRight = -1, float InBottom = -1)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	FSlateRect(FVector2f InStartPos, FVector2f InEndPos)
		: Left(InStartPos.X)
		, Top(InStartPos.Y)
		, Right(InEndPos.X)
		, Bottom(InEndPos.Y)
	{
	}

	FSlateRect(const FVector2d InStartPos, const FVector2d InEndPos)
		: Left(static_cast<float>(InStartPos.X))
		, Top(static_cast<float>(InStartPos.Y))
		, Right(static_cast<float>(InEndPos.X))
		, Bottom(static_cast<float>(InEndPos.Y))
	{
	}

	static FSlateRect FromPointAndExtent(const FVector2f TopLeft, const FVector2f Size) { return FSlateRect(TopLeft, TopLeft + Size); }
	static FSlateRect FromPointAndExtent(const FVector2d TopLeft, const FVector2d Size) { return FSlateRect(TopLeft, TopLeft + Size); }

	/** A rectangle is valid when it was set and does not run backwards. */
	bool IsValid() const { return !(Left == -1 && Right == -1 && Bottom == -1 && Top == -1) && Right >= Left && Bottom >= Top; }
	bool IsEmpty() const { return GetSize2f().SizeSquared() == 0.0f; }

	FVector2D GetSize() const { return FVector2D(GetSize2f()); }
	FVector2f GetSize2f() const { return FVector2f(Right - Left, Bottom - Top); }
	float GetArea() const { return (Right - Left) * (Bottom - Top); }
	FVector2D GetCenter() const { return FVector2D(Left + (Right - Left) * 0.5f, Top + (Bottom - Top) * 0.5f); }
	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }
	FVector2f GetTopLeft2f() const { return FVector2f(Left, Top); }
	FVector2D GetTopRight() const { return FVector2D(Right, Top); }
	FVector2D GetBottomRight() const { return FVector2D(Right, Bottom); }
	FVector2f GetBottomRight2f() const { return FVector2f(Right, Bottom); }
	FVector2D GetBottomLeft() const { return FVector2D(Left, Bottom); }

	FSlateRect InsetBy(const FMargin& InsetAmount) const { return FSlateRect(Left + InsetAmount.Left, Top + InsetAmount.Top, Right - InsetAmount.Right, Bottom - InsetAmount.Bottom); }
	FSlateRect ExtendBy(const FMargin& ExtendAmount) const { return FSlateRect(Left - ExtendAmount.Left, Top - ExtendAmount.Top, Right + ExtendAmount.Right, Bottom + ExtendAmount.Bottom); }
	FSlateRect OffsetBy(const FVector2f OffsetAmount) const { return FSlateRect(GetTopLeft2f() + OffsetAmount, GetBottomRight2f() + OffsetAmount); }
	FSlateRect OffsetBy(const FVector2d OffsetAmount) const { return OffsetBy(FVector2f(OffsetAmount)); }

	/** The smallest rectangle holding both. */
	FSlateRect Expand(const FSlateRect& Other) const { return FSlateRect(std::min(Left, Other.Left), std::min(Top, Other.Top), std::max(Right, Other.Right), std::max(Bottom, Other.Bottom)); }
	FSlateRect Round() const { return FSlateRect(std::round(Left), std::round(Top), std::round(Right), std::round(Bottom)); }

	/** The overlap of both; an empty rectangle at the origin when they do not overlap. */
	FSlateRect IntersectionWith(const FSlateRect& Other) const
	{
		bool bOverlapping;
		return IntersectionWith(Other, bOverlapping);
	}
	FSlateRect IntersectionWith(const FSlateRect& Other, bool& OutOverlapping) const;

	bool ContainsPoint(const FVector2f Point) const { return Point.X >= Left && Point.X <= Right && Point.Y >= Top && Point.Y <= Bottom; }
	bool ContainsPoint(const FVector2d Point) const { return ContainsPoint(FVector2f(Point)); }

	bool operator==(const FSlateRect& Other) const { return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom; }
	bool operator!=(const FSlateRect& Other) const { return !(*this == Other); }

	static bool DoRectanglesIntersect(const FSlateRect& A, const FSlateRect& B) { return !(B.Left > A.Right || B.Right < A.Left || B.Top > A.Bottom || B.Bottom < A.Top); }

	FString ToString() const;
};
