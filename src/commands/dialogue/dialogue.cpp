#include "commands/dialogue/dialogue.h"

#include <string>
#include <utility>

#include "richtext/look_budget.h"
#include "richtext/rtf_documents.h"
#include "shell/again_bar.h"
#include "shell/conversions.h"
#include "shell/date_time_text.h"
#include "shell/nickname.h"
#include "shell/setting_names.h"
#include "shell/text_pair.h"
#include "shell/who_is_who.h"

namespace verlume {
namespace {

constexpr TextPair kNearlyFull = {
    u"***** The dialogue is very long: its oldest lines will soon leave this pane. To keep them, "
    u"save the dialogue now (/SAVEDIALOGUEAS).",
    u"***** Ο διάλογος είναι πολύ μεγάλος: οι παλαιότερες γραμμές του σε λίγο θα φύγουν από εδώ. "
    u"Για να τις κρατήσετε, αποθηκεύστε τον διάλογο τώρα (/ΑΠΟΘΉΚΕΥΣΗΔΙΑΛΌΓΟΥΩΣ)."};

constexpr double kStampSize = 7;  // points
constexpr double kTagSize = 8;

// Stamps and tags look the same whatever the message looks like.
SelectionFormat PlainBlackArial(double size) {
  return {.fontName = u"Arial",
          .fontSize = size,
          .color = 0,
          .bold = false,
          .italic = false,
          .underline = false,
          .strikethrough = false};
}

bool IsAction(Sender sender) {
  return sender == Sender::LocalAction || sender == Sender::RemoteAction;
}

bool IsFromPeer(Sender sender) {
  return sender == Sender::Remote || sender == Sender::RemoteAction;
}

void GoToEnd(RichTextBox& pane) {
  pane.Select(pane.TextLength(), 0);
}

void AddInFormat(RichTextBox& pane, std::u16string_view text, double size) {
  pane.SetSelFormat(PlainBlackArial(size));
  pane.SetSelText(text);
}

}  // namespace

void Dialogue::WriteDialogueLine(std::u16string_view rtf, Sender sender, CommandPane commandPane) {
  ClearFlagOf(sender);
  errors_.Guard(Procedure::WriteDialogueLine, [&] {
    if (rtf.empty()) {
      FollowUnlessReading();
    } else {
      WriteLine(rtf, sender);
      WithdrawAgain(state_, platform_);
    }
    if (commandPane == CommandPane::Clear) platform_.frmMain.rtbCommands.SetText(u"");
  });
  // Words typed into the find bar must not end up in the next line that is sent.
  if (!platform_.frmMain.findBar.fraFind.HasFocus()) platform_.frmMain.rtbCommands.SetFocus();
}

void Dialogue::FollowUnlessReading() {
  if (newLines_.ReaderNow() == Reader::Follows) GoToEnd(platform_.frmMain.rtbData);
}

void Dialogue::ClearFlagOf(Sender sender) {
  if (IsAction(sender)) state_.RemoteMessage = false;
  if (sender == Sender::Remote) state_.ForeignText = false;
}

void Dialogue::WriteLine(std::u16string_view rtf, Sender sender) {
  const std::u16string date = DateText(platform_.clock);
  const std::u16string time = TimeText(platform_.clock);
  const std::u16string both = date + u"_" + time;
  std::u16string stamp;
  if (state_.DateStamp) stamp = date;
  if (state_.TimeStamp) stamp = state_.DateStamp ? both : time;
  const std::u16string tag = TagOf(sender);
  // Lines that TCP has joined are shown as one line, all of them.
  richtext::Document document = richtext::ReadJoinedRtfDocuments(rtf);
  std::u16string logLine;
  if (log_.IsRecording()) logLine = u"[" + both + u"]" + tag + document.text;
  if (onRemoteLine && IsFromPeer(sender)) onRemoteLine(sender, document.text);
  richtext::KeepWithinBudget(document);
  const Reader reader = IsFromPeer(sender) ? newLines_.ReaderNow() : Reader::Follows;
  const std::size_t start = AddToPane(stamp, tag, sender, std::move(document), reader);
  if (IsFromPeer(sender)) {
    newLines_.NoteArrived(start, reader);
  } else {
    newLines_.NoteSaid();
  }
  log_.AppendToLog(std::move(logLine));
}

std::u16string Dialogue::TagOf(Sender sender) const {
  if (IsAction(sender)) return u" ";
  if (sender == Sender::Remote) return u"<" + state_.RemoteNickname + u">";
  return u"<" + ShowableNickname(state_.Nickname) + u">";
}

Author Dialogue::AuthorOf(Sender sender) const {
  if (IsFromPeer(sender)) return PeerAsAuthor(state_);
  const bool isSent = platform_.sckControl.State() == SocketState::Connected;
  return isSent ? Author::User : Author::UserNotSent;
}

std::size_t Dialogue::AddToPane(std::u16string_view stamp, std::u16string_view tag, Sender sender,
                                richtext::Document document, Reader reader) {
  RichTextBox& pane = platform_.frmMain.rtbData;
  const RichTextUpdate update(pane, reader);
  GoToEnd(pane);
  if (pane.TextLength() > 0) pane.SetSelText(u"\r\n");
  const std::size_t start = pane.SelStart();
  const Author author = AuthorOf(sender);
  if (author == Author::User) ++state_.LinesSaid;
  pane.SetSelAuthor(author);
  if (!stamp.empty()) AddInFormat(pane, u"[" + std::u16string(stamp) + u"]", kStampSize);
  if (IsAction(sender)) {
    pane.SetSelText(tag);
  } else {
    AddInFormat(pane, tag, kTagSize);
  }
  pane.SetSelDocument(std::move(document));
  return start;
}

void Dialogue::mnuToolsDate_Click() {
  errors_.Guard(Procedure::mnuToolsDate_Click, [this] {
    SwitchStamp(platform_.frmMain.mnuToolsDate, state_.DateStamp, setting_key::kDateStamp);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void Dialogue::mnuToolsTime_Click() {
  errors_.Guard(Procedure::mnuToolsTime_Click, [this] {
    SwitchStamp(platform_.frmMain.mnuToolsTime, state_.TimeStamp, setting_key::kTimeStamp);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void Dialogue::SwitchStamp(MenuEntry& entry, bool& stampSwitch, std::u16string_view key) {
  stampSwitch = !entry.Checked();
  entry.SetChecked(stampSwitch);
  settings_.WriteSetting(setting_section::kGeneral, key, BooleanText(stampSwitch));
}

void Dialogue::mnuToolsClearDialogue_Click() {
  errors_.Guard(Procedure::mnuToolsClear_Click, [this] { platform_.frmMain.rtbData.SetText(u""); });
  platform_.frmMain.rtbCommands.SetFocus();
}

// A note in the pane, for a peer could bring up a box by talking much. It is no part of the
// conversation: the log does not get it.
void Dialogue::rtbData_NearlyFull() {
  errors_.Guard(Procedure::WriteDialogueLine, [this] {
    RichTextBox& pane = platform_.frmMain.rtbData;
    const RichTextUpdate update(pane, newLines_.ReaderNow());
    GoToEnd(pane);
    pane.SetSelText(u"\r\n");
    pane.SetSelAuthor(Author::None);
    AddInFormat(pane, kNearlyFull.In(state_.IsGreek), kTagSize);
  });
}

}  // namespace verlume
