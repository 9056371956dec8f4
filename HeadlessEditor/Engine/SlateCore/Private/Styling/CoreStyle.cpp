#include "Styling/CoreStyle.h"

#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Styling/StyleColors.h"

namespace
{
	// The metrics of the editor's dark theme.
	const FVector2D Icon16x16(16.0, 16.0);
	const FVector2D Icon18x18(18.0, 18.0);
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

	void SetInvisibleButtonStyles(FSlateStyleSet& Style)
	{
		Style.Set(TEXT("NoBorder"), FButtonStyle().SetNormal(FSlateNoResource()).SetHovered(FSlateNoResource()).SetPressed(FSlateNoResource()).SetNormalForeground(FStyleColors::ForegroundHover).SetHoveredForeground(FStyleColors::ForegroundHover).SetPressedForeground(FStyleColors::ForegroundHover).SetNormalPadding(FMargin(0.0f)).SetPressedPadding(FMargin(0.0f)));
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
			SetInvisibleButtonStyles(Instance);
			SetComboStyles(Instance);
			SetCheckBoxStyles(Instance);
			SetPanelStyles(Instance);
			SetPanelColorsAndTreeArrows(Instance);
			SetDetailsViewStyles(Instance);
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
