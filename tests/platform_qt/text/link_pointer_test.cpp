#include "platform_qt/text/link_pointer.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTest>
#include <vector>

#include "platform_fake/fake_file_system.h"
#include "platform_qt/text/rich_text_box.h"

namespace verlume::qt {
namespace {

class LinkPointerTest : public testing::Test {
 protected:
  LinkPointerTest() {
    window.resize(500, 300);
    pane->setGeometry(0, 0, 500, 300);
    pane->setFocusPolicy(Qt::NoFocus);  // a caret would blink in the pictures
    box.SetLocked(true);
    box.SetText(u"Look " + std::u16string(kAddress) + u", and\nwww.example.org");
    box.onLink = [this](std::u16string_view address) { opened.emplace_back(address); };
    window.show();
  }

  // The middle of a character.
  QPoint PlaceOf(int position) const {
    return {(LeftOf(position) + LeftOf(position + 1)) / 2, RectOf(position).center().y()};
  }
  QRect RectOf(int position) const {
    QTextCursor cursor(pane->document());
    cursor.setPosition(position);
    return pane->cursorRect(cursor);
  }
  int LeftOf(int position) const { return RectOf(position).left(); }
  void PointAt(const QPoint& place, Qt::KeyboardModifiers keys = {}) {
    QMouseEvent move(QEvent::MouseMove, place, pane->viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, keys);
    QCoreApplication::sendEvent(pane->viewport(), &move);
  }
  void Click(int position, Qt::KeyboardModifiers keys) {
    QTest::mouseClick(pane->viewport(), Qt::LeftButton, keys, PlaceOf(position));
  }
  QImage Picture() const {
    return pane->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  // Around all pixels in which the pane differs from a picture.
  QRect ChangedSince(const QImage& before) const {
    const QImage now = Picture();
    QRect changed;
    for (int y = 0; y < now.height(); ++y) {
      for (int x = 0; x < now.width(); ++x) {
        if (now.pixel(x, y) != before.pixel(x, y)) changed |= QRect(x, y, 1, 1);
      }
    }
    return changed;
  }

  static constexpr std::u16string_view kAddress = u"http://example.org/a_(b)?c=d&e#f";
  static constexpr int kStart = 5;  // of the address

  fake::FakeFileSystem files;
  QWidget window;
  QtRichTextBox box{&window, files, Lines::Many};
  QPlainTextEdit* pane = box.widget();
  std::vector<std::u16string> opened;
  const int end = kStart + static_cast<int>(kAddress.size());
};

TEST_F(LinkPointerTest, EveryPlaceOfAnAddressLeadsToTheWhole) {
  for (int place = kStart; place < end; ++place) {
    EXPECT_EQ(box.LinkAt(static_cast<std::size_t>(place)), kAddress) << place;
  }
  EXPECT_EQ(box.LinkAt(kStart - 1), u"");
  EXPECT_EQ(box.LinkAt(static_cast<std::size_t>(end)), u"") << "the comma";
  EXPECT_EQ(box.LinkAt(box.TextLength() - 1), u"https://www.example.org");
  EXPECT_EQ(box.LinkAt(box.TextLength()), u"");
  EXPECT_EQ(box.LinkAt(box.TextLength() + 100), u"");
}

TEST_F(LinkPointerTest, AnAddressIsUnderlinedWhileThePointerIsOnIt) {
  PointAt(PlaceOf(1));
  const QImage plain = Picture();
  PointAt(PlaceOf(kStart + 3));
  const QRect line = ChangedSince(plain);
  EXPECT_NEAR(line.left(), LeftOf(kStart), 2);
  EXPECT_NEAR(line.right(), LeftOf(end), 2);
  EXPECT_GT(line.top(), RectOf(kStart).center().y());
  EXPECT_LE(line.bottom(), RectOf(kStart).bottom() + 1);
  PointAt(PlaceOf(1));
  EXPECT_EQ(ChangedSince(plain), QRect());
}

TEST_F(LinkPointerTest, NothingIsUnderlinedWherePointingLeadsNowhere) {
  const QImage plain = Picture();
  PointAt({LeftOf(end) + 200, RectOf(end).center().y()});  // behind the end of the line
  EXPECT_EQ(ChangedSince(plain), QRect());
  PointAt({LeftOf(kStart) + 3, pane->viewport()->height() - 2});  // below the text
  EXPECT_EQ(ChangedSince(plain), QRect());
  box.onLink = nullptr;
  PointAt(PlaceOf(kStart + 3));
  EXPECT_EQ(ChangedSince(plain), QRect());
}

TEST_F(LinkPointerTest, AHandShowsThatAClickOpens) {
  PointAt(PlaceOf(kStart), Qt::ControlModifier);
  EXPECT_EQ(pane->viewport()->cursor().shape(), Qt::PointingHandCursor);
  PointAt(PlaceOf(kStart));
  EXPECT_EQ(pane->viewport()->cursor().shape(), Qt::IBeamCursor);
  PointAt(PlaceOf(1), Qt::ControlModifier);
  EXPECT_EQ(pane->viewport()->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(LinkPointerTest, AClickWithCtrlOpensTheWholeAddress) {
  Click(kStart + 3, Qt::ControlModifier);
  EXPECT_EQ(opened, std::vector{std::u16string(kAddress)});
  const int second = pane->document()->lastBlock().position();
  Click(second + 6, Qt::ControlModifier);
  EXPECT_EQ(opened.size(), 2u);
  EXPECT_EQ(opened.back(), u"https://www.example.org");
}

TEST_F(LinkPointerTest, NoOtherClickOpensIt) {
  Click(kStart + 3, Qt::NoModifier);
  Click(kStart + 3, Qt::ShiftModifier);
  Click(kStart + 3, Qt::ControlModifier | Qt::ShiftModifier);
  Click(1, Qt::ControlModifier);
  EXPECT_TRUE(opened.empty());
}

TEST_F(LinkPointerTest, WhoMovesAwayBeforeTheReleaseOpensNothing) {
  QTest::mousePress(pane->viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(kStart + 3));
  QTest::mouseRelease(pane->viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(1));
  EXPECT_TRUE(opened.empty());
  EXPECT_FALSE(box.IsPressed());
}

TEST_F(LinkPointerTest, ALongTextWithoutBlanksCostsNothing) {
  constexpr std::size_t kLength = 1 << 20;
  box.SetText(u"www." + std::u16string(kLength, u'x'));
  Picture();  // lays it out
  QElapsedTimer watch;
  watch.start();
  for (const std::size_t place : {std::size_t{8}, kLength / 2, kLength}) {
    EXPECT_EQ(box.LinkAt(place), u"") << place;
  }
  PointAt({200, 150});
  EXPECT_LT(watch.elapsed(), 100);  // ms
}

}  // namespace
}  // namespace verlume::qt
