#pragma once

#include "CoreMinimal.h"

/** A colour given directly, linked to a shared colour, or taken from the widget's foreground. */
struct SLATECORE_API FSlateColor
{
public:
	FSlateColor()
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f))
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified)
	{
	}

	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified)
	{
	}

	FSlateColor(const TSharedRef<FLinearColor>& InColor)
		: SpecifiedColor(*InColor)
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified_Link)
		, LinkedSpecifiedColor(InColor)
	{
	}

	/** The colour given to this one, following a linked colour if there is one. */
	const FLinearColor& GetSpecifiedColor() const { return LinkedSpecifiedColor.IsValid() ? *LinkedSpecifiedColor : SpecifiedColor; }

	bool IsColorSpecified() const { return ColorUseRule == ESlateColorStylingMode::UseColor_Specified || ColorUseRule == ESlateColorStylingMode::UseColor_Specified_Link; }

	static FSlateColor UseForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground); }
	static FSlateColor UseSubduedForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground_Subdued); }

	bool operator==(const FSlateColor& Other) const { return ColorUseRule == Other.ColorUseRule && GetSpecifiedColor() == Other.GetSpecifiedColor(); }
	bool operator!=(const FSlateColor& Other) const { return !(*this == Other); }

private:
	enum class ESlateColorStylingMode : uint8
	{
		UseColor_Specified,
		UseColor_Foreground,
		UseColor_Foreground_Subdued,
		UseColor_Specified_Link,
	};

	FSlateColor(ESlateColorStylingMode InColorUseRule)
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f))
		, ColorUseRule(InColorUseRule)
	{
	}

	FLinearColor SpecifiedColor;
	ESlateColorStylingMode ColorUseRule;
	TSharedPtr<FLinearColor> LinkedSpecifiedColor;
};
