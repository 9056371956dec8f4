#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

/**
 * The column widths shared by every row of a details view, as fractions of a row: the name column,
 * the value column, the narrow column at the right, and the name and value columns together for
 * rows that span both.
 */
class FDetailColumnSizeData
{
public:
	FDetailColumnSizeData()
	{
		NameColumnWidth = TAttribute<float>::CreateLambda([this]()
			{ return 1.0f - ValueWidth - RightWidth; });
		ValueColumnWidth = TAttribute<float>::CreateLambda([this]()
			{ return ValueWidth; });
		WholeRowColumnWidth = TAttribute<float>::CreateLambda([this]()
			{ return 1.0f - RightWidth; });
		RightColumnWidth = TAttribute<float>::CreateLambda([this]()
			{ return RightWidth; });
		HoveredSplitterIndex = TAttribute<int32>(INDEX_NONE);
	}

	TAttribute<float> GetNameColumnWidth() const { return NameColumnWidth; }
	TAttribute<float> GetValueColumnWidth() const { return ValueColumnWidth; }
	TAttribute<float> GetWholeRowColumnWidth() const { return WholeRowColumnWidth; }
	TAttribute<float> GetRightColumnWidth() const { return RightColumnWidth; }
	TAttribute<float> GetRightColumnMinWidth() const { return RightColumnMinWidth; }
	/** No handle is hovered in a view without a mouse. */
	TAttribute<int> GetHoveredSplitterIndex() const { return HoveredSplitterIndex; }

	void SetValueColumnWidth(float NewWidth)
	{
		ensure(NewWidth <= 1.0f);
		ValueWidth = NewWidth;
	}

	void SetRightColumnMinWidth(float NewMinWidth) { RightColumnMinWidth = NewMinWidth; }

private:
	float ValueWidth = 0.7f;
	float RightWidth = 0.0f;

	TAttribute<float> NameColumnWidth;
	TAttribute<float> ValueColumnWidth;
	TAttribute<float> WholeRowColumnWidth;
	TAttribute<float> RightColumnWidth;
	TAttribute<float> RightColumnMinWidth;
	TAttribute<int32> HoveredSplitterIndex;
};
