#include "ModuleGenerator.h"

#include "Files.h"
#include "GeneratedHeaderWriter.h"
#include "GeneratedSourceWriter.h"
#include "HeaderParser.h"
#include "Tokenizer.h"

#include <filesystem>
#include <set>

void HeaderTool::GenerateModule(const FModuleJob& Job)
{
	// Every header is read first: a property may name an enum class declared in another one.
	std::vector<std::vector<FToken>> AllTokens;
	std::set<std::string> KnownEnums;
	for (const std::string& Path : Job.Headers)
	{
		AllTokens.push_back(Tokenize(ReadTextFile(Path)));
		CollectEnumClassNames(AllTokens.back(), KnownEnums);
	}
	std::filesystem::create_directories(Job.OutputDir + "/Inc");
	std::filesystem::create_directories(Job.OutputDir + "/Src");
	for (size_t Index = 0; Index < Job.Headers.size(); ++Index)
	{
		FHeader Header = MakeHeader(Job.Headers[Index], Job.Module);
		FHeaderParser(Header.Path, std::move(AllTokens[Index]), KnownEnums).Parse(Header);
		WriteTextFile(Job.OutputDir + "/Inc/" + Header.Base + ".generated.h", MakeGeneratedHeader(Header, Job.Module));
		WriteTextFile(Job.OutputDir + "/Src/" + Header.Base + ".gen.cpp", MakeGeneratedSource(Header, Job.Module));
	}
}
