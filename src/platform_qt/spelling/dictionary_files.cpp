#include "platform_qt/spelling/dictionary_files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include "platform_qt/os/dictionaries.h"

namespace verlume::qt {

QString DictionaryFolder() {
  const std::string program = QCoreApplication::applicationDirPath().toStdString();
  return QString::fromStdString(DictionaryFolder(program));
}

std::optional<DictionaryFiles> FindDictionary(const QString& folder, spelling::Script script,
                                              const QString& locale) {
  QStringList names;
  if (script == spelling::Script::Greek) {
    names = {QStringLiteral("el_GR")};
  } else {
    if (locale.startsWith(QStringLiteral("en_"))) names.append(locale);
    names += {QStringLiteral("en_US"), QStringLiteral("en_GB")};
  }
  for (const QString& name : names) {
    const QString path = folder + u'/' + name;
    DictionaryFiles files{path + QStringLiteral(".aff"), path + QStringLiteral(".dic")};
    if (QFileInfo(files.affixes).isFile() && QFileInfo(files.words).isFile()) return files;
  }
  return std::nullopt;
}

}  // namespace verlume::qt
