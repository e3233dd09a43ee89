// Finds words in the dialogue pane. Nothing is kept of the dialogue: every search reads it afresh,
// and while the bar is closed there is nothing to do.
#pragma once

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

  // A match, and its place among all; number 0 is none.
  struct Place {
    std::size_t number = 0;
    TextMatch match;
  };
  struct Places {
    std::size_t count = 0;
    Place first;
    Place before;  // the last that starts before the place in question
    Place after;   // the first that starts there or behind
    Place last;
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
