// The road in private: frames inside TLS (docs/protocol.md).
//
// Until both sides have proved their keys and said hello nothing is raised but the failure to do
// so.
#pragma once

#include <QElapsedTimer>
#include <QSslSocket>
#include <QTimer>
#include <optional>
#include <string>

#include "platform_qt/net/privacy_terms.h"
#include "platform_qt/net/road.h"
#include "platform_qt/net/settling_road.h"
#include "platform_qt/os/tcp.h"
#include "stream/frames.h"
#include "stream/private_queue.h"
#include "stream/text_count.h"
#include "stream/text_joiner.h"

namespace verlume::qt {

class PrivateRoad : public Road {
 public:
  struct Proved {
    // Who the peer is.
    std::function<void(PublicKey key, std::string_view nickname)> onKnown;
    // The peer ends the conversation.
    std::function<void()> onGoodbye;
    // The connection has ended before onKnown. The last thing the road does.
    std::function<void(PrivacyFailure failure)> onFailed;
  };

  // Takes the socket over.
  PrivateRoad(SocketNumber socket, const PrivacyTerms& terms, Greetings greetings, Events events,
              Proved proved);

  void Start() override;
  void Send(Said said) override;
  void ResumeReading() override;
  void TakenIn(std::uint64_t arrivals) override;
  void Admit() override;
  void Close() override;
  void Abort() override;

 private:
  enum class At { Proving, Greeting, Talking, Leaving, Ended };

  void OnEncrypted();
  void Read();
  void TakeBytes(const QByteArray& bytes);
  void Take(const stream::Frame& frame);
  void TakeHello(const stream::Frame& frame);
  void TakeText(const stream::Frame& frame);
  void TakeAcknowledgement(const stream::Frame& frame);
  void TakeGoodbye();
  bool IsFull() const;

  // Hands frames on to TLS, as many as may wait there.
  void Write();
  std::optional<std::string> NextFrame();
  void StartLeaving();
  // Shuts the own half once the peer's machine has everything.
  void ShutDownSending();
  void TellSendingEnded();
  qint64 BytesOnTheirWay() const;

  void Pulse();
  void OnDisconnected();
  void Break(PrivacyFailure failure);
  void End();
  void Stop();

  const SocketNumber socket_;
  const PrivacyTerms& terms_;
  const Proved proved_;
  const Greetings greetings_;
  const stream::Transcript transcript_;
  QSslSocket tls_{this};
  At at_ = At::Proving;
  PublicKey peerKey_;

  stream::FrameReader reader_;
  stream::TextJoiner joiner_;
  stream::TextCount count_;
  stream::PrivateQueue queue_;
  std::uint64_t acknowledged_ = 0;  // of the peer's texts, as it has been told
  bool isAdmitted_ = false;
  bool isClosing_ = false;
  bool hasPeerLeft_ = false;
  bool hasSaidGoodbye_ = false;
  bool isShut_ = false;

  QTimer proofLimit_{this};
  QTimer leavingLimit_{this};
  QTimer drain_{this};
  QTimer pulse_{this};
  QElapsedTimer sent_;   // since something was
  QElapsedTimer heard_;  // since something was read, or could be
};

}  // namespace verlume::qt
