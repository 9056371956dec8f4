#include "Styling/SlateBrush.h"

#include "Application/SlateApplicationBase.h"
#include "Rendering/SlateRenderer.h"

FSlateBrush::FSlateBrush()
	: ImageSize(32.0, 32.0)
	, Margin(0.0f)
	, TintColor(FLinearColor::White)
	, DrawAs(ESlateBrushDrawType::Image)
	, Tiling(ESlateBrushTileType::NoTile)
	, ImageType(ESlateBrushImageType::NoImage)
{
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FLinearColor& InTint)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
{
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
{
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FSlateColor& InTint)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
{
}

const FSlateResourceHandle& FSlateBrush::GetRenderingResource(FVector2D LocalSize, float DrawScale) const
{
	UpdateRenderingResource(FVector2f(LocalSize), DrawScale);
	return ResourceHandle;
}

const FSlateResourceHandle& FSlateBrush::GetRenderingResource() const
{
	UpdateRenderingResource(FVector2f(ImageSize), 1.0f);
	return ResourceHandle;
}

void FSlateBrush::UpdateRenderingResource(FVector2f LocalSize, float DrawScale) const
{
	// Only brushes that name an image have a texture; colour and rounded boxes draw without one.
	if (DrawAs != ESlateBrushDrawType::NoDrawType && ResourceName != NAME_None && !ResourceHandle.IsValid() && FSlateApplicationBase::IsInitialized())
	{
		if (FSlateRenderer* Renderer = FSlateApplicationBase::Get().GetRenderer())
		{
			ResourceHandle = Renderer->GetResourceHandle(*this, LocalSize, DrawScale);
		}
	}
}
