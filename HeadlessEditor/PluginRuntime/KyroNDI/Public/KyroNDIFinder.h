#pragma once

#include "CoreMinimal.h"

/** An NDI source seen on the network. */
struct FNDISource
{
	FString Name;
};

/** Watches the network for NDI sources. */
class KYRONDI_API FKyroNDIFinder
{
public:
	/** The process-wide finder. */
	static FKyroNDIFinder* Get();

	/** The sources seen now, in discovery order. */
	TArray<FNDISource> GetCurrentSources() const;
};
