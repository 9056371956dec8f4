#pragma once

#include "CoreMinimal.h"
#include "Widgets/SCompoundWidget.h"

/** The base of list and tree views: it holds the rows it made for the items it shows. */
class SLATE_API STableViewBase : public SCompoundWidget
{
public:
	/** Asks the view to make its rows again from its items. */
	virtual void RequestListRefresh();

protected:
	STableViewBase();

private:
	/** Makes the rows for the items; the view shows them top to bottom. */
	virtual void RebuildRows() = 0;
};
