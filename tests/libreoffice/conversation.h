// One user's whole program with its real window and real files, in conversation with a peer in
// memory.
#pragma once

#include <QTemporaryDir>
#include <string_view>

#include "libreoffice/styled_text.h"
#include "platform_qt/system/file_system.h"
#include "platform_qt/windows/main_window.h"
#include "shell/program/program.h"
#include "support/side.h"

namespace verlume::libreoffice {

class Conversation {
 public:
  // Anna calls, the peer accepts.
  Conversation();

  // Chooses what is typed next in the font dialog, and types.
  void Choose(const FontChoice& font);
  void Type(const QString& text);
  void PressEnter();

  // What the peer sends arrives.
  void Receive(std::u16string_view rtf);
  void ReceiveAction(std::u16string_view rtf);

  // The menu entries, with the path chosen in the file dialog. The path that was written.
  QString Save();
  void Load(const QString& path);

  // What the dialogue pane shows.
  StyledText Shown();

 private:
  void Press(int key, const QString& text);
  void ChooseEntry(const char* name);
  void AnswerRichTextIn(const QString& path);

  QTemporaryDir folder_;
  fake::FakeNetwork network_;
  fake::Side peer_;
  fake::FakePlatform fakes_{network_};
  qt::QtFileSystem files_;
  qt::QtMainWindow window_{files_};
  Platform platform_ = {window_.View(),
                        fakes_.about.frmAbout,
                        fakes_.macros.frmMacros,
                        fakes_.people.frmPeople,
                        fakes_.verify.frmVerify,
                        fakes_.reach.frmReach,
                        fakes_.socket,
                        fakes_.socket.privacy,
                        fakes_.router,
                        fakes_.addresses,
                        fakes_.dialogs,
                        fakes_.commonDialog,
                        fakes_.files,
                        fakes_.clock,
                        fakes_.locale,
                        fakes_.application,
                        fakes_.help,
                        fakes_.tools,
                        fakes_.clipboard,
                        fakes_.links,
                        fakes_.attention};
  Program program_{platform_};
};

}  // namespace verlume::libreoffice
