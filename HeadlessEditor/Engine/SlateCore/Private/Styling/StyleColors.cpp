#include "Styling/StyleColors.h"

namespace
{
	/** A theme colour written as sRGB hex, as designers give it. */
	FLinearColor Hex(const TCHAR* Value)
	{
		return FLinearColor(FColor::FromHex(Value));
	}

	/** The dark theme the editor ships with. */
	struct FDarkTheme
	{
		FLinearColor Colors[static_cast<int32>(EStyleColor::MAX)];

		FDarkTheme()
		{
			for (FLinearColor& Color : Colors)
			{
				Color = FLinearColor::Black;
			}
			Set(EStyleColor::Black, Hex(TEXT("#000000FF")));
			Set(EStyleColor::Title, Hex(TEXT("#151515FF")));
			Set(EStyleColor::Background, Hex(TEXT("#151515FF")));
			Set(EStyleColor::WindowBorder, Hex(TEXT("0F0F0FFF")));
			Set(EStyleColor::Foldout, Hex(TEXT("0F0F0FFF")));
			Set(EStyleColor::Input, Hex(TEXT("0F0F0FFF")));
			Set(EStyleColor::InputOutline, Hex(TEXT("383838FF")));
			Set(EStyleColor::Recessed, Hex(TEXT("#1A1A1AFF")));
			Set(EStyleColor::Panel, Hex(TEXT("#242424FF")));
			Set(EStyleColor::Header, Hex(TEXT("#2F2F2FFF")));
			Set(EStyleColor::Dropdown, Hex(TEXT("#383838FF")));
			Set(EStyleColor::DropdownOutline, Hex(TEXT("#4C4C4CFF")));
			Set(EStyleColor::Hover, Hex(TEXT("#575757FF")));
			Set(EStyleColor::Hover2, Hex(TEXT("#808080FF")));
			Set(EStyleColor::White, Hex(TEXT("#FFFFFFFF")));
			Set(EStyleColor::White25, Hex(TEXT("#FFFFFF40")));
			Set(EStyleColor::Highlight, Hex(TEXT("#0070E0FF")));
			Set(EStyleColor::Primary, Hex(TEXT("#0070E0FF")));
			Set(EStyleColor::PrimaryHover, Hex(TEXT("#0E86FFFF")));
			Set(EStyleColor::PrimaryPress, Hex(TEXT("#0050A0FF")));
			Set(EStyleColor::Secondary, Hex(TEXT("#383838FF")));
			Set(EStyleColor::Foreground, Hex(TEXT("#C0C0C0FF")));
			Set(EStyleColor::ForegroundHover, Hex(TEXT("#FFFFFFFF")));
			Set(EStyleColor::ForegroundInverted, Get(EStyleColor::Input));
			Set(EStyleColor::ForegroundHeader, Hex(TEXT("#C8C8C8FF")));
			Set(EStyleColor::Select, Get(EStyleColor::Primary));
			Set(EStyleColor::SelectInactive, Hex(TEXT("#40576F")));
			Set(EStyleColor::SelectParent, Hex(TEXT("#2C323AFF")));
			Set(EStyleColor::SelectHover, Get(EStyleColor::Panel));
			Set(EStyleColor::Notifications, Hex(TEXT("464B50FF")));
			Set(EStyleColor::AccentBlue, Hex(TEXT("#26BBFFFF")));
			Set(EStyleColor::AccentPurple, Hex(TEXT("#A139BFFF")));
			Set(EStyleColor::AccentPink, Hex(TEXT("#FF729CFF")));
			Set(EStyleColor::AccentRed, Hex(TEXT("#FF4040FF")));
			Set(EStyleColor::AccentOrange, Hex(TEXT("#FE9B07FF")));
			Set(EStyleColor::AccentYellow, Hex(TEXT("#FFDC1AFF")));
			Set(EStyleColor::AccentGreen, Hex(TEXT("#8BC24AFF")));
			Set(EStyleColor::AccentBrown, Hex(TEXT("#804D39FF")));
			Set(EStyleColor::AccentBlack, Hex(TEXT("#242424FF")));
			Set(EStyleColor::AccentGray, Hex(TEXT("#808080FF")));
			Set(EStyleColor::AccentWhite, Hex(TEXT("#FFFFFFFF")));
			Set(EStyleColor::AccentFolder, Hex(TEXT("#B68F55FF")));
			Set(EStyleColor::Warning, Hex(TEXT("#FFB800FF")));
			Set(EStyleColor::Error, Hex(TEXT("#EF3535FF")));
			Set(EStyleColor::Success, Hex(TEXT("#1FE44BFF")));
		}

		void Set(EStyleColor Id, const FLinearColor& Color) { Colors[static_cast<int32>(Id)] = Color; }
		const FLinearColor& Get(EStyleColor Id) const { return Colors[static_cast<int32>(Id)]; }
	};
}

const FSlateColor FStyleColors::Transparent = FSlateColor(FLinearColor::Transparent);
const FSlateColor FStyleColors::Black = EStyleColor::Black;
const FSlateColor FStyleColors::Title = EStyleColor::Title;
const FSlateColor FStyleColors::WindowBorder = EStyleColor::WindowBorder;
const FSlateColor FStyleColors::Foldout = EStyleColor::Foldout;
const FSlateColor FStyleColors::Input = EStyleColor::Input;
const FSlateColor FStyleColors::InputOutline = EStyleColor::InputOutline;
const FSlateColor FStyleColors::Recessed = EStyleColor::Recessed;
const FSlateColor FStyleColors::Background = EStyleColor::Background;
const FSlateColor FStyleColors::Panel = EStyleColor::Panel;
const FSlateColor FStyleColors::Header = EStyleColor::Header;
const FSlateColor FStyleColors::Dropdown = EStyleColor::Dropdown;
const FSlateColor FStyleColors::DropdownOutline = EStyleColor::DropdownOutline;
const FSlateColor FStyleColors::Hover = EStyleColor::Hover;
const FSlateColor FStyleColors::Hover2 = EStyleColor::Hover2;
const FSlateColor FStyleColors::White = EStyleColor::White;
const FSlateColor FStyleColors::White25 = EStyleColor::White25;
const FSlateColor FStyleColors::Highlight = EStyleColor::Highlight;
const FSlateColor FStyleColors::Primary = EStyleColor::Primary;
const FSlateColor FStyleColors::PrimaryHover = EStyleColor::PrimaryHover;
const FSlateColor FStyleColors::PrimaryPress = EStyleColor::PrimaryPress;
const FSlateColor FStyleColors::Secondary = EStyleColor::Secondary;
const FSlateColor FStyleColors::Foreground = EStyleColor::Foreground;
const FSlateColor FStyleColors::ForegroundHover = EStyleColor::ForegroundHover;
const FSlateColor FStyleColors::ForegroundInverted = EStyleColor::ForegroundInverted;
const FSlateColor FStyleColors::ForegroundHeader = EStyleColor::ForegroundHeader;
const FSlateColor FStyleColors::Select = EStyleColor::Select;
const FSlateColor FStyleColors::SelectInactive = EStyleColor::SelectInactive;
const FSlateColor FStyleColors::SelectParent = EStyleColor::SelectParent;
const FSlateColor FStyleColors::SelectHover = EStyleColor::SelectHover;
const FSlateColor FStyleColors::Notifications = EStyleColor::Notifications;
const FSlateColor FStyleColors::AccentBlue = EStyleColor::AccentBlue;
const FSlateColor FStyleColors::AccentPurple = EStyleColor::AccentPurple;
const FSlateColor FStyleColors::AccentPink = EStyleColor::AccentPink;
const FSlateColor FStyleColors::AccentRed = EStyleColor::AccentRed;
const FSlateColor FStyleColors::AccentOrange = EStyleColor::AccentOrange;
const FSlateColor FStyleColors::AccentYellow = EStyleColor::AccentYellow;
const FSlateColor FStyleColors::AccentGreen = EStyleColor::AccentGreen;
const FSlateColor FStyleColors::AccentBrown = EStyleColor::AccentBrown;
const FSlateColor FStyleColors::AccentBlack = EStyleColor::AccentBlack;
const FSlateColor FStyleColors::AccentGray = EStyleColor::AccentGray;
const FSlateColor FStyleColors::AccentWhite = EStyleColor::AccentWhite;
const FSlateColor FStyleColors::AccentFolder = EStyleColor::AccentFolder;
const FSlateColor FStyleColors::Warning = EStyleColor::Warning;
const FSlateColor FStyleColors::Error = EStyleColor::Error;
const FSlateColor FStyleColors::Success = EStyleColor::Success;

const FLinearColor& FSlateColor::GetColorFromTable() const
{
	static const FDarkTheme Theme;
	return Theme.Get(ColorTableId);
}

const FLinearColor& FSlateColor::GetColor(const FWidgetStyle& InWidgetStyle) const
{
	switch (ColorUseRule)
	{
		case ESlateColorStylingMode::UseColor_Specified:
			return SpecifiedColor;
		case ESlateColorStylingMode::UseColor_ColorTable:
			return GetColorFromTable();
		case ESlateColorStylingMode::UseColor_Foreground_Subdued:
			return InWidgetStyle.GetSubduedForegroundColor();
		default:
			return InWidgetStyle.GetForegroundColor();
	}
}
