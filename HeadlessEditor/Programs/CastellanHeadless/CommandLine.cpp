#include "CommandLine.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "PrintableText.h"

#include <algorithm>
#include <cctype>
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

		std::string ListOptions(const std::vector<const FOptionSpec*>& Options)
		{
			std::vector<std::string> Names;
			std::transform(Options.begin(), Options.end(), std::back_inserter(Names), [](const FOptionSpec* Option)
				{ return Option->Name; });
			Names.push_back("--help");
			return Join(Names, ", ");
		}

		/** What the operand's words are called in messages and headings, e.g. "view" and "views". */
		std::string GetOperandNoun(const FOperandSpec& Operand)
		{
			std::string Noun = Operand.ValueName;
			std::transform(Noun.begin(), Noun.end(), Noun.begin(), [](unsigned char Char)
				{ return static_cast<char>(std::tolower(Char)); });
			return Noun;
		}

		std::string ListChoices(const FOperandSpec& Operand)
		{
			std::vector<std::string> Names;
			std::transform(Operand.Choices.begin(), Operand.Choices.end(), std::back_inserter(Names), [](const FChoiceSpec& Choice)
				{ return Choice.Name; });
			return Join(Names, ", ");
		}

		/** What the operand must be, for messages: the choices, or the command's usage. */
		std::string DescribeExpectedOperand(const FCommandSpec& Command)
		{
			const FOperandSpec& Operand = *Command.Operand;
			return Operand.Choices.empty() ? std::string("usage: ") + ProgramName + " " + Command.Name + " " + Operand.ValueName : GetOperandNoun(Operand) + "s: " + ListChoices(Operand);
		}

		const FCommandSpec* FindCommand(const std::vector<FCommandSpec>& Commands, const std::string& Name)
		{
			const auto Found = std::find_if(Commands.begin(), Commands.end(), [&Name](const FCommandSpec& Command)
				{ return Command.Name == Name; });
			return Found == Commands.end() ? nullptr : &*Found;
		}

		const FChoiceSpec* FindChoice(const FOperandSpec& Operand, const std::string& Name)
		{
			const auto Found = std::find_if(Operand.Choices.begin(), Operand.Choices.end(), [&Name](const FChoiceSpec& Choice)
				{ return Choice.Name == Name; });
			return Found == Operand.Choices.end() ? nullptr : &*Found;
		}

		const FOptionSpec* FindOption(const std::vector<const FOptionSpec*>& Options, const std::string& Name)
		{
			const auto Found = std::find_if(Options.begin(), Options.end(), [&Name](const FOptionSpec* Option)
				{ return Option->Name == Name; });
			return Found == Options.end() ? nullptr : *Found;
		}

		/** The options a parsed command takes: its choice's, then its own. */
		std::vector<const FOptionSpec*> GetOptions(const FCommandSpec& Command, const FChoiceSpec* Choice)
		{
			std::vector<const FOptionSpec*> Options;
			const auto Append = [&Options](const std::vector<FOptionSpec>& Table)
			{
				for (const FOptionSpec& Option : Table)
				{
					Options.push_back(&Option);
				}
			};
			if (Choice)
			{
				Append(Choice->Options);
			}
			Append(Command.Options);
			return Options;
		}

		/** How messages name what the options belong to: the command, with its choice. */
		std::string GetOptionOwner(const FParsedCommand& Parsed)
		{
			return Parsed.Choice ? Parsed.Command->Name + " " + Parsed.Choice->Name : Parsed.Command->Name;
		}

		/** What a value must be, for messages: the accepted values or what the usage calls it. */
		std::string DescribeExpectedValue(const FOptionSpec& Option)
		{
			return Option.AcceptedValues.empty() ? "usage: " + Option.Name + " " + Option.ValueName : "accepted values: " + ListQuoted(Option.AcceptedValues);
		}

		/** Reads the command's operand into Parsed; returns what was wrong, or an empty string. */
		std::string ParseOperand(const std::vector<std::string>& Arguments, FParsedCommand& Parsed)
		{
			const FCommandSpec& Command = *Parsed.Command;
			const FOperandSpec& Operand = *Command.Operand;
			if (Arguments.size() > 1 && IsHelpOption(Arguments[1]))
			{
				Parsed.bHelp = true;
				return std::string();
			}
			if (Arguments.size() < 2 || (!Arguments[1].empty() && Arguments[1][0] == '-'))
			{
				return "missing " + Operand.ValueName + " for " + Command.Name + "; " + DescribeExpectedOperand(Command);
			}
			Parsed.Operand = Arguments[1];
			if (!Operand.Choices.empty())
			{
				Parsed.Choice = FindChoice(Operand, Parsed.Operand);
				if (!Parsed.Choice)
				{
					return "unknown " + GetOperandNoun(Operand) + " " + Quote(Parsed.Operand) + " for " + Command.Name + "; " + DescribeExpectedOperand(Command);
				}
			}
			return std::string();
		}

		/** Reads the options from FirstIndex on into Parsed; returns what was wrong, or an empty string. */
		std::string ParseOptions(const std::vector<std::string>& Arguments, size_t FirstIndex, FParsedCommand& Parsed)
		{
			const std::vector<const FOptionSpec*> Options = GetOptions(*Parsed.Command, Parsed.Choice);
			const std::string Owner = GetOptionOwner(Parsed);
			for (size_t Index = FirstIndex; Index < Arguments.size(); ++Index)
			{
				const std::string& Argument = Arguments[Index];
				if (IsHelpOption(Argument))
				{
					Parsed.bHelp = true;
					return std::string();
				}
				if (Argument.size() < 2 || Argument[0] != '-')
				{
					return "unexpected argument " + Quote(Argument) + " for " + Owner + "; options: " + ListOptions(Options);
				}
				const size_t Equals = Argument.find('=');
				const std::string Name = Argument.substr(0, Equals);
				const FOptionSpec* Option = FindOption(Options, Name);
				if (!Option)
				{
					return "unknown option " + Quote(Name) + " for " + Owner + "; options: " + ListOptions(Options);
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

		/** The rows of the options, with their accepted values and defaults, and the help option. */
		std::string FormatOptionTable(const std::vector<const FOptionSpec*>& Options)
		{
			std::vector<std::pair<std::string, std::string>> Rows;
			for (const FOptionSpec* Option : Options)
			{
				Rows.emplace_back(Option->IsFlag() ? Option->Name : Option->Name + " " + Option->ValueName, Option->Help);
				if (!Option->AcceptedValues.empty())
				{
					Rows.emplace_back(std::string(), "one of: " + ListQuoted(Option->AcceptedValues));
				}
				if (!Option->Defaults.empty())
				{
					Rows.emplace_back(std::string(), "default: " + ListQuoted(Option->Defaults));
				}
			}
			Rows.emplace_back("-h, --help", HelpOptionHelp);
			return FormatTable(Rows);
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
			Result.Parsed = FParsedCommand();
			Result.Parsed->bHelp = true;
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
		Result.Error = Command->Operand ? ParseOperand(Arguments, Parsed) : std::string();
		if (Result.Error.empty() && !Parsed.bHelp)
		{
			Result.Error = ParseOptions(Arguments, Command->Operand ? 2 : 1, Parsed);
		}
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
		const bool bHasChoices = Command.Operand && !Command.Operand->Choices.empty();
		const std::string Operand = Command.Operand ? " " + Command.Operand->ValueName : std::string();
		std::string Usage = std::string("Usage: ") + ProgramName + " " + Command.Name + Operand + (Command.Options.empty() && !bHasChoices ? "" : " [OPTIONS]") + "\n\n";
		Usage += Command.Description + "\n\n";
		if (bHasChoices)
		{
			std::string Heading = GetOperandNoun(*Command.Operand) + "s:";
			Heading[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(Heading[0])));
			std::vector<std::pair<std::string, std::string>> Choices;
			for (const FChoiceSpec& Choice : Command.Operand->Choices)
			{
				Choices.emplace_back(Choice.Name, Choice.Summary);
			}
			Usage += Heading + "\n" + FormatTable(Choices) + "\n";
		}
		Usage += "Options:\n" + FormatOptionTable(GetOptions(Command, nullptr));
		if (bHasChoices)
		{
			Usage += std::string("\nRun '") + ProgramName + " " + Command.Name + Operand + " --help' for the options of a " + GetOperandNoun(*Command.Operand) + ".\n";
		}
		return Usage;
	}

	std::string FormatChoiceUsage(const FCommandSpec& Command, const FChoiceSpec& Choice)
	{
		std::string Usage = std::string("Usage: ") + ProgramName + " " + Command.Name + " " + Choice.Name + " [OPTIONS]\n\n";
		Usage += Choice.Summary + "\n\n";
		Usage += "Options:\n" + FormatOptionTable(GetOptions(Command, &Choice));
		return Usage;
	}

	std::string FormatHelp(const std::vector<FCommandSpec>& Commands, const FParsedCommand& Parsed)
	{
		if (Parsed.Choice)
		{
			return FormatChoiceUsage(*Parsed.Command, *Parsed.Choice);
		}
		return Parsed.Command ? FormatCommandUsage(*Parsed.Command) : FormatUsage(Commands);
	}

	std::string Quote(const std::string& Value)
	{
		const FString Escaped = FPrintableText::Escape(FString(UTF8_TO_TCHAR(Value.c_str())));
		return std::string("\"") + TCHAR_TO_UTF8(*Escaped) + "\"";
	}
}
