#include "HeadlessMenus.h"

#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/SHeadingBlock.h"
#include "Framework/MultiBox/SMenuEntryBlock.h"
#include "HeadlessPopupLayer.h"
#include "Layout/Children.h"
#include "Styling/CoreStyle.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"

namespace
{
	const SMultiBoxWidget& AsMenuWidget(const TSharedRef<SWidget>& Widget)
	{
		checkf(UE::Headless::IsMenuWidget(Widget), TEXT("Widget %s is not a menu"), *Widget->GetTypeAsString());
		return static_cast<const SMultiBoxWidget&>(*Widget);
	}

	/** The action an entry runs: the command's, looked up in its list now, or the entry's own. */
	const FUIAction* FindAction(const FMultiBlock& Block)
	{
		if (Block.GetAction().IsValid())
		{
			return Block.GetActionList().IsValid() ? Block.GetActionList()->GetActionForCommand(Block.GetAction()) : nullptr;
		}
		return &Block.GetDirectActions();
	}

	UE::Headless::FMenuLine ReadEntry(const FMenuEntryBlock& Entry)
	{
		UE::Headless::FMenuLine Line;
		Line.Kind = UE::Headless::EMenuLineKind::Entry;
		Line.ExtensionHook = Entry.GetExtensionHook();
		Line.Type = Entry.UserInterfaceActionType;
		const TSharedPtr<const FUICommandInfo> Command = Entry.GetAction();
		if (Command.IsValid())
		{
			Line.CommandName = Command->GetCommandName();
			Line.Label = Entry.LabelOverride.IsSet() ? Entry.LabelOverride.Get() : Command->GetLabel();
			Line.ToolTip = Entry.ToolTipOverride.IsSet() ? Entry.ToolTipOverride.Get() : Command->GetDescription();
			Line.Icon = Entry.IconOverride.IsSet() ? Entry.IconOverride : Command->GetIcon();
		}
		else
		{
			Line.Label = Entry.LabelOverride.Get(FText::GetEmpty());
			Line.ToolTip = Entry.ToolTipOverride.Get(FText::GetEmpty());
			Line.Icon = Entry.IconOverride;
		}
		const FUIAction* Action = FindAction(Entry);
		// As the engine's menu entry: a command asks its list, which enables commands it has no action for.
		Line.bEnabled = Command.IsValid() && Entry.GetActionList().IsValid() ? Entry.GetActionList()->CanExecuteAction(Command.ToSharedRef()) : Entry.GetDirectActions().CanExecute();
		Line.CheckState = Action ? Action->GetCheckState() : ECheckBoxState::Unchecked;
		return Line;
	}
}

bool UE::Headless::IsMenuWidget(const TSharedRef<SWidget>& Widget)
{
	return Widget->GetType() == FName(TEXT("SMultiBoxWidget"));
}

TArray<UE::Headless::FMenuLine> UE::Headless::ReadMenu(const TSharedRef<SWidget>& MenuWidget)
{
	TArray<FMenuLine> Lines;
	for (const TSharedRef<const FMultiBlock>& Block : AsMenuWidget(MenuWidget).GetMultiBox()->GetBlocks())
	{
		switch (Block->GetType())
		{
			case EMultiBlockType::Heading:
			{
				FMenuLine& Line = Lines.AddDefaulted_GetRef();
				Line.Kind = EMenuLineKind::Heading;
				Line.ExtensionHook = Block->GetExtensionHook();
				Line.Label = static_cast<const FHeadingBlock&>(*Block).HeadingText.Get(FText::GetEmpty());
				break;
			}
			case EMultiBlockType::Separator:
			{
				FMenuLine& Line = Lines.AddDefaulted_GetRef();
				Line.Kind = EMenuLineKind::Separator;
				Line.ExtensionHook = Block->GetExtensionHook();
				break;
			}
			case EMultiBlockType::MenuEntry:
				Lines.Add(ReadEntry(static_cast<const FMenuEntryBlock&>(*Block)));
				break;
			default:
				break;
		}
	}
	return Lines;
}

TOptional<float> UE::Headless::GetMenuMaxHeight(const TSharedRef<SWidget>& MenuWidget)
{
	// A capped menu holds its scroll box in a vertical box slot whose max height is the cap.
	if (AsMenuWidget(MenuWidget).GetMultiBox()->GetBlocks().Num() == 0)
	{
		return TOptional<float>();
	}
	const TSharedRef<SWidget> RootBorder = MenuWidget->GetChildren()->GetChildAt(0);
	const TSharedRef<SWidget> MainWidget = RootBorder->GetChildren()->GetChildAt(0);
	if (MainWidget->GetType() != TEXT("SVerticalBox"))
	{
		return TOptional<float>();
	}
	const float MaxHeight = StaticCastSharedRef<SVerticalBox>(MainWidget)->GetSlot(0).GetMaxSize();
	return MaxHeight > 0.0f ? TOptional<float>(MaxHeight) : TOptional<float>();
}

bool UE::Headless::ClickMenuEntry(const TSharedRef<SWidget>& MenuWidget, const FString& Label)
{
	for (const TSharedRef<const FMultiBlock>& Block : AsMenuWidget(MenuWidget).GetMultiBox()->GetBlocks())
	{
		if (Block->GetType() != EMultiBlockType::MenuEntry)
		{
			continue;
		}
		if (ReadEntry(static_cast<const FMenuEntryBlock&>(*Block)).Label.ToString().Equals(Label))
		{
			const FUIAction* Action = FindAction(*Block);
			return Action && Action->Execute();
		}
	}
	checkf(false, TEXT("The menu has no entry labelled \"%s\""), *Label);
	return false;
}

FString UE::Headless::DescribeMenu(const TSharedRef<SWidget>& MenuWidget)
{
	FString Result;
	for (const FMenuLine& Line : ReadMenu(MenuWidget))
	{
		switch (Line.Kind)
		{
			case EMenuLineKind::Heading:
				Result += FString::Printf(TEXT("[%s]\n"), *Line.Label.ToString());
				break;
			case EMenuLineKind::Separator:
				Result += TEXT("  ----\n");
				break;
			case EMenuLineKind::Entry:
			{
				const bool bToggle = Line.Type == EUserInterfaceActionType::ToggleButton || Line.Type == EUserInterfaceActionType::Check || Line.Type == EUserInterfaceActionType::RadioButton;
				const FString Check = bToggle ? (Line.CheckState == ECheckBoxState::Checked ? TEXT("[x] ") : TEXT("[ ] ")) : TEXT("");
				Result += FString::Printf(TEXT("  %s%s%s - %s\n"), *Check, *Line.Label.ToString(), Line.bEnabled ? TEXT("") : TEXT(" (disabled)"), *Line.ToolTip.ToString());
				break;
			}
		}
	}
	return Result;
}

TSharedRef<SWidget> UE::Headless::MakeMenuWindow(const TSharedRef<SWidget>& MenuContent)
{
	// As the menu stack wraps every menu it opens: a background, a thin outline, the default foreground.
	return SNew(SOverlay) + SOverlay::Slot()[SNew(SImage).Image(FCoreStyle::Get().GetBrush("Menu.Background"))] + SOverlay::Slot()[SNew(SImage).Image(FCoreStyle::Get().GetOptionalBrush("Menu.Outline", nullptr))] + SOverlay::Slot()[SNew(SBorder).Padding(0.0f).BorderImage(FStyleDefaults::GetNoBrush()).ForegroundColor(FCoreStyle::Get().GetSlateColor("DefaultForeground"))[MenuContent]];
}

TSharedRef<SWidget> UE::Headless::MakePopupLayer(const TSharedRef<SWidget>& Root)
{
	return SNew(SHeadlessPopupLayer)[Root];
}

TArray<TSharedRef<SWidget>> UE::Headless::GetDrawnPopupWindows(const TSharedRef<SWidget>& Widget)
{
	if (Widget->GetType() != FName(TEXT("SHeadlessPopupLayer")))
	{
		return {};
	}
	return StaticCastSharedRef<SHeadlessPopupLayer>(Widget)->GetDrawnWindows();
}
