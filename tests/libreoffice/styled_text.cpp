#include "libreoffice/styled_text.h"

#include <QColor>
#include <QFont>
#include <QStringList>
#include <QTextBlock>
#include <QTextCharFormat>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/text_format.h"

namespace verlume::libreoffice {
namespace {

Look LookOf(const QTextCharFormat& format) {
  const bool hasColor = format.foreground().style() != Qt::NoBrush;
  return {qt::ToQt(*qt::FromQt(format).fontName),
          format.fontPointSize(),
          hasColor ? format.foreground().color().name() : QStringLiteral("#000000"),
          format.fontWeight() >= QFont::Bold,
          format.fontItalic(),
          format.fontUnderline(),
          format.fontStrikeOut()};
}

}  // namespace

void Append(Line& line, const QString& text, const Look& look) {
  if (text.isEmpty()) return;
  if (line.empty() || line.back().look != look) line.push_back({{}, look});
  line.back().text += text;
}

StyledText StyledTextOf(const QTextDocument& document) {
  StyledText lines;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    Line& line = lines.emplace_back();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      Append(line, it.fragment().text(), LookOf(it.fragment().charFormat()));
    }
  }
  return lines;
}

QString PlainText(const StyledText& text) {
  QStringList lines;
  for (const Line& line : text) {
    QString plain;
    for (const Piece& piece : line) plain += piece.text;
    lines += plain;
  }
  return lines.join(u'\n');
}

std::size_t PieceCount(const StyledText& text) {
  std::size_t count = 0;
  for (const Line& line : text) count += line.size();
  return count;
}

void PrintTo(const Piece& piece, std::ostream* stream) {
  const Look& look = piece.look;
  *stream << look.font.toStdString() << ' ' << look.size << ' ' << look.color.toStdString() << ' '
          << (look.bold ? "b" : "") << (look.italic ? "i" : "") << (look.underline ? "u" : "")
          << (look.strikethrough ? "s" : "") << '|';
  for (const QChar unit : piece.text) {
    const bool isPlain = unit.unicode() >= 0x20 && unit.unicode() < 0x7F;
    *stream << (isPlain ? QString(unit)
                        : QStringLiteral("\\u%1").arg(int{unit.unicode()}, 4, 16, QChar(u'0')))
                   .toStdString();
  }
}

}  // namespace verlume::libreoffice
