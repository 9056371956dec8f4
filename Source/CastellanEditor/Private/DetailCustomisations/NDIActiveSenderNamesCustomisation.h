#pragma once

#include "ActiveSenderNamesCustomisation.h"
#include "CoreMinimal.h"

/** The NDI sources the finder sees now, for the receiver's sender picker. */
struct FNDISenderSource
{
	static inline const FName KindPropertyName = TEXT("NDISoundWave");
	static TArray<FString> GetLiveSenderNames();
};

using FNDIActiveSenderNameList = TActiveSenderNameList<FNDISenderSource>;

/** The sender picker of "KyroNDIReceiverInterface". */
class FNDIActiveSenderNamesCustomisation : public TActiveSenderNamesCustomisation<FNDISenderSource>
{
public:
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();
};
