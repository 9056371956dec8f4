#include "Styling/CoreStyle.h"

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Styling/StyleColors.h"
#include "Styling/ToolBarStyle.h"

namespace
{
	// The metrics of the editor's dark theme.
	const FVector2D Icon16x16(16.0, 16.0);
	const FVector2D Icon18x18(18.0, 18.0);
	const FVector2D Icon20x20(20.0, 20.0);
	const FVector2D Icon32x32(32.0, 32.0);
	const FVector2D Icon40x40(40.0, 40.0);
	const FVector2D Icon64x64(64.0, 64.0);
	const FVector2D WindowButtonSize(42.0, 34.0);
	const FMargin ButtonMargins(12.0f, 1.5f, 12.0f, 1.5f);
	const FMargin PressedButtonMargins(12.0f, 2.5f, 12.0f, 0.5f);
	const FMargin ComboButtonMargin(8.0f, 1.0f, 8.0f, 1.0f);
	const FMargin PressedComboButtonMargin(8.0f, 2.0f, 8.0f, 0.0f);
	const float InputFocusRadius = 4.0f;
	const float InputFocusThickness = 1.0f;
	const float CheckboxCornerRadius = 3.0f;
	const float CheckboxOutlineThickness = 1.0f;

	/** The core style's images: drawn for the headless editor, in the engine's layout of Slate content. */
	FString CoreImage(const TCHAR* RelativePath)
	{
		return FString(TEXT(SLATECORE_CONTENT_DIR)) / RelativePath;
	}

	FSlateImageBrush TintedImage(const TCHAR* RelativePath, const FVector2D& Size, const FSlateColor& Tint)
	{
		return FSlateImageBrush(CoreImage(RelativePath), Size, Tint);
	}

	FTextBlockStyle MakeNormalText()
	{
		return FTextBlockStyle()
			.SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10))
			.SetColorAndOpacity(FSlateColor::UseForeground())
			.SetShadowOffset(FVector2D::ZeroVector)
			.SetSelectedBackgroundColor(FStyleColors::Highlight)
			.SetHighlightColor(FStyleColors::Black)
			.SetHighlightShape(FSlateColorBrush(FStyleColors::AccentGreen));
	}

	void SetColorBrushes(FSlateStyleSet& Style)
	{
		const TPair<const TCHAR*, FSlateColor> Colors[] = {
			{TEXT("Brushes.Black"), FStyleColors::Black},
			{TEXT("Brushes.Title"), FStyleColors::Title},
			{TEXT("Brushes.Foldout"), FStyleColors::Foldout},
			{TEXT("Brushes.Input"), FStyleColors::Input},
			{TEXT("Brushes.InputOutline"), FStyleColors::InputOutline},
			{TEXT("Brushes.Recessed"), FStyleColors::Recessed},
			{TEXT("Brushes.Background"), FStyleColors::Background},
			{TEXT("Brushes.Panel"), FStyleColors::Panel},
			{TEXT("Brushes.Header"), FStyleColors::Header},
			{TEXT("Brushes.Dropdown"), FStyleColors::Dropdown},
			{TEXT("Brushes.DropdownOutline"), FStyleColors::DropdownOutline},
			{TEXT("Brushes.Hover"), FStyleColors::Hover},
			{TEXT("Brushes.Hover2"), FStyleColors::Hover2},
			{TEXT("Brushes.White"), FStyleColors::White},
			{TEXT("Brushes.White25"), FStyleColors::White25},
			{TEXT("Brushes.Highlight"), FStyleColors::Highlight},
			{TEXT("Brushes.Foreground"), FStyleColors::Foreground},
			{TEXT("Brushes.ForegroundHover"), FStyleColors::ForegroundHover},
			{TEXT("Brushes.Primary"), FStyleColors::Primary},
			{TEXT("Brushes.Secondary"), FStyleColors::Secondary},
			{TEXT("Brushes.Warning"), FStyleColors::Warning},
			{TEXT("Brushes.Error"), FStyleColors::Error},
		};
		for (const TPair<const TCHAR*, FSlateColor>& Color : Colors)
		{
			Style.Set(Color.Key, new FSlateColorBrush(Color.Value));
		}
		Style.Set(TEXT("DefaultForeground"), FStyleColors::Foreground);
		Style.Set(TEXT("WhiteBrush"), new FSlateColorBrush(FLinearColor::White));
		Style.Set(TEXT("NoBrush"), new FSlateNoResource());
		Style.Set(TEXT("NoBorder"), new FSlateNoResource());
		Style.Set(TEXT("Border"), new FSlateColorBrush(FStyleColors::Panel));
		Style.Set(TEXT("ToolPanel.GroupBorder"), new FSlateColorBrush(FStyleColors::Panel));
		Style.Set(TEXT("FocusRectangle"), new FSlateRoundedBoxBrush(FStyleColors::Transparent, InputFocusRadius, FStyleColors::Primary, InputFocusThickness));
	}

	void SetTextStyles(FSlateStyleSet& Style)
	{
		const FTextBlockStyle NormalText = MakeNormalText();
		Style.Set(TEXT("NormalFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10));
		Style.Set(TEXT("SmallFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8));
		Style.Set(TEXT("NormalFontBold"), FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 10));
		Style.Set(TEXT("NormalFontItalic"), FCoreStyle::GetDefaultFontStyle(TEXT("Italic"), 10));
		Style.Set(TEXT("NormalText"), NormalText);
		Style.Set(TEXT("SmallText"), FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8)));
		Style.Set(TEXT("ButtonText"), NormalText);
		Style.Set(TEXT("HintText"), FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Italic"), 8)).SetColorAndOpacity(FSlateColor::UseSubduedForeground()));

		Style.Set(TEXT("NormalEditableText"), FEditableTextStyle().SetBackgroundImageSelected(FSlateColorBrush(FStyleColors::Highlight)).SetCaretImage(FSlateColorBrush(FStyleColors::White)));
		Style.Set(TEXT("NormalEditableTextBox"), FEditableTextBoxStyle().SetTextStyle(NormalText).SetBackgroundImageNormal(FSlateRoundedBoxBrush(FStyleColors::Input, InputFocusRadius, FStyleColors::InputOutline, InputFocusThickness)).SetBackgroundImageHovered(FSlateRoundedBoxBrush(FStyleColors::Input, InputFocusRadius, FStyleColors::Hover, InputFocusThickness)).SetBackgroundImageFocused(FSlateRoundedBoxBrush(FStyleColors::Input, InputFocusRadius, FStyleColors::Primary, InputFocusThickness)).SetBackgroundImageReadOnly(FSlateRoundedBoxBrush(FStyleColors::Header, InputFocusRadius, FStyleColors::InputOutline, InputFocusThickness)).SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10)).SetPadding(FMargin(8.0f, 3.0f, 8.0f, 4.0f)).SetForegroundColor(FStyleColors::Foreground).SetBackgroundColor(FStyleColors::White).SetReadOnlyForegroundColor(FSlateColor::UseForeground()).SetFocusedForegroundColor(FStyleColors::White));
	}

	void SetButtonStyles(FSlateStyleSet& Style)
	{
		Style.Set(TEXT("Button"), FButtonStyle().SetNormal(FSlateRoundedBoxBrush(FStyleColors::Secondary, 4.0f, FStyleColors::Input, InputFocusThickness)).SetHovered(FSlateRoundedBoxBrush(FStyleColors::Hover, 4.0f, FStyleColors::Input, InputFocusThickness)).SetPressed(FSlateRoundedBoxBrush(FStyleColors::Header, 4.0f, FStyleColors::Input, InputFocusThickness)).SetDisabled(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 4.0f, FStyleColors::Recessed, InputFocusThickness)).SetNormalForeground(FStyleColors::ForegroundHover).SetHoveredForeground(FStyleColors::ForegroundHover).SetPressedForeground(FStyleColors::ForegroundHover).SetDisabledForeground(FStyleColors::Foreground).SetNormalPadding(ButtonMargins).SetPressedPadding(PressedButtonMargins));
		Style.Set(TEXT("PrimaryButton"), FButtonStyle().SetNormal(FSlateRoundedBoxBrush(FStyleColors::Primary, 4.0f, FStyleColors::Input, InputFocusThickness)).SetHovered(FSlateRoundedBoxBrush(FStyleColors::PrimaryHover, 4.0f, FStyleColors::Input, InputFocusThickness)).SetPressed(FSlateRoundedBoxBrush(FStyleColors::PrimaryPress, 4.0f, FStyleColors::Input, InputFocusThickness)).SetDisabled(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 4.0f, FStyleColors::Recessed, InputFocusThickness)).SetNormalForeground(FStyleColors::ForegroundHover).SetHoveredForeground(FStyleColors::ForegroundHover).SetPressedForeground(FStyleColors::ForegroundHover).SetDisabledForeground(FStyleColors::Foreground).SetNormalPadding(ButtonMargins).SetPressedPadding(PressedButtonMargins));
	}

	void SetComboStyles(FSlateStyleSet& Style)
	{
		const FComboButtonStyle ComboButton = FComboButtonStyle()
												  .SetButtonStyle(FButtonStyle()
																	  .SetNormal(FSlateRoundedBoxBrush(FStyleColors::Input, InputFocusRadius, FStyleColors::InputOutline, InputFocusThickness))
																	  .SetHovered(FSlateRoundedBoxBrush(FStyleColors::Input, InputFocusRadius, FStyleColors::Hover, InputFocusThickness))
																	  .SetPressed(FSlateRoundedBoxBrush(FStyleColors::Input, InputFocusRadius, FStyleColors::Hover, InputFocusThickness))
																	  .SetDisabled(FSlateRoundedBoxBrush(FStyleColors::Dropdown, InputFocusRadius))
																	  .SetNormalForeground(FStyleColors::Foreground)
																	  .SetHoveredForeground(FStyleColors::ForegroundHover)
																	  .SetPressedForeground(FStyleColors::ForegroundHover)
																	  .SetDisabledForeground(FStyleColors::ForegroundHover)
																	  .SetNormalPadding(ComboButtonMargin)
																	  .SetPressedPadding(PressedComboButtonMargin))
												  .SetContentPadding(0.0f)
												  .SetDownArrowImage(FSlateImageBrush(CoreImage(TEXT("Starship/CoreWidgets/ComboBox/wide-chevron-down.png")), Icon16x16))
												  .SetMenuBorderBrush(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 0.0f, FStyleColors::DropdownOutline, 1.0f))
												  .SetMenuBorderPadding(0.0f);
		Style.Set(TEXT("ComboButton"), ComboButton);
		Style.Set(TEXT("ComboBox"), FComboBoxStyle().SetContentPadding(0.0f).SetMenuRowPadding(FMargin(8.0f, 3.0f)).SetComboButtonStyle(ComboButton));
		Style.Set(TEXT("ComboBox.Row"), FTableRowStyle().SetEvenRowBackgroundBrush(FSlateNoResource()).SetOddRowBackgroundBrush(FSlateNoResource()).SetSelectorFocusedBrush(FSlateRoundedBoxBrush(FStyleColors::Transparent, InputFocusRadius, FStyleColors::Select, InputFocusThickness)).SetActiveBrush(FSlateNoResource()).SetActiveHoveredBrush(FSlateColorBrush(FStyleColors::Primary)).SetTextColor(FStyleColors::White).SetSelectedTextColor(FStyleColors::White));
	}

	void SetCheckBoxStyles(FSlateStyleSet& Style)
	{
		Style.Set(TEXT("Checkbox"), FCheckBoxStyle().SetCheckBoxType(ESlateCheckBoxType::CheckBox).SetForegroundColor(FStyleColors::ForegroundHover).SetHoveredForegroundColor(FStyleColors::ForegroundHover).SetPressedForegroundColor(FStyleColors::ForegroundHover).SetCheckedForegroundColor(FStyleColors::ForegroundHover).SetCheckedHoveredForegroundColor(FStyleColors::ForegroundHover).SetCheckedPressedForegroundColor(FStyleColors::ForegroundHover).SetUndeterminedForegroundColor(FStyleColors::ForegroundHover).SetUncheckedImage(FSlateNoResource()).SetUncheckedHoveredImage(FSlateNoResource()).SetUncheckedPressedImage(FSlateNoResource()).SetCheckedImage(TintedImage(TEXT("Starship/CoreWidgets/CheckBox/check.png"), Icon16x16, FStyleColors::Primary)).SetCheckedHoveredImage(TintedImage(TEXT("Starship/CoreWidgets/CheckBox/check.png"), Icon16x16, FStyleColors::PrimaryHover)).SetCheckedPressedImage(TintedImage(TEXT("Starship/CoreWidgets/CheckBox/check.png"), Icon16x16, FStyleColors::PrimaryPress)).SetUndeterminedImage(TintedImage(TEXT("Starship/CoreWidgets/CheckBox/indeterminate.png"), Icon16x16, FStyleColors::Primary)).SetUndeterminedHoveredImage(TintedImage(TEXT("Starship/CoreWidgets/CheckBox/indeterminate.png"), Icon16x16, FStyleColors::PrimaryHover)).SetUndeterminedPressedImage(TintedImage(TEXT("Starship/CoreWidgets/CheckBox/indeterminate.png"), Icon16x16, FStyleColors::PrimaryPress)).SetBackgroundImage(FSlateRoundedBoxBrush(FStyleColors::Input, CheckboxCornerRadius, FStyleColors::Secondary, CheckboxOutlineThickness, Icon18x18)).SetBackgroundHoveredImage(FSlateRoundedBoxBrush(FStyleColors::Input, CheckboxCornerRadius, FStyleColors::Hover, CheckboxOutlineThickness, Icon18x18)).SetBackgroundPressedImage(FSlateRoundedBoxBrush(FStyleColors::Input, CheckboxCornerRadius, FStyleColors::Hover, CheckboxOutlineThickness, Icon18x18)));
	}

	void SetPanelStyles(FSlateStyleSet& Style)
	{
		const FTextBlockStyle NormalText = MakeNormalText();
		Style.Set(TEXT("Scrollbar"), FScrollBarStyle().SetNormalThumbImage(FSlateRoundedBoxBrush(FStyleColors::Hover, 4.0f)).SetDraggedThumbImage(FSlateRoundedBoxBrush(FStyleColors::Hover2, 4.0f)).SetHoveredThumbImage(FSlateRoundedBoxBrush(FStyleColors::Hover2, 4.0f)).SetThickness(8.0f));
		Style.Set(TEXT("ScrollBox"), FScrollBoxStyle().SetTopShadowBrush(FSlateBoxBrush(CoreImage(TEXT("Common/ScrollBoxShadowTop.png")), FVector2D(16.0, 8.0), FMargin(0.5f, 1.0f, 0.5f, 0.0f))).SetBottomShadowBrush(FSlateBoxBrush(CoreImage(TEXT("Common/ScrollBoxShadowBottom.png")), FVector2D(16.0, 8.0), FMargin(0.5f, 0.0f, 0.5f, 1.0f))).SetLeftShadowBrush(FSlateBoxBrush(CoreImage(TEXT("Common/ScrollBoxShadowLeft.png")), FVector2D(8.0, 16.0), FMargin(1.0f, 0.5f, 0.0f, 0.5f))).SetRightShadowBrush(FSlateBoxBrush(CoreImage(TEXT("Common/ScrollBoxShadowRight.png")), FVector2D(8.0, 16.0), FMargin(0.0f, 0.5f, 1.0f, 0.5f))).SetBarThickness(8.0f));
		Style.Set(TEXT("TableView.Row"), FTableRowStyle());
		Style.Set(TEXT("Splitter"), FSplitterStyle().SetHandleNormalBrush(FSlateColorBrush(FStyleColors::Background)).SetHandleHighlightBrush(FSlateColorBrush(FStyleColors::Secondary)));
		Style.Set(TEXT("Docking.Tab"), FDockTabStyle().SetContentAreaBrush(FSlateColorBrush(FStyleColors::Panel)).SetTabWellBrush(FSlateColorBrush(FStyleColors::Background)).SetTabPadding(FMargin(4.0f, 3.0f, 10.0f, 4.0f)).SetTabTextStyle(NormalText));
		Style.Set(TEXT("Docking.MajorTab"), FDockTabStyle().SetContentAreaBrush(FSlateColorBrush(FStyleColors::Background)).SetTabWellBrush(FSlateColorBrush(FStyleColors::Background)).SetTabPadding(FMargin(4.0f, 4.0f, 10.0f, 4.0f)).SetTabTextStyle(NormalText));
		Style.Set(TEXT("ToolTip.Font"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9));
		Style.Set(TEXT("ToolTip.BrightBackground"), new FSlateRoundedBoxBrush(FStyleColors::Dropdown, 0.0f, FStyleColors::DropdownOutline, 1.0f));
		// The editor's app style carries the details panel fonts.
		Style.Set(TEXT("PropertyWindow.NormalFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8));
		Style.Set(TEXT("PropertyWindow.BoldFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 8));
		Style.Set(TEXT("PropertyWindow.ItalicFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Italic"), 8));
	}

	/** The theme's panel colours by name, and the arrows of tree and details views. */
	void SetPanelColorsAndTreeArrows(FSlateStyleSet& Style)
	{
		Style.Set(TEXT("Colors.Panel"), FStyleColors::Panel);
		Style.Set(TEXT("Colors.Header"), FStyleColors::Header);
		Style.Set(TEXT("TreeArrow_Collapsed"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/caret-right.png")), Icon16x16, FStyleColors::Foreground));
		Style.Set(TEXT("TreeArrow_Expanded"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/caret-down.png")), Icon16x16, FStyleColors::Foreground));
	}

	/** What the editor's app style gives details panels: row brushes, the column splitter and the category text. */
	void SetDetailsViewStyles(FSlateStyleSet& Style)
	{
		Style.Set(TEXT("DetailsView.CategoryTop"), new FSlateColorBrush(FStyleColors::Header));
		// Tinted per row by the property editor, so drawn white here.
		Style.Set(TEXT("DetailsView.CategoryMiddle"), new FSlateColorBrush(FStyleColors::White));
		Style.Set(TEXT("DetailsView.GridLine"), new FSlateColorBrush(FStyleColors::Recessed));
		Style.Set(TEXT("DetailsView.Splitter"), FSplitterStyle().SetHandleNormalBrush(FSlateColorBrush(FStyleColors::Recessed)).SetHandleHighlightBrush(FSlateColorBrush(FStyleColors::Recessed)));
		Style.Set(TEXT("DetailsView.CategoryFontStyle"), FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 8));
		Style.Set(TEXT("DetailsView.CategoryTextStyle"), FTextBlockStyle(MakeNormalText()).SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 8)).SetColorAndOpacity(FStyleColors::ForegroundHeader));
	}

	/** The borderless buttons of toolbars, menus and title bars. */
	FButtonStyle MakeNoBorderButton()
	{
		return FButtonStyle().SetNormal(FSlateNoResource()).SetHovered(FSlateNoResource()).SetPressed(FSlateNoResource()).SetNormalForeground(FStyleColors::ForegroundHover).SetHoveredForeground(FStyleColors::ForegroundHover).SetPressedForeground(FStyleColors::ForegroundHover).SetNormalPadding(FMargin(0.0f)).SetPressedPadding(FMargin(0.0f));
	}

	FButtonStyle MakeSimpleButton(const FMargin& NormalPadding, const FMargin& PressedPadding)
	{
		return FButtonStyle().SetNormal(FSlateNoResource()).SetHovered(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 4.0f)).SetPressed(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 4.0f)).SetDisabled(FSlateNoResource()).SetNormalForeground(FStyleColors::Foreground).SetHoveredForeground(FStyleColors::ForegroundHover).SetPressedForeground(FStyleColors::ForegroundHover).SetDisabledForeground(FStyleColors::Foreground).SetNormalPadding(NormalPadding).SetPressedPadding(PressedPadding);
	}

	/** Buttons drawn only when hovered, for toolbars, title bars and search boxes. */
	void SetSimpleButtonStyles(FSlateStyleSet& Style)
	{
		const FButtonStyle SimpleButton = MakeSimpleButton(FMargin(2.0f, 1.0f, 2.0f, 1.0f), FMargin(2.0f, 2.0f, 2.0f, 0.0f));
		const FButtonStyle SimpleButtonLabelAndIcon = MakeSimpleButton(FMargin(4.0f, 1.0f, 4.0f, 1.0f), FMargin(4.0f, 2.0f, 4.0f, 0.0f));
		Style.Set(TEXT("NoBorder"), MakeNoBorderButton());
		Style.Set(TEXT("SimpleButton"), SimpleButton);
		Style.Set(TEXT("SimpleButtonLabelAndIcon"), SimpleButtonLabelAndIcon);

		const FComboButtonStyle SimpleComboButton = FComboButtonStyle().SetButtonStyle(SimpleButtonLabelAndIcon).SetContentPadding(0.0f).SetDownArrowImage(FSlateImageBrush(CoreImage(TEXT("Starship/CoreWidgets/ComboBox/wide-chevron-down.png")), Icon16x16)).SetShadowOffset(FVector2D::ZeroVector).SetMenuBorderBrush(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 0.0f, FStyleColors::DropdownOutline, 1.0f)).SetMenuBorderPadding(0.0f);
		Style.Set(TEXT("SimpleComboButton"), SimpleComboButton);
		Style.Set(TEXT("HoverOnlyButton"), FButtonStyle(SimpleButton).SetHovered(FSlateNoResource()).SetPressed(FSlateNoResource()).SetNormalPadding(FMargin(2.0f, 0.0f)).SetPressedPadding(FMargin(2.0f, 0.0f)));
	}

	void SetToolBarStyles(FSlateStyleSet& Style)
	{
		const FTextBlockStyle NormalText = MakeNormalText();
		const FButtonStyle& SimpleButton = Style.GetWidgetStyle<FButtonStyle>("SimpleButton");
		const FComboButtonStyle& SimpleComboButton = Style.GetWidgetStyle<FComboButtonStyle>("SimpleComboButton");

		// The slim toolbar of the level editor and asset editors: icons in a row on the panel colour.
		const FButtonStyle SlimToolBarButton = FButtonStyle(SimpleButton).SetNormalForeground(FStyleColors::Foreground).SetPressedForeground(FStyleColors::ForegroundHover).SetHoveredForeground(FStyleColors::ForegroundHover).SetDisabledForeground(FStyleColors::Foreground).SetNormalPadding(FMargin(8.0f, 4.0f, 8.0f, 4.0f)).SetPressedPadding(FMargin(8.0f, 5.0f, 8.0f, 3.0f));
		FToolBarStyle SlimToolBar = FToolBarStyle().SetBackground(FSlateColorBrush(FStyleColors::Panel)).SetBackgroundPadding(FMargin(4.0f, 6.0f, 0.0f, 6.0f)).SetComboButtonPadding(FMargin(0.0f)).SetButtonPadding(FMargin(4.0f, 0.0f)).SetCheckBoxPadding(FMargin(8.0f, 0.0f)).SetSeparatorBrush(FSlateColorBrush(FStyleColors::Recessed)).SetSeparatorPadding(FMargin(4.0f, -5.0f)).SetLabelStyle(NormalText).SetComboButtonStyle(FComboButtonStyle(SimpleComboButton).SetDownArrowPadding(FMargin(1.0f, 0.0f, 2.0f, 0.0f))).SetLabelPadding(FMargin(4.0f, 0.0f, 0.0f, 0.0f)).SetButtonStyle(SlimToolBarButton).SetIconSize(Icon20x20);
		Style.Set(TEXT("SlimToolBar"), SlimToolBar);
		Style.Set(TEXT("AssetEditorToolbar"), FToolBarStyle(SlimToolBar).SetShowLabels(false));
		// Calls a button out with its label beside the icon.
		Style.Set(TEXT("CalloutToolbar"), FToolBarStyle(SlimToolBar).SetShowLabels(true));
	}

	void SetMenuStyles(FSlateStyleSet& Style)
	{
		const FTextBlockStyle NormalText = MakeNormalText();
		Style.Set(TEXT("Menu.Background"), new FSlateColorBrush(FStyleColors::Dropdown));
		Style.Set(TEXT("Menu.Outline"), new FSlateRoundedBoxBrush(FStyleColors::Transparent, 0.0f, FStyleColors::DropdownOutline, 1.0f));
		Style.Set(TEXT("Menu.SubMenuIndicator"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/chevron-right.png")), Icon16x16, FStyleColors::Foreground));
		Style.Set(TEXT("Menu.MenuIconSize"), 14.0f);

		const FMargin MenuBlockPadding(12.0f, 1.0f, 5.0f, 1.0f);
		Style.Set(TEXT("Menu.Block.IndentedPadding"), MenuBlockPadding + FMargin(18.0f, 0.0f, 0.0f, 0.0f));
		Style.Set(TEXT("Menu.Block.Padding"), MenuBlockPadding);
		Style.Set(TEXT("Menu.Separator"), new FSlateColorBrush(FStyleColors::White25));
		Style.Set(TEXT("Menu.Separator.Padding"), FMargin(12.0f, 6.0f, 12.0f, 6.0f));
		Style.Set(TEXT("Menu.Label"), NormalText);
		Style.Set(TEXT("Menu.Keybinding"), FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8)));

		// Section headings: small bold capitals, widely spaced and faint.
		FSlateFontInfo HeadingFont = FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 7);
		HeadingFont.LetterSpacing = 250;
		Style.Set(TEXT("Menu.Heading"), FTextBlockStyle(NormalText).SetFont(HeadingFont).SetColorAndOpacity(FStyleColors::White25));
		Style.Set(TEXT("Menu.Heading.Padding"), FMargin(12.0f, 6.0f, 12.0f, 6.0f));

		const FSlateImageBrush Check(CoreImage(TEXT("Starship/CoreWidgets/CheckBox/check.png")), Icon16x16, FStyleColors::White);
		const FSlateImageBrush Indeterminate(CoreImage(TEXT("Starship/CoreWidgets/CheckBox/indeterminate.png")), Icon16x16, FStyleColors::White);
		const FSlateRoundedBoxBrush CheckBackground(FStyleColors::Panel, CheckboxCornerRadius, FStyleColors::Hover, CheckboxOutlineThickness, Icon18x18);
		Style.Set(TEXT("Menu.CheckBox"), FCheckBoxStyle().SetCheckBoxType(ESlateCheckBoxType::CheckBox).SetForegroundColor(FStyleColors::White).SetHoveredForegroundColor(FStyleColors::White).SetPressedForegroundColor(FStyleColors::White).SetCheckedForegroundColor(FStyleColors::White).SetCheckedHoveredForegroundColor(FStyleColors::White).SetCheckedPressedForegroundColor(FStyleColors::White).SetUndeterminedForegroundColor(FStyleColors::White).SetUncheckedImage(FSlateNoResource()).SetUncheckedHoveredImage(FSlateNoResource()).SetUncheckedPressedImage(FSlateNoResource()).SetCheckedImage(Check).SetCheckedHoveredImage(Check).SetCheckedPressedImage(Check).SetUndeterminedImage(Indeterminate).SetUndeterminedHoveredImage(Indeterminate).SetUndeterminedPressedImage(Indeterminate).SetBackgroundImage(CheckBackground).SetBackgroundHoveredImage(CheckBackground).SetBackgroundPressedImage(CheckBackground));
		const FSlateImageBrush CheckMark(CoreImage(TEXT("Starship/CoreWidgets/CheckBox/check.png")), Icon16x16);
		Style.Set(TEXT("Menu.Check"), FCheckBoxStyle().SetUncheckedImage(FSlateNoResource()).SetUncheckedHoveredImage(FSlateNoResource()).SetUncheckedPressedImage(FSlateNoResource()).SetCheckedImage(CheckMark).SetCheckedHoveredImage(CheckMark).SetCheckedPressedImage(CheckMark).SetUndeterminedImage(FSlateImageBrush(CoreImage(TEXT("Starship/CoreWidgets/CheckBox/check.png")), Icon16x16, FLinearColor(1.0f, 1.0f, 1.0f, 0.01f))));
		Style.Set(TEXT("Menu.RadioButton"), FCheckBoxStyle().SetUncheckedImage(FSlateRoundedBoxBrush(FStyleColors::Input, FVector2D(8.0, 8.0))).SetUncheckedHoveredImage(FSlateRoundedBoxBrush(FStyleColors::Input, FVector2D(8.0, 8.0))).SetUncheckedPressedImage(FSlateRoundedBoxBrush(FStyleColors::Hover2, FVector2D(8.0, 8.0))).SetCheckedImage(FSlateRoundedBoxBrush(FStyleColors::White, FVector2D(8.0, 8.0))).SetCheckedHoveredImage(FSlateRoundedBoxBrush(FStyleColors::White, FVector2D(8.0, 8.0))).SetCheckedPressedImage(FSlateRoundedBoxBrush(FStyleColors::White, FVector2D(8.0, 8.0))));

		// An entry lights up in the primary colour under the mouse.
		Style.Set(TEXT("Menu.Button"), FButtonStyle(MakeNoBorderButton()).SetNormal(FSlateNoResource()).SetPressed(FSlateColorBrush(FStyleColors::Primary)).SetHovered(FSlateColorBrush(FStyleColors::Primary)).SetHoveredForeground(FStyleColors::ForegroundHover).SetNormalPadding(FMargin(0.0f, 2.0f)).SetPressedPadding(FMargin(0.0f, 3.0f, 0.0f, 1.0f)));
	}

	void SetNotificationStyles(FSlateStyleSet& Style)
	{
		Style.Set(TEXT("NotificationList.FontBold"), FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 12));
		Style.Set(TEXT("NotificationList.FontLight"), FCoreStyle::GetDefaultFontStyle(TEXT("Light"), 12));
		Style.Set(TEXT("NotificationList.ItemBackground"), new FSlateColorBrush(FStyleColors::Notifications));
		Style.Set(TEXT("NotificationList.ItemBackground_Border"), new FSlateRoundedBoxBrush(FStyleColors::Notifications, 5.0f, FStyleColors::Black, 1.0f));
		Style.Set(TEXT("NotificationList.Throbber"), new FSlateImageBrush(CoreImage(TEXT("Starship/Notifications/Throbber.png")), Icon40x40));
		Style.Set(TEXT("NotificationList.Watermark"), new FSlateImageBrush(CoreImage(TEXT("Starship/Notifications/Watermark.png")), FVector2D(128.0, 128.0)));
		// The mark of a notification that brings no image of its own.
		Style.Set(TEXT("UnrealCircle.Thick"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/circle-thick.png")), Icon32x32, FStyleColors::Foreground));
		Style.Set(TEXT("Icons.SuccessWithColor.Large"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/check-circle-large.png")), Icon32x32, FStyleColors::Success));
		Style.Set(TEXT("Icons.ErrorWithColor.Large"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/alert-triangle-large.png")), Icon32x32, FStyleColors::Error));
		Style.Set(TEXT("Icons.WarningWithColor.Large"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/alert-triangle-large.png")), Icon32x32, FStyleColors::Warning));
		Style.Set(TEXT("Icons.Search"), new FSlateImageBrush(CoreImage(TEXT("Starship/Common/search.png")), Icon16x16));
		// The notification area stands clear of the editor's status bar.
		Style.Set(TEXT("StatusBar.Height"), 32.0f);
	}

	void SetWindowAndDialogStyles(FSlateStyleSet& Style)
	{
		const FTextBlockStyle NormalText = MakeNormalText();
		const auto WindowButton = [](const TCHAR* Image)
		{
			const FString Path = CoreImage(Image);
			return FButtonStyle(MakeNoBorderButton()).SetNormal(FSlateImageBrush(Path, WindowButtonSize, FStyleColors::Foreground)).SetHovered(FSlateImageBrush(Path, WindowButtonSize, FStyleColors::ForegroundHover)).SetPressed(FSlateImageBrush(Path, WindowButtonSize, FStyleColors::Foreground));
		};
		Style.Set(TEXT("Window"), FWindowStyle().SetMinimizeButtonStyle(WindowButton(TEXT("Starship/CoreWidgets/Window/minimize.png"))).SetMaximizeButtonStyle(WindowButton(TEXT("Starship/CoreWidgets/Window/maximize.png"))).SetCloseButtonStyle(WindowButton(TEXT("Starship/CoreWidgets/Window/close.png"))).SetTitleTextStyle(NormalText).SetActiveTitleBrush(FSlateNoResource()).SetBackgroundBrush(FSlateColorBrush(FStyleColors::Recessed)).SetBorderBrush(FSlateRoundedBoxBrush(FStyleColors::Recessed, 2.0f, FStyleColors::WindowBorder, 2.0f)).SetOutlineBrush(FSlateRoundedBoxBrush(FStyleColors::Recessed, 2.0f, FStyleColors::InputOutline, 1.0f)).SetBorderPadding(FMargin(3.0f, 3.0f, 3.0f, 3.0f)));

		Style.Set(TEXT("StandardDialog.MinDesiredSlotWidth"), 80.0f);
		Style.Set(TEXT("StandardDialog.MinDesiredSlotHeight"), 0.0f);
		Style.Set(TEXT("StandardDialog.SmallFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8));
		Style.Set(TEXT("StandardDialog.LargeFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10));

		const FButtonStyle HyperlinkButton = FButtonStyle().SetNormal(FSlateBorderBrush(CoreImage(TEXT("Common/HyperlinkDotted.png")), FMargin(0.0f, 0.0f, 0.0f, 3.0f / 16.0f))).SetPressed(FSlateNoResource()).SetHovered(FSlateBorderBrush(CoreImage(TEXT("Common/HyperlinkUnderline.png")), FMargin(0.0f, 0.0f, 0.0f, 3.0f / 16.0f)));
		Style.Set(TEXT("Hyperlink"), FHyperlinkStyle().SetUnderlineStyle(HyperlinkButton).SetTextStyle(NormalText).SetPadding(FMargin(0.0f)));
	}

	void SetSearchBoxStyles(FSlateStyleSet& Style)
	{
		const FEditableTextBoxStyle& NormalEditableTextBox = Style.GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox");
		const FEditableTextBoxStyle SearchBoxEditStyle = FEditableTextBoxStyle(NormalEditableTextBox).SetBackgroundImageNormal(FSlateRoundedBoxBrush(FStyleColors::Input, FStyleColors::Secondary, InputFocusThickness)).SetBackgroundImageHovered(FSlateRoundedBoxBrush(FStyleColors::Input, FStyleColors::Hover, InputFocusThickness)).SetBackgroundImageFocused(FSlateRoundedBoxBrush(FStyleColors::Input, FStyleColors::Primary, InputFocusThickness)).SetBackgroundImageReadOnly(FSlateRoundedBoxBrush(FStyleColors::Header, FStyleColors::InputOutline, InputFocusThickness));
		Style.Set(TEXT("SearchBox"), FSearchBoxStyle().SetTextBoxStyle(SearchBoxEditStyle).SetGlassImage(FSlateImageBrush(CoreImage(TEXT("Starship/Common/search.png")), Icon16x16)).SetClearImage(FSlateImageBrush(CoreImage(TEXT("Starship/Common/close.png")), Icon16x16)).SetImagePadding(FMargin(3.0f, 0.0f, 0.0f, 0.0f)).SetLeftAlignGlassImageAndClearButton(true));
	}

	/** What the editor's own panels draw with: class placeholders, thumbnails and the placement browser. */
	void SetEditorPanelStyles(FSlateStyleSet& Style)
	{
		const FTextBlockStyle NormalText = MakeNormalText();
		Style.Set(TEXT("SmallFontBold"), FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 8));
		Style.Set(TEXT("ClassIcon.Default"), new FSlateImageBrush(CoreImage(TEXT("Starship/AssetIcons/Default_16.png")), Icon16x16));
		Style.Set(TEXT("ClassThumbnail.Default"), new FSlateImageBrush(CoreImage(TEXT("Starship/AssetIcons/Default_64.png")), Icon64x64));
		Style.Set(TEXT("AssetThumbnail.AssetBackground"), new FSlateColorBrush(FStyleColors::Recessed));

		Style.Set(TEXT("PlacementBrowser.Asset"), FButtonStyle().SetNormal(FSlateRoundedBoxBrush(FLinearColor::Transparent, 6.0f, FStyleColors::Dropdown, 1.0f)).SetHovered(FSlateRoundedBoxBrush(FLinearColor::Transparent, 6.0f, FStyleColors::Hover, 1.0f)).SetPressed(FSlateRoundedBoxBrush(FLinearColor::Transparent, 6.0f, FStyleColors::Primary, 1.0f)).SetNormalPadding(FMargin(0.0f)).SetPressedPadding(FMargin(0.0f)));
		Style.Set(TEXT("PlacementBrowser.Asset.Background"), new FSlateRoundedBoxBrush(FStyleColors::Recessed, 6.0f));
		Style.Set(TEXT("PlacementBrowser.Asset.LabelBack"), new FSlateBoxBrush(CoreImage(TEXT("Starship/PlacementBrowser/LabelBack_18x.png")), FMargin(6.0f / 18.0f), FStyleColors::Dropdown));
		Style.Set(TEXT("PlacementBrowser.Asset.Name"), FTextBlockStyle(NormalText).SetFont(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10)).SetColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 0.9f)).SetShadowOffset(FVector2D(1.0, 1.0)).SetShadowColorAndOpacity(FLinearColor(0.0f, 0.0f, 0.0f, 0.9f)));
		Style.Set(TEXT("PlacementBrowser.PlaceableItemRow"), FTableRowStyle().SetEvenRowBackgroundBrush(FSlateNoResource()).SetOddRowBackgroundBrush(FSlateNoResource()).SetActiveBrush(FSlateNoResource()).SetActiveHoveredBrush(FSlateNoResource()).SetTextColor(FStyleColors::Foreground).SetSelectedTextColor(FStyleColors::Foreground));
		Style.Set(TEXT("PaletteToolBar.Tab"), FCheckBoxStyle().SetCheckBoxType(ESlateCheckBoxType::ToggleButton).SetCheckedImage(FSlateRoundedBoxBrush(FStyleColors::Primary, 2.0f)).SetCheckedHoveredImage(FSlateRoundedBoxBrush(FStyleColors::PrimaryHover, 2.0f)).SetCheckedPressedImage(FSlateRoundedBoxBrush(FStyleColors::Dropdown, 2.0f)).SetUncheckedImage(FSlateRoundedBoxBrush(FStyleColors::Secondary, 2.0f)).SetUncheckedHoveredImage(FSlateRoundedBoxBrush(FStyleColors::Hover, 2.0f)).SetUncheckedPressedImage(FSlateRoundedBoxBrush(FStyleColors::Secondary, 2.0f)).SetForegroundColor(FStyleColors::Foreground).SetHoveredForegroundColor(FStyleColors::ForegroundHover).SetPressedForegroundColor(FStyleColors::ForegroundHover).SetCheckedForegroundColor(FStyleColors::ForegroundHover).SetCheckedHoveredForegroundColor(FStyleColors::ForegroundHover).SetCheckedPressedForegroundColor(FStyleColors::ForegroundHover).SetPadding(FMargin(2.0f, 6.0f)));
	}

	/** The editor's dark core style, as the engine's "Starship" style sets it up. */
	FSlateStyleSet& GetCoreStyleInstance()
	{
		static FSlateStyleSet Instance(TEXT("CoreStyle"));
		static const bool bBuilt = [&]()
		{
			Instance.SetContentRoot(TEXT(SLATECORE_CONTENT_DIR));
			SetColorBrushes(Instance);
			SetTextStyles(Instance);
			SetButtonStyles(Instance);
			SetComboStyles(Instance);
			SetCheckBoxStyles(Instance);
			SetPanelStyles(Instance);
			SetPanelColorsAndTreeArrows(Instance);
			SetDetailsViewStyles(Instance);
			SetSimpleButtonStyles(Instance);
			SetToolBarStyles(Instance);
			SetMenuStyles(Instance);
			SetNotificationStyles(Instance);
			SetWindowAndDialogStyles(Instance);
			SetSearchBoxStyles(Instance);
			SetEditorPanelStyles(Instance);
			return true;
		}();
		(void)bBuilt;
		return Instance;
	}
}

const ISlateStyle& FCoreStyle::Get()
{
	return GetCoreStyleInstance();
}

TSharedRef<const FCompositeFont> FCoreStyle::GetDefaultFont()
{
	static const TSharedRef<const FCompositeFont> DefaultFont = []()
	{
		TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>();
		// The typefaces of the engine's default font, the first being the one used for an unknown name.
		for (const TCHAR* Typeface : {TEXT("Regular"), TEXT("Italic"), TEXT("Bold"), TEXT("BoldItalic"), TEXT("BoldCondensed"), TEXT("BoldCondensedItalic"), TEXT("Black"), TEXT("BlackItalic"), TEXT("Light"), TEXT("VeryLight"), TEXT("Mono")})
		{
			Font->DefaultTypeface.Fonts.Add(FTypefaceEntry(Typeface));
		}
		return TSharedRef<const FCompositeFont>(Font);
	}();
	return DefaultFont;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings)
{
	return FSlateFontInfo(GetDefaultFont(), InSize, InTypefaceFontName, InOutlineSettings);
}

bool FCoreStyle::IsInitialized()
{
	return true;
}
