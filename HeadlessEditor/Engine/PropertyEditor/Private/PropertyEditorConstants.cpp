#include "PropertyEditorConstants.h"

#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"

const FName PropertyEditorConstants::PropertyFontStyle(TEXT("PropertyWindow.NormalFont"));
const FName PropertyEditorConstants::CategoryFontStyle(TEXT("DetailsView.CategoryFontStyle"));

FSlateColor PropertyEditorConstants::GetRowBackgroundColor(int32 IndentLevel, bool IsHovered)
{
	// How much each shade adds to the base colour's sRGB channels.
	static const uint8 ShadeOffsets[] = {0, 4, 6, 10};
	const int32 NumShades = static_cast<int32>(UE_ARRAY_COUNT(ShadeOffsets));
	// The shade walks up to the lightest and back down, so that deep nesting keeps alternating.
	const int32 Period = 2 * (NumShades - 1);
	const int32 Step = IndentLevel % Period;
	const int32 Shade = Step < NumShades ? Step : Period - Step;

	const FSlateColor Base = FAppStyle::Get().GetSlateColor(IsHovered ? TEXT("Colors.Header") : TEXT("Colors.Panel"));
	const FColor BaseColor = Base.GetSpecifiedColor().ToFColor(true);
	const uint8 Offset = ShadeOffsets[Shade];
	return FSlateColor(FLinearColor::FromSRGBColor(FColor(BaseColor.R + Offset, BaseColor.G + Offset, BaseColor.B + Offset)));
}
