#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateWidgetStyle.h"
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

	/** The widget style of that type under PropertyName (+ Specifier); the type's default style if there is none. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr, const WidgetStyleType* DefaultValue = nullptr) const
	{
		const FSlateWidgetStyle* ExistingStyle = GetWidgetStyleInternal(WidgetStyleType::TypeName, Join(PropertyName, Specifier), DefaultValue, true);
		return ExistingStyle ? *static_cast<const WidgetStyleType*>(ExistingStyle) : WidgetStyleType::GetDefault();
	}

	template <typename WidgetStyleType>
	bool HasWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		return GetWidgetStyleInternal(WidgetStyleType::TypeName, Join(PropertyName, Specifier), nullptr, false) != nullptr;
	}

	/** The colour under PropertyName (+ Specifier); DefaultValue if there is none. */
	virtual const FLinearColor& GetColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FLinearColor& DefaultValue = FStyleDefaults::GetColor(), const ISlateStyle* RequestingStyle = nullptr) const = 0;
	virtual const FSlateColor GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateColor& DefaultValue = FStyleDefaults::GetSlateColor(), const ISlateStyle* RequestingStyle = nullptr) const = 0;

	/** The number under PropertyName (+ Specifier); DefaultValue if there is none. */
	virtual float GetFloat(const FName PropertyName, const ANSICHAR* Specifier = nullptr, float DefaultValue = FStyleDefaults::GetFloat(), const ISlateStyle* RequestingStyle = nullptr) const = 0;

	/** The margin under PropertyName (+ Specifier); DefaultValue if there is none. */
	virtual const FMargin& GetMargin(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FMargin& DefaultValue = FStyleDefaults::GetMargin(), const ISlateStyle* RequestingStyle = nullptr) const = 0;

	/** The brush under PropertyName (+ Specifier); the style's default brush if there is none. */
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const ISlateStyle* RequestingStyle = nullptr) const = 0;

	/** The brush under PropertyName (+ Specifier); DefaultBrush if there is none. */
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const = 0;

	/** The brush drawn for a missing key. */
	virtual FSlateBrush* GetDefaultBrush() const = 0;

	/** The font under PropertyName (+ Specifier); the default font if there is none. */
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Joins a property name and an optional specifier into the key they are stored under. */
	static FName Join(FName First, const ANSICHAR* Second);

protected:
	friend class FSlateStyleSet;

	/** The style of the given type under StyleName; DefaultStyle when there is none. */
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName, const FSlateWidgetStyle* DefaultStyle, bool bWarnIfNotFound) const = 0;
};
