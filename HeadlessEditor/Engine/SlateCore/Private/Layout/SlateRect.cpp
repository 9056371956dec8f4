#include "Layout/SlateRect.h"

FSlateRect FSlateRect::IntersectionWith(const FSlateRect& Other, bool& OutOverlapping) const
{
	const FSlateRect Overlap(std::max(Left, Other.Left), std::max(Top, Other.Top), std::min(Right, Other.Right), std::min(Bottom, Other.Bottom));
	OutOverlapping = Overlap.Right >= Overlap.Left && Overlap.Bottom >= Overlap.Top;
	return OutOverlapping ? Overlap : FSlateRect(0, 0, 0, 0);
}

FString FSlateRect::ToString() const
{
	return FString::Printf(TEXT("Left=%3.2f Top=%3.2f Right=%3.2f Bottom=%3.2f"), Left, Top, Right, Bottom);
}
