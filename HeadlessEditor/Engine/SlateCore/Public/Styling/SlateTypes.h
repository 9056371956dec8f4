#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"
#include "Types/SlateEnums.h"

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

/** The kinds of check box. */
namespace ESlateCheckBoxType
{
	enum Type : int
	{
		/** A traditional check box with check button and label (or other content) */
		CheckBox,
		/** A toggle button. You specify button content. */
		ToggleButton,
	};
}

/** How a text block draws its text. */
struct SLATECORE_API FTextBlockStyle : public FSlateWidgetStyle
{
	FTextBlockStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FTextBlockStyle& GetDefault();
	static const FName TypeName;

	/** Font family and size to be used when displaying this text. */
	FSlateFontInfo Font;
	FTextBlockStyle& SetFont(const FSlateFontInfo& InFont)
	{
		Font = InFont;
		return *this;
	}
	FTextBlockStyle& SetFont(TSharedPtr<const FCompositeFont> InCompositeFont, const int32 InSize, const FName& InTypefaceFontName = NAME_None)
	{
		Font = FSlateFontInfo(InCompositeFont, InSize, InTypefaceFontName);
		return *this;
	}
	FTextBlockStyle& SetFontSize(uint16 InSize)
	{
		Font.Size = InSize;
		return *this;
	}
	FTextBlockStyle& SetTypefaceFontName(const FName& InTypefaceFontName)
	{
		Font.TypefaceFontName = InTypefaceFontName;
		return *this;
	}

	/** The color and opacity of this text */
	FSlateColor ColorAndOpacity;
	FTextBlockStyle& SetColorAndOpacity(const FSlateColor& InColorAndOpacity)
	{
		ColorAndOpacity = InColorAndOpacity;
		return *this;
	}

	/** How much should the shadow be offset? An offset of 0 implies no shadow. */
	FVector2D ShadowOffset;
	FTextBlockStyle& SetShadowOffset(const FVector2D& InShadowOffset)
	{
		ShadowOffset = InShadowOffset;
		return *this;
	}

	/** The color and opacity of the shadow */
	FLinearColor ShadowColorAndOpacity;
	FTextBlockStyle& SetShadowColorAndOpacity(const FLinearColor& InShadowColorAndOpacity)
	{
		ShadowColorAndOpacity = InShadowColorAndOpacity;
		return *this;
	}

	/** The background color of selected text */
	FSlateColor SelectedBackgroundColor;
	FTextBlockStyle& SetSelectedBackgroundColor(const FSlateColor& InSelectedBackgroundColor)
	{
		SelectedBackgroundColor = InSelectedBackgroundColor;
		return *this;
	}

	/** The color of highlighted text */
	FSlateColor HighlightColor;
	FTextBlockStyle& SetHighlightColor(const FSlateColor& InHighlightColor)
	{
		HighlightColor = InHighlightColor;
		return *this;
	}

	/** The shape of highlighted text */
	FSlateBrush HighlightShape;
	FTextBlockStyle& SetHighlightShape(const FSlateBrush& InHighlightShape)
	{
		HighlightShape = InHighlightShape;
		return *this;
	}

	/** The brush used to draw an underline under the text, if any */
	FSlateBrush UnderlineBrush;
	FTextBlockStyle& SetUnderlineBrush(const FSlateBrush& InUnderlineBrush)
	{
		UnderlineBrush = InUnderlineBrush;
		return *this;
	}
};

/** How a button draws itself in each of its states. */
struct SLATECORE_API FButtonStyle : public FSlateWidgetStyle
{
	FButtonStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FButtonStyle& GetDefault();
	static const FName TypeName;

	/** Button appearance when the button is not hovered or pressed */
	FSlateBrush Normal;
	FButtonStyle& SetNormal(const FSlateBrush& InNormal)
	{
		Normal = InNormal;
		return *this;
	}

	/** Button appearance when hovered */
	FSlateBrush Hovered;
	FButtonStyle& SetHovered(const FSlateBrush& InHovered)
	{
		Hovered = InHovered;
		return *this;
	}

	/** Button appearance when pressed */
	FSlateBrush Pressed;
	FButtonStyle& SetPressed(const FSlateBrush& InPressed)
	{
		Pressed = InPressed;
		return *this;
	}

	/** Button appearance when disabled, by default this is set to an invalid resource when that is the case default disabled drawing is used. */
	FSlateBrush Disabled;
	FButtonStyle& SetDisabled(const FSlateBrush& InDisabled)
	{
		Disabled = InDisabled;
		return *this;
	}

	/** Foreground Color when the button is not hovered or pressed */
	FSlateColor NormalForeground;
	FButtonStyle& SetNormalForeground(const FSlateColor& InNormalForeground)
	{
		NormalForeground = InNormalForeground;
		return *this;
	}

	/** Foreground Color when hovered */
	FSlateColor HoveredForeground;
	FButtonStyle& SetHoveredForeground(const FSlateColor& InHoveredForeground)
	{
		HoveredForeground = InHoveredForeground;
		return *this;
	}

	/** Foreground Color when pressed */
	FSlateColor PressedForeground;
	FButtonStyle& SetPressedForeground(const FSlateColor& InPressedForeground)
	{
		PressedForeground = InPressedForeground;
		return *this;
	}

	/** Foreground Color when disabled */
	FSlateColor DisabledForeground;
	FButtonStyle& SetDisabledForeground(const FSlateColor& InDisabledForeground)
	{
		DisabledForeground = InDisabledForeground;
		return *this;
	}

	/** Padding that accounts for the border in the button's background image. */
	FMargin NormalPadding;
	FButtonStyle& SetNormalPadding(const FMargin& InNormalPadding)
	{
		NormalPadding = InNormalPadding;
		return *this;
	}

	/** Same as NormalPadding but used when the button is pressed. */
	FMargin PressedPadding;
	FButtonStyle& SetPressedPadding(const FMargin& InPressedPadding)
	{
		PressedPadding = InPressedPadding;
		return *this;
	}
};

/** How a check box draws itself in each of its states. */
struct SLATECORE_API FCheckBoxStyle : public FSlateWidgetStyle
{
	FCheckBoxStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FCheckBoxStyle& GetDefault();
	static const FName TypeName;

	/** The visual type of the checkbox */
	ESlateCheckBoxType::Type CheckBoxType;
	FCheckBoxStyle& SetCheckBoxType(ESlateCheckBoxType::Type InCheckBoxType)
	{
		CheckBoxType = InCheckBoxType;
		return *this;
	}

	/** CheckBox appearance when the CheckBox is unchecked (normal) */
	FSlateBrush UncheckedImage;
	FCheckBoxStyle& SetUncheckedImage(const FSlateBrush& InUncheckedImage)
	{
		UncheckedImage = InUncheckedImage;
		return *this;
	}

	/** CheckBox appearance when the CheckBox is unchecked and hovered */
	FSlateBrush UncheckedHoveredImage;
	FCheckBoxStyle& SetUncheckedHoveredImage(const FSlateBrush& InUncheckedHoveredImage)
	{
		UncheckedHoveredImage = InUncheckedHoveredImage;
		return *this;
	}

	/** CheckBox appearance when the CheckBox is unchecked and hovered */
	FSlateBrush UncheckedPressedImage;
	FCheckBoxStyle& SetUncheckedPressedImage(const FSlateBrush& InUncheckedPressedImage)
	{
		UncheckedPressedImage = InUncheckedPressedImage;
		return *this;
	}

	/** CheckBox appearance when the CheckBox is checked */
	FSlateBrush CheckedImage;
	FCheckBoxStyle& SetCheckedImage(const FSlateBrush& InCheckedImage)
	{
		CheckedImage = InCheckedImage;
		return *this;
	}

	/** CheckBox appearance when checked and hovered */
	FSlateBrush CheckedHoveredImage;
	FCheckBoxStyle& SetCheckedHoveredImage(const FSlateBrush& InCheckedHoveredImage)
	{
		CheckedHoveredImage = InCheckedHoveredImage;
		return *this;
	}

	/** CheckBox appearance when checked and hovered */
	FSlateBrush CheckedPressedImage;
	FCheckBoxStyle& SetCheckedPressedImage(const FSlateBrush& InCheckedPressedImage)
	{
		CheckedPressedImage = InCheckedPressedImage;
		return *this;
	}

	/** CheckBox appearance when the CheckBox is undetermined */
	FSlateBrush UndeterminedImage;
	FCheckBoxStyle& SetUndeterminedImage(const FSlateBrush& InUndeterminedImage)
	{
		UndeterminedImage = InUndeterminedImage;
		return *this;
	}

	/** CheckBox appearance when CheckBox is undetermined and hovered */
	FSlateBrush UndeterminedHoveredImage;
	FCheckBoxStyle& SetUndeterminedHoveredImage(const FSlateBrush& InUndeterminedHoveredImage)
	{
		UndeterminedHoveredImage = InUndeterminedHoveredImage;
		return *this;
	}

	/** CheckBox appearance when CheckBox is undetermined and hovered */
	FSlateBrush UndeterminedPressedImage;
	FCheckBoxStyle& SetUndeterminedPressedImage(const FSlateBrush& InUndeterminedPressedImage)
	{
		UndeterminedPressedImage = InUndeterminedPressedImage;
		return *this;
	}

	/** Padding */
	FMargin Padding;
	FCheckBoxStyle& SetPadding(const FMargin& InPadding)
	{
		Padding = InPadding;
		return *this;
	}

	/** Background appearance */
	FSlateBrush BackgroundImage;
	FCheckBoxStyle& SetBackgroundImage(const FSlateBrush& InBackgroundImage)
	{
		BackgroundImage = InBackgroundImage;
		return *this;
	}

	/** Background appearance when hovered */
	FSlateBrush BackgroundHoveredImage;
	FCheckBoxStyle& SetBackgroundHoveredImage(const FSlateBrush& InBackgroundHoveredImage)
	{
		BackgroundHoveredImage = InBackgroundHoveredImage;
		return *this;
	}

	/** Background appearance when pressed */
	FSlateBrush BackgroundPressedImage;
	FCheckBoxStyle& SetBackgroundPressedImage(const FSlateBrush& InBackgroundPressedImage)
	{
		BackgroundPressedImage = InBackgroundPressedImage;
		return *this;
	}

	/** The normal unchecked foreground color */
	FSlateColor ForegroundColor;
	FCheckBoxStyle& SetForegroundColor(const FSlateColor& InForegroundColor)
	{
		ForegroundColor = InForegroundColor;
		return *this;
	}

	/** The foreground color when hovered */
	FSlateColor HoveredForeground;
	FCheckBoxStyle& SetHoveredForegroundColor(const FSlateColor& InHoveredForeground)
	{
		HoveredForeground = InHoveredForeground;
		return *this;
	}

	/** The foreground color when pressed */
	FSlateColor PressedForeground;
	FCheckBoxStyle& SetPressedForegroundColor(const FSlateColor& InPressedForeground)
	{
		PressedForeground = InPressedForeground;
		return *this;
	}

	/** The foreground color when checked */
	FSlateColor CheckedForeground;
	FCheckBoxStyle& SetCheckedForegroundColor(const FSlateColor& InCheckedForeground)
	{
		CheckedForeground = InCheckedForeground;
		return *this;
	}

	/** The foreground color when checked and hovered */
	FSlateColor CheckedHoveredForeground;
	FCheckBoxStyle& SetCheckedHoveredForegroundColor(const FSlateColor& InCheckedHoveredForeground)
	{
		CheckedHoveredForeground = InCheckedHoveredForeground;
		return *this;
	}

	/** The foreground color when checked and pressed */
	FSlateColor CheckedPressedForeground;
	FCheckBoxStyle& SetCheckedPressedForegroundColor(const FSlateColor& InCheckedPressedForeground)
	{
		CheckedPressedForeground = InCheckedPressedForeground;
		return *this;
	}

	/** The foreground color when undetermined */
	FSlateColor UndeterminedForeground;
	FCheckBoxStyle& SetUndeterminedForegroundColor(const FSlateColor& InUndeterminedForeground)
	{
		UndeterminedForeground = InUndeterminedForeground;
		return *this;
	}

	/** BorderBackgroundColor refers to the actual color and opacity of the supplied border image on toggle buttons */
	FSlateColor BorderBackgroundColor;
	FCheckBoxStyle& SetBorderBackgroundColor(const FSlateColor& InBorderBackgroundColor)
	{
		BorderBackgroundColor = InBorderBackgroundColor;
		return *this;
	}
};

/** How a combo button draws itself. */
struct SLATECORE_API FComboButtonStyle : public FSlateWidgetStyle
{
	FComboButtonStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FComboButtonStyle& GetDefault();
	static const FName TypeName;

	/** The style to use for our SButton. */
	FButtonStyle ButtonStyle;
	FComboButtonStyle& SetButtonStyle(const FButtonStyle& InButtonStyle)
	{
		ButtonStyle = InButtonStyle;
		return *this;
	}

	/** Image to use for the down arrow. */
	FSlateBrush DownArrowImage;
	FComboButtonStyle& SetDownArrowImage(const FSlateBrush& InDownArrowImage)
	{
		DownArrowImage = InDownArrowImage;
		return *this;
	}

	/** How much should the shadow be offset? An offset of 0 implies no shadow. */
	FVector2D ShadowOffset;
	FComboButtonStyle& SetShadowOffset(const FVector2D& InShadowOffset)
	{
		ShadowOffset = InShadowOffset;
		return *this;
	}

	/** The color and opacity of the shadow */
	FLinearColor ShadowColorAndOpacity;
	FComboButtonStyle& SetShadowColorAndOpacity(const FLinearColor& InShadowColorAndOpacity)
	{
		ShadowColorAndOpacity = InShadowColorAndOpacity;
		return *this;
	}

	/** Brush to use to add a "menu border" around the drop-down content. */
	FSlateBrush MenuBorderBrush;
	FComboButtonStyle& SetMenuBorderBrush(const FSlateBrush& InMenuBorderBrush)
	{
		MenuBorderBrush = InMenuBorderBrush;
		return *this;
	}

	/** Padding to use to add a "menu border" around the drop-down content. */
	FMargin MenuBorderPadding;
	FComboButtonStyle& SetMenuBorderPadding(const FMargin& InMenuBorderPadding)
	{
		MenuBorderPadding = InMenuBorderPadding;
		return *this;
	}

	/** The padding for the content of the combo button. */
	FMargin ContentPadding;
	FComboButtonStyle& SetContentPadding(const FMargin& InContentPadding)
	{
		ContentPadding = InContentPadding;
		return *this;
	}

	/** The padding of the down arrow. */
	FMargin DownArrowPadding;
	FComboButtonStyle& SetDownArrowPadding(const FMargin& InDownArrowPadding)
	{
		DownArrowPadding = InDownArrowPadding;
		return *this;
	}

	/** How the down arrow lines up vertically. */
	EVerticalAlignment DownArrowAlign;
	FComboButtonStyle& SetDownArrowAlignment(const EVerticalAlignment& InVAlign)
	{
		DownArrowAlign = InVAlign;
		return *this;
	}
};

/** How a combo box draws itself. */
struct SLATECORE_API FComboBoxStyle : public FSlateWidgetStyle
{
	FComboBoxStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FComboBoxStyle& GetDefault();
	static const FName TypeName;

	/** The style to use for our SComboButton */
	FComboButtonStyle ComboButtonStyle;
	FComboBoxStyle& SetComboButtonStyle(const FComboButtonStyle& InComboButtonStyle)
	{
		ComboButtonStyle = InComboButtonStyle;
		return *this;
	}

	/** The padding of the content. */
	FMargin ContentPadding;
	FComboBoxStyle& SetContentPadding(const FMargin& InContentPadding)
	{
		ContentPadding = InContentPadding;
		return *this;
	}

	/** The padding around each row of the drop-down list. */
	FMargin MenuRowPadding;
	FComboBoxStyle& SetMenuRowPadding(const FMargin& InMenuRowPadding)
	{
		MenuRowPadding = InMenuRowPadding;
		return *this;
	}
};

/** How editable text draws itself. */
struct SLATECORE_API FEditableTextStyle : public FSlateWidgetStyle
{
	FEditableTextStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FEditableTextStyle& GetDefault();
	static const FName TypeName;

	/** Font family and size to be used when displaying this text. */
	FSlateFontInfo Font;
	FEditableTextStyle& SetFont(const FSlateFontInfo& InFont)
	{
		Font = InFont;
		return *this;
	}

	/** The color and opacity of this text */
	FSlateColor ColorAndOpacity;
	FEditableTextStyle& SetColorAndOpacity(const FSlateColor& InColorAndOpacity)
	{
		ColorAndOpacity = InColorAndOpacity;
		return *this;
	}

	/** Background image for the selected text */
	FSlateBrush BackgroundImageSelected;
	FEditableTextStyle& SetBackgroundImageSelected(const FSlateBrush& InBackgroundImageSelected)
	{
		BackgroundImageSelected = InBackgroundImageSelected;
		return *this;
	}

	/** Background image for the composing text */
	FSlateBrush BackgroundImageComposing;
	FEditableTextStyle& SetBackgroundImageComposing(const FSlateBrush& InBackgroundImageComposing)
	{
		BackgroundImageComposing = InBackgroundImageComposing;
		return *this;
	}

	/** Image brush used for the caret */
	FSlateBrush CaretImage;
	FEditableTextStyle& SetCaretImage(const FSlateBrush& InCaretImage)
	{
		CaretImage = InCaretImage;
		return *this;
	}
};

/** How an editable text box draws itself. */
struct SLATECORE_API FEditableTextBoxStyle : public FSlateWidgetStyle
{
	FEditableTextBoxStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FEditableTextBoxStyle& GetDefault();
	static const FName TypeName;

	/** Border background image when the box is not hovered or focused */
	FSlateBrush BackgroundImageNormal;
	FEditableTextBoxStyle& SetBackgroundImageNormal(const FSlateBrush& InBackgroundImageNormal)
	{
		BackgroundImageNormal = InBackgroundImageNormal;
		return *this;
	}

	/** Border background image when the box is hovered */
	FSlateBrush BackgroundImageHovered;
	FEditableTextBoxStyle& SetBackgroundImageHovered(const FSlateBrush& InBackgroundImageHovered)
	{
		BackgroundImageHovered = InBackgroundImageHovered;
		return *this;
	}

	/** Border background image when the box is focused */
	FSlateBrush BackgroundImageFocused;
	FEditableTextBoxStyle& SetBackgroundImageFocused(const FSlateBrush& InBackgroundImageFocused)
	{
		BackgroundImageFocused = InBackgroundImageFocused;
		return *this;
	}

	/** Border background image when the box is read-only */
	FSlateBrush BackgroundImageReadOnly;
	FEditableTextBoxStyle& SetBackgroundImageReadOnly(const FSlateBrush& InBackgroundImageReadOnly)
	{
		BackgroundImageReadOnly = InBackgroundImageReadOnly;
		return *this;
	}

	/** Padding */
	FMargin Padding;
	FEditableTextBoxStyle& SetPadding(const FMargin& InPadding)
	{
		Padding = InPadding;
		return *this;
	}

	/** The text style */
	FTextBlockStyle TextStyle;
	FEditableTextBoxStyle& SetTextStyle(const FTextBlockStyle& InTextStyle)
	{
		TextStyle = InTextStyle;
		return *this;
	}
	FEditableTextBoxStyle& SetFont(const FSlateFontInfo& InFont)
	{
		TextStyle.SetFont(InFont);
		return *this;
	}

	/** The foreground color of text. */
	FSlateColor ForegroundColor;
	FEditableTextBoxStyle& SetForegroundColor(const FSlateColor& InForegroundColor)
	{
		ForegroundColor = InForegroundColor;
		return *this;
	}

	/** The background color applied to the active background image */
	FSlateColor BackgroundColor;
	FEditableTextBoxStyle& SetBackgroundColor(const FSlateColor& InBackgroundColor)
	{
		BackgroundColor = InBackgroundColor;
		return *this;
	}

	/** The read-only foreground color of text in read-only mode. */
	FSlateColor ReadOnlyForegroundColor;
	FEditableTextBoxStyle& SetReadOnlyForegroundColor(const FSlateColor& InReadOnlyForegroundColor)
	{
		ReadOnlyForegroundColor = InReadOnlyForegroundColor;
		return *this;
	}

	/** The foreground color of text when the box has focus. */
	FSlateColor FocusedForegroundColor;
	FEditableTextBoxStyle& SetFocusedForegroundColor(const FSlateColor& InFocusedForegroundColor)
	{
		FocusedForegroundColor = InFocusedForegroundColor;
		return *this;
	}
};

/** How a scroll bar draws itself: its track and its thumb in each state. */
struct SLATECORE_API FScrollBarStyle : public FSlateWidgetStyle
{
	FScrollBarStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FScrollBarStyle& GetDefault();
	static const FName TypeName;

	/** Background image to use when the scrollbar is oriented horizontally */
	FSlateBrush HorizontalBackgroundImage;
	FScrollBarStyle& SetHorizontalBackgroundImage(const FSlateBrush& InHorizontalBackgroundImage)
	{
		HorizontalBackgroundImage = InHorizontalBackgroundImage;
		return *this;
	}

	/** Background image to use when the scrollbar is oriented vertically */
	FSlateBrush VerticalBackgroundImage;
	FScrollBarStyle& SetVerticalBackgroundImage(const FSlateBrush& InVerticalBackgroundImage)
	{
		VerticalBackgroundImage = InVerticalBackgroundImage;
		return *this;
	}

	/** The image to use to represent the track above the thumb when the scrollbar is oriented vertically */
	FSlateBrush VerticalTopSlotImage;
	FScrollBarStyle& SetVerticalTopSlotImage(const FSlateBrush& Value)
	{
		VerticalTopSlotImage = Value;
		return *this;
	}

	/** The image to use to represent the track above the thumb when the scrollbar is oriented horizontally */
	FSlateBrush HorizontalTopSlotImage;
	FScrollBarStyle& SetHorizontalTopSlotImage(const FSlateBrush& Value)
	{
		HorizontalTopSlotImage = Value;
		return *this;
	}

	/** The image to use to represent the track below the thumb when the scrollbar is oriented vertically */
	FSlateBrush VerticalBottomSlotImage;
	FScrollBarStyle& SetVerticalBottomSlotImage(const FSlateBrush& Value)
	{
		VerticalBottomSlotImage = Value;
		return *this;
	}

	/** The image to use to represent the track below the thumb when the scrollbar is oriented horizontally */
	FSlateBrush HorizontalBottomSlotImage;
	FScrollBarStyle& SetHorizontalBottomSlotImage(const FSlateBrush& Value)
	{
		HorizontalBottomSlotImage = Value;
		return *this;
	}

	/** Image to use when the scrollbar thumb is in its normal state */
	FSlateBrush NormalThumbImage;
	FScrollBarStyle& SetNormalThumbImage(const FSlateBrush& InNormalThumbImage)
	{
		NormalThumbImage = InNormalThumbImage;
		return *this;
	}

	/** Image to use when the scrollbar thumb is in its hovered state */
	FSlateBrush HoveredThumbImage;
	FScrollBarStyle& SetHoveredThumbImage(const FSlateBrush& InHoveredThumbImage)
	{
		HoveredThumbImage = InHoveredThumbImage;
		return *this;
	}

	/** Image to use when the scrollbar thumb is in its dragged state */
	FSlateBrush DraggedThumbImage;
	FScrollBarStyle& SetDraggedThumbImage(const FSlateBrush& InDraggedThumbImage)
	{
		DraggedThumbImage = InDraggedThumbImage;
		return *this;
	}

	/** The thickness of the scrollbar thumb */
	float Thickness;
	FScrollBarStyle& SetThickness(float InThickness)
	{
		Thickness = InThickness;
		return *this;
	}
};

/** How a scroll box draws itself. */
struct SLATECORE_API FScrollBoxStyle : public FSlateWidgetStyle
{
	FScrollBoxStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FScrollBoxStyle& GetDefault();
	static const FName TypeName;

	/** Brush used to draw the top shadow of a scrollbox */
	FSlateBrush TopShadowBrush;
	FScrollBoxStyle& SetTopShadowBrush(const FSlateBrush& InTopShadowBrush)
	{
		TopShadowBrush = InTopShadowBrush;
		return *this;
	}

	/** Brush used to draw the bottom shadow of a scrollbox */
	FSlateBrush BottomShadowBrush;
	FScrollBoxStyle& SetBottomShadowBrush(const FSlateBrush& InBottomShadowBrush)
	{
		BottomShadowBrush = InBottomShadowBrush;
		return *this;
	}

	/** Brush used to draw the left shadow of a scrollbox */
	FSlateBrush LeftShadowBrush;
	FScrollBoxStyle& SetLeftShadowBrush(const FSlateBrush& InLeftShadowBrush)
	{
		LeftShadowBrush = InLeftShadowBrush;
		return *this;
	}

	/** Brush used to draw the right shadow of a scrollbox */
	FSlateBrush RightShadowBrush;
	FScrollBoxStyle& SetRightShadowBrush(const FSlateBrush& InRightShadowBrush)
	{
		RightShadowBrush = InRightShadowBrush;
		return *this;
	}

	/** The thickness of the scroll bar's thumb. */
	float BarThickness;
	FScrollBoxStyle& SetBarThickness(float InBarThickness)
	{
		BarThickness = InBarThickness;
		return *this;
	}
};

/** How a row of a list draws itself. */
struct SLATECORE_API FTableRowStyle : public FSlateWidgetStyle
{
	FTableRowStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FTableRowStyle& GetDefault();
	static const FName TypeName;

	/** Brush used as a selector when a row is focused */
	FSlateBrush SelectorFocusedBrush;
	FTableRowStyle& SetSelectorFocusedBrush(const FSlateBrush& InSelectorFocusedBrush)
	{
		SelectorFocusedBrush = InSelectorFocusedBrush;
		return *this;
	}

	/** Brush used when a selected row is active and hovered */
	FSlateBrush ActiveHoveredBrush;
	FTableRowStyle& SetActiveHoveredBrush(const FSlateBrush& InActiveHoveredBrush)
	{
		ActiveHoveredBrush = InActiveHoveredBrush;
		return *this;
	}

	/** Brush used when a selected row is active */
	FSlateBrush ActiveBrush;
	FTableRowStyle& SetActiveBrush(const FSlateBrush& InActiveBrush)
	{
		ActiveBrush = InActiveBrush;
		return *this;
	}

	/** Brush used when an even row is not selected */
	FSlateBrush EvenRowBackgroundBrush;
	FTableRowStyle& SetEvenRowBackgroundBrush(const FSlateBrush& InEvenRowBackgroundBrush)
	{
		EvenRowBackgroundBrush = InEvenRowBackgroundBrush;
		return *this;
	}

	/** Brush used when an odd row is not selected */
	FSlateBrush OddRowBackgroundBrush;
	FTableRowStyle& SetOddRowBackgroundBrush(const FSlateBrush& InOddRowBackgroundBrush)
	{
		OddRowBackgroundBrush = InOddRowBackgroundBrush;
		return *this;
	}

	/** Text color used for all rows */
	FSlateColor TextColor;
	FTableRowStyle& SetTextColor(const FSlateColor& InTextColor)
	{
		TextColor = InTextColor;
		return *this;
	}

	/** Text color used for the selected row */
	FSlateColor SelectedTextColor;
	FTableRowStyle& SetSelectedTextColor(const FSlateColor& InSelectedTextColor)
	{
		SelectedTextColor = InSelectedTextColor;
		return *this;
	}
};

/** How a splitter draws the handles between its children. */
struct SLATECORE_API FSplitterStyle : public FSlateWidgetStyle
{
	FSplitterStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FSplitterStyle& GetDefault();
	static const FName TypeName;

	/** Brush used to draw the handle in its normal state */
	FSlateBrush HandleNormalBrush;
	FSplitterStyle& SetHandleNormalBrush(const FSlateBrush& InHandleNormalBrush)
	{
		HandleNormalBrush = InHandleNormalBrush;
		return *this;
	}

	/** Brush used to draw the handle in its highlight state */
	FSlateBrush HandleHighlightBrush;
	FSplitterStyle& SetHandleHighlightBrush(const FSlateBrush& InHandleHighlightBrush)
	{
		HandleHighlightBrush = InHandleHighlightBrush;
		return *this;
	}
};

/** How a docking tab and the area holding its content draw themselves. */
struct SLATECORE_API FDockTabStyle : public FSlateWidgetStyle
{
	FDockTabStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FDockTabStyle& GetDefault();
	static const FName TypeName;

	/** The brush used to draw the content associated with this tab when it is active */
	FSlateBrush ContentAreaBrush;
	FDockTabStyle& SetContentAreaBrush(const FSlateBrush& InContentAreaBrush)
	{
		ContentAreaBrush = InContentAreaBrush;
		return *this;
	}

	/** The brush used to draw the tab well */
	FSlateBrush TabWellBrush;
	FDockTabStyle& SetTabWellBrush(const FSlateBrush& InTabWellBrush)
	{
		TabWellBrush = InTabWellBrush;
		return *this;
	}

	/** The text style of the tab's label */
	FTextBlockStyle TabTextStyle;
	FDockTabStyle& SetTabTextStyle(const FTextBlockStyle& InTabTextStyle)
	{
		TabTextStyle = InTabTextStyle;
		return *this;
	}

	/** Padding used around this tab */
	FMargin TabPadding;
	FDockTabStyle& SetTabPadding(const FMargin& InTabPadding)
	{
		TabPadding = InTabPadding;
		return *this;
	}
};

/** How a hyperlink draws itself: text over a button whose brushes underline it. */
struct SLATECORE_API FHyperlinkStyle : public FSlateWidgetStyle
{
	FHyperlinkStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FHyperlinkStyle& GetDefault();
	static const FName TypeName;

	/** Underline style */
	FButtonStyle UnderlineStyle;
	FHyperlinkStyle& SetUnderlineStyle(const FButtonStyle& InUnderlineStyle)
	{
		UnderlineStyle = InUnderlineStyle;
		return *this;
	}

	/** Text style */
	FTextBlockStyle TextStyle;
	FHyperlinkStyle& SetTextStyle(const FTextBlockStyle& InTextStyle)
	{
		TextStyle = InTextStyle;
		return *this;
	}

	/** Padding */
	FMargin Padding;
	FHyperlinkStyle& SetPadding(const FMargin& InPadding)
	{
		Padding = InPadding;
		return *this;
	}
};

/** How a window draws its frame: background, border, outline, title and the buttons of its title bar. */
struct SLATECORE_API FWindowStyle : public FSlateWidgetStyle
{
	FWindowStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FWindowStyle& GetDefault();
	static const FName TypeName;

	/** Style used to draw the window minimize button */
	FButtonStyle MinimizeButtonStyle;
	FWindowStyle& SetMinimizeButtonStyle(const FButtonStyle& InMinimizeButtonStyle)
	{
		MinimizeButtonStyle = InMinimizeButtonStyle;
		return *this;
	}

	/** Style used to draw the window maximize button */
	FButtonStyle MaximizeButtonStyle;
	FWindowStyle& SetMaximizeButtonStyle(const FButtonStyle& InMaximizeButtonStyle)
	{
		MaximizeButtonStyle = InMaximizeButtonStyle;
		return *this;
	}

	/** Style used to draw the window close button */
	FButtonStyle CloseButtonStyle;
	FWindowStyle& SetCloseButtonStyle(const FButtonStyle& InCloseButtonStyle)
	{
		CloseButtonStyle = InCloseButtonStyle;
		return *this;
	}

	/** Style used to draw the window title text */
	FTextBlockStyle TitleTextStyle;
	FWindowStyle& SetTitleTextStyle(const FTextBlockStyle& InTitleTextStyle)
	{
		TitleTextStyle = InTitleTextStyle;
		return *this;
	}

	/** Brush used to draw the window title area when the window is active */
	FSlateBrush ActiveTitleBrush;
	FWindowStyle& SetActiveTitleBrush(const FSlateBrush& InActiveTitleBrush)
	{
		ActiveTitleBrush = InActiveTitleBrush;
		return *this;
	}

	/** Brush used to draw the window outline */
	FSlateBrush OutlineBrush;
	FWindowStyle& SetOutlineBrush(const FSlateBrush& InOutlineBrush)
	{
		OutlineBrush = InOutlineBrush;
		return *this;
	}

	/** Brush used to draw the window border */
	FSlateBrush BorderBrush;
	FWindowStyle& SetBorderBrush(const FSlateBrush& InBorderBrush)
	{
		BorderBrush = InBorderBrush;
		return *this;
	}

	/** Brush used to draw the window background */
	FSlateBrush BackgroundBrush;
	FWindowStyle& SetBackgroundBrush(const FSlateBrush& InBackgroundBrush)
	{
		BackgroundBrush = InBackgroundBrush;
		return *this;
	}

	/** Space between the window's edge and its title bar and content. */
	FMargin BorderPadding;
	FWindowStyle& SetBorderPadding(FMargin InBorderPadding)
	{
		BorderPadding = InBorderPadding;
		return *this;
	}
};

/** How a search box draws itself: an editable text box with a magnifying glass and a clear button. */
struct SLATECORE_API FSearchBoxStyle : public FSlateWidgetStyle
{
	FSearchBoxStyle();

	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	virtual const FName GetTypeName() const override { return TypeName; }
	static const FSearchBoxStyle& GetDefault();
	static const FName TypeName;

	/** Style to use for the text box part of the search box */
	FEditableTextBoxStyle TextBoxStyle;
	FSearchBoxStyle& SetTextBoxStyle(const FEditableTextBoxStyle& InTextBoxStyle)
	{
		TextBoxStyle = InTextBoxStyle;
		return *this;
	}

	/** Image used for the search glass */
	FSlateBrush GlassImage;
	FSearchBoxStyle& SetGlassImage(const FSlateBrush& InGlassImage)
	{
		GlassImage = InGlassImage;
		return *this;
	}

	/** Image used to clear the search */
	FSlateBrush ClearImage;
	FSearchBoxStyle& SetClearImage(const FSlateBrush& InClearImage)
	{
		ClearImage = InClearImage;
		return *this;
	}

	/** Padding to apply around the glass image */
	FMargin ImagePadding;
	FSearchBoxStyle& SetImagePadding(const FMargin& InImagePadding)
	{
		ImagePadding = InImagePadding;
		return *this;
	}

	/** Whether the glass image and the clear button go at the left of the text */
	bool bLeftAlignGlassImageAndClearButton;
	FSearchBoxStyle& SetLeftAlignGlassImageAndClearButton(bool bInLeftAlignGlassImageAndClearButton)
	{
		bLeftAlignGlassImageAndClearButton = bInLeftAlignGlassImageAndClearButton;
		return *this;
	}
};
