#include "network/two_machines.h"

#include <gtest/gtest.h>

#include "network/interface_setup.h"

namespace verlume::network {
namespace {

constexpr char kAliceIPv4[] = "10.77.0.1";
constexpr char kAliceIPv6[] = "fd77::1";
constexpr char kAliceOnTheLink[] = "fe80::77:1";

void GiveAddresses(const NetNamespace& network, const char* ipv4, const char* ipv6,
                   const char* onTheLink) {
  network.Run([&] {
    AddAddress(TwoMachines::kDevice, ipv4, 24);
    AddAddress(TwoMachines::kDevice, ipv6, 64);
    AddAddress(TwoMachines::kDevice, onTheLink, 64);
  });
}

QStringList ExpectedOf(const Play& play) {
  QStringList expected;
  for (const std::u16string& line : LinesShownOf(play)) {
    expected.append(QString::fromStdU16String(line));
  }
  return expected;
}

// The beginning and the length of a line, which may be too long to print.
std::string Brief(const QStringList& lines, qsizetype index) {
  if (index >= lines.size()) return "nothing";
  return '"' + lines[index].left(120).toStdString() + "\" of " +
         std::to_string(lines[index].size());
}

// Describes the first difference.
void ExpectSameLines(const QStringList& shown, const QStringList& expected, const char* who) {
  if (shown == expected) return;
  qsizetype whole = 0;
  for (const QString& line : expected) whole += shown.contains(line);
  qsizetype same = 0;
  while (same < shown.size() && same < expected.size() && shown[same] == expected[same]) ++same;
  ADD_FAILURE() << who << " shows " << shown.size() << " lines, of " << expected.size()
                << " expected " << whole << " are whole; the first difference is at line " << same
                << ": " << Brief(shown, same) << ", expected " << Brief(expected, same);
}

}  // namespace

TwoMachines::TwoMachines(const LinkQuality& quality, std::uint64_t seed, Talk talk)
    : talk_(talk), cable_(alicesEnd_, bobsEnd_, quality, seed) {
  GiveAddresses(alices_, kAliceIPv4, kAliceIPv6, kAliceOnTheLink);
  GiveAddresses(bobs_, kBobIPv4, kBobIPv6, kBobOnTheLink);
}

std::unique_ptr<PeerProcess> TwoMachines::Start(const NetNamespace& network, char16_t side) const {
  const QString hosts = QString("%1 bob-by-ipv4 bob\n%2 bob-by-ipv6 bob\n").arg(kBobIPv4, kBobIPv6);
  const QString offer = talk_ == Talk::InPrivate ? "Only" : "Never";
  return std::make_unique<PeerProcess>(network, side, hosts, "PrivateConversations=" + offer);
}

std::unique_ptr<PeerProcess> TwoMachines::StartAlice() const {
  return Start(alices_, u'A');
}

std::unique_ptr<PeerProcess> TwoMachines::StartBob() const {
  return Start(bobs_, u'B');
}

Conversation::Conversation(const TwoMachines& machines, int port)
    : port_(port), alice_(machines.StartAlice()), bob_(machines.StartBob()) {}

bool Conversation::Connect(const QString& host, int limitMilliseconds) {
  if (!WaitUntil([this] { return alice_->IsReady() && bob_->IsReady(); }, limitMilliseconds)) {
    return false;
  }
  bob_->Enter(QString("/WAIT %1").arg(port_));
  const auto isWaiting = [this] { return bob_->Status().endsWith("incoming call..."); };
  if (!WaitUntil(isWaiting, limitMilliseconds)) return false;
  alice_->Enter(QString("/CALL %1 %2").arg(host).arg(port_));
  return WaitUntil([this] { return alice_->IsConnected() && bob_->IsConnected(); },
                   limitMilliseconds);
}

void Conversation::Start(Play play) {
  for (const char16_t side : {u'A', u'B'}) {
    play.side = side;
    plays_[side - u'A'] = play;
    (side == u'A' ? alice_ : bob_)->Start(play);
  }
}

bool Conversation::IsOver() const {
  const auto hasAll = [](const PeerProcess& peer, const Play& othersPlay) {
    return peer.HasPlayed() &&
           peer.LinesOfOthers().size() >= static_cast<qsizetype>(LinesShownOf(othersPlay).size());
  };
  return hasAll(*alice_, plays_[1]) && hasAll(*bob_, plays_[0]);
}

void Conversation::ExpectAllShown() const {
  ExpectSameLines(alice_->LinesOfOthers(), ExpectedOf(plays_[1]), "Alice");
  ExpectSameLines(bob_->LinesOfOthers(), ExpectedOf(plays_[0]), "Bob");
}

}  // namespace verlume::network
