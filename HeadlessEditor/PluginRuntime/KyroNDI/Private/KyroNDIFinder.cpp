#include "KyroNDIFinder.h"

#include "KyroNDIRuntimeState.h"

FKyroNDIRuntimeState& FKyroNDIRuntimeState::Get()
{
	static FKyroNDIRuntimeState State;
	return State;
}

FKyroNDIFinder* FKyroNDIFinder::Get()
{
	static FKyroNDIFinder Finder;
	return &Finder;
}

TArray<FNDISource> FKyroNDIFinder::GetCurrentSources() const
{
	return FKyroNDIRuntimeState::Get().CurrentSources;
}
