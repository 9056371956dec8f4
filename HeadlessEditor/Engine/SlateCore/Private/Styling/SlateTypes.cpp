#include "Styling/SlateTypes.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Styling/StyleColors.h"
#include "Styling/StyleDefaults.h"

const FName FTextBlockStyle::TypeName(TEXT("FTextBlockStyle"));
const FName FButtonStyle::TypeName(TEXT("FButtonStyle"));
const FName FCheckBoxStyle::TypeName(TEXT("FCheckBoxStyle"));
const FName FComboButtonStyle::TypeName(TEXT("FComboButtonStyle"));
const FName FComboBoxStyle::TypeName(TEXT("FComboBoxStyle"));
const FName FEditableTextStyle::TypeName(TEXT("FEditableTextStyle"));
const FName FEditableTextBoxStyle::TypeName(TEXT("FEditableTextBoxStyle"));
const FName FScrollBarStyle::TypeName(TEXT("FScrollBarStyle"));
const FName FScrollBoxStyle::TypeName(TEXT("FScrollBoxStyle"));
const FName FTableRowStyle::TypeName(TEXT("FTableRowStyle"));
const FName FSplitterStyle::TypeName(TEXT("FSplitterStyle"));

FTextBlockStyle::FTextBlockStyle()
	: ShadowOffset(FVector2D::ZeroVector)
	, ShadowColorAndOpacity(FLinearColor::Black)
	, SelectedBackgroundColor(FSlateColor::UseForeground())
	, HighlightColor(FLinearColor::Black)
{
}

void FTextBlockStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&HighlightShape);
	OutBrushes.Add(&UnderlineBrush);
}

const FTextBlockStyle& FTextBlockStyle::GetDefault()
{
	static const FTextBlockStyle Default;
	return Default;
}

FButtonStyle::FButtonStyle()
	: NormalForeground(FSlateColor::UseForeground())
	, HoveredForeground(FSlateColor::UseForeground())
	, PressedForeground(FSlateColor::UseForeground())
	, DisabledForeground(FSlateColor::UseForeground())
{
	Disabled = FSlateNoResource();
}

void FButtonStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&Normal, &Hovered, &Pressed, &Disabled});
}

const FButtonStyle& FButtonStyle::GetDefault()
{
	static const FButtonStyle Default;
	return Default;
}

FCheckBoxStyle::FCheckBoxStyle()
	: CheckBoxType(ESlateCheckBoxType::CheckBox)
	, Padding(FMargin(2, 0, 0, 0))
	, BackgroundImage(FSlateNoResource())
	, BackgroundHoveredImage(FSlateNoResource())
	, BackgroundPressedImage(FSlateNoResource())
	, ForegroundColor(FSlateColor::UseForeground())
	, HoveredForeground(FSlateColor::UseForeground())
	, PressedForeground(FSlateColor::UseForeground())
	, CheckedForeground(FSlateColor::UseForeground())
	, CheckedHoveredForeground(FSlateColor::UseForeground())
	, CheckedPressedForeground(FSlateColor::UseForeground())
	, UndeterminedForeground(FSlateColor::UseForeground())
	, BorderBackgroundColor(FLinearColor::White)
{
}

void FCheckBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&UncheckedImage, &UncheckedHoveredImage, &UncheckedPressedImage, &CheckedImage, &CheckedHoveredImage, &CheckedPressedImage, &UndeterminedImage, &UndeterminedHoveredImage, &UndeterminedPressedImage, &BackgroundImage, &BackgroundHoveredImage, &BackgroundPressedImage});
}

const FCheckBoxStyle& FCheckBoxStyle::GetDefault()
{
	static const FCheckBoxStyle Default;
	return Default;
}

FComboButtonStyle::FComboButtonStyle()
	: ShadowOffset(FVector2D::ZeroVector)
	, ShadowColorAndOpacity(FLinearColor::Black)
	, MenuBorderPadding(0.0f)
	, ContentPadding(5.0f)
	, DownArrowPadding(2.0f)
	, DownArrowAlign(VAlign_Center)
{
}

void FComboButtonStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	ButtonStyle.GetResources(OutBrushes);
	OutBrushes.Append({&DownArrowImage, &MenuBorderBrush});
}

const FComboButtonStyle& FComboButtonStyle::GetDefault()
{
	static const FComboButtonStyle Default;
	return Default;
}

FComboBoxStyle::FComboBoxStyle()
	: ContentPadding(FMargin(4.0f, 2.0f))
	, MenuRowPadding(FMargin(0.0f))
{
	ComboButtonStyle.SetMenuBorderPadding(FMargin(1.0f));
}

void FComboBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	ComboButtonStyle.GetResources(OutBrushes);
}

const FComboBoxStyle& FComboBoxStyle::GetDefault()
{
	static const FComboBoxStyle Default;
	return Default;
}

FEditableTextStyle::FEditableTextStyle()
	: Font(FStyleDefaults::GetFontInfo(9))
	, ColorAndOpacity(FSlateColor::UseForeground())
{
}

void FEditableTextStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&BackgroundImageSelected, &CaretImage});
}

const FEditableTextStyle& FEditableTextStyle::GetDefault()
{
	static const FEditableTextStyle Default;
	return Default;
}

FEditableTextBoxStyle::FEditableTextBoxStyle()
	: Padding(FMargin(4.0f, 2.0f))
	, TextStyle(FTextBlockStyle()
					.SetFont(FStyleDefaults::GetFontInfo(9))
					.SetColorAndOpacity(FSlateColor::UseForeground())
					.SetSelectedBackgroundColor(FStyleColors::Highlight)
					.SetHighlightColor(FStyleColors::Black)
					.SetHighlightShape(FSlateColorBrush(FStyleColors::AccentGreen)))
	, ForegroundColor(FSlateColor::UseForeground())
	, BackgroundColor(FLinearColor::White)
	, ReadOnlyForegroundColor(FSlateColor::UseForeground())
	, FocusedForegroundColor(FSlateColor::UseForeground())
{
}

void FEditableTextBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&BackgroundImageNormal, &BackgroundImageHovered, &BackgroundImageFocused, &BackgroundImageReadOnly});
	TextStyle.GetResources(OutBrushes);
}

const FEditableTextBoxStyle& FEditableTextBoxStyle::GetDefault()
{
	static const FEditableTextBoxStyle Default;
	return Default;
}

FScrollBarStyle::FScrollBarStyle()
	: HorizontalBackgroundImage(FSlateNoResource())
	, VerticalBackgroundImage(FSlateNoResource())
	, VerticalTopSlotImage(FSlateNoResource())
	, HorizontalTopSlotImage(FSlateNoResource())
	, VerticalBottomSlotImage(FSlateNoResource())
	, HorizontalBottomSlotImage(FSlateNoResource())
	, NormalThumbImage(FSlateNoResource())
	, HoveredThumbImage(FSlateNoResource())
	, DraggedThumbImage(FSlateNoResource())
	, Thickness(16.0f)
{
}

void FScrollBarStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&HorizontalBackgroundImage, &VerticalBackgroundImage, &VerticalTopSlotImage, &HorizontalTopSlotImage, &VerticalBottomSlotImage, &HorizontalBottomSlotImage, &NormalThumbImage, &HoveredThumbImage, &DraggedThumbImage});
}

const FScrollBarStyle& FScrollBarStyle::GetDefault()
{
	static const FScrollBarStyle Default;
	return Default;
}

FScrollBoxStyle::FScrollBoxStyle()
	: BarThickness(9.0f)
{
}

void FScrollBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&TopShadowBrush, &BottomShadowBrush, &LeftShadowBrush, &RightShadowBrush});
}

const FScrollBoxStyle& FScrollBoxStyle::GetDefault()
{
	static const FScrollBoxStyle Default;
	return Default;
}

FTableRowStyle::FTableRowStyle()
	: TextColor(FSlateColor::UseForeground())
	, SelectedTextColor(FLinearColor::White)
{
}

void FTableRowStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&SelectorFocusedBrush, &ActiveHoveredBrush, &ActiveBrush, &EvenRowBackgroundBrush, &OddRowBackgroundBrush});
}

const FTableRowStyle& FTableRowStyle::GetDefault()
{
	static const FTableRowStyle Default;
	return Default;
}

FSplitterStyle::FSplitterStyle() = default;

void FSplitterStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&HandleNormalBrush, &HandleHighlightBrush});
}

const FSplitterStyle& FSplitterStyle::GetDefault()
{
	static const FSplitterStyle Default;
	return Default;
}

const FName FDockTabStyle::TypeName(TEXT("FDockTabStyle"));

FDockTabStyle::FDockTabStyle() = default;

void FDockTabStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&ContentAreaBrush, &TabWellBrush});
	TabTextStyle.GetResources(OutBrushes);
}

const FDockTabStyle& FDockTabStyle::GetDefault()
{
	static const FDockTabStyle Default;
	return Default;
}

const FName FHyperlinkStyle::TypeName(TEXT("FHyperlinkStyle"));

FHyperlinkStyle::FHyperlinkStyle() = default;

void FHyperlinkStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	UnderlineStyle.GetResources(OutBrushes);
	TextStyle.GetResources(OutBrushes);
}

const FHyperlinkStyle& FHyperlinkStyle::GetDefault()
{
	static const FHyperlinkStyle Default;
	return Default;
}

const FName FWindowStyle::TypeName(TEXT("FWindowStyle"));

FWindowStyle::FWindowStyle()
	: BorderPadding(FMargin(5.0f, 5.0f, 5.0f, 5.0f))
{
}

void FWindowStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	MinimizeButtonStyle.GetResources(OutBrushes);
	MaximizeButtonStyle.GetResources(OutBrushes);
	CloseButtonStyle.GetResources(OutBrushes);
	TitleTextStyle.GetResources(OutBrushes);
	OutBrushes.Append({&ActiveTitleBrush, &OutlineBrush, &BorderBrush, &BackgroundBrush});
}

const FWindowStyle& FWindowStyle::GetDefault()
{
	static const FWindowStyle Default;
	return Default;
}

const FName FSearchBoxStyle::TypeName(TEXT("FSearchBoxStyle"));

FSearchBoxStyle::FSearchBoxStyle()
	: bLeftAlignGlassImageAndClearButton(false)
{
}

void FSearchBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	TextBoxStyle.GetResources(OutBrushes);
	OutBrushes.Append({&GlassImage, &ClearImage});
}

const FSearchBoxStyle& FSearchBoxStyle::GetDefault()
{
	static const FSearchBoxStyle Default;
	return Default;
}
