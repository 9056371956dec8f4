#include "HeadlessSaveGames.h"
#include "Containers/StringConv.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"

namespace
{
	/** Save slots held in memory for the life of the process. */
	class FMemorySaveGameSystem final : public ISaveGameSystem
	{
	public:
		virtual bool PlatformHasNativeUI() override { return false; }

		virtual bool DoesSaveGameExist(const TCHAR* Name, const int32 UserIndex) override
		{
			return Slots.Contains(MakeKey(Name, UserIndex));
		}

		virtual bool SaveGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data) override
		{
			Slots.Add(MakeKey(Name, UserIndex), Data);
			return true;
		}

		virtual bool LoadGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data) override
		{
			if (const TArray<uint8>* Found = Slots.Find(MakeKey(Name, UserIndex)))
			{
				Data = *Found;
				return true;
			}
			return false;
		}

		virtual bool DeleteGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex) override
		{
			return Slots.Remove(MakeKey(Name, UserIndex)) > 0;
		}

		void Clear() { Slots.Reset(); }

	private:
		// As the engine's generic (desktop) save system: one file per slot name, whatever the user
		// index, and a Windows file name, so names match ignoring case (as FString keys do).
		static FString MakeKey(const TCHAR* Name, int32 UserIndex)
		{
			return FString(Name);
		}

		TMap<FString, TArray<uint8>> Slots;
	};

	FMemorySaveGameSystem& GetMemorySaveGameSystem()
	{
		static FMemorySaveGameSystem* System = new FMemorySaveGameSystem();
		return *System;
	}

	bool GSaveGameSystemAvailable = true;

	class FPlatformFeatures final : public IPlatformFeaturesModule
	{
	};
}

IPlatformFeaturesModule& IPlatformFeaturesModule::Get()
{
	static FPlatformFeatures* Features = new FPlatformFeatures();
	return *Features;
}

ISaveGameSystem* IPlatformFeaturesModule::GetSaveGameSystem()
{
	return GSaveGameSystemAvailable ? &GetMemorySaveGameSystem() : nullptr;
}

void UE::Headless::ClearSaveGames()
{
	GetMemorySaveGameSystem().Clear();
}

void UE::Headless::SetSaveGameSystemAvailable(bool bAvailable)
{
	GSaveGameSystemAvailable = bAvailable;
}

FString UE::Headless::DescribeSaveGame(const FString& SlotName, int32 UserIndex)
{
	TArray<uint8> Data;
	if (!GetMemorySaveGameSystem().LoadGame(false, *SlotName, UserIndex, Data))
	{
		return FString();
	}
	const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Data.GetData()), Data.Num());
	return FString(Converted.Length(), Converted.Get());
}
