#include "SpoutActiveSenderNamesCustomisation.h"

#include "KyroSpoutNames.h"

TArray<FString> FSpoutSenderSource::GetLiveSenderNames()
{
	return FKyroSpoutNames::GetActiveSenderNames();
}

TSharedRef<IPropertyTypeCustomization> FSpoutActiveSenderNamesCustomisation::MakeInstance()
{
	return MakeShareable(new FSpoutActiveSenderNamesCustomisation);
}
