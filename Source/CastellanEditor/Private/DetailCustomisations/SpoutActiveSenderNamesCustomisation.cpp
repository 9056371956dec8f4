// Copyright Nimbrel. All Rights Reserved.

#include "SpoutActiveSenderNamesCustomisation.h"

#include "KyroSpoutNames.h"

FSpoutActiveSenderNameList& FSpoutActiveSenderNameList::Get()
{
	static TSharedRef<FSpoutActiveSenderNameList> Instance = MakeShared<FSpoutActiveSenderNameList>();
	return *Instance;
}

TArray<FString> FSpoutActiveSenderNameList::GetLiveSenderNames() const
{
	return FKyroSpoutNames::GetActiveSenderNames();
}

FSpoutActiveSenderNamesCustomisation::FSpoutActiveSenderNamesCustomisation()
	: FActiveSenderNamesCustomisation(FSpoutActiveSenderNameList::Get(), TEXT("bFixGamma"))
{
}

TSharedRef<IPropertyTypeCustomization> FSpoutActiveSenderNamesCustomisation::MakeInstance()
{
	return MakeShareable(new FSpoutActiveSenderNamesCustomisation);
}
