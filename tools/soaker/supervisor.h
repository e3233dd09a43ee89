// Starts the two copies, prints what they report as a table, and judges it.
#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <vector>

#include "shared_page.h"
#include "verdict.h"

namespace verlume::soak {

class Supervisor {
 public:
  explicit Supervisor(double minutes);
  // The process's exit status: 0 when nothing was found.
  int Run();

 private:
  struct Copy {
    QString name;
    QProcess process;
    std::vector<Period> periods;
  };

  bool PrepareFolders() const;
  QString PagePath() const { return folder_.filePath(QStringLiteral("page")); }
  void Start(int side, int port);
  void EndWithTheCopies();
  void Read(Copy& copy);
  QStringList ComplaintsAbout(const Copy& copy) const;

  QTemporaryDir folder_;
  int periods_ = 0;
  int periodMilliseconds_ = 0;
  Copy copies_[2];
};

}  // namespace verlume::soak
