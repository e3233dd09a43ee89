// frmPeople, implemented with Qt. Each widget has the name of its control.
#pragma once

#include <QStackedLayout>

#include "platform/people_window.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/table_box.h"
#include "platform_qt/windows/find_bar.h"
#include "platform_qt/windows/modal_form.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {

class PeopleForm : public ModalForm {
 public:
  explicit PeopleForm(QWidget* mainWindow);

  // The label instead of the table, or the other way round.
  void ShowNone(bool shown);

  QLabel* const lblPeopleNone;
  TableWidget* const lstPeople;
  QWidget* const fraPerson;
  QLabel* const lblPeopleNameCaption;
  QLineEdit* const txtPeopleName;
  QCheckBox* const chkPeopleVerified;
  QLabel* const lblPeopleKeyCaption;
  QLabel* const lblPeopleKey;
  QPushButton* const cmdPeopleForget;
  QPushButton* const cmdPeopleClose;

 private:
  void LayOutPerson();
  void LayOut();

  QStackedLayout* const people_;
};

// A label in the place of the table, shown while it has a caption.
class QtNoneLabel : public QtLabel {
 public:
  explicit QtNoneLabel(PeopleForm& form) : QtLabel(form.lblPeopleNone), form_(form) {}
  void SetCaption(std::u16string_view text) override;

 private:
  PeopleForm& form_;
};

class QtPeopleWindow {
 public:
  explicit QtPeopleWindow(QWidget* mainWindow);

  PeopleWindow& View() { return view_; }
  PeopleForm& form() { return form_; }
  const PeopleForm& form() const { return form_; }

 private:
  PeopleForm form_;

  QtWindow window{&form_};
  QtNoneLabel lblPeopleNone{form_};
  QtTableBox lstPeople{form_.lstPeople};
  QtPanel fraPerson{form_.fraPerson};
  QtLabel lblPeopleNameCaption{form_.lblPeopleNameCaption};
  QtTextField txtPeopleName{form_.txtPeopleName};
  QtCheckBox chkPeopleVerified{form_.chkPeopleVerified};
  QtLabel lblPeopleKeyCaption{form_.lblPeopleKeyCaption};
  QtLabel lblPeopleKey{form_.lblPeopleKey};
  QtButton cmdPeopleForget{form_.cmdPeopleForget};
  QtButton cmdPeopleClose{form_.cmdPeopleClose};

  // The logic's view of the window.
  PeopleWindow view_;
};

}  // namespace verlume::qt
