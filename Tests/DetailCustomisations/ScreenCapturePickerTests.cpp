#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "DetailCustomisations/ScreenCaptureDetailsCustomisation.h"
#include "KyroScreenCapture.h"
#include "KyroSpoutReceiverManager.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "SourceListControls.h"
#include "Widgets/Input/SComboBox.h"
#include "WidgetDriver.h"

#include <gtest/gtest.h>

namespace
{
	typedef SComboBox<TSharedPtr<FString>> FStringCombo;

	class ScreenCapturePicker : public ::testing::Test
	{
	protected:
		ScreenCapturePicker()
		{
			HeadlessSourceLists::SetMonitorNames({TEXT("Main"), TEXT("Side")});
			HeadlessSourceLists::SetWindowNames({TEXT("Editor"), TEXT("Browser")});
		}
		virtual void TearDown() override { HeadlessSourceLists::Reset(); }

		AKyroScreenCapture* Spawn() { return GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroScreenCapture>(); }

		FHeadlessEditorSession Session;
	};

	using ScreenCapturePickerDeathTest = ScreenCapturePicker;
}

TEST_F(ScreenCapturePicker, RowsFollowTheCaptureTypeLive)
{
	AKyroScreenCapture* Capture = Spawn();
	FDetailsViewDriver Driver({Capture});
	const TSharedPtr<FHeadlessDetailRow> Struct = Driver.FindPropertyRow(TEXT("Options"));
	ASSERT_TRUE(Struct.IsValid());
	EXPECT_EQ(FDetailsViewDriver::GetRowLabels(Struct->Children), TArray<FString>({TEXT("Active"), TEXT("Render Target"), TEXT("Screen Capture Type"), TEXT("Monitor Name"), TEXT("Window Name"), TEXT("Capture Cursor")}));
	const TSharedPtr<FHeadlessDetailRow> Monitor = Driver.FindCustomRow(TEXT("MonitorName"));
	const TSharedPtr<FHeadlessDetailRow> Window = Driver.FindCustomRow(TEXT("WindowName"));
	EXPECT_EQ(Monitor->GetVisibility(), EVisibility::Visible);
	EXPECT_EQ(Window->GetVisibility(), EVisibility::Collapsed);

	Driver.FindPropertyRow(TEXT("ScreenCaptureType"))->PropertyHandle->SetValue(uint8(1));
	EXPECT_EQ(Monitor->GetVisibility(), EVisibility::Collapsed);
	EXPECT_EQ(Window->GetVisibility(), EVisibility::Visible);
	Driver.FindPropertyRow(TEXT("ScreenCaptureType"))->PropertyHandle->SetValue(uint8(2));
	EXPECT_EQ(Window->GetVisibility(), EVisibility::Collapsed);
	EXPECT_EQ(Driver.GetView().GetHiddenPropertyNames(), TArray<FName>({TEXT("MonitorName"), TEXT("WindowName")}));
}

TEST_F(ScreenCapturePicker, HiddenRenderTargetDropsActiveAndRenderTarget)
{
	AKyroScreenCapture* Capture = Spawn();
	Capture->Options.bHideRenderTarget = true;
	FDetailsViewDriver Driver({Capture});
	EXPECT_EQ(FDetailsViewDriver::GetRowLabels(Driver.FindPropertyRow(TEXT("Options"))->Children), TArray<FString>({TEXT("Screen Capture Type"), TEXT("Monitor Name"), TEXT("Window Name"), TEXT("Capture Cursor")}));
}

TEST_F(ScreenCapturePicker, EmptyNamesTakeTheFirstSourcesAndUnknownNamesStayUnselected)
{
	AKyroScreenCapture* Capture = Spawn();
	Capture->Options.WindowName = TEXT("editor");
	FDetailsViewDriver Driver({Capture});
	EXPECT_EQ(Capture->Options.MonitorName, TEXT("Main"));
	EXPECT_EQ(Capture->Options.WindowName, TEXT("editor"));
	const TSharedPtr<FStringCombo> WindowCombo = FDetailsViewDriver::FindValueWidget<FStringCombo>(*Driver.FindCustomRow(TEXT("WindowName")), TEXT("SComboBox"));
	EXPECT_FALSE(WindowCombo->GetSelectedItem().IsValid());
	EXPECT_EQ(FWidgetDriver::GetDisplayedText(WindowCombo.ToSharedRef()).Get(FString()), TEXT("editor"));
	const TSharedPtr<FStringCombo> MonitorCombo = FDetailsViewDriver::FindValueWidget<FStringCombo>(*Driver.FindCustomRow(TEXT("MonitorName")), TEXT("SComboBox"));
	EXPECT_EQ(*MonitorCombo->GetSelectedItem(), TEXT("Main"));
}

TEST_F(ScreenCapturePicker, PickWritesTheNameWithNotifications)
{
	AKyroScreenCapture* Capture = Spawn();
	FDetailsViewDriver Driver({Capture});
	const TSharedPtr<FStringCombo> MonitorCombo = FDetailsViewDriver::FindValueWidget<FStringCombo>(*Driver.FindCustomRow(TEXT("MonitorName")), TEXT("SComboBox"));
	const int32 Before = Driver.GetView().GetFinishedChangingCount();
	FWidgetDriver::PickComboItem(MonitorCombo.ToSharedRef(), FWidgetDriver::GetComboOptions(MonitorCombo.ToSharedRef())[1]);
	EXPECT_EQ(Capture->Options.MonitorName, TEXT("Side"));
	// The write ends with the view's finished-changing notification; the explicit post-change adds none, as in the engine.
	EXPECT_EQ(Driver.GetView().GetFinishedChangingCount(), Before + 1);
}

TEST_F(ScreenCapturePickerDeathTest, EmptyMonitorListWithAnEmptyNameIsFatal)
{
	HeadlessSourceLists::SetMonitorNames({});
	EXPECT_DEATH(FDetailsViewDriver Driver({Spawn()}), "Array index out of bounds: 0 from an array of size 0");
}

TEST_F(ScreenCapturePickerDeathTest, AStructWithoutTheCaptureTypeChildIsFatal)
{
	// Shown on a struct that lacks "ScreenCaptureType", the customisation stops at that child.
	FModuleManager::GetModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor")).RegisterCustomPropertyTypeLayout(TEXT("KyroSpoutReceiverInterface"), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FScreenCaptureDetailsCustomisation::MakeInstance));
	AKyroSpoutReceiverManager* Receiver = GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroSpoutReceiverManager>();

	EXPECT_DEATH(FDetailsViewDriver Driver({Receiver}), "Assertion failed: IsValid\\(\\)");
}

TEST_F(ScreenCapturePickerDeathTest, ANullOptionReachingTheRowGeneratorIsFatal)
{
	FDetailsViewDriver Driver({Spawn()});
	const TSharedRef<FStringCombo> MonitorCombo = FDetailsViewDriver::FindValueWidget<FStringCombo>(*Driver.FindCustomRow(TEXT("MonitorName")), TEXT("SComboBox")).ToSharedRef();
	// A null option in the list the combo box was given, as a faulty source list would leave it.
	const_cast<TArray<TSharedPtr<FString>>&>(FWidgetDriver::GetComboOptions(MonitorCombo)).Add(nullptr);

	EXPECT_DEATH(FWidgetDriver::GenerateComboRows(MonitorCombo), "StringItem.IsValid\\(\\)");
}
