// The window of the people whose keys have been met, in memory.
#pragma once

#include "platform/people_window.h"
#include "platform_fake/fake_controls.h"

namespace verlume::fake {

struct FakePeopleWindow {
  FakePeopleWindow();
  ~FakePeopleWindow();

  FakeWindow window;
  FakeLabel lblPeopleNone;
  FakeTableBox lstPeople;
  FakePanel fraPerson;
  FakeLabel lblPeopleNameCaption;
  FakeTextField txtPeopleName;
  FakeCheckBox chkPeopleVerified;
  FakeLabel lblPeopleKeyCaption;
  FakeLabel lblPeopleKey;
  FakeButton cmdPeopleForget;
  FakeButton cmdPeopleClose;

  // The logic's view of the window.
  PeopleWindow frmPeople;
};

}  // namespace verlume::fake
