#include "HeadlessLists.h"

namespace
{
	/** Reaches the combo button's protected menu content, as a derived class may. */
	struct FComboButtonAccess : SComboButton
	{
		static const TSharedPtr<SWidget>& GetMenuContent(const SComboButton& ComboButton) { return ComboButton.*(&FComboButtonAccess::MenuContent); }
	};
}

TSharedPtr<SWidget> UE::Headless::GetMenuContent(const SComboButton& ComboButton)
{
	return FComboButtonAccess::GetMenuContent(ComboButton);
}
