#include "AssetToolsModule.h"
#include "IAssetTools.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Factories/Factory.h"
#include "Misc/MessageDialog.h"
#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "Templates/UniquePtr.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPath.h"

#define LOCTEXT_NAMESPACE "AssetTools"

namespace
{
	FString ReplaceInvalidChars(const FString& InText, const TCHAR* InvalidChars)
	{
		FString Sanitized;
		for (int32 Index = 0; Index < InText.Len(); ++Index)
		{
			const TCHAR Char = InText[Index];
			bool bInvalid = false;
			for (const TCHAR* Invalid = InvalidChars; *Invalid && !bInvalid; ++Invalid)
			{
				bInvalid = Char == *Invalid;
			}
			Sanitized.AppendChar(bInvalid ? TCHAR('_') : Char);
		}
		return Sanitized;
	}

	/** As the editor's ObjectTools::SanitizeObjectName: each invalid object-name character becomes '_'. */
	FString SanitizeObjectName(const FString& InObjectName)
	{
		return ReplaceInvalidChars(InObjectName, INVALID_OBJECTNAME_CHARACTERS);
	}

	/** As the editor's UPackageTools::SanitizePackageName: invalid characters become '_', runs of slashes one slash. */
	FString SanitizePackageName(const FString& InPackageName)
	{
		const FString Replaced = ReplaceInvalidChars(InPackageName, INVALID_LONGPACKAGE_CHARACTERS);
		FString Sanitized;
		for (int32 Index = 0; Index < Replaced.Len(); ++Index)
		{
			if (!(Replaced[Index] == TEXT('/') && Index > 0 && Replaced[Index - 1] == TEXT('/')))
			{
				Sanitized.AppendChar(Replaced[Index]);
			}
		}
		return Sanitized;
	}

	bool IsDigit(TCHAR Char)
	{
		return Char >= TEXT('0') && Char <= TEXT('9');
	}

	/** The leading decimal value of Digits, as FCString::Atoi reads it (it wraps like the engine's on overflow). */
	int32 ParseInt(const FString& Digits)
	{
		uint32 Value = 0;
		for (int32 Index = 0; Index < Digits.Len() && IsDigit(Digits[Index]); ++Index)
		{
			Value = Value * 10u + static_cast<uint32>(Digits[Index] - TEXT('0'));
		}
		return static_cast<int32>(Value);
	}

	/** The asset tools over the in-memory content of the headless editor. */
	class FAssetToolsImpl : public IAssetTools
	{
	public:
		virtual UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext) override
		{
			if (!ensure(AssetClass || Factory))
			{
				FMessageDialog::Open(EAppMsgType::Ok, LOCTEXT("MustSupplyClassOrFactory", "The new asset wasn't created due to a problem finding the appropriate factory or class for the new asset."));
				return nullptr;
			}
			if (AssetClass && Factory && !ensure(AssetClass->IsChildOf(Factory->GetSupportedClass())))
			{
				FMessageDialog::Open(EAppMsgType::Ok, LOCTEXT("InvalidFactory", "The new asset wasn't created because the supplied factory does not support the supplied class."));
				return nullptr;
			}
			const FString PackageName = SanitizePackageName(PackagePath + TEXT("/") + AssetName);
			if (!CanCreateAsset(AssetName, PackageName))
			{
				return nullptr;
			}
			UClass* ClassToUse = AssetClass ? AssetClass : Factory->GetSupportedClass();
			UPackage* Package = CreatePackage(*PackageName);
			const EObjectFlags Flags = RF_Public | RF_Standalone | RF_Transactional;
			UObject* NewObj = Factory
				? Factory->FactoryCreateNew(ClassToUse, Package, FName(*AssetName), Flags, nullptr, nullptr, CallingContext)
				: NewObject<UObject>(Package, ClassToUse, FName(*AssetName), Flags);
			if (NewObj)
			{
				FAssetRegistryModule::AssetCreated(NewObj);
				Package->MarkPackageDirty();
			}
			return NewObj;
		}

		virtual void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) override
		{
			const FString SanitizedBasePackageName = SanitizePackageName(InBasePackageName);
			const FString PackagePath = FPackageName::GetLongPackagePath(SanitizedBasePackageName);
			const FString SanitizedBaseAssetName = SanitizeObjectName(FPackageName::GetLongPackageAssetName(SanitizedBasePackageName) + InSuffix);

			int32 CharIndex = SanitizedBaseAssetName.Len() - 1;
			while (CharIndex >= 0 && IsDigit(SanitizedBaseAssetName[CharIndex]))
			{
				--CharIndex;
			}
			int32 IntSuffix = 0;
			FString TrailingInteger;
			FString TrimmedBaseAssetName = SanitizedBaseAssetName;
			if (SanitizedBaseAssetName.Len() > 0 && CharIndex == -1)
			{
				// An all-digit name gets "_2", "_3"... rather than a bigger number.
				TrimmedBaseAssetName += TEXT("_");
				IntSuffix = 2;
			}
			if (CharIndex >= 0 && CharIndex < SanitizedBaseAssetName.Len() - 1)
			{
				TrailingInteger = SanitizedBaseAssetName.RightChop(CharIndex + 1);
				TrimmedBaseAssetName = SanitizedBaseAssetName.Left(CharIndex + 1);
				IntSuffix = ParseInt(TrailingInteger);
			}

			IAssetRegistry& AssetRegistry = FModuleManager::Get().LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get();
			bool bObjectExists = false;
			do
			{
				if (IntSuffix < 1)
				{
					OutAssetName = SanitizedBaseAssetName;
				}
				else
				{
					FString Suffix = FString::Printf(TEXT("%d"), IntSuffix);
					while (Suffix.Len() < TrailingInteger.Len())
					{
						Suffix = FString(TEXT("0")) + Suffix;
					}
					OutAssetName = TrimmedBaseAssetName + Suffix;
				}
				OutPackageName = PackagePath + TEXT("/") + OutAssetName;
				const FString ObjectPath = OutPackageName + TEXT(".") + OutAssetName;
				bObjectExists = AssetRegistry.GetAssetByObjectPath(FSoftObjectPath(ObjectPath)).IsValid();
				++IntSuffix;
			} while (bObjectExists);
		}

	private:
		/**
		 * The engine's checks before creating: a valid object name and long package name, and no
		 * object of that name in the package. Each refusal is shown in a message box, as the engine
		 * shows it; for an existing object the box asks whether to replace it, and its default
		 * answer, the one an unattended editor gives, is No.
		 */
		bool CanCreateAsset(const FString& AssetName, const FString& PackageName) const
		{
			FText Reason;
			if (!FName::IsValidXName(AssetName, INVALID_OBJECTNAME_CHARACTERS, &Reason) || !FPackageName::IsValidLongPackageName(PackageName, false, &Reason))
			{
				FMessageDialog::Open(EAppMsgType::Ok, Reason);
				return false;
			}
			UPackage* Package = CreatePackage(*PackageName);
			const UObject* ExistingObject = StaticFindObject(UObject::StaticClass(), Package, *AssetName);
			if (!ExistingObject)
			{
				return true;
			}
			const FText Question = FText::Format(NSLOCTEXT("UnrealEd", "ReplaceExistingObjectInPackage_F", "An object [{0}] of class [{1}] already exists in file [{2}].  Do you want to replace the existing object?  If you click 'Yes', the existing object will be deleted.  Otherwise, click 'No' and choose a unique name for your new object."),
				FText::FromString(AssetName), FText::FromString(ExistingObject->GetClass()->GetName()), FText::FromString(PackageName));
			// The headless editor cannot delete the existing asset to replace it, so the new one is not
			// made whatever the answer; unattended, the answer is the default, No.
			FMessageDialog::Open(EAppMsgType::YesNo, EAppReturnType::No, Question);
			return false;
		}
	};

	TUniquePtr<FAssetToolsImpl> GAssetTools;
}

UAssetTools::UAssetTools(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

IAssetTools& IAssetTools::Get()
{
	return FAssetToolsModule::GetModule().Get();
}

void FAssetToolsModule::StartupModule()
{
	FModuleManager::Get().LoadModuleChecked(TEXT("AssetRegistry"));
	GAssetTools = MakeUnique<FAssetToolsImpl>();
}

void FAssetToolsModule::ShutdownModule()
{
	GAssetTools.reset();
}

IAssetTools& FAssetToolsModule::Get() const
{
	check(GAssetTools);
	return *GAssetTools;
}

FAssetToolsModule& FAssetToolsModule::GetModule()
{
	return FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools"));
}

bool FAssetToolsModule::IsModuleLoaded()
{
	return FModuleManager::Get().IsModuleLoaded(TEXT("AssetTools"));
}

IMPLEMENT_MODULE(FAssetToolsModule, AssetTools)

#undef LOCTEXT_NAMESPACE
