#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

struct FSlateColor;

/** What a widget hands its content when painting: the tint it applies and the foreground colour. */
class SLATECORE_API FWidgetStyle
{
public:
	FWidgetStyle()
		: ColorAndOpacityTint(FLinearColor::White)
		, ForegroundColor(FLinearColor::White)
		, SubduedForeground(FLinearColor::White * SubdueAmount)
	{
	}

	FWidgetStyle& BlendColorAndOpacityTint(const FLinearColor& InTint)
	{
		ColorAndOpacityTint *= InTint;
		return *this;
	}

	FWidgetStyle& BlendOpacity(float InOpacity)
	{
		ColorAndOpacityTint.A *= InOpacity;
		return *this;
	}

	FWidgetStyle& SetForegroundColor(const FLinearColor& InForeground)
	{
		ForegroundColor = InForeground;
		SubduedForeground = InForeground;
		SubduedForeground.A *= SubdueAmount;
		return *this;
	}

	/** Sets the foreground from a colour that may itself use the current foreground. */
	FWidgetStyle& SetForegroundColor(const TAttribute<FSlateColor>& InForeground);

	const FLinearColor& GetColorAndOpacityTint() const { return ColorAndOpacityTint; }
	const FLinearColor& GetForegroundColor() const { return ForegroundColor; }
	const FLinearColor& GetSubduedForegroundColor() const { return SubduedForeground; }

private:
	FLinearColor ColorAndOpacityTint;
	FLinearColor ForegroundColor;
	FLinearColor SubduedForeground;

	static const float SubdueAmount;
};
