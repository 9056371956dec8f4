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

#include <chrono>
#include <map>

namespace
{
	typedef std::chrono::steady_clock FClock;

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
	 * that text runs the picker's label getter, as the panel's poll does every frame.
	 */
	class FShownSenderPicker
	{
	public:
		FShownSenderPicker()
		{
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

	/**
	 * Seconds per update of the step-by-step rules (Tests/Support/SenderNameModel.h) over the given
	 * live lists in turn, measured once per benchmark and size: the slow sizes take seconds.
	 */
	double MeasureModel(const char* Benchmark, const TArray<TArray<FString>>& LiveLists)
	{
		static std::map<std::pair<std::string, int32>, double> Measured;
		const std::pair<std::string, int32> Key(Benchmark, LiveLists[0].Num());
		if (const auto Found = Measured.find(Key); Found != Measured.end())
		{
			return Found->second;
		}
		FSenderNameModel Model;
		Model.Update(LiveLists[0], StoredName, false);
		int32 Updates = 0;
		const FClock::time_point Start = FClock::now();
		do
		{
			benchmark::DoNotOptimize(Model.Update(LiveLists[Updates % LiveLists.Num()], StoredName, false));
			++Updates;
		} while (Updates < 2 || FClock::now() - Start < std::chrono::milliseconds(200));
		return Measured[Key] = std::chrono::duration<double>(FClock::now() - Start).count() / Updates;
	}

	/** Adds the ratio bar: how many times longer the step-by-step rules take than one label evaluation. */
	void ReportModelRatio(benchmark::State& State, FClock::duration Elapsed, double ModelSeconds)
	{
		const double LabelSeconds = std::chrono::duration<double>(Elapsed).count() / static_cast<double>(State.iterations());
		State.counters["ModelRatio"] = ModelSeconds / LabelSeconds;
	}

	/** The label evaluated frame after frame while the live senders stay the same. */
	void LabelSteady(benchmark::State& State)
	{
		const int32 Count = static_cast<int32>(State.range(0));
		const TArray<FString> Live = MakeLiveNames(Count);
		HeadlessSourceLists::SetSpoutSenderNames(Live);
		FShownSenderPicker Picker;
		const FClock::time_point Start = FClock::now();
		for (auto _ : State)
		{
			benchmark::DoNotOptimize(Picker.EvaluateLabel());
		}
		ReportModelRatio(State, FClock::now() - Start, MeasureModel("LabelSteady", {Live}));
	}

	/** The label evaluated frame after frame while one live sender goes and another comes each frame. */
	void LabelChanging(benchmark::State& State)
	{
		const int32 Count = static_cast<int32>(State.range(0));
		const TArray<FString> Live = MakeLiveNames(Count);
		const TArray<FString> Changed = MakeChangedLiveNames(Count);
		HeadlessSourceLists::SetSpoutSenderNames(Live);
		TArray<FString> OtherNames = Changed;
		FShownSenderPicker Picker;
		const FClock::time_point Start = FClock::now();
		for (auto _ : State)
		{
			HeadlessSourceLists::ExchangeSpoutSenderNames(OtherNames);
			benchmark::DoNotOptimize(Picker.EvaluateLabel());
		}
		ReportModelRatio(State, FClock::now() - Start, MeasureModel("LabelChanging", {Changed, Live}));
	}
}

BENCHMARK(LabelSteady)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LabelChanging)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
