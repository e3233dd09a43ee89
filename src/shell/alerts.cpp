#include "shell/alerts.h"

#include "shell/alert_texts.h"
#include "shell/excerpt.h"

namespace verlume {
namespace {

// In characters. Nobody listens to more than a minute of one line.
constexpr std::size_t kLongestAnnouncement = 1000;
constexpr std::size_t kLongestNotification = 200;

// The line with its sender before it. An action line has the name in it, if it is an honest one.
std::u16string WithSender(std::u16string_view sender, std::u16string_view text, bool isAction) {
  if (isAction && text.starts_with(sender)) return std::u16string(text);
  return alert_texts::kLine.Fill(false, {sender, text});
}

}  // namespace

void Alerts::OnRemoteLine(std::u16string_view text, bool isAction) {
  const bool isActive = platform_.frmMain.window.IsActive();
  if (isActive && !platform_.attention.IsListenedTo()) return;
  if (!isActive) ++unread_;
  std::u16string sender = state_.RemoteNickname;
  if (sender.empty()) sender = alert_texts::kOtherSide.In(state_.IsGreek);
  last_ = {std::move(sender), Excerpt(text, kLongestAnnouncement), isAction};
  if (burst_.Add()) Tell(last_);
}

void Alerts::OnIncomingCall(std::u16string_view address) {
  Notify(alert_texts::kIncomingCall.In(state_.IsGreek),
         alert_texts::kIsCalling.Fill(state_.IsGreek, {address}));
}

void Alerts::attention_UserBack() {
  errors_.Guard(Procedure::Attention, [this] {
    unread_ = 0;
    ShowCount();
    platform_.attention.Withdraw();
  });
}

void Alerts::tmrTimer_Timer() {
  errors_.Guard(Procedure::Attention, [this] {
    AnnounceConnectionState();
    const std::size_t lines = burst_.Tick();
    if (lines == 1) Tell(last_);
    if (lines > 1) TellNumber(lines);
  });
}

bool Alerts::NotifiesNow() const {
  return state_.NotifyLines && platform_.attention.CanNotify() &&
         !platform_.frmMain.window.IsActive();
}

void Alerts::Tell(const Line& line) {
  // The tool hears of a new state before it hears what is said in it.
  AnnounceConnectionState();
  if (!NotifiesNow()) {
    platform_.attention.Announce(
        Excerpt(WithSender(line.sender, line.text, line.isAction), kLongestAnnouncement));
  }
  const std::u16string text = state_.NotifyText
                                  ? Excerpt(line.text, kLongestNotification)
                                  : std::u16string(alert_texts::kNewLine.In(state_.IsGreek));
  Notify(line.sender, text);
  ShowCount();
}

void Alerts::TellNumber(std::size_t lines) {
  const std::u16string text =
      alert_texts::kNewLines.Fill(state_.IsGreek, {DecimalText(static_cast<long long>(lines))});
  if (!NotifiesNow()) platform_.attention.Announce(text);
  Notify(last_.sender, text);
  ShowCount();
}

// Only while the user is away. Without notifications the sound comes alone.
void Alerts::Notify(std::u16string_view title, std::u16string_view text) {
  if (NotifiesNow()) {
    platform_.attention.Notify({std::u16string(title), std::u16string(text), state_.NotifySound});
  } else if (state_.NotifySound && !platform_.frmMain.window.IsActive()) {
    platform_.attention.Beep();
  }
}

void Alerts::ShowCount() {
  platform_.attention.SetCount(state_.NotifyCount ? unread_ : 0);
}

void Alerts::AnnounceConnectionState() {
  const TextPair& words = ConnectionStateWords(state_);
  if (words.english == announcedState_) return;
  announcedState_ = words.english;
  platform_.attention.Announce(words.In(state_.IsGreek));
}

}  // namespace verlume
