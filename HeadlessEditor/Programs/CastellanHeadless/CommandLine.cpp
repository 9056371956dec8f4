#include "CommandLine.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "PrintableText.h"

#include <algorithm>
#include <iterator>

namespace CastellanCommandLine
{
	const char* const ProgramName = "castellan-headless";

	namespace
	{
		const char* const HelpOptionHelp = "print this help";

		bool IsHelpOption(const std::string& Argument)
		{
			return Argument == "--help" || Argument == "-h";
		}

		std::string Join(const std::vector<std::string>& Items, const char* Separator)
		{
			std::string Joined;
			for (size_t Index = 0; Index < Items.size(); ++Index)
			{
				Joined += (Index == 0 ? "" : Separator) + Items[Index];
			}
			return Joined;
		}

		std::string ListQuoted(const std::vector<std::string>& Values)
		{
			std::vector<std::string> Quoted;
			std::transform(Values.begin(), Values.end(), std::back_inserter(Quoted), Quote);
			return Join(Quoted, ", ");
		}

		std::string ListCommands(const std::vector<FCommandSpec>& Commands)
		{
			std::vector<std::string> Names;
			std::transform(Commands.begin(), Commands.end(), std::back_inserter(Names), [](const FCommandSpec& Command)
				{ return Command.Name; });
			return Join(Names, ", ");
		}

		std::string ListOptions(const FCommandSpec& Command)
		{
			std::vector<std::string> Names;
			std::transform(Command.Options.begin(), Command.Options.end(), std::back_inserter(Names), [](const FOptionSpec& Option)
				{ return Option.Name; });
			Names.push_back("--help");
			return Join(Names, ", ");
		}

		const FCommandSpec* FindCommand(const std::vector<FCommandSpec>& Commands, const std::string& Name)
		{
			const auto Found = std::find_if(Commands.begin(), Commands.end(), [&Name](const FCommandSpec& Command)
				{ return Command.Name == Name; });
			return Found == Commands.end() ? nullptr : &*Found;
		}

		const FOptionSpec* FindOption(const FCommandSpec& Command, const std::string& Name)
		{
			const auto Found = std::find_if(Command.Options.begin(), Command.Options.end(), [&Name](const FOptionSpec& Option)
				{ return Option.Name == Name; });
			return Found == Command.Options.end() ? nullptr : &*Found;
		}

		/** What a value must be, for messages: the accepted values or what the usage calls it. */
		std::string DescribeExpectedValue(const FOptionSpec& Option)
		{
			return Option.AcceptedValues.empty() ? "usage: " + Option.Name + " " + Option.ValueName : "accepted values: " + ListQuoted(Option.AcceptedValues);
		}

		/** Reads a command's arguments into Parsed; returns what was wrong, or an empty string. */
		std::string ParseOptions(const FCommandSpec& Command, const std::vector<std::string>& Arguments, FParsedCommand& Parsed)
		{
			for (size_t Index = 1; Index < Arguments.size(); ++Index)
			{
				const std::string& Argument = Arguments[Index];
				if (IsHelpOption(Argument))
				{
					Parsed.bHelp = true;
					return std::string();
				}
				if (Argument.size() < 2 || Argument[0] != '-')
				{
					return "unexpected argument " + Quote(Argument) + " for " + Command.Name + "; options: " + ListOptions(Command);
				}
				const size_t Equals = Argument.find('=');
				const std::string Name = Argument.substr(0, Equals);
				const FOptionSpec* Option = FindOption(Command, Name);
				if (!Option)
				{
					return "unknown option " + Quote(Name) + " for " + Command.Name + "; options: " + ListOptions(Command);
				}
				std::vector<std::string>& Values = Parsed.Values[Option->Name];
				if (!Values.empty() && !Option->bRepeatable)
				{
					return Option->Name + " given more than once";
				}
				if (Option->IsFlag())
				{
					if (Equals != std::string::npos)
					{
						return Option->Name + " takes no value";
					}
					Values.emplace_back();
					continue;
				}
				if (Equals == std::string::npos && Index + 1 == Arguments.size())
				{
					return "missing value for " + Option->Name + "; " + DescribeExpectedValue(*Option);
				}
				const std::string Value = Equals == std::string::npos ? Arguments[++Index] : Argument.substr(Equals + 1);
				const std::vector<std::string>& Accepted = Option->AcceptedValues;
				if (!Accepted.empty() && std::find(Accepted.begin(), Accepted.end(), Value) == Accepted.end())
				{
					return "unknown value " + Quote(Value) + " for " + Option->Name + "; " + DescribeExpectedValue(*Option);
				}
				Values.push_back(Value);
			}
			return std::string();
		}

		/** Rows of two columns, the first padded to the widest. */
		std::string FormatTable(const std::vector<std::pair<std::string, std::string>>& Rows)
		{
			size_t Width = 0;
			for (const auto& Row : Rows)
			{
				Width = std::max(Width, Row.first.size());
			}
			std::string Table;
			for (const auto& Row : Rows)
			{
				Table += "  " + Row.first + std::string(Width - Row.first.size() + 2, ' ') + Row.second + "\n";
			}
			return Table;
		}
	}

	bool FParsedCommand::Has(const std::string& Option) const
	{
		return !GetValues(Option).empty();
	}

	std::optional<std::string> FParsedCommand::GetValue(const std::string& Option) const
	{
		const std::vector<std::string> Given = GetValues(Option);
		return Given.empty() ? std::optional<std::string>() : Given.back();
	}

	std::vector<std::string> FParsedCommand::GetValues(const std::string& Option) const
	{
		const auto Found = Values.find(Option);
		return Found == Values.end() ? std::vector<std::string>() : Found->second;
	}

	FParseResult Parse(const std::vector<FCommandSpec>& Commands, const std::vector<std::string>& Arguments)
	{
		FParseResult Result;
		const std::string& First = Arguments.at(0);
		if (IsHelpOption(First))
		{
			Result.Parsed = FParsedCommand{nullptr, true, {}};
			return Result;
		}
		if (!First.empty() && First[0] == '-')
		{
			Result.Error = "unknown option " + Quote(First) + "; give a command (" + ListCommands(Commands) + ") or --help";
			return Result;
		}
		const FCommandSpec* Command = FindCommand(Commands, First);
		if (!Command)
		{
			Result.Error = "unknown command " + Quote(First) + "; commands: " + ListCommands(Commands);
			return Result;
		}
		FParsedCommand Parsed;
		Parsed.Command = Command;
		Result.Error = ParseOptions(*Command, Arguments, Parsed);
		if (Result.Error.empty())
		{
			Result.Parsed = Parsed;
		}
		return Result;
	}

	std::string FormatUsage(const std::vector<FCommandSpec>& Commands)
	{
		std::vector<std::pair<std::string, std::string>> Rows;
		for (const FCommandSpec& Command : Commands)
		{
			Rows.emplace_back(Command.Name, Command.Summary);
		}
		std::string Usage = std::string("Usage: ") + ProgramName + " COMMAND [OPTIONS]\n\n";
		Usage += "Boots the headless editor with the CastellanEditor module and shows what a user would see.\n\n";
		Usage += "Commands:\n" + FormatTable(Rows) + "\n";
		Usage += "Options:\n" + FormatTable({{"-h, --help", HelpOptionHelp}}) + "\n";
		Usage += std::string("Run '") + ProgramName + " COMMAND --help' for the options of a command.\n";
		Usage += "Exit status: 0 when done, 1 when the editor did not do what was asked, 2 for a bad command line.\n";
		return Usage;
	}

	std::string FormatCommandUsage(const FCommandSpec& Command)
	{
		std::vector<std::pair<std::string, std::string>> Rows;
		for (const FOptionSpec& Option : Command.Options)
		{
			Rows.emplace_back(Option.IsFlag() ? Option.Name : Option.Name + " " + Option.ValueName, Option.Help);
			if (!Option.AcceptedValues.empty())
			{
				Rows.emplace_back(std::string(), "one of: " + ListQuoted(Option.AcceptedValues));
			}
		}
		Rows.emplace_back("-h, --help", HelpOptionHelp);
		std::string Usage = std::string("Usage: ") + ProgramName + " " + Command.Name + (Command.Options.empty() ? "" : " [OPTIONS]") + "\n\n";
		Usage += Command.Description + "\n\n";
		Usage += "Options:\n" + FormatTable(Rows);
		return Usage;
	}

	std::string Quote(const std::string& Value)
	{
		const FString Escaped = FPrintableText::Escape(FString(UTF8_TO_TCHAR(Value.c_str())));
		return std::string("\"") + TCHAR_TO_UTF8(*Escaped) + "\"";
	}
}
