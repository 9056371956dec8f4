#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class UFactory;

/** A factory's entry in the content browser's new-asset menu: its class's thumbnail and its name. */
class SFactoryMenuEntry : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SFactoryMenuEntry)
		: _Width(32)
		, _Height(32)
		{
		}
		SLATE_ARGUMENT(uint32, Width)
		SLATE_ARGUMENT(uint32, Height)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs, UFactory* Factory);
};

/** The content browser's new-asset menu. */
class FNewAssetContextMenu
{
public:
	/** The factories of a group of the menu, by name, each as an entry that makes a new asset with it. */
	static TSharedRef<SWidget> MakeCategoryMenu(uint32 AssetTypeCategory);
};
