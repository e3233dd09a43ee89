#include "shell/draft.h"

#include "richtext/rtf_reader.h"

namespace verlume {

Draft::Draft(const Platform& platform) : platform_(platform) {
  const RichTextBox& pane = platform.frmMain.rtbCommands;
  if (pane.TextLength() > 0) rtf_ = pane.Rtf();
  selStart_ = pane.SelStart();
  selLength_ = pane.SelLength();
}

bool Draft::Restore(const TextStyle& style) const {
  if (rtf_.empty() || platform_.application.HasEnded()) return false;
  RichTextBox& pane = platform_.frmMain.rtbCommands;
  if (pane.TextLength() > 0) return false;
  // One update: told of the steps, the program would take the style at each insertion point on the
  // way for the user's.
  const RichTextUpdate update(pane);
  pane.SetSelDocument(richtext::ReadRtf(rtf_));
  pane.Select(selStart_, selLength_);
  if (selLength_ == 0) pane.SetSelFormat(FormatOf(style));
  return true;
}

}  // namespace verlume
