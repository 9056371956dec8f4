#pragma once

#include "CoreMinimal.h"

/** The sender option update written step by step, every pair compared: the reference for the fast one. */
struct FSenderNameModel
{
	TArray<TSharedPtr<FString>> Options;
	FString UseFirstAvailableSenderOption = TEXT("Use first available sender");
	bool bLost = false;

	TArray<TSharedPtr<FString>> Update(const TArray<FString>& LiveNames, const FString& CurrentName, bool bUseFirstAvailableSender)
	{
		if (Options.IsEmpty())
		{
			Options.Add(MakeShared<FString>(UseFirstAvailableSenderOption));
		}
		bool bFoundCurrent = false;
		for (const FString& LiveName : LiveNames)
		{
			if (LiveName.Equals(CurrentName))
			{
				bFoundCurrent = true;
			}
			bool bListed = false;
			for (int32 Index = 1; Index < Options.Num(); ++Index)
			{
				bListed |= Options[Index]->Equals(LiveName);
			}
			if (!bListed)
			{
				Options.Add(MakeShared<FString>(LiveName));
			}
		}
		bLost = !bUseFirstAvailableSender && !bFoundCurrent;

		bool bAddCurrent = true;
		TArray<TSharedPtr<FString>> Removed;
		for (int32 Index = 1; Index < Options.Num(); ++Index)
		{
			if (Options[Index]->Equals(CurrentName))
			{
				bAddCurrent = false;
				continue;
			}
			bool bLive = false;
			for (const FString& LiveName : LiveNames)
			{
				bLive |= Options[Index]->Equals(LiveName);
			}
			if (!bLive)
			{
				Removed.Add(Options[Index]);
			}
		}
		for (const TSharedPtr<FString>& Entry : Removed)
		{
			Options.Remove(Entry);
		}
		if (bAddCurrent && !CurrentName.Equals(UseFirstAvailableSenderOption))
		{
			Options.Add(MakeShared<FString>(CurrentName));
		}
		return Options;
	}
};
