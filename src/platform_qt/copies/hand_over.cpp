#include "platform_qt/copies/hand_over.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>
#include <algorithm>

#include "platform_qt/copies/visitor.h"
#include "platform_qt/os/user.h"

namespace verlume::qt {
namespace {

constexpr qsizetype kLongestToken = 256;

int Left(const QDeadlineTimer& deadline) {
  return static_cast<int>(deadline.remainingTime());
}

// The other copy may have the place, and not listen yet.
bool Connect(QLocalSocket& socket, const QString& server, const QDeadlineTimer& deadline) {
  constexpr unsigned long kBetweenTries = 20;  // milliseconds
  while (!deadline.hasExpired()) {
    socket.connectToServer(server);
    if (socket.waitForConnected(Left(deadline))) return true;
    socket.abort();
    QThread::msleep(kBetweenTries);
  }
  return false;
}

}  // namespace

bool IsActivationToken(const QByteArray& token) {
  return token.size() <= kLongestToken &&
         std::all_of(token.begin(), token.end(), [](char c) { return c > ' ' && c <= '~'; });
}

QByteArray ActivationToken() {
  for (const char* variable : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
    const QByteArray token = qgetenv(variable);
    if (!token.isEmpty() && IsActivationToken(token)) return token;
  }
  return {};
}

bool HandOver(const MeetingPlace& place, std::string_view task, const QByteArray& token) {
  if (!place.IsUsable()) return false;
  const QDeadlineTimer deadline(kPatience);
  QLocalSocket socket;
  if (!Connect(socket, place.server, deadline) || !IsSameUser(socket.socketDescriptor()))
    return false;
  LetComeToFront(socket.socketDescriptor());
  socket.write(token + '\0' + QByteArray(task.data(), static_cast<qsizetype>(task.size())) + '\0');
  if (!socket.waitForReadyRead(Left(deadline))) return false;
  if (socket.readAll() != QByteArray(1, kYes) || deadline.hasExpired()) return false;
  socket.write(&kYes, 1);
  return socket.bytesToWrite() == 0 || socket.waitForBytesWritten(Left(deadline));
}

}  // namespace verlume::qt
