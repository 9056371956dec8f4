#include "Styling/SlateTypes.h"

#include "Styling/CoreStyle.h"

const FName FTextBlockStyle::TypeName(TEXT("FTextBlockStyle"));
const FName FButtonStyle::TypeName(TEXT("FButtonStyle"));
const FName FCheckBoxStyle::TypeName(TEXT("FCheckBoxStyle"));
const FName FComboButtonStyle::TypeName(TEXT("FComboButtonStyle"));
const FName FComboBoxStyle::TypeName(TEXT("FComboBoxStyle"));
const FName FEditableTextBoxStyle::TypeName(TEXT("FEditableTextBoxStyle"));
const FName FScrollBoxStyle::TypeName(TEXT("FScrollBoxStyle"));
const FName FTableRowStyle::TypeName(TEXT("FTableRowStyle"));

FTextBlockStyle::FTextBlockStyle()
	: Font(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 10))
	, ColorAndOpacity(FSlateColor::UseForeground())
{
}

const FTextBlockStyle& FTextBlockStyle::GetDefault()
{
	static const FTextBlockStyle Default;
	return Default;
}

FButtonStyle::FButtonStyle() = default;

const FButtonStyle& FButtonStyle::GetDefault()
{
	static const FButtonStyle Default;
	return Default;
}

FCheckBoxStyle::FCheckBoxStyle() = default;

const FCheckBoxStyle& FCheckBoxStyle::GetDefault()
{
	static const FCheckBoxStyle Default;
	return Default;
}

FComboButtonStyle::FComboButtonStyle() = default;

const FComboButtonStyle& FComboButtonStyle::GetDefault()
{
	static const FComboButtonStyle Default;
	return Default;
}

FComboBoxStyle::FComboBoxStyle() = default;

const FComboBoxStyle& FComboBoxStyle::GetDefault()
{
	static const FComboBoxStyle Default;
	return Default;
}

FEditableTextBoxStyle::FEditableTextBoxStyle()
	: Font(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9))
	, ForegroundColor(FSlateColor::UseForeground())
{
}

const FEditableTextBoxStyle& FEditableTextBoxStyle::GetDefault()
{
	static const FEditableTextBoxStyle Default;
	return Default;
}

FScrollBoxStyle::FScrollBoxStyle() = default;

const FScrollBoxStyle& FScrollBoxStyle::GetDefault()
{
	static const FScrollBoxStyle Default;
	return Default;
}

FTableRowStyle::FTableRowStyle() = default;

const FTableRowStyle& FTableRowStyle::GetDefault()
{
	static const FTableRowStyle Default;
	return Default;
}
