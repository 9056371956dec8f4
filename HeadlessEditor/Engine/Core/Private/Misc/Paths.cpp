#include "Misc/Paths.h"

#include "Containers/StringConv.h"

#include <filesystem>

namespace
{
	FString& ProjectFilePath()
	{
		static FString Path;
		return Path;
	}
}

FString FPaths::GetProjectFilePath()
{
	return ProjectFilePath();
}

void FPaths::SetProjectFilePath(const FString& NewGameProjectFilePath)
{
	ProjectFilePath() = NewGameProjectFilePath;
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	int32 Slash = INDEX_NONE;
	InPath.FindLastChar(u'/', Slash);
	return Slash == INDEX_NONE ? InPath : InPath.RightChop(Slash + 1);
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const FString Name = bRemovePath ? GetCleanFilename(InPath) : InPath;
	int32 Dot = INDEX_NONE;
	Name.FindLastChar(u'.', Dot);
	return Dot == INDEX_NONE ? Name : Name.Left(Dot);
}

FString FPaths::GetPath(const FString& InPath)
{
	int32 Slash = INDEX_NONE;
	InPath.FindLastChar(u'/', Slash);
	return Slash == INDEX_NONE ? FString() : InPath.Left(Slash);
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const FString Name = GetCleanFilename(InPath);
	int32 Dot = INDEX_NONE;
	Name.FindLastChar(u'.', Dot);
	return Dot == INDEX_NONE ? FString() : Name.RightChop(bIncludeDot ? Dot : Dot + 1);
}

bool FPaths::FileExists(const FString& InPath)
{
	std::error_code Error;
	return std::filesystem::is_regular_file(TCHAR_TO_UTF8(*InPath), Error);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	std::error_code Error;
	return std::filesystem::is_directory(TCHAR_TO_UTF8(*InPath), Error);
}
