#pragma once

#include "CoreMinimal.h"

/** Draws Slate's windows. The headless editor draws nothing; a renderer there only records requests. */
class SLATECORE_API FSlateRenderer
{
public:
	/** The engine's renderer takes font services; the headless editor renders no text. */
	FSlateRenderer() = default;
	virtual ~FSlateRenderer() = default;

	/** Reloads all texture resources from disk; does nothing by default. */
	virtual void ReloadTextureResources() {}

private:
	FSlateRenderer(const FSlateRenderer&) = delete;
	FSlateRenderer& operator=(const FSlateRenderer&) = delete;
};
