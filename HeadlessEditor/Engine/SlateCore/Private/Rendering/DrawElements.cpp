#include "Rendering/DrawElements.h"

#include "Styling/SlateBrush.h"

#include <algorithm>

namespace
{
	/** Nothing is drawn in an empty area, or inside a clipping zone with no area. */
	bool ShouldCull(const FSlateWindowElementList& ElementList, const FPaintGeometry& PaintGeometry)
	{
		const FVector2D PixelSize = PaintGeometry.GetLocalSize() * static_cast<double>(PaintGeometry.DrawScale);
		if (PixelSize.X <= 0.0 || PixelSize.Y <= 0.0)
		{
			return true;
		}
		const int32 ClippingIndex = ElementList.GetClippingIndex();
		if (ClippingIndex != INDEX_NONE)
		{
			const FSlateClippingState& State = ElementList.GetClippingManager().GetClippingStates()[ClippingIndex];
			return State.ScissorRect.IsSet() && State.ScissorRect.GetValue().GetBoundingBox().GetArea() <= 0.0f;
		}
		return false;
	}

	/** A brush is invisible when it draws nothing, or when both its fill and its outline are transparent. */
	bool ShouldCullBrush(const FSlateWindowElementList& ElementList, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush, const FLinearColor& InTint)
	{
		const bool bFullyTransparent = InTint.A == 0.0f && (InBrush->OutlineSettings.Color.GetSpecifiedColor().A == 0.0f || InBrush->OutlineSettings.bUseBrushTransparency);
		return bFullyTransparent || InBrush->GetDrawType() == ESlateBrushDrawType::NoDrawType || ShouldCull(ElementList, PaintGeometry);
	}
}

FSlateDrawElement::FSlateDrawElement()
	: DataPayload(nullptr)
	, Position(0.0f, 0.0f)
	, LocalSize(0.0f, 0.0f)
	, LayerId(0)
	, ClippingIndex(INDEX_NONE)
	, Scale(1.0f)
	, DrawEffects(ESlateDrawEffect::None)
	, ElementType(EElementType::ET_Box)
{
}

void FSlateDrawElement::Init(FSlateWindowElementList& ElementList, EElementType InElementType, uint32 InLayer, const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects)
{
	Position = PaintGeometry.DrawPosition;
	Scale = PaintGeometry.DrawScale;
	LocalSize = FVector2f(PaintGeometry.GetLocalSize());
	ClippingIndex = ElementList.GetClippingIndex();
	LayerId = static_cast<int32>(InLayer);
	ElementType = InElementType;
	DrawEffects = InDrawEffects;
}

void FSlateDrawElement::MakeDebugQuad(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, FLinearColor Tint)
{
	if (ShouldCull(ElementList, PaintGeometry))
	{
		return;
	}
	FSlateDrawElement& Element = ElementList.AddUninitialized();
	FSlateBoxPayload& Payload = ElementList.CreatePayload<FSlateBoxPayload>(Element);
	Payload.SetTint(Tint);
	Element.Init(ElementList, EElementType::ET_DebugQuad, InLayer, PaintGeometry, ESlateDrawEffect::None);
}

void FSlateDrawElement::MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (ShouldCullBrush(ElementList, PaintGeometry, InBrush, InTint))
	{
		return;
	}

	const ESlateBrushDrawType::Type DrawType = InBrush->GetDrawType();
	const EElementType ElementType = DrawType == ESlateBrushDrawType::Border ? EElementType::ET_Border : DrawType == ESlateBrushDrawType::RoundedBox ? EElementType::ET_RoundedBox
																																					 : EElementType::ET_Box;
	FSlateDrawElement& Element = ElementList.AddUninitialized();
	FSlateBoxPayload* BoxPayload = nullptr;
	if (ElementType == EElementType::ET_RoundedBox)
	{
		FSlateRoundedBoxPayload& RoundedPayload = ElementList.CreatePayload<FSlateRoundedBoxPayload>(Element);
		const FSlateBrushOutlineSettings& Outline = InBrush->OutlineSettings;
		// Half-height corners make the ends of a wide box round.
		const float HalfHeight = static_cast<float>(PaintGeometry.GetLocalSize().Y / 2.0);
		RoundedPayload.SetRadius(Outline.RoundingType == ESlateBrushRoundingType::HalfHeightRadius ? FVector4f(HalfHeight, HalfHeight, HalfHeight, HalfHeight) : FVector4f(Outline.CornerRadii));
		const FLinearColor OutlineColor = Outline.Color.GetSpecifiedColor();
		RoundedPayload.SetOutline(Outline.bUseBrushTransparency ? OutlineColor.CopyWithNewOpacity(InTint.A) : OutlineColor, Outline.Width);
		BoxPayload = &RoundedPayload;
	}
	else
	{
		BoxPayload = &ElementList.CreatePayload<FSlateBoxPayload>(Element);
	}
	BoxPayload->SetTint(InTint);
	BoxPayload->SetBrush(InBrush, PaintGeometry.GetLocalSize(), PaintGeometry.DrawScale);
	Element.Init(ElementList, ElementType, InLayer, PaintGeometry, InDrawEffects);
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (InText.Len() == 0 || InTint.A == 0.0f || ShouldCull(ElementList, PaintGeometry))
	{
		return;
	}
	FSlateDrawElement& Element = ElementList.AddUninitialized();
	FSlateTextPayload& Payload = ElementList.CreatePayload<FSlateTextPayload>(Element);
	Payload.SetTint(InTint);
	Payload.SetText(InText, InFontInfo);
	Element.Init(ElementList, EElementType::ET_Text, InLayer, PaintGeometry, InDrawEffects);
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText, const int32 StartIndex, const int32 EndIndex, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	const int32 Start = std::min(std::max(StartIndex, 0), InText.Len());
	const int32 End = std::min(std::max(EndIndex, Start), InText.Len());
	MakeText(ElementList, InLayer, PaintGeometry, InText.Mid(Start, End - Start), InFontInfo, InDrawEffects, InTint);
}

void FSlateDrawElement::MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const TArray<FVector2d>& Points, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, bool bAntialias, float Thickness)
{
	TArray<FVector2f> FloatPoints;
	for (const FVector2d& Point : Points)
	{
		FloatPoints.Add(FVector2f(Point));
	}
	MakeLines(ElementList, InLayer, PaintGeometry, MoveTemp(FloatPoints), InDrawEffects, InTint, bAntialias, Thickness);
}

void FSlateDrawElement::MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, TArray<FVector2f> Points, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, bool bAntialias, float Thickness)
{
	if (Points.Num() < 2 || InTint.A == 0.0f)
	{
		return;
	}
	FSlateDrawElement& Element = ElementList.AddUninitialized();
	FSlateLinePayload& Payload = ElementList.CreatePayload<FSlateLinePayload>(Element);
	Payload.SetTint(InTint);
	Payload.SetThickness(Thickness);
	Payload.SetLines(MoveTemp(Points), bAntialias);
	Element.Init(ElementList, EElementType::ET_Line, InLayer, PaintGeometry, InDrawEffects);
}

FSlateWindowElementList::FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow)
	: WeakPaintWindow(InPaintWindow)
	, RawPaintWindow(InPaintWindow.Get())
{
}

FSlateWindowElementList::~FSlateWindowElementList() = default;

FSlateDrawElement& FSlateWindowElementList::AddUninitialized()
{
	return UncachedDrawElements.AddDefaulted_GetRef();
}

int32 FSlateWindowElementList::PushClip(const FSlateClippingZone& InClipZone)
{
	return ClippingManager.PushClip(InClipZone);
}

int32 FSlateWindowElementList::GetClippingIndex() const
{
	return ClippingManager.GetClippingIndex();
}

void FSlateWindowElementList::PopClip()
{
	ClippingManager.PopClip();
}

void FSlateWindowElementList::ResetElementList()
{
	UncachedDrawElements.Reset();
	Payloads.Reset();
	ClippingManager.ResetClippingState();
}
