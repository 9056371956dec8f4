#include "Framework/Application/SlateApplication.h"
#include "HeadlessDialogs.h"
#include "HeadlessSlateRenderer.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Support/PaintedScene.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SWindow.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "MessageDialogWindowTests"

namespace
{
	class MessageDialogWindow : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
		}

		virtual void TearDown() override { FSlateApplication::Shutdown(); }

		/** The dialog painted as its autosized window shows it. */
		static FPaintedScene Paint(const TSharedRef<SWidget>& Dialog)
		{
			Dialog->SlatePrepass(1.0f);
			return FPaintedScene(Dialog, Dialog->GetDesiredSize());
		}

		/** The labels of the dialog's buttons, left to right (the title bar's buttons have none). */
		static TArray<FString> GetButtonLabels(const TSharedRef<SWidget>& Dialog)
		{
			TArray<FString> Labels;
			for (const TSharedRef<SWidget>& Button : FWidgetDriver::FindAllWidgets(Dialog, TEXT("SButton")))
			{
				const FString Label = FWidgetDriver::GetDisplayedText(Button).Get(TEXT(""));
				if (FWidgetDriver::IsShown(Button) && !Label.IsEmpty())
				{
					Labels.Add(Label);
				}
			}
			return Labels;
		}
	};

	TEST_F(MessageDialogWindow, AnOkBoxIsTitledMessageAndShowsEachLineOfTheTextAndOnePrimaryOkButton)
	{
		const TSharedRef<SWidget> Dialog = UE::Headless::MakeMessageDialogWidget(EAppMsgType::Ok, FText::FromString(TEXT("Plugin Version: 1.2 \nEngine Version: 5.1.0")));

		EXPECT_EQ(StaticCastSharedRef<SWindow>(Dialog)->GetTitle().ToString(), TEXT("Message"));
		EXPECT_EQ(StaticCastSharedRef<SWindow>(Dialog)->GetSizingRule(), ESizingRule::Autosized);
		const FPaintedScene Scene = Paint(Dialog);
		EXPECT_TRUE(FWidgetDriver::FindWidget(Dialog, TEXT("STextBlock"), FString(TEXT("Plugin Version: 1.2 \nEngine Version: 5.1.0"))).IsValid());
		EXPECT_EQ(Scene.GetTextsTopToBottom(), TArray<FString>({TEXT("Message"), TEXT("Plugin Version: 1.2"), TEXT("Engine Version: 5.1.0"), TEXT("Copy Message"), TEXT("OK")}));
		// The lines stand one under the other, beside the warning sign.
		const FPaintedScene::FLine* First = Scene.FindLine(TEXT("Plugin Version: 1.2"));
		const FPaintedScene::FLine* Second = Scene.FindLine(TEXT("Engine Version: 5.1.0"));
		EXPECT_EQ(First->Rect.Left, Second->Rect.Left);
		EXPECT_GE(Second->Rect.Top, First->Rect.Bottom);
		const TArray<FSlateRect> Signs = Scene.FindImage(*FAppStyle::Get().GetBrush("Icons.WarningWithColor.Large"));
		ASSERT_EQ(Signs.Num(), 1);
		EXPECT_FLOAT_EQ(Signs[0].Right - Signs[0].Left, 24.0f);
		EXPECT_LT(Signs[0].Right, First->Rect.Left);

		// The one button, at the bottom right in the primary colour, in a cell at least 80 wide of which 16 keep it apart.
		EXPECT_EQ(GetButtonLabels(Dialog), TArray<FString>({TEXT("OK")}));
		const TSharedPtr<SButton> Ok = FWidgetDriver::Find<SButton>(Dialog, TEXT("SButton"), FString(TEXT("OK")));
		ASSERT_TRUE(Ok.IsValid());
		EXPECT_EQ(Ok->GetPaintSpaceGeometry().GetLocalSize().X, 80.0 - 16.0);
		EXPECT_GT(Scene.FindLine(TEXT("OK"))->Rect.Left, Scene.FindLine(TEXT("Copy Message"))->Rect.Right);
		const FRenderedImage Image = FWidgetRenderer::RenderWidget(Dialog, static_cast<int32>(Dialog->GetDesiredSize().X), static_cast<int32>(Dialog->GetDesiredSize().Y));
		const FVector2D OkCorner = Ok->GetPaintSpaceGeometry().GetAbsolutePosition();
		EXPECT_EQ(Image.GetPixel(static_cast<int32>(OkCorner.X) + 6, static_cast<int32>(OkCorner.Y) + 6), FLinearColor(FColor::FromHex(TEXT("0070E0FF"))).ToFColor(true));
	}

	TEST_F(MessageDialogWindow, AGivenTitleReplacesMessage)
	{
		const FText Title = LOCTEXT("Title", "Delete Assets");
		const TSharedRef<SWidget> Dialog = UE::Headless::MakeMessageDialogWidget(EAppMsgType::Ok, LOCTEXT("Body", "Done."), &Title);

		const FPaintedScene Scene = Paint(Dialog);
		EXPECT_NE(Scene.FindLine(TEXT("Delete Assets")), nullptr);
		EXPECT_EQ(Scene.FindLine(TEXT("Message")), nullptr);
	}

	TEST_F(MessageDialogWindow, EachKindOfBoxOffersItsButtonsInOrder)
	{
		EXPECT_EQ(GetButtonLabels(UE::Headless::MakeMessageDialogWidget(EAppMsgType::YesNo, LOCTEXT("Question", "Replace?"))), TArray<FString>({TEXT("Yes"), TEXT("No")}));
		EXPECT_EQ(GetButtonLabels(UE::Headless::MakeMessageDialogWidget(EAppMsgType::OkCancel, LOCTEXT("Question", "Replace?"))), TArray<FString>({TEXT("OK"), TEXT("Cancel")}));
		EXPECT_EQ(GetButtonLabels(UE::Headless::MakeMessageDialogWidget(EAppMsgType::CancelRetryContinue, LOCTEXT("Question", "Replace?"))), TArray<FString>({TEXT("Continue"), TEXT("Retry"), TEXT("Cancel")}));
	}

	TEST_F(MessageDialogWindow, TheTitleBarOffersOnlyTheCloseButton)
	{
		const TSharedRef<SWidget> Dialog = UE::Headless::MakeMessageDialogWidget(EAppMsgType::Ok, LOCTEXT("Body", "Done."));
		const FWindowStyle& Style = FAppStyle::Get().GetWidgetStyle<FWindowStyle>("Window");

		const FPaintedScene Scene = Paint(Dialog);
		EXPECT_EQ(Scene.FindImage(Style.CloseButtonStyle.Normal).Num(), 1);
		EXPECT_EQ(Scene.FindImage(Style.MinimizeButtonStyle.Normal).Num(), 0);
		EXPECT_EQ(Scene.FindImage(Style.MaximizeButtonStyle.Normal).Num(), 0);
	}

	TEST_F(MessageDialogWindow, TheWindowDrawsTheSameBytesEveryTime)
	{
		const TSharedRef<SWidget> Dialog = UE::Headless::MakeMessageDialogWidget(EAppMsgType::Ok, FText::FromString(TEXT("Plugin Version: 1.2 \nEngine Version: 5.1.0")));
		Dialog->SlatePrepass(1.0f);
		const int32 Width = static_cast<int32>(Dialog->GetDesiredSize().X);
		const int32 Height = static_cast<int32>(Dialog->GetDesiredSize().Y);

		EXPECT_TRUE(FWidgetRenderer::RenderWidget(Dialog, Width, Height).Data == FWidgetRenderer::RenderWidget(Dialog, Width, Height).Data);
	}
}

#undef LOCTEXT_NAMESPACE
