#include "platform_qt/text/readable_text.h"

#include <QAbstractTextDocumentLayout>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/readable_shade.h"

namespace verlume::qt {
namespace {

// Tells the shades from the formats that an input method gives the text which it composes.
constexpr int kIsShade = QTextFormat::UserProperty + 1;

using FormatRanges = QList<QTextLayout::FormatRange>;

Color ColorOr(const QBrush& brush, Color other) {
  return brush.style() == Qt::NoBrush ? other : FromQt(brush.color());
}

// Text without a colour of its own is painted in that of the palette, which is readable.
void AddShade(FormatRanges& shades, int start, int length, const QTextCharFormat& format,
              Color background) {
  if (format.foreground().style() == Qt::NoBrush) return;
  const Color color = FromQt(format.foreground().color());
  const Color shade = ReadableShade(color, ColorOr(format.background(), background));
  if (shade == color) return;
  QTextCharFormat painted;
  painted.setForeground(ToQt(shade));
  painted.setProperty(kIsShade, true);
  shades.append({start, length, painted});
}

// Text that is being composed stands in the layout, but not in the document.
FormatRanges ShadesOf(const QTextBlock& block, Color background) {
  FormatRanges shades;
  const int composed = static_cast<int>(block.layout()->preeditAreaText().size());
  const int place = std::max(block.layout()->preeditAreaPosition() - 1, 0);
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    const QTextFragment fragment = it.fragment();
    const int start = fragment.position() - block.position();
    const int end = start + fragment.length();
    const int shift = start > place ? composed : 0;
    const int growth = start <= place && place < end ? composed : 0;
    AddShade(shades, start + shift, fragment.length() + growth, fragment.charFormat(), background);
  }
  return shades;
}

FormatRanges PaintedFormats(const QTextBlock& block, Color background) {
  FormatRanges formats = ShadesOf(block, background);
  for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
    if (range.format.hasProperty(kIsShade)) continue;
    formats.append(range);
    AddShade(formats, range.start, range.length, range.format, background);
  }
  return formats;
}

}  // namespace

QPalette PanePalette(Color background) {
  const auto shade = [](const QColor& color, const QColor& ground) {
    return ToQt(ReadableShade(FromQt(color), FromQt(ground)));
  };
  const QColor base = ToQt(background);
  const QColor highlight = shade(QColor(0x30, 0x66, 0xB0), base);
  QPalette palette;
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::Text, shade(Qt::black, base));
  palette.setColor(QPalette::PlaceholderText, shade(Qt::darkGray, base));
  palette.setColor(QPalette::Highlight, highlight);
  palette.setColor(QPalette::HighlightedText, shade(Qt::white, highlight));
  return palette;
}

void MakeReadable(const QTextBlock& first, qreal height, Color background) {
  auto* document = const_cast<QTextDocument*>(first.document());
  QAbstractTextDocumentLayout* layout = document->documentLayout();
  int changedFrom = -1;
  int changedTo = -1;
  for (QTextBlock block = first; block.isValid() && height > 0; block = block.next()) {
    const FormatRanges formats = PaintedFormats(block, background);
    if (formats != block.layout()->formats()) {
      block.layout()->setFormats(formats);
      if (changedFrom < 0) changedFrom = block.position();
      changedTo = block.position() + block.length();
    }
    height -= layout->blockBoundingRect(block).height();
  }
  if (changedFrom < 0) return;
  // A colour moves no letter: there is nothing that the widget need be told.
  const QSignalBlocker quiet(layout);
  document->markContentsDirty(changedFrom, changedTo - changedFrom);
}

}  // namespace verlume::qt
