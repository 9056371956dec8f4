#include "ReflectionModel.h"

#include <algorithm>
#include <cctype>

namespace
{
	/** The path under the module's Public/, Classes/ or Private/ folder, or the file name. */
	std::string IncludePathOf(const std::string& Path)
	{
		for (const char* Root : {"/Public/", "/Classes/", "/Private/"})
		{
			const size_t At = Path.rfind(Root);
			if (At != std::string::npos)
			{
				return Path.substr(At + std::string(Root).size());
			}
		}
		return Path.substr(Path.find_last_of('/') + 1);
	}

	std::string BaseNameOf(const std::string& Path)
	{
		const size_t Slash = Path.find_last_of('/');
		const std::string FileName = Path.substr(Slash == std::string::npos ? 0 : Slash + 1);
		return FileName.substr(0, FileName.find_last_of('.'));
	}

	std::string FileIdOf(const std::string& Module, const std::string& IncludePath)
	{
		std::string FileId = "FID_" + Module + "_" + IncludePath;
		std::replace_if(
			FileId.begin(), FileId.end(), [](char Ch)
			{ return !std::isalnum(static_cast<unsigned char>(Ch)); },
			'_');
		return FileId;
	}
}

bool HeaderTool::EqualsNoCase(const std::string& A, const std::string& B)
{
	return A.size() == B.size() && std::equal(A.begin(), A.end(), B.begin(), [](char X, char Y)
									   { return std::tolower(X) == std::tolower(Y); });
}

std::string HeaderTool::FSpecifiers::Get(const std::string& Key) const
{
	const auto Found = std::find_if(Items.begin(), Items.end(), [&Key](const auto& Item)
		{ return EqualsNoCase(Item.first, Key); });
	return Found == Items.end() ? std::string() : Found->second;
}

HeaderTool::FHeader HeaderTool::MakeHeader(const std::string& Path, const std::string& Module)
{
	FHeader Header;
	Header.Path = Path;
	Header.IncludePath = IncludePathOf(Path);
	Header.Base = BaseNameOf(Path);
	Header.FileId = FileIdOf(Module, Header.IncludePath);
	return Header;
}

std::string HeaderTool::StripPrefix(const std::string& Name)
{
	if (Name.size() > 1 && std::string("UAFIE").find(Name[0]) != std::string::npos && std::isupper(static_cast<unsigned char>(Name[1])))
	{
		return Name.substr(1);
	}
	return Name;
}
