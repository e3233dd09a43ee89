// What is done to a real rich-text box, on Qt's offscreen platform, and to the box in memory: both
// must show the same text. The first byte says what kind of box it is. The rest are steps, with a
// byte 0x1E between them; the first byte of a step says what is done with its other bytes.
#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "platform_fake/fake_file_system.h"
#include "platform_fake/fake_rich_text_box.h"
#include "platform_qt/text/rich_text_box.h"
#include "richtext/code_pages.h"
#include "richtext/rtf_documents.h"
#include "richtext/rtf_reader.h"

namespace verlume::fuzz {
namespace {

using fake::FakeRichTextBox;
using qt::QtRichTextBox;

// Of 8 MiB that are slow to lay out a byte takes 1,700 ns and 62 bytes.
constexpr CostLimits kLimits = {.nanoseconds = 20'000, .heapBytes = 250};

// Behind so many steps the rest is one step: most read the whole text.
constexpr int kMostSteps = 100;

// Whatever a box keeps of earlier inputs is gone after so many.
constexpr int kInputsPerBox = 1'000;

class Application {
 public:
  Application() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "insertion";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments);  // as long as the process
  }
};

// A box of each kind, with the box in memory beside it.
struct Boxes {
  explicit Boxes(bool isSingle)
      : real(&window, files, isSingle ? qt::Lines::Single : qt::Lines::Many),
        model(files, isSingle ? FakeRichTextBox::Lines::Single : FakeRichTextBox::Lines::Many) {
    window.resize(500, 300);
    window.show();
  }

  void Clear(bool isLocked) {
    for (RichTextBox* box : {static_cast<RichTextBox*>(&real), static_cast<RichTextBox*>(&model)}) {
      box->SetText(u"");
      box->SetLocked(isLocked);
    }
  }

  QWidget window;
  fake::FakeFileSystem files;
  QtRichTextBox real;
  FakeRichTextBox model;
};

Boxes& BoxesFor(bool isSingle) {
  static const Application application;
  // Never destroyed: Qt takes no windows apart while the process ends.
  static auto& boxes = *new std::array<std::unique_ptr<Boxes>, 2>;
  static int inputs = 0;
  if (inputs++ % kInputsPerBox == 0) {
    for (auto& each : boxes) each.reset();
  }
  auto& kept = boxes[isSingle ? 1 : 0];
  if (!kept) kept = std::make_unique<Boxes>(isSingle);
  return *kept;
}

SelectionFormat FormatOf(std::string_view bytes) {
  const auto byte = [&](std::size_t i) {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0u;
  };
  SelectionFormat format;
  if (byte(0) & 1) format.bold = byte(0) & 2;
  if (byte(0) & 4) format.italic = byte(0) & 8;
  if (byte(0) & 16) format.underline = byte(0) & 32;
  if (byte(0) & 64) format.strikethrough = byte(0) & 128;
  if (byte(1) != 0) format.fontSize = 1 + byte(1) % 72;
  if (byte(2) != 0) format.color = static_cast<Color>(byte(2) << 16 | byte(3) << 8 | byte(4));
  if (bytes.size() > 5) format.fontName = richtext::DecodeGreek(bytes.substr(5));
  return format;
}

// As a line is written into the dialogue.
void Append(RichTextBox& box, std::string_view bytes) {
  const RichTextUpdate update(box);
  box.Select(box.TextLength(), 0);
  if (box.TextLength() > 0) box.SetSelText(u"\r\n");
  box.SetSelText(u"<Bob>");
  for (auto& each : richtext::ReadRtfDocuments(richtext::DecodeGreek(bytes))) {
    box.SetSelDocument(std::move(each.document));
  }
}

void SelectAt(RichTextBox& box, std::string_view bytes) {
  const auto number = [&](std::size_t i) -> std::size_t {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0u;
  };
  box.Select(number(0) | number(1) << 8, number(2));
}

void Do(RichTextBox& box, char what, std::string_view bytes) {
  switch (what) {
    case 'f':
      return box.SetSelFormat(FormatOf(bytes));
    case 's':
      return SelectAt(box, bytes);
    case 't':
      return box.SetSelText(richtext::DecodeUtf8OrGreek(bytes));
    case 'r':
      return box.SetRtf(richtext::DecodeGreek(bytes));
    case 'd':
      return box.SetSelDocument(richtext::ReadRtf(bytes));
    default:
      return Append(box, bytes);
  }
}

void CheckSame(const Boxes& boxes) {
  Check(boxes.real.Text() == boxes.model.Text(), "a box shows what was put into it");
  Check(boxes.real.TextLength() == boxes.model.TextLength(), "a box knows how long its text is");
  Check(boxes.real.SelStart() == boxes.model.SelStart() &&
            boxes.real.SelLength() == boxes.model.SelLength(),
        "a box has selected what was selected");
  Check(richtext::ReadRtf(boxes.real.Rtf()).text == boxes.model.Text(),
        "the rich text of a box says what it shows");
}

void RunStep(Boxes& boxes, std::string_view step) {
  const char what = step.empty() ? 'a' : step[0];
  const std::string_view bytes = step.substr(std::min<std::size_t>(1, step.size()));
  if (what == 'e') return QCoreApplication::processEvents();
  // All but appending needs the text as it will be.
  if (std::string_view("fstrd").find(what) != std::string_view::npos) (void)boxes.real.Text();
  Do(boxes.real, what, bytes);
  Do(boxes.model, what, bytes);
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  if (size == 0) return 0;
  std::string_view steps(reinterpret_cast<const char*>(data + 1), size - 1);
  Boxes& boxes = BoxesFor(data[0] & 1);
  boxes.Clear((data[0] & 2) == 0);
  const Costs costs(size, kLimits);
  for (int count = 0; !steps.empty(); ++count) {
    const std::size_t found = count < kMostSteps ? steps.find('\x1E') : steps.npos;
    const std::size_t end = std::min(found, steps.size());
    RunStep(boxes, steps.substr(0, end));
    steps.remove_prefix(std::min(end + 1, steps.size()));
  }
  CheckSame(boxes);
  costs.CheckHeap();
  return 0;
}
