#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "IDetailCustomization.h"
#include "IDetailGroup.h"
#include "KyroScreenCapture.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Rendering/DrawElementPayloads.h"
#include "Rendering/DrawElements.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{
	/** What the layout below puts in each value column, and the widths its rows allow. */
	struct FValueBoxes
	{
		TSharedPtr<SBox> Narrow;
		TSharedPtr<SBox> Wide;
		TSharedPtr<SBox> Fitting;
	};

	/**
	 * One category of custom rows with known widths: values narrower than, wider than and within the
	 * rows' 150 to 220 range, a row whose visibility a test switches, a closed group of two rows, and
	 * an advanced row; then a category of one advanced row. The default categories are hidden.
	 */
	class FLayoutCustomisation : public IDetailCustomization
	{
	public:
		FLayoutCustomisation(FValueBoxes& InBoxes, const TSharedRef<EVisibility>& InSwitchedVisibility)
			: Boxes(InBoxes)
			, SwitchedVisibility(InSwitchedVisibility)
		{
		}

		using IDetailCustomization::CustomizeDetails;
		virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override
		{
			DetailBuilder.HideCategory(TEXT("Screen Capture"));
			IDetailCategoryBuilder& Category = DetailBuilder.EditCategory(TEXT("Layout"));
			AddValueRow(Category, TEXT("Narrow"), 40.0f, Boxes.Narrow);
			AddValueRow(Category, TEXT("Wide"), 600.0f, Boxes.Wide);
			AddValueRow(Category, TEXT("Fitting"), 200.0f, Boxes.Fitting);
			const TSharedRef<EVisibility> Switched = SwitchedVisibility;
			Category.AddCustomRow(FText::FromString(TEXT("Switched"))).Visibility(TAttribute<EVisibility>::CreateLambda([Switched]()
																					  { return *Switched; }))
				.NameContent()[Label(TEXT("Switched"))];
			Category.AddCustomRow(FText::FromString(TEXT("After"))).NameContent()[Label(TEXT("After"))];
			IDetailGroup& Group = Category.AddGroup(TEXT("Group"), FText::FromString(TEXT("Group")));
			Group.AddWidgetRow().NameContent()[Label(TEXT("Inside"))].ValueContent()[Label(TEXT("Inside value"))];
			Group.AddWidgetRow().NameContent()[Label(TEXT("Inside too"))];
			Category.AddCustomRow(FText::FromString(TEXT("Expert")), true).NameContent()[Label(TEXT("Expert"))];
			DetailBuilder.EditCategory(TEXT("Experts only")).AddCustomRow(FText::FromString(TEXT("Only expert")), true).NameContent()[Label(TEXT("Only expert"))];
		}

	private:
		static TSharedRef<STextBlock> Label(const TCHAR* Text) { return SNew(STextBlock).Font(IDetailLayoutBuilder::GetDetailFont()).Text(FText::FromString(Text)); }

		static void AddValueRow(IDetailCategoryBuilder& Category, const TCHAR* Name, float ContentWidth, TSharedPtr<SBox>& OutBox)
		{
			Category.AddCustomRow(FText::FromString(Name))
				.NameContent()[Label(Name)]
				.ValueContent()
				.MinDesiredWidth(150.0f)
				.MaxDesiredWidth(220.0f)[SAssignNew(OutBox, SBox).WidthOverride(ContentWidth).HeightOverride(16.0f)];
		}

		FValueBoxes& Boxes;
		TSharedRef<EVisibility> SwitchedVisibility;
	};

	/** Where the texts of a painted view were drawn, by text. */
	TMap<FString, FSlateRect> GetTextRects(const FSlateWindowElementList& Elements)
	{
		TMap<FString, FSlateRect> Rects;
		for (const FSlateDrawElement& Element : Elements.GetUncachedDrawElements())
		{
			if (Element.GetElementType() == EElementType::ET_Text)
			{
				const FVector2D Size = Element.GetLocalSize() * static_cast<double>(Element.GetScale());
				Rects.Add(FString(Element.GetDataPayload<FSlateTextPayload>().GetText()), FSlateRect(Element.GetPosition(), Element.GetPosition() + Size));
			}
		}
		return Rects;
	}

	class DetailsViewLayout : public ::testing::Test
	{
	protected:
		DetailsViewLayout()
			: Session(MakeOptions())
		{
			PropertyModule().RegisterCustomClassLayout(TEXT("KyroScreenCapture"), FOnGetDetailCustomizationInstance::CreateLambda([this]()
																					  { return TSharedRef<IDetailCustomization>(MakeShared<FLayoutCustomisation>(Boxes, SwitchedVisibility)); }));
			Capture = GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroScreenCapture>();
		}

		virtual ~DetailsViewLayout() override { PropertyModule().UnregisterCustomClassLayout(TEXT("KyroScreenCapture")); }

		static FHeadlessEditorOptions MakeOptions()
		{
			FHeadlessEditorOptions Options;
			Options.bStartEditorModule = false;
			return Options;
		}

		static FPropertyEditorModule& PropertyModule() { return FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor")); }

		/** Lays the view out and paints it in a window of that size, and returns where its texts went. */
		static TMap<FString, FSlateRect> Paint(const FDetailsViewDriver& Driver, float Width, float Height = 400.0f)
		{
			FSlateWindowElementList Elements(nullptr);
			FWidgetRenderer::PaintWidget(Driver.GetDetailsView(), FVector2D(Width, Height), Elements);
			return GetTextRects(Elements);
		}

		static FSlateRect PaintedRect(const TSharedPtr<SWidget>& Widget) { return Widget->GetPaintSpaceGeometry().GetLayoutBoundingRect(); }

		/** The expander arrow of the row that shows this label. */
		static TSharedRef<SButton> FindArrow(const FDetailsViewDriver& Driver, const FString& Label)
		{
			for (const TSharedRef<SWidget>& Row : FWidgetDriver::FindAllWidgets(Driver.GetDetailsView(), TEXT("")))
			{
				const FString Type = Row->GetTypeAsString();
				if ((Type == TEXT("SDetailSingleItemRow") || Type == TEXT("SDetailCategoryTableRow") || Type == TEXT("SAdvancedDropdownRow")) && FWidgetDriver::FindWidget(Row, TEXT("STextBlock"), Label).IsValid())
				{
					return StaticCastSharedRef<SButton>(FWidgetDriver::FindWidget(Row, TEXT("SButton")).ToSharedRef());
				}
			}
			checkf(false, TEXT("No row shows %s"), *Label);
			return SNew(SButton);
		}

		FHeadlessEditorSession Session;
		FValueBoxes Boxes;
		TSharedRef<EVisibility> SwitchedVisibility = MakeShared<EVisibility>(EVisibility::Visible);
		AKyroScreenCapture* Capture = nullptr;
	};
}

TEST_F(DetailsViewLayout, NamesAndValuesStartWhereTheColumnWidthSplitsTheRow)
{
	// A row keeps 16 units for the scroll bar at its right and one unit per handle between its three columns.
	const float RowWidth = 480.0f;
	const float SplitRoom = RowWidth - 16.0f - 2.0f;
	for (const float ColumnWidth : {0.6f, 0.5f})
	{
		FDetailsViewArgs Args;
		Args.ColumnWidth = ColumnWidth;
		FDetailsViewDriver Driver({Capture}, Args);
		const TMap<FString, FSlateRect> Texts = Paint(Driver, RowWidth);

		// The name follows the indent (none), 2 units, the 16-unit arrow, 2 units.
		EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Narrow")).Left, 20.0f) << ColumnWidth;
		// The value column starts on the pixel after the name column and its handle, and its content 12 units in.
		const float ValueColumnLeft = std::round(SplitRoom * (1.0f - ColumnWidth) + 1.0f);
		EXPECT_FLOAT_EQ(PaintedRect(Boxes.Narrow).Left, ValueColumnLeft + 12.0f) << ColumnWidth;
		EXPECT_LT(Texts.FindChecked(TEXT("Narrow")).Right, ValueColumnLeft) << ColumnWidth;
		// Name and value share the row's height, centred on it.
		EXPECT_FLOAT_EQ((Texts.FindChecked(TEXT("Narrow")).Top + Texts.FindChecked(TEXT("Narrow")).Bottom) / 2.0f, (PaintedRect(Boxes.Narrow).Top + PaintedRect(Boxes.Narrow).Bottom) / 2.0f) << ColumnWidth;
	}
}

TEST_F(DetailsViewLayout, ValuesAreAsWideAsTheirContentWithinTheRowsMinimumAndMaximum)
{
	FDetailsViewDriver Driver({Capture});
	Paint(Driver, 480.0f);
	EXPECT_FLOAT_EQ(PaintedRect(Boxes.Narrow).GetSize().X, 150.0f);
	EXPECT_FLOAT_EQ(PaintedRect(Boxes.Wide).GetSize().X, 220.0f);
	EXPECT_FLOAT_EQ(PaintedRect(Boxes.Fitting).GetSize().X, 200.0f);

	// In a narrow view the value column bounds them: its width (less the 22-unit right column it gives
	// way to) without the 12 and 2 units around the value and the 5 before the empty extension slot.
	Paint(Driver, 360.0f);
	const float ValueRoom = (360.0f - 16.0f - 2.0f) * 0.6f - 22.0f - 12.0f - 2.0f - 5.0f;
	EXPECT_FLOAT_EQ(PaintedRect(Boxes.Narrow).GetSize().X, 150.0f);
	EXPECT_FLOAT_EQ(PaintedRect(Boxes.Fitting).GetSize().X, ValueRoom);
	EXPECT_FLOAT_EQ(PaintedRect(Boxes.Wide).GetSize().X, ValueRoom);
}

TEST_F(DetailsViewLayout, RowsStackOneBelowTheOtherAndCollapsedRowsTakeNoRoom)
{
	FDetailsViewDriver Driver({Capture});
	TMap<FString, FSlateRect> Texts = Paint(Driver, 480.0f);
	// Each row is 26 units high with a one-unit grid line below it.
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Wide")).Top - Texts.FindChecked(TEXT("Narrow")).Top, 27.0f);
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Switched")).Top - Texts.FindChecked(TEXT("Fitting")).Top, 27.0f);
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("After")).Top - Texts.FindChecked(TEXT("Switched")).Top, 27.0f);

	*SwitchedVisibility = EVisibility::Collapsed;
	Texts = Paint(Driver, 480.0f);
	EXPECT_FALSE(Texts.Contains(TEXT("Switched")));
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("After")).Top - Texts.FindChecked(TEXT("Fitting")).Top, 27.0f);

	// A hidden row keeps its room.
	*SwitchedVisibility = EVisibility::Hidden;
	Texts = Paint(Driver, 480.0f);
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("After")).Top - Texts.FindChecked(TEXT("Fitting")).Top, 54.0f);
}

TEST_F(DetailsViewLayout, ClosedGroupsHideTheirRowsUntilTheirArrowOpensThemIndented)
{
	FDetailsViewDriver Driver({Capture});
	TMap<FString, FSlateRect> Texts = Paint(Driver, 480.0f);
	ASSERT_TRUE(Texts.Contains(TEXT("Group")));
	EXPECT_FALSE(Texts.Contains(TEXT("Inside")));
	EXPECT_FALSE(Texts.Contains(TEXT("Inside too")));

	EXPECT_TRUE(FWidgetDriver::Click(FindArrow(Driver, TEXT("Group"))));
	Texts = Paint(Driver, 480.0f);
	ASSERT_TRUE(Texts.Contains(TEXT("Inside")));
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Inside")).Top - Texts.FindChecked(TEXT("Group")).Top, 27.0f);
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Inside too")).Top - Texts.FindChecked(TEXT("Inside")).Top, 27.0f);
	// One level deeper: 16 units further right than the group's own name.
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Inside")).Left - Texts.FindChecked(TEXT("Group")).Left, 16.0f);
	// The group's rows come before the category's next rows.
	EXPECT_LT(Texts.FindChecked(TEXT("Inside too")).Top, Texts.FindChecked(TEXT("Advanced")).Top);

	EXPECT_TRUE(FWidgetDriver::Click(FindArrow(Driver, TEXT("Group"))));
	EXPECT_FALSE(Paint(Driver, 480.0f).Contains(TEXT("Inside")));
}

TEST_F(DetailsViewLayout, AClosedCategoryShowsItsHeaderOnly)
{
	FDetailsViewDriver Driver({Capture});
	EXPECT_TRUE(FWidgetDriver::Click(FindArrow(Driver, TEXT("Layout"))));
	const TMap<FString, FSlateRect> Texts = Paint(Driver, 480.0f);
	TArray<FString> Shown;
	Texts.GetKeys(Shown);
	Shown.Sort();
	EXPECT_EQ(Shown, TArray<FString>({TEXT("Experts only"), TEXT("Layout")}));
	// The two headers' 27 units each, and the one unit the scroll box keeps below its content.
	Driver.GetDetailsView()->SlatePrepass(1.0f);
	EXPECT_FLOAT_EQ(Driver.GetDetailsView()->GetDesiredSize().Y, 55.0f);
}

TEST_F(DetailsViewLayout, AdvancedRowsShowBelowTheAdvancedExpanderWhenItIsOpened)
{
	FDetailsViewDriver Driver({Capture});
	TMap<FString, FSlateRect> Texts = Paint(Driver, 480.0f);
	ASSERT_TRUE(Texts.Contains(TEXT("Advanced")));
	EXPECT_FALSE(Texts.Contains(TEXT("Expert")));
	EXPECT_GT(Texts.FindChecked(TEXT("Advanced")).Top, Texts.FindChecked(TEXT("Group")).Top);

	EXPECT_TRUE(FWidgetDriver::Click(FindArrow(Driver, TEXT("Advanced"))));
	Texts = Paint(Driver, 480.0f);
	ASSERT_TRUE(Texts.Contains(TEXT("Expert")));
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Expert")).Top - Texts.FindChecked(TEXT("Advanced")).Top, 27.0f);
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Expert")).Left, Texts.FindChecked(TEXT("Narrow")).Left);
}

TEST_F(DetailsViewLayout, ACategoryOfAdvancedRowsOnlyStartsClosedAndShowsThemAllOnceOpened)
{
	FDetailsViewDriver Driver({Capture});
	TMap<FString, FSlateRect> Texts = Paint(Driver, 480.0f);
	ASSERT_TRUE(Texts.Contains(TEXT("Experts only")));
	EXPECT_FALSE(Texts.Contains(TEXT("Only expert")));

	EXPECT_TRUE(FWidgetDriver::Click(FindArrow(Driver, TEXT("Experts only"))));
	Texts = Paint(Driver, 480.0f);
	ASSERT_TRUE(Texts.Contains(TEXT("Only expert")));
	// Below the header and its "Advanced" expander, which cannot hide them.
	EXPECT_FLOAT_EQ(Texts.FindChecked(TEXT("Only expert")).Top - Texts.FindChecked(TEXT("Experts only")).Top, 54.0f);
	const TArray<TSharedRef<SWidget>> Expanders = FWidgetDriver::FindAllWidgets(Driver.GetDetailsView(), TEXT("SAdvancedDropdownRow"));
	ASSERT_EQ(Expanders.Num(), 2);
	EXPECT_FALSE(FWidgetDriver::Click(StaticCastSharedRef<SButton>(FWidgetDriver::FindWidget(Expanders[1], TEXT("SButton")).ToSharedRef())));
	EXPECT_TRUE(Paint(Driver, 480.0f).Contains(TEXT("Only expert")));
}
