#include "HeadlessStyles.h"

#include "Styling/SlateStyle.h"

namespace
{
	/** Reaches the style set's protected brush map, as a derived style set may. */
	struct FStyleSetAccess : FSlateStyleSet
	{
		static const TMap<FName, FSlateBrush*>& GetBrushes(const FSlateStyleSet& Style) { return Style.*(&FStyleSetAccess::BrushResources); }
	};
}

TArray<FName> UE::Headless::GetBrushKeys(const FSlateStyleSet& Style)
{
	TArray<FName> Keys;
	for (const TPair<FName, FSlateBrush*>& Pair : FStyleSetAccess::GetBrushes(Style))
	{
		Keys.Add(Pair.Key);
	}
	return Keys;
}
