#include "Styling/AppStyle.h"

#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

FName FAppStyle::AppStyleName(TEXT("CoreStyle"));

const ISlateStyle& FAppStyle::Get()
{
	const ISlateStyle* AppStyle = FSlateStyleRegistry::FindSlateStyle(AppStyleName);
	return AppStyle ? *AppStyle : FCoreStyle::Get();
}

const FSlateBrush* FAppStyle::GetBrush(FName PropertyName, const ANSICHAR* Specifier)
{
	return Get().GetBrush(PropertyName, Specifier);
}

const FSlateBrush* FAppStyle::GetOptionalBrush(FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const DefaultBrush)
{
	return Get().GetOptionalBrush(PropertyName, Specifier, DefaultBrush);
}

FSlateFontInfo FAppStyle::GetFontStyle(FName PropertyName, const ANSICHAR* Specifier)
{
	return Get().GetFontStyle(PropertyName, Specifier);
}

const FName FAppStyle::GetAppStyleSetName()
{
	return AppStyleName;
}

void FAppStyle::SetAppStyleSetName(const FName& InName)
{
	AppStyleName = InName;
}

void FAppStyle::SetAppStyleSet(const ISlateStyle& InStyle)
{
	AppStyleName = InStyle.GetStyleSetName();
}
