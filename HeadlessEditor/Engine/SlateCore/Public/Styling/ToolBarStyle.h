#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"

/** How a toolbar draws itself and the buttons, combo buttons and labels on it. */
struct SLATECORE_API FToolBarStyle : public FSlateWidgetStyle
{
	FToolBarStyle();
	virtual ~FToolBarStyle() {}

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FToolBarStyle& GetDefault();

	/** The brush used for the background of the toolbar */
	FSlateBrush BackgroundBrush;
	FToolBarStyle& SetBackground(const FSlateBrush& InBackground)
	{
		BackgroundBrush = InBackground;
		return *this;
	}

	/** The brush used for the expand arrow when the toolbar runs out of room */
	FSlateBrush ExpandBrush;
	FToolBarStyle& SetExpandBrush(const FSlateBrush& InExpandBrush)
	{
		ExpandBrush = InExpandBrush;
		return *this;
	}

	FSlateBrush SeparatorBrush;
	FToolBarStyle& SetSeparatorBrush(const FSlateBrush& InSeparatorBrush)
	{
		SeparatorBrush = InSeparatorBrush;
		return *this;
	}

	FTextBlockStyle LabelStyle;
	FToolBarStyle& SetLabelStyle(const FTextBlockStyle& InLabelStyle)
	{
		LabelStyle = InLabelStyle;
		return *this;
	}

	FEditableTextBoxStyle EditableTextStyle;
	FToolBarStyle& SetEditableTextStyle(const FEditableTextBoxStyle& InEditableTextStyle)
	{
		EditableTextStyle = InEditableTextStyle;
		return *this;
	}

	FCheckBoxStyle ToggleButton;
	FToolBarStyle& SetToggleButtonStyle(const FCheckBoxStyle& InToggleButton)
	{
		ToggleButton = InToggleButton;
		return *this;
	}

	FComboButtonStyle ComboButtonStyle;
	FToolBarStyle& SetComboButtonStyle(const FComboButtonStyle& InComboButtonStyle)
	{
		ComboButtonStyle = InComboButtonStyle;
		return *this;
	}

	FButtonStyle SettingsButtonStyle;
	FToolBarStyle& SetSettingsButtonStyle(const FButtonStyle& InSettingsButton)
	{
		SettingsButtonStyle = InSettingsButton;
		return *this;
	}

	FComboButtonStyle SettingsComboButton;
	FToolBarStyle& SetSettingsComboButtonStyle(const FComboButtonStyle& InSettingsComboButton)
	{
		SettingsComboButton = InSettingsComboButton;
		return *this;
	}

	FCheckBoxStyle SettingsToggleButton;
	FToolBarStyle& SetSettingsToggleButtonStyle(const FCheckBoxStyle& InSettingsToggleButton)
	{
		SettingsToggleButton = InSettingsToggleButton;
		return *this;
	}

	FButtonStyle ButtonStyle;
	FToolBarStyle& SetButtonStyle(const FButtonStyle& InButtonStyle)
	{
		ButtonStyle = InButtonStyle;
		return *this;
	}

	FMargin LabelPadding;
	FToolBarStyle& SetLabelPadding(const FMargin& InLabelPadding)
	{
		LabelPadding = InLabelPadding;
		return *this;
	}

	FMargin SeparatorPadding;
	FToolBarStyle& SetSeparatorPadding(const FMargin& InSeparatorPadding)
	{
		SeparatorPadding = InSeparatorPadding;
		return *this;
	}

	FMargin ComboButtonPadding;
	FToolBarStyle& SetComboButtonPadding(const FMargin& InComboButtonPadding)
	{
		ComboButtonPadding = InComboButtonPadding;
		return *this;
	}

	FMargin ButtonPadding;
	FToolBarStyle& SetButtonPadding(const FMargin& InButtonPadding)
	{
		ButtonPadding = InButtonPadding;
		return *this;
	}

	FMargin CheckBoxPadding;
	FToolBarStyle& SetCheckBoxPadding(const FMargin& InCheckBoxPadding)
	{
		CheckBoxPadding = InCheckBoxPadding;
		return *this;
	}

	FMargin BlockPadding;
	FToolBarStyle& SetBlockPadding(const FMargin& InBlockPadding)
	{
		BlockPadding = InBlockPadding;
		return *this;
	}

	FMargin IndentedBlockPadding;
	FToolBarStyle& SetIndentedBlockPadding(const FMargin& InIndentedBlockPadding)
	{
		IndentedBlockPadding = InIndentedBlockPadding;
		return *this;
	}

	FMargin BackgroundPadding;
	FToolBarStyle& SetBackgroundPadding(const FMargin& InMargin)
	{
		BackgroundPadding = InMargin;
		return *this;
	}

	FVector2D IconSize;
	FToolBarStyle& SetIconSize(const FVector2D& InIconSize)
	{
		IconSize = InIconSize;
		return *this;
	}

	bool bShowLabels;
	FToolBarStyle& SetShowLabels(bool bInShowLabels)
	{
		bShowLabels = bInShowLabels;
		return *this;
	}
};
