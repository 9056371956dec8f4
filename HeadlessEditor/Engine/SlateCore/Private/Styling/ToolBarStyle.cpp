#include "Styling/ToolBarStyle.h"

#include "Brushes/SlateNoResource.h"

const FName FToolBarStyle::TypeName(TEXT("FToolBarStyle"));

FToolBarStyle::FToolBarStyle()
	: BackgroundBrush(FSlateNoResource())
	, ExpandBrush(FSlateNoResource())
	, SeparatorBrush(FSlateNoResource())
	, LabelPadding(0.0f)
	, SeparatorPadding(0.0f)
	, ComboButtonPadding(0.0f)
	, ButtonPadding(0.0f)
	, CheckBoxPadding(0.0f)
	, BlockPadding(0.0f)
	, IndentedBlockPadding(0.0f)
	, BackgroundPadding(0.0f)
	, IconSize(16.0, 16.0)
	, bShowLabels(true)
{
}

void FToolBarStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&BackgroundBrush, &ExpandBrush, &SeparatorBrush});
	LabelStyle.GetResources(OutBrushes);
	EditableTextStyle.GetResources(OutBrushes);
	ToggleButton.GetResources(OutBrushes);
	ComboButtonStyle.GetResources(OutBrushes);
	SettingsButtonStyle.GetResources(OutBrushes);
	SettingsComboButton.GetResources(OutBrushes);
	SettingsToggleButton.GetResources(OutBrushes);
	ButtonStyle.GetResources(OutBrushes);
}

const FToolBarStyle& FToolBarStyle::GetDefault()
{
	static const FToolBarStyle Default;
	return Default;
}
