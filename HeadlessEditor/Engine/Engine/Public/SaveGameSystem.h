#pragma once

#include "CoreMinimal.h"

/** The platform's storage of save games, by slot name and user. */
class ISaveGameSystem
{
public:
	virtual ~ISaveGameSystem() {}

	virtual bool PlatformHasNativeUI() = 0;
	virtual bool DoesSaveGameExist(const TCHAR* Name, const int32 UserIndex) = 0;
	virtual bool SaveGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data) = 0;
	virtual bool LoadGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data) = 0;
	virtual bool DeleteGame(bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex) = 0;
};
