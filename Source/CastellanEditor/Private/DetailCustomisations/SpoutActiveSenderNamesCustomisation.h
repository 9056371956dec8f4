// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "ActiveSenderNamesCustomisation.h"
#include "CoreMinimal.h"

/** The Spout senders active on the machine, shared by every Spout sender picker. */
class FSpoutActiveSenderNameList : public FActiveSenderNameList
{
public:
	static FSpoutActiveSenderNameList& Get();

protected:
	virtual TArray<FString> GetLiveSenderNames() const override;
};

/** The sender picker of "KyroSpoutReceiverInterface". */
class FSpoutActiveSenderNamesCustomisation : public FActiveSenderNamesCustomisation
{
public:
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();

private:
	FSpoutActiveSenderNamesCustomisation();
};
