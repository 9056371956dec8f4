#pragma once

#include "CoreMinimal.h"

/** Which thread owns a texture atlas: the game thread's font cache measures, the render thread's draws. */
enum class ESlateTextureAtlasThreadId
{
	Unknown = -1,
	Game = 0,
	Render = 1,
};
