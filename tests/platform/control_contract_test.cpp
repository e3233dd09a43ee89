// The in-memory controls keep the controls' contract.
#include "platform/control_contract.h"

#include "platform_fake/fake_controls.h"

namespace verlume {
namespace {

class FakeMaker {
 public:
  Label& label() { return label_; }
  CheckBox& checkBox() { return checkBox_; }
  Button& button() { return button_; }
  MenuEntry& entry() { return entry_; }
  Menu& menu() { return menu_; }
  Lamp& lamp() { return lamp_; }
  Picture& picture() { return picture_; }
  Window& window() { return window_; }
  void CloseByUser() { window_.Close(UnloadMode::User); }
  void WhileModal(std::function<void()> act) { window_.whileModal = std::move(act); }

 private:
  fake::FakeLabel label_;
  fake::FakeCheckBox checkBox_;
  fake::FakeButton button_;
  fake::FakeMenuEntry entry_;
  fake::FakeMenu menu_;
  fake::FakeLamp lamp_;
  fake::FakePicture picture_;
  fake::FakeWindow window_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ControlContract, FakeMaker);

}  // namespace
}  // namespace verlume
