// Which dictionaries the system has.
#pragma once

#include <QString>
#include <optional>

#include "spelling/words.h"

namespace verlume::qt {

struct DictionaryFiles {
  QString affixes;
  QString words;
};

// Where this system's dictionaries are. Needs a QApplication.
QString DictionaryFolder();

// The dictionary for a script in a folder: Greek of Greece, or English as in the locale ("en_GB"),
// else American or British. None if both files of none are there.
std::optional<DictionaryFiles> FindDictionary(const QString& folder, spelling::Script script,
                                              const QString& locale);

}  // namespace verlume::qt
