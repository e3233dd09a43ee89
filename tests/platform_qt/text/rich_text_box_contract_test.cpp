#include <QCoreApplication>
#include <QKeyEvent>

#include "platform/rich_text_box_contract.h"
#include "platform_qt/text/rich_text_box.h"

namespace verlume {
namespace {

struct OnQt {
  std::unique_ptr<RichTextBox> MakeBox(bool singleLine) {
    return std::make_unique<qt::QtRichTextBox>(&window, files,
                                               singleLine ? qt::Lines::Single : qt::Lines::Many);
  }
  void Type(RichTextBox& box, std::u16string_view keys) {
    QWidget* widget = static_cast<qt::QtRichTextBox&>(box).widget();
    for (const char16_t c : keys) {
      int key = QChar(c).toUpper().unicode();
      if (c == u'\r') key = Qt::Key_Return;
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(QChar(c)));
      QCoreApplication::sendEvent(widget, &press);
    }
  }

  QWidget window;
  fake::FakeFileSystem files;
};

VERLUME_RICH_TEXT_BOX_CONTRACT(OnQt, OnQt);

}  // namespace
}  // namespace verlume
