#pragma once

#include <string>

namespace HeaderTool
{
	/** The whole content of a file; throws when it cannot be read. */
	std::string ReadTextFile(const std::string& Path);

	/** Writes the file only when its content changed; otherwise refreshes its time for the build. */
	void WriteTextFile(const std::string& Path, const std::string& Content);
}
