// The main window during a conversation, with only the objects that write lines.
#pragma once

#include <cstdint>
#include <string_view>

#include "commands/dialogue/dialogue.h"
#include "commands/find_in_dialogue.h"
#include "connection/wire_protocol.h"
#include "platform_qt/platform.h"
#include "shell/status_panel.h"

namespace verlume {

// A line as it comes from a peer, 31 characters in one format, which is not the stamp's.
inline constexpr std::u16string_view kMessage =
    u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fnil\\fcharset161 Tahoma;}}\r\n"
    u"{\\colortbl ;\\red0\\green0\\blue255;}\r\n"
    u"\\viewkind4\\uc1\\pard\\cf1\\f0\\fs17 \\'ea\\'e1\\'eb\\'e7\\'ec\\'dd\\'f1\\'e1, hello there}";

class Chat {
 public:
  // The dialogue pane has this many lines.
  explicit Chat(std::int64_t lines);

  void WriteLine() { dialogue_.WriteDialogueLine(kMessage, Sender::Remote, CommandPane::Keep); }
  // Resizes the dialogue pane only.
  void Resize(int width, int height);
  // Paints the dialogue pane at once.
  void Paint();
  // Whether the window paints what changes.
  void SetPainted(bool isPainted);

  void OpenFindBar(std::u16string_view words);
  void CloseFindBar() { find_.cmdFindClose_Click(); }
  void FindNext() { find_.cmdFindNext_Click(); }
  // A long dialogue is searched between events.
  bool IsSearching() {
    return platform_.View().frmMain.findBar.lblFindResult.Caption() == u"Searching\u2026";
  }

  // Listens on the port that it returns, and accepts the call that comes.
  std::int32_t Listen();
  std::int64_t Arrivals() const { return arrivals_; }

  RichTextBox& Pane() { return platform_.View().frmMain.rtbData; }

 private:
  qt::QtPlatform platform_;
  QWidget* const window_;
  AppState state_;
  ErrorReport errors_{state_, platform_.View(), [] {}, [] {}};
  Settings settings_{state_, platform_.View().files};
  StatusPanel statusPanel_{platform_.View(), errors_};
  DialogueLog log_{state_, platform_.View(), errors_, settings_};
  Dialogue dialogue_{state_, platform_.View(), errors_, settings_, log_};
  WireProtocol wire_{state_, platform_.View(), errors_, {dialogue_, log_, statusPanel_}};
  FindInDialogue find_{state_, platform_.View(), errors_};
  std::int64_t arrivals_ = 0;
};

// Created once for all benchmarks and kept until the program ends, since filling a long pane takes
// a while.
Chat& ChatOf(std::int64_t lines);

}  // namespace verlume
