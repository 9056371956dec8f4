#include "Views/PanelViews.h"

#include "AssetTypeCategories.h"
#include "AuthDelegates.h"
#include "HeadlessContentBrowser.h"
#include "HeadlessDesktop.h"
#include "HeadlessDialogs.h"
#include "HeadlessEditorSession.h"
#include "HeadlessLists.h"
#include "HeadlessMenus.h"
#include "HeadlessNotifications.h"
#include "HeadlessPlacementMode.h"
#include "HeadlessSaveGames.h"
#include "HeadlessViewportRendering.h"
#include "IPlacementModeModule.h"
#include "ToolMenus.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Notifications/SNotificationList.h"

#include <cmath>

namespace
{
	const TCHAR* const ToolbarMenu = TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar");
	const TCHAR* const ToolbarSection = TEXT("Content");
	const TCHAR* const ToolbarButton = TEXT("Nimbrel");
	const TCHAR* const EditorRenderingEntry = TEXT("Editor Viewport Rendering");
	const TCHAR* const RuntimeRenderingEntry = TEXT("Runtime Viewport Rendering");
	const TCHAR* const VersionEntry = TEXT("Plugin Version");
	const TCHAR* const DownloadFolder = TEXT("https://www.example.com/download/");
	const TCHAR* const UpdateButtons[] = {TEXT("Download now"), TEXT("Remind me later"), TEXT("Skip version")};
	const FName PlacementCategory(TEXT("Nimbrel"));
	const TCHAR* const NewAssetEntry = TEXT("Kyro NDI Sound Wave");

	/** The top left of the level editor's window: the toolbar, and room below it for the drop-down. */
	const FIntPoint ToolbarWindowSize(320, 380);
	/** The bottom right corner of the editor's window, where notifications appear. */
	const FIntPoint NotificationCornerSize(480, 180);
	/** The Place Actors tab, docked at the editor's left at its usual width. */
	const FIntPoint PlacementTabSize(320, 720);

	const TCHAR* const EditorRenderingOption = TEXT("editor-viewport-rendering");
	const TCHAR* const RuntimeRenderingOption = TEXT("runtime-viewport-rendering");
	const TCHAR* const PluginVersionOption = TEXT("plugin-version");
	const TCHAR* const EngineVersionOption = TEXT("engine-version");
	const TCHAR* const OfferedVersionOption = TEXT("version");
	const TCHAR* const NDIModuleOption = TEXT("ndi-module");
	const TCHAR* const On = TEXT("on");
	const TCHAR* const Off = TEXT("off");
	const TCHAR* const Loaded = TEXT("loaded");
	const TCHAR* const Absent = TEXT("absent");

	FEditorViewOption MakeSwitchOption(const TCHAR* Name, const FString& Help)
	{
		return {Name, TEXT("STATE"), Help, {On, Off}, {On}, false};
	}

	FEditorViewOption MakeTextOption(const TCHAR* Name, const TCHAR* ValueName, const FString& Help, const FString& Default)
	{
		return {Name, ValueName, Help, {}, {Default}, false};
	}

	/**
	 * The size the widget asks for: message boxes, notifications and menus open in windows the editor
	 * sizes to their content.
	 */
	FIntPoint GetContentSize(const TSharedRef<SWidget>& Widget)
	{
		Widget->SlatePrepass(1.0f);
		const FVector2D Size = Widget->GetDesiredSize();
		return FIntPoint(static_cast<int32>(std::ceil(Size.X)), static_cast<int32>(std::ceil(Size.Y)));
	}

	/** A view of a widget in a window sized to it. */
	FShownEditorView ShowSizedToContent(TUniquePtr<FHeadlessEditorSession> Session, const TSharedRef<SWidget>& Widget, const FString& Problem = FString())
	{
		const FIntPoint Size = GetContentSize(Widget);
		return FShownEditorView(MoveTemp(Session), Widget, Size, Problem);
	}

	/** The value of an option every view of this file gives a default. */
	FString GetValue(const FEditorViewArguments& Arguments, const TCHAR* Option)
	{
		return Arguments.GetValue(Option).GetValue();
	}

	/** The drop-down the plugin's toolbar button opens, as the menu system generates it; null without the button. */
	TSharedPtr<SWidget> GenerateToolbarButtonMenu()
	{
		UToolMenu* Toolbar = UToolMenus::Get()->FindMenu(ToolbarMenu);
		FToolMenuSection* Section = Toolbar ? Toolbar->FindSection(ToolbarSection) : nullptr;
		FToolMenuEntry* Button = Section ? Section->FindEntry(ToolbarButton) : nullptr;
		if (!Button || !Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.IsBound())
		{
			return nullptr;
		}
		return Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute();
	}

	/** The level editor's toolbar in the top left of its window, with whatever drop-down is open on it. */
	TSharedRef<SWidget> MakeToolbarWindow(const TSharedRef<SWidget>& Toolbar)
	{
		return UE::Headless::MakePopupLayer(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Toolbar]);
	}

	TSharedRef<SWidget> GenerateToolbar()
	{
		return UToolMenus::Get()->GenerateWidget(ToolbarMenu, FToolMenuContext());
	}

	FString DescribeMissingToolbarButton()
	{
		return FString::Printf(TEXT("the level editor's toolbar has no \"%s\" button with a drop-down"), ToolbarButton);
	}

	/** Why the open drop-down's toggle labelled Entry does not show the runtime's setting bState, if it does not. */
	FString CheckToggle(const TSharedRef<SWidget>& Menu, const TCHAR* Entry, bool bState)
	{
		const TSharedPtr<SWidget> Button = FWidgetDriver::FindWidget(Menu, TEXT("SButton"), FString(Entry));
		const TSharedPtr<SCheckBox> CheckBox = Button.IsValid() ? FWidgetDriver::Find<SCheckBox>(Button.ToSharedRef(), TEXT("SCheckBox")) : nullptr;
		if (!CheckBox.IsValid())
		{
			return FString::Printf(TEXT("the drop-down has no \"%s\" toggle"), Entry);
		}
		if (CheckBox->GetCheckedState() != (bState ? ECheckBoxState::Checked : ECheckBoxState::Unchecked))
		{
			return FString::Printf(TEXT("the drop-down's \"%s\" toggle is %s although the runtime's setting is %s"), Entry, bState ? TEXT("unticked") : TEXT("ticked"), bState ? On : Off);
		}
		return FString();
	}

	/** Clicks the plugin's button on the toolbar; why its drop-down did not open with the toggles as set, if it did not. */
	FString OpenToolbarButtonMenu(const TSharedRef<SWidget>& Toolbar, bool bEditorRendering, bool bRuntimeRendering)
	{
		const TSharedPtr<SButton> Button = FWidgetDriver::Find<SButton>(Toolbar, TEXT("SButton"), FString(ToolbarButton));
		if (!Button.IsValid() || !FWidgetDriver::Click(Button.ToSharedRef()))
		{
			return DescribeMissingToolbarButton();
		}
		const TSharedPtr<SComboButton> Combo = FWidgetDriver::Find<SComboButton>(Toolbar, TEXT("SComboButton"));
		const TSharedPtr<SWidget> Menu = Combo.IsValid() && Combo->IsOpen() ? UE::Headless::GetMenuContent(*Combo) : nullptr;
		if (!Menu.IsValid())
		{
			return FString::Printf(TEXT("clicking the \"%s\" button opened no drop-down"), ToolbarButton);
		}
		const FString EditorProblem = CheckToggle(Menu.ToSharedRef(), EditorRenderingEntry, bEditorRendering);
		return EditorProblem.IsEmpty() ? CheckToggle(Menu.ToSharedRef(), RuntimeRenderingEntry, bRuntimeRendering) : EditorProblem;
	}

	FShownEditorView ShowToolbarMenu(const FEditorViewArguments& Arguments)
	{
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		// The runtime's switches, as a blueprint elsewhere in the game may have left them.
		const bool bEditorRendering = GetValue(Arguments, EditorRenderingOption) == On;
		const bool bRuntimeRendering = GetValue(Arguments, RuntimeRenderingOption) == On;
		UE::Headless::SetEditorViewportRendering(bEditorRendering);
		UE::Headless::SetRuntimeViewportRendering(bRuntimeRendering);

		const TSharedRef<SWidget> Toolbar = GenerateToolbar();
		const FString Problem = OpenToolbarButtonMenu(Toolbar, bEditorRendering, bRuntimeRendering);
		return FShownEditorView(MoveTemp(Session), MakeToolbarWindow(Toolbar), ToolbarWindowSize, Problem);
	}

	FShownEditorView ShowVersionDialog(const FEditorViewArguments& Arguments)
	{
		FHeadlessEditorOptions Options;
		Options.PluginVersionName = GetValue(Arguments, PluginVersionOption);
		Options.PluginEngineVersion = GetValue(Arguments, EngineVersionOption);
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>(Options);

		const TSharedPtr<SWidget> Menu = GenerateToolbarButtonMenu();
		if (!Menu.IsValid())
		{
			return FShownEditorView(MoveTemp(Session), MakeToolbarWindow(GenerateToolbar()), ToolbarWindowSize, DescribeMissingToolbarButton());
		}
		const int32 DialogsBefore = UE::Headless::GetShownMessageDialogs().Num();
		if (!UE::Headless::ClickMenuEntry(Menu.ToSharedRef(), VersionEntry))
		{
			return ShowSizedToContent(MoveTemp(Session), UE::Headless::MakeMenuWindow(Menu.ToSharedRef()), FString::Printf(TEXT("the toolbar button's drop-down has no enabled \"%s\" entry"), VersionEntry));
		}
		const TArray<UE::Headless::FShownMessageDialog>& Dialogs = UE::Headless::GetShownMessageDialogs();
		if (Dialogs.Num() == DialogsBefore)
		{
			return ShowSizedToContent(MoveTemp(Session), UE::Headless::MakeMenuWindow(Menu.ToSharedRef()), FString::Printf(TEXT("choosing \"%s\" showed no message box"), VersionEntry));
		}
		const UE::Headless::FShownMessageDialog& Dialog = Dialogs.Last();
		return ShowSizedToContent(MoveTemp(Session), UE::Headless::MakeMessageDialogWidget(Dialog.MessageType, Dialog.Message, Dialog.Title.GetPtrOrNull()));
	}

	/** Why the notification does not offer the three answers, if it does not. */
	FString CheckUpdateButtons(const TSharedRef<SNotificationItem>& Notification)
	{
		for (const TCHAR* Label : UpdateButtons)
		{
			const TSharedPtr<SButton> Button = FWidgetDriver::Find<SButton>(Notification, TEXT("SButton"), FString(Label));
			if (!Button.IsValid() || !FWidgetDriver::IsShown(Button.ToSharedRef()))
			{
				return FString::Printf(TEXT("the notification shows no \"%s\" button"), Label);
			}
		}
		return FString();
	}

	FShownEditorView ShowUpdateNotification(const FEditorViewArguments& Arguments)
	{
		// A user who has skipped no version: the save slots are those of a fresh profile.
		UE::Headless::ClearSaveGames();
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		const FString Version = GetValue(Arguments, OfferedVersionOption);
		AuthDelegates::OnUpgradeAvailable.Broadcast(Version, DownloadFolder + Version);

		const TArray<TSharedRef<SNotificationItem>>& Notifications = UE::Headless::GetNotifications();
		if (Notifications.IsEmpty())
		{
			return FShownEditorView(MoveTemp(Session), UE::Headless::MakeNotificationArea(), NotificationCornerSize,
				FString::Printf(TEXT("the editor showed no notification when the runtime offered version %s"), *Version));
		}
		const TSharedRef<SNotificationItem> Notification = Notifications.Last();
		return ShowSizedToContent(MoveTemp(Session), Notification, CheckUpdateButtons(Notification));
	}

	/** Why the placement mode does not list the plugin's category with items, if it does not. */
	FString CheckPlacementCategory()
	{
		if (!IPlacementModeModule::IsAvailable() || !IPlacementModeModule::Get().GetRegisteredPlacementCategory(PlacementCategory))
		{
			return FString::Printf(TEXT("the placement mode has no \"%s\" category"), *PlacementCategory.ToString());
		}
		TArray<TSharedPtr<FPlaceableItem>> Items;
		IPlacementModeModule::Get().GetItemsForCategory(PlacementCategory, Items);
		return Items.IsEmpty() ? FString::Printf(TEXT("the placement mode's \"%s\" category lists no items"), *PlacementCategory.ToString()) : FString();
	}

	FShownEditorView ShowPlacement(const FEditorViewArguments& Arguments)
	{
		FHeadlessEditorOptions Options;
		Options.bKyroNDILoaded = GetValue(Arguments, NDIModuleOption) == Loaded;
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>(Options);
		const FString Problem = CheckPlacementCategory();
		return FShownEditorView(MoveTemp(Session), UE::Headless::MakePlacementPanel(PlacementCategory), PlacementTabSize, Problem);
	}

	FShownEditorView ShowNewAsset(const FEditorViewArguments&)
	{
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		// Factories whose class has no asset type of its own go under "Miscellaneous".
		const TSharedRef<SWidget> Menu = UE::Headless::MakeNewAssetCategoryMenu(EAssetTypeCategories::Misc);
		const FString Problem = FWidgetDriver::FindWidget(Menu, TEXT("STextBlock"), FString(NewAssetEntry)).IsValid()
			? FString()
			: FString::Printf(TEXT("the new-asset menu's \"Miscellaneous\" group lists no \"%s\""), NewAssetEntry);
		return ShowSizedToContent(MoveTemp(Session), UE::Headless::MakeMenuWindow(Menu), Problem);
	}
}

TArray<FEditorView> MakePanelViews()
{
	TArray<FEditorView> Views;
	Views.Add({TEXT("toolbar-menu"), TEXT("the level editor's toolbar with the plugin's drop-down open, its toggles as the runtime reports them"),
		{MakeSwitchOption(EditorRenderingOption, TEXT("whether the runtime renders the viewports in the editor, as \"Editor Viewport Rendering\" shows it")),
			MakeSwitchOption(RuntimeRenderingOption, TEXT("whether the runtime renders the viewports in play, as \"Runtime Viewport Rendering\" shows it"))},
		&ShowToolbarMenu});
	Views.Add({TEXT("version-dialog"), TEXT("the message box the drop-down's \"Plugin Version\" entry shows"),
		{MakeTextOption(PluginVersionOption, TEXT("VERSION"), TEXT("the version name the plugin's descriptor declares"), TEXT("1.0")),
			MakeTextOption(EngineVersionOption, TEXT("VERSION"), TEXT("the engine version the plugin's descriptor declares"), TEXT("5.1.0"))},
		&ShowVersionDialog});
	Views.Add({TEXT("update-notification"), TEXT("the notification offering a newer plugin version, with its three buttons"),
		{MakeTextOption(OfferedVersionOption, TEXT("VERSION"), TEXT("the version the runtime announces"), TEXT("1.5"))},
		&ShowUpdateNotification});
	Views.Add({TEXT("placement"), TEXT("the Place Actors panel on the plugin's category, with its actor classes"),
		{{NDIModuleOption, TEXT("STATE"), TEXT("whether the plugin's NDI runtime module is loaded when the editor module starts; its two managers are listed only then"), {Loaded, Absent}, {Loaded}, false}},
		&ShowPlacement});
	Views.Add({TEXT("new-asset"), TEXT("the content browser's new-asset group that lists the NDI sound wave"),
		{},
		&ShowNewAsset});
	return Views;
}
