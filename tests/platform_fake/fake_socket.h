// Sockets in memory. The sockets of a network reach each other by port, whatever the host name,
// unless that ends in the reserved ".invalid"; their events wait in the network's queue until a
// test raises them.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "platform/socket.h"
#include "platform_fake/fake_privacy.h"

namespace verlume::fake {

class FakeSocket;

class FakeNetwork {
 public:
  // Raises all waiting events and those that result from them.
  void RunUntilIdle();

  // Texts that wait for the same socket arrive joined, as TCP may do.
  bool joinArrivals = false;

  // Until Mend, nothing that is sent arrives or is acknowledged.
  void Cut() { isCut_ = true; }
  void Mend();

  // How every call fails, if it does.
  std::optional<CallFailure> fails;
  // Ports on which nobody may listen.
  std::set<std::int32_t> forbiddenPorts;

 private:
  friend class FakeSocket;
  std::deque<std::function<void()>> events_;
  std::map<std::int32_t, FakeSocket*> listeners_;
  std::set<FakeSocket*> sockets_;
  bool isCut_ = false;
  std::int32_t nextPort_ = 20000;
  std::int64_t nextRequest_ = 1;
  std::uint8_t lastKey_ = 0;
};

class FakeSocket : public Socket {
 public:
  explicit FakeSocket(FakeNetwork& network)
      : privacy(*this, ++network.lastKey_), network_(network) {
    network_.sockets_.insert(this);
  }
  ~FakeSocket() override;

  SocketState State() const override { return state_; }
  void SetLocalPort(std::int32_t port) override { localPort_ = port; }
  std::int32_t LocalPort() const override { return localPort_; }
  void SetRemoteHost(std::u16string_view host) override { remoteHost = host; }
  void SetRemotePort(std::int32_t port) override { remotePort_ = port; }
  std::u16string RemoteHostIP() const override { return remoteHostIP_; }
  std::int32_t RemotePort() const override { return remotePort_; }
  std::u16string LocalIP() const override { return localIP; }
  std::u16string LocalHostName() const override { return u"fakehost"; }
  void Listen() override;
  void Connect() override;
  CallFailure LastCallFailure() const override { return callFailure_; }
  void Accept(std::int64_t requestId) override;
  void Reject(std::int64_t requestId) override;
  void Close() override;
  bool SendData(std::u16string_view text, TextKind kind) override;
  std::size_t LinesWaiting() const override;
  ConnectionNumber CurrentConnection() const override { return connection_; }
  void FinishSending() override;
  std::u16string GetData() override;
  void PauseArrivals() override { arePaused_ = true; }
  void ResumeArrivals() override;
  bool ArrivalsPaused() const override { return arePaused_; }

  // A text arrives at once, without a peer that sends it. Does nothing unless connected.
  void Receive(std::u16string text);

  // The line breaks: neither side says goodbye. Does nothing unless connected.
  void Break() {
    if (state_ == SocketState::Connected) DropConnection();
  }

  FakePrivacy privacy;
  std::u16string remoteHost;
  std::u16string localIP = u"192.0.2.1";
  std::vector<std::u16string> sent;  // every text handed to SendData while connected

 private:
  friend class FakeNetwork;
  friend class FakePrivacy;
  struct Text {
    std::u16string text;
    TextKind kind;
  };
  struct Arrival {
    std::u16string text;
    bool isCounted = false;  // the sender waits until it is taken in
  };

  void Deliver(const Text& text);
  void DeliverWaiting();
  void LoseWaiting();
  void RaiseUndelivered();
  void Post(std::function<void()> event);
  void Arrive(Arrival arrival);
  void NoteTaken();
  void DeliverArrival();
  void LosePeer();
  void FailCall(CallFailure failure);
  void AskNextCaller();
  void DropCaller();
  void Open();
  void DropConnection();

  FakeNetwork& network_;
  SocketState state_ = SocketState::Closed;
  std::int32_t localPort_ = 0;
  std::int32_t remotePort_ = 0;
  CallFailure callFailure_ = CallFailure::None;
  std::u16string remoteHostIP_;
  FakeSocket* peer_ = nullptr;
  std::deque<FakeSocket*> callers_;    // of a listener: those that wait to be accepted
  std::int64_t request_ = 0;           // the caller being asked about, 0 for none
  FakeSocket* pending_ = nullptr;      // that caller, until it leaves
  std::vector<std::u16string> early_;  // sent before the call was answered
  std::deque<Text> waiting_;           // while the network is cut, or the peer is not let in
  bool hasSent_ = false;               // over this connection
  bool isCaller_ = false;
  std::deque<TextKind> untaken_;  // in private: sent, and not taken in by the peer's program
  std::map<ConnectionNumber, std::size_t> undelivered_;  // lines, not raised yet
  ConnectionNumber connection_ = 0;
  std::deque<Arrival> arrivals_;
  std::u16string arrival_;
  bool arePaused_ = false;       // the arrivals
  bool isCloseWaiting_ = false;  // while paused
  bool isGoodbye_ = false;       // the peer has closed in private
  int generation_ = 0;           // events of an earlier connection are dropped
};

}  // namespace verlume::fake
