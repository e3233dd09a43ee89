// The window of the people whose keys have been met, frmPeople, as the logic sees it: references to
// its controls, by name. It is shown in the middle of its parent. Escape presses cmdPeopleClose.
#pragma once

#include "platform/control.h"
#include "platform/table_box.h"
#include "platform/window.h"

namespace verlume {

struct PeopleWindow {
  Window& window;
  Label& lblPeopleNone;  // in the place of the table while this is not empty
  // Columns: the user's own name for them, what they call themselves, when first and last, how it
  // is known that the key is theirs.
  TableBox& lstPeople;
  Panel& fraPerson;  // with what follows in it: the selected person
  Label& lblPeopleNameCaption;
  TextField& txtPeopleName;
  CheckBox& chkPeopleVerified;
  Label& lblPeopleKeyCaption;
  Label& lblPeopleKey;  // the fingerprint, which can be selected and copied
  Button& cmdPeopleForget;
  Button& cmdPeopleClose;
};

}  // namespace verlume
