#include "Textures/SlateIcon.h"

#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleDefaults.h"

FSlateIcon::FSlateIcon()
	: bIsSet(false)
{
}

FSlateIcon::FSlateIcon(const FName InStyleSetName, const FName InStyleName, const FName InSmallStyleName, const FName InStatusOverlayStyleName)
	: StyleSetName(InStyleSetName)
	, StyleName(InStyleName)
	, SmallStyleName(InSmallStyleName.IsNone() ? FName(*(InStyleName.ToString() + TEXT(".Small"))) : InSmallStyleName)
	, StatusOverlayStyleName(InStatusOverlayStyleName)
	, bIsSet(true)
{
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	// A key the style set lacks gives no brush, not the style set's placeholder: menus then leave the icon out.
	const ISlateStyle* StyleSet = GetStyleSet();
	return StyleSet ? StyleSet->GetOptionalBrush(StyleName) : FStyleDefaults::GetNoBrush();
}

const FSlateBrush* FSlateIcon::GetOptionalIcon() const
{
	const FSlateBrush* Icon = GetIcon();
	return Icon == FStyleDefaults::GetNoBrush() ? nullptr : Icon;
}

const FSlateBrush* FSlateIcon::GetSmallIcon() const
{
	const ISlateStyle* StyleSet = GetStyleSet();
	const FSlateBrush* SmallIcon = StyleSet ? StyleSet->GetOptionalBrush(SmallStyleName) : FStyleDefaults::GetNoBrush();
	return SmallIcon != FStyleDefaults::GetNoBrush() ? SmallIcon : GetIcon();
}

const FSlateBrush* FSlateIcon::GetOverlayIcon() const
{
	const ISlateStyle* StyleSet = GetStyleSet();
	return StyleSet && !StatusOverlayStyleName.IsNone() ? StyleSet->GetOptionalBrush(StatusOverlayStyleName, nullptr, nullptr) : nullptr;
}

const ISlateStyle* FSlateIcon::GetStyleSet() const
{
	return StyleSetName.IsNone() ? nullptr : FSlateStyleRegistry::FindSlateStyle(StyleSetName);
}
