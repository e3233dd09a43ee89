#include "platform_qt/copies/meeting_place.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform_qt/os/user.h"
#include "platform_qt/system/own_folder.h"

namespace verlume::qt {
namespace {

// The same for one folder however its path is written, and short: the path of a socket may have
// only about a hundred characters.
QString NameOf(const QString& folder) {
  const QString canonical = QFileInfo(folder).canonicalFilePath();
  const QByteArray path = (canonical.isEmpty() ? folder : canonical).toUtf8();
  constexpr qsizetype kLength = 32;
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex();
  return QStringLiteral("verlume-") + QString::fromLatin1(hash.first(kLength));
}

// "" if there is none.
QString SafeFolder() {
  const QString running = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (QDir::isAbsolutePath(running) && OnlyUserMayWrite(running.toStdString())) return running;
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
  return MakeOwnFolder(cache) && OnlyUserMayWrite(cache.toStdString()) ? cache : QString();
}

}  // namespace

MeetingPlace MeetingPlaceOf(const QString& settingsFolder) {
  const QString folder = SafeFolder();
  if (folder.isEmpty()) return {};
  const QString name = NameOf(settingsFolder);
  const QString lock = QDir(folder).filePath(name) + QStringLiteral(".lock");
  return {lock,
          QString::fromStdString(LocalConnectionName(folder.toStdString(), name.toStdString()))};
}

}  // namespace verlume::qt
