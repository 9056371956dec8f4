#pragma once

#include "CoreMinimal.h"

/** How many items of a list the user may select. */
namespace ESelectionMode
{
	enum Type : int
	{
		/** Nothing can be selected and there is no hover highlight. */
		None,
		/** A single item can be selected at once, or no item. */
		Single,
		/** A single item can be selected at once, or no item; clicking the selected item deselects it. */
		SingleToggle,
		/** Multiple items can be selected at the same time. */
		Multi
	};
}
