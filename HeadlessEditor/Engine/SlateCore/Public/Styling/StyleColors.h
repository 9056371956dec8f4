#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"

/** The colours of the editor's theme, by role. */
enum class EStyleColor : uint8
{
	Black,
	Background,
	Title,
	WindowBorder,
	Foldout,
	Input,
	InputOutline,
	Recessed,
	Panel,
	Header,
	Dropdown,
	DropdownOutline,
	Hover,
	Hover2,
	White,
	White25,
	Highlight,
	Primary,
	PrimaryHover,
	PrimaryPress,
	Secondary,
	Foreground,
	ForegroundHover,
	ForegroundInverted,
	ForegroundHeader,
	Select,
	SelectInactive,
	SelectParent,
	SelectHover,
	Notifications,
	AccentBlue,
	AccentPurple,
	AccentPink,
	AccentRed,
	AccentOrange,
	AccentYellow,
	AccentGreen,
	AccentBrown,
	AccentBlack,
	AccentGray,
	AccentWhite,
	AccentFolder,
	Warning,
	Error,
	Success,
	User1,
	User2,
	User3,
	User4,
	User5,
	User6,
	User7,
	User8,
	User9,
	User10,
	User11,
	User12,
	User13,
	User14,
	User15,
	User16,
	MAX
};

/** The theme's colours, to give to brushes and widgets; they follow the active theme when drawn. */
struct SLATECORE_API FStyleColors
{
	static const FSlateColor Transparent;
	static const FSlateColor Black;
	static const FSlateColor Title;
	static const FSlateColor WindowBorder;
	static const FSlateColor Foldout;
	static const FSlateColor Input;
	static const FSlateColor InputOutline;
	static const FSlateColor Recessed;
	static const FSlateColor Background;
	static const FSlateColor Panel;
	static const FSlateColor Header;
	static const FSlateColor Dropdown;
	static const FSlateColor DropdownOutline;
	static const FSlateColor Hover;
	static const FSlateColor Hover2;
	static const FSlateColor White;
	static const FSlateColor White25;
	static const FSlateColor Highlight;
	static const FSlateColor Primary;
	static const FSlateColor PrimaryHover;
	static const FSlateColor PrimaryPress;
	static const FSlateColor Secondary;
	static const FSlateColor Foreground;
	static const FSlateColor ForegroundHover;
	static const FSlateColor ForegroundInverted;
	static const FSlateColor ForegroundHeader;
	static const FSlateColor Select;
	static const FSlateColor SelectInactive;
	static const FSlateColor SelectParent;
	static const FSlateColor SelectHover;
	static const FSlateColor Notifications;
	static const FSlateColor AccentBlue;
	static const FSlateColor AccentPurple;
	static const FSlateColor AccentPink;
	static const FSlateColor AccentRed;
	static const FSlateColor AccentOrange;
	static const FSlateColor AccentYellow;
	static const FSlateColor AccentGreen;
	static const FSlateColor AccentBrown;
	static const FSlateColor AccentBlack;
	static const FSlateColor AccentGray;
	static const FSlateColor AccentWhite;
	static const FSlateColor AccentFolder;
	static const FSlateColor Warning;
	static const FSlateColor Error;
	static const FSlateColor Success;
};
