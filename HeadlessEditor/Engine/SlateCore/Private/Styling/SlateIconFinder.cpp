#include "Styling/SlateIconFinder.h"

#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "UObject/Class.h"

FSlateIcon FSlateIconFinder::FindIconForClass(const UClass* InClass, const FName& InDefaultName)
{
	return FindCustomIconForClass(InClass, TEXT("ClassIcon"), InDefaultName);
}

FSlateIcon FSlateIconFinder::FindCustomIconForClass(const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName)
{
	const FString BasePath = FString(StyleBasePath) + TEXT(".");

	// The class's own icon, or the nearest parent's: a subclass looks like what it derives from.
	for (const UClass* CurrentClass = InClass; CurrentClass; CurrentClass = CurrentClass->GetSuperClass())
	{
		const FSlateIcon Icon = FindIcon(FName(*(BasePath + CurrentClass->GetName())));
		if (Icon.IsSet())
		{
			return Icon;
		}
	}
	return FindIcon(InDefaultName.IsNone() ? FName(*(BasePath + TEXT("Default"))) : InDefaultName);
}

FSlateIcon FSlateIconFinder::FindIcon(const FName& IconName)
{
	FSlateIcon Icon;
	FSlateStyleRegistry::IterateAllStyles([&Icon, &IconName](const ISlateStyle& Style)
		{
			if (Style.GetOptionalBrush(IconName, nullptr, nullptr))
			{
				Icon = FSlateIcon(Style.GetStyleSetName(), IconName);
				return false;
			}
			return true; });
	return Icon;
}
