#include "AuthDelegates.h"
#include "HeadlessEditorSession.h"
#include "HeadlessNotifications.h"
#include "HeadlessSaveGames.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/PaintedScene.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Notifications/SNotificationList.h"

#include <gtest/gtest.h>

namespace
{
	/** The toast of an announced version, as the module shows it. */
	TSharedRef<SNotificationItem> Announce()
	{
		AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
		check(UE::Headless::GetNotifications().Num() == 1);
		return UE::Headless::GetNotifications()[0];
	}

	/** The toast painted on its own, at the size it asks for. */
	FPaintedScene PaintAtDesiredSize(const TSharedRef<SWidget>& Widget)
	{
		Widget->SlatePrepass(1.0f);
		return FPaintedScene(Widget, Widget->GetDesiredSize());
	}

	const FSlateBrush& GetNotificationLogo()
	{
		return *FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle"))->GetBrush(TEXT("KyroCastellan.PluginNotificationIcon"));
	}

	class UpdateToast : public ::testing::Test
	{
	protected:
		virtual void SetUp() override { UE::Headless::ClearSaveGames(); }
		virtual void TearDown() override { UE::Headless::ClearSaveGames(); }
	};
}

TEST_F(UpdateToast, TheCardIs420WideWithTheLogoBesideTheTextAndTheButtonsBelowInOrder)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SNotificationItem> Toast = Announce();
	const FPaintedScene Scene = PaintAtDesiredSize(Toast);

	// The width override, plus the card's padding on either side.
	EXPECT_EQ(Toast->GetDesiredSize().X, 420.0 + 2.0 * 16.0);
	EXPECT_EQ(Scene.GetTextsTopToBottom(), TArray<FString>({TEXT("Nimbrel Castellan Upgrade"), TEXT("Version 1.4 Available"), TEXT("Download now"), TEXT("Remind me later"), TEXT("Skip version")}));
	const FPaintedScene::FLine* Title = Scene.FindLine(TEXT("Nimbrel Castellan Upgrade"));
	const FPaintedScene::FLine* Download = Scene.FindLine(TEXT("Download now"));
	const FPaintedScene::FLine* Remind = Scene.FindLine(TEXT("Remind me later"));
	const FPaintedScene::FLine* Skip = Scene.FindLine(TEXT("Skip version"));
	EXPECT_EQ(Title->Font.TypefaceFontName, FName(TEXT("Bold")));
	EXPECT_EQ(Title->Font.Size, 12);
	// The buttons share a row at the card's right, in the order the module gave them.
	EXPECT_EQ(Download->Rect.Top, Remind->Rect.Top);
	EXPECT_EQ(Remind->Rect.Top, Skip->Rect.Top);
	EXPECT_LT(Download->Rect.Right, Remind->Rect.Left);
	EXPECT_LT(Remind->Rect.Right, Skip->Rect.Left);
	EXPECT_GT(Skip->Rect.Right, 400.0f);
	// The text's closing line break leaves an empty line above the buttons.
	EXPECT_GT(Download->Rect.Top, Scene.FindLine(TEXT("Version 1.4 Available"))->Rect.Bottom + 15.0f);

	// The 80 unit logo is drawn at 32 at the card's left, inside the spinner of the pending task.
	const TArray<FSlateRect> Logos = Scene.FindImage(GetNotificationLogo());
	ASSERT_EQ(Logos.Num(), 1);
	EXPECT_FLOAT_EQ(Logos[0].Right - Logos[0].Left, 32.0f);
	EXPECT_FLOAT_EQ(Logos[0].Bottom - Logos[0].Top, 32.0f);
	EXPECT_LT(Logos[0].Right, Title->Rect.Left);
	EXPECT_EQ(Scene.FindImage(*FAppStyle::Get().GetBrush("NotificationList.Throbber")).Num(), 1);
}

TEST_F(UpdateToast, OnceAnsweredTheButtonsAndTheSpinnerGo)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SNotificationItem> Toast = Announce();
	const TSharedPtr<SButton> Remind = FWidgetDriver::Find<SButton>(Toast, TEXT("SButton"), FString(TEXT("Remind me later")));
	ASSERT_TRUE(Remind.IsValid());

	EXPECT_TRUE(FWidgetDriver::Click(Remind.ToSharedRef()));

	const FPaintedScene Scene = PaintAtDesiredSize(Toast);
	EXPECT_EQ(Scene.GetTextsTopToBottom(), TArray<FString>({TEXT("Nimbrel Castellan Upgrade"), TEXT("Version 1.4 Available")}));
	EXPECT_EQ(Scene.FindImage(*FAppStyle::Get().GetBrush("NotificationList.Throbber")).Num(), 0);
	EXPECT_EQ(Scene.FindImage(GetNotificationLogo()).Num(), 1);
}

TEST_F(UpdateToast, TheNotificationAreaShowsTheToastAtTheWindowsBottomRight)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SNotificationItem> Toast = Announce();

	const FPaintedScene Scene(UE::Headless::MakeNotificationArea(), FVector2D(1280.0, 720.0));

	// Clear of the window's right edge by 15 and of its status bar (32) by 20.
	const FGeometry& Geometry = Toast->GetPaintSpaceGeometry();
	EXPECT_EQ(Geometry.GetAbsolutePosition().X + Geometry.GetAbsoluteSize().X, 1280.0 - 15.0);
	EXPECT_EQ(Geometry.GetAbsolutePosition().Y + Geometry.GetAbsoluteSize().Y, 720.0 - 20.0 - 32.0);
	EXPECT_NE(Scene.FindLine(TEXT("Skip version")), nullptr);
}

TEST_F(UpdateToast, TheToastDrawsTheSameBytesEveryTime)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SNotificationItem> Toast = Announce();
	Toast->SlatePrepass(1.0f);
	const int32 Width = static_cast<int32>(Toast->GetDesiredSize().X);
	const int32 Height = static_cast<int32>(Toast->GetDesiredSize().Y);

	const FRenderedImage First = FWidgetRenderer::RenderWidget(Toast, Width, Height);
	const FRenderedImage Second = FWidgetRenderer::RenderWidget(Toast, Width, Height);
	EXPECT_TRUE(First.Data == Second.Data);
	// A rounded card: its corner is left clear, its middle is the notifications' colour.
	EXPECT_EQ(First.GetPixel(0, 0).A, 0);
	EXPECT_EQ(First.GetPixel(Width - 40, 12), FLinearColor(FColor::FromHex(TEXT("464B50FF"))).ToFColor(true));
}
