#include "WidgetRenderer.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessSlateRenderer.h"
#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"
#include "Support/PngFile.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
	/** The rectangle of pixels that pass a test, in picture coordinates; empty when none does. */
	struct FInkBounds
	{
		int32 Left = std::numeric_limits<int32>::max();
		int32 Top = std::numeric_limits<int32>::max();
		int32 Right = -1;
		int32 Bottom = -1;

		bool IsEmpty() const { return Right < 0; }
		int32 GetWidth() const { return IsEmpty() ? 0 : Right - Left + 1; }
	};

	template <typename PredicateType>
	FInkBounds FindInk(const FRenderedImage& Image, PredicateType Predicate)
	{
		FInkBounds Bounds;
		for (int32 Y = 0; Y < Image.Height; ++Y)
		{
			for (int32 X = 0; X < Image.Width; ++X)
			{
				if (Predicate(Image.GetPixel(X, Y)))
				{
					Bounds.Left = std::min(Bounds.Left, X);
					Bounds.Top = std::min(Bounds.Top, Y);
					Bounds.Right = std::max(Bounds.Right, X);
					Bounds.Bottom = std::max(Bounds.Bottom, Y);
				}
			}
		}
		return Bounds;
	}

	bool IsBright(const FColor& Pixel)
	{
		return Pixel.A > 0 && Pixel.R > 128;
	}
	bool IsOpaque(const FColor& Pixel)
	{
		return Pixel.A > 0;
	}

	const FSlateColorBrush BlackBrush(FLinearColor(0.0f, 0.0f, 0.0f));

	/** White text on black, after a gap of Offset. */
	TSharedRef<SWidget> MakeTextOnBlack(const TSharedRef<STextBlock>& Text, const FVector2D& Offset)
	{
		return SNew(SBorder).BorderImage(&BlackBrush).Padding(0.0f)[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(SBox).HeightOverride(static_cast<float>(Offset.Y))] + SVerticalBox::Slot().AutoHeight()[SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[SNew(SBox).WidthOverride(static_cast<float>(Offset.X))] + SHorizontalBox::Slot().AutoWidth()[Text]]];
	}

	class WidgetRenderer : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FSlateApplication::Create();
			Renderer = MakeShared<FHeadlessSlateRenderer>();
			FSlateApplication::Get().InitializeRenderer(Renderer.ToSharedRef());
		}
		void TearDown() override
		{
			Renderer.Reset();
			FSlateApplication::Shutdown();
		}

		TSharedPtr<FHeadlessSlateRenderer> Renderer;
	};
}

TEST_F(WidgetRenderer, RenderingTheSameTreeTwiceGivesTheSameBytes)
{
	const TSharedRef<SWidget> Tree = SNew(SBorder).BorderImage(FCoreStyle::Get().GetBrush("Brushes.Panel")).Padding(8.0f)[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("Livestream \u914D\u4FE1")))] + SVerticalBox::Slot().AutoHeight()[SNew(SCheckBox).IsChecked(ECheckBoxState::Checked)[SNew(STextBlock).Text(FText::FromString(TEXT("Spout")))]] + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[SNew(SButton).Text(FText::FromString(TEXT("Create")))]];
	const FRenderedImage First = FWidgetRenderer::RenderWidget(Tree, 160, 90);
	const FRenderedImage Second = FWidgetRenderer::RenderWidget(Tree, 160, 90);
	EXPECT_EQ(First.Width, 160);
	EXPECT_EQ(First.Height, 90);
	EXPECT_GE(First.Stride, 160 * 4);
	EXPECT_TRUE(First.Data == Second.Data);
	// The panel covers the whole picture.
	EXPECT_TRUE(FindInk(First, [](const FColor& Pixel)
		{ return Pixel.A != 255; })
					.IsEmpty());
}

TEST_F(WidgetRenderer, TextInkLiesWhereTheLayoutPutIt)
{
	const TSharedRef<STextBlock> Text = SNew(STextBlock).Text(FText::FromString(TEXT("Castellan"))).ColorAndOpacity(FLinearColor::White);
	const FRenderedImage Image = FWidgetRenderer::RenderWidget(MakeTextOnBlack(Text, FVector2D(30.0, 40.0)), 200, 100);
	const FGeometry& Geometry = Text->GetPaintSpaceGeometry();
	ASSERT_EQ(Geometry.GetAbsolutePosition(), FVector2D(30.0, 40.0));

	const FInkBounds Ink = FindInk(Image, IsBright);
	ASSERT_FALSE(Ink.IsEmpty());
	EXPECT_GE(Ink.Left, 30);
	EXPECT_LE(Ink.Left, 32);
	EXPECT_GE(Ink.Top, 40);
	EXPECT_LE(Ink.Right, 30 + static_cast<int32>(Geometry.GetLocalSize().X));
	EXPECT_LE(Ink.Bottom, 40 + static_cast<int32>(Geometry.GetLocalSize().Y));
	// The glyphs span most of the text's measured width.
	EXPECT_GT(Ink.GetWidth(), Geometry.GetLocalSize().X * 0.8);
}

TEST_F(WidgetRenderer, JapaneseTextIsDrawnFullWidth)
{
	const TSharedRef<STextBlock> Text = SNew(STextBlock).Text(FText::FromString(TEXT("\u914D\u4FE1\u914D\u4FE1"))).Font(FCoreStyle::GetDefaultFontStyle("Regular", 15)).ColorAndOpacity(FLinearColor::White);
	const FRenderedImage Image = FWidgetRenderer::RenderWidget(MakeTextOnBlack(Text, FVector2D(10.0, 10.0)), 160, 60);
	const FInkBounds Ink = FindInk(Image, IsBright);
	// Four ideographs of a 20 pixel em: nearly 80 pixels of ink, and as tall as they are wide.
	ASSERT_FALSE(Ink.IsEmpty());
	EXPECT_GT(Ink.GetWidth(), 70);
	EXPECT_LE(Ink.GetWidth(), 80);
	EXPECT_GT(Ink.Bottom - Ink.Top + 1, 15);
}

TEST_F(WidgetRenderer, ColourBrushesFillTheirAreaAsTheWindowShowsThem)
{
	const FLinearColor Grey(0.5f, 0.5f, 0.5f);
	const FSlateColorBrush GreyBrush(Grey);
	const FRenderedImage Image = FWidgetRenderer::RenderWidget(SNew(SBox).Padding(FMargin(10.0f, 5.0f))[SNew(SBorder).BorderImage(&GreyBrush)], 60, 40);
	// Linear colours reach the picture in sRGB, as the editor's back buffer shows them.
	EXPECT_EQ(Image.GetPixel(30, 20), Grey.ToFColor(true));
	EXPECT_EQ(Image.GetPixel(10, 5), Grey.ToFColor(true));
	EXPECT_EQ(Image.GetPixel(9, 20).A, 0);
	EXPECT_EQ(Image.GetPixel(30, 4).A, 0);
	EXPECT_EQ(Image.GetPixel(50, 20).A, 0);
}

TEST_F(WidgetRenderer, ImagesAreReadFromTheirFiles)
{
	const FSlateImageBrush Icon(FString(TEXT(CASTELLAN_REPOSITORY_ROOT "/Resources/ClassIcons/360Capture_64x.png")), FVector2D(64.0, 64.0));
	const TSharedRef<SWidget> Tree = SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top).Padding(FMargin(20.0f, 10.0f, 0.0f, 0.0f))[SNew(SImage).Image(&Icon)];
	const FInkBounds Ink = FindInk(FWidgetRenderer::RenderWidget(Tree, 100, 80), IsOpaque);
	ASSERT_FALSE(Ink.IsEmpty());
	EXPECT_GE(Ink.Left, 20);
	EXPECT_GE(Ink.Top, 10);
	EXPECT_LT(Ink.Right, 84);
	EXPECT_LT(Ink.Bottom, 74);
	EXPECT_GT(Ink.GetWidth(), 32);

	// After a reload the file is read again.
	Renderer->ReloadTextureResources();
	EXPECT_EQ(Renderer->GetTextureReloadCount(), 1);
	const FInkBounds Reloaded = FindInk(FWidgetRenderer::RenderWidget(Tree, 100, 80), IsOpaque);
	EXPECT_EQ(Reloaded.Left, Ink.Left);
	EXPECT_EQ(Reloaded.Bottom, Ink.Bottom);

	// A brush whose file is missing has no texture: its area is filled with its tint, as the engine draws it.
	const FSlateImageBrush Missing(FString(TEXT(CASTELLAN_REPOSITORY_ROOT "/Resources/ClassIcons/Missing_64x.png")), FVector2D(64.0, 64.0));
	const FRenderedImage Plain = FWidgetRenderer::RenderWidget(SNew(SImage).Image(&Missing), 100, 80);
	EXPECT_TRUE(FindInk(Plain, [](const FColor& Pixel)
		{ return Pixel != FColor(255, 255, 255, 255); })
					.IsEmpty());
}

TEST_F(WidgetRenderer, CheckBoxDrawsTheCoreStylesCheckMarkWhenChecked)
{
	const TSharedRef<SCheckBox> CheckBox = SNew(SCheckBox).IsChecked(ECheckBoxState::Unchecked);
	// The dark editor theme draws the mark in its blue primary colour.
	const auto IsBlue = [](const FColor& Pixel)
	{ return Pixel.A > 0 && Pixel.B > 128 && Pixel.R < 64; };
	EXPECT_TRUE(FindInk(FWidgetRenderer::RenderWidget(CheckBox, 24, 24), IsBlue).IsEmpty());

	CheckBox->SetIsChecked(ECheckBoxState::Checked);
	const FInkBounds Mark = FindInk(FWidgetRenderer::RenderWidget(CheckBox, 24, 24), IsBlue);
	ASSERT_FALSE(Mark.IsEmpty());
	// The mark lies inside the box's image area.
	const FCheckBoxStyle& Style = FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox");
	EXPECT_LT(Mark.Right, static_cast<int32>(Style.CheckedImage.GetImageSize().X) + 2);
	EXPECT_GT(Mark.GetWidth(), 4);
}

TEST_F(WidgetRenderer, PicturesAreSavedAsPngFiles)
{
	const FRenderedImage Image = FWidgetRenderer::RenderWidget(SNew(SButton).Text(FText::FromString(TEXT("Create"))), 80, 30);
	const std::string Path = "/tmp/WidgetRendererTests-" + std::to_string(getpid()) + ".png";
	ASSERT_TRUE(Image.SavePng(FString(Path.c_str())));
	std::string Error;
	const std::optional<FPngInfo> Info = ReadPng(Path, Error);
	std::remove(Path.c_str());
	ASSERT_TRUE(Info.has_value()) << Error;
	EXPECT_EQ(Info->Width, 80u);
	EXPECT_EQ(Info->Height, 30u);

	EXPECT_FALSE(Image.SavePng(TEXT("/nonexistent-directory/picture.png")));
}
