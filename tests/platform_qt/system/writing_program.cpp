#include "platform_qt/system/writing_program.h"

#include <unistd.h>

#include "platform_qt/system/program_on_disk.h"
#include "support/program_copy.h"

namespace verlume::qt {
namespace {

class Writer {
 public:
  Writer(const QString& folder, int reports)
      : reports_(reports), bob_(network_, u"Bob"), ann_(network_, folder) {
    bob_.Enter(u"/WAIT 4000");
    ann_.Enter(u"/CALL bob 4000");
    bob_.platform.dialogs.answers = {Answer::Yes};
    network_.RunUntilIdle();
  }

  [[noreturn]] void WriteFrom(int number) {
    Tell(Report::Ready, number);
    for (;; ++number) {
      ann_.Enter(FromQt(QString::fromStdString(LineText(number))));
      Tell(Report::Shown, number);
      ann_.Enter(u"/NICK Ann" + DecimalText(number));
      Tell(Report::Named, number);
      ann_.SaveDialogueAs(u"dialogue.txt");
      Tell(Report::Saved, number);
      SaveMacro(number);
      Tell(Report::MacroSaved, number);
      network_.RunUntilIdle();
    }
  }

 private:
  void SaveMacro(int number) {
    ann_.dialogs.typed = {u"macro"};
    if (ann_.disk.IsFile(ann_.Path(u"macros/macro.rtf"))) ann_.dialogs.answers = {Answer::Yes};
    ann_.window.rtbCommands.SetText(u"macro " + DecimalText(number) + std::u16string(1000, u'm'));
    ann_.window.mnuToolsSaveMacro.Click();
  }
  // A small write is atomic.
  void Tell(Report::Kind kind, int number) const {
    const Report report = {kind, number};
    if (::write(reports_, &report, sizeof report) != sizeof report) ::_exit(1);
  }

  int reports_;
  fake::FakeNetwork network_;
  fake::ProgramCopy bob_;
  ProgramOnDisk ann_;
};

}  // namespace

std::string LineText(int number) {
  return "line " + std::to_string(number) + std::string(number * 1237 % 9001, 'x') + ".";
}

void WriteFrom(int number, const QString& folder, int reports) {
  Writer(folder, reports).WriteFrom(number);
}

}  // namespace verlume::qt
