#include "Brushes/SlateImageBrush.h"
#include "Containers/StringConv.h"
#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessSlateRenderer.h"
#include "Layout/ArrangedChildren.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "WidgetRenderer.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Layout/SWrapBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <cmath>
#include <string>
#include <gtest/gtest.h>

namespace
{
	class SlateLayout : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
		}
		void TearDown() override { FSlateApplication::Shutdown(); }

		/** A widget that asks for exactly this size. */
		static TSharedRef<SBox> Block(float Width, float Height) { return SNew(SBox).WidthOverride(Width).HeightOverride(Height); }

		/** Lays the widget out as a window's root of the given size and arranges its children, collapsed ones included. */
		static FArrangedChildren Arrange(const TSharedRef<SWidget>& Widget, const FVector2D& Size)
		{
			Widget->SlatePrepass(1.0f);
			FArrangedChildren Children(EVisibility::All);
			Widget->ArrangeChildren(FGeometry::MakeRoot(Size, FSlateLayoutTransform()), Children);
			return Children;
		}

		/** Where a geometry lies in its window, as "x,y widthxheight". */
		static std::string Place(const FGeometry& Geometry)
		{
			const FVector2D Position = Geometry.GetAbsolutePosition();
			const FVector2D Size = Geometry.GetLocalSize();
			return std::string(TCHAR_TO_UTF8(*FString::Printf(TEXT("%g,%g %gx%g"), Position.X, Position.Y, Size.X, Size.Y)));
		}

		static FVector2D MeasureText(const FString& Text, const FSlateFontInfo& Font) { return FSlateApplication::Get().GetRenderer()->GetFontMeasureService()->Measure(Text, Font); }
	};
}

TEST_F(SlateLayout, AutoSlotsStackTheirContentWithTheirPaddings)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Block(30.0f, 10.0f)] + SVerticalBox::Slot().AutoHeight().Padding(FMargin(2.0f, 3.0f, 4.0f, 5.0f))[Block(50.0f, 20.0f)] + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right)[Block(40.0f, 30.0f)];

	const FArrangedChildren Children = Arrange(Box, FVector2D(100.0, 200.0));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(56.0, 68.0));
	ASSERT_EQ(Children.Num(), 3);
	EXPECT_EQ(Place(Children[0].Geometry), "0,0 100x10");
	EXPECT_EQ(Place(Children[1].Geometry), "2,13 94x20");
	EXPECT_EQ(Place(Children[2].Geometry), "60,38 40x30");
}

TEST_F(SlateLayout, FillSlotsShareTheRoomLeftAndStopAtTheirMaxSize)
{
	const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[Block(20.0f, 10.0f)] + SHorizontalBox::Slot().FillWidth(1.0f)[Block(5.0f, 10.0f)] + SHorizontalBox::Slot().FillWidth(3.0f)[Block(5.0f, 10.0f)];
	FArrangedChildren Children = Arrange(Box, FVector2D(200.0, 40.0));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(30.0, 10.0));
	ASSERT_EQ(Children.Num(), 3);
	EXPECT_EQ(Place(Children[1].Geometry), "20,0 45x40");
	EXPECT_EQ(Place(Children[2].Geometry), "65,0 135x40");

	// A capped slot keeps only its max size; the rest of its share stays empty.
	Box->GetSlot(2).SetMaxWidth(60.0f);
	Children = Arrange(Box, FVector2D(200.0, 40.0));
	EXPECT_EQ(Place(Children[1].Geometry), "20,0 45x40");
	EXPECT_EQ(Place(Children[2].Geometry), "65,0 60x40");

	// Paddings are taken before the fill slots share.
	Box->GetSlot(0).SetPadding(FMargin(10.0f, 0.0f));
	Children = Arrange(Box, FVector2D(200.0, 40.0));
	EXPECT_EQ(Place(Children[0].Geometry), "10,0 20x40");
	EXPECT_EQ(Place(Children[1].Geometry), "40,0 40x40");
}

TEST_F(SlateLayout, CollapsedWidgetsTakeNoRoomAndHiddenOnesKeepTheirs)
{
	const TSharedRef<SBox> Middle = Block(30.0f, 20.0f);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Block(30.0f, 10.0f)] + SVerticalBox::Slot().AutoHeight().Padding(2.0f)[Middle] + SVerticalBox::Slot().AutoHeight()[Block(30.0f, 10.0f)];

	Middle->SetVisibility(EVisibility::Hidden);
	FArrangedChildren Children = Arrange(Box, FVector2D(50.0, 100.0));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(34.0, 44.0));
	EXPECT_EQ(Place(Children[2].Geometry), "0,34 50x10");

	Middle->SetVisibility(EVisibility::Collapsed);
	Children = Arrange(Box, FVector2D(50.0, 100.0));
	EXPECT_EQ(Box->GetDesiredSize(), FVector2D(30.0, 20.0));
	EXPECT_EQ(Children[1].Geometry.GetLocalSize().Y, 0.0);
	EXPECT_EQ(Place(Children[2].Geometry), "0,10 50x10");

	// Only visible children are arranged for painting.
	Middle->SetVisibility(EVisibility::Hidden);
	Box->SlatePrepass(1.0f);
	FArrangedChildren Visible(EVisibility::Visible);
	Box->ArrangeChildren(FGeometry::MakeRoot(FVector2D(50.0, 100.0), FSlateLayoutTransform()), Visible);
	EXPECT_EQ(Visible.Num(), 2);
}

TEST_F(SlateLayout, BoxOverridesWinOverContentAndMinMaxClampIt)
{
	const TSharedRef<SBox> Overridden = SNew(SBox).WidthOverride(80.0f).HeightOverride(12.0f)[Block(30.0f, 40.0f)];
	const FArrangedChildren Children = Arrange(Overridden, FVector2D(80.0, 12.0));
	EXPECT_EQ(Overridden->GetDesiredSize(), FVector2D(80.0, 12.0));
	EXPECT_EQ(Place(Children[0].Geometry), "0,0 80x12");

	const TSharedRef<SBox> Clamped = SNew(SBox).MinDesiredWidth(50.0f).MaxDesiredHeight(25.0f).Padding(FMargin(5.0f))[Block(20.0f, 40.0f)];
	Clamped->SlatePrepass(1.0f);
	EXPECT_EQ(Clamped->GetDesiredSize(), FVector2D(50.0, 25.0));

	const TSharedRef<SBox> Roomy = SNew(SBox).MinDesiredWidth(10.0f).MaxDesiredHeight(100.0f).Padding(FMargin(5.0f))[Block(20.0f, 40.0f)];
	Roomy->SlatePrepass(1.0f);
	EXPECT_EQ(Roomy->GetDesiredSize(), FVector2D(30.0, 50.0));

	// A box's alignment places its content inside the padding.
	const TSharedRef<SBox> Centred = SNew(SBox).HAlign(HAlign_Center).VAlign(VAlign_Bottom).Padding(FMargin(0.0f, 0.0f, 0.0f, 4.0f))[Block(20.0f, 10.0f)];
	EXPECT_EQ(Place(Arrange(Centred, FVector2D(100.0, 50.0))[0].Geometry), "40,36 20x10");
}

TEST_F(SlateLayout, OverlayLayersShareTheOverlaysRoom)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay) + SOverlay::Slot()[Block(30.0f, 40.0f)] + SOverlay::Slot().Padding(5.0f).HAlign(HAlign_Right).VAlign(VAlign_Bottom)[Block(10.0f, 10.0f)] + SOverlay::Slot().Padding(FMargin(0.0f, 0.0f, 30.0f, 0.0f))[Block(15.0f, 5.0f)];
	const FArrangedChildren Children = Arrange(Overlay, FVector2D(100.0, 80.0));
	EXPECT_EQ(Overlay->GetDesiredSize(), FVector2D(45.0, 40.0));
	ASSERT_EQ(Children.Num(), 3);
	EXPECT_EQ(Place(Children[0].Geometry), "0,0 100x80");
	EXPECT_EQ(Place(Children[1].Geometry), "85,65 10x10");
	EXPECT_EQ(Place(Children[2].Geometry), "0,0 70x80");
}

TEST_F(SlateLayout, WrapBoxWrapsAtItsPreferredSizeWithInnerPadding)
{
	const TSharedRef<SWrapBox> Wrap = SNew(SWrapBox).PreferredSize(100.0f).InnerSlotPadding(FVector2D(5.0, 4.0)) + SWrapBox::Slot()[Block(40.0f, 10.0f)] + SWrapBox::Slot()[Block(40.0f, 12.0f)] + SWrapBox::Slot()[Block(40.0f, 10.0f)];
	const FArrangedChildren Children = Arrange(Wrap, FVector2D(300.0, 100.0));
	EXPECT_EQ(Wrap->GetDesiredSize(), FVector2D(85.0, 26.0));
	ASSERT_EQ(Children.Num(), 3);
	// Slots fill the height of their line.
	EXPECT_EQ(Place(Children[0].Geometry), "0,0 40x12");
	EXPECT_EQ(Place(Children[1].Geometry), "45,0 40x12");
	EXPECT_EQ(Place(Children[2].Geometry), "0,16 40x10");
}

TEST_F(SlateLayout, WrapBoxUsingItsAllottedSizeWrapsAtTheRoomItIsGiven)
{
	TArray<TSharedRef<SBox>> Blocks;
	const TSharedRef<SWrapBox> Wrap = SNew(SWrapBox).UseAllottedSize(true).InnerSlotPadding(FVector2D(5.0, 0.0));
	for (int32 Index = 0; Index < 5; ++Index)
	{
		Blocks.Add(Block(40.0f, 10.0f));
		Wrap->AddSlot()[Blocks.Last()];
	}

	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Wrap, FVector2D(130.0, 100.0), Elements);
	EXPECT_EQ(Place(Blocks[2]->GetPaintSpaceGeometry()), "90,0 40x10");
	EXPECT_EQ(Place(Blocks[3]->GetPaintSpaceGeometry()), "0,10 40x10");
	EXPECT_EQ(Wrap->GetDesiredSize(), FVector2D(130.0, 20.0));

	FWidgetRenderer::PaintWidget(Wrap, FVector2D(129.0, 100.0), Elements);
	EXPECT_EQ(Place(Blocks[2]->GetPaintSpaceGeometry()), "0,10 40x10");
	EXPECT_EQ(Place(Blocks[4]->GetPaintSpaceGeometry()), "0,20 40x10");
}

TEST_F(SlateLayout, NestedGeometryAccumulatesBorderPaddingAndSlotOffsets)
{
	const TSharedRef<SBox> Inner = Block(20.0f, 10.0f);
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(FMargin(7.0f, 3.0f))[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Block(5.0f, 15.0f)] + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[Inner]];
	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Border, FVector2D(200.0, 100.0), Elements);
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(34.0, 31.0));
	EXPECT_EQ(Place(Inner->GetPaintSpaceGeometry()), "7,18 20x10");
}

TEST_F(SlateLayout, TextAsksForItsMeasuredSizeAndMargin)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 10);
	const TSharedRef<STextBlock> Text = SNew(STextBlock).Text(FText::FromString(TEXT("Livestream"))).Font(Font).Margin(FMargin(3.0f, 2.0f));
	Text->SlatePrepass(1.0f);
	const FVector2D Measured = MeasureText(TEXT("Livestream"), Font);
	EXPECT_EQ(Text->GetDesiredSize(), Measured + FVector2D(6.0, 4.0));

	// Longer text and larger fonts ask for more room.
	Text->SetText(FText::FromString(TEXT("Livestream Wizard")));
	Text->SlatePrepass(1.0f);
	const double LongerWidth = Text->GetDesiredSize().X;
	EXPECT_GT(LongerWidth, Measured.X + 6.0);
	Text->SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 16));
	Text->SlatePrepass(1.0f);
	EXPECT_GT(Text->GetDesiredSize().X, LongerWidth);
	EXPECT_GT(Text->GetDesiredSize().Y, Measured.Y + 4.0);

	// No text still asks for a line's height.
	const TSharedRef<STextBlock> Empty = SNew(STextBlock).Font(Font).MinDesiredWidth(25.0f);
	Empty->SlatePrepass(1.0f);
	EXPECT_EQ(Empty->GetDesiredSize(), FVector2D(25.0, Measured.Y));
}

TEST_F(SlateLayout, TextWrapsWhereItIsAskedTo)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 10);
	const FString Sentence = TEXT("Captures the level and sends it to the outputs");
	const double LineHeight = MeasureText(Sentence, Font).Y;

	const TSharedRef<STextBlock> Fixed = SNew(STextBlock).Text(FText::FromString(Sentence)).Font(Font).WrapTextAt(120.0f);
	Fixed->SlatePrepass(1.0f);
	EXPECT_LE(Fixed->GetDesiredSize().X, 120.0);
	EXPECT_GE(Fixed->GetDesiredSize().Y, 2.0 * LineHeight);
	EXPECT_EQ(std::fmod(Fixed->GetDesiredSize().Y, LineHeight), 0.0);

	// Auto wrapping follows the width the text was given when it was last painted.
	const TSharedRef<STextBlock> Auto = SNew(STextBlock).Text(FText::FromString(Sentence)).Font(Font).AutoWrapText(true);
	const TSharedRef<SHorizontalBox> Narrow = SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[SNew(SBox).WidthOverride(100.0f)[Auto]];
	Auto->SlatePrepass(1.0f);
	EXPECT_EQ(Auto->GetDesiredSize().Y, LineHeight);
	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Narrow, FVector2D(300.0, 300.0), Elements);
	EXPECT_LE(Auto->GetDesiredSize().X, 100.0);
	EXPECT_GE(Auto->GetDesiredSize().Y, 3.0 * LineHeight);
}

TEST_F(SlateLayout, ButtonAddsItsContentPaddingAndItsStylesPadding)
{
	const TSharedRef<SButton> Button = SNew(SButton).Text(FText::FromString(TEXT("Create")));
	Button->SlatePrepass(1.0f);
	const FButtonStyle& Style = FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button");
	const FVector2D Label = MeasureText(TEXT("Create"), FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("ButtonText").Font);
	const FVector2D Padding = (FMargin(4.0f, 2.0f) + Style.NormalPadding).GetDesiredSize();
	EXPECT_EQ(Button->GetDesiredSize(), Label + Padding);

	Button->SetContentPadding(FMargin(0.0f));
	Button->SlatePrepass(1.0f);
	EXPECT_EQ(Button->GetDesiredSize(), Label + Style.NormalPadding.GetDesiredSize());
}

TEST_F(SlateLayout, ImageAsksForItsBrushSize)
{
	const FSlateImageBrush Brush(FString(TEXT("Icon.png")), FVector2D(24.0, 16.0));
	const TSharedRef<SImage> Image = SNew(SImage).Image(&Brush);
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(24.0, 16.0));
	Image->SetDesiredSizeOverride(FVector2D(8.0, 8.0));
	Image->SlatePrepass(1.0f);
	EXPECT_EQ(Image->GetDesiredSize(), FVector2D(8.0, 8.0));
}

TEST_F(SlateLayout, ScrollBoxMakesRoomForItsBarOnlyWhenTheContentIsLonger)
{
	TArray<TSharedRef<SBox>> Blocks;
	const TSharedRef<SScrollBox> Scroll = SNew(SScrollBox);
	for (int32 Index = 0; Index < 2; ++Index)
	{
		Blocks.Add(Block(50.0f, 30.0f));
		Scroll->AddSlot()[Blocks.Last()];
	}
	FSlateWindowElementList Elements(nullptr);
	FWidgetRenderer::PaintWidget(Scroll, FVector2D(100.0, 100.0), Elements);
	EXPECT_EQ(Place(Blocks[0]->GetPaintSpaceGeometry()), "0,0 100x30");
	EXPECT_EQ(Place(Blocks[1]->GetPaintSpaceGeometry()), "0,30 100x30");

	// Longer content: the bar, its thickness and its padding, takes room beside the content.
	for (int32 Index = 2; Index < 10; ++Index)
	{
		Blocks.Add(Block(50.0f, 30.0f));
		Scroll->AddSlot()[Blocks.Last()];
	}
	FWidgetRenderer::PaintWidget(Scroll, FVector2D(100.0, 100.0), Elements);
	const FScrollBoxStyle& Style = FCoreStyle::Get().GetWidgetStyle<FScrollBoxStyle>("ScrollBox");
	const double ContentWidth = 100.0 - Style.BarThickness - 4.0;
	EXPECT_EQ(Blocks[0]->GetPaintSpaceGeometry().GetLocalSize().X, ContentWidth);
	EXPECT_EQ(Scroll->GetScrollOffsetOfEnd(), 300.0f - 99.0f);

	// Scrolled to its end, the last slot ends at the bottom of the view (a pixel above the box's edge).
	Scroll->ScrollToEnd();
	FWidgetRenderer::PaintWidget(Scroll, FVector2D(100.0, 100.0), Elements);
	EXPECT_EQ(Place(Blocks.Last()->GetPaintSpaceGeometry()), std::string(TCHAR_TO_UTF8(*FString::Printf(TEXT("0,69 %gx30"), ContentWidth))));
}
