// One copy of the program, with its user (peer.h), as a process in a network of its own.
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>

#include "network/net_namespace.h"
#include "network/script.h"

namespace verlume::network {

// Handles events until the condition holds; false when it does not within the limit.
bool WaitUntil(const std::function<bool()>& condition, int limitMilliseconds);

// Call this once, before any peer is started: their folders are kept in memory that is freed when
// the calling process ends. Throws std::system_error.
void KeepFoldersInMemory();

class PeerProcess {
 public:
  // Starts it in a folder of its own. `hosts` is the content of its /etc/hosts, `settings` are
  // further lines of its general settings.
  PeerProcess(const NetNamespace& network, char16_t side, const QString& hosts,
              const QString& settings);
  // Ends it; the test fails if its exit status is not 0.
  ~PeerProcess();

  void Enter(const QString& line) { Order("enter " + line); }
  void Click(const QString& button) { Order("click " + button); }
  void Start(const Play& play);

  bool IsReady() const { return isReady_; }
  bool HasPlayed() const { return hasPlayed_; }
  const QString& Status() const { return status_; }
  bool IsConnected() const { return status_.endsWith("Active connection."); }
  const QString& Lamp() const { return lamp_; }
  const QString& StatusToolTip() const { return toolTip_; }
  const QString& Waiting() const { return waiting_; }
  // What the bars say; "" while they are not there.
  const QString& AgainBar() const { return again_; }
  const QString& ResendBar() const { return resend_; }
  // Every text that the label for waiting lines has shown, in order.
  const QStringList& WaitingSoFar() const { return waitingSoFar_; }
  const QStringList& Boxes() const { return boxes_; }
  // The lines of the dialogue pane that are not this user's.
  const QStringList& LinesOfOthers() const { return lines_; }
  QString Log(const QString& partner) const;

 private:
  void MakeFolder(const QString& hosts, const QString& settings);
  void Order(const QString& order);
  void Read();
  void Take(const QString& what, const QString& text);

  QChar side_;
  QTemporaryDir folder_;
  QProcess process_;
  QByteArray unread_;
  bool isReady_ = false;
  bool hasPlayed_ = false;
  QString status_;
  QString lamp_;
  QString toolTip_;
  QString waiting_;
  QString again_;
  QString resend_;
  QStringList waitingSoFar_;
  QStringList boxes_;
  QStringList lines_;
};

}  // namespace verlume::network
