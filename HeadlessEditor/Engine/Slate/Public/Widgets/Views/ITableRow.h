#pragma once

#include "CoreMinimal.h"

class SWidget;

/** A row of a list or tree view. */
class ITableRow
{
public:
	virtual ~ITableRow() = default;

	/** @return this table row as a widget */
	virtual TSharedRef<SWidget> AsWidget() = 0;

	/** @return the content of this table row */
	virtual TSharedPtr<SWidget> GetContent() = 0;
};
