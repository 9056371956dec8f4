#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"

/** A style set filled in code: it owns the brushes added to it and finds image files under its content root. */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	FSlateStyleSet(const FName& InStyleSetName);
	virtual ~FSlateStyleSet();

	virtual const FName& GetStyleSetName() const override;
	virtual void GetResources(TArray<const FSlateBrush*>& OutResources) const override;

	virtual void SetContentRoot(const FString& InContentRootDir);
	virtual FString RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const WIDECHAR* RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const ANSICHAR* RelativePath);
	virtual FString RootToContentDir(const WIDECHAR* RelativePath);
	virtual FString RootToContentDir(const FString& RelativePath);
	virtual FString GetContentRootDir() const { return ContentRootDir; }

	virtual void SetCoreContentRoot(const FString& InCoreContentRootDir);

	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const ISlateStyle* RequestingStyle = nullptr) const override;
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const override;
	virtual FSlateBrush* GetDefaultBrush() const override;
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual const FLinearColor& GetColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FLinearColor& DefaultValue = FStyleDefaults::GetColor(), const ISlateStyle* RequestingStyle = nullptr) const override;
	virtual const FSlateColor GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateColor& DefaultValue = FStyleDefaults::GetSlateColor(), const ISlateStyle* RequestingStyle = nullptr) const override;
	virtual float GetFloat(const FName PropertyName, const ANSICHAR* Specifier = nullptr, float DefaultValue = FStyleDefaults::GetFloat(), const ISlateStyle* RequestingStyle = nullptr) const override;
	virtual const FMargin& GetMargin(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FMargin& DefaultValue = FStyleDefaults::GetMargin(), const ISlateStyle* RequestingStyle = nullptr) const override;

	/** Adds a brush made with new; the style set owns it from now on and deletes it with itself. */
	template <typename BrushType>
	FORCENOINLINE void Set(const FName PropertyName, BrushType* InBrush)
	{
		SetBrush(PropertyName, InBrush);
	}

	FORCENOINLINE void Set(FName PropertyName, const FSlateFontInfo& InFontInfo)
	{
		FontInfoResources.Add(PropertyName, InFontInfo);
	}

	FORCENOINLINE void Set(const FName PropertyName, const float InFloat)
	{
		FloatValues.Add(PropertyName, InFloat);
	}

	FORCENOINLINE void Set(const FName PropertyName, const FMargin& InMargin)
	{
		MarginValues.Add(PropertyName, InMargin);
	}

	FORCENOINLINE void Set(const FName PropertyName, const FLinearColor& InColor)
	{
		ColorValues.Add(PropertyName, InColor);
	}

	FORCENOINLINE void Set(const FName PropertyName, const FSlateColor& InColor)
	{
		SlateColorValues.Add(PropertyName, InColor);
	}

	/** Adds a copy of a widget style (text, button, check box...) under a name. */
	template <typename DefinitionType>
	FORCENOINLINE void Set(const FName PropertyName, const DefinitionType& InStyleDefintion)
	{
		WidgetStyleValues.Add(PropertyName, MakeShareable(new DefinitionType(InStyleDefintion)));
	}

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName, const FSlateWidgetStyle* DefaultStyle, bool bWarnIfNotFound) const override;

	void SetBrush(const FName PropertyName, FSlateBrush* InBrush);

	/** The name used to identity this style set */
	FName StyleSetName;

	/** This dir is Engine/Editor/Slate folder **/
	FString ContentRootDir;

	/** This dir is Engine/Slate folder to share the items **/
	FString CoreContentRootDir;

	TMap<FName, TSharedRef<struct FSlateWidgetStyle>> WidgetStyleValues;
	TMap<FName, FSlateBrush*> BrushResources;
	TMap<FName, FSlateFontInfo> FontInfoResources;
	TMap<FName, FLinearColor> ColorValues;
	TMap<FName, FSlateColor> SlateColorValues;
	TMap<FName, float> FloatValues;
	TMap<FName, FMargin> MarginValues;

	/** The brush drawn for a key that is missing */
	FSlateBrush* DefaultBrush;
};
