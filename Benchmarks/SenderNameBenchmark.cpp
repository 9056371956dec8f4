#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "SourceListControls.h"
#include "Support/SenderNameModel.h"

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

	const FString StoredName = TEXT("Gone sender");

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

BENCHMARK(ModuleUpdate)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(StepByStepModel)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
