// Fontconfig 2.14 loses a few blocks while it parses its configuration files, in every process that
// loads fonts, whatever the caller does. The leak checker is told to pass over fontconfig's own
// allocations, and only those.
extern "C" const char* __lsan_default_suppressions()
{
	return "leak:libfontconfig.so\n";
}
