#include "Styling/SlateStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Misc/Paths.h"

FName ISlateStyle::Join(FName First, const ANSICHAR* Second)
{
	if (Second == nullptr)
	{
		return First;
	}
	return FName(*(First.ToString() + FString(Second)));
}

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
	, DefaultBrush(new FSlateImageBrush(TEXT("Slate/Checkerboard.png"), FVector2D(16.0, 16.0), FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Both))
{
}

FSlateStyleSet::~FSlateStyleSet()
{
	for (TPair<FName, FSlateBrush*>& Pair : BrushResources)
	{
		delete Pair.Value;
	}
	delete DefaultBrush;
}

const FName& FSlateStyleSet::GetStyleSetName() const
{
	return StyleSetName;
}

void FSlateStyleSet::GetResources(TArray<const FSlateBrush*>& OutResources) const
{
	for (const TPair<FName, TSharedRef<FSlateWidgetStyle>>& Pair : WidgetStyleValues)
	{
		Pair.Value->GetResources(OutResources);
	}
	for (const TPair<FName, FSlateBrush*>& Pair : BrushResources)
	{
		OutResources.Add(Pair.Value);
	}
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(const FName DesiredTypeName, const FName StyleName, const FSlateWidgetStyle* DefaultStyle, bool bWarnIfNotFound) const
{
	const TSharedRef<FSlateWidgetStyle>* Found = WidgetStyleValues.Find(StyleName);
	if (Found && (*Found)->GetTypeName() == DesiredTypeName)
	{
		return &Found->Get();
	}
	return DefaultStyle;
}

void FSlateStyleSet::SetContentRoot(const FString& InContentRootDir)
{
	ContentRootDir = InContentRootDir;
}

// Every overload forms the same path: the root, the relative path, then the extension if any.
FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension)
{
	return (ContentRootDir / RelativePath) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
{
	return RootToContentDir(FString(RelativePath), Extension);
}

FString FSlateStyleSet::RootToContentDir(const WIDECHAR* RelativePath, const TCHAR* Extension)
{
	return RootToContentDir(FString(RelativePath), Extension);
}

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath)
{
	return RootToContentDir(FString(RelativePath), TEXT(""));
}

FString FSlateStyleSet::RootToContentDir(const WIDECHAR* RelativePath)
{
	return RootToContentDir(FString(RelativePath), TEXT(""));
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath)
{
	return RootToContentDir(RelativePath, TEXT(""));
}

void FSlateStyleSet::SetCoreContentRoot(const FString& InCoreContentRootDir)
{
	CoreContentRootDir = InCoreContentRootDir;
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier, const ISlateStyle* RequestingStyle) const
{
	FSlateBrush* const* Found = BrushResources.Find(Join(PropertyName, Specifier));
	return Found ? *Found : GetDefaultBrush();
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const InDefaultBrush) const
{
	FSlateBrush* const* Found = BrushResources.Find(Join(PropertyName, Specifier));
	return Found ? *Found : InDefaultBrush;
}

FSlateBrush* FSlateStyleSet::GetDefaultBrush() const
{
	return DefaultBrush;
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FSlateFontInfo* Found = FontInfoResources.Find(Join(PropertyName, Specifier));
	return Found ? *Found : FStyleDefaults::GetFontInfo();
}

void FSlateStyleSet::SetBrush(const FName PropertyName, FSlateBrush* InBrush)
{
	// The engine leaks a brush replaced under the same key; the headless editor frees it.
	if (FSlateBrush** Existing = BrushResources.Find(PropertyName))
	{
		delete *Existing;
		*Existing = InBrush;
		return;
	}
	BrushResources.Add(PropertyName, InBrush);
}

const FLinearColor& FSlateStyleSet::GetColor(const FName PropertyName, const ANSICHAR* Specifier, const FLinearColor& DefaultValue, const ISlateStyle* RequestingStyle) const
{
	const FLinearColor* Found = ColorValues.Find(Join(PropertyName, Specifier));
	return Found ? *Found : DefaultValue;
}

const FSlateColor FSlateStyleSet::GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier, const FSlateColor& DefaultValue, const ISlateStyle* RequestingStyle) const
{
	const FName Key = Join(PropertyName, Specifier);
	if (const FSlateColor* Found = SlateColorValues.Find(Key))
	{
		return *Found;
	}
	const FLinearColor* Color = ColorValues.Find(Key);
	return Color ? FSlateColor(*Color) : DefaultValue;
}

float FSlateStyleSet::GetFloat(const FName PropertyName, const ANSICHAR* Specifier, float DefaultValue, const ISlateStyle* RequestingStyle) const
{
	const float* Found = FloatValues.Find(Join(PropertyName, Specifier));
	return Found ? *Found : DefaultValue;
}

const FMargin& FSlateStyleSet::GetMargin(const FName PropertyName, const ANSICHAR* Specifier, const FMargin& DefaultValue, const ISlateStyle* RequestingStyle) const
{
	const FMargin* Found = MarginValues.Find(Join(PropertyName, Specifier));
	return Found ? *Found : DefaultValue;
}
