#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Types/SlateEnums.h"

class ITableRow;
class STableViewBase;
class SWidget;

/** A button was clicked. */
DECLARE_DELEGATE_RetVal(FReply, FOnClicked);

/** Asks for a widget to show, e.g. a menu's content. */
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent);

/** The text of an editable text widget changed. */
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);

/** The user committed the text of an editable text widget. */
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type);

/** Notification when the user scrolls: the new scroll offset, as a fraction of the content. */
DECLARE_DELEGATE_OneParam(FOnUserScrolled, float);

/** Delegates of list-like widgets, by item type. */
template <typename ArgumentType>
class TSlateDelegates
{
public:
	/** Makes the widget that shows an item. */
	typedef TDelegate<TSharedRef<SWidget>(ArgumentType)> FOnGenerateWidget;

	/** Makes the row a list view shows for an item. */
	typedef TDelegate<TSharedRef<ITableRow>(ArgumentType, const TSharedRef<STableViewBase>&)> FOnGenerateRow;

	/** The selected item changed, and how. */
	typedef TDelegate<void(ArgumentType, ESelectInfo::Type)> FOnSelectionChanged;
};
