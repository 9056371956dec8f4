#pragma once

#include "CoreMinimal.h"

/** Helpers over long package names ("/Root/Path/Name"). */
class COREUOBJECT_API FPackageName
{
public:
	/** Everything before the last slash: "/Game/Folder/Asset" gives "/Game/Folder". */
	static FString GetLongPackagePath(const FString& InLongPackageName);
	/** Everything after the last slash. */
	static FString GetLongPackageAssetName(const FString& InLongPackageName);
	static FString GetShortName(const FString& LongName);
	/** A slash, a mounted root, a name; no trailing or double slash, none of INVALID_LONGPACKAGE_CHARACTERS. */
	static bool IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
};
