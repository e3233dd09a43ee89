#include "macro_tour.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

namespace verlume::gallery {
namespace {

auto Click(const char* button) {
  return [button](QWidget* editor) {
    editor->findChild<QPushButton*>(QLatin1String(button))->click();
  };
}

void ChooseHello(QWidget* editor) {
  auto* names = editor->findChild<QListWidget*>();
  names->setCurrentItem(names->findItems("hello", Qt::MatchExactly).value(0));
}

void AskForASize(QWidget* editor) {
  Press(editor->findChild<QPlainTextEdit*>(), Qt::Key_S, QStringLiteral("\x13"),
        Qt::ControlModifier);
}

}  // namespace

std::vector<MacroStep> MacroTour() {
  return {
      {"macro-close-box", [](QWidget* editor) { editor->close(); }},
      {"macro-add", Click("cmdAdd"), {FillIn("two words"), Escape(), FillIn("goodbye")}},
      {"macro-showing", ChooseHello, {}, true},
      {"macro-delete", Click("cmdDelete")},
      {"macro-editing", Click("cmdEdit"), {}, true},
      {"macro-size", AskForASize, {FillIn("12")}},
      {"macro-save-as", Click("cmdSaveAs"), {FillIn("two words"), Escape(), FillIn("goodbye")}},
      {"macro-cancel", Click("cmdCancel"), {Yes()}},
      {"macro-new", Click("cmdAdd"), {FillIn("new")}, true},
      {"macro-nothing-to-save", Click("cmdSave")},
      {"macro-cancel-new", Click("cmdCancel"), {Yes()}},
      {"macros-closed", Click("cmdClose")},
  };
}

}  // namespace verlume::gallery
