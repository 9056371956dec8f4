#include "Misc/PackageName.h"

#include "Internationalization/Internationalization.h"

namespace
{
	// The roots content can be created under; "/Script/" (native classes) is read-only.
	const TCHAR* const WritableRoots[] = {TEXT("/Engine/"), TEXT("/Game/"), TEXT("/Temp/")};
	const TCHAR* const ReadOnlyRoots[] = {TEXT("/Script/")};

	bool StartsWithRoot(const FString& Name, const TCHAR* Root)
	{
		return Name.StartsWith(Root, ESearchCase::IgnoreCase) && Name.Len() > FString(Root).Len();
	}
}

FString FPackageName::GetLongPackagePath(const FString& InLongPackageName)
{
	int32 IndexOfLastSlash = INDEX_NONE;
	return InLongPackageName.FindLastChar(TEXT('/'), IndexOfLastSlash) ? InLongPackageName.Left(IndexOfLastSlash) : InLongPackageName;
}

FString FPackageName::GetLongPackageAssetName(const FString& InLongPackageName)
{
	return GetShortName(InLongPackageName);
}

FString FPackageName::GetShortName(const FString& LongName)
{
	int32 IndexOfLastSlash = INDEX_NONE;
	LongName.FindLastChar(TEXT('/'), IndexOfLastSlash);
	return LongName.Mid(IndexOfLastSlash + 1);
}

bool FPackageName::IsValidLongPackageName(FStringView InLongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	const FString Name(InLongPackageName.Len(), InLongPackageName.GetData());
	FText Reason;
	bool bValid = false;
	if (Name.Len() < 4)
	{
		Reason = NSLOCTEXT("Core", "LongPackageNames_PathTooShort", "Path should be no less than 4 characters long.");
	}
	else if (Name[0] != TEXT('/'))
	{
		Reason = NSLOCTEXT("Core", "LongPackageNames_PathWithNoStartingSlash", "Path should start with a '/'");
	}
	else if (Name[Name.Len() - 1] == TEXT('/'))
	{
		Reason = NSLOCTEXT("Core", "LongPackageNames_PathWithTrailingSlash", "Path may not end with a '/'");
	}
	else if (Name.Contains(TEXT("//")))
	{
		Reason = NSLOCTEXT("Core", "LongPackageNames_PathWithDoubleSlash", "Path contains double '/'");
	}
	else if (!FName::IsValidXName(Name, INVALID_LONGPACKAGE_CHARACTERS, &Reason, nullptr))
	{
	}
	else
	{
		for (const TCHAR* Root : WritableRoots)
		{
			bValid = bValid || StartsWithRoot(Name, Root);
		}
		for (const TCHAR* Root : ReadOnlyRoots)
		{
			bValid = bValid || (bIncludeReadOnlyRoots && StartsWithRoot(Name, Root));
		}
		if (!bValid)
		{
			Reason = NSLOCTEXT("Core", "LongPackageNames_InvalidRoot", "Path does not start with a valid root.");
		}
	}
	if (!bValid && OutReason)
	{
		*OutReason = Reason;
	}
	return bValid;
}
