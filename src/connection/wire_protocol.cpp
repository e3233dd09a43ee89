#include "connection/wire_protocol.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "connection/connection_state.h"
#include "connection/rule_texts.h"
#include "connection/status_texts.h"
#include "platform/protocol_marker.h"
#include "platform/run_time_failure.h"
#include "records/log_file.h"
#include "shell/called_hosts.h"
#include "shell/delivery.h"
#include "shell/dialogue_rule.h"
#include "shell/language_texts.h"
#include "shell/maker_texts.h"
#include "shell/nickname.h"
#include "shell/resend_bar.h"
#include "shell/welcome_card.h"
#include "shell/who_is_who.h"

namespace verlume {
namespace {

constexpr char16_t kStart = u'S';
constexpr char16_t kConfirm = u'C';
constexpr char16_t kNickname = u'N';
constexpr char16_t kActionLine = u'M';

constexpr std::u16string_view kMarkerParts[] = {kMainWindowTitle.greek, kMainWindowTitle.english,
                                                kMakersCredit.greek, kMakersCredit.english};

constexpr std::size_t LengthOfMarkerParts() {
  std::size_t length = 0;
  for (const std::u16string_view part : kMarkerParts) length += part.size();
  return length;
}
static_assert(LengthOfMarkerParts() == kMarkerTextLength);

// The character after the marker, which is the kind of the message; NUL, which is no kind, if there
// is none.
char16_t KindOf(std::u16string_view data) {
  return data.size() > kMarkerLength ? data[kMarkerLength] : u'\0';
}

// The nickname in a handshake or nickname message; none if the message has no end.
std::optional<std::u16string_view> NicknameOf(std::u16string_view data) {
  const std::u16string_view rest = data.substr(kMarkerLength + 1);
  const std::size_t end = rest.find(u'\0');
  if (end == rest.npos) return std::nullopt;
  return rest.substr(0, end);
}

}  // namespace

std::u16string BuildProtocolMarker() {
  std::u16string text;
  for (const std::u16string_view part : kMarkerParts) text += part;
  std::reverse(text.begin(), text.end());
  return u'\0' + text + u'\0';
}

bool WireProtocol::SendToPeer(std::u16string_view text, TextKind kind) {
  return errors_.Guard(Procedure::SendToPeer, [&] {
    const bool isSent = platform_.sckControl.SendData(text, kind);
    // A conversation that has broken unnoticed goes on for the user.
    const bool isSaid = kind == TextKind::Line && (isSent || state_.IsConnected);
    if (isSaid) state_.Undelivered.Add(platform_.sckControl.CurrentConnection(), text, isSent);
    if (!isSent) return;
    ShowLinesWaiting();
    AddToCounter(platform_.frmMain.lblBytesSent, text.size(), platform_.locale);
  });
}

bool WireProtocol::SendWithNickname(char16_t kind) {
  nicknameTold_ = state_.Nickname;
  return SendToPeer(state_.ProtocolMarker + kind + state_.Nickname + u'\0', TextKind::Signal);
}

void WireProtocol::SendStart() {
  SendWithNickname(kStart);
}

void WireProtocol::SendNickname() {
  // TellNickname follows.
  if (!state_.PeerStops) SendWithNickname(kNickname);
}

void WireProtocol::SendActionLine(std::u16string_view rtf) {
  std::u16string message = state_.ProtocolMarker + kActionLine;
  message += rtf;
  SendLine(message);
}

void WireProtocol::OnDataArrival(std::u16string_view data) {
  AddToCounter(platform_.frmMain.lblBytesReceived, data.size(), platform_.locale);

  const char16_t kind = data.starts_with(state_.ProtocolMarker) ? KindOf(data) : u'\0';
  switch (kind) {
    case kStart:
    case kConfirm:
      if (MayBegin(data)) OnHandshake(data);
      return;
    case kNickname:
      return OnNickname(data);
    case kActionLine:
      state_.RemoteMessage = true;
      return WriteRemoteLine(data.substr(kMarkerLength + 1), Sender::RemoteAction);
    default:
      state_.ForeignText = true;
      return WriteRemoteLine(data, Sender::Remote);
  }
}

bool WireProtocol::MayBegin(std::u16string_view data) {
  const auto nickname = NicknameOf(data);
  if (!with_.mayBegin || !nickname || with_.mayBegin(*nickname)) return true;
  stopped_ = data;
  return false;
}

void WireProtocol::OnHandshake(std::u16string_view data) {
  KindOf(data) == kStart ? OnStart(data) : OnConfirm(data);
}

void WireProtocol::GoOn() {
  if (const std::u16string data = std::exchange(stopped_, {}); !data.empty()) OnHandshake(data);
}

void WireProtocol::TellNickname() {
  const bool isToldLater = StateOf(state_) == ConnectionState::Calling;
  if (!isToldLater && state_.Nickname != nicknameTold_) SendNickname();
}

void WireProtocol::ShowLinesWaiting() {
  const Socket& socket = platform_.sckControl;
  state_.LinesWaiting = socket.LinesWaiting();
  // Of a connection that has ended the number says nothing. It may end between the two questions.
  if (socket.State() == SocketState::Connected) {
    state_.Undelivered.Keep(socket.CurrentConnection(), state_.LinesWaiting);
  }
  ShowDelivery(state_, platform_.frmMain);
}

void WireProtocol::OnUndelivered(std::size_t lines, ConnectionNumber connection) {
  state_.Undelivered.Lose(connection, lines);
  const ConnectionState on = StateOf(state_);
  // If the connection has just broken, the socket is closed but the state is not Idle yet.
  const bool isBroken =
      on != ConnectionState::Idle && platform_.sckControl.State() == SocketState::Closed;
  state_.LinesUndelivered = lines;
  state_.UndeliveredBefore = !isBroken && on == ConnectionState::Connected;
  ShowDelivery(state_, platform_.frmMain);
  // What has been said over the next connection since is not meant.
  platform_.frmMain.rtbData.ChangeAuthor(Author::User, Author::UserNotDelivered,
                                         isBroken ? 0 : state_.LinesSaid, lines);
  const std::u16string text = UndeliveredText(lines, state_.IsGreek);
  if (isBroken) {
    with_.log.AppendConnectionLine(text);
  } else {
    with_.log.AppendToClosedLog(text);
    state_.HidesResend = false;
    ShowResendBar(state_, platform_);
  }
}

void WireProtocol::OnStart(std::u16string_view data) {
  state_.LocalPort = platform_.sckControl.LocalPort();
  platform_.frmMain.lblLocalPort.SetCaption(DecimalText(state_.LocalPort));
  // If the answer failed, the error report has ended the connection, and there is nothing to
  // confirm.
  if (SendWithNickname(kConfirm)) OnConfirm(data);
}

void WireProtocol::OnConfirm(std::u16string_view data) {
  const bool isNewConversation = StateOf(state_) != ConnectionState::Connected;
  if (isNewConversation) state_.HasCalled = StateOf(state_) == ConnectionState::Calling;
  const std::u16string status = EnterConversation();
  TakeNickname(data);
  // A later handshake goes on in the same log: a peer that changes its nickname each time would
  // make as many files as it likes.
  if (isNewConversation) {
    NameLog();
    state_.HidesResend = false;
    AddDialogueRule(state_, platform_, rule_texts::kConnected);
    if (with_.onConversation) with_.onConversation();
  }
  OfferUndelivered();
  state_.LogOpen = true;
  with_.log.AppendConnectionLine(status);
  SayWhoIsWho({});
}

void WireProtocol::OnNickname(std::u16string_view data) {
  const std::u16string before = WhoIsWho(state_);
  TakeNickname(data);
  if (StateOf(state_) == ConnectionState::Connected) OfferUndelivered();
  SayWhoIsWho(before);
}

// The nickname is known, by which a peer in clear is recognised.
void WireProtocol::OfferUndelivered() {
  const std::optional<Peer> peer = platform_.privacy.CurrentPeer();
  state_.Undelivered.Meet(platform_.sckControl.CurrentConnection(),
                          {.key = peer ? peer->key : std::nullopt,
                           .called = state_.HasCalled ? CalledPlace(state_) : std::u16string(),
                           .address = state_.RemoteAddress,
                           .nickname = state_.RemoteNickname});
  ShowResendBar(state_, platform_);
}

void WireProtocol::SayWhoIsWho(std::u16string_view before) {
  const std::u16string now = WhoIsWho(state_);
  if (!now.empty() && now != before) with_.log.AppendConnectionLine(now);
}

std::u16string WireProtocol::EnterConversation() {
  EnterState(state_, ConnectionState::Connected);
  state_.RemoteAddress = platform_.sckControl.RemoteHostIP();
  state_.RemotePort = platform_.sckControl.RemotePort();
  std::u16string status = status_texts::kActive.Fill(
      state_.IsGreek, {state_.RemoteAddress, DecimalText(state_.RemotePort)});
  platform_.frmMain.lblStatus.SetCaption(status);
  ShowLamp(state_, platform_.frmMain);
  ShowWelcomeCard(state_, platform_);
  state_.LinesUndelivered = 0;
  ShowDelivery(state_, platform_.frmMain);
  with_.statusPanel.StartChat();
  platform_.frmMain.window.FlagForAttention();
  return status;
}

void WireProtocol::TakeNickname(std::u16string_view data) {
  const auto nickname = NicknameOf(data);
  if (!nickname) throw RunTimeFailure(FailureNumber::InvalidProcedureCall);
  state_.RemoteNickname = ShowableNickname(*nickname);
  platform_.frmMain.lblRemoteNickname.SetCaption(state_.RemoteNickname);
  ExplainRemoteNickname(state_, platform_.frmMain);
  if (with_.onNickname) with_.onNickname();
}

void WireProtocol::NameLog() {
  state_.LogFileStem = LogFileStemOf(state_.RemoteNickname, platform_.files);
  state_.LogFile.clear();
}

void WireProtocol::WriteRemoteLine(std::u16string_view text, Sender sender) {
  // Whatever the user is typing stays.
  with_.dialogue.WriteDialogueLine(text, sender, CommandPane::Keep);
  platform_.frmMain.window.FlagForAttention();
}

}  // namespace verlume
