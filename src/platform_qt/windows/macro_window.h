// frmMacros, implemented with Qt. Each widget has the name of its control.
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

  // Escape must not close the window: it empties the text while that is being edited.
  void reject() override {}

 protected:
  // Centred on the screen, unless the window returns from the task bar; then it stays where the
  // user put it.
  void showEvent(QShowEvent* event) override;
  // Enter presses only the button that has the focus.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QCheckBox* NewBox(const char* name);
  QPushButton* NewButton(const char* name);
  ElidedLabel* NewColour();
  void LayOut();
  void Centre();

  QVBoxLayout* textSide_ = nullptr;
};

// Tab skips the text while it is locked, because it would pass the focus on.
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

  // The logic's view of the window.
  MacroWindow view_;
};

}  // namespace verlume::qt
