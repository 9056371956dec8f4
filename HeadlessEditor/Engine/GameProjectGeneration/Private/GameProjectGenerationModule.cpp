#include "GameProjectGenerationModule.h"

#include "HeadlessGameProjectGeneration.h"

namespace UE::Headless
{
	TArray<FString>& GetProjectFilesMadeWriteable()
	{
		static TArray<FString> Files;
		return Files;
	}
}

void FGameProjectGenerationModule::StartupModule()
{
}

void FGameProjectGenerationModule::ShutdownModule()
{
}

void FGameProjectGenerationModule::TryMakeProjectFileWriteable(const FString& ProjectFile)
{
	// There is no source control here: the request is only recorded.
	UE::Headless::GetProjectFilesMadeWriteable().Add(ProjectFile);
}

IMPLEMENT_MODULE(FGameProjectGenerationModule, GameProjectGeneration)
