// Message boxes and input boxes, implemented with Qt.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs.h"
#include "platform_qt/dialogs/greek_translator.h"
#include "platform_qt/dialogs/key_clock.h"

class QMessageBox;

namespace verlume::qt {

// The parent of a new box: the active window of the program, else `mainWindow`.
QWidget* ParentOfBoxes(QWidget* mainWindow);

// Prepares a box or dialog to be shown so that it takes the keyboard only from this program's
// windows, never from another program. A box that is shown before the main window takes it: then
// the user has just started the program.
void KeepToOwnProgram(QWidget* box);

class QtDialogs : public Dialogs {
 public:
  // `mainWindow` is the parent of boxes shown while no window of the program is active.
  explicit QtDialogs(QWidget* mainWindow);

  void SetLanguage(bool isGreek) override;
  bool IsGreek() const { return isGreek_; }
  Answer ShowMessage(const Message& message) override;
  std::u16string AskText(std::u16string_view prompt, std::u16string_view title,
                         std::u16string_view defaultText) override;

 private:
  void AddButtons(QMessageBox& box, const Message& message) const;

  QPointer<QWidget> mainWindow_;
  KeyClock keyClock_;
  GreekTranslator greek_;
  bool isGreek_ = false;
};

}  // namespace verlume::qt
