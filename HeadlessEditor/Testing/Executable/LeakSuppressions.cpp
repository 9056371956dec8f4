// Fontconfig 2.14 loses a few blocks while it parses its configuration files, in every process that
// loads fonts, whatever the caller does. The leak checker is told to pass over fontconfig's own
// allocations, and only those. It asks the executable itself for these hooks, so the file is compiled
// into every executable that links HeadlessTesting rather than into the library.
extern "C" const char* __lsan_default_suppressions()
{
	return "leak:libfontconfig.so\n";
}

// Without a report of the suppressions used: a program's standard error is part of what it does.
extern "C" const char* __lsan_default_options()
{
	return "print_suppressions=0";
}
