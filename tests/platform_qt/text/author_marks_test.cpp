#include "platform_qt/text/author_marks.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/readable_shade.h"

namespace verlume::qt {
namespace {

constexpr Author kMarked[] = {Author::User, Author::Peer, Author::File};

QImage Drawn(Author author, qreal scale = 1) {
  QImage image(QSize(kMarkWidth, 16) * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  DrawMark(painter, author, QRectF(0, 0, kMarkWidth, 16));
  return image;
}

// Every colour that the user may give to the pane, in steps.
TEST(AuthorMarks, EveryMarkIsReadableOnEveryGround) {
  for (int red = 0; red < 256; red += 15) {
    for (int green = 0; green < 256; green += 15) {
      for (int blue = 0; blue < 256; blue += 15) {
        const QColor ground = MarginGround(QColor(red, green, blue));
        for (const Author author : kMarked) {
          ASSERT_GE(Contrast(FromQt(MarkColor(author, ground)), FromQt(ground)), 3.0)
              << red << ' ' << green << ' ' << blue << ' ' << static_cast<int>(author);
        }
      }
    }
  }
}

TEST(AuthorMarks, TheMarginIsNotThePanesColour) {
  for (const QColor& pane : {QColor(Qt::white), QColor(Qt::black), QColor(Qt::gray)}) {
    EXPECT_NE(MarginGround(pane), pane);
  }
}

TEST(AuthorMarks, AnAuthorIsToldByTheColourAndByTheShape) {
  for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black)}) {
    EXPECT_NE(MarkColor(Author::User, ground), MarkColor(Author::Peer, ground));
    EXPECT_NE(MarkColor(Author::User, ground), MarkColor(Author::File, ground));
    EXPECT_NE(MarkColor(Author::Peer, ground), MarkColor(Author::File, ground));
  }
  EXPECT_NE(Drawn(Author::User), Drawn(Author::Peer));
  EXPECT_NE(Drawn(Author::User), Drawn(Author::File));
  EXPECT_NE(Drawn(Author::Peer), Drawn(Author::File));
}

TEST(AuthorMarks, NobodyHasNoMarkAndThePeerOne) {
  QImage empty = Drawn(Author::None);
  empty.fill(Qt::white);
  EXPECT_EQ(Drawn(Author::None), empty);
  EXPECT_EQ(Drawn(Author::PeerReadingAlike), Drawn(Author::Peer));
  EXPECT_EQ(Drawn(Author::PeerWithBrackets), Drawn(Author::Peer));
}

// Nothing between black and white: no edge lies between two pixels.
TEST(AuthorMarks, TheBarIsSharpAtEveryScale) {
  for (const qreal scale : {1.0, 2.0}) {
    const QImage image = Drawn(Author::User, scale);
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, image.height() / 2);
      EXPECT_TRUE(pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255)) << x << ' ' << scale;
    }
  }
}

}  // namespace
}  // namespace verlume::qt
