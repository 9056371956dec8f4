#pragma once

#include "CoreMinimal.h"

class ISlateStyle;
struct FSlateBrush;

/** An icon named by style set and style key, resolved through the style registry when drawn. */
class SLATECORE_API FSlateIcon
{
public:
	/** An unset icon. */
	FSlateIcon();

	FSlateIcon(const FName InStyleSetName, const FName InStyleName, const FName InSmallStyleName = NAME_None, const FName InStatusOverlayStyleName = NAME_None);

	/** The icon's brush: the style set's brush under the style name, or the empty brush when either is missing. */
	const FSlateBrush* GetIcon() const;
	/** As GetIcon, but nullptr when the style set or the key is missing. */
	const FSlateBrush* GetOptionalIcon() const;
	const FSlateBrush* GetSmallIcon() const;
	const FSlateBrush* GetOverlayIcon() const;

	const FName& GetSmallStyleName() const { return SmallStyleName; }
	const FName& GetStyleName() const { return StyleName; }
	const ISlateStyle* GetStyleSet() const;
	const FName& GetStyleSetName() const { return StyleSetName; }
	const bool IsSet() const { return bIsSet; }

	bool operator==(const FSlateIcon& Other) const { return StyleSetName == Other.StyleSetName && StyleName == Other.StyleName && SmallStyleName == Other.SmallStyleName && StatusOverlayStyleName == Other.StatusOverlayStyleName && bIsSet == Other.bIsSet; }
	bool operator!=(const FSlateIcon& Other) const { return !(*this == Other); }

private:
	FName StyleSetName;
	FName StyleName;
	FName SmallStyleName;
	FName StatusOverlayStyleName;
	bool bIsSet;
};
