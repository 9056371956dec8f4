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

		bool IsFlag() const { return ValueName.empty(); }
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
	};

	/** A command line that parsed: the command and its options' values, or a request for help. */
	struct FParsedCommand
	{
		/** Null when the program's own help was asked for. */
		const FCommandSpec* Command = nullptr;
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
	/** A command's usage: what it does and its options with their accepted values. */
	std::string FormatCommandUsage(const FCommandSpec& Command);

	/** A value as messages show it: in double quotes, control characters escaped. */
	std::string Quote(const std::string& Value);
}
