#include "people/people.h"

namespace verlume {

People::People(const AppState& state, Platform& platform, ErrorReport& errors)
    : platform_(platform), errors_(errors), file_(state, platform.files) {}

void People::Start() {
  const PeerBookTrouble trouble =
      file_.Read(book_, [this] { errors_.LogException(Procedure::PeerKnown); });
  if (trouble != PeerBookTrouble::None) platform_.dialogs.ShowMessage(file_.TroubleNote(trouble));
}

void People::Change(const std::function<void(PeerBook&)>& change) {
  change(book_);
  file_.Write(book_, [this] { errors_.LogException(Procedure::PeerKnown); });
  if (onChange) onChange();
}

}  // namespace verlume
