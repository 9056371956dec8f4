#pragma once

#include "CoreMinimal.h"

/** Effects a draw element is drawn with. */
enum class ESlateDrawEffect : uint8
{
	/** No effect applied */
	None = 0,
	/** Draw with no blending */
	NoBlending = 1 << 0,
	/** Blend using pre-multiplied alpha */
	PreMultipliedAlpha = 1 << 1,
	/** No gamma correction should be done */
	NoGamma = 1 << 2,
	/** Change the alpha value to 1 - Alpha */
	InvertAlpha = 1 << 3,
	/** Disables pixel snapping */
	NoPixelSnapping = 1 << 4,
	/** Draw the element with a disabled effect: desaturated and faded */
	DisabledEffect = 1 << 5,
	/** Ignore the texture's alpha */
	IgnoreTextureAlpha = 1 << 6,
	/** Use the gamma curve in reverse */
	ReverseGamma = 1 << 7
};

ENUM_CLASS_FLAGS(ESlateDrawEffect);
