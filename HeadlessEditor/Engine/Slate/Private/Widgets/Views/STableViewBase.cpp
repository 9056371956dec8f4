#include "Widgets/Views/STableViewBase.h"

STableViewBase::STableViewBase() = default;

void STableViewBase::RequestListRefresh()
{
	// The engine makes the rows on its next tick; the headless editor has no frames, so it makes them now.
	RebuildRows();
}
