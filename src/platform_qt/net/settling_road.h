// The road of a connection of which it is not settled whether it goes in clear or in private. Only
// the first message of the side that was called may travel on it. What the peer says first settles
// it (docs/protocol.md).
#pragma once

#include <QTimer>
#include <string>

#include "platform_qt/net/privacy_terms.h"
#include "platform_qt/net/tcp_road.h"
#include "stream/tail.h"

namespace verlume::qt {

// What both sides have said in clear before the conversation becomes private.
struct Greetings {
  std::string start;    // with its tail, as it crossed the wire
  std::string confirm;  // likewise
  Said ownStart;        // of the side that was called: to be said again in private
};

class SettlingRoad : public TcpRoad {
 public:
  struct Settled {
    // In clear. `heard` is what has been read.
    std::function<void(std::string heard, std::string_view nickname)> onClear;
    // In private. Nothing that was said in clear is held anywhere any more.
    std::function<void(Greetings greetings)> onPrivate;
    // The connection may not go on.
    std::function<void(PrivacyFailure failure)> onFailed;
  };

  // Each of `settled` is the last thing the road does.
  SettlingRoad(QTcpSocket* socket, Sender* sender, Events events, const PrivacyTerms& terms,
               Settled settled);

  void Start() override;
  void Send(Said said) override;
  void ResumeReading() override {}
  void Close() override;

 private:
  void Read() override;
  void OnDisconnected() override;
  void Decide();
  void GoClear();
  void GoPrivate();
  // Nothing of what was said or heard in clear is on its way inside this program.
  bool IsEmpty() const;

  const PrivacyTerms& terms_;
  const Settled settled_;
  std::string heard_;
  Greetings greetings_;
  bool isSettled_ = false;
  QTimer tailLimit_{this};
};

}  // namespace verlume::qt
