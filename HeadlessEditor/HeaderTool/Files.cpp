#include "Files.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace
{
	bool HasContent(const std::string& Path, const std::string& Content)
	{
		std::ifstream Existing(Path, std::ios::binary);
		if (!Existing)
		{
			return false;
		}
		std::ostringstream Buffer;
		Buffer << Existing.rdbuf();
		return Buffer.str() == Content;
	}
}

std::string HeaderTool::ReadTextFile(const std::string& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	if (!Stream)
	{
		throw std::runtime_error("cannot read " + Path);
	}
	std::ostringstream Buffer;
	Buffer << Stream.rdbuf();
	return Buffer.str();
}

void HeaderTool::WriteTextFile(const std::string& Path, const std::string& Content)
{
	if (HasContent(Path, Content))
	{
		std::filesystem::last_write_time(Path, std::filesystem::file_time_type::clock::now());
		return;
	}
	std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
	Stream << Content;
	if (!Stream)
	{
		throw std::runtime_error("cannot write " + Path);
	}
}
