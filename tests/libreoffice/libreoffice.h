// The other word processor, run without a window.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace verlume::libreoffice {

class LibreOffice {
 public:
  LibreOffice();

  // Has it open a file and save it in another format, named by the extension: "fodt", "rtf". The
  // path of what it saved, in a folder of this object's; a failure fails the test and gives "".
  QString Convert(const QString& path, const QString& extension);

 private:
  QTemporaryDir folder_;
  QProcess process_;
  int conversions_ = 0;
};

}  // namespace verlume::libreoffice
