#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SEditableTextBox.h"

/** A text box for typing a search: a magnifying glass before the text and a button that clears it. */
class SLATE_API SSearchBox : public SEditableTextBox
{
public:
	SLATE_BEGIN_ARGS(SSearchBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FSearchBoxStyle>("SearchBox"))
		, _HintText(NSLOCTEXT("SearchBox", "SearchHint", "Search"))
		, _InitialText()
		, _OnTextChanged()
		, _OnTextCommitted()
		, _SelectAllTextWhenFocused(true)
		{
		}
		/** Style used to draw this search box */
		SLATE_STYLE_ARGUMENT(FSearchBoxStyle, Style)
		/** The text displayed in the SearchBox when no text has been entered */
		SLATE_ATTRIBUTE(FText, HintText)
		/** The text displayed in the SearchBox when it's created */
		SLATE_ATTRIBUTE(FText, InitialText)
		/** Invoked whenever the text changes */
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		/** Invoked whenever the text is committed (e.g. user presses enter) */
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
		/** Whether to select all text when the user clicks to give focus on the widget */
		SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
		/** Minimum width that a text block should be */
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

	private:
		/** The clear button shows only while there is something to clear. */
		EVisibility GetXVisibility() const;
		FReply OnClearSearch();
};
