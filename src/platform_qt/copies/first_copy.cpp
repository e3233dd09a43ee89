#include "platform_qt/copies/first_copy.h"

#include <QLocalSocket>
#include <chrono>
#include <utility>

#include "platform_qt/os/user.h"

namespace verlume::qt {
namespace {

constexpr int kMostVisitors = 8;  // at the same time
constexpr std::size_t kMostTasks = 4;
constexpr std::chrono::milliseconds kBetweenTasks{50};
// A window that the desktop does not let come to the front does not keep its task waiting.
constexpr std::chrono::milliseconds kUntilInFront{500};

}  // namespace

FirstCopy::FirstCopy(const MeetingPlace& place) : lock_(place.lock) {
  nextTask_.setInterval(kBetweenTasks);
  nextTask_.callOnTimeout(this, &FirstCopy::PerformNext);
  lock_.setStaleLockTime(0);  // held as long as its process runs
  if (!place.IsUsable() || !lock_.tryLock()) return;
  // A copy that was killed leaves its socket behind.
  QLocalServer::removeServer(place.server);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  if (!server_.listen(place.server)) lock_.unlock();
}

void FirstCopy::Serve(Handlers handlers) {
  handlers_ = std::move(handlers);
  connect(&server_, &QLocalServer::newConnection, this, &FirstCopy::Welcome);
  Welcome();
}

void FirstCopy::Welcome() {
  while (QLocalSocket* socket = server_.nextPendingConnection()) {
    if (visitors_ >= kMostVisitors || !IsSameUser(socket->socketDescriptor())) {
      socket->abort();
      socket->deleteLater();
      continue;
    }
    ++visitors_;
    auto* visitor = new Visitor(*socket, *this);
    connect(visitor, &QObject::destroyed, this, [this] { --visitors_; });
  }
}

bool FirstCopy::MayBring(std::string_view text) const {
  return tasks_.size() < kMostTasks && handlers_.understands(text);
}

void FirstCopy::Bring(const QByteArray& token, std::string_view text) {
  tasks_.emplace_back(text);
  handlers_.comeToFront(token);
  waitsForFront_.setRemainingTime(kUntilInFront);
  nextTask_.start();
}

void FirstCopy::PerformNext() {
  if (tasks_.empty()) return nextTask_.stop();
  if (!handlers_.isFree()) return;
  if (!handlers_.isInFront() && !waitsForFront_.hasExpired()) return;
  const std::string task = std::move(tasks_.front());
  tasks_.pop_front();
  handlers_.perform(task);
}

}  // namespace verlume::qt
