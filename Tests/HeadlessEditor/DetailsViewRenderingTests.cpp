#include "DetailLayoutBuilder.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "KyroScreenCapture.h"
#include "Rendering/DrawElementPayloads.h"
#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "WidgetRenderer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{
	/** A text the view drew: where, in which font and colour. */
	struct FDrawnText
	{
		FSlateRect Rect;
		FSlateFontInfo Font;
		FLinearColor Color;
	};

	/** The details panel's colours in the editor's dark theme, as sRGB. */
	const FColor HeaderColor(0x2F, 0x2F, 0x2F);
	const FColor PanelColor(0x24, 0x24, 0x24);
	const FColor NestedPanelColor(0x28, 0x28, 0x28);
	const FColor GridLineColor(0x1A, 0x1A, 0x1A);

	/**
	 * A screen capture's default rows, all open: the "Screen Capture" category, its "Options" struct
	 * and the struct's members one level in. The editor module is not loaded, so nothing customises them.
	 */
	class DetailsViewRendering : public ::testing::Test
	{
	protected:
		DetailsViewRendering()
			: Session(MakeOptions())
			, Driver({GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroScreenCapture>()})
		{
			Driver.ExpandAll();
			FWidgetRenderer::PaintWidget(Driver.GetDetailsView(), FVector2D(Width, Height), Elements);
			Image = FWidgetRenderer::Rasterize(Elements, Width, Height);
		}

		static FHeadlessEditorOptions MakeOptions()
		{
			FHeadlessEditorOptions Options;
			Options.bStartEditorModule = false;
			return Options;
		}

		FDrawnText FindText(const FString& Text) const
		{
			for (const FSlateDrawElement& Element : Elements.GetUncachedDrawElements())
			{
				const FSlateTextPayload* Payload = Element.GetElementType() == EElementType::ET_Text ? &Element.GetDataPayload<FSlateTextPayload>() : nullptr;
				if (Payload && Text.Equals(Payload->GetText()))
				{
					const FVector2D Size = Element.GetLocalSize() * static_cast<double>(Element.GetScale());
					return {FSlateRect(Element.GetPosition(), Element.GetPosition() + Size), Payload->GetFontInfo(), Payload->GetTint()};
				}
			}
			ADD_FAILURE() << "Nothing drew " << TCHAR_TO_UTF8(*Text);
			return {FSlateRect(0.0f, 0.0f, 0.0f, 0.0f), FSlateFontInfo(), FLinearColor::Transparent};
		}

		/** The middle of the row whose name is Label, in picture rows. */
		int32 RowMiddle(const FString& Label) const
		{
			const FSlateRect Rect = FindText(Label).Rect;
			return static_cast<int32>((Rect.Top + Rect.Bottom) / 2.0f);
		}

		/** The leftmost and rightmost columns, within [Left, Right), where a row's pixels are brighter than its background. */
		TPair<int32, int32> FindInk(int32 Row, int32 Left, int32 Right) const
		{
			TPair<int32, int32> Ink(INDEX_NONE, INDEX_NONE);
			for (int32 RowY = Row - 6; RowY <= Row + 6; ++RowY)
			{
				for (int32 X = Left; X < Right; ++X)
				{
					const FColor Pixel = Image.GetPixel(X, RowY);
					if (std::max({Pixel.R, Pixel.G, Pixel.B}) > 0x80)
					{
						Ink.Key = Ink.Key == INDEX_NONE ? X : std::min(Ink.Key, X);
						Ink.Value = std::max(Ink.Value, X);
					}
				}
			}
			return Ink;
		}

		static constexpr int32 Width = 480;
		static constexpr int32 Height = 260;

		FHeadlessEditorSession Session;
		FDetailsViewDriver Driver;
		FSlateWindowElementList Elements{nullptr};
		FRenderedImage Image;
	};
}

TEST_F(DetailsViewRendering, CategoryHeadersAreBarsWithTheirNameInBoldHeaderText)
{
	const FDrawnText Name = FindText(TEXT("Screen Capture"));
	EXPECT_EQ(Name.Font, FAppStyle::GetFontStyle(TEXT("DetailsView.CategoryFontStyle")));
	EXPECT_EQ(Name.Font.TypefaceFontName, FName(TEXT("Bold")));
	EXPECT_EQ(Name.Color.ToFColor(true), FColor(0xC8, 0xC8, 0xC8));
	// The bar spans the row behind the name, and a grid line closes it.
	const int32 Middle = RowMiddle(TEXT("Screen Capture"));
	EXPECT_EQ(Image.GetPixel(Width / 2, Middle), HeaderColor);
	EXPECT_EQ(Image.GetPixel(Width - 2, Middle), HeaderColor);
	EXPECT_EQ(Image.GetPixel(Width / 2, static_cast<int32>(FindText(TEXT("Options")).Rect.Top) - 7), GridLineColor);
}

TEST_F(DetailsViewRendering, LabelsAreDrawnInTheNameColumnInTheDetailFontAndValuesInTheValueColumn)
{
	const FDrawnText Label = FindText(TEXT("Window Name"));
	EXPECT_EQ(Label.Font, IDetailLayoutBuilder::GetDetailFont());
	const int32 Middle = RowMiddle(TEXT("Window Name"));

	// The one-unit handle between the columns is drawn in the grid line's colour.
	const int32 Handle = 185;
	EXPECT_EQ(Image.GetPixel(Handle, Middle + 8), GridLineColor);
	EXPECT_NE(Image.GetPixel(Handle - 1, Middle + 8), GridLineColor);

	// The label's ink lies where its text was drawn, left of the handle; the value's right of it.
	const TPair<int32, int32> LabelInk = FindInk(Middle, 0, Handle);
	EXPECT_GE(LabelInk.Key, static_cast<int32>(Label.Rect.Left));
	EXPECT_LE(LabelInk.Value, static_cast<int32>(Label.Rect.Right) + 1);
	const TPair<int32, int32> CheckInk = FindInk(RowMiddle(TEXT("Capture Cursor")), Handle + 1, Width);
	EXPECT_GT(CheckInk.Key, Handle + 12);
}

TEST_F(DetailsViewRendering, NestedRowsAreALittleLighterRightOfTheirIndent)
{
	const int32 Struct = RowMiddle(TEXT("Options"));
	const int32 Member = RowMiddle(TEXT("Active"));
	EXPECT_EQ(Image.GetPixel(Width / 2, Struct + 8), PanelColor);
	EXPECT_EQ(Image.GetPixel(Width / 2, Member + 8), NestedPanelColor);
	// The indent keeps the outer level's shade.
	EXPECT_EQ(Image.GetPixel(8, Member), PanelColor);
	EXPECT_EQ(Image.GetPixel(24, Member + 8), NestedPanelColor);
	// The member's name starts one indent step right of the struct's.
	EXPECT_FLOAT_EQ(FindText(TEXT("Active")).Rect.Left - FindText(TEXT("Options")).Rect.Left, 16.0f);
}

TEST_F(DetailsViewRendering, TheSameViewDrawsTheSamePicture)
{
	FSlateWindowElementList Again(nullptr);
	FWidgetRenderer::PaintWidget(Driver.GetDetailsView(), FVector2D(Width, Height), Again);
	EXPECT_EQ(FWidgetRenderer::Rasterize(Again, Width, Height).Data, Image.Data);
}
