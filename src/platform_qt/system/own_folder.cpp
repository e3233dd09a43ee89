#include "platform_qt/system/own_folder.h"

#include <QDir>
#include <QFileInfo>

#include "platform_qt/convert/text.h"
#include "platform_qt/os/files.h"

namespace verlume::qt {

bool MakeOwnFolder(const QString& path) {
  const QFileInfo folder(path);
  if (!folder.exists()) {
    QDir().mkpath(folder.absolutePath());
    // Fails if another copy has made it meanwhile.
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  return CanMakeFilesIn(path.toStdString());
}

std::optional<QString> OwnFolder(std::u16string_view path) {
  const QString written = ToQt(path);
  // A name that is no text could not be opened again.
  if (written.isEmpty() || !written.isValidUtf16() || written.contains(QChar::ReplacementCharacter))
    return std::nullopt;
  const QString absolute = QDir::cleanPath(QFileInfo(written).absoluteFilePath());
  if (!MakeOwnFolder(absolute)) return std::nullopt;
  return absolute;
}

}  // namespace verlume::qt
