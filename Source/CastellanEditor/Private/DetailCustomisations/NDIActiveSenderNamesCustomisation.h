// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "ActiveSenderNamesCustomisation.h"
#include "CoreMinimal.h"

/** The NDI sources the finder sees now, shared by every NDI sender picker. */
class FNDIActiveSenderNameList : public FActiveSenderNameList
{
public:
	static FNDIActiveSenderNameList& Get();

protected:
	virtual TArray<FString> GetLiveSenderNames() const override;
};

/** The sender picker of "KyroNDIReceiverInterface". */
class FNDIActiveSenderNamesCustomisation : public FActiveSenderNamesCustomisation
{
public:
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();

private:
	FNDIActiveSenderNamesCustomisation();
};
