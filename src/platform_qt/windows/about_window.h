// frmAbout, implemented with Qt. Each widget has the name of its control.
#pragma once

#include "platform/about_window.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/windows/modal_form.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {

class AboutForm : public ModalForm {
 public:
  // The window shows the icon of `mainWindow`.
  explicit AboutForm(QWidget* mainWindow);

  PictureWidget* const picIcon;
  QLabel* const lblTitle;
  QLabel* const lblVersion;
  QLabel* const lblDescription;
  QLabel* const lblDisclaimer;
  QLabel* const lblCredit;
  QPushButton* const cmdOK;
  QPushButton* const cmdSysInfo;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLabel* NewText(const char* name);
  QPushButton* NewButton(const char* name);
  void LayOut();
};

class QtAboutWindow {
 public:
  explicit QtAboutWindow(QWidget* mainWindow);

  AboutWindow& View() { return view_; }
  AboutForm& form() { return form_; }

 private:
  AboutForm form_;

  QtWindow window{&form_};
  QtPicture picIcon{form_.picIcon};
  QtLabel lblTitle{form_.lblTitle};
  QtLabel lblVersion{form_.lblVersion};
  QtLabel lblDescription{form_.lblDescription};
  QtLabel lblDisclaimer{form_.lblDisclaimer};
  QtLabel lblCredit{form_.lblCredit};
  QtButton cmdOK{form_.cmdOK};
  QtButton cmdSysInfo{form_.cmdSysInfo};

  // The logic's view of the window.
  AboutWindow view_;
};

}  // namespace verlume::qt
