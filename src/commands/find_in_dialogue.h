// Finds text in the dialogue pane. No copy of the dialogue is kept: every search reads the pane
// again. A long dialogue is searched between events, and the bar says so meanwhile.
#pragma once

#include <optional>
#include <string_view>

#include "commands/text_search.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class FindInDialogue {
 public:
  FindInDialogue(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Opens the find bar, or returns to it. The last search text is still in it.
  void mnuToolsFind_Click();

  // Opens the bar with these words in it, and goes to the match where the selection begins.
  void Find(std::u16string_view words);

  // Searches while the user types, from the current match on.
  void txtFind_Change();

  // Go to the next or the previous match, and wrap around at the ends of the dialogue.
  void cmdFindNext_Click();
  void cmdFindPrevious_Click();

  // Lines have left the pane: the current match stays where it is in the text.
  void rtbData_LinesRemoved(std::size_t position, std::size_t length);

  // Closes the bar and gives the focus back to the command pane.
  void cmdFindClose_Click();

 private:
  enum class Step { Here, Next, Previous };

  // A match, and its number among all matches, from 1.
  struct Place {
    std::size_t number = 0;
    TextMatch match;
  };
  // The matches that a search from a position may go to; all none when nothing matches.
  struct Places {
    std::size_t count = 0;
    std::optional<Place> first;
    std::optional<Place> before;  // the last that starts before the position
    std::optional<Place> after;   // the first that starts at the position or after it
    std::optional<Place> last;
  };

  // A search that has not gone through the whole dialogue yet.
  struct Running {
    TextSearch search;
    Step step;
    std::size_t from;
    Places places;
  };

  void Search(Step step);
  void TakePiece(std::size_t position, std::u16string_view piece, bool isLast);
  void NotePlace(const TextMatch& match);
  void ShowResult(Step step, const Places& places);
  void ShowPlace(const Place& place, std::size_t count, bool wrapped, Step step);
  void ShowNothing(std::u16string_view result);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;

  // Where the current match starts, or where the next search begins. The pane's own selection
  // cannot be used: every written line moves it.
  std::size_t position_ = 0;
  bool hasMatch_ = false;
  std::optional<Running> running_;
};

}  // namespace verlume
