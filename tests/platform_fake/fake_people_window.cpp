#include "platform_fake/fake_people_window.h"

namespace verlume::fake {

FakePeopleWindow::FakePeopleWindow()
    : frmPeople{
          .window = window,
          .lblPeopleNone = lblPeopleNone,
          .lstPeople = lstPeople,
          .fraPerson = fraPerson,
          .lblPeopleNameCaption = lblPeopleNameCaption,
          .txtPeopleName = txtPeopleName,
          .chkPeopleVerified = chkPeopleVerified,
          .lblPeopleKeyCaption = lblPeopleKeyCaption,
          .lblPeopleKey = lblPeopleKey,
          .cmdPeopleForget = cmdPeopleForget,
          .cmdPeopleClose = cmdPeopleClose,
      } {}

FakePeopleWindow::~FakePeopleWindow() = default;

}  // namespace verlume::fake
