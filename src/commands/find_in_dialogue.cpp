#include "commands/find_in_dialogue.h"

#include <algorithm>
#include <string>
#include <utility>

#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kNotFound = {u"Not found", u"Δεν βρέθηκε"};
constexpr TextPair kNotFoundYet = {u"Not found, more is coming", u"Δεν βρέθηκε, έρχονται κι άλλα"};
constexpr TextPair kMoreIsComing = {u", more is coming", u", έρχονται κι άλλα"};
constexpr TextPair kSearching = {u"Searching\u2026", u"Αναζήτηση\u2026"};
constexpr TextPair kPlace = {u"%1 of %2", u"%1 από %2"};
constexpr TextPair kPlaceFromTop = {u"%1 of %2, from the top", u"%1 από %2, από την αρχή"};
constexpr TextPair kPlaceFromEnd = {u"%1 of %2, from the end", u"%1 από %2, από το τέλος"};

}  // namespace

void FindInDialogue::mnuToolsFind_Click() {
  errors_.Guard(Procedure::FindInDialogue, [this] {
    const MainWindow& frmMain = platform_.frmMain;
    const FindBar& bar = frmMain.findBar;
    if (!bar.fraFind.Visible()) {
      bar.fraFind.SetVisible(true);
      // Start at the caret if the user has put it somewhere. At the end of the text it is only
      // where the last written line left it.
      const std::size_t caret = frmMain.rtbData.SelStart();
      position_ = caret < frmMain.rtbData.TextLength() ? caret : 0;
      Search(Step::Here);
    }
    bar.txtFind.SelectAll();
    bar.txtFind.SetFocus();
  });
}

void FindInDialogue::Find(std::u16string_view words) {
  errors_.Guard(Procedure::FindInDialogue, [&] {
    const MainWindow& frmMain = platform_.frmMain;
    const FindBar& bar = frmMain.findBar;
    position_ = frmMain.rtbData.SelStart();
    bar.txtFind.SetText(words);
    bar.fraFind.SetVisible(true);
    Search(Step::Here);
    bar.txtFind.SelectAll();
    bar.txtFind.SetFocus();
  });
}

void FindInDialogue::txtFind_Change() {
  errors_.Guard(Procedure::FindInDialogue, [this] { Search(Step::Here); });
}

void FindInDialogue::cmdFindNext_Click() {
  errors_.Guard(Procedure::FindInDialogue, [this] { Search(Step::Next); });
}

void FindInDialogue::cmdFindPrevious_Click() {
  errors_.Guard(Procedure::FindInDialogue, [this] { Search(Step::Previous); });
}

void FindInDialogue::cmdFindClose_Click() {
  errors_.Guard(Procedure::FindInDialogue, [this] {
    platform_.frmMain.findBar.fraFind.SetVisible(false);
    hasMatch_ = false;
    running_.reset();
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void FindInDialogue::rtbData_LinesRemoved(std::size_t position, std::size_t length) {
  if (position_ >= position) position_ -= std::min(position_ - position, length);
}

void FindInDialogue::Search(Step step) {
  running_.reset();
  TextSearch search(platform_.frmMain.findBar.txtFind.Text(), platform_.locale,
                    [this](const TextMatch& match) { NotePlace(match); });
  if (search.IsEmpty()) return ShowNothing(u"");
  const std::size_t from = step == Step::Next && hasMatch_ ? position_ + 1 : position_;
  running_.emplace(Running{std::move(search), step, from, Places()});
  platform_.frmMain.rtbData.ReadInTurns(
      [this](std::size_t position, std::u16string_view piece, bool isLast) {
        errors_.Guard(Procedure::FindInDialogue, [&] { TakePiece(position, piece, isLast); });
      });
  if (!running_) return;
  platform_.frmMain.findBar.lblFindResult.SetCaption(kSearching.In(state_.IsGreek));
}

void FindInDialogue::TakePiece(std::size_t position, std::u16string_view piece, bool isLast) {
  if (!running_) return;
  if (position == 0) {
    running_->search.Restart(0);
    running_->places = {};
  }
  running_->search.Feed(piece);
  if (!isLast) return;
  running_->search.Finish();
  const Step step = running_->step;
  const Places places = running_->places;
  running_.reset();
  ShowResult(step, places);
}

void FindInDialogue::NotePlace(const TextMatch& match) {
  Places& places = running_->places;
  places.last = {.number = ++places.count, .match = match};
  if (!places.first) places.first = places.last;
  if (match.start < running_->from) {
    places.before = places.last;
  } else if (!places.after) {
    places.after = places.last;
  }
}

void FindInDialogue::ShowResult(Step step, const Places& places) {
  const bool moreIsComing = platform_.frmMain.rtbData.MoreIsComing();
  if (places.count == 0) {
    return ShowNothing((moreIsComing ? kNotFoundYet : kNotFound).In(state_.IsGreek));
  }
  const bool isPrevious = step == Step::Previous;
  const std::optional<Place>& wanted = isPrevious ? places.before : places.after;
  const std::optional<Place>& other = isPrevious ? places.last : places.first;
  const bool wrapped = !wanted;
  ShowPlace(wrapped ? *other : *wanted, places.count, wrapped, step);
}

void FindInDialogue::ShowPlace(const Place& place, std::size_t count, bool wrapped, Step step) {
  const TextPair& text = !wrapped ? kPlace : step == Step::Previous ? kPlaceFromEnd : kPlaceFromTop;
  const auto decimal = [](std::size_t n) { return DecimalText(static_cast<long long>(n)); };
  std::u16string result = text.Fill(state_.IsGreek, {decimal(place.number), decimal(count)});
  if (platform_.frmMain.rtbData.MoreIsComing()) result += kMoreIsComing.In(state_.IsGreek);
  platform_.frmMain.findBar.lblFindResult.SetCaption(result);
  position_ = place.match.start;
  hasMatch_ = true;
  platform_.frmMain.rtbData.Select(place.match.start, place.match.length);
}

// `position_` stays: when the search text changes, the search continues from there.
void FindInDialogue::ShowNothing(std::u16string_view result) {
  platform_.frmMain.findBar.lblFindResult.SetCaption(result);
  RichTextBox& rtbData = platform_.frmMain.rtbData;
  if (hasMatch_ && rtbData.SelLength() > 0) rtbData.Select(position_, 0);
  hasMatch_ = false;
}

}  // namespace verlume
