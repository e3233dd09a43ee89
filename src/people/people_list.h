// The window Communication > People: whose keys have been met, and what the user says about them.
#pragma once

#include <vector>

#include "people/people.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class PeopleList {
 public:
  PeopleList(AppState& state, Platform& platform, ErrorReport& errors, People& people)
      : state_(state), platform_(platform), errors_(errors), people_(people) {}

  // Shows the window, and returns when it has been closed.
  void mnuCommPeople_Click();
  void lstPeople_Click();
  void txtPeopleName_Change();
  void chkPeopleVerified_Click();
  // Asks first.
  void cmdPeopleForget_Click();
  void cmdPeopleClose_Click();

  // Somebody has been met, or is known better. Does nothing while the window is not shown.
  void Refresh();

 private:
  // The selected one; null for none.
  const KnownPeer* Selected() const;
  void FillTable();
  void ShowSelected();
  // Gives the person the name that was typed. It is not written with each letter.
  void KeepName();
  TableBox::Row RowOf(const KnownPeer& peer) const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  People& people_;
  bool isShown_ = false;
  bool isFilling_ = false;            // the controls are being filled by the program
  bool isNameTyped_ = false;          // and not kept yet
  std::vector<KeyFingerprint> keys_;  // of each row
  KeyFingerprint selected_{};         // whose name is in the text field
};

}  // namespace verlume
