#pragma once

#include "CoreMinimal.h"
#include "Textures/SlateIcon.h"

class UClass;

/** Finds the icons registered for classes in any style set, by the "ClassIcon.<Class>" naming convention. */
class SLATECORE_API FSlateIconFinder
{
public:
	/** The icon of the class or of its nearest parent class that has one; the default class icon otherwise. */
	static FSlateIcon FindIconForClass(const UClass* InClass, const FName& InDefaultName = FName());

	/** As FindIconForClass, with StyleBasePath (e.g. "ClassThumbnail") in place of "ClassIcon". */
	static FSlateIcon FindCustomIconForClass(const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName = FName());

	/** The brush of the class's icon; null if none was found. */
	static const FSlateBrush* FindIconBrushForClass(const UClass* InClass, const FName& InDefaultName = FName())
	{
		return FindIconForClass(InClass, InDefaultName).GetOptionalIcon();
	}

	/** The brush of the class's custom icon; null if none was found. */
	static const FSlateBrush* FindCustomIconBrushForClass(const UClass* InClass, const TCHAR* StyleBasePath, const FName& InDefaultName = FName())
	{
		return FindCustomIconForClass(InClass, StyleBasePath, InDefaultName).GetOptionalIcon();
	}

	/** The icon of the first registered style set that has a brush under that name; unset if none has. */
	static FSlateIcon FindIcon(const FName& InIconName);
};
