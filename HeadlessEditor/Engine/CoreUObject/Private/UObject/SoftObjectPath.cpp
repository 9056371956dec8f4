#include "UObject/SoftObjectPath.h"

#include "UObject/TopLevelAssetPath.h"

FTopLevelAssetPath::FTopLevelAssetPath(const FString& Path)
{
	int32 Dot = INDEX_NONE;
	if (Path.Len() > 1 && Path[0] == TEXT('/') && Path.FindChar(TEXT('.'), Dot) && Dot > 0)
	{
		PackageName = FName(*Path.Left(Dot));
		AssetName = FName(*Path.RightChop(Dot + 1));
	}
}

FString FTopLevelAssetPath::ToString() const
{
	if (IsNull())
	{
		return FString();
	}
	return AssetName.IsNone() ? PackageName.ToString() : PackageName.ToString() + TEXT(".") + AssetName.ToString();
}

FSoftObjectPath::FSoftObjectPath(const FString& Path)
{
	// "/Package.Asset:Sub.Object": the sub-object path starts at the first colon after the asset.
	int32 Colon = INDEX_NONE;
	if (Path.FindChar(TEXT(':'), Colon))
	{
		AssetPath = FTopLevelAssetPath(Path.Left(Colon));
		SubPathString = Path.RightChop(Colon + 1);
	}
	else
	{
		AssetPath = FTopLevelAssetPath(Path);
	}
}

FString FSoftObjectPath::ToString() const
{
	return SubPathString.IsEmpty() ? AssetPath.ToString() : AssetPath.ToString() + TEXT(":") + SubPathString;
}
