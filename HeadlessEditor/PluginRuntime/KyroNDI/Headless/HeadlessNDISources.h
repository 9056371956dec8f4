#pragma once

#include "CoreMinimal.h"
#include "KyroNDIFinder.h"

/** The NDI sources on the headless machine's network: those the instruments announce. */
namespace UE::Headless
{
	/** The sources FKyroNDIFinder reports from now on, in discovery order. */
	KYRONDI_API void SetNDISources(TArray<FNDISource> Sources);
}
