#pragma once

#include "CoreMinimal.h"

/** Makes the textures a font cache puts its glyphs in; each renderer has its own. */
class ISlateFontAtlasFactory
{
public:
	virtual ~ISlateFontAtlasFactory() {}
};
