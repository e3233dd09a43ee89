// A later start of the program, as the first copy sees it.
#pragma once

#include <QByteArray>
#include <QLocalSocket>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <string_view>

namespace verlume::qt {

// How long either side waits for the other.
inline constexpr std::chrono::milliseconds kPatience{2000};

// A visitor says: the token with which its desktop lets a window come to the front, and its task,
// each ended by a NUL. It is answered with kYes and says kYes itself, or the other side leaves. So
// the task is done by one of the two, and never by both: a visitor that has lost its patience does
// not say it.
inline constexpr char kYes = 'y';
inline constexpr qsizetype kLongestRequest = 8192;  // bytes

class VisitorHost {
 public:
  // Whether the text is a task that would be taken now.
  virtual bool MayBring(std::string_view text) const = 0;
  virtual void Bring(const QByteArray& token, std::string_view text) = 0;

 protected:
  ~VisitorHost() = default;
};

// Deletes itself and the socket when the visit is over: with the task, by a word that is not of the
// above, or when it takes longer than kPatience.
class Visitor : public QObject {
 public:
  Visitor(QLocalSocket& socket, VisitorHost& host);

 private:
  void Read();
  void ReadRequest();
  void Leave();

  QLocalSocket& socket_;
  VisitorHost& host_;
  QTimer patience_;
  QByteArray request_;
  bool isAnswered_ = false;
  bool hasLeft_ = false;
};

}  // namespace verlume::qt
