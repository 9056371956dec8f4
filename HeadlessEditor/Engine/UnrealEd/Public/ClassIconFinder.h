#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Styling/SlateIconFinder.h"

class UClass;
struct FSlateBrush;

/** Finds the icons and thumbnails the editor shows for classes and assets. */
class FClassIconFinder
{
public:
	/** The class whose icon an asset shows: the class itself for a class asset (then bOutIsClassType is true), otherwise the asset's class. */
	UNREALED_API static const UClass* GetIconClassForAssetData(const FAssetData& InAssetData, bool* bOutIsClassType = nullptr);

	/** The "ClassThumbnail.<Class>" brush of the class or its nearest parent that has one; the default thumbnail otherwise. */
	UNREALED_API static const FSlateBrush* FindThumbnailForClass(const UClass* InClass, const FName& InDefaultName = FName())
	{
		return FSlateIconFinder::FindCustomIconBrushForClass(InClass, TEXT("ClassThumbnail"), InDefaultName);
	}
};
