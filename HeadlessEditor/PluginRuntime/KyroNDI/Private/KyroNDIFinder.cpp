#include "KyroNDIFinder.h"

#include "HeadlessNDISources.h"

namespace
{
	TArray<FNDISource>& CurrentSources()
	{
		static TArray<FNDISource> Sources;
		return Sources;
	}
}

FKyroNDIFinder* FKyroNDIFinder::Get()
{
	static FKyroNDIFinder Finder;
	return &Finder;
}

TArray<FNDISource> FKyroNDIFinder::GetCurrentSources() const
{
	return CurrentSources();
}

void UE::Headless::SetNDISources(TArray<FNDISource> Sources)
{
	CurrentSources() = MoveTemp(Sources);
}
