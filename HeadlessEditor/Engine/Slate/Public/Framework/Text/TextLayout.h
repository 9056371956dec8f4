#pragma once

#include "CoreMinimal.h"

/** How text lines up horizontally. */
namespace ETextJustify
{
	enum Type : int
	{
		/** Justify the text logically to the left. */
		Left,
		/** Justify the text in the center. */
		Center,
		/** Justify the text logically to the right. */
		Right,
	};
}
