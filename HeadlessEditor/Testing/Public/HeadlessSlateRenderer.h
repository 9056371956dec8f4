#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderer.h"
#include "Templates/UniquePtr.h"

class FHeadlessTextureManager;

/**
 * The renderer a headless session gives Slate: its font services measure text with the same fonts
 * the widget renderer draws with, it loads the images brushes name, and it counts texture reloads.
 */
class HEADLESSTESTING_API FHeadlessSlateRenderer : public FSlateRenderer
{
public:
	FHeadlessSlateRenderer();
	virtual ~FHeadlessSlateRenderer();

	virtual FSlateResourceHandle GetResourceHandle(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale) override;

	/** Forgets every loaded image, so that brushes read their files again, and counts the reload. */
	virtual void ReloadTextureResources() override;

	/** How many times texture resources were reloaded. */
	int32 GetTextureReloadCount() const { return TextureReloadCount; }

private:
	TUniquePtr<FHeadlessTextureManager> TextureManager;
	int32 TextureReloadCount = 0;
};
