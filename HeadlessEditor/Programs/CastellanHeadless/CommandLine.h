#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

/**
 * The program's command line: commands and their options are described by tables (FCommandSpec,
 * FOptionSpec); parsing, checking values and the usage texts all come from those tables.
 * Arguments and texts are UTF-8.
 */
namespace CastellanCommandLine
{
	extern const char* const ProgramName;

	/** Exit statuses: done; the editor did not do what was asked; the command line was wrong. */
	constexpr int ExitDone = 0;
	constexpr int ExitNotDone = 1;
	constexpr int ExitBadCommandLine = 2;

	/** An option of a command: a flag ("--json") or an option taking a value ("--name NAME"). */
	struct FOptionSpec
	{
		std::string Name;
		/** How the usage names the value, e.g. "NAME"; empty for a flag. */
		std::string ValueName;
		std::string Help;
		/** The only values the option takes; empty when it takes any value. */
		std::vector<std::string> AcceptedValues;
		/** Whether the option may be given more than once. */
		bool bRepeatable = false;
		/** The values used when the option is not given, for the usage text. */
		std::vector<std::string> Defaults;

		bool IsFlag() const { return ValueName.empty(); }
	};

	/** A word a command accepts as its operand, with options of its own (e.g. a view to show). */
	struct FChoiceSpec
	{
		std::string Name;
		/** One line in the command's list of choices. */
		std::string Summary;
		std::vector<FOptionSpec> Options;
	};

	/** The word a command takes before its options: a view to show, a folder to write into. */
	struct FOperandSpec
	{
		/** How the usage names it, e.g. "VIEW". */
		std::string ValueName;
		/** The words it takes, each with its own options; empty when it takes any word. */
		std::vector<FChoiceSpec> Choices;
	};

	struct FParsedCommand;

	struct FCommandSpec
	{
		std::string Name;
		/** One line in the list of commands. */
		std::string Summary;
		/** What the command does, for its own usage text. */
		std::string Description;
		std::vector<FOptionSpec> Options;
		/** Runs the command; returns the exit status. */
		int (*Run)(const FParsedCommand& Parsed);
		/** The word the command takes first, if it takes one. */
		std::optional<FOperandSpec> Operand;
	};

	/** A command line that parsed: the command and its options' values, or a request for help. */
	struct FParsedCommand
	{
		/** Null when the program's own help was asked for. */
		const FCommandSpec* Command = nullptr;
		/** The command's operand, and the choice it names when the command offers choices. */
		std::string Operand;
		const FChoiceSpec* Choice = nullptr;
		bool bHelp = false;
		/** The values given for each option, in order; a flag has one empty value. */
		std::map<std::string, std::vector<std::string>> Values;

		bool Has(const std::string& Option) const;
		std::optional<std::string> GetValue(const std::string& Option) const;
		std::vector<std::string> GetValues(const std::string& Option) const;
	};

	struct FParseResult
	{
		std::optional<FParsedCommand> Parsed;
		/** What was wrong, when the command line did not parse. */
		std::string Error;
	};

	/** Parses the arguments after the program name against the table of commands. */
	FParseResult Parse(const std::vector<FCommandSpec>& Commands, const std::vector<std::string>& Arguments);

	/** The program's usage: its commands and how to get a command's options. */
	std::string FormatUsage(const std::vector<FCommandSpec>& Commands);
	/** A command's usage: what it does, its operand's choices and its options with their accepted values. */
	std::string FormatCommandUsage(const FCommandSpec& Command);
	/** The usage of a command with one of its operand's choices: the choice's options and the command's. */
	std::string FormatChoiceUsage(const FCommandSpec& Command, const FChoiceSpec& Choice);
	/** The usage text a parsed request for help asks for: the program's, a command's or a choice's. */
	std::string FormatHelp(const std::vector<FCommandSpec>& Commands, const FParsedCommand& Parsed);

	/** A value as messages show it: in double quotes, control characters escaped. */
	std::string Quote(const std::string& Value);
}
