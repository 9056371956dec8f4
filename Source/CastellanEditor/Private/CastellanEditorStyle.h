// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FSlateStyleSet;
class ISlateStyle;

/** The plugin's icons: toolbar and notification logos, wizard icons, class icons and thumbnails. */
class FCastellanEditorStyle
{
public:
	/** Creates and registers the style set; does nothing if it exists already. */
	static void Initialize();

	/** Unregisters and releases the style set. */
	static void Shutdown();

	/** Asks the renderer to reload its textures, so that changed images show. */
	static void ReloadTextures();

	/** The registered style set. */
	static const ISlateStyle& Get();

	/** "CastellanEditorStyle", the name other code builds icons from. */
	static FName GetStyleSetName();

private:
	static TSharedRef<FSlateStyleSet> Create();

	static TSharedPtr<FSlateStyleSet> StyleInstance;
};
