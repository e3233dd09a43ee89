#include "shell/status_panel.h"

#include <limits>

#include "platform/run_time_failure.h"
#include "shell/conversions.h"
#include "shell/date_time_text.h"

namespace verlume {
namespace {

constexpr Color kRed = 0x0000FF;
constexpr Color kYellow = 0x00FFFF;
constexpr Color kGreen = 0x00FF00;

struct LampLook {
  Color color;
  TextPair words;
};

constexpr LampLook kIdle = {kRed, {u"Connection state: idle", u"Κατάσταση συνδέσεως: αδράνεια"}};
constexpr LampLook kWaiting = {kYellow,
                               {u"Connection state: waiting", u"Κατάσταση συνδέσεως: αναμονή"}};
constexpr LampLook kCalling = {kYellow,
                               {u"Connection state: calling", u"Κατάσταση συνδέσεως: κλήση"}};
constexpr LampLook kConnected = {kGreen,
                                 {u"Connection state: connected", u"Κατάσταση συνδέσεως: σύνδεση"}};

const LampLook& LookOf(const AppState& state) {
  if (state.IsConnected) return kConnected;
  if (state.IsWaiting) return kWaiting;
  return state.IsCalling ? kCalling : kIdle;
}

// Adds `increase` to the count in the label's tag and returns the sum. The tag stays as it is on
// failure.
std::int32_t GrowCount(Label& counter, std::size_t increase) {
  const std::u16string tag = counter.Tag();
  const std::int32_t count = tag.empty() ? 0 : IntegerOf(tag);
  const std::int64_t room = std::int64_t{std::numeric_limits<std::int32_t>::max()} - count;
  if (increase > static_cast<std::uint64_t>(room)) throw RunTimeFailure(FailureNumber::Overflow);
  const auto grown = static_cast<std::int32_t>(count + static_cast<std::int64_t>(increase));
  counter.SetTag(DecimalText(grown));
  return grown;
}

// "####0:00:00"
std::u16string DurationText(std::int32_t seconds) {
  const std::int32_t hours = seconds / 3600;
  const std::int32_t minutes = (seconds - hours * 3600) / 60;
  return DecimalText(hours) + u":" + ZeroPaddedText(minutes, 2) + u":" +
         ZeroPaddedText(seconds % 60, 2);
}

}  // namespace

const TextPair& ConnectionStateWords(const AppState& state) {
  return LookOf(state).words;
}

void ShowLamp(const AppState& state, const MainWindow& frmMain) {
  const LampLook& look = LookOf(state);
  frmMain.shpStatus.SetBorderColor(look.color);
  frmMain.shpStatus.SetFillColor(look.color);
  frmMain.picShape.SetAccessibleName(ConnectionStateWords(state).In(state.IsGreek));
}

std::u16string GroupedNumberText(std::int32_t number, const Locale& locale) {
  std::u16string text = DecimalText(number);
  const std::size_t firstDigit = number < 0 ? 1 : 0;
  const std::u16string separator = locale.GroupSeparator();
  for (std::size_t at = text.size(); at > firstDigit + 3;) {
    at -= 3;
    text.insert(at, separator);
  }
  return text;
}

void AddToCounter(Label& counter, std::size_t characters, const Locale& locale) {
  counter.SetCaption(GroupedNumberText(GrowCount(counter, characters), locale));
}

void StatusPanel::tmrTimer_Timer() {
  errors_.Guard(Procedure::tmrTimer_Timer, [this] {
    MainWindow& frmMain = platform_.frmMain;
    frmMain.lblCurrentDateTime.SetCaption(LongDateTimeText(platform_.clock, platform_.locale));
    if (platform_.sckControl.State() != SocketState::Connected) return;
    frmMain.lblChatDuration.SetCaption(DurationText(GrowCount(frmMain.lblChatDuration, 1)));
  });
}

void StatusPanel::StartChat() {
  MainWindow& frmMain = platform_.frmMain;
  frmMain.lblChatStartDateTime.SetCaption(LongDateTimeText(platform_.clock, platform_.locale));
  frmMain.lblChatDuration.SetTag(u"0");
  frmMain.lblChatDuration.SetCaption(DurationText(0));
  for (Label* counter : {&frmMain.lblBytesSent, &frmMain.lblBytesReceived}) {
    counter->SetTag(u"0");
    counter->SetCaption(GroupedNumberText(0, platform_.locale));
  }
}

void StatusPanel::ClearValues() {
  MainWindow& frmMain = platform_.frmMain;
  for (Label* value : {&frmMain.lblStatus, &frmMain.lblChatStartDateTime, &frmMain.lblLocalPort,
                       &frmMain.lblRemoteIP, &frmMain.lblRemotePort, &frmMain.lblRemoteNickname}) {
    value->SetCaption(u"");
  }
  for (Label* counter :
       {&frmMain.lblChatDuration, &frmMain.lblBytesSent, &frmMain.lblBytesReceived}) {
    counter->SetCaption(u"");
    counter->SetTag(u"");
  }
}

}  // namespace verlume
