#include "NDIActiveSenderNamesCustomisation.h"

#include "KyroNDIFinder.h"

TArray<FString> FNDISenderSource::GetLiveSenderNames()
{
	TArray<FString> Names;
	for (const FNDISource& Source : FKyroNDIFinder::Get()->GetCurrentSources())
	{
		Names.Add(Source.Name);
	}
	return Names;
}

TSharedRef<IPropertyTypeCustomization> FNDIActiveSenderNamesCustomisation::MakeInstance()
{
	return MakeShareable(new FNDIActiveSenderNamesCustomisation);
}
