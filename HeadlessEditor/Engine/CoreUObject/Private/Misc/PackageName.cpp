#include "Misc/PackageName.h"

#include "Internationalization/Internationalization.h"

namespace
{
	// The roots content can be created under; "/Script/" (native classes) is read-only.
	const TCHAR* const WritableRoots[] = {TEXT("/Engine/"), TEXT("/Game/"), TEXT("/Temp/")};
	const TCHAR* const ReadOnlyRoots[] = {TEXT("/Script/")};

	// "/A/B": a slash, a root, a slash and a name.
	constexpr int32 MinPackageNameLength = 4;

	bool StartsWithRoot(const FString& Name, const TCHAR* Root)
	{
		return Name.StartsWith(Root, ESearchCase::IgnoreCase) && Name.Len() > FString(Root).Len();
	}

	/** The roots a valid name may begin with, as the engine lists them: "'/A/', '/B/', or '/C/'". */
	FString ListRoots(bool bIncludeReadOnlyRoots)
	{
		TArray<FString> Roots;
		for (const TCHAR* Root : WritableRoots)
		{
			Roots.Add(FString::Printf(TEXT("'%s'"), Root));
		}
		for (const TCHAR* Root : ReadOnlyRoots)
		{
			if (bIncludeReadOnlyRoots)
			{
				Roots.Add(FString::Printf(TEXT("'%s'"), Root));
			}
		}
		if (Roots.Num() > 1)
		{
			Roots.Last() = TEXT("or ") + Roots.Last();
		}
		return FString::Join(Roots, TEXT(", "));
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
	FFormatNamedArguments Args;
	Args.Add(TEXT("InPath"), FText::FromString(Name));
	FText Reason;
	bool bValid = false;
	if (Name.Len() < MinPackageNameLength)
	{
		Reason = FText::Format(NSLOCTEXT("Core", "LongPackageNames_PathTooShort", "Input '{1}' contains fewer than the minimum number of characters {0} for LongPackageNames."), FText::AsNumber(MinPackageNameLength), FText::FromString(Name));
	}
	else if (Name[0] != TEXT('/'))
	{
		Reason = FText::Format(NSLOCTEXT("Core", "LongPackageNames_PathWithNoStartingSlash", "Input '{InPath}' does not start with a '/', which is required for LongPackageNames."), Args);
	}
	else if (Name[Name.Len() - 1] == TEXT('/'))
	{
		Reason = FText::Format(NSLOCTEXT("Core", "LongPackageNames_PathWithTrailingSlash", "Input '{InPath}' ends with a '/', which is invalid for LongPackageNames."), Args);
	}
	else if (Name.Contains(TEXT("//")))
	{
		Reason = FText::Format(NSLOCTEXT("Core", "LongPackageNames_PathWithDoubleSlash", "Input '{InPath}' contains '//', which is invalid for LongPackageNames."), Args);
	}
	else if (!FName::IsValidXName(Name, INVALID_LONGPACKAGE_CHARACTERS))
	{
		Args.Add(TEXT("IllegalNameCharacters"), FText::FromString(INVALID_LONGPACKAGE_CHARACTERS));
		Reason = FText::Format(NSLOCTEXT("Core", "PackageNameContainsInvalidCharacters", "Input '{InPath}' contains one of the invalid characters for LongPackageNames: '{IllegalNameCharacters}'."), Args);
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
			Reason = FText::Format(NSLOCTEXT("Core", "LongPackageNames_InvalidRoot", "Path does not start with a valid root. Path must begin with: {0}"), FText::FromString(ListRoots(bIncludeReadOnlyRoots)));
		}
	}
	if (!bValid && OutReason)
	{
		*OutReason = Reason;
	}
	return bValid;
}
