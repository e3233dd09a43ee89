#include "platform/rich_text_box_contract.h"

#include "platform_fake/fake_rich_text_box.h"

namespace verlume {
namespace {

struct InMemory {
  std::unique_ptr<RichTextBox> MakeBox(bool singleLine) {
    using Box = fake::FakeRichTextBox;
    return std::make_unique<Box>(files, singleLine ? Box::Lines::Single : Box::Lines::Many);
  }
  void Type(RichTextBox& box, std::u16string_view keys) {
    static_cast<fake::FakeRichTextBox&>(box).Type(keys);
  }

  fake::FakeFileSystem files;
};

VERLUME_RICH_TEXT_BOX_CONTRACT(InMemory, InMemory);

}  // namespace
}  // namespace verlume
