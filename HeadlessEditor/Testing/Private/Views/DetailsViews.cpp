#include "Views/DetailsViews.h"

#include "DetailsViewDriver.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "HeadlessLists.h"
#include "KyroCaptureComponent.h"
#include "KyroCineCamCapture.h"
#include "KyroMediaOutput.h"
#include "KyroNDIReceiverManager.h"
#include "KyroScreenCapture.h"
#include "KyroSpoutReceiverManager.h"
#include "LevelDriver.h"
#include "MediaRuntimeControls.h"
#include "PrintableText.h"
#include "Rendering/DrawElements.h"
#include "SourceListControls.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SComboButton.h"

#include <cmath>

namespace
{
	using FStringCombo = SComboBox<TSharedPtr<FString>>;

	/** The level editor's details tab docked beside the viewport. */
	const int32 PanelWidth = 480;
	/** Wide enough for the longest show-flag names in the name column. */
	const int32 WidePanelWidth = 560;
	/** Room for the longest of these panels laid out in full, before it is measured. */
	const double LayoutHeight = 4000.0;

	const TCHAR* const SenderOption = TEXT("sender");
	const TCHAR* const StoredOption = TEXT("stored");
	const TCHAR* const TypeOption = TEXT("type");
	const TCHAR* const MonitorOption = TEXT("monitor");
	const TCHAR* const WindowOption = TEXT("window");
	const TCHAR* const StartedOption = TEXT("started");
	const TCHAR* const EncoderRowOption = TEXT("hardware-encoder-row");
	const TCHAR* const ComponentsOption = TEXT("components");

	const TCHAR* const Yes = TEXT("yes");
	const TCHAR* const No = TEXT("no");
	const TCHAR* const Shown = TEXT("shown");
	const TCHAR* const Hidden = TEXT("hidden");

	const TCHAR* const LostSuffix = TEXT(" [lost]");
	const TCHAR* const EncoderOffer = TEXT("Enable the 'HardwareEncoders' plugin for greater FPS");
	const TCHAR* const CaptureSettingsCategory = TEXT("Nimbrel Capture Settings");
	/** The flag the second component of two turns off, so that the two disagree on it. */
	const TCHAR* const DisagreedFlag = TEXT("Fog");
	/** How long a started output has been running when the view shows it: 12 minutes 34.25 seconds. */
	const uint64 RunningMilliseconds = 754250;

	FString Quote(const FString& Text)
	{
		return TEXT("\"") + FPrintableText::Escape(Text) + TEXT("\"");
	}

	bool ContainsExactly(const TArray<FString>& Names, const FString& Name)
	{
		return Names.ContainsByPredicate([&Name](const FString& Candidate)
			{ return Candidate.Equals(Name, ESearchCase::CaseSensitive); });
	}

	/**
	 * The details panel in the level editor's details tab, as tall as the panel wants at the tab's
	 * width. Rows that wrap settle at the width they are drawn at, so the panel is drawn before it is measured.
	 */
	FShownEditorView ShowInDetailsTab(TUniquePtr<FHeadlessEditorSession> Session, const FDetailsViewDriver& Driver, const FString& Problem, int32 Width = PanelWidth)
	{
		const TSharedRef<SDockTab> Tab = SNew(SDockTab).Label(FText::FromString(TEXT("Details")))[Driver.GetDetailsView()];
		FSlateWindowElementList Elements(nullptr);
		FWidgetRenderer::PaintWidget(Tab, FVector2D(Width, LayoutHeight), Elements);
		Tab->SlatePrepass(1.0f);
		const int32 Height = static_cast<int32>(std::ceil(Tab->GetDesiredSize().Y));
		return FShownEditorView(MoveTemp(Session), Tab, FIntPoint(Width, Height), Problem);
	}

	/** The widget of a type in a row's value column; null when there is no such row or widget. */
	template <typename WidgetType>
	TSharedPtr<WidgetType> FindRowWidget(const TSharedPtr<FHeadlessDetailRow>& Row, const FString& TypeName)
	{
		return Row.IsValid() ? FDetailsViewDriver::FindValueWidget<WidgetType>(*Row, TypeName) : nullptr;
	}

	/** Picks the option showing exactly Text from a combo box's drop-down; false when it lists none. */
	bool PickOption(const TSharedRef<FStringCombo>& Combo, const FString& Text)
	{
		const TSharedPtr<FString>* Option = FWidgetDriver::GetComboOptions(Combo).FindByPredicate([&Text](const TSharedPtr<FString>& Candidate)
			{ return Candidate.IsValid() && Candidate->Equals(Text, ESearchCase::CaseSensitive); });
		return Option && FWidgetDriver::PickComboItem(Combo, *Option);
	}

	/** Picks an entry of a combo button's drop-down menu, as the value of an enumeration is picked. */
	bool PickMenuEntry(const TSharedRef<SComboButton>& Combo, const FString& Text)
	{
		Combo->SetIsOpen(true);
		const TSharedPtr<SWidget> Menu = UE::Headless::GetMenuContent(*Combo);
		const TSharedPtr<SButton> Entry = Menu.IsValid() ? FWidgetDriver::Find<SButton>(Menu.ToSharedRef(), TEXT("SButton"), Text) : nullptr;
		const bool bPicked = Entry.IsValid() && FWidgetDriver::Click(Entry.ToSharedRef());
		Combo->SetIsOpen(false);
		return bPicked;
	}

	FEditorViewOption MakeSenderOption(const TArray<FString>& Defaults)
	{
		return {SenderOption, TEXT("NAME"), TEXT("a sender live on the machine; give it again for more"), {}, Defaults, true};
	}

	FEditorViewOption MakeStoredOption(const FString& Default)
	{
		return {StoredOption, TEXT("NAME"), TEXT("the sender the receiver was set to while it was live; marked lost unless it is one of the live senders"), {}, {Default}, false};
	}

	/**
	 * A receiver whose sender the user picked while it was live, after the live senders became those
	 * given: the stored one may have gone. Its details show the sender picker on the stored name.
	 */
	template <typename ReceiverType>
	FShownEditorView ShowReceiver(const FEditorViewArguments& Arguments, void (*SetLiveSenders)(const TArray<FString>&))
	{
		const TArray<FString> Live = Arguments.GetValues(SenderOption);
		const FString Stored = Arguments.GetValue(StoredOption).GetValue();
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		TArray<FString> LiveWhenPicked = Live;
		LiveWhenPicked.Add(Stored);
		SetLiveSenders(LiveWhenPicked);

		FDetailsViewDriver Driver({FLevelDriver::GetEditorWorld()->SpawnActor<ReceiverType>()});
		if (const TSharedPtr<FHeadlessDetailRow> ReceiverRow = Driver.FindPropertyRow(TEXT("Receiver")))
		{
			Driver.SetRowExpanded(*ReceiverRow);
		}
		const TSharedPtr<FStringCombo> Picker = FindRowWidget<FStringCombo>(Driver.FindCustomRow(TEXT("Name")), TEXT("SComboBox"));
		const bool bPicked = Picker.IsValid() && PickOption(Picker.ToSharedRef(), Stored);
		SetLiveSenders(Live);

		const FString Expected = ContainsExactly(Live, Stored) ? Stored : Stored + LostSuffix;
		const FString Label = Picker.IsValid() ? FWidgetDriver::GetDisplayedText(Picker.ToSharedRef()).Get(FString()) : FString();
		FString Problem;
		if (!Picker.IsValid())
		{
			Problem = TEXT("the receiver's details have no sender picker");
		}
		else if (!bPicked)
		{
			Problem = FString::Printf(TEXT("the sender picker did not offer %s to pick"), *Quote(Stored));
		}
		else if (!Label.Equals(Expected, ESearchCase::CaseSensitive))
		{
			Problem = FString::Printf(TEXT("the sender picker was to show %s, but it shows %s"), *Quote(Expected), *Quote(Label));
		}
		return ShowInDetailsTab(MoveTemp(Session), Driver, Problem);
	}

	/** A new screen capture's details with the capture type picked; the picker of that type shows its first source. */
	FShownEditorView ShowScreenCapture(const FEditorViewArguments& Arguments)
	{
		const FString Type = Arguments.GetValue(TypeOption).GetValue();
		const TArray<FString> Monitors = Arguments.GetValues(MonitorOption);
		const TArray<FString> Windows = Arguments.GetValues(WindowOption);
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		HeadlessSourceLists::SetMonitorNames(Monitors);
		HeadlessSourceLists::SetWindowNames(Windows);

		FDetailsViewDriver Driver({FLevelDriver::GetEditorWorld()->SpawnActor<AKyroScreenCapture>()});
		const TSharedPtr<SComboButton> TypePicker = FindRowWidget<SComboButton>(Driver.FindPropertyRow(TEXT("ScreenCaptureType")), TEXT("SComboButton"));
		const bool bPicked = TypePicker.IsValid() && PickMenuEntry(TypePicker.ToSharedRef(), Type);

		const bool bWindow = Type == TEXT("Window");
		const FString RowName = bWindow ? TEXT("WindowName") : TEXT("MonitorName");
		const FString First = bWindow ? Windows[0] : Monitors[0];
		const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindCustomRow(RowName);
		const TSharedPtr<FStringCombo> Picker = FindRowWidget<FStringCombo>(Row, TEXT("SComboBox"));
		const FString Label = Picker.IsValid() ? FWidgetDriver::GetDisplayedText(Picker.ToSharedRef()).Get(FString()) : FString();
		FString Problem;
		if (!bPicked)
		{
			Problem = FString::Printf(TEXT("the capture type %s could not be picked"), *Quote(Type));
		}
		else if (!Row.IsValid() || Row->GetVisibility() != EVisibility::Visible)
		{
			Problem = FString::Printf(TEXT("the %s picker was to show, but it is hidden"), *RowName);
		}
		else if (!Label.Equals(First, ESearchCase::CaseSensitive))
		{
			Problem = FString::Printf(TEXT("the %s picker was to show the first source %s, but it shows %s"), *RowName, *Quote(First), *Quote(Label));
		}
		return ShowInDetailsTab(MoveTemp(Session), Driver, Problem);
	}

	/** A media output's details, started from its Start button and running for a while, or never started. */
	FShownEditorView ShowMediaOutput(const FEditorViewArguments& Arguments)
	{
		const bool bStart = Arguments.GetValue(StartedOption).GetValue() == Yes;
		const bool bOffer = Arguments.GetValue(EncoderRowOption).GetValue() == Shown;
		// The runtime offers the encoders plugin when it would not suggest loading it.
		HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(!bOffer);
		HeadlessRuntime::ClearHardwareEncodersPendingRestart();
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();

		AKyroMediaOutput* Output = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroMediaOutput>();
		FDetailsViewDriver Driver({Output});
		const TSharedRef<SWidget> Panel = Driver.GetDetailsView();
		if (bStart)
		{
			const TSharedPtr<SButton> Start = FWidgetDriver::Find<SButton>(Panel, TEXT("SButton"), FString(TEXT("Start")));
			if (Start.IsValid() && FWidgetDriver::Click(Start.ToSharedRef()))
			{
				HeadlessRuntime::AdvanceMediaOutputClock(RunningMilliseconds);
			}
		}

		const TSharedPtr<SWidget> Offer = FWidgetDriver::FindWidget(Panel, TEXT("STextBlock"), FString(EncoderOffer));
		const bool bOffered = Offer.IsValid() && FWidgetDriver::IsShown(Offer.ToSharedRef());
		FString Problem;
		if (Output->HasStarted != bStart)
		{
			Problem = bStart ? TEXT("the media output was to run, but pressing Start did not start it") : TEXT("the media output was not to run, but it has started");
		}
		else if (bOffered != bOffer)
		{
			Problem = bOffer ? TEXT("the offer to enable the hardware encoders was to show, but the panel has none") : TEXT("the offer to enable the hardware encoders was to be left out, but the panel shows it");
		}
		return ShowInDetailsTab(MoveTemp(Session), Driver, Problem);
	}

	/** Shows the capture settings' advanced section with every show-flag group open. */
	void OpenShowFlagGroups(const FDetailsViewDriver& Driver)
	{
		Driver.SetAdvancedShown(CaptureSettingsCategory);
		for (const TSharedRef<FHeadlessDetailRow>& Row : Driver.FindCategory(CaptureSettingsCategory)->Rows)
		{
			if (Row->Kind == FHeadlessDetailRow::EKind::Group)
			{
				Driver.SetRowExpanded(*Row);
			}
		}
	}

	/** The check box of the show flag the panel names so; null when it has none. */
	TSharedPtr<SCheckBox> FindShowFlagBox(const FDetailsViewDriver& Driver, const FString& DisplayName)
	{
		for (const TSharedRef<FHeadlessDetailRow>& Row : Driver.GetAllRows())
		{
			const TSharedRef<SWidget> Name = Row->Widgets.NameContent().Widget;
			if (Row->Kind == FHeadlessDetailRow::EKind::Custom && FWidgetDriver::GetDisplayedText(Name).Get(FString()).Equals(DisplayName, ESearchCase::CaseSensitive))
			{
				return FDetailsViewDriver::FindValueWidget<SCheckBox>(*Row, TEXT("SCheckBox"));
			}
		}
		return nullptr;
	}

	/**
	 * The capture components of one or two cinematic captures selected together, with the show-flag
	 * groups open. Of two, the second had a flag turned off in its own panel first.
	 */
	FShownEditorView ShowCaptureComponents(const FEditorViewArguments& Arguments)
	{
		const int32 Count = Arguments.GetValue(ComponentsOption).GetValue() == TEXT("2") ? 2 : 1;
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		TArray<UObject*> Components;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Components.Add(FLevelDriver::GetEditorWorld()->SpawnActor<AKyroCineCamCapture>()->CaptureComponent);
		}
		bool bTurnedOff = true;
		if (Count == 2)
		{
			FDetailsViewDriver Second({Components[1]});
			OpenShowFlagGroups(Second);
			const TSharedPtr<SCheckBox> Box = FindShowFlagBox(Second, DisagreedFlag);
			bTurnedOff = Box.IsValid() && Box->IsChecked() && FWidgetDriver::ToggleCheckBox(Box.ToSharedRef());
		}

		FDetailsViewDriver Driver(Components);
		OpenShowFlagGroups(Driver);
		const TSharedPtr<SCheckBox> Box = FindShowFlagBox(Driver, DisagreedFlag);
		const ECheckBoxState Expected = Count == 2 ? ECheckBoxState::Undetermined : ECheckBoxState::Checked;
		FString Problem;
		if (!bTurnedOff)
		{
			Problem = FString::Printf(TEXT("the second component's %s flag could not be turned off in its panel"), DisagreedFlag);
		}
		else if (!Box.IsValid() || Box->GetCheckedState() != Expected)
		{
			Problem = FString::Printf(TEXT("the %s box was to be %s, but it is not"), DisagreedFlag, Count == 2 ? TEXT("undetermined, the components disagreeing") : TEXT("ticked, as the engine's default"));
		}
		return ShowInDetailsTab(MoveTemp(Session), Driver, Problem, WidePanelWidth);
	}

	TArray<FEditorViewOption> MakeScreenCaptureOptions(const TCHAR* DefaultType)
	{
		return {{TypeOption, TEXT("TYPE"), TEXT("the capture type to pick"), {TEXT("Monitor"), TEXT("Window")}, {DefaultType}, false},
			{MonitorOption, TEXT("NAME"), TEXT("a monitor of the machine; give it again for more"), {}, {TEXT("Main Display"), TEXT("Side Display")}, true},
			{WindowOption, TEXT("NAME"), TEXT("a window open on the machine; give it again for more"), {}, {TEXT("Stream Overlay"), TEXT("Scene Preview")}, true}};
	}

	TArray<FEditorViewOption> MakeMediaOutputOptions(const TCHAR* DefaultStarted, const TCHAR* DefaultEncoderRow)
	{
		return {{StartedOption, TEXT("STARTED"), TEXT("whether Start was pressed, the output running since"), {Yes, No}, {DefaultStarted}, false},
			{EncoderRowOption, TEXT("ROW"), TEXT("whether the runtime offers to enable the hardware encoders plugin"), {Shown, Hidden}, {DefaultEncoderRow}, false}};
	}
}

TArray<FEditorView> MakeDetailsViews()
{
	TArray<FEditorView> Views;
	Views.Add({TEXT("spout-receiver"), TEXT("a Spout receiver's details: the sender picker on a stored sender that is no longer live"),
		{MakeSenderOption({TEXT("Stage Left"), TEXT("Stage Right")}), MakeStoredOption(TEXT("Backstage"))},
		[](const FEditorViewArguments& Arguments)
		{ return ShowReceiver<AKyroSpoutReceiverManager>(Arguments, &HeadlessSourceLists::SetSpoutSenderNames); }});
	Views.Add({TEXT("ndi-receiver"), TEXT("an NDI receiver's details: the sender picker on a stored source that is no longer live"),
		{MakeSenderOption({TEXT("STUDIO (Stage Left)"), TEXT("STUDIO (Stage Right)")}), MakeStoredOption(TEXT("STUDIO (Backstage)"))},
		[](const FEditorViewArguments& Arguments)
		{ return ShowReceiver<AKyroNDIReceiverManager>(Arguments, &HeadlessSourceLists::SetNDISourceNames); }});
	Views.Add({TEXT("screen-capture"), TEXT("a screen capture's details: the capture type and the picker of its sources"), MakeScreenCaptureOptions(TEXT("Monitor")), &ShowScreenCapture});
	Views.Add({TEXT("screen-capture-window"), TEXT("a screen capture's details on the window type: the picker of open windows"), MakeScreenCaptureOptions(TEXT("Window")), &ShowScreenCapture});
	Views.Add({TEXT("media-output"), TEXT("a media output's details: the encoders offer, the running time and the Start and Stop buttons"), MakeMediaOutputOptions(Yes, Shown), &ShowMediaOutput});
	Views.Add({TEXT("media-output-stopped"), TEXT("a media output's details before Start, with the hardware encoders already enabled"), MakeMediaOutputOptions(No, Hidden), &ShowMediaOutput});
	Views.Add({TEXT("capture-component"), TEXT("a capture component's details with its show-flag groups open"),
		{{ComponentsOption, TEXT("COUNT"), TEXT("how many components are selected; two disagree on the Fog flag"), {TEXT("1"), TEXT("2")}, {TEXT("2")}, false}},
		&ShowCaptureComponents});
	return Views;
}
