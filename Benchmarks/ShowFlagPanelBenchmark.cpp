#include "DetailsViewDriver.h"
#include "HeadlessEditorSession.h"
#include "KyroCaptureComponent.h"
#include "ShowFlags.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SCheckBox.h"

#include <benchmark/benchmark.h>

namespace
{
	/** The 39 flags the panel offers, by 5.1 index. */
	const uint32 OfferedShowFlags[] = {131, 132, 125, 15, 121, 119, 77, 79, 118, 81, 96, 97, 69, 70, 71, 75, 148, 135, 14, 76, 143, 157, 6, 155, 68, 129, 0, 49, 54, 67, 4, 5, 34, 1, 2, 7, 123, 44, 178};

	/** Every check box of every show-flag group the panel built. */
	TArray<TSharedRef<SCheckBox>> CollectShowFlagBoxes(const FHeadlessDetailsView& View)
	{
		TArray<TSharedRef<SCheckBox>> Boxes;
		for (const TSharedRef<FHeadlessDetailCategory>& Category : View.GetCategories())
		{
			for (const TSharedRef<FHeadlessDetailRow>& Row : Category->Rows)
			{
				if (Row->Kind != FHeadlessDetailRow::EKind::Group)
				{
					continue;
				}
				for (const TSharedRef<FHeadlessDetailRow>& FlagRow : Row->Children)
				{
					Boxes.Add(StaticCastSharedRef<SCheckBox>(FlagRow->Widgets.ValueContent().Widget));
				}
			}
		}
		return Boxes;
	}

	/** One frame of the panel: every box reads its state, as drawing it does. */
	void BM_ShowFlagPanelFrame(benchmark::State& State)
	{
		FHeadlessEditorSession Session;
		const int32 NumComponents = (int32)State.range(0);

		TArray<UObject*> Components;
		for (int32 Index = 0; Index < NumComponents; ++Index)
		{
			UKyroCaptureComponent* Component = NewObject<UKyroCaptureComponent>(GetTransientPackage());
			Components.Add(Component);
		}

		TSharedRef<FHeadlessDetailsView> View = MakeShared<FHeadlessDetailsView>();
		View->SetObjects(Components);
		const TArray<TSharedRef<SCheckBox>> Boxes = CollectShowFlagBoxes(*View);

		// Every component overrides every offered flag, all agreeing, so no box can stop its scan early.
		for (UObject* Object : Components)
		{
			UKyroCaptureComponent* Component = CastChecked<UKyroCaptureComponent>(Object);
			for (const uint32 FlagIndex : OfferedShowFlags)
			{
				FEngineShowFlagsSetting& Setting = Component->ShowFlagSettings.AddDefaulted_GetRef();
				Setting.ShowFlagName = FEngineShowFlags::FindNameByIndex(FlagIndex);
				Setting.Enabled = (FlagIndex % 2) == 0;
			}
		}

		for (auto _ : State)
		{
			for (const TSharedRef<SCheckBox>& Box : Boxes)
			{
				benchmark::DoNotOptimize(Box->GetCheckedState());
			}
		}
		State.counters["Boxes"] = (double)Boxes.Num();
	}
}

BENCHMARK(BM_ShowFlagPanelFrame)->Arg(1)->Arg(16)->Arg(64)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
