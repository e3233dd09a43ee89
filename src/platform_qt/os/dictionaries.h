// Where the spelling dictionaries are, each system in a file of its own.
#pragma once

#include <string>

namespace verlume::qt {

// The folder of hunspell's dictionaries: the one that Debian installs them into, on Windows the
// folder "dictionaries" beside the program. It may be missing.
std::string DictionaryFolder(const std::string& programFolder);

// The path of a file as hunspell opens it, with a function that takes bytes. Where there is none
// for its characters, hunspell finds no file.
std::string HunspellPath(const std::string& path);

}  // namespace verlume::qt
