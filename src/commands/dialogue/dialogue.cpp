#include "commands/dialogue/dialogue.h"

#include <string>
#include <utility>

#include "richtext/rtf_documents.h"
#include "shell/conversions.h"
#include "shell/date_time_text.h"
#include "shell/nickname.h"

namespace verlume {
namespace {

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

void GoToEnd(RichTextBox& pane) {
  pane.Select(pane.TextLength(), 0);
}

void AddInFormat(RichTextBox& pane, std::u16string_view text, double size) {
  GoToEnd(pane);
  pane.SetSelFormat(PlainBlackArial(size));
  pane.SetSelText(text);
}

}  // namespace

void Dialogue::WriteDialogueLine(std::u16string_view rtf, CommandPane commandPane) {
  // First of all, so that a line that fails leaves nothing to the next one.
  const Sender sender = TakeSender(rtf);
  errors_.Guard(Procedure::WriteDialogueLine, [&] {
    if (!rtf.empty()) WriteLine(rtf, sender);
    GoToEnd(platform_.frmMain.rtbData);
    if (commandPane == CommandPane::Clear) platform_.frmMain.rtbCommands.SetText(u"");
  });
  // Who is typing what is to be found must not find half a word in the next line to be sent.
  if (!platform_.frmMain.findBar.fraFind.HasFocus()) platform_.frmMain.rtbCommands.SetFocus();
}

Dialogue::Sender Dialogue::TakeSender(std::u16string_view rtf) {
  if (rtf.empty()) state_.ForeignText = false;
  if (std::exchange(state_.RemoteMessage, false)) return Sender::NamedInText;
  return std::exchange(state_.ForeignText, false) ? Sender::Remote : Sender::Local;
}

void Dialogue::WriteLine(std::u16string_view rtf, Sender sender) {
  RichTextBox& pane = platform_.frmMain.rtbData;
  const std::u16string date = DateText(platform_.clock);
  const std::u16string time = TimeText(platform_.clock);
  const std::u16string both = date + u"_" + time;
  std::u16string logLine = u"[" + both + u"]";

  GoToEnd(pane);
  if (pane.TextLength() > 0) pane.SetSelText(u"\r\n");
  if (state_.DateStamp || state_.TimeStamp) {
    const std::u16string& stamp = !state_.TimeStamp ? date : !state_.DateStamp ? time : both;
    AddInFormat(pane, u"[" + stamp + u"]", kStampSize);
  }
  if (sender == Sender::NamedInText) {
    pane.SetSelText(u" ");
    logLine += u' ';
  } else {
    const bool isRemote = sender == Sender::Remote;
    const std::u16string tag =
        u"<" + (isRemote ? state_.RemoteNickname : ShowableNickname(state_.Nickname)) + u">";
    AddInFormat(pane, tag, kTagSize);
    logLine += tag;
  }
  GoToEnd(pane);
  // Usually one: lines that TCP has joined are shown as one line, all of them.
  for (const std::u16string_view document : richtext::SplitRtfDocuments(rtf)) {
    pane.SetSelRtf(document);
    const std::u16string text = PlainTextOf(document);
    // And for the end of the line.
    logLine.reserve(logLine.size() + text.size() + 2);
    logLine += text;
  }
  log_.AppendToLog(std::move(logLine));
}

std::u16string Dialogue::PlainTextOf(std::u16string_view rtf) {
  RichTextBox& rtbRemote = platform_.frmMain.rtbRemote;
  rtbRemote.SetRtf(rtf);
  std::u16string text = rtbRemote.Text();
  rtbRemote.SetText(u"");
  return text;
}

void Dialogue::mnuToolsDate_Click() {
  errors_.Guard(Procedure::mnuToolsDate_Click, [this] {
    SwitchStamp(platform_.frmMain.mnuToolsDate, state_.DateStamp, u"DateStamp");
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void Dialogue::mnuToolsTime_Click() {
  errors_.Guard(Procedure::mnuToolsTime_Click, [this] {
    SwitchStamp(platform_.frmMain.mnuToolsTime, state_.TimeStamp, u"TimeStamp");
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void Dialogue::SwitchStamp(MenuEntry& entry, bool& stampSwitch, std::u16string_view key) {
  stampSwitch = !entry.Checked();
  entry.SetChecked(stampSwitch);
  settings_.WriteSetting(u"General", key, BooleanText(stampSwitch));
}

void Dialogue::mnuToolsClearDialogue_Click() {
  errors_.Guard(Procedure::mnuToolsClear_Click, [this] { platform_.frmMain.rtbData.SetText(u""); });
  platform_.frmMain.rtbCommands.SetFocus();
}

}  // namespace verlume
