#include "commands/dialogue_menu.h"

#include <string>
#include <utility>

#include "platform/char_code.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kCopy = {u"Copy", u"Αντιγραφή"};
constexpr TextPair kCopyPlain = {u"Copy as plain text", u"Αντιγραφή ως απλό κείμενο"};
constexpr TextPair kSelectAll = {u"Select all", u"Επιλογή όλων"};
constexpr TextPair kFindThis = {u"Find this", u"Εύρεση της επιλογής"};
constexpr TextPair kOpenLink = {u"Open link", u"Άνοιγμα συνδέσμου"};
constexpr TextPair kSaveAs = {u"Save dialogue as", u"Αποθήκευση διαλόγου ως"};

// More is not looked for by its words.
constexpr std::size_t kLongestSearch = 256;

// What is selected, if it can stand in the find bar.
std::u16string WordsToFind(const RichTextBox& pane) {
  if (pane.SelLength() > kLongestSearch) return {};
  std::u16string words = pane.SelText();
  return words.find(u'\n') == words.npos ? words : std::u16string();
}

}  // namespace

std::vector<PopupEntry> DialogueMenu::rtbData_ContextMenu(std::size_t position) {
  RichTextBox& pane = platform_.frmMain.rtbData;
  const bool isGreek = state_.IsGreek;
  std::vector<PopupEntry> entries = CopyEntries();
  const std::u16string words = WordsToFind(pane);
  entries.push_back({.caption = std::u16string(kFindThis.In(isGreek)),
                     .enabled = !words.empty(),
                     .separatorBefore = true,
                     .perform = [this, words] { find_.Find(words); }});
  const std::u16string address = pane.LinkAt(position);
  entries.push_back({.caption = std::u16string(kOpenLink.In(isGreek)),
                     .enabled = !address.empty(),
                     .perform = [this, address] { links_.rtbData_Link(address); }});
  entries.push_back({.caption = std::u16string(kSaveAs.In(isGreek)),
                     .enabled = pane.TextLength() > 0,
                     .separatorBefore = true,
                     .perform = [this] { platform_.frmMain.mnuFileLogSaveAs.Click(); }});
  return entries;
}

std::vector<PopupEntry> DialogueMenu::CopyEntries() {
  RichTextBox& pane = platform_.frmMain.rtbData;
  const bool isGreek = state_.IsGreek;
  const bool isSelected = pane.SelLength() > 0;
  return {{.caption = std::u16string(kCopy.In(isGreek)),
           .enabled = isSelected,
           .perform = [&pane] { pane.Copy(TextFileFormat::RichText); }},
          {.caption = std::u16string(kCopyPlain.In(isGreek)),
           .enabled = isSelected,
           .perform = [&pane] { pane.Copy(TextFileFormat::PlainText); }},
          {.caption = std::u16string(kSelectAll.In(isGreek)),
           .enabled = pane.TextLength() > 0,
           .perform = [&pane] { pane.SelectAll(); }}};
}

void DialogueMenu::rtbCommands_KeyPress(int& charCode) {
  const MainWindow& frmMain = platform_.frmMain;
  const bool isCopy = charCode == char_code::kCtrlC && frmMain.rtbCommands.SelLength() == 0;
  if (!isCopy || frmMain.rtbData.SelLength() == 0) return;
  frmMain.rtbData.Copy(TextFileFormat::RichText);
  charCode = char_code::kSwallowed;
}

}  // namespace verlume
