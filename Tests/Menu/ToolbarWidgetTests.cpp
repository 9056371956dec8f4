#include "HeadlessDesktop.h"
#include "HeadlessDialogs.h"
#include "HeadlessEditorSession.h"
#include "HeadlessLists.h"
#include "HeadlessMenus.h"
#include "KyroBlueprintFunctionLibrary.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/PaintedScene.h"
#include "ToolMenus.h"
#include "ViewportRenderingControls.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Layout/SBox.h"

#include <gtest/gtest.h>

namespace
{
	const FName AssetsToolBar(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"));
	/** The level editor's window as far as these tests look: room below the toolbar for the drop-down. */
	const FVector2D WindowSize(480.0, 420.0);

	/** The toolbar at its own size in the top left corner of the window. */
	TSharedRef<SWidget> MakeToolbarInWindow(const TSharedRef<SWidget>& Toolbar)
	{
		return SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Toolbar];
	}

	/** Clicks the "Nimbrel" button, as a user opens its drop-down. */
	TSharedRef<SComboButton> OpenNimbrelMenu(const TSharedRef<SWidget>& Toolbar)
	{
		const TSharedPtr<SButton> Button = FWidgetDriver::Find<SButton>(Toolbar, TEXT("SButton"), FString(TEXT("Nimbrel")));
		check(Button.IsValid());
		check(FWidgetDriver::Click(Button.ToSharedRef()));
		const TSharedPtr<SComboButton> Combo = FWidgetDriver::Find<SComboButton>(Toolbar, TEXT("SComboButton"));
		check(Combo.IsValid());
		return Combo.ToSharedRef();
	}

	/** The check box of the open menu's entry with that label. */
	TSharedRef<SCheckBox> FindEntryCheckBox(const TSharedRef<SComboButton>& Combo, const FString& Label)
	{
		const TSharedPtr<SWidget> Entry = FWidgetDriver::FindWidget(UE::Headless::GetMenuContent(*Combo).ToSharedRef(), TEXT("SButton"), Label);
		check(Entry.IsValid());
		const TSharedPtr<SCheckBox> CheckBox = FWidgetDriver::Find<SCheckBox>(Entry.ToSharedRef(), TEXT("SCheckBox"));
		check(CheckBox.IsValid());
		return CheckBox.ToSharedRef();
	}

	struct FViewportRenderingOn
	{
		FViewportRenderingOn()
		{
			HeadlessRuntime::SetEditorViewportRendering(true);
			HeadlessRuntime::SetRuntimeViewportRendering(true);
		}
	};
}

TEST(ToolbarWidget, TheAssetsToolbarShowsTheButtonsIconThenLabelThenArrow)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SWidget> Toolbar = UToolMenus::Get()->GenerateWidget(AssetsToolBar, FToolMenuContext());
	const FPaintedScene Scene(MakeToolbarInWindow(Toolbar), WindowSize);

	const FSlateBrush* Logo = FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle"))->GetBrush(TEXT("KyroCastellan.PluginTaskbarIcon"));
	const TArray<FSlateRect> Icons = Scene.FindImage(*Logo);
	const TArray<FSlateRect> Arrows = Scene.FindImage(FAppStyle::Get().GetWidgetStyle<FComboButtonStyle>("SimpleComboButton").DownArrowImage);
	const FPaintedScene::FLine* Label = Scene.FindLine(TEXT("Nimbrel"));
	ASSERT_EQ(Icons.Num(), 1);
	ASSERT_EQ(Arrows.Num(), 1);
	ASSERT_NE(Label, nullptr);
	// The 40 unit logo is drawn at the slim toolbar's icon size.
	EXPECT_FLOAT_EQ(Icons[0].Right - Icons[0].Left, 20.0f);
	EXPECT_FLOAT_EQ(Icons[0].Bottom - Icons[0].Top, 20.0f);
	EXPECT_LT(Icons[0].Right, Label->Rect.Left);
	EXPECT_LT(Label->Rect.Right, Arrows[0].Left);
	EXPECT_EQ(Label->Font.Size, 10);
}

TEST(ToolbarWidget, ClickingTheButtonOpensTheMenuBeneathIt)
{
	FViewportRenderingOn Reset;
	FHeadlessEditorSession Session;
	const TSharedRef<SWidget> Toolbar = UToolMenus::Get()->GenerateWidget(AssetsToolBar, FToolMenuContext());
	const TSharedRef<SWidget> Window = MakeToolbarInWindow(Toolbar);
	EXPECT_EQ(FPaintedScene(UE::Headless::MakePopupLayer(Window), WindowSize).FindLine(TEXT("TOOLS")), nullptr);

	const TSharedRef<SComboButton> Combo = OpenNimbrelMenu(Toolbar);
	EXPECT_TRUE(Combo->IsOpen());
	const FPaintedScene Scene(UE::Headless::MakePopupLayer(Window), WindowSize);
	EXPECT_EQ(Scene.GetTextsTopToBottom(), TArray<FString>({TEXT("Nimbrel"), TEXT("TOOLS"), TEXT("Livestream Wizard"), TEXT("SETTINGS"), TEXT("Editor Viewport Rendering"), TEXT("Runtime Viewport Rendering"), TEXT("ACCOUNT"), TEXT("Plugin Version"), TEXT("Affiliate Scheme"), TEXT("SUPPORT"), TEXT("Knowledge Centre"), TEXT("Video Tutorials"), TEXT("Discord Community"), TEXT("Nimbrel Website")}));
	// The drop-down hangs from the button's bottom left corner.
	const FGeometry& ButtonGeometry = Combo->GetPaintSpaceGeometry();
	EXPECT_GT(Scene.FindLine(TEXT("TOOLS"))->Rect.Top, ButtonGeometry.GetAbsolutePosition().Y + ButtonGeometry.GetAbsoluteSize().Y);
	EXPECT_NEAR(Scene.FindLine(TEXT("TOOLS"))->Rect.Left, ButtonGeometry.GetAbsolutePosition().X + 12.0, 0.5);
}

TEST(ToolbarWidget, TheOpenMenusCheckBoxesShowTheRuntimeSettings)
{
	FViewportRenderingOn Reset;
	FHeadlessEditorSession Session;
	HeadlessRuntime::SetEditorViewportRendering(false);
	const TSharedRef<SComboButton> Combo = OpenNimbrelMenu(UToolMenus::Get()->GenerateWidget(AssetsToolBar, FToolMenuContext()));

	const TSharedRef<SCheckBox> Editor = FindEntryCheckBox(Combo, TEXT("Editor Viewport Rendering"));
	const TSharedRef<SCheckBox> Runtime = FindEntryCheckBox(Combo, TEXT("Runtime Viewport Rendering"));
	EXPECT_EQ(Editor->GetCheckedState(), ECheckBoxState::Unchecked);
	EXPECT_EQ(Runtime->GetCheckedState(), ECheckBoxState::Checked);

	// Changed by the runtime while the menu is open, as a blueprint may.
	HeadlessRuntime::SetRuntimeViewportRendering(false);
	EXPECT_EQ(Runtime->GetCheckedState(), ECheckBoxState::Unchecked);

	// Ticked by the user: the runtime switches, and the box shows it.
	EXPECT_TRUE(FWidgetDriver::ToggleCheckBox(Editor));
	EXPECT_TRUE(UKyroBlueprintFunctionLibrary::GetIsEditorViewportRendering());
	EXPECT_EQ(Editor->GetCheckedState(), ECheckBoxState::Checked);
}

TEST(ToolbarWidget, TheToolbarWithItsOpenMenuDrawsTheSameBytesEveryTime)
{
	FViewportRenderingOn Reset;
	FHeadlessEditorSession Session;
	const TSharedRef<SWidget> Toolbar = UToolMenus::Get()->GenerateWidget(AssetsToolBar, FToolMenuContext());
	OpenNimbrelMenu(Toolbar);
	const TSharedRef<SWidget> View = UE::Headless::MakePopupLayer(MakeToolbarInWindow(Toolbar));

	const FRenderedImage First = FWidgetRenderer::RenderWidget(View, 320, 380);
	const FRenderedImage Second = FWidgetRenderer::RenderWidget(View, 320, 380);
	EXPECT_TRUE(First.Data == Second.Data);
	// The toolbar's strip is the panel colour; the drop-down under it the menu colour.
	EXPECT_EQ(First.GetPixel(1, 1), FLinearColor(FColor::FromHex(TEXT("242424FF"))).ToFColor(true));
	EXPECT_EQ(First.GetPixel(60, 60), FLinearColor(FColor::FromHex(TEXT("383838FF"))).ToFColor(true));
}

TEST(ToolbarWidget, ThePluginVersionEntryShowsTheVersionsInAMessageWindow)
{
	FHeadlessEditorOptions Options;
	Options.PluginVersionName = TEXT("1.2");
	Options.PluginEngineVersion = TEXT("5.1.0");
	FHeadlessEditorSession Session(Options);
	UE::Headless::ResetDesktop();
	const TSharedRef<SComboButton> Combo = OpenNimbrelMenu(UToolMenus::Get()->GenerateWidget(AssetsToolBar, FToolMenuContext()));
	const TSharedPtr<SButton> Entry = FWidgetDriver::Find<SButton>(UE::Headless::GetMenuContent(*Combo).ToSharedRef(), TEXT("SButton"), FString(TEXT("Plugin Version")));
	ASSERT_TRUE(Entry.IsValid());

	EXPECT_TRUE(FWidgetDriver::Click(Entry.ToSharedRef()));

	const TArray<UE::Headless::FShownMessageDialog>& Dialogs = UE::Headless::GetShownMessageDialogs();
	ASSERT_EQ(Dialogs.Num(), 1);
	const TSharedRef<SWidget> Window = UE::Headless::MakeMessageDialogWidget(Dialogs[0].MessageType, Dialogs[0].Message, Dialogs[0].Title.GetPtrOrNull());
	Window->SlatePrepass(1.0f);
	const FPaintedScene Scene(Window, Window->GetDesiredSize());
	EXPECT_EQ(Scene.GetTextsTopToBottom(), TArray<FString>({TEXT("Message"), TEXT("Plugin Version: 1.2"), TEXT("Engine Version: 5.1.0"), TEXT("Copy Message"), TEXT("OK")}));
}
