#include "records/dialogue_files.h"

#include "records/dialogue_files_texts.h"

namespace verlume {
namespace {

using namespace dialogue_files_texts;

// Flags of dialog_flag, plus the classic ones for the explorer style and long file names.
constexpr std::uint32_t kLoadFlags = 0x281C04;
constexpr std::uint32_t kSaveFlags = 0x288C06;

bool IsPlainText(std::u16string_view extension, const Locale& locale) {
  return locale.UpperCase(extension) == u"TXT";
}

TextFileFormat FormatOf(std::u16string_view extension, const Locale& locale) {
  return IsPlainText(extension, locale) ? TextFileFormat::PlainText : TextFileFormat::RichText;
}

}  // namespace

void DialogueFiles::mnuFileLogOpen_Click() {
  errors_.Guard(Procedure::LoadDialogueAs, [this] {
    std::u16string question(kLoadQuestion.In(state_.IsGreek));
    if (platform_.frmMain.rtbData.TextLength() > 0) question += kLoadCaution.In(state_.IsGreek);
    const Message message = QuestionWithCancel(question, kLoadTitle.In(state_.IsGreek));
    const Answer answer = platform_.dialogs.ShowMessage(message);
    if (answer != Answer::Cancel) LoadDialogueAs(answer == Answer::Yes ? u"rtf" : u"txt");
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void DialogueFiles::mnuFileLogSaveAs_Click() {
  errors_.Guard(Procedure::SaveDialogueAs, [this] {
    const std::u16string_view title = kSaveTitle.In(state_.IsGreek);
    if (platform_.frmMain.rtbData.TextLength() == 0) {
      platform_.dialogs.ShowMessage(Note(kNothingToSave.In(state_.IsGreek), title));
      return;
    }
    const Message message = QuestionWithCancel(kSaveQuestion.In(state_.IsGreek), title);
    const Answer answer = platform_.dialogs.ShowMessage(message);
    if (answer != Answer::Cancel) SaveDialogueAs(answer == Answer::Yes ? u"rtf" : u"txt");
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void DialogueFiles::rtbData_LoadProgress(int percent) {
  ProgressBar& bar = platform_.frmMain.prgStatus;
  bar.SetValue(percent);
  bar.SetVisible(percent < 100);
}

void DialogueFiles::LoadDialogueAs(std::u16string_view extension) {
  const std::u16string title =
      kLoadDialogTitle.Fill(state_.IsGreek, {platform_.locale.UpperCase(extension)});
  const FileChoice start = StartOf(title, extension, kLoadFlags);
  const FileChoice choice = platform_.dlgControl.ShowOpen(start);
  if (RefuseOtherExtension(start, choice)) return;
  platform_.frmMain.rtbData.LoadFile(choice.fileName, FormatOf(extension, platform_.locale));
}

void DialogueFiles::SaveDialogueAs(std::u16string_view extension) {
  const std::u16string title =
      kSaveDialogTitle.Fill(state_.IsGreek, {platform_.locale.UpperCase(extension)});
  FileChoice start = StartOf(title, extension, kSaveFlags);
  start.fileName = state_.LogFileStem;
  const FileChoice choice = platform_.dlgControl.ShowSave(start);
  if (RefuseOtherExtension(start, choice)) return;
  platform_.frmMain.rtbData.SaveFile(choice.fileName, FormatOf(extension, platform_.locale));
}

FileChoice DialogueFiles::StartOf(std::u16string_view title, std::u16string_view extension,
                                  std::uint32_t flags) {
  const TextPair& filter =
      IsPlainText(extension, platform_.locale) ? kPlainTextFilter : kRichTextFilter;
  state_.DialogFilter = filter.In(state_.IsGreek);
  FileChoice start;
  start.title = title;
  start.initialFolder = state_.LogFolder;
  start.defaultExtension = extension;
  start.filter = state_.DialogFilter;
  start.flags = flags;
  return start;
}

bool DialogueFiles::RefuseOtherExtension(const FileChoice& start, const FileChoice& choice) {
  if (!(choice.flags & dialog_flag::kExtensionDifferent)) return false;
  platform_.dialogs.ShowMessage(
      Refusal(kExtensionRefusal.Fill(state_.IsGreek, {start.defaultExtension}), start.title));
  return true;
}

}  // namespace verlume
