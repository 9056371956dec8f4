#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	/** What one run generates: the reflected headers of a module and where their code goes. */
	struct FModuleJob
	{
		std::string Module;
		std::string OutputDir;
		std::vector<std::string> Headers;
	};

	/** Writes Inc/<Base>.generated.h and Src/<Base>.gen.cpp under the output folder for each header. */
	void GenerateModule(const FModuleJob& Job);
}
