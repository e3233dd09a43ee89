// Qt's controls keep the controls' contract.
#include "platform/control_contract.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/windows/window.h"

namespace verlume::qt {
namespace {

class QtMaker {
 public:
  Label& label() { return label_; }
  CheckBox& checkBox() { return checkBox_; }
  Button& button() { return button_; }
  MenuEntry& entry() { return entry_; }
  Menu& menu() { return menu_; }
  Lamp& lamp() { return lamp_; }
  Picture& picture() { return picture_; }
  Window& window() { return window_; }
  void CloseByUser() { form_.close(); }
  void WhileModal(std::function<void()> act) { QTimer::singleShot(0, &form_, std::move(act)); }

 private:
  QWidget form_;
  QMenu qtMenu_{&form_};
  QtLabel label_{new ElidedLabel(&form_)};
  QtCheckBox checkBox_{new QCheckBox(&form_)};
  QtButton button_{new QPushButton(&form_)};
  QtMenuEntry entry_{qtMenu_.addAction(QString())};
  QtMenu menu_{&qtMenu_};
  QtLamp lamp_{new LampWidget(&form_)};
  QtPicture picture_{new PictureWidget(&form_)};
  QtWindow window_{&form_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ControlContract, QtMaker);

}  // namespace
}  // namespace verlume::qt
