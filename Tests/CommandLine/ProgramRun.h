#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

/** What one run of the castellan-headless program did. */
struct FProgramRun
{
	/** The exit status, or 128 plus the signal that ended the program. */
	int ExitCode = -1;
	std::string Out;
	std::string Err;
};

/** Runs the built castellan-headless program with Arguments, as a shell would, and waits for it. */
FProgramRun RunCastellanHeadless(const std::vector<std::string>& Arguments);

/** Whether UTF-8 Text holds a character that acts on a terminal: a C0 control other than a line feed, DEL or a C1 control. */
bool ContainsRawControlCharacters(const std::string& Text);

/** Whether Text contains Part; a failure shows both. */
::testing::AssertionResult Contains(const std::string& Text, const std::string& Part);
/** Whether Text begins with Prefix; a failure shows both. */
::testing::AssertionResult BeginsWith(const std::string& Text, const std::string& Prefix);
/** Whether Text ends with Suffix; a failure shows both. */
::testing::AssertionResult EndsWith(const std::string& Text, const std::string& Suffix);
