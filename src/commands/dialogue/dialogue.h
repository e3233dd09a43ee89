// The dialogue pane. Every line that enters it goes through WriteDialogueLine.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "commands/dialogue/new_lines.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "richtext/document.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/settings.h"

namespace verlume {

// Who says a line. An action line names its sender itself and gets no tag.
enum class Sender { Local, Remote, LocalAction, RemoteAction };

enum class CommandPane { Keep, Clear };

class Dialogue {
 public:
  Dialogue(AppState& state, Platform& platform, ErrorReport& errors, Settings& settings,
           DialogueLog& log)
      : state_(state),
        platform_(platform),
        errors_(errors),
        settings_(settings),
        log_(log),
        newLines_(state, platform, errors) {}

  // Writes one line of rich text at the end of the dialogue pane, with stamp and nickname tag, and
  // hands it to the log. All its paragraphs are from the sender, whatever they say. An empty text
  // writes nothing. In every case the command pane is then emptied if asked, and gets the focus,
  // unless the find bar has it. Clears the flag of AppState that records such a line. A failure is
  // reported (207), not thrown; the command pane then keeps its text and gets the focus.
  //
  // The pane shows the end of what the user says. What the peer says moves nothing while the user
  // reads (new_lines.h).
  void WriteDialogueLine(std::u16string_view rtf, Sender sender, CommandPane commandPane);
  // The end of a command that writes no line.
  void ClearCommandPane() { WriteDialogueLine(u"", Sender::Local, CommandPane::Clear); }

  NewLines& WhatIsNew() { return newLines_; }

  // The stamps of the lines written from now on.
  void mnuToolsDate_Click();
  void mnuToolsTime_Click();

  void mnuToolsClearDialogue_Click();

  // The pane is nearly full: says so in the pane, and how the dialogue is saved before lines leave.
  void rtbData_NearlyFull();

  // Raised for each line of the peer, with its plain text, when it is being written.
  std::function<void(Sender sender, std::u16string_view text)> onRemoteLine;

 private:
  void FollowUnlessReading();
  void ClearFlagOf(Sender sender);
  void WriteLine(std::u16string_view rtf, Sender sender);
  std::u16string TagOf(Sender sender) const;
  Author AuthorOf(Sender sender) const;
  // Returns where the line begins.
  std::size_t AddToPane(std::u16string_view stamp, std::u16string_view tag, Sender sender,
                        richtext::Document document, Reader reader);
  void SwitchStamp(MenuEntry& entry, bool& stampSwitch, std::u16string_view key);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Settings& settings_;
  DialogueLog& log_;
  NewLines newLines_;
};

}  // namespace verlume
