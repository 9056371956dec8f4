#include "DetailCustomisations/MediaOutputDetailsCustomisation.h"
#include "Editor.h"
#include "Engine/World.h"
#include "Fonts/SlateFontInfo.h"
#include "HeadlessDesktop.h"
#include "DetailsViewDriver.h"
#include "HeadlessDocumentation.h"
#include "HeadlessGameProjectGeneration.h"
#include "HeadlessProjectManager.h"
#include "Editor/Transactor.h"
#include "LevelDriver.h"
#include "HeadlessEditorSession.h"
#include "KyroMediaOutput.h"
#include "MediaRuntimeControls.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "SDocumentationToolTip.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SToolTip.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
	/** Collects the log lines of one category. */
	class FCategoryLog : public FOutputDevice
	{
	public:
		explicit FCategoryLog(FName InCategory)
			: Category(InCategory)
		{
			GLog->AddOutputDevice(this);
		}
		virtual ~FCategoryLog() override { GLog->RemoveOutputDevice(this); }

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& InCategory) override
		{
			if (InCategory == Category)
			{
				Lines.Add(FString(V));
				Verbosities.Add(Verbosity);
			}
		}

		FName Category;
		TArray<FString> Lines;
		TArray<ELogVerbosity::Type> Verbosities;
	};

	class MediaOutputDetails : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(true);
			HeadlessRuntime::ClearHardwareEncodersPendingRestart();
			HeadlessRuntime::ResetMediaOutputCalls();
			UE::Headless::ResetProjectManager();
			UE::Headless::ResetDesktop();
			UE::Headless::GetProjectFilesMadeWriteable().Reset();
			FPaths::SetProjectFilePath(TEXT("/Projects/Stream/Stream.uproject"));
			Session = MakeUnique<FHeadlessEditorSession>();
			World = GEditor->GetEditorWorldContext().World();
		}

		virtual void TearDown() override
		{
			View.Reset();
			Session = nullptr;
		}

		AKyroMediaOutput* SpawnOutput() { return World->SpawnActor<AKyroMediaOutput>(); }

		void Show(const TArray<UObject*>& Objects)
		{
			View = MakeShared<FHeadlessDetailsView>();
			View->SetObjects(Objects);
		}

		const FHeadlessDetailRow& GetControlsGroup() const
		{
			for (const TSharedRef<FHeadlessDetailCategory>& Category : View->GetCategories())
			{
				if (Category->Name == FName(TEXT("Media Output")))
				{
					for (const TSharedRef<FHeadlessDetailRow>& Row : Category->Rows)
					{
						if (Row->Kind == FHeadlessDetailRow::EKind::Group && Row->Name == FName(TEXT("Controls")))
						{
							return *Row;
						}
					}
				}
			}
			checkf(false, TEXT("No Controls group"));
			return *View->GetCategories()[0]->Rows[0];
		}

		TArray<TSharedRef<SWidget>> GetRowContents() const
		{
			TArray<TSharedRef<SWidget>> Contents;
			for (const TSharedRef<FHeadlessDetailRow>& Row : GetControlsGroup().Children)
			{
				Contents.Add(Row->Widgets.WholeRowContent().Widget);
			}
			return Contents;
		}

		TSharedRef<SButton> FindButton(const FString& Text) const
		{
			for (const TSharedRef<SWidget>& Content : GetRowContents())
			{
				if (const TSharedPtr<SButton> Button = FWidgetDriver::Find<SButton>(Content, TEXT("SButton"), Text))
				{
					return Button.ToSharedRef();
				}
			}
			checkf(false, TEXT("No button %s"), *Text);
			return SNew(SButton);
		}

		FString GetDurationText() const { return FWidgetDriver::GetDisplayedText(GetRowContents().Last(1)).Get(FString()); }

		TUniquePtr<FHeadlessEditorSession> Session;
		UWorld* World = nullptr;
		TSharedPtr<FHeadlessDetailsView> View;
	};
}

TEST_F(MediaOutputDetails, StateRowsAreHiddenAndTheControlsGroupStartsExpandedInTheSimpleSection)
{
	Show({SpawnOutput()});

	const TArray<FName> Hidden = View->GetHiddenPropertyNames();
	EXPECT_TRUE(Hidden.Contains(FName(TEXT("HasStarted"))));
	EXPECT_TRUE(Hidden.Contains(FName(TEXT("DurationMs"))));
	EXPECT_TRUE(Hidden.Contains(FName(TEXT("bHideAPIOptions"))));

	const FHeadlessDetailRow& Group = GetControlsGroup();
	EXPECT_TRUE(Group.DisplayName.ToString().Equals(TEXT("Controls")));
	EXPECT_FALSE(Group.bAdvanced);
	EXPECT_TRUE(Group.bExpanded);
	// The runtime suggests the plugin, so only the duration and control rows are built.
	ASSERT_EQ(Group.Children.Num(), 2);
	EXPECT_TRUE(FWidgetDriver::FindWidget(GetRowContents()[0], TEXT("SWrapBox")).IsValid());
	EXPECT_FALSE(FWidgetDriver::FindWidget(GetRowContents()[0], TEXT("STextBlock"), FString(TEXT("Output Duration in Milliseconds"))).IsValid());
	EXPECT_TRUE(FWidgetDriver::FindWidget(GetRowContents()[1], TEXT("SButton"), FString(TEXT("Start"))).IsValid());
	EXPECT_TRUE(FWidgetDriver::FindWidget(GetRowContents()[1], TEXT("SButton"), FString(TEXT("Stop"))).IsValid());
}

TEST_F(MediaOutputDetails, HardwareEncoderRowAppearsOnlyWhenTheRuntimeDoesNotSuggestThePlugin)
{
	HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(false);
	Show({SpawnOutput()});

	ASSERT_EQ(GetControlsGroup().Children.Num(), 3);
	const TSharedRef<SWidget> Row = GetRowContents()[0];
	const TSharedPtr<STextBlock> Hint = FWidgetDriver::Find<STextBlock>(Row, TEXT("STextBlock"), FString(TEXT("Enable the 'HardwareEncoders' plugin for greater FPS")));
	ASSERT_TRUE(Hint.IsValid());
	EXPECT_TRUE(FWidgetDriver::IsShown(Hint.ToSharedRef()));
	EXPECT_EQ(FWidgetDriver::GetFont(*Hint).Size, 9.0f);
	EXPECT_EQ(FWidgetDriver::GetFont(*Hint).TypefaceFontName, FName(TEXT("Italic")));
	EXPECT_EQ(FWidgetDriver::GetColor(*Hint).GetSpecifiedColor(), FLinearColor::Yellow);

	const TSharedRef<SButton> Button = FindButton(TEXT("Enable 'HardwareEncoders' plugin"));
	const TSharedPtr<SToolTip> ToolTip = StaticCastSharedPtr<SToolTip>(Button->GetToolTip());
	ASSERT_TRUE(ToolTip.IsValid());
	const TSharedRef<SDocumentationToolTip> DocToolTip = StaticCastSharedRef<SDocumentationToolTip>(ToolTip->GetContentWidget());
	EXPECT_TRUE(DocToolTip->GetTextTooltip().ToString().StartsWith(TEXT("Enable the 'HardwareEncoders' module to benefit from an FPS increase")));
	EXPECT_TRUE(UE::Headless::GetDocumentationLink(*DocToolTip).Equals(TEXT("Shared/Hardware")));
	EXPECT_TRUE(UE::Headless::GetExcerptName(*DocToolTip).Equals(TEXT("HardwareEncoders")));
}

TEST_F(MediaOutputDetails, StartAndStopEnablingFollowsTheOutputLive)
{
	AKyroMediaOutput* Output = SpawnOutput();
	Show({Output});
	const TSharedRef<SButton> Start = FindButton(TEXT("Start"));
	const TSharedRef<SButton> Stop = FindButton(TEXT("Stop"));
	EXPECT_TRUE(FWidgetDriver::IsEffectivelyEnabled(Start));
	EXPECT_FALSE(FWidgetDriver::IsEffectivelyEnabled(Stop));

	Output->HasStarted = true;
	EXPECT_FALSE(FWidgetDriver::IsEffectivelyEnabled(Start));
	EXPECT_TRUE(FWidgetDriver::IsEffectivelyEnabled(Stop));
}

TEST_F(MediaOutputDetails, StartAndStopDriveTheOutputInATransactionWithScriptsAllowed)
{
	AKyroMediaOutput* Output = SpawnOutput();
	Show({Output});

	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Start"))));
	EXPECT_TRUE(Output->HasStarted);
	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Stop"))));
	EXPECT_FALSE(Output->HasStarted);

	const TArray<HeadlessRuntime::FMediaOutputCall> Calls = HeadlessRuntime::GetMediaOutputCalls();
	ASSERT_EQ(Calls.Num(), 2);
	for (const HeadlessRuntime::FMediaOutputCall& Call : Calls)
	{
		EXPECT_EQ(Call.Output, Output);
		EXPECT_TRUE(Call.bInTransaction);
		EXPECT_TRUE(Call.bScriptExecutionAllowed);
	}
	EXPECT_TRUE(Calls[0].bStart);
	EXPECT_FALSE(Calls[1].bStart);

	const FText StartTitle = Calls[0].TransactionTitle;
	const FText StopTitle = Calls[1].TransactionTitle;
	EXPECT_TRUE(StartTitle.ToString().Equals(TEXT("ExecuteCallInEditorMethod")));
	EXPECT_TRUE(FTextInspector::GetKey(StartTitle).Get(FString()).Equals(TEXT("ClickStart")));
	EXPECT_TRUE(FTextInspector::GetKey(StopTitle).Get(FString()).Equals(TEXT("ClickStop")));
	EXPECT_TRUE(FTextInspector::GetNamespace(StopTitle).Get(FString()).Equals(TEXT("MediaOutputDetailsCustomisation")));
}

TEST_F(MediaOutputDetails, DurationShowsTheRunningTimeAsATimeSpan)
{
	AKyroMediaOutput* Output = SpawnOutput();
	Show({Output});
	EXPECT_TRUE(GetDurationText().Equals(TEXT("+00:00:00.000")));

	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Start"))));
	HeadlessRuntime::AdvanceMediaOutputClock(61001);
	EXPECT_TRUE(GetDurationText().Equals(TEXT("+00:01:01.001")));
}

TEST_F(MediaOutputDetails, DurationsBeyondTheSignedRangeAreReadAsUnsigned)
{
	AKyroMediaOutput* Output = SpawnOutput();
	Show({Output});
	Output->DurationMs = std::numeric_limits<uint64>::max();
	// Read as signed this would be -1 ms; read as unsigned it is past the engine's tick range.
	EXPECT_TRUE(GetDurationText().Equals(TEXT("-10675199.02:48:05.477")));
}

TEST_F(MediaOutputDetails, WithSeveralOutputsSelectedOnlyTheFirstIsDriven)
{
	AKyroMediaOutput* First = SpawnOutput();
	AKyroMediaOutput* Second = SpawnOutput();
	Show({First, Second});

	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Start"))));
	EXPECT_TRUE(First->HasStarted);
	EXPECT_FALSE(Second->HasStarted);
}

TEST_F(MediaOutputDetails, AGoneOutputLogsAWarningAndOpensNoTransaction)
{
	AKyroMediaOutput* Output = SpawnOutput();
	Show({Output});
	const TSharedRef<SButton> Start = FindButton(TEXT("Start"));
	FCategoryLog Log(TEXT("LogActor"));
	Output->Destroy();

	ASSERT_TRUE(FWidgetDriver::Click(Start));
	FMediaOutputDetailsCustomisation Customisation;
	EXPECT_TRUE(Customisation.ClickStop(TWeakObjectPtr<AKyroMediaOutput>()).IsEventHandled());

	ASSERT_EQ(Log.Lines.Num(), 2);
	EXPECT_TRUE(Log.Lines[0].Equals(TEXT("Unable to call start on AKyroMediaOutput")));
	EXPECT_TRUE(Log.Lines[1].Equals(TEXT("Unable to call Stop on AKyroMediaOutput")));
	EXPECT_EQ(Log.Verbosities[0], ELogVerbosity::Warning);
	EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), 0);
	EXPECT_TRUE(HeadlessRuntime::GetMediaOutputCalls().IsEmpty());
}

TEST_F(MediaOutputDetails, EnablingHardwareEncodersSavesTheProjectAndAsksForARestart)
{
	HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(false);
	Show({SpawnOutput()});
	const TSharedRef<SWidget> Row = GetRowContents()[0];

	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Enable 'HardwareEncoders' plugin"))));

	const UE::Headless::FProjectManagerState& Project = UE::Headless::GetProjectManagerState();
	EXPECT_TRUE(Project.EnabledPlugins.Contains(TEXT("HardwareEncoders")));
	EXPECT_EQ(Project.SaveCount, 1);
	ASSERT_EQ(UE::Headless::GetProjectFilesMadeWriteable().Num(), 1);
	EXPECT_TRUE(UE::Headless::GetProjectFilesMadeWriteable()[0].Equals(TEXT("/Projects/Stream/Stream.uproject")));
	EXPECT_TRUE(UE::Headless::GetShownMessageDialogs().IsEmpty());
	EXPECT_TRUE(FWidgetDriver::FindWidget(Row, TEXT("SButton"), FString(TEXT("Restart required to take effect..."))).IsValid());
	const TSharedRef<SWidget> Hint = FWidgetDriver::FindWidget(Row, TEXT("STextBlock"), FString(TEXT("Enable the 'HardwareEncoders' plugin for greater FPS"))).ToSharedRef();
	EXPECT_FALSE(FWidgetDriver::IsShown(Hint));
}

TEST_F(MediaOutputDetails, AFailedEnableShowsTheReasonAndStillAsksForARestart)
{
	HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(false);
	UE::Headless::GetProjectManagerState().PluginEnableFailure = FText::FromString(TEXT("Plugin not found"));
	Show({SpawnOutput()});

	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Enable 'HardwareEncoders' plugin"))));

	ASSERT_EQ(UE::Headless::GetShownMessageDialogs().Num(), 1);
	EXPECT_EQ(UE::Headless::GetShownMessageDialogs()[0].MessageType, EAppMsgType::Ok);
	EXPECT_TRUE(UE::Headless::GetShownMessageDialogs()[0].Message.ToString().Equals(TEXT("Plugin not found")));
	EXPECT_EQ(UE::Headless::GetProjectManagerState().SaveCount, 0);
	EXPECT_TRUE(UE::Headless::GetProjectFilesMadeWriteable().IsEmpty());
	EXPECT_TRUE(FWidgetDriver::FindWidget(GetRowContents()[0], TEXT("SButton"), FString(TEXT("Restart required to take effect..."))).IsValid());
}

TEST_F(MediaOutputDetails, AFailedSaveShowsTheSaveFailure)
{
	HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(false);
	UE::Headless::GetProjectManagerState().SaveFailure = FText::FromString(TEXT("Project file is read-only"));
	Show({SpawnOutput()});

	ASSERT_TRUE(FWidgetDriver::Click(FindButton(TEXT("Enable 'HardwareEncoders' plugin"))));

	ASSERT_EQ(UE::Headless::GetShownMessageDialogs().Num(), 1);
	EXPECT_TRUE(UE::Headless::GetShownMessageDialogs()[0].Message.ToString().Equals(TEXT("Project file is read-only")));
	EXPECT_EQ(UE::Headless::GetProjectFilesMadeWriteable().Num(), 1);
}

TEST(MediaOutputDetailsDeathTest, AClassWithoutTheStatePropertiesIsFatal)
{
	EXPECT_DEATH(
		{
			FHeadlessEditorSession Session;
			FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
			PropertyEditor.RegisterCustomClassLayout(TEXT("Actor"), FOnGetDetailCustomizationInstance::CreateStatic(&FMediaOutputDetailsCustomisation::MakeInstance));
			TSharedRef<FHeadlessDetailsView> View = MakeShared<FHeadlessDetailsView>();
			View->SetObjects({GEditor->GetEditorWorldContext().World()->SpawnActor<AActor>()});
		},
		"HasStartedProperty->IsValidHandle\\(\\)");
}
