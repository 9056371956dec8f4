#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Clipping.h"
#include "Layout/PaintGeometry.h"
#include "Rendering/DrawElementPayloads.h"
#include "Rendering/RenderingCommon.h"
#include "Templates/UniquePtr.h"

class FSlateWindowElementList;
class SWindow;
struct FSlateBrush;

/** The kinds of draw element. */
enum class EElementType : uint8
{
	ET_Box,
	ET_DebugQuad,
	ET_Text,
	ET_ShapedText,
	ET_Spline,
	ET_Line,
	ET_Gradient,
	ET_Viewport,
	ET_Border,
	ET_Custom,
	ET_CustomVerts,
	ET_PostProcessPass,
	ET_RoundedBox,
	ET_Count,
};

/**
 * One thing a widget draws: a box, a text, lines... with its place in the window, its layer and its
 * effects. Widgets make them in OnPaint with the Make functions; renderers draw them by layer.
 */
class FSlateDrawElement
{
	friend class FSlateWindowElementList;

public:
	/** A quad of the given tint, for debugging. */
	SLATECORE_API static void MakeDebugQuad(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, FLinearColor Tint = FLinearColor::White);

	/** A brush drawn as its type says (box, border, image, rounded box), tinted. Nothing for an empty area or a brush that draws nothing. */
	SLATECORE_API static void MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	/** A line of text with the top of its line box at the geometry's origin. Nothing for empty text. */
	SLATECORE_API static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);
	/** The characters from StartIndex up to EndIndex. */
	SLATECORE_API static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText, const int32 StartIndex, const int32 EndIndex, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FText& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White)
	{
		MakeText(ElementList, InLayer, PaintGeometry, InText.ToString(), InFontInfo, InDrawEffects, InTint);
	}

	/** Line segments through points given in the geometry's local space. */
	SLATECORE_API static void MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const TArray<FVector2d>& Points, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White, bool bAntialias = true, float Thickness = 1.0f);
	SLATECORE_API static void MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, TArray<FVector2f> Points, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White, bool bAntialias = true, float Thickness = 1.0f);

	FSlateDrawElement();

	int32 GetLayer() const { return LayerId; }
	EElementType GetElementType() const { return ElementType; }

	template <typename PayloadType>
	const PayloadType& GetDataPayload() const
	{
		return *static_cast<const PayloadType*>(DataPayload);
	}

	/** Where the element is drawn in its window. */
	FVector2D GetPosition() const { return FVector2D(Position); }
	/** The element's size in its local space; the scale takes it to window pixels. */
	FVector2D GetLocalSize() const { return FVector2D(LocalSize); }
	float GetScale() const { return Scale; }
	ESlateDrawEffect GetDrawEffects() const { return DrawEffects; }
	bool IsPixelSnapped() const { return !EnumHasAllFlags(DrawEffects, ESlateDrawEffect::NoPixelSnapping); }
	/** The clipping state the element was made in, in the element list's clipping manager; INDEX_NONE when unclipped. */
	int32 GetPrecachedClippingIndex() const { return ClippingIndex; }

private:
	void Init(FSlateWindowElementList& ElementList, EElementType InElementType, uint32 InLayer, const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects);

	FSlateDataPayload* DataPayload;
	FVector2f Position;
	FVector2f LocalSize;
	int32 LayerId;
	int32 ClippingIndex;
	float Scale;
	ESlateDrawEffect DrawEffects;
	EElementType ElementType;
};

typedef TArray<FSlateDrawElement> FSlateDrawElementArray;

/** The draw elements of a window, in the order its widgets made them, with their clipping. */
class FSlateWindowElementList
{
public:
	SLATECORE_API explicit FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow);
	SLATECORE_API ~FSlateWindowElementList();

	FSlateWindowElementList(const FSlateWindowElementList&) = delete;
	FSlateWindowElementList& operator=(const FSlateWindowElementList&) = delete;

	/** The window the elements are painted for; null when painting without one. */
	SWindow* GetPaintWindow() const { return WeakPaintWindow.IsValid() ? RawPaintWindow : nullptr; }

	/** The elements, in the order they were made. */
	const FSlateDrawElementArray& GetUncachedDrawElements() const { return UncachedDrawElements; }

	/** Makes the element's payload, which the list owns. */
	template <typename PayloadType>
	PayloadType& CreatePayload(FSlateDrawElement& DrawElement)
	{
		PayloadType* Payload = new PayloadType();
		Payloads.Add(TUniquePtr<FSlateDataPayload>(Payload));
		DrawElement.DataPayload = Payload;
		return *Payload;
	}

	/** Adds an element for a Make function to fill in. */
	SLATECORE_API FSlateDrawElement& AddUninitialized();

	/** Clips the elements made from now on to a zone, until PopClip. */
	SLATECORE_API int32 PushClip(const FSlateClippingZone& InClipZone);
	SLATECORE_API int32 GetClippingIndex() const;
	SLATECORE_API void PopClip();
	FSlateClippingManager& GetClippingManager() { return ClippingManager; }
	const FSlateClippingManager& GetClippingManager() const { return ClippingManager; }

	/** Forgets every element, to paint again. */
	SLATECORE_API void ResetElementList();

private:
	TWeakPtr<SWindow> WeakPaintWindow;
	SWindow* RawPaintWindow;
	FSlateDrawElementArray UncachedDrawElements;
	TArray<TUniquePtr<FSlateDataPayload>> Payloads;
	FSlateClippingManager ClippingManager;
};
