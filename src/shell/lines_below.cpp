#include "shell/lines_below.h"

#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kOneNewLine = {u"%1 new line", u"%1 νέα γραμμή"};
constexpr TextPair kNewLines = {u"%1 new lines", u"%1 νέες γραμμές"};
constexpr TextPair kLeadsDown = {u"Go to the end of the dialogue (Ctrl+End)",
                                 u"Μετάβαση στο τέλος του διαλόγου (Ctrl+End)"};

}  // namespace

void ShowLinesBelow(const AppState& state, const MainWindow& frmMain) {
  const std::size_t lines = state.LinesBelow;
  const NewLinesButton& button = frmMain.newLines;
  if (lines > 0) {
    button.cmdNewLines.SetCaption(
        (lines == 1 ? kOneNewLine : kNewLines)
            .Fill(state.IsGreek, {DecimalText(static_cast<long long>(lines))}));
    button.cmdNewLines.SetToolTip(kLeadsDown.In(state.IsGreek));
  }
  if (button.fraNewLines.Visible() != (lines > 0)) button.fraNewLines.SetVisible(lines > 0);
}

}  // namespace verlume
