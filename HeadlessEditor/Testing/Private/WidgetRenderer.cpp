#include "WidgetRenderer.h"

#include "Containers/StringConv.h"
#include "HeadlessFonts.h"
#include "HeadlessTextures.h"
#include "Input/HittestGrid.h"
#include "Layout/Geometry.h"
#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"
#include "Widgets/SWidget.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <cstring>

namespace
{
	/** The disabled effect fades what it draws, as the engine's element shader does. */
	const float DisabledOpacity = 0.45f;

	/** The colour to give Cairo: linear colours become sRGB, as the editor's back buffer shows them. */
	void SetSourceColor(cairo_t* Context, const FLinearColor& Color, ESlateDrawEffect Effects)
	{
		const FColor SRGB = Color.ToFColor(true);
		const double Alpha = std::min(std::max(static_cast<double>(Color.A), 0.0), 1.0) * (EnumHasAnyFlags(Effects, ESlateDrawEffect::DisabledEffect) ? DisabledOpacity : 1.0);
		cairo_set_source_rgba(Context, SRGB.R / 255.0, SRGB.G / 255.0, SRGB.B / 255.0, Alpha);
	}

	/** A rectangle with rounded corners: top left, top right, bottom right, bottom left. */
	void AddRoundedRectangle(cairo_t* Context, double X, double Y, double Width, double Height, FVector4f Radii)
	{
		const double Limit = std::min(Width, Height) / 2.0;
		const double TopLeft = std::min(static_cast<double>(Radii.X), Limit);
		const double TopRight = std::min(static_cast<double>(Radii.Y), Limit);
		const double BottomRight = std::min(static_cast<double>(Radii.Z), Limit);
		const double BottomLeft = std::min(static_cast<double>(Radii.W), Limit);
		const double Quarter = M_PI / 2.0;
		cairo_new_sub_path(Context);
		cairo_arc(Context, X + Width - TopRight, Y + TopRight, TopRight, -Quarter, 0.0);
		cairo_arc(Context, X + Width - BottomRight, Y + Height - BottomRight, BottomRight, 0.0, Quarter);
		cairo_arc(Context, X + BottomLeft, Y + Height - BottomLeft, BottomLeft, Quarter, 2.0 * Quarter);
		cairo_arc(Context, X + TopLeft, Y + TopLeft, TopLeft, 2.0 * Quarter, 3.0 * Quarter);
		cairo_close_path(Context);
	}

	/** Where an element is drawn, in picture pixels. */
	struct FElementRect
	{
		double X;
		double Y;
		double Width;
		double Height;
	};

	FElementRect GetElementRect(const FSlateDrawElement& Element)
	{
		const FVector2D Position = Element.GetPosition();
		const FVector2D Size = Element.GetLocalSize() * static_cast<double>(Element.GetScale());
		return {Position.X, Position.Y, Size.X, Size.Y};
	}

	cairo_surface_t* GetTextureSurface(const FSlateBoxPayload& Payload)
	{
		const FSlateShaderResourceProxy* Proxy = Payload.GetResourceProxy();
		return Proxy && Proxy->Resource ? static_cast<FHeadlessTexture*>(Proxy->Resource)->GetSurface() : nullptr;
	}

	/**
	 * Paints the current source through the image: the image's colours multiplied by the tint, its
	 * alpha kept. A white image takes the tint's colour.
	 */
	void PaintTintedImage(cairo_t* Context, cairo_pattern_t* ImagePattern, const FLinearColor& Tint, ESlateDrawEffect Effects)
	{
		const double Opacity = std::min(std::max(static_cast<double>(Tint.A), 0.0), 1.0) * (EnumHasAnyFlags(Effects, ESlateDrawEffect::DisabledEffect) ? DisabledOpacity : 1.0);
		cairo_push_group(Context);
		cairo_set_source(Context, ImagePattern);
		cairo_paint(Context);
		if (Tint.R != 1.0f || Tint.G != 1.0f || Tint.B != 1.0f)
		{
			cairo_set_operator(Context, CAIRO_OPERATOR_MULTIPLY);
			SetSourceColor(Context, Tint.CopyWithNewOpacity(1.0f), ESlateDrawEffect::None);
			cairo_paint(Context);
			cairo_set_operator(Context, CAIRO_OPERATOR_DEST_IN);
			cairo_set_source(Context, ImagePattern);
			cairo_paint(Context);
		}
		cairo_pop_group_to_source(Context);
		cairo_set_operator(Context, CAIRO_OPERATOR_OVER);
		cairo_paint_with_alpha(Context, Opacity);
	}

	/** An image stretched over a rectangle, or tiled at its own size. */
	void DrawImage(cairo_t* Context, cairo_surface_t* Surface, const FElementRect& Rect, const FSlateBoxPayload& Payload, float Scale, ESlateDrawEffect Effects)
	{
		const double ImageWidth = cairo_image_surface_get_width(Surface);
		const double ImageHeight = cairo_image_surface_get_height(Surface);
		cairo_pattern_t* Pattern = cairo_pattern_create_for_surface(Surface);
		cairo_matrix_t Matrix;
		if (Payload.GetBrushTiling() == ESlateBrushTileType::NoTile)
		{
			cairo_matrix_init_scale(&Matrix, ImageWidth / Rect.Width, ImageHeight / Rect.Height);
		}
		else
		{
			cairo_matrix_init_scale(&Matrix, 1.0 / Scale, 1.0 / Scale);
			cairo_pattern_set_extend(Pattern, CAIRO_EXTEND_REPEAT);
		}
		cairo_matrix_translate(&Matrix, -Rect.X, -Rect.Y);
		cairo_pattern_set_matrix(Pattern, &Matrix);
		cairo_pattern_set_filter(Pattern, CAIRO_FILTER_GOOD);
		cairo_save(Context);
		cairo_rectangle(Context, Rect.X, Rect.Y, Rect.Width, Rect.Height);
		cairo_clip(Context);
		PaintTintedImage(Context, Pattern, Payload.GetTint(), Effects);
		cairo_restore(Context);
		cairo_pattern_destroy(Pattern);
	}

	/**
	 * A box image in nine parts: the margin (a fraction of the image) marks the corners, which keep
	 * their size; the edges stretch along and the middle both ways. A border leaves the middle out.
	 */
	void DrawBoxImage(cairo_t* Context, cairo_surface_t* Surface, const FElementRect& Rect, const FSlateBoxPayload& Payload, float Scale, ESlateDrawEffect Effects)
	{
		const double ImageWidth = cairo_image_surface_get_width(Surface);
		const double ImageHeight = cairo_image_surface_get_height(Surface);
		const FMargin& Margin = Payload.GetBrushMargin();
		const double SourceX[4] = {0.0, Margin.Left * ImageWidth, ImageWidth - Margin.Right * ImageWidth, ImageWidth};
		const double SourceY[4] = {0.0, Margin.Top * ImageHeight, ImageHeight - Margin.Bottom * ImageHeight, ImageHeight};
		const double DestX[4] = {Rect.X, Rect.X + SourceX[1] * Scale, Rect.X + Rect.Width - (ImageWidth - SourceX[2]) * Scale, Rect.X + Rect.Width};
		const double DestY[4] = {Rect.Y, Rect.Y + SourceY[1] * Scale, Rect.Y + Rect.Height - (ImageHeight - SourceY[2]) * Scale, Rect.Y + Rect.Height};
		const bool bBorder = Payload.GetBrushDrawType() == ESlateBrushDrawType::Border;
		for (int32 Row = 0; Row < 3; ++Row)
		{
			for (int32 Column = 0; Column < 3; ++Column)
			{
				const double Width = DestX[Column + 1] - DestX[Column];
				const double Height = DestY[Row + 1] - DestY[Row];
				const double SourceWidth = SourceX[Column + 1] - SourceX[Column];
				const double SourceHeight = SourceY[Row + 1] - SourceY[Row];
				if ((bBorder && Row == 1 && Column == 1) || Width <= 0.0 || Height <= 0.0 || SourceWidth <= 0.0 || SourceHeight <= 0.0)
				{
					continue;
				}
				cairo_pattern_t* Pattern = cairo_pattern_create_for_surface(Surface);
				cairo_matrix_t Matrix;
				cairo_matrix_init_translate(&Matrix, SourceX[Column], SourceY[Row]);
				cairo_matrix_scale(&Matrix, SourceWidth / Width, SourceHeight / Height);
				cairo_matrix_translate(&Matrix, -DestX[Column], -DestY[Row]);
				cairo_pattern_set_matrix(Pattern, &Matrix);
				cairo_pattern_set_extend(Pattern, CAIRO_EXTEND_PAD);
				cairo_save(Context);
				cairo_rectangle(Context, DestX[Column], DestY[Row], Width, Height);
				cairo_clip(Context);
				PaintTintedImage(Context, Pattern, Payload.GetTint(), Effects);
				cairo_restore(Context);
				cairo_pattern_destroy(Pattern);
			}
		}
	}

	void DrawBox(cairo_t* Context, const FSlateDrawElement& Element)
	{
		const FSlateBoxPayload& Payload = Element.GetDataPayload<FSlateBoxPayload>();
		const FElementRect Rect = GetElementRect(Element);
		cairo_surface_t* Surface = GetTextureSurface(Payload);
		if (Surface == nullptr)
		{
			// A brush without an image fills its area with its colour.
			SetSourceColor(Context, Payload.GetTint(), Element.GetDrawEffects());
			cairo_rectangle(Context, Rect.X, Rect.Y, Rect.Width, Rect.Height);
			cairo_fill(Context);
		}
		else if (Payload.GetBrushDrawType() == ESlateBrushDrawType::Box || Payload.GetBrushDrawType() == ESlateBrushDrawType::Border)
		{
			DrawBoxImage(Context, Surface, Rect, Payload, Element.GetScale(), Element.GetDrawEffects());
		}
		else
		{
			DrawImage(Context, Surface, Rect, Payload, Element.GetScale(), Element.GetDrawEffects());
		}
	}

	/** A filled box with rounded corners, then its outline inside its edge. */
	void DrawRoundedBox(cairo_t* Context, const FSlateDrawElement& Element)
	{
		const FSlateRoundedBoxPayload& Payload = Element.GetDataPayload<FSlateRoundedBoxPayload>();
		const FElementRect Rect = GetElementRect(Element);
		const float Scale = Element.GetScale();
		const FVector4f Radii(Payload.GetRadius().X * Scale, Payload.GetRadius().Y * Scale, Payload.GetRadius().Z * Scale, Payload.GetRadius().W * Scale);
		cairo_new_path(Context);
		AddRoundedRectangle(Context, Rect.X, Rect.Y, Rect.Width, Rect.Height, Radii);
		if (cairo_surface_t* Surface = GetTextureSurface(Payload))
		{
			cairo_save(Context);
			cairo_clip(Context);
			DrawImage(Context, Surface, Rect, Payload, Scale, Element.GetDrawEffects());
			cairo_restore(Context);
		}
		else
		{
			SetSourceColor(Context, Payload.GetTint(), Element.GetDrawEffects());
			cairo_fill(Context);
		}
		const double OutlineWidth = Payload.GetOutlineWeight() * Scale;
		if (OutlineWidth > 0.0 && Payload.GetOutlineColor().A > 0.0f)
		{
			const double Inset = OutlineWidth / 2.0;
			const FVector4f InnerRadii(std::max(0.0, Radii.X - Inset), std::max(0.0, Radii.Y - Inset), std::max(0.0, Radii.Z - Inset), std::max(0.0, Radii.W - Inset));
			cairo_new_path(Context);
			AddRoundedRectangle(Context, Rect.X + Inset, Rect.Y + Inset, Rect.Width - OutlineWidth, Rect.Height - OutlineWidth, InnerRadii);
			SetSourceColor(Context, Payload.GetOutlineColor(), Element.GetDrawEffects());
			cairo_set_line_width(Context, OutlineWidth);
			cairo_stroke(Context);
		}
	}

	/** A line of text in its font, with its line box's top-left corner at the element's position. */
	void DrawText(cairo_t* Context, const FSlateDrawElement& Element)
	{
		const FSlateTextPayload& Payload = Element.GetDataPayload<FSlateTextPayload>();
		const FVector2D Position = Element.GetPosition();
		SetSourceColor(Context, Payload.GetTint(), Element.GetDrawEffects());
		cairo_move_to(Context, Position.X, Position.Y);
		UE::Headless::DrawTextLine(Context, FString(Payload.GetText()), Payload.GetFontInfo(), Element.GetScale());
	}

	void DrawLines(cairo_t* Context, const FSlateDrawElement& Element)
	{
		const FSlateLinePayload& Payload = Element.GetDataPayload<FSlateLinePayload>();
		const FVector2D Position = Element.GetPosition();
		const double Scale = Element.GetScale();
		cairo_new_path(Context);
		for (const FVector2f& Point : Payload.GetPoints())
		{
			cairo_line_to(Context, Position.X + Point.X * Scale, Position.Y + Point.Y * Scale);
		}
		SetSourceColor(Context, Payload.GetTint(), Element.GetDrawEffects());
		cairo_set_line_width(Context, std::max(1.0, Payload.GetThickness() * Scale));
		cairo_set_antialias(Context, Payload.IsAntialiased() ? CAIRO_ANTIALIAS_GRAY : CAIRO_ANTIALIAS_NONE);
		cairo_stroke(Context);
		cairo_set_antialias(Context, CAIRO_ANTIALIAS_DEFAULT);
	}

	void DrawElement(cairo_t* Context, const FSlateDrawElement& Element)
	{
		switch (Element.GetElementType())
		{
			case EElementType::ET_Box:
			case EElementType::ET_Border:
			case EElementType::ET_DebugQuad:
				DrawBox(Context, Element);
				break;
			case EElementType::ET_RoundedBox:
				DrawRoundedBox(Context, Element);
				break;
			case EElementType::ET_Text:
				DrawText(Context, Element);
				break;
			case EElementType::ET_Line:
				DrawLines(Context, Element);
				break;
			default:
				break;
		}
	}

	/** Cuts what follows to the element's clipping zone, if it was made inside one. */
	void ApplyClipping(cairo_t* Context, const FSlateWindowElementList& Elements, const FSlateDrawElement& Element)
	{
		const int32 ClippingIndex = Element.GetPrecachedClippingIndex();
		if (ClippingIndex == INDEX_NONE)
		{
			return;
		}
		const FSlateClippingState& State = Elements.GetClippingManager().GetClippingStates()[ClippingIndex];
		if (State.ScissorRect.IsSet())
		{
			const FSlateRect Box = State.ScissorRect.GetValue().GetBoundingBox();
			cairo_rectangle(Context, Box.Left, Box.Top, Box.Right - Box.Left, Box.Bottom - Box.Top);
			cairo_clip(Context);
		}
	}
}

namespace
{
	/**
	 * Widgets that follow what they were given in the last frame (wrapping text, wrap boxes, scroll
	 * bars) take a few frames to settle; an editor paints frames all the time, so this many is plenty.
	 */
	const int32 MaxFramesToSettle = 8;

	/** Where a frame drew an element: frames that draw the same places have settled. */
	struct FElementPlace
	{
		EElementType Type;
		int32 Layer;
		FVector2D Position;
		FVector2D Size;

		bool operator==(const FElementPlace& Other) const { return Type == Other.Type && Layer == Other.Layer && Position == Other.Position && Size == Other.Size; }
	};

	/** The pixels of a 32-bit Cairo surface. */
	FRenderedImage CopyPicture(cairo_surface_t* Surface)
	{
		cairo_surface_flush(Surface);
		FRenderedImage Image;
		Image.Width = cairo_image_surface_get_width(Surface);
		Image.Height = cairo_image_surface_get_height(Surface);
		Image.Stride = cairo_image_surface_get_stride(Surface);
		Image.Data = TArray<uint8>(cairo_image_surface_get_data(Surface), Image.Stride * Image.Height);
		return Image;
	}

	TArray<FElementPlace> GetElementPlaces(const FSlateWindowElementList& Elements)
	{
		TArray<FElementPlace> Places;
		for (const FSlateDrawElement& Element : Elements.GetUncachedDrawElements())
		{
			Places.Add({Element.GetElementType(), Element.GetLayer(), Element.GetPosition(), Element.GetLocalSize()});
		}
		return Places;
	}
}

FColor FRenderedImage::GetPixel(int32 X, int32 Y) const
{
	check(X >= 0 && X < Width && Y >= 0 && Y < Height);
	uint32 Word = 0;
	std::memcpy(&Word, &Data[Y * Stride + X * 4], sizeof(Word));
	const uint8 Alpha = static_cast<uint8>(Word >> 24);
	// Cairo keeps colours premultiplied by alpha; the straight colour is what a PNG viewer shows.
	const auto Straight = [Alpha](uint32 Channel)
	{ return static_cast<uint8>(Alpha == 0 ? 0 : std::min<uint32>(255, (Channel * 255 + Alpha / 2) / Alpha)); };
	return FColor(Straight((Word >> 16) & 0xFF), Straight((Word >> 8) & 0xFF), Straight(Word & 0xFF), Alpha);
}

bool FRenderedImage::SavePng(const FString& Path) const
{
	cairo_surface_t* Surface = cairo_image_surface_create_for_data(const_cast<uint8*>(Data.GetData()), CAIRO_FORMAT_ARGB32, Width, Height, Stride);
	const cairo_status_t Status = cairo_surface_write_to_png(Surface, TCHAR_TO_UTF8(*Path));
	cairo_surface_destroy(Surface);
	return Status == CAIRO_STATUS_SUCCESS;
}

TOptional<FRenderedImage> FRenderedImage::LoadPng(const FString& Path)
{
	cairo_surface_t* Surface = cairo_image_surface_create_from_png(TCHAR_TO_UTF8(*Path));
	if (cairo_surface_status(Surface) != CAIRO_STATUS_SUCCESS)
	{
		cairo_surface_destroy(Surface);
		return TOptional<FRenderedImage>();
	}
	// Cairo reads every PNG into its own 32-bit format, so pictures compare pixel for pixel with rendered ones.
	cairo_surface_t* Converted = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, cairo_image_surface_get_width(Surface), cairo_image_surface_get_height(Surface));
	cairo_t* Context = cairo_create(Converted);
	cairo_set_source_surface(Context, Surface, 0.0, 0.0);
	cairo_set_operator(Context, CAIRO_OPERATOR_SOURCE);
	cairo_paint(Context);
	cairo_destroy(Context);
	cairo_surface_destroy(Surface);
	FRenderedImage Image = CopyPicture(Converted);
	cairo_surface_destroy(Converted);
	return Image;
}

void FWidgetRenderer::PaintWidget(const TSharedRef<SWidget>& Widget, const FVector2D& Size, FSlateWindowElementList& OutElements)
{
	// The window's content inherits the app style's default foreground, as an editor window gives it.
	const FWidgetStyle WindowStyle = FWidgetStyle().SetForegroundColor(FAppStyle::Get().GetSlateColor("DefaultForeground").GetColor(FWidgetStyle()));
	const FGeometry WindowGeometry = FGeometry::MakeRoot(Size, FSlateLayoutTransform());
	const FSlateRect WindowRect(0.0f, 0.0f, static_cast<float>(Size.X), static_cast<float>(Size.Y));
	FHittestGrid HittestGrid;
	TArray<FElementPlace> PreviousPlaces;
	for (int32 Frame = 0; Frame < MaxFramesToSettle; ++Frame)
	{
		OutElements.ResetElementList();
		Widget->SlatePrepass(1.0f);
		const FPaintArgs PaintArgs(nullptr, HittestGrid, FVector2D(0.0, 0.0), Frame / 60.0, 1.0f / 60.0f);
		Widget->Paint(PaintArgs, WindowGeometry, WindowRect, OutElements, 0, WindowStyle, true);
		TArray<FElementPlace> Places = GetElementPlaces(OutElements);
		if (Frame > 0 && Places == PreviousPlaces)
		{
			return;
		}
		PreviousPlaces = MoveTemp(Places);
	}
}

FRenderedImage FWidgetRenderer::Rasterize(const FSlateWindowElementList& Elements, int32 Width, int32 Height)
{
	cairo_surface_t* Surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, Width, Height);
	cairo_t* Context = cairo_create(Surface);

	// Layers draw bottom to top; within a layer, elements draw in the order they were made.
	const FSlateDrawElementArray& DrawElements = Elements.GetUncachedDrawElements();
	TArray<int32> Order;
	for (int32 Index = 0; Index < DrawElements.Num(); ++Index)
	{
		Order.Add(Index);
	}
	Order.StableSort([&DrawElements](int32 A, int32 B)
		{ return DrawElements[A].GetLayer() < DrawElements[B].GetLayer(); });
	for (const int32 Index : Order)
	{
		cairo_save(Context);
		ApplyClipping(Context, Elements, DrawElements[Index]);
		DrawElement(Context, DrawElements[Index]);
		cairo_restore(Context);
	}

	cairo_destroy(Context);
	FRenderedImage Image = CopyPicture(Surface);
	cairo_surface_destroy(Surface);
	return Image;
}

FRenderedImage FWidgetRenderer::RenderWidget(const TSharedRef<SWidget>& Widget, int32 Width, int32 Height)
{
	FSlateWindowElementList Elements(nullptr);
	PaintWidget(Widget, FVector2D(Width, Height), Elements);
	return Rasterize(Elements, Width, Height);
}
