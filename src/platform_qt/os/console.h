// Text for whoever started the program, or looks into it; each system has a file of its own.
#pragma once

#include <string_view>

namespace verlume::qt {

// Prints the text to standard output or standard error. False if not all of it could be written.
// On Windows a program with windows has no console of its own: the text goes where the standard
// handles lead (a file, a pipe), else to the console that the program was started from, and where
// there is none into a box, which this waits for.
bool PrintText(std::string_view utf8, bool isError);

// Writes a line about the program to standard error, at any time. On Windows to where that leads,
// else to debuggers: no console is taken hold of, for closing it would end the program.
void LogLine(std::string_view utf8);

}  // namespace verlume::qt
