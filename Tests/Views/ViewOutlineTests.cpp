#include "Views/ViewOutline.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessMenus.h"
#include "HeadlessSlateRenderer.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
	class ViewOutline : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
		}
		void TearDown() override { FSlateApplication::Shutdown(); }

		static TSharedRef<STextBlock> MakeText(const TCHAR* Text) { return SNew(STextBlock).Text(FText::FromString(Text)); }
	};

	std::string Describe(const TSharedRef<SWidget>& Root, FIntPoint Size)
	{
		return TCHAR_TO_UTF8(*FViewOutline::Describe(Root, Size));
	}
}

TEST_F(ViewOutline, PanelsAreLeftOutAndControlsAreOneLineEach)
{
	// clang-format off
	const TSharedRef<SWidget> Tree = SNew(SScrollBox)
		+ SScrollBox::Slot()
		[
			SNew(SBox).Padding(FMargin(10.0f))
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight()[MakeText(TEXT("Title"))]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SNew(SHorizontalBox)
					+ SHorizontalBox::Slot().AutoWidth()[SNew(SCheckBox).IsChecked(ECheckBoxState::Checked)[MakeText(TEXT("Spout"))]]
					+ SHorizontalBox::Slot().AutoWidth()[SNew(SButton).Text(FText::FromString(TEXT("Go")))]
				]
				+ SVerticalBox::Slot().AutoHeight()[SNew(SEditableTextBox).Text(FText::FromString(TEXT("typed")))]
			]
		];
	// clang-format on

	const std::string Outline = Describe(Tree, FIntPoint(200, 120));
	// The scroll box heads what it holds; the box and the stacks are gone, the check box's and button's parts too.
	EXPECT_EQ(Outline, "SScrollBox at 0,0 200x120\n"
					   "  STextBlock \"Title\" at 10,10 180x17\n"
					   "  SCheckBox \"Spout\" checked at 10,27 54x24\n"
					   "  SButton \"Go\" at 64,27 49x24\n"
					   "  SEditableTextBox \"typed\" at 10,51 180x24\n"
					   "  SScrollBar (collapsed, disabled)\n");

	// Places are those of the layout at the window's size.
	EXPECT_TRUE(Describe(Tree, FIntPoint(300, 120)).find("  STextBlock \"Title\" at 10,10 280x17\n") != std::string::npos);
}

TEST_F(ViewOutline, AHiddenWidgetIsOneLineWithoutItsChildren)
{
	// clang-format off
	const TSharedRef<SWidget> Tree = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(SVerticalBox).Visibility(EVisibility::Collapsed)
			+ SVerticalBox::Slot()[MakeText(TEXT("Secret"))]
		]
		+ SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("Hush"))).Visibility(EVisibility::Hidden)]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SButton).Text(FText::FromString(TEXT("Create"))).IsEnabled(false)];
	// clang-format on

	const std::string Outline = Describe(Tree, FIntPoint(100, 80));
	EXPECT_TRUE(Outline.rfind("SVerticalBox (collapsed)\nSTextBlock \"Hush\" (hidden)\nSButton \"Create\" (disabled) at 0,17 100x24\n", 0) == 0) << Outline;
	EXPECT_EQ(Outline.find("Secret"), std::string::npos);
}

TEST_F(ViewOutline, CheckBoxesSayTheirState)
{
	// clang-format off
	const TSharedRef<SWidget> Tree = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[SNew(SCheckBox).IsChecked(ECheckBoxState::Checked)[MakeText(TEXT("A"))]]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SCheckBox).IsChecked(ECheckBoxState::Unchecked)[MakeText(TEXT("B"))]]
		+ SVerticalBox::Slot().AutoHeight()[SNew(SCheckBox).IsChecked(ECheckBoxState::Undetermined)];
	// clang-format on

	const std::string Outline = Describe(Tree, FIntPoint(100, 80));
	EXPECT_TRUE(Outline.find("\nSCheckBox \"A\" checked at 0,0 ") != std::string::npos || Outline.rfind("SCheckBox \"A\" checked at 0,0 ", 0) == 0) << Outline;
	EXPECT_NE(Outline.find("\nSCheckBox \"B\" unchecked at 0,18 "), std::string::npos) << Outline;
	EXPECT_NE(Outline.find("\nSCheckBox undetermined at 0,36 "), std::string::npos) << Outline;
}

TEST_F(ViewOutline, OpenDropDownsFollowTheTreeAndAToggleEntrySaysItsState)
{
	// clang-format off
	const TSharedRef<SWidget> Entry = SNew(SButton)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot().AutoWidth()[SNew(SCheckBox).IsChecked(ECheckBoxState::Checked)]
			+ SHorizontalBox::Slot().AutoWidth()[MakeText(TEXT("Toggle"))]
		];
	const TSharedRef<SComboButton> Combo = SNew(SComboButton)
		.ButtonContent()[MakeText(TEXT("Open"))]
		.MenuContent()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight()[Entry]
			+ SVerticalBox::Slot().AutoHeight()[SNew(SButton).Text(FText::FromString(TEXT("Plain")))]
		];
	// clang-format on
	const TSharedRef<SWidget> Window = UE::Headless::MakePopupLayer(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Combo]);
	EXPECT_EQ(Describe(Window, FIntPoint(200, 120)).find("Toggle"), std::string::npos);

	Combo->SetIsOpen(true);

	const std::string Outline = Describe(Window, FIntPoint(200, 120));
	const size_t Button = Outline.find("\n  SComboButton \"Open\" at 0,0 ");
	const size_t Toggle = Outline.find("\n  SButton \"Toggle\" checked at ");
	EXPECT_NE(Button, std::string::npos) << Outline;
	EXPECT_NE(Toggle, std::string::npos) << Outline;
	EXPECT_LT(Button, Toggle) << Outline;
	// A button without a box says no state.
	EXPECT_NE(Outline.find("\n  SButton \"Plain\" at "), std::string::npos) << Outline;
	// Once closed, the drop-down is gone from the outline as from the picture.
	Combo->SetIsOpen(false);
	EXPECT_EQ(Describe(Window, FIntPoint(200, 120)).find("Toggle"), std::string::npos);
}

TEST_F(ViewOutline, ImagesShowWhenTheyPaintNamedByTheirFile)
{
	const FSlateImageBrush Icon(FString(TEXT(CASTELLAN_REPOSITORY_ROOT "/Resources/ClassIcons/360Capture_64x.png")), FVector2D(64.0, 64.0));
	const FSlateColorBrush Grey(FLinearColor(0.5f, 0.5f, 0.5f));
	// clang-format off
	const TSharedRef<SWidget> Tree = SNew(SOverlay)
		+ SOverlay::Slot()[SNew(SImage).Image(&Icon)]
		+ SOverlay::Slot()[SNew(SImage).Image(&Grey).ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 0.0f))]
		+ SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(20.0f).HeightOverride(10.0f)[SNew(SImage).Image(&Grey)]]
		+ SOverlay::Slot()[SNew(SImage).Image(&Icon).Visibility(EVisibility::Collapsed)];
	// clang-format on

	// The transparent image is not seen; the grey one has no file to name.
	EXPECT_EQ(Describe(Tree, FIntPoint(64, 64)), "SImage 360Capture_64x.png at 0,0 64x64\n"
												 "SImage at 0,0 20x10\n"
												 "SImage (collapsed)\n");
}

TEST_F(ViewOutline, TextsAreEscaped)
{
	const std::string Outline = Describe(MakeText(TEXT("Main\tStage\x1b[2J\\")), FIntPoint(200, 20));

	EXPECT_EQ(Outline.rfind("STextBlock \"Main\\tStage\\x1B[2J\\\\\" at 0,0 ", 0), 0u) << Outline;
}
