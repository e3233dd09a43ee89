// Finds words in the dialogue pane. Nothing is kept of the dialogue: every search reads it afresh,
// and while the bar is closed there is nothing to do.
#pragma once

#include <optional>

#include "commands/text_search.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class FindInDialogue {
 public:
  FindInDialogue(AppState& state, Platform& platform, ErrorReport& errors)
      : state_(state), platform_(platform), errors_(errors) {}

  // Opens the bar, or goes back to it, with the words of last time.
  void mnuToolsFind_Click();

  // Searches as the user types, from the present match.
  void txtFind_Change();

  // To the next match or the previous one, round the ends of the dialogue.
  void cmdFindNext_Click();
  void cmdFindPrevious_Click();

  // Gives the focus back to the command pane.
  void cmdFindClose_Click();

 private:
  enum class Step { Here, Next, Previous };

  // A match, and its number among all matches, from 1.
  struct Place {
    std::size_t number = 0;
    TextMatch match;
  };
  // The matches that a search may go to from a position. Without any match there is none of them.
  struct Places {
    std::size_t count = 0;
    std::optional<Place> first;
    std::optional<Place> before;  // the last that starts before the position
    std::optional<Place> after;   // the first that starts at the position or behind it
    std::optional<Place> last;
  };

  void Search(Step step);
  Places Survey(const TextSearch& search, std::size_t from) const;
  void ShowPlace(const Place& place, std::size_t count, bool wrapped, Step step);
  void ShowNothing(std::u16string_view result);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;

  // Where the present match starts, or where the search is to begin. The pane's own selection will
  // not do: a line that is written moves it.
  std::size_t position_ = 0;
  bool hasMatch_ = false;
};

}  // namespace verlume
