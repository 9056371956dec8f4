#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

/** The state of a check box. */
enum class ECheckBoxState : uint8
{
	/** Unchecked */
	Unchecked,
	/** Checked */
	Checked,
	/** Neither checked nor unchecked */
	Undetermined
};

/** How a text block draws its text. */
struct SLATECORE_API FTextBlockStyle : public FSlateWidgetStyle
{
	FTextBlockStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FTextBlockStyle& GetDefault();

	FTextBlockStyle& SetFont(const FSlateFontInfo& InFont)
	{
		Font = InFont;
		return *this;
	}
	FTextBlockStyle& SetColorAndOpacity(const FSlateColor& InColorAndOpacity)
	{
		ColorAndOpacity = InColorAndOpacity;
		return *this;
	}

	/** Font family and size to be used when displaying this text. */
	FSlateFontInfo Font;

	/** The color and opacity of this text */
	FSlateColor ColorAndOpacity;

	static const FName TypeName;
};

/** How a button draws itself in each of its states. */
struct SLATECORE_API FButtonStyle : public FSlateWidgetStyle
{
	FButtonStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FButtonStyle& GetDefault();

	/** Button appearance when the button is not hovered or pressed */
	FSlateBrush Normal;
	/** Button appearance when hovered */
	FSlateBrush Hovered;
	/** Button appearance when pressed */
	FSlateBrush Pressed;
	/** Button appearance when disabled */
	FSlateBrush Disabled;
	/** Padding that accounts for the border in the button's background image. */
	FMargin NormalPadding;
	/** Same as NormalPadding but used when the button is pressed. */
	FMargin PressedPadding;

	static const FName TypeName;
};

/** How a check box draws itself in each of its states. */
struct SLATECORE_API FCheckBoxStyle : public FSlateWidgetStyle
{
	FCheckBoxStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FCheckBoxStyle& GetDefault();

	FSlateBrush UncheckedImage;
	FSlateBrush CheckedImage;
	FSlateBrush UndeterminedImage;
	FMargin Padding;

	static const FName TypeName;
};

/** How a combo button draws itself. */
struct SLATECORE_API FComboButtonStyle : public FSlateWidgetStyle
{
	FComboButtonStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FComboButtonStyle& GetDefault();

	FButtonStyle ButtonStyle;
	FSlateBrush DownArrowImage;
	FMargin ContentPadding;

	static const FName TypeName;
};

/** How a combo box draws itself. */
struct SLATECORE_API FComboBoxStyle : public FSlateWidgetStyle
{
	FComboBoxStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FComboBoxStyle& GetDefault();

	FComboButtonStyle ComboButtonStyle;
	FMargin ContentPadding;
	FMargin MenuRowPadding;

	static const FName TypeName;
};

/** How an editable text box draws itself. */
struct SLATECORE_API FEditableTextBoxStyle : public FSlateWidgetStyle
{
	FEditableTextBoxStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FEditableTextBoxStyle& GetDefault();

	FSlateBrush BackgroundImageNormal;
	FSlateFontInfo Font;
	FSlateColor ForegroundColor;
	FMargin Padding;

	static const FName TypeName;
};

/** How a scroll box draws itself. */
struct SLATECORE_API FScrollBoxStyle : public FSlateWidgetStyle
{
	FScrollBoxStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FScrollBoxStyle& GetDefault();

	FSlateBrush TopShadowBrush;
	FSlateBrush BottomShadowBrush;

	static const FName TypeName;
};

/** How a row of a list draws itself. */
struct SLATECORE_API FTableRowStyle : public FSlateWidgetStyle
{
	FTableRowStyle();

	virtual const FName GetTypeName() const override { return TypeName; }
	static const FTableRowStyle& GetDefault();

	FSlateBrush SelectorFocusedBrush;
	FSlateColor TextColor;

	static const FName TypeName;
};
