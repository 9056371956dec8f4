#include "CodeText.h"

std::string HeaderTool::Quote(const std::string& Value)
{
	std::string Text = Value;
	if (Text.size() >= 2 && Text.front() == '"' && Text.back() == '"')
	{
		Text = Text.substr(1, Text.size() - 2);
	}
	std::string Result = "TEXT(\"";
	for (char Ch : Text)
	{
		Result += Ch == '"' ? std::string("\\\"") : std::string(1, Ch);
	}
	return Result + "\")";
}

std::string HeaderTool::ClassRef(const std::string& Name)
{
	return "Z_Construct_UClass_" + Name + "_NoRegister()";
}

std::string HeaderTool::MetaDataStatements(const std::string& Target, const FKeyValueList& Meta, const std::string& Indent)
{
	std::string Result;
	for (const auto& Item : Meta)
	{
		Result += Indent + Target + "->SetMetaData(" + Quote(Item.first) + ", " + Quote(Item.second.empty() ? "true" : Item.second) + ");\n";
	}
	return Result;
}
