#include "HeadlessFonts.h"

#include "Fonts/TextShaper.h"

void UE::Headless::DrawTextLine(cairo_t* Context, const FString& Text, const FSlateFontInfo& Font, float FontScale)
{
	FTextShaper::Get().DrawLine(Context, Text, Font, FontScale);
}
