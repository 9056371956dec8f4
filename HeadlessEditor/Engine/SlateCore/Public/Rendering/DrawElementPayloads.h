#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Textures/SlateShaderResource.h"

/** What a draw element draws, beyond its place: the base of each element type's data. */
struct FSlateDataPayload
{
	virtual ~FSlateDataPayload() {}
};

/** A payload drawn in a colour. */
struct FSlateTintableElement
{
	FLinearColor Tint;

	void SetTint(const FLinearColor& InTint) { Tint = InTint; }
	FLinearColor GetTint() const { return Tint; }
};

/** A brush drawn as a box, a border or an image. */
struct FSlateBoxPayload : public FSlateDataPayload, public FSlateTintableElement
{
	FMargin Margin;
	const FSlateShaderResourceProxy* ResourceProxy = nullptr;
	ESlateBrushTileType::Type Tiling = ESlateBrushTileType::NoTile;
	ESlateBrushDrawType::Type DrawType = ESlateBrushDrawType::Image;

	const FMargin& GetBrushMargin() const { return Margin; }
	ESlateBrushTileType::Type GetBrushTiling() const { return Tiling; }
	ESlateBrushDrawType::Type GetBrushDrawType() const { return DrawType; }
	/** The texture to draw; null for a brush that only fills with its colour. */
	const FSlateShaderResourceProxy* GetResourceProxy() const { return ResourceProxy; }

	void SetBrush(const FSlateBrush* InBrush, FVector2D LocalSize, float DrawScale)
	{
		check(InBrush);
		Margin = InBrush->GetMargin();
		Tiling = InBrush->GetTiling();
		DrawType = InBrush->GetDrawType();
		const FSlateResourceHandle& Handle = InBrush->GetRenderingResource(LocalSize, DrawScale);
		ResourceProxy = Handle.IsValid() ? Handle.GetResourceProxy() : nullptr;
	}
};

/** A box with rounded corners and an outline. */
struct FSlateRoundedBoxPayload : public FSlateBoxPayload
{
	FLinearColor OutlineColor = FLinearColor::Transparent;
	FVector4f Radius = FVector4f(0.0f);
	float OutlineWeight = 0.0f;

	/** The radius of each corner: top left, top right, bottom right, bottom left. */
	void SetRadius(FVector4f InRadius) { Radius = InRadius; }
	FVector4f GetRadius() const { return Radius; }
	void SetOutline(const FLinearColor& InOutlineColor, float InOutlineWeight)
	{
		OutlineColor = InOutlineColor;
		OutlineWeight = InOutlineWeight;
	}
	FLinearColor GetOutlineColor() const { return OutlineColor; }
	float GetOutlineWeight() const { return OutlineWeight; }
};

/** A line of text in a font. */
struct FSlateTextPayload : public FSlateDataPayload, public FSlateTintableElement
{
	FSlateFontInfo FontInfo;
	FString ImmutableText;

	const FSlateFontInfo& GetFontInfo() const { return FontInfo; }
	const TCHAR* GetText() const { return *ImmutableText; }
	int32 GetTextLength() const { return ImmutableText.Len(); }

	void SetText(const FString& InText, const FSlateFontInfo& InFontInfo)
	{
		FontInfo = InFontInfo;
		ImmutableText = InText;
	}
};

/** Connected line segments through points. */
struct FSlateLinePayload : public FSlateDataPayload, public FSlateTintableElement
{
	TArray<FVector2f> Points;
	float Thickness = 1.0f;
	bool bAntialias = true;

	bool IsAntialiased() const { return bAntialias; }
	const TArray<FVector2f>& GetPoints() const { return Points; }
	float GetThickness() const { return Thickness; }
	void SetThickness(float InThickness) { Thickness = InThickness; }
	void SetLines(TArray<FVector2f> InPoints, bool bInAntialias)
	{
		bAntialias = bInAntialias;
		Points = MoveTemp(InPoints);
	}
};
