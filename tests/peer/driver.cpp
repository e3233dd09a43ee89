#include "peer/driver.h"

#include <QCoreApplication>
#include <cstdio>

#include "peer/driver_text.h"

namespace verlume::peer {
namespace {

// Of a longer arrival so much is told.
constexpr std::size_t kToldCharacters = 4096;

void Tell(const QString& line) {
  std::puts(line.toLatin1().constData());
  std::fflush(stdout);
}

}  // namespace

Driver::Driver(const QString& keyFile)
    : socket_(stream::ArrivalAssembler::kTimeout, keyFile.toStdString()),
      privacy_(socket_.ConnectionPrivacy()),
      commands_{
          {"listen", [this](const QString& port) { Listen(port); }},
          {"call", [this](const QString& address) { Call(address); }},
          {"accept", [this](const QString& id) { Accept(id); }},
          {"reject", [this](const QString& id) { socket_.Reject(id.toLongLong()); }},
          {"admit", [this](const QString&) { privacy_.AdmitPeer(); }},
          {"line",
           [this](const QString& text) { socket_.SendData(Unescaped(text), TextKind::Line); }},
          {"signal",
           [this](const QString& text) { socket_.SendData(Unescaped(text), TextKind::Signal); }},
          {"waiting",
           [this](const QString&) {
             Tell(QStringLiteral("waiting %1").arg(socket_.LinesWaiting()));
           }},
          {"pause", [this](const QString&) { socket_.PauseArrivals(); }},
          {"resume", [this](const QString&) { socket_.ResumeArrivals(); }},
          {"close", [this](const QString&) { socket_.Close(); }},
          {"offer", [this](const QString& offer) { privacy_.SetOffer(OfferOf(offer)); }},
          {"name", [this](const QString& name) { privacy_.SetOwnName(Unescaped(name)); }},
          {"expect", [this](const QString& key) { privacy_.ExpectKey(FromHex(key)); }},
          {"prepare",
           [this](const QString&) {
             Tell(QStringLiteral("key %1 ").arg(Name(privacy_.PrepareOwnKey())) +
                  Hex(privacy_.OwnFingerprint()));
           }},
          {"digits",
           [this](const QString&) {
             Tell(QStringLiteral("digits ") + Escaped(privacy_.SafetyDigits()));
           }},
          {"resources", [](const QString&) { Tell(QStringLiteral("resources ") + Resources()); }},
          {"quit", [](const QString&) { QCoreApplication::quit(); }},
      } {
  TellEvents();
}

void Driver::Do(const QString& line) {
  const auto command = commands_.find(line.section(u' ', 0, 0));
  if (command == commands_.end())
    Tell(QStringLiteral("unknown ") + line);
  else
    command->second(line.section(u' ', 1));
}

void Driver::TellEvents() {
  socket_.onConnectionRequest = [](std::int64_t id) { Tell(QStringLiteral("request %1").arg(id)); };
  socket_.onConnect = [] { Tell(QStringLiteral("connect")); };
  socket_.onDataArrival = [this](std::int32_t) { TellArrival(); };
  socket_.onAcknowledged = [] { Tell(QStringLiteral("acknowledged")); };
  socket_.onUndelivered = [](std::size_t lines, ConnectionNumber) {
    Tell(QStringLiteral("undelivered %1").arg(lines));
  };
  socket_.onClose = [this] {
    if (privacy_.HasPeerSaidGoodbye()) Tell(QStringLiteral("goodbye"));
    Tell(QStringLiteral("closed ") + Name(privacy_.LastFailure()));
  };
  privacy_.onState = [this] { Tell(QStringLiteral("privacy ") + Name(privacy_.State())); };
  privacy_.onPeerKnown = [this] { TellPeer(); };
}

void Driver::TellArrival() {
  const std::u16string text = socket_.GetData();
  Tell(QStringLiteral("arrival %1 ").arg(text.size()) +
       Escaped(std::u16string_view(text).substr(0, kToldCharacters)));
}

void Driver::TellPeer() {
  const auto peer = privacy_.CurrentPeer();
  if (peer) Tell(QStringLiteral("known %1 ").arg(Hex(peer->key)) + Escaped(peer->name));
}

void Driver::Listen(const QString& port) {
  socket_.SetLocalPort(port.toInt());
  socket_.Listen();
  Tell(QStringLiteral("listening %1").arg(socket_.LocalPort()));
}

void Driver::Call(const QString& address) {
  socket_.SetRemoteHost(address.section(u' ', 0, 0).toStdU16String());
  socket_.SetRemotePort(address.section(u' ', 1).toInt());
  socket_.Connect();
}

// As the program does it, which takes one call at a time.
void Driver::Accept(const QString& id) {
  socket_.Close();
  socket_.Accept(id.toLongLong());
}

}  // namespace verlume::peer
