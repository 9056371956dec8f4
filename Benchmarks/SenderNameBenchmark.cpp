#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "DetailsViewDriver.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "KyroSpoutReceiverManager.h"
#include "SourceListControls.h"
#include "SourceListExchange.h"
#include "Support/SenderNameModel.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"

#include <benchmark/benchmark.h>

namespace
{
	/** N live senders and a stored name that is not among them (the lost case: the full update runs). */
	TArray<FString> MakeLiveNames(int32 Count)
	{
		TArray<FString> Names;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Names.Add(FString::Printf(TEXT("Studio sender %d"), Index));
		}
		return Names;
	}

	/** The same senders, but the one in the middle has gone and another has come up at the end. */
	TArray<FString> MakeChangedLiveNames(int32 Count)
	{
		TArray<FString> Names = MakeLiveNames(Count);
		Names.RemoveAt(Count / 2);
		Names.Add(TEXT("Late sender"));
		return Names;
	}

	const FString StoredName = TEXT("Gone sender");

	/**
	 * A Spout receiver shown in a details view, with the text block of its sender picker. Reading
	 * that text runs the customisation's GetCurrentItemLabel, as the panel's poll does every frame.
	 */
	class FShownSenderPicker
	{
	public:
		FShownSenderPicker()
		{
			FSpoutActiveSenderNameList::Get().SenderNameOptions.Empty();
			AKyroSpoutReceiverManager* Receiver = GEditor->GetEditorWorldContext().World()->SpawnActor<AKyroSpoutReceiverManager>();
			Receiver->Receiver.Name = StoredName;
			Receiver->Receiver.UseFirstAvailableSender = false;
			Driver.SetObjects({Receiver});
			const TSharedPtr<FHeadlessDetailRow> Row = Driver.FindCustomRow(TEXT("Name"));
			check(Row.IsValid());
			const TSharedPtr<SWidget> Combo = FDetailsViewDriver::FindValueWidget(*Row, TEXT("SComboBox"));
			check(Combo.IsValid());
			Label = FWidgetDriver::Find<STextBlock>(Combo.ToSharedRef(), TEXT("STextBlock"));
			check(Label.IsValid());
		}

		~FShownSenderPicker() { HeadlessSourceLists::Reset(); }

		/** One evaluation of the label. */
		const FText& EvaluateLabel() const { return Label->GetText(); }

	private:
		FHeadlessEditorSession Session;
		FDetailsViewDriver Driver;
		TSharedPtr<STextBlock> Label;
	};

	/** The label evaluated frame after frame while the live senders stay the same. */
	void LabelSteady(benchmark::State& State)
	{
		const int32 Count = static_cast<int32>(State.range(0));
		HeadlessSourceLists::SetSpoutSenderNames(MakeLiveNames(Count));
		FShownSenderPicker Picker;
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(Picker.EvaluateLabel());
		}
	}

	/** The label evaluated frame after frame while one live sender goes and another comes each frame. */
	void LabelChanging(benchmark::State& State)
	{
		const int32 Count = static_cast<int32>(State.range(0));
		HeadlessSourceLists::SetSpoutSenderNames(MakeLiveNames(Count));
		TArray<FString> OtherNames = MakeChangedLiveNames(Count);
		FShownSenderPicker Picker;
		for (auto _ : State)
		{
			HeadlessSourceLists::ExchangeSpoutSenderNames(OtherNames);
			benchmark::DoNotOptimize(Picker.EvaluateLabel());
		}
	}

	void ModuleUpdate(benchmark::State& State)
	{
		HeadlessSourceLists::SetSpoutSenderNames(MakeLiveNames(static_cast<int32>(State.range(0))));
		FSpoutActiveSenderNameList& List = FSpoutActiveSenderNameList::Get();
		List.SenderNameOptions.Empty();
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(List.UpdateSenderNameOptions(StoredName, false));
		}
		HeadlessSourceLists::Reset();
	}

	void StepByStepModel(benchmark::State& State)
	{
		const TArray<FString> Live = MakeLiveNames(static_cast<int32>(State.range(0)));
		FSenderNameModel Model;
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(Model.Update(Live, StoredName, false));
		}
	}
}

BENCHMARK(LabelSteady)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LabelChanging)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ModuleUpdate)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(StepByStepModel)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
