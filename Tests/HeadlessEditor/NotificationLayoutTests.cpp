#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "HeadlessNotifications.h"
#include "HeadlessSlateRenderer.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Support/PaintedScene.h"
#include "Widgets/Notifications/SNotificationList.h"

#include <gtest/gtest.h>

namespace
{
	class NotificationLayout : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
		}

		virtual void TearDown() override
		{
			UE::Headless::ResetNotifications();
			FSlateApplication::Shutdown();
		}

		static TSharedRef<SNotificationItem> Show(const FNotificationInfo& Info)
		{
			const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);
			check(Item.IsValid());
			return Item.ToSharedRef();
		}

		static FPaintedScene PaintAtDesiredSize(const TSharedRef<SWidget>& Widget)
		{
			Widget->SlatePrepass(1.0f);
			return FPaintedScene(Widget, Widget->GetDesiredSize());
		}
	};

	TEST_F(NotificationLayout, LongTextWrapsFiftyUnitsShortOfTheWidthOverride)
	{
		FNotificationInfo Info(FText::FromString(TEXT("The capture finished and every frame of the recording was written to the disk")));
		Info.WidthOverride = 300.0f;
		const TSharedRef<SNotificationItem> Item = Show(Info);

		const FPaintedScene Scene = PaintAtDesiredSize(Item);
		EXPECT_EQ(Item->GetDesiredSize().X, 300.0 + 32.0);
		ASSERT_GT(Scene.GetLines().Num(), 1);
		for (const FPaintedScene::FLine& Line : Scene.GetLines())
		{
			EXPECT_LE(Line.Rect.Right - Line.Rect.Left, 250.0f) << *Line.Text;
		}
	}

	TEST_F(NotificationLayout, WithoutAWidthOverrideTheCardFitsItsText)
	{
		FNotificationInfo Info(FText::FromString(TEXT("Saved")));
		Info.WidthOverride = FOptionalSize();
		const TSharedRef<SNotificationItem> Item = Show(Info);

		const FPaintedScene Scene = PaintAtDesiredSize(Item);
		ASSERT_EQ(Scene.GetLines().Num(), 1);
		// The card's padding, the 32 unit image, the gap, and the text.
		const FPaintedScene::FLine& Line = Scene.GetLines()[0];
		EXPECT_NEAR(Item->GetDesiredSize().X, 16.0 + 32.0 + 10.0 + (Line.Rect.Right - Line.Rect.Left) + 16.0, 0.5);
	}

	TEST_F(NotificationLayout, ANotificationWithoutAnImageShowsTheEditorsMark)
	{
		const TSharedRef<SNotificationItem> Item = Show(FNotificationInfo(FText::FromString(TEXT("Saved"))));

		EXPECT_EQ(PaintAtDesiredSize(Item).FindImage(*FAppStyle::Get().GetBrush("UnrealCircle.Thick")).Num(), 1);
	}

	TEST_F(NotificationLayout, SuccessAndFailureReplaceTheImageWithTheirSigns)
	{
		const TSharedRef<SNotificationItem> Item = Show(FNotificationInfo(FText::FromString(TEXT("Saved"))));

		Item->SetCompletionState(SNotificationItem::CS_Success);
		const FPaintedScene Succeeded = PaintAtDesiredSize(Item);
		EXPECT_EQ(Succeeded.FindImage(*FAppStyle::Get().GetBrush("Icons.SuccessWithColor.Large")).Num(), 1);
		EXPECT_EQ(Succeeded.FindImage(*FAppStyle::Get().GetBrush("UnrealCircle.Thick")).Num(), 0);

		Item->SetCompletionState(SNotificationItem::CS_Fail);
		EXPECT_EQ(PaintAtDesiredSize(Item).FindImage(*FAppStyle::Get().GetBrush("Icons.ErrorWithColor.Large")).Num(), 1);
	}

	TEST_F(NotificationLayout, TheNotificationAreaStacksNotificationsOldestOnTop)
	{
		const TSharedRef<SNotificationItem> First = Show(FNotificationInfo(FText::FromString(TEXT("First"))));
		const TSharedRef<SNotificationItem> Second = Show(FNotificationInfo(FText::FromString(TEXT("Second"))));

		const FPaintedScene Scene(UE::Headless::MakeNotificationArea(), FVector2D(800.0, 600.0));
		const FGeometry& FirstGeometry = First->GetPaintSpaceGeometry();
		const FGeometry& SecondGeometry = Second->GetPaintSpaceGeometry();
		EXPECT_EQ(SecondGeometry.GetAbsolutePosition().Y + SecondGeometry.GetAbsoluteSize().Y, 600.0 - 20.0 - 32.0);
		EXPECT_EQ(FirstGeometry.GetAbsolutePosition().Y + FirstGeometry.GetAbsoluteSize().Y, SecondGeometry.GetAbsolutePosition().Y - 20.0);
		EXPECT_EQ(FirstGeometry.GetAbsolutePosition().X + FirstGeometry.GetAbsoluteSize().X, 800.0 - 15.0);
	}
}
