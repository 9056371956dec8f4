#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

/** Path helpers. */
class CORE_API FPaths
{
public:
	template <typename... PathTypes>
	static FString Combine(PathTypes&&... InPaths)
	{
		FString Result;
		(AppendPath(Result, FString(InPaths)), ...);
		return Result;
	}

	static FString GetProjectFilePath();
	static FString GetCleanFilename(const FString& InPath);
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	static FString GetPath(const FString& InPath);
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);

	/** Sets the project file path the editor reports. */
	static void SetProjectFilePath(const FString& NewGameProjectFilePath);

private:
	static void AppendPath(FString& Result, const FString& Path)
	{
		if (!Path.IsEmpty())
		{
			Result /= Path;
		}
	}
};
