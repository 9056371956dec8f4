// Copyright Nimbrel. All Rights Reserved.

#include "NDIActiveSenderNamesCustomisation.h"

#include "KyroNDIFinder.h"

FNDIActiveSenderNameList& FNDIActiveSenderNameList::Get()
{
	static TSharedRef<FNDIActiveSenderNameList> Instance = MakeShared<FNDIActiveSenderNameList>();
	return *Instance;
}

TArray<FString> FNDIActiveSenderNameList::GetLiveSenderNames() const
{
	const TArray<FNDISource> Sources = FKyroNDIFinder::Get()->GetCurrentSources();
	TArray<FString> Names;
	Names.Reserve(Sources.Num());
	for (const FNDISource& Source : Sources)
	{
		Names.Add(Source.Name);
	}
	return Names;
}

FNDIActiveSenderNamesCustomisation::FNDIActiveSenderNamesCustomisation()
	: FActiveSenderNamesCustomisation(FNDIActiveSenderNameList::Get(), TEXT("NDISoundWave"))
{
}

TSharedRef<IPropertyTypeCustomization> FNDIActiveSenderNamesCustomisation::MakeInstance()
{
	return MakeShareable(new FNDIActiveSenderNamesCustomisation);
}
