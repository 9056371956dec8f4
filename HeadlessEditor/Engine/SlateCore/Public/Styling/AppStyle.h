#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

class ISlateStyle;
struct FSlateBrush;

/** The style set the application draws with, found by name in the style registry. */
class SLATECORE_API FAppStyle
{
public:
	static const ISlateStyle& Get();

	static const FSlateBrush* GetBrush(FName PropertyName, const ANSICHAR* Specifier = NULL);
	static const FSlateBrush* GetOptionalBrush(FName PropertyName, const ANSICHAR* Specifier = NULL, const FSlateBrush* const DefaultBrush = nullptr);
	static FSlateFontInfo GetFontStyle(FName PropertyName, const ANSICHAR* Specifier = NULL);

	static const FName GetAppStyleSetName();
	static void SetAppStyleSetName(const FName& InName);
	static void SetAppStyleSet(const ISlateStyle& InStyle);

private:
	static FName AppStyleName;
};
