#include "SMenuEntryBlock.h"

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateColor.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SMenuAnchor.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SLinkedBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

FMenuEntryBlock::FMenuEntryBlock(const FName& InExtensionHook, const TSharedPtr<const FUICommandInfo>& InCommand, TSharedPtr<const FUICommandList> InCommandList, const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, bool bInCloseSelfOnly)
	: FMultiBlock(InCommand, InCommandList, InExtensionHook, EMultiBlockType::MenuEntry)
	, LabelOverride(InLabelOverride)
	, ToolTipOverride(InToolTipOverride)
	, IconOverride(InIconOverride)
	, UserInterfaceActionType(InCommand->GetUserInterfaceType())
	, bCloseSelfOnly(bInCloseSelfOnly)
{
}

FMenuEntryBlock::FMenuEntryBlock(const FName& InExtensionHook, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& InUIAction, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly)
	: FMultiBlock(InUIAction, InExtensionHook, EMultiBlockType::MenuEntry)
	, LabelOverride(InLabel)
	, ToolTipOverride(InToolTip)
	, IconOverride(InIcon)
	, UserInterfaceActionType(InUserInterfaceActionType)
	, bCloseSelfOnly(bInCloseSelfOnly)
{
}

FMenuEntryBlock::FMenuEntryBlock(const FName& InExtensionHook, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InEntryBuilder, TSharedPtr<FExtender> InExtender, bool bInSubMenu, bool bInSubMenuOnClick, const FSlateIcon& InIcon, const FUIAction& InUIAction, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly, bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList)
	: FMultiBlock(InUIAction, InExtensionHook, EMultiBlockType::MenuEntry)
	, LabelOverride(InLabel)
	, ToolTipOverride(InToolTip)
	, IconOverride(InIcon)
	, EntryBuilder(InEntryBuilder)
	, bIsSubMenu(bInSubMenu)
	, bOpenSubMenuOnClick(bInSubMenuOnClick)
	, UserInterfaceActionType(InUserInterfaceActionType)
	, bCloseSelfOnly(bInCloseSelfOnly)
	, Extender(InExtender)
	, bShouldCloseWindowAfterMenuSelection(bInShouldCloseWindowAfterMenuSelection)
{
}

FMenuEntryBlock::FMenuEntryBlock(const FName& InExtensionHook, const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const TAttribute<FText>& InToolTip, const EUserInterfaceActionType InUserInterfaceActionType, bool bInCloseSelfOnly, bool bInShouldCloseWindowAfterMenuSelection)
	: FMultiBlock(UIAction, InExtensionHook, EMultiBlockType::MenuEntry)
	, ToolTipOverride(InToolTip)
	, EntryWidget(Contents)
	, UserInterfaceActionType(InUserInterfaceActionType)
	, bCloseSelfOnly(bInCloseSelfOnly)
	, bShouldCloseWindowAfterMenuSelection(bInShouldCloseWindowAfterMenuSelection)
{
}

FSlateIcon FMenuEntryBlock::GetIcon() const
{
	return IconOverride.IsSet() || !GetAction().IsValid() ? IconOverride : GetAction()->GetIcon();
}

bool FMenuEntryBlock::HasIcon() const
{
	// An icon the style set lacks draws nothing, so it does not count.
	const FSlateIcon ActualIcon = GetIcon();
	return ActualIcon.IsSet() && ActualIcon.GetIcon()->GetResourceName() != NAME_None;
}

TSharedRef<IMultiBlockBaseWidget> FMenuEntryBlock::ConstructWidget() const
{
	return SNew(SMenuEntryBlock);
}

void SMenuEntryBlock::Construct(const FArguments& InArgs)
{
}

void SMenuEntryBlock::BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName)
{
	const TSharedRef<const FMenuEntryBlock> MenuEntryBlock = StaticCastSharedRef<const FMenuEntryBlock>(MultiBlock.ToSharedRef());
	FMenuEntryBuildParams BuildParams;
	BuildParams.MultiBox = OwnerMultiBoxWidget.Pin()->GetMultiBox();
	BuildParams.MenuEntryBlock = MenuEntryBlock;
	BuildParams.UICommand = MenuEntryBlock->GetAction();
	BuildParams.StyleSet = StyleSet;
	BuildParams.StyleName = StyleName;
	const TSharedPtr<const FUICommandInfo>& Command = BuildParams.UICommand;
	BuildParams.Label = MenuEntryBlock->LabelOverride.IsSet() ? MenuEntryBlock->LabelOverride : TAttribute<FText>(Command.IsValid() ? Command->GetLabel() : FText::GetEmpty());
	BuildParams.ToolTip = MenuEntryBlock->ToolTipOverride.IsSet() ? MenuEntryBlock->ToolTipOverride : TAttribute<FText>(Command.IsValid() ? Command->GetDescription() : FText::GetEmpty());
	BuildParams.InputBinding = Command.IsValid() ? Command->GetInputText() : FText::GetEmpty();

	ChildSlot.Padding(0.0f)[MenuEntryBlock->bIsSubMenu ? BuildSubMenuWidget(BuildParams) : BuildMenuEntryWidget(BuildParams)];

	// Shown and enabled as the action says, each time the menu is drawn.
	SetEnabled(TAttribute<bool>(this, &SMenuEntryBlock::IsEnabled));
	SetVisibility(TAttribute<EVisibility>(this, &SMenuEntryBlock::GetVisibility));
}

EUserInterfaceActionType SMenuEntryBlock::GetUserInterfaceType(const FMenuEntryBuildParams& InBuildParams) const
{
	return InBuildParams.UICommand.IsValid() ? InBuildParams.UICommand->GetUserInterfaceType() : InBuildParams.MenuEntryBlock->UserInterfaceActionType;
}

TSharedRef<SWidget> SMenuEntryBlock::BuildCheckBoxAndButtonContent(const FMenuEntryBuildParams& InBuildParams, bool bShowInputBinding)
{
	const ISlateStyle* const StyleSet = InBuildParams.StyleSet;
	const FName& StyleName = InBuildParams.StyleName;
	const TSharedPtr<const FMenuEntryBlock>& MenuEntryBlock = InBuildParams.MenuEntryBlock;

	TSharedRef<SWidget> IconWidget = SNullWidget::NullWidget;
	if (MenuEntryBlock->HasIcon())
	{
		IconWidget = SNew(SImage).ColorAndOpacity(FSlateColor::UseSubduedForeground()).Image(MenuEntryBlock->GetIcon().GetIcon());
	}

	const EUserInterfaceActionType UserInterfaceType = GetUserInterfaceType(InBuildParams);
	const bool bShowsCheckState = UserInterfaceType == EUserInterfaceActionType::ToggleButton || UserInterfaceType == EUserInterfaceActionType::RadioButton || UserInterfaceType == EUserInterfaceActionType::Check;
	// An entry with a widget of its own and a plain action gives the check box column no room.
	const bool bCollapsesCheckBox = (MenuEntryBlock->EntryWidget.IsValid() && UserInterfaceType == EUserInterfaceActionType::Button) || UserInterfaceType == EUserInterfaceActionType::CollapsedButton;
	const EVisibility CheckBoxVisibility = bShowsCheckState && !bCollapsesCheckBox ? EVisibility::Visible : EVisibility::Collapsed;
	FName CheckBoxStyle = ISlateStyle::Join(StyleName, ".CheckBox");
	if (UserInterfaceType == EUserInterfaceActionType::Check)
	{
		CheckBoxStyle = ISlateStyle::Join(StyleName, ".Check");
	}
	else if (UserInterfaceType == EUserInterfaceActionType::RadioButton)
	{
		CheckBoxStyle = ISlateStyle::Join(StyleName, ".RadioButton");
	}

	const float MenuIconSize = StyleSet->GetFloat(StyleName, ".MenuIconSize", 16.0f);
	TSharedPtr<SWidget> ButtonContent = MenuEntryBlock->EntryWidget;
	if (!ButtonContent.IsValid())
	{
		// The icon column, then the label, then the shortcut at the right.
		TSharedRef<SHorizontalBox> Content = SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().Padding(FMargin(2.0f, 0.0f, 6.0f, 0.0f))[SNew(SBox).Visibility(IconWidget != SNullWidget::NullWidget ? EVisibility::Visible : EVisibility::Collapsed).WidthOverride(MenuIconSize + 2.0f).HeightOverride(MenuIconSize).HAlign(HAlign_Center).VAlign(VAlign_Center)[SNew(SBox).WidthOverride(MenuIconSize).HeightOverride(MenuIconSize)[IconWidget]]] + SHorizontalBox::Slot().FillWidth(1.0f).Padding(FMargin(2.0f, 0.0f, 6.0f, 0.0f)).VAlign(VAlign_Center)[SNew(STextBlock).TextStyle(StyleSet, ISlateStyle::Join(StyleName, ".Label")).Text(InBuildParams.Label)];
		if (bShowInputBinding)
		{
			Content->AddSlot()
				.AutoWidth()
				.Padding(FMargin(25.0f, 0.0f, 0.0f, 0.0f))
				.VAlign(VAlign_Center)
				.HAlign(HAlign_Right)
					[SNew(SBox)
							.Visibility(InBuildParams.InputBinding.Get().IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible)
							.Padding(FMargin(16.0f, 0.0f, 4.0f, 0.0f))[SNew(STextBlock).TextStyle(StyleSet, ISlateStyle::Join(StyleName, ".Keybinding")).ColorAndOpacity(FSlateColor::UseSubduedForeground()).Text(InBuildParams.InputBinding)]];
		}
		ButtonContent = Content;
	}

	// A check entry shows only its mark; toggles and radio buttons show a box the user can tick.
	TSharedRef<SWidget> CheckWidget = UserInterfaceType == EUserInterfaceActionType::Check
		? StaticCastSharedRef<SWidget>(SNew(SImage).Visibility(CheckBoxVisibility).ColorAndOpacity(FSlateColor::UseForeground()).Image(this, &SMenuEntryBlock::GetCheckBoxImageBrushFromStyle, &StyleSet->GetWidgetStyle<FCheckBoxStyle>(CheckBoxStyle)))
		: StaticCastSharedRef<SWidget>(SNew(SCheckBox).ForegroundColor(FSlateColor::UseStyle()).Visibility(CheckBoxVisibility).IsChecked(this, &SMenuEntryBlock::IsChecked).Style(StyleSet, CheckBoxStyle).OnCheckStateChanged(this, &SMenuEntryBlock::OnCheckStateChanged));

	// The check box column is as wide on every entry of the menu, so that the labels line up.
	return SNew(SHorizontalBox) + SHorizontalBox::Slot().Padding(FMargin(2.0f, 0.0f, 8.0f, 0.0f)).AutoWidth()[SNew(SLinkedBox, OwnerMultiBoxWidget.Pin()->GetLinkedBoxManager())[CheckWidget]] + SHorizontalBox::Slot().Padding(FMargin(2.0f, 0.0f, 0.0f, 0.0f))[ButtonContent.ToSharedRef()];
}

TSharedRef<SWidget> SMenuEntryBlock::BuildMenuEntryWidget(const FMenuEntryBuildParams& InBuildParams)
{
	const ISlateStyle* const StyleSet = InBuildParams.StyleSet;
	const FName& StyleName = InBuildParams.StyleName;
	return SNew(SButton)
		.ButtonStyle(StyleSet, ISlateStyle::Join(StyleName, ".Button"))
		.ContentPadding(StyleSet->GetMargin(StyleName, ".Block.Padding"))
		.ForegroundColor(FSlateColor::UseStyle())
		.ToolTipText(InBuildParams.ToolTip)
		.OnClicked(this, &SMenuEntryBlock::OnMenuItemButtonClicked)[BuildCheckBoxAndButtonContent(InBuildParams, true)];
}

TSharedRef<SWidget> SMenuEntryBlock::BuildSubMenuWidget(const FMenuEntryBuildParams& InBuildParams)
{
	const ISlateStyle* const StyleSet = InBuildParams.StyleSet;
	const FName& StyleName = InBuildParams.StyleName;
	TSharedPtr<SMenuAnchor> NewMenuAnchor;
	// The sub-menu opens to the right of its entry; the arrow at the entry's right edge says so.
	TSharedRef<SWidget> Widget = SAssignNew(NewMenuAnchor, SMenuAnchor)
									 .Placement(MenuPlacement_MenuRight)
									 .OnGetMenuContent(this, &SMenuEntryBlock::MakeNewMenuWidget)
										 [SNew(SButton)
												 .ToolTipText(InBuildParams.ToolTip)
												 .ButtonStyle(StyleSet, ISlateStyle::Join(StyleName, ".Button"))
												 .ContentPadding(StyleSet->GetMargin(StyleName, ".Block.Padding"))
												 .ForegroundColor(FSlateColor::UseStyle())
												 .HAlign(HAlign_Fill)
												 .VAlign(VAlign_Fill)
												 .OnClicked(this, &SMenuEntryBlock::OnMenuItemButtonClicked)
													 [SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f)[BuildCheckBoxAndButtonContent(InBuildParams, false)] + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).HAlign(HAlign_Right)[SNew(SBox).Padding(FMargin(7.0f, 0.0f, 0.0f, 0.0f))[SNew(SImage).ColorAndOpacity(FSlateColor::UseForeground()).Image(StyleSet->GetBrush(StyleName, ".SubMenuIndicator"))]]]];
	MenuAnchor = NewMenuAnchor;
	return Widget;
}

TSharedRef<SWidget> SMenuEntryBlock::MakeNewMenuWidget() const
{
	const TSharedRef<const FMenuEntryBlock> MenuEntryBlock = StaticCastSharedRef<const FMenuEntryBlock>(MultiBlock.ToSharedRef());
	FMenuBuilder MenuBuilder(MenuEntryBlock->bShouldCloseWindowAfterMenuSelection, MenuEntryBlock->GetActionList(), MenuEntryBlock->Extender, MenuEntryBlock->bCloseSelfOnly, OwnerMultiBoxWidget.Pin()->GetStyleSet());
	MenuEntryBlock->EntryBuilder.ExecuteIfBound(MenuBuilder);
	return MenuBuilder.MakeWidget();
}

FReply SMenuEntryBlock::OnMenuItemButtonClicked()
{
	const TSharedRef<const FMenuEntryBlock> MenuEntryBlock = StaticCastSharedRef<const FMenuEntryBlock>(MultiBlock.ToSharedRef());
	if (MenuEntryBlock->bIsSubMenu)
	{
		if (const TSharedPtr<SMenuAnchor> PinnedMenuAnchor = MenuAnchor.Pin())
		{
			PinnedMenuAnchor->SetIsOpen(true);
		}
		return FReply::Handled();
	}
	const TSharedPtr<const FUICommandList> ActionList = MultiBlock->GetActionList();
	const TSharedPtr<const FUICommandInfo> Action = MultiBlock->GetAction();
	if (ActionList.IsValid() && Action.IsValid())
	{
		ActionList->ExecuteAction(Action.ToSharedRef());
	}
	else
	{
		MultiBlock->GetDirectActions().Execute();
	}
	return FReply::Handled();
}

void SMenuEntryBlock::OnCheckStateChanged(const ECheckBoxState NewCheckedState)
{
	OnMenuItemButtonClicked();
}

ECheckBoxState SMenuEntryBlock::IsChecked() const
{
	const TSharedPtr<const FUICommandList> ActionList = MultiBlock->GetActionList();
	const TSharedPtr<const FUICommandInfo> Action = MultiBlock->GetAction();
	if (ActionList.IsValid() && Action.IsValid())
	{
		return ActionList->GetCheckState(Action.ToSharedRef());
	}
	return MultiBlock->GetDirectActions().GetCheckState();
}

bool SMenuEntryBlock::IsEnabled() const
{
	const TSharedPtr<const FUICommandList> ActionList = MultiBlock->GetActionList();
	const TSharedPtr<const FUICommandInfo> Action = MultiBlock->GetAction();
	if (ActionList.IsValid() && Action.IsValid())
	{
		return ActionList->CanExecuteAction(Action.ToSharedRef());
	}
	return MultiBlock->GetDirectActions().CanExecute();
}

EVisibility SMenuEntryBlock::GetVisibility() const
{
	const TSharedPtr<const FUICommandList> ActionList = MultiBlock->GetActionList();
	const TSharedPtr<const FUICommandInfo> Action = MultiBlock->GetAction();
	if (ActionList.IsValid() && Action.IsValid())
	{
		const FUIAction* MappedAction = ActionList->GetActionForCommand(Action);
		return MappedAction ? MappedAction->IsVisible() : EVisibility::Visible;
	}
	return MultiBlock->GetDirectActions().IsVisible();
}

const FSlateBrush* SMenuEntryBlock::GetCheckBoxImageBrushFromStyle(const FCheckBoxStyle* Style) const
{
	switch (IsChecked())
	{
		case ECheckBoxState::Checked:
			return &Style->CheckedImage;
		case ECheckBoxState::Undetermined:
			return &Style->UndeterminedImage;
		default:
			return &Style->UncheckedImage;
	}
}
