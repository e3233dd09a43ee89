#include "shell/resend_bar.h"

#include <string>

#include "richtext/rtf_documents.h"
#include "shell/excerpt.h"
#include "shell/said_line.h"

namespace verlume {
namespace {

constexpr std::size_t kExcerptLength = 80;  // UTF-16 units
// Of the rich text of a line. No more is read for the excerpt.
constexpr std::size_t kLongestRead = 16 * 1024;

// %1 the peer's nickname, %2 the beginning of the line
constexpr TextPair kOneLine = {u"1 line was not delivered to %1: %2",
                               u"1 γραμμή δεν παραδόθηκε προς %1: %2"};
// %1 how many, %2 the peer's nickname, %3 the beginning of the first
constexpr TextPair kLines = {u"%1 lines were not delivered to %2: %3",
                             u"%1 γραμμές δεν παραδόθηκαν προς %2: %3"};
// %1 how many, %2 the peer's nickname, %3 how many of them, %4 the beginning of the first of these
constexpr TextPair kSomeKept = {
    u"%1 lines were not delivered to %2, and the last %3 of them were kept: %4",
    u"%1 γραμμές δεν παραδόθηκαν προς %2, και κρατήθηκαν οι τελευταίες %3: %4"};

std::u16string ResendText(const AppState& state, const std::u16string& first) {
  const PeerTrace& peer = state.Undelivered.Current();
  const std::u16string excerpt =
      Excerpt(richtext::ReadJoinedRtfDocuments(
                  RtfOfLine(first, state.ProtocolMarker).substr(0, kLongestRead))
                  .text,
              kExcerptLength);
  const std::size_t kept = state.Undelivered.KeptFor(peer);
  const std::size_t count = state.Undelivered.CountFor(peer);
  const std::u16string countText = DecimalText(static_cast<long long>(count));
  const std::u16string& nickname = state.RemoteNickname;
  if (count > kept) {
    const std::u16string keptText = DecimalText(static_cast<long long>(kept));
    return kSomeKept.Fill(state.IsGreek, {countText, nickname, keptText, excerpt});
  }
  return count == 1 ? kOneLine.Fill(state.IsGreek, {nickname, excerpt})
                    : kLines.Fill(state.IsGreek, {countText, nickname, excerpt});
}

}  // namespace

void ShowResendBar(const AppState& state, const Platform& platform) {
  const ResendBar& bar = platform.frmMain.resendBar;
  const bool mayOffer = state.IsConnected && !state.PeerStops && !state.HidesResend;
  const std::u16string* first =
      mayOffer ? state.Undelivered.FirstFor(state.Undelivered.Current()) : nullptr;
  if (first) {
    const std::u16string text = ResendText(state, *first);
    bar.lblResend.SetCaption(text);
    bar.fraResend.SetAccessibleName(text);
  } else if (bar.fraResend.HasFocus()) {
    platform.frmMain.rtbCommands.SetFocus();
  }
  bar.fraResend.SetVisible(first != nullptr);
}

std::vector<FixedText> ResendBarTexts(const ResendBar& bar) {
  const auto caption = [](Button& button) {
    return [&button](std::u16string_view text) { button.SetCaption(text); };
  };
  const auto toolTip = [](Button& button) {
    return [&button](std::u16string_view text) { button.SetToolTip(text); };
  };
  return {
      {caption(bar.cmdResend), {u"Send them", u"Να σταλούν"}},
      {toolTip(bar.cmdResend),
       {u"Send what was not delivered now, in the order in which it was written. Some of it may "
        u"have arrived after all: its receipt was not confirmed.",
        u"Αποστολή τώρα όσων δεν παραδόθηκαν, με τη σειρά που γράφτηκαν. Ορισμένα ίσως έφτασαν "
        u"τελικά: η λήψη τους δεν επιβεβαιώθηκε."}},
      {caption(bar.cmdResendDrop), {u"Drop them", u"Απόρριψη"}},
      {toolTip(bar.cmdResendDrop),
       {u"Do not send them, and do not offer them again",
        u"Να μη σταλούν, ούτε να προταθούν ξανά"}},
      {caption(bar.cmdResendClose), {u"Close", u"Κλείσιμο"}},
      {toolTip(bar.cmdResendClose),
       {u"Close this bar (Esc). The next conversation with this peer offers them again.",
        u"Κλείσιμο της γραμμής (Esc). Η επόμενη συνομιλία με τον ίδιο συνομιλητή θα τα προτείνει "
        u"ξανά."}}};
}

}  // namespace verlume
