#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableViewBase.h"

/** The row a list view shows for one of its items. */
template <typename ItemType>
class STableRow : public ITableRow, public SBorder
{
public:
	SLATE_BEGIN_ARGS(STableRow<ItemType>)
		: _Style(&FTableRowStyle::GetDefault())
		, _Padding(FMargin(0))
		, _Content()
		{
		}
		SLATE_STYLE_ARGUMENT(FTableRowStyle, Style)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTableView)
		{
			Style = InArgs._Style;
			OwnerTablePtr = InOwnerTableView;
			SBorder::Construct(SBorder::FArguments()
								   .BorderImage(FStyleDefaults::GetNoBrush())
								   .Padding(InArgs._Padding)
									   [InArgs._Content.Widget]);
		}

		virtual TSharedRef<SWidget> AsWidget() override { return SharedThis(this); }
		virtual TSharedPtr<SWidget> GetContent() override { return GetContentWidget(); }

	protected:
		const FTableRowStyle* Style = nullptr;
		TWeakPtr<STableViewBase> OwnerTablePtr;

	private:
		TSharedPtr<SWidget> GetContentWidget() const { return ChildSlot.GetWidget(); }
};
