#pragma once

#include "CoreMinimal.h"

/** Why a widget needs to be redrawn; the headless editor draws nothing and only carries the type. */
enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	Layout = 1 << 0,
	Paint = 1 << 1,
	Volatility = 1 << 2,
	ChildOrder = 1 << 3,
	RenderTransform = 1 << 4,
	Visibility = 1 << 5,
};
