#pragma once

#include "ActiveSenderNamesCustomisation.h"
#include "CoreMinimal.h"

/** The Spout senders active on the machine, for the receiver's sender picker. */
struct FSpoutSenderSource
{
	static inline const FName KindPropertyName = TEXT("bFixGamma");
	static TArray<FString> GetLiveSenderNames();
};

using FSpoutActiveSenderNameList = TActiveSenderNameList<FSpoutSenderSource>;

/** The sender picker of "KyroSpoutReceiverInterface". */
class FSpoutActiveSenderNamesCustomisation : public TActiveSenderNamesCustomisation<FSpoutSenderSource>
{
public:
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();
};
