#pragma once

#include "CoreMinimal.h"

class ISlateStyle;

/** The process-wide list of style sets, by name. */
class SLATECORE_API FSlateStyleRegistry
{
public:
	/** Adds a style set; registering a name that is already registered is a fatal error. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);

	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const FName StyleSetName);

	/** @return the style set registered under that name, or nullptr */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);

	/** Calls Iter for each registered style set until it returns false. */
	static bool IterateAllStyles(const TFunctionRef<bool(const ISlateStyle&)>& Iter);
};
