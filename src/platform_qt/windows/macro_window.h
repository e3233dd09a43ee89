// frmMacros made real: its controls bear their own names.
#pragma once

#include <QVBoxLayout>

#include "platform/file_system.h"
#include "platform/macro_window.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/list_box.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/windows/modal_form.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {

class MacroForm : public ModalForm {
 public:
  explicit MacroForm(QWidget* mainWindow);

  ListWidget* const lstMacroNames;
  QCheckBox* const chkBold;
  QCheckBox* const chkItalics;
  QCheckBox* const chkUnderlined;
  ElidedLabel* const lblColour;
  QPushButton* const cmdAdd;
  QPushButton* const cmdEdit;
  QPushButton* const cmdSave;
  QPushButton* const cmdSaveAs;
  QPushButton* const cmdCancel;
  QPushButton* const cmdDelete;
  QPushButton* const cmdRun;
  QPushButton* const cmdClose;

  // Puts the text box beside the list.
  void PlaceText(QWidget* text);

  // Escape does nothing here: it empties the text while that is edited.
  void reject() override {}

 protected:
  // In the middle of the screen, but where the user left it when it comes back from the task bar.
  void showEvent(QShowEvent* event) override;
  // Enter presses the button that has the focus, and no other.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QCheckBox* NewBox(const char* name);
  QPushButton* NewButton(const char* name);
  ElidedLabel* NewColour();
  void LayOut();
  void Centre();

  QVBoxLayout* textSide_ = nullptr;
};

// Out of the way of Tab while it is locked: it passes the keyboard on then.
class QtMacroText : public QtRichTextBox {
 public:
  QtMacroText(QWidget* parent, FileSystem& files) : QtRichTextBox(parent, files, Lines::Single) {}
  void SetLocked(bool locked) override;
};

class QtMacroWindow {
 public:
  QtMacroWindow(QWidget* mainWindow, FileSystem& files);

  MacroWindow& View() { return view_; }
  MacroForm& form() { return form_; }

 private:
  MacroForm form_;

  QtWindow window{&form_};
  QtListBox lstMacroNames{form_.lstMacroNames};
  QtMacroText rtbMacroText;
  QtButton cmdAdd{form_.cmdAdd};
  QtButton cmdEdit{form_.cmdEdit};
  QtButton cmdSave{form_.cmdSave};
  QtButton cmdSaveAs{form_.cmdSaveAs};
  QtButton cmdCancel{form_.cmdCancel};
  QtButton cmdDelete{form_.cmdDelete};
  QtButton cmdRun{form_.cmdRun};
  QtButton cmdClose{form_.cmdClose};
  QtLabel lblColour{form_.lblColour};
  QtCheckBox chkBold{form_.chkBold};
  QtCheckBox chkItalics{form_.chkItalics};
  QtCheckBox chkUnderlined{form_.chkUnderlined};

  // What the logic sees of it.
  MacroWindow view_;
};

}  // namespace verlume::qt
