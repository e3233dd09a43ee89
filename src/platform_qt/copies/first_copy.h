// The copy of the program that does what later starts of it were asked to do.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "platform_qt/copies/meeting_place.h"
#include "platform_qt/copies/visitor.h"

namespace verlume::qt {

// Takes the meeting place unless another copy has it. The system gives it back when the process
// ends, however it ends.
class FirstCopy : public QObject, private VisitorHost {
 public:
  struct Handlers {
    std::function<bool(std::string_view text)> understands;
    std::function<void(const QByteArray& token)> comeToFront;
    std::function<bool()> isInFront;
    // A task waits while the program is busy, for example with a question to the user.
    std::function<bool()> isFree;
    std::function<void(std::string_view text)> perform;
  };

  explicit FirstCopy(const MeetingPlace& place);

  // Both are false if the place is not usable.
  bool IsFirst() const { return server_.isListening(); }
  bool IsOtherFirst() const { return lock_.error() == QLockFile::LockFailedError; }

  // From now on tasks are performed; they come from the event loop.
  void Serve(Handlers handlers);

 private:
  bool MayBring(std::string_view text) const override;
  void Bring(const QByteArray& token, std::string_view text) override;
  void Welcome();
  void PerformNext();

  QLockFile lock_;
  QLocalServer server_;
  Handlers handlers_;
  int visitors_ = 0;
  std::deque<std::string> tasks_;
  QTimer nextTask_;
  QDeadlineTimer waitsForFront_;
};

}  // namespace verlume::qt
