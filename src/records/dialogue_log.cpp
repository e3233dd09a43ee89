#include "records/dialogue_log.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_failure.h"
#include "records/dialogue_log_texts.h"
#include "records/log_file.h"
#include "richtext/characters.h"
#include "shell/conversions.h"
#include "shell/date_time_text.h"
#include "shell/folder_choice.h"
#include "shell/folders.h"
#include "shell/nickname.h"
#include "shell/setting_names.h"

namespace verlume {
namespace {

using namespace dialogue_log_texts;

bool IsControlOrLineBreak(char16_t c) {
  const bool isLineBreak = c == 0x2028 || c == 0x2029;
  return richtext::IsControlCharacter(c) || isLineBreak;
}

// A mark that changes the direction of writing would change how the rest of the entry is read.
std::u16string WithEscapedMarks(std::u16string line) {
  if (std::none_of(line.begin(), line.end(), richtext::IsDirectionMark)) return line;
  std::u16string escaped;
  for (const char16_t c : line) {
    if (richtext::IsDirectionMark(c)) {
      escaped += EscapeOf(c);
    } else {
      escaped += c;
    }
  }
  return escaped;
}

// An entry of the log is one line, whatever characters a message or a nickname contains. Changed in
// place, because a line may be megabytes long.
std::u16string EntryOf(std::u16string line) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == u'\r' && i + 1 < line.size() && line[i + 1] == u'\n') continue;
    line[length++] = IsControlOrLineBreak(line[i]) ? u' ' : line[i];
  }
  line.resize(length);
  line = WithEscapedMarks(std::move(line));
  line += u"\r\n";
  return line;
}

std::u16string ConnectionLine(const Clock& clock, std::u16string_view statusText) {
  return u"[" + DateTimeText(clock) + u"]***** " + std::u16string(statusText);
}

}  // namespace

bool DialogueLog::IsRecording() const {
  return state_.LogDialogue && state_.LogOpen;
}

void DialogueLog::AppendToLog(std::u16string line) {
  if (!IsRecording()) return;
  if (state_.LogFile.empty()) state_.LogFile = LogPath(state_, platform_.files);
  Append(state_.LogFile, std::move(line));
}

void DialogueLog::Append(std::u16string& path, std::u16string line) {
  errors_.Guard(Procedure::AppendToLog, [&] {
    if (path.empty()) throw RunTimeFailure(FailureNumber::PathNotFound);
    path = FreeLogPath(path, platform_.files);
    platform_.files.AppendText(path, EntryOf(std::move(line)));
  });
}

void DialogueLog::AppendConnectionLine(std::u16string_view statusText) {
  AppendToLog(ConnectionLine(platform_.clock, statusText));
}

void DialogueLog::AppendToClosedLog(std::u16string_view statusText) {
  if (!state_.LogDialogue || state_.ClosedLog.empty()) return;
  Append(state_.ClosedLog, ConnectionLine(platform_.clock, statusText));
}

void DialogueLog::mnuFileLogFolder_Click() {
  ChooseLogFolder();
  platform_.frmMain.rtbCommands.SetFocus();
}

bool DialogueLog::ChooseLogFolder() {
  return errors_.Guard(Procedure::mnuFileLogFolder_Click, [this] {
    if (RefuseWhileRecording()) return;
    const auto folder = ChooseFolder(platform_, kLogFolderDialogTitle.In(state_.IsGreek),
                                     state_.LogFolder, kSuggestedLogFolder.In(state_.IsGreek));
    // A conversation may have begun while the dialog was open.
    if (!folder || RefuseWhileRecording()) return;
    state_.LogFolder = *folder;
    state_.LogFile.clear();  // of a conversation that is under way the rest goes there
    settings_.WriteSetting(setting_section::kLogging, setting_key::kLogFolder, *folder);
  });
}

bool DialogueLog::RefuseWhileRecording() {
  if (!IsRecording()) return false;
  platform_.dialogs.ShowMessage(
      Refusal(kLogFolderRefusal.In(state_.IsGreek), kLogFolderTitle.In(state_.IsGreek)));
  return true;
}

void DialogueLog::mnuFileLogRecord_Click() {
  errors_.Guard(Procedure::mnuFileLogRecord_Click, [this] {
    if (platform_.frmMain.mnuFileLogRecord.Checked()) return SwitchLogging(false);
    while (!FolderExists(platform_.files, state_.LogFolder)) {
      // Logging is off meanwhile, so that choosing a folder is not refused.
      state_.LogDialogue = false;
      if (!AskForLogFolder()) return SwitchLogging(false);
      if (!ChooseLogFolder()) return;
    }
    SwitchLogging(true);
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

bool DialogueLog::AskForLogFolder() {
  const std::u16string_view title = kLogQuestionTitle.In(state_.IsGreek);
  const Message question = Question(kLogQuestion.In(state_.IsGreek), title, Answer::Yes);
  if (platform_.dialogs.ShowMessage(question) == Answer::Yes) return true;
  platform_.dialogs.ShowMessage(Note(kLogImpossible.In(state_.IsGreek), title));
  return false;
}

void DialogueLog::SwitchLogging(bool on) {
  platform_.frmMain.mnuFileLogRecord.SetChecked(on);
  state_.LogDialogue = on;
  settings_.WriteSetting(setting_section::kLogging, setting_key::kLogDialogue, BooleanText(on));
}

}  // namespace verlume
