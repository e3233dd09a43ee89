#include <gtest/gtest.h>

#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/rich_text_box.h"
#include "richtext/rtf_reader.h"

namespace verlume::qt {
namespace {

class ZoomTest : public testing::Test {
 protected:
  ZoomTest() {
    box.widget()->resize(500, 300);
    window.resize(500, 300);
    window.show();
  }
  qreal HeightOfFirstLine() {
    QTextBlock block = box.widget()->document()->firstBlock();
    box.widget()->grab();
    return block.layout()->lineAt(0).height();
  }
  void Turn(int eighths, Qt::KeyboardModifiers keys) {
    QWheelEvent turn(QPointF(9, 9), QPointF(9, 9), QPoint(), QPoint(0, eighths), Qt::NoButton, keys,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(box.widget()->viewport(), &turn);
  }

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
};

TEST_F(ZoomTest, PaintsExplicitSizesLarger) {
  for (const double size : {7.0, 11.0, 24.0}) {
    box.SetText(u"words");
    box.Select(0, 5);
    SelectionFormat format;
    format.fontName = u"Liberation Sans";
    format.fontSize = size;
    box.SetSelFormat(format);
    box.SetZoom(100);
    const qreal usual = HeightOfFirstLine();
    box.SetZoom(200);
    EXPECT_NEAR(HeightOfFirstLine(), 2 * usual, 2) << size;
    box.SetZoom(50);
    EXPECT_NEAR(HeightOfFirstLine(), usual / 2, 2) << size;
  }
}

TEST_F(ZoomTest, ChangesNothingOfTheText) {
  const auto fill = [](QtRichTextBox& filled) {
    filled.SetRtf(u"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs18 small {\\b\\fs40 large} small}");
    filled.Select(9, 0);
    filled.SetSelText(u"more");
    filled.Select(3, 2);
  };
  fill(box);
  QtRichTextBox zoomed(&window, files, Lines::Many);
  zoomed.SetZoom(200);
  fill(zoomed);
  EXPECT_EQ(zoomed.Rtf(), box.Rtf());
  EXPECT_EQ(zoomed.SelFormat().fontSize, 9);
  zoomed.SaveFile(u"/zoomed.rtf", TextFileFormat::RichText);
  box.SaveFile(u"/usual.rtf", TextFileFormat::RichText);
  EXPECT_EQ(files.ReadBytes(u"/zoomed.rtf"), files.ReadBytes(u"/usual.rtf"));
}

TEST_F(ZoomTest, TheEndStaysInView) {
  std::u16string lines;
  for (int i = 0; i < 200; ++i) lines += u"a line\n";
  box.SetText(lines);
  box.Select(box.TextLength(), 0);
  auto* bar = box.widget()->verticalScrollBar();
  ASSERT_EQ(bar->value(), bar->maximum());
  box.SetZoom(200);
  box.widget()->grab();
  EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(ZoomTest, WheelWithCtrlAsksForIt) {
  int steps = 0;
  box.onZoom = [&](int more) { steps += more; };
  Turn(120, Qt::ControlModifier);
  EXPECT_EQ(steps, 1);
  Turn(-60, Qt::ControlModifier);
  EXPECT_EQ(steps, 1) << "half a step";
  Turn(-60, Qt::ControlModifier);
  EXPECT_EQ(steps, 0);
  Turn(120, Qt::NoModifier);
  EXPECT_EQ(steps, 0);
}

}  // namespace
}  // namespace verlume::qt
