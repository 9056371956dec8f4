#include "Containers/StringConv.h"
#include "GameFramework/SaveGame.h"
#include "Kismet/GameplayStatics.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

// The engine writes a binary header (the class path) and the object's tagged properties. The headless
// save keeps the same content as text: the class path on the first line, then "Name=Value" lines with
// each value in its exported text form, escaped so that it stays on one line.

namespace
{
	FString EscapeLine(const FString& Value)
	{
		return Value.Replace(TEXT("\\"), TEXT("\\\\")).Replace(TEXT("\n"), TEXT("\\n"));
	}

	FString UnescapeLine(const FString& Value)
	{
		FString Result;
		for (int32 Index = 0; Index < Value.Len(); ++Index)
		{
			if (Value[Index] == TEXT('\\') && Index + 1 < Value.Len())
			{
				++Index;
				Result.AppendChar(Value[Index] == TEXT('n') ? TEXT('\n') : Value[Index]);
			}
			else
			{
				Result.AppendChar(Value[Index]);
			}
		}
		return Result;
	}

	TArray<uint8> SaveGameToMemory(USaveGame* SaveGameObject)
	{
		FString Text = SaveGameObject->GetClass()->GetPathName() + TEXT("\n");
		for (TFieldIterator<FProperty> It(SaveGameObject->GetClass()); It; ++It)
		{
			FString Value;
			It->ExportTextItem_Direct(Value, It->ContainerPtrToValuePtr<void>(SaveGameObject), nullptr, SaveGameObject, 0);
			Text += It->GetName() + TEXT("=") + EscapeLine(Value) + TEXT("\n");
		}
		const FTCHARToUTF8 Utf8(*Text, Text.Len());
		return TArray<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
	}

	USaveGame* LoadGameFromMemory(const TArray<uint8>& Data)
	{
		const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Data.GetData()), Data.Num());
		const FString Text(Converted.Length(), Converted.Get());
		TArray<FString> Lines;
		Text.ParseIntoArray(Lines, TEXT("\n"), true);
		if (Lines.Num() == 0)
		{
			return nullptr;
		}
		UClass* SaveGameClass = Cast<UClass>(StaticFindObject(UClass::StaticClass(), nullptr, *Lines[0]));
		USaveGame* SaveGameObject = UGameplayStatics::CreateSaveGameObject(SaveGameClass);
		if (!SaveGameObject)
		{
			return nullptr;
		}
		for (int32 Index = 1; Index < Lines.Num(); ++Index)
		{
			int32 Equals = INDEX_NONE;
			if (!Lines[Index].FindChar(TEXT('='), Equals))
			{
				continue;
			}
			// Properties the class no longer has are skipped, as tagged serialisation does.
			if (FProperty* Property = SaveGameClass->FindPropertyByName(FName(*Lines[Index].Left(Equals))))
			{
				const FString Value = UnescapeLine(Lines[Index].RightChop(Equals + 1));
				Property->ImportText_Direct(*Value, Property->ContainerPtrToValuePtr<void>(SaveGameObject), SaveGameObject, 0);
			}
		}
		return SaveGameObject;
	}
}

USaveGame::USaveGame(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

USaveGame* UGameplayStatics::CreateSaveGameObject(TSubclassOf<USaveGame> SaveGameClass)
{
	if (*SaveGameClass && !SaveGameClass->HasAnyClassFlags(CLASS_Abstract))
	{
		return NewObject<USaveGame>(GetTransientPackage(), SaveGameClass);
	}
	return nullptr;
}

bool UGameplayStatics::SaveGameToSlot(USaveGame* SaveGameObject, const FString& SlotName, const int32 UserIndex)
{
	ISaveGameSystem* SaveSystem = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	if (SaveSystem && SaveGameObject && SlotName.Len() > 0)
	{
		return SaveSystem->SaveGame(false, *SlotName, UserIndex, SaveGameToMemory(SaveGameObject));
	}
	return false;
}

USaveGame* UGameplayStatics::LoadGameFromSlot(const FString& SlotName, const int32 UserIndex)
{
	ISaveGameSystem* SaveSystem = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	TArray<uint8> Data;
	if (SaveSystem && SlotName.Len() > 0 && SaveSystem->LoadGame(false, *SlotName, UserIndex, Data))
	{
		return LoadGameFromMemory(Data);
	}
	return nullptr;
}

bool UGameplayStatics::DoesSaveGameExist(const FString& SlotName, const int32 UserIndex)
{
	ISaveGameSystem* SaveSystem = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	return SaveSystem && SaveSystem->DoesSaveGameExist(*SlotName, UserIndex);
}
