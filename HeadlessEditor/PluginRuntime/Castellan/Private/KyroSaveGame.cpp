#include "KyroSaveGame.h"

UKyroSaveGame::UKyroSaveGame()
	: SaveSlotName(TEXT("KyroCastellanSettings"))
	, UserIndex(0)
	, bSkipVersion(false)
{
}
