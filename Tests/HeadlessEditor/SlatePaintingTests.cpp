#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Containers/StringConv.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessSlateRenderer.h"
#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Styling/WidgetStyle.h"
#include "WidgetRenderer.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
	class SlatePainting : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
		}
		void TearDown() override { FSlateApplication::Shutdown(); }

		/** Paints the widget as the root of a window of the given size. */
		void Paint(const TSharedRef<SWidget>& Widget, const FVector2D& Size = FVector2D(200.0, 100.0))
		{
			Elements.ResetElementList();
			FWidgetRenderer::PaintWidget(Widget, Size, Elements);
		}

		const FSlateDrawElementArray& Painted() const { return Elements.GetUncachedDrawElements(); }

		/** The index of the text element showing this text; fails the test when there is none. */
		int32 FindText(const FString& Text) const
		{
			for (int32 Index = 0; Index < Painted().Num(); ++Index)
			{
				if (Painted()[Index].GetElementType() == EElementType::ET_Text && FString(Painted()[Index].GetDataPayload<FSlateTextPayload>().GetText()) == Text)
				{
					return Index;
				}
			}
			ADD_FAILURE() << "No text element shows " << TCHAR_TO_UTF8(*Text);
			return INDEX_NONE;
		}

		/** The index of the first box element in this tint. */
		int32 FindBox(const FLinearColor& Tint) const
		{
			for (int32 Index = 0; Index < Painted().Num(); ++Index)
			{
				if (Painted()[Index].GetElementType() == EElementType::ET_Box && Painted()[Index].GetDataPayload<FSlateBoxPayload>().GetTint() == Tint)
				{
					return Index;
				}
			}
			ADD_FAILURE() << "No box element in the tint";
			return INDEX_NONE;
		}

		FSlateWindowElementList Elements{nullptr};
	};

	const FSlateColorBrush RedBrush(FLinearColor(1.0f, 0.0f, 0.0f));
	const FSlateColorBrush GreenBrush(FLinearColor(0.0f, 1.0f, 0.0f));
	const FSlateColorBrush BlueBrush(FLinearColor(0.0f, 0.0f, 1.0f));
}

TEST_F(SlatePainting, ParentsPaintBeneathTheirChildren)
{
	Paint(SNew(SBorder).BorderImage(&RedBrush).Padding(5.0f)[SNew(STextBlock).Text(FText::FromString(TEXT("Stage")))]);
	const int32 Box = FindBox(FLinearColor(1.0f, 0.0f, 0.0f));
	const int32 Text = FindText(TEXT("Stage"));
	ASSERT_NE(Box, INDEX_NONE);
	ASSERT_NE(Text, INDEX_NONE);
	EXPECT_LT(Box, Text);
	EXPECT_LT(Painted()[Box].GetLayer(), Painted()[Text].GetLayer());
	EXPECT_EQ(Painted()[Box].GetPosition(), FVector2D(0.0, 0.0));
	EXPECT_EQ(Painted()[Box].GetLocalSize(), FVector2D(200.0, 100.0));
}

TEST_F(SlatePainting, SiblingsShareALayerAndOverlayLayersPaintAboveThoseBefore)
{
	Paint(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(SBorder).BorderImage(&RedBrush)[SNew(STextBlock).Text(FText::FromString(TEXT("First")))]] + SVerticalBox::Slot().AutoHeight()[SNew(SBorder).BorderImage(&GreenBrush)]);
	const int32 Red = FindBox(FLinearColor(1.0f, 0.0f, 0.0f));
	const int32 Green = FindBox(FLinearColor(0.0f, 1.0f, 0.0f));
	ASSERT_NE(Red, INDEX_NONE);
	ASSERT_NE(Green, INDEX_NONE);
	EXPECT_LT(Red, Green);
	EXPECT_EQ(Painted()[Red].GetLayer(), Painted()[Green].GetLayer());

	Paint(SNew(SOverlay) + SOverlay::Slot()[SNew(SBorder).BorderImage(&RedBrush)[SNew(STextBlock).Text(FText::FromString(TEXT("Under")))]] + SOverlay::Slot()[SNew(SBorder).BorderImage(&GreenBrush)] + SOverlay::Slot()[SNew(SBorder).BorderImage(&BlueBrush)]);
	const int32 Under = FindText(TEXT("Under"));
	const int32 Middle = FindBox(FLinearColor(0.0f, 1.0f, 0.0f));
	const int32 Top = FindBox(FLinearColor(0.0f, 0.0f, 1.0f));
	ASSERT_NE(Under, INDEX_NONE);
	ASSERT_NE(Middle, INDEX_NONE);
	ASSERT_NE(Top, INDEX_NONE);
	EXPECT_GT(Painted()[Middle].GetLayer(), Painted()[Under].GetLayer());
	EXPECT_GT(Painted()[Top].GetLayer(), Painted()[Middle].GetLayer());
}

TEST_F(SlatePainting, TextElementCarriesItsFontColourAndPlace)
{
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Bold", 14);
	const FLinearColor Orange(1.0f, 0.5f, 0.0f);
	Paint(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(SBox).HeightOverride(20.0f)] + SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("Stage"))).Font(Font).ColorAndOpacity(Orange).Margin(FMargin(4.0f, 3.0f))]);
	const int32 Text = FindText(TEXT("Stage"));
	ASSERT_NE(Text, INDEX_NONE);
	const FSlateTextPayload& Payload = Painted()[Text].GetDataPayload<FSlateTextPayload>();
	EXPECT_EQ(Payload.GetFontInfo().Size, 14);
	EXPECT_EQ(Payload.GetFontInfo().TypefaceFontName, FName("Bold"));
	EXPECT_EQ(Payload.GetTint(), Orange);
	EXPECT_EQ(Painted()[Text].GetPosition(), FVector2D(4.0, 23.0));
}

TEST_F(SlatePainting, TextWithoutAColourTakesItsParentsForeground)
{
	const FLinearColor Green(0.0f, 1.0f, 0.0f);
	const TSharedRef<STextBlock> Label = SNew(STextBlock).Text(FText::FromString(TEXT("Stage")));
	Paint(SNew(SBorder).ForegroundColor(Green)[Label]);
	ASSERT_NE(FindText(TEXT("Stage")), INDEX_NONE);
	EXPECT_EQ(Painted()[FindText(TEXT("Stage"))].GetDataPayload<FSlateTextPayload>().GetTint(), Green);

	// The window's default foreground otherwise, in the style's default font.
	Paint(Label);
	ASSERT_NE(FindText(TEXT("Stage")), INDEX_NONE);
	const FSlateTextPayload& Payload = Painted()[FindText(TEXT("Stage"))].GetDataPayload<FSlateTextPayload>();
	EXPECT_EQ(Payload.GetTint(), FCoreStyle::Get().GetSlateColor("DefaultForeground").GetSpecifiedColor());
	EXPECT_EQ(Payload.GetFontInfo(), FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText").Font);
}

TEST_F(SlatePainting, DisabledWidgetsPaintWithTheDisabledEffect)
{
	const FButtonStyle& Style = FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button");
	const TSharedRef<SButton> Button = SNew(SButton).Text(FText::FromString(TEXT("Create")));
	Paint(Button);
	ASSERT_EQ(Painted().Num(), 2);
	EXPECT_EQ(Painted()[0].GetDataPayload<FSlateBoxPayload>().GetTint(), Style.Normal.GetTint(FWidgetStyle()));
	EXPECT_EQ(Painted()[0].GetDrawEffects(), ESlateDrawEffect::None);
	EXPECT_EQ(Painted()[1].GetDrawEffects(), ESlateDrawEffect::None);

	// The button draws its disabled brush and disabled foreground; its text is drawn disabled.
	Button->SetEnabled(false);
	Paint(Button);
	ASSERT_EQ(Painted().Num(), 2);
	EXPECT_EQ(Painted()[0].GetDataPayload<FSlateBoxPayload>().GetTint(), Style.Disabled.GetTint(FWidgetStyle()));
	const int32 Text = FindText(TEXT("Create"));
	ASSERT_NE(Text, INDEX_NONE);
	EXPECT_TRUE(EnumHasAnyFlags(Painted()[Text].GetDrawEffects(), ESlateDrawEffect::DisabledEffect));
	EXPECT_EQ(Painted()[Text].GetDataPayload<FSlateTextPayload>().GetTint(), Style.DisabledForeground.GetColor(FWidgetStyle()));

	// A disabled parent disables what it holds.
	const TSharedRef<STextBlock> Label = SNew(STextBlock).Text(FText::FromString(TEXT("Inside")));
	Paint(SNew(SBorder).IsEnabled(false)[Label]);
	ASSERT_NE(FindText(TEXT("Inside")), INDEX_NONE);
	EXPECT_TRUE(EnumHasAnyFlags(Painted()[FindText(TEXT("Inside"))].GetDrawEffects(), ESlateDrawEffect::DisabledEffect));
}

TEST_F(SlatePainting, HiddenAndCollapsedWidgetsPaintNothing)
{
	const TSharedRef<SBorder> Hidden = SNew(SBorder).BorderImage(&RedBrush).Visibility(EVisibility::Hidden)[SNew(STextBlock).Text(FText::FromString(TEXT("Hidden")))];
	const TSharedRef<SBorder> Collapsed = SNew(SBorder).BorderImage(&GreenBrush).Visibility(EVisibility::Collapsed)[SNew(STextBlock).Text(FText::FromString(TEXT("Collapsed")))];
	Paint(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Hidden] + SVerticalBox::Slot().AutoHeight()[Collapsed] + SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("Shown")))]);
	ASSERT_EQ(Painted().Num(), 1);
	ASSERT_NE(FindText(TEXT("Shown")), INDEX_NONE);
	// The hidden border still holds its place above the shown text.
	EXPECT_GT(Painted()[0].GetPosition().Y, 0.0);
}

TEST_F(SlatePainting, ImagesPaintTheirBrushTintedAtTheirSize)
{
	const FSlateImageBrush Icon(FString(TEXT(CASTELLAN_REPOSITORY_ROOT "/Resources/ClassIcons/360Capture_16x.png")), FVector2D(16.0, 16.0));
	const FLinearColor Tint(0.5f, 1.0f, 1.0f);
	Paint(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top).Padding(3.0f)[SNew(SImage).Image(&Icon).ColorAndOpacity(Tint)]);
	ASSERT_EQ(Painted().Num(), 1);
	const FSlateDrawElement& Element = Painted()[0];
	EXPECT_EQ(Element.GetElementType(), EElementType::ET_Box);
	EXPECT_EQ(Element.GetPosition(), FVector2D(3.0, 3.0));
	EXPECT_EQ(Element.GetLocalSize(), FVector2D(16.0, 16.0));
	const FSlateBoxPayload& Payload = Element.GetDataPayload<FSlateBoxPayload>();
	EXPECT_EQ(Payload.GetTint(), Tint);
	EXPECT_EQ(Payload.GetBrushDrawType(), ESlateBrushDrawType::Image);
	ASSERT_NE(Payload.GetResourceProxy(), nullptr);
	EXPECT_EQ(Payload.GetResourceProxy()->ActualSize, FIntPoint(16, 16));
}

TEST_F(SlatePainting, ClippingWidgetsClipWhatTheyHoldToTheirBounds)
{
	Paint(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(SBox).HeightOverride(10.0f)] + SVerticalBox::Slot().AutoHeight()[SNew(SBox).WidthOverride(30.0f).HeightOverride(12.0f).Clipping(EWidgetClipping::ClipToBounds)[SNew(STextBlock).Text(FText::FromString(TEXT("A line longer than its box")))]] + SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("Free")))]);
	const int32 Clipped = FindText(TEXT("A line longer than its box"));
	const int32 Free = FindText(TEXT("Free"));
	ASSERT_NE(Clipped, INDEX_NONE);
	ASSERT_NE(Free, INDEX_NONE);
	EXPECT_EQ(Painted()[Free].GetPrecachedClippingIndex(), INDEX_NONE);
	const int32 ClippingIndex = Painted()[Clipped].GetPrecachedClippingIndex();
	ASSERT_NE(ClippingIndex, INDEX_NONE);
	const FSlateClippingState& State = Elements.GetClippingManager().GetClippingStates()[ClippingIndex];
	ASSERT_TRUE(State.ScissorRect.IsSet());
	const FSlateRect Box = State.ScissorRect.GetValue().GetBoundingBox();
	EXPECT_EQ(Box, FSlateRect(0.0f, 10.0f, 200.0f, 22.0f));
}
