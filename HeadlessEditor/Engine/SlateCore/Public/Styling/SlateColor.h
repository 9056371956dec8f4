#pragma once

#include "CoreMinimal.h"
#include "Styling/WidgetStyle.h"

/** Should we use the specified color? If not, then which color from the style should we use. */
enum class ESlateColorStylingMode : uint8
{
	/** Color value is stored in this Slate color. */
	UseColor_Specified,
	/** Color value is stored in the linked color table. */
	UseColor_ColorTable,
	/** Use the widget's foreground color. */
	UseColor_Foreground,
	/** Use the widget's subdued color. */
	UseColor_Foreground_Subdued,
	/** Use the foreground color defined in a widget specific style. */
	UseColor_UseStyle,
};

enum class EStyleColor : uint8;

/** A colour given directly, taken from the editor's colour theme, or taken from the widget's foreground. */
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

	FSlateColor(const FColor InColor)
		: SpecifiedColor(InColor.ReinterpretAsLinear())
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified)
	{
	}

	/** Takes the colour's current value. */
	FSlateColor(const TSharedRef<FLinearColor>& InColor)
		: SpecifiedColor(*InColor)
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified)
	{
	}

	/** A colour of the editor's colour theme, read when it is used. */
	FSlateColor(EStyleColor InColorTableId)
		: SpecifiedColor()
		, ColorUseRule(ESlateColorStylingMode::UseColor_ColorTable)
		, ColorTableId(InColorTableId)
	{
	}

	/** The colour to draw with: this colour, or the widget style's foreground. */
	const FLinearColor& GetColor(const FWidgetStyle& InWidgetStyle) const;

	FLinearColor GetSpecifiedColor() const { return ColorUseRule == ESlateColorStylingMode::UseColor_ColorTable ? GetColorFromTable() : SpecifiedColor; }

	bool IsColorSpecified() const { return ColorUseRule == ESlateColorStylingMode::UseColor_Specified || ColorUseRule == ESlateColorStylingMode::UseColor_ColorTable; }

	bool operator==(const FSlateColor& Other) const { return SpecifiedColor == Other.SpecifiedColor && ColorUseRule == Other.ColorUseRule && (ColorUseRule != ESlateColorStylingMode::UseColor_ColorTable || ColorTableId == Other.ColorTableId); }
	bool operator!=(const FSlateColor& Other) const { return !(*this == Other); }

	static FSlateColor UseForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground); }
	static FSlateColor UseSubduedForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground_Subdued); }
	static FSlateColor UseStyle() { return FSlateColor(ESlateColorStylingMode::UseColor_UseStyle); }

protected:
	FSlateColor(ESlateColorStylingMode InColorUseRule)
		: SpecifiedColor(FLinearColor(1.0f, 0.0f, 1.0f))
		, ColorUseRule(InColorUseRule)
		, ColorTableId()
	{
	}

	const FLinearColor& GetColorFromTable() const;

protected:
	FLinearColor SpecifiedColor;
	ESlateColorStylingMode ColorUseRule;

private:
	EStyleColor ColorTableId;
};
