// What a reader sees of a rich text, whoever shows it: the rich-text box or the word processor.
#pragma once

#include <QString>
#include <QTextDocument>
#include <ostream>
#include <vector>

namespace verlume::libreoffice {

// The look of a character. Text without a colour of its own is black.
struct Look {
  QString font;
  double size = 0;  // points
  QString color;    // "#rrggbb"
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  bool operator==(const Look&) const = default;
};

// Characters of one look.
struct Piece {
  QString text;
  Look look;

  bool operator==(const Piece&) const = default;
};

// Neighbours differ in look; an empty line has no pieces.
using Line = std::vector<Piece>;
using StyledText = std::vector<Line>;

// Appends to the last piece where the look is the same.
void Append(Line& line, const QString& text, const Look& look);

// What the document of a rich-text box holds.
StyledText StyledTextOf(const QTextDocument& document);

QString PlainText(const StyledText& text);
std::size_t PieceCount(const StyledText& text);

// As tests print them.
void PrintTo(const Piece& piece, std::ostream* stream);

}  // namespace verlume::libreoffice
