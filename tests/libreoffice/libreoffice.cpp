#include "libreoffice/libreoffice.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QUrl>

namespace verlume::libreoffice {
namespace {

constexpr int kLimitMilliseconds = 120'000;

}  // namespace

LibreOffice::LibreOffice() {
  // What the sanitizers want to hear is no business of its own.
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove(QStringLiteral("LSAN_OPTIONS"));
  environment.remove(QStringLiteral("UBSAN_OPTIONS"));
  process_.setProcessEnvironment(environment);
}

QString LibreOffice::Convert(const QString& path, const QString& extension) {
  const QString target = folder_.filePath(QString::number(++conversions_));
  // A profile of its own: nothing of the user's is read or changed, and nobody else has it open.
  const QString profile =
      QUrl::fromLocalFile(folder_.filePath(QStringLiteral("profile"))).toString();
  process_.start(QStringLiteral("soffice"),
                 {QStringLiteral("-env:UserInstallation=") + profile, QStringLiteral("--headless"),
                  QStringLiteral("--norestore"), QStringLiteral("--convert-to"), extension,
                  QStringLiteral("--outdir"), target, path});
  const bool ended = process_.waitForFinished(kLimitMilliseconds);
  const QString made = target + u'/' + QFileInfo(path).completeBaseName() + u'.' + extension;
  if (ended && process_.exitCode() == 0 && QFileInfo::exists(made)) return made;
  ADD_FAILURE() << "not converted: " << path.toStdString() << '\n'
                << process_.readAll().toStdString()
                << process_.readAllStandardError().toStdString();
  return {};
}

}  // namespace verlume::libreoffice
