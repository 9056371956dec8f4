#include "Framework/MultiBox/SToolBarComboButtonBlock.h"

#include "Styling/ISlateStyle.h"
#include "Styling/ToolBarStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

FToolBarComboButtonBlock::FToolBarComboButtonBlock(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, bool bInSimpleComboBox)
	: FMultiBlock(InAction, NAME_None, EMultiBlockType::ToolBarComboButton)
	, MenuContentGenerator(InMenuContentGenerator)
	, Label(InLabel)
	, ToolTip(InToolTip)
	, Icon(InIcon)
	, bSimpleComboBox(bInSimpleComboBox)
	, bForceSmallIcons(false)
{
}

bool FToolBarComboButtonBlock::HasIcon() const
{
	const FSlateIcon ActualIcon = Icon.Get();
	return ActualIcon.IsSet() && ActualIcon.GetIcon()->GetResourceName() != NAME_None;
}

TSharedRef<IMultiBlockBaseWidget> FToolBarComboButtonBlock::ConstructWidget() const
{
	return SNew(SToolBarComboButtonBlock).LabelVisibility(LabelVisibility).Icon(Icon).ForceSmallIcons(bForceSmallIcons);
}

void SToolBarComboButtonBlock::Construct(const FArguments& InArgs)
{
	LabelVisibilityOverride = InArgs._LabelVisibility;
	Icon = InArgs._Icon;
	bForceSmallIcons = InArgs._ForceSmallIcons;
}

void SToolBarComboButtonBlock::BuildMultiBlockWidget(const ISlateStyle* StyleSet, const FName& StyleName)
{
	const TSharedRef<const FMultiBox> MultiBox = OwnerMultiBoxWidget.Pin()->GetMultiBox();
	const TSharedRef<const FToolBarComboButtonBlock> ToolBarComboButtonBlock = StaticCastSharedRef<const FToolBarComboButtonBlock>(MultiBlock.ToSharedRef());
	const FToolBarStyle& ToolBarStyle = StyleSet->GetWidgetStyle<FToolBarStyle>(StyleName);

	// The label shows unless the block or the style hides it.
	if (LabelVisibilityOverride.IsSet())
	{
		LabelVisibility = LabelVisibilityOverride.GetValue();
	}
	else
	{
		LabelVisibility = ToolBarStyle.bShowLabels ? EVisibility::Visible : EVisibility::Collapsed;
	}

	TAttribute<FText> Label;
	TSharedRef<SWidget> IconWidget = SNullWidget::NullWidget;
	if (!ToolBarComboButtonBlock->bSimpleComboBox)
	{
		TSharedRef<SWidget> ActualIconWidget = SNew(SImage).ColorAndOpacity(this, &SToolBarComboButtonBlock::GetIconForegroundColor).Image(this, &SToolBarComboButtonBlock::GetIconBrush);
		// A slim toolbar draws every icon at the style's size, whatever size the image has.
		IconWidget = MultiBox->GetType() == EMultiBoxType::SlimHorizontalToolBar ? StaticCastSharedRef<SWidget>(SNew(SBox).WidthOverride(static_cast<float>(ToolBarStyle.IconSize.X)).HeightOverride(static_cast<float>(ToolBarStyle.IconSize.Y))[ActualIconWidget]) : ActualIconWidget;
		Label = ToolBarComboButtonBlock->Label;
	}

	TSharedRef<SWidget> ButtonContent = SNullWidget::NullWidget;
	if (MultiBox->GetType() == EMultiBoxType::SlimHorizontalToolBar)
	{
		// Icon and label side by side.
		ButtonContent = SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).HAlign(HAlign_Center)[IconWidget] + SHorizontalBox::Slot().AutoWidth().Padding(ToolBarStyle.LabelPadding).VAlign(VAlign_Center)[SNew(STextBlock).Visibility(ToolBarComboButtonBlock->bSimpleComboBox ? TAttribute<EVisibility>(EVisibility::Collapsed) : LabelVisibility).Text(Label).TextStyle(&ToolBarStyle.LabelStyle)];
	}
	else
	{
		// Icon above its label.
		ButtonContent = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)[IconWidget] + SVerticalBox::Slot().AutoHeight().Padding(ToolBarStyle.LabelPadding).HAlign(HAlign_Center)[SNew(STextBlock).Visibility(LabelVisibility).Text(Label).TextStyle(&ToolBarStyle.LabelStyle)];
	}

	const EMultiBlockLocation::Type BlockLocation = GetMultiBlockLocation();
	const FName BlockStyle = EMultiBlockLocation::ToName(ISlateStyle::Join(StyleName, ".Button"), BlockLocation);
	const FButtonStyle* ButtonStyle = BlockLocation == EMultiBlockLocation::None ? &ToolBarStyle.ButtonStyle : &StyleSet->GetWidgetStyle<FButtonStyle>(BlockStyle);
	const FComboButtonStyle* ComboStyle = &ToolBarStyle.ComboButtonStyle;
	if (ToolBarComboButtonBlock->bSimpleComboBox)
	{
		ComboStyle = &ToolBarStyle.SettingsComboButton;
		ButtonStyle = &ComboStyle->ButtonStyle;
	}
	OpenForegroundColor = ButtonStyle->HoveredForeground;

	ChildSlot
		[SAssignNew(ComboButtonWidget, SComboButton)
				.ContentPadding(0.0f)
				.ComboButtonStyle(ComboStyle)
				.ButtonStyle(ButtonStyle)
				.ToolTipText(ToolBarComboButtonBlock->ToolTip)
				.ForegroundColor(this, &SToolBarComboButtonBlock::OnGetForegroundColor)
				.OnGetMenuContent(this, &SToolBarComboButtonBlock::OnGetMenuContent)
				.ButtonContent()[ButtonContent]];
	ChildSlot.Padding(ToolBarComboButtonBlock->bSimpleComboBox ? FMargin(0.0f) : ToolBarStyle.ComboButtonPadding);

	SetEnabled(TAttribute<bool>(this, &SToolBarComboButtonBlock::IsEnabled));
	SetVisibility(TAttribute<EVisibility>(this, &SToolBarComboButtonBlock::GetVisibility));
}

TSharedRef<SWidget> SToolBarComboButtonBlock::OnGetMenuContent()
{
	const TSharedRef<const FToolBarComboButtonBlock> ToolBarComboButtonBlock = StaticCastSharedRef<const FToolBarComboButtonBlock>(MultiBlock.ToSharedRef());
	return ToolBarComboButtonBlock->MenuContentGenerator.Execute();
}

bool SToolBarComboButtonBlock::IsEnabled() const
{
	return MultiBlock->GetDirectActions().CanExecute();
}

EVisibility SToolBarComboButtonBlock::GetVisibility() const
{
	return MultiBlock->GetDirectActions().IsVisible();
}

const FSlateBrush* SToolBarComboButtonBlock::GetIconBrush() const
{
	const FSlateIcon ActualIcon = Icon.Get();
	return bForceSmallIcons ? ActualIcon.GetSmallIcon() : ActualIcon.GetIcon();
}

FSlateColor SToolBarComboButtonBlock::GetIconForegroundColor() const
{
	// A tinted icon keeps its tint; any other takes the button's foreground, as labels do.
	const FSlateBrush* Brush = GetIconBrush();
	if (Brush && Brush->TintColor != FSlateColor(FLinearColor::White))
	{
		return FLinearColor::White;
	}
	return FSlateColor::UseForeground();
}

FSlateColor SToolBarComboButtonBlock::OnGetForegroundColor() const
{
	return ComboButtonWidget->IsOpen() ? OpenForegroundColor : FSlateColor::UseStyle();
}
