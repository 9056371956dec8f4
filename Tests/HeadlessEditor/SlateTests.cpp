#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessSlateRenderer.h"
#include "HeadlessStyles.h"
#include "HeadlessTabs.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
	/** A compound widget that binds its child's attributes to its own const getters and handles one key. */
	class SProbe : public SCompoundWidget
	{
	public:
		SLATE_BEGIN_ARGS(SProbe)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(FKey, HandledKey)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			HandledKey = InArgs._HandledKey;
			ChildSlot
				[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SAssignNew(Label, STextBlock).Text(this, &SProbe::GetLabel, FString(TEXT("!"))).Visibility(this, &SProbe::GetLabelVisibility)] + SVerticalBox::Slot().AutoHeight()[InArgs._Content.Widget]];
		}

		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override
		{
			KeysSeen.Add(InKeyEvent.GetKey());
			return InKeyEvent.GetKey() == HandledKey ? FReply::Handled() : FReply::Unhandled();
		}

		FText GetLabel(FString Suffix) const { return FText::FromString(Name + Suffix); }
		EVisibility GetLabelVisibility() const { return bShowLabel ? EVisibility::Visible : EVisibility::Collapsed; }

		FString Name = TEXT("First");
		bool bShowLabel = true;
		FKey HandledKey;
		TArray<FKey> KeysSeen;
		TSharedPtr<STextBlock> Label;
	};

	class Slate : public ::testing::Test
	{
	protected:
		void SetUp() override { FSlateApplication::Create(); }
		void TearDown() override
		{
			UE::Headless::ResetTabs();
			FSlateApplication::Shutdown();
		}
	};
}

TEST_F(Slate, BoundAttributesAreReadAgainOnEveryGet)
{
	TSharedRef<SProbe> Probe = SNew(SProbe);
	EXPECT_EQ(Probe->Label->GetText().ToString(), TEXT("First!"));
	EXPECT_EQ(Probe->Label->GetVisibility(), EVisibility::Visible);

	Probe->Name = TEXT("Second");
	Probe->bShowLabel = false;
	EXPECT_EQ(Probe->Label->GetText().ToString(), TEXT("Second!"));
	EXPECT_EQ(Probe->Label->GetVisibility(), EVisibility::Collapsed);
	EXPECT_FALSE(FWidgetDriver::IsShown(Probe->Label.ToSharedRef()));
	EXPECT_EQ(Probe->Label->GetParentWidget()->GetTypeAsString(), TEXT("SVerticalBox"));
}

TEST_F(Slate, ButtonClicksOnlyWhenItAndItsAncestorsAreEnabledAndShown)
{
	bool bEnabled = false;
	bool bPanelEnabled = true;
	int32 Clicks = 0;
	TSharedPtr<SButton> Button;
	TSharedRef<SVerticalBox> Panel = SNew(SVerticalBox).IsEnabled_Lambda([&bPanelEnabled]()
										 { return bPanelEnabled; }) +
		SVerticalBox::Slot()[SAssignNew(Button, SButton).Text(FText::FromString(TEXT("Create"))).IsEnabled_Lambda([&bEnabled]()
																									{ return bEnabled; })
								 .OnClicked_Lambda([&Clicks]()
									 { ++Clicks; return FReply::Handled(); })];

	EXPECT_EQ(FWidgetDriver::FindWidget(Panel, TEXT("SButton"), FString(TEXT("Create"))), TSharedPtr<SWidget>(Button));
	EXPECT_FALSE(FWidgetDriver::Click(Button.ToSharedRef()));
	bEnabled = true;
	bPanelEnabled = false;
	EXPECT_FALSE(FWidgetDriver::Click(Button.ToSharedRef()));
	bPanelEnabled = true;
	EXPECT_TRUE(FWidgetDriver::Click(Button.ToSharedRef()));
	EXPECT_EQ(Clicks, 1);
}

TEST_F(Slate, CheckBoxFiresOnlyForUserToggles)
{
	TArray<ECheckBoxState> Fired;
	TSharedRef<SCheckBox> Box = SNew(SCheckBox).OnCheckStateChanged_Lambda([&Fired](ECheckBoxState State)
		{ Fired.Add(State); });

	Box->SetIsChecked(ECheckBoxState::Checked);
	EXPECT_TRUE(Box->IsChecked());
	EXPECT_EQ(Fired.Num(), 0);

	EXPECT_TRUE(FWidgetDriver::ToggleCheckBox(Box));
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Unchecked);
	ASSERT_EQ(Fired.Num(), 1);
	EXPECT_EQ(Fired[0], ECheckBoxState::Unchecked);

	// A bound state belongs to its owner: toggling reports the wish but does not change it.
	Box->SetIsChecked(TAttribute<ECheckBoxState>::CreateLambda([]()
		{ return ECheckBoxState::Unchecked; }));
	Box->ToggleCheckedState();
	EXPECT_EQ(Fired.Last(), ECheckBoxState::Checked);
	EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Unchecked);
}

TEST_F(Slate, ComboBoxFiresOnlyWhenTheSelectedPointerChanges)
{
	TArray<TSharedPtr<FString>> Options = {MakeShared<FString>(TEXT("Cine")), MakeShared<FString>(TEXT("360"))};
	TArray<TPair<TSharedPtr<FString>, ESelectInfo::Type>> Fired;
	TSharedRef<SComboBox<TSharedPtr<FString>>> Combo = SNew(SComboBox<TSharedPtr<FString>>)
														   .OptionsSource(&Options)
														   .InitiallySelectedItem(Options[0])
														   .OnGenerateWidget_Lambda([](TSharedPtr<FString> Item) -> TSharedRef<SWidget>
															   { return SNew(STextBlock).Text(FText::FromString(*Item)); })
														   .OnSelectionChanged_Lambda([&Fired](TSharedPtr<FString> Item, ESelectInfo::Type Info)
															   { Fired.Add(TPair<TSharedPtr<FString>, ESelectInfo::Type>(Item, Info)); });

	EXPECT_EQ(Combo->GetSelectedItem(), Options[0]);
	EXPECT_EQ(Fired.Num(), 0);

	Combo->SetSelectedItem(Options[0]);
	EXPECT_EQ(Fired.Num(), 0);

	// Equal text, different pointer: a change.
	Combo->SetSelectedItem(MakeShared<FString>(TEXT("Cine")));
	ASSERT_EQ(Fired.Num(), 1);
	EXPECT_EQ(Fired[0].Value, ESelectInfo::Direct);

	EXPECT_TRUE(FWidgetDriver::PickComboItem(Combo, Options[1]));
	ASSERT_EQ(Fired.Num(), 2);
	EXPECT_EQ(Fired[1].Key, Options[1]);
	EXPECT_EQ(Fired[1].Value, ESelectInfo::OnMouseClick);

	Combo->ClearSelection();
	Combo->ClearSelection();
	ASSERT_EQ(Fired.Num(), 3);
	EXPECT_FALSE(Combo->GetSelectedItem().IsValid());

	const TArray<TSharedRef<SWidget>> Rows = FWidgetDriver::GenerateComboRows(Combo);
	ASSERT_EQ(Rows.Num(), 2);
	EXPECT_EQ(FWidgetDriver::GetDisplayedText(Rows[1]).GetValue(), TEXT("360"));
}

TEST_F(Slate, KeysBubbleUpToTheFirstAncestorThatHandlesThem)
{
	TSharedPtr<SProbe> Inner;
	TSharedPtr<SCheckBox> Box;
	TSharedPtr<SEditableTextBox> TextBox;
	TSharedRef<SProbe> Outer = SNew(SProbe).HandledKey(EKeys::A)
								   [SAssignNew(Inner, SProbe).HandledKey(EKeys::Escape)[SNew(SVerticalBox) + SVerticalBox::Slot()[SAssignNew(Box, SCheckBox)] + SVerticalBox::Slot()[SAssignNew(TextBox, SEditableTextBox)]]];

	EXPECT_TRUE(FWidgetDriver::PressKey(Box.ToSharedRef(), EKeys::A));
	EXPECT_EQ(Inner->KeysSeen.Num(), 1);
	EXPECT_EQ(Outer->KeysSeen.Num(), 1);

	EXPECT_TRUE(FWidgetDriver::PressKey(Box.ToSharedRef(), EKeys::Escape));
	EXPECT_EQ(Inner->KeysSeen.Num(), 2);
	EXPECT_EQ(Outer->KeysSeen.Num(), 1);

	EXPECT_FALSE(FWidgetDriver::PressKey(Box.ToSharedRef(), EKeys::B));
	EXPECT_EQ(Outer->KeysSeen.Last(), EKeys::B);

	// Focusable widgets take their own keys: the box toggles, the text box commits on Enter.
	EXPECT_TRUE(FWidgetDriver::PressKey(Box.ToSharedRef(), EKeys::Enter));
	EXPECT_TRUE(Box->IsChecked());
	EXPECT_TRUE(FWidgetDriver::PressKey(TextBox.ToSharedRef(), EKeys::Enter));
	EXPECT_EQ(Outer->KeysSeen.Num(), 2);
}

TEST_F(Slate, TypingReportsEachCharacterThenTheCommit)
{
	TArray<FString> Events;
	TSharedRef<SEditableTextBox> TextBox = SNew(SEditableTextBox)
											   .OnTextChanged_Lambda([&Events](const FText& Text)
												   { Events.Add(TEXT("changed ") + Text.ToString()); })
											   .OnTextCommitted_Lambda([&Events](const FText& Text, ETextCommit::Type Type)
												   { Events.Add(FString::Printf(TEXT("committed %s %d"), *Text.ToString(), static_cast<int32>(Type))); });

	EXPECT_TRUE(FWidgetDriver::TypeText(TextBox, FText::FromString(TEXT("Go"))));
	EXPECT_EQ(Events, TArray<FString>({TEXT("changed G"), TEXT("changed Go"), TEXT("committed Go 1")}));
	EXPECT_EQ(TextBox->GetText().ToString(), TEXT("Go"));

	// Typing again replaces the text; leaving the box commits without Enter, once.
	Events.Reset();
	EXPECT_TRUE(FWidgetDriver::TypeText(TextBox, FText::FromString(TEXT("Up")), ETextCommit::OnUserMovedFocus));
	EXPECT_EQ(Events, TArray<FString>({TEXT("changed U"), TEXT("changed Up"), TEXT("committed Up 2")}));

	TextBox->SetText(FText::GetEmpty());
	EXPECT_TRUE(TextBox->GetText().IsEmpty());
	EXPECT_EQ(Events.Num(), 3);
}

TEST_F(Slate, InvokingAnOpenTabReturnsItWithoutSpawningAgain)
{
	int32 Spawns = 0;
	const FName TabName(TEXT("LivestreamWizard"));
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(TabName, FOnSpawnTab::CreateLambda([&Spawns](const FSpawnTabArgs&)
																   { ++Spawns; return SNew(SDockTab).TabRole(ETabRole::NomadTab)[SNew(STextBlock)]; }))
		.SetDisplayName(FText::FromString(TEXT("Wizard")));

	const TSharedPtr<SDockTab> First = FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabName));
	const TSharedPtr<SDockTab> Second = FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabName));
	ASSERT_TRUE(First.IsValid());
	EXPECT_EQ(First, Second);
	EXPECT_EQ(Spawns, 1);
	EXPECT_EQ(UE::Headless::GetAttentionRequests(*First), 1);
	EXPECT_EQ(First->GetContent()->GetTypeAsString(), TEXT("STextBlock"));

	EXPECT_TRUE(First->RequestCloseTab());
	EXPECT_FALSE(FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(TabName)).IsValid());
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabName));
	EXPECT_EQ(Spawns, 2);

	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(TabName);
	EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner(TabName));
}

TEST_F(Slate, StyleSetOwnsItsBrushesAndIconsResolveThroughTheRegistry)
{
	FSlateStyleSet Style(TEXT("ProbeStyle"));
	Style.SetContentRoot(TEXT("/Plugin/Resources"));
	Style.Set(TEXT("Probe.Icon"), new FSlateImageBrush(Style.RootToContentDir(TEXT("Logo/Logo_40x"), TEXT(".png")), FVector2D(40.0, 40.0)));
	Style.Set(TEXT("Probe.Other"), new FSlateImageBrush(Style.RootToContentDir("Logo/Logo_80x", TEXT(".png")), FVector2D(80.0, 80.0)));

	const TArray<FName> Keys = UE::Headless::GetBrushKeys(Style);
	ASSERT_EQ(Keys.Num(), 2);
	EXPECT_EQ(Keys[1], FName(TEXT("Probe.Other")));
	EXPECT_EQ(Style.GetBrush(TEXT("Probe.Icon"))->GetResourceName(), FName(TEXT("/Plugin/Resources/Logo/Logo_40x.png")));
	EXPECT_EQ(Style.GetBrush(TEXT("Missing")), Style.GetDefaultBrush());

	const FSlateIcon Icon(Style.GetStyleSetName(), TEXT("Probe.Icon"));
	EXPECT_EQ(Icon.GetIcon(), FStyleDefaults::GetNoBrush());
	FSlateStyleRegistry::RegisterSlateStyle(Style);
	EXPECT_EQ(Icon.GetIcon()->GetImageSize(), FVector2D(40.0, 40.0));
	FSlateStyleRegistry::UnRegisterSlateStyle(TEXT("ProbeStyle"));
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("ProbeStyle")), nullptr);
}

TEST_F(Slate, RegisteringAStyleNameTwiceIsFatal)
{
	FSlateStyleSet First(TEXT("TwiceStyle"));
	FSlateStyleSet Second(TEXT("TwiceStyle"));
	FSlateStyleRegistry::RegisterSlateStyle(First);
	EXPECT_DEATH(FSlateStyleRegistry::RegisterSlateStyle(Second), "Assertion failed: !FindSlateStyle");
	FSlateStyleRegistry::UnRegisterSlateStyle(First);
}

TEST_F(Slate, RendererReloadsAreCounted)
{
	const TSharedRef<FHeadlessSlateRenderer> Renderer = MakeShared<FHeadlessSlateRenderer>();
	FSlateApplication::Get().InitializeRenderer(Renderer);
	FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	EXPECT_EQ(Renderer->GetTextureReloadCount(), 1);
}
