#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateBrush.h"
#include "Styling/StyleDefaults.h"

/** A named collection of brushes and other style values that widgets look up by key. */
class SLATECORE_API ISlateStyle
{
public:
	ISlateStyle() = default;
	virtual ~ISlateStyle() = default;

	/** @return The name used to identity this style set */
	virtual const FName& GetStyleSetName() const = 0;

	/** Adds every brush this style owns to OutResources. */
	virtual void GetResources(TArray<const FSlateBrush*>& OutResources) const = 0;

	/** The brush under PropertyName (+ Specifier); the style's default brush if there is none. */
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const ISlateStyle* RequestingStyle = nullptr) const = 0;

	/** The brush under PropertyName (+ Specifier); DefaultBrush if there is none. */
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const = 0;

	/** The brush drawn for a missing key. */
	virtual const FSlateBrush* GetDefaultBrush() const = 0;

	/** The font under PropertyName (+ Specifier); the default font if there is none. */
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

protected:
	/** Joins a property name and an optional specifier into the key they are stored under. */
	static FName Join(FName First, const ANSICHAR* Second);
};
