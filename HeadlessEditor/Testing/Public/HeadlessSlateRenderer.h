#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderer.h"

/** The renderer a headless session gives Slate: it draws nothing and counts texture reloads. */
class HEADLESSTESTING_API FHeadlessSlateRenderer : public FSlateRenderer
{
public:
	virtual void ReloadTextureResources() override { ++TextureReloadCount; }

	/** How many times texture resources were reloaded. */
	int32 GetTextureReloadCount() const { return TextureReloadCount; }

private:
	int32 TextureReloadCount = 0;
};
