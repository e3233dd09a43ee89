#include "platform_qt/attention/launcher_entry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>

namespace verlume::qt {

void ShowCountInLauncher(int count) {
  QDBusMessage update = QDBusMessage::createSignal(
      QStringLiteral("/com/canonical/unity/launcherentry/verlume"),
      QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
  const QVariantMap properties{{QStringLiteral("count"), qlonglong(count)},
                               {QStringLiteral("count-visible"), count > 0}};
  update << QStringLiteral("application://%1.desktop").arg(QGuiApplication::desktopFileName())
         << properties;
  QDBusConnection::sessionBus().send(update);
}

}  // namespace verlume::qt
