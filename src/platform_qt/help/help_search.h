// Full-text search in a help book. Case and accents make no difference, in Greek neither.
#pragma once

#include <QString>
#include <vector>

#include "platform_qt/help/help_book.h"

namespace verlume::qt {

// The text as a search compares it: every unit without its accent, in lower case. As long as the
// text, so that a place in one is the same place in the other.
QString FoldForSearch(const QString& text);

struct HelpFinding {
  const HelpTopic* topic = nullptr;
  QString snippet;  // the text around the first hit, plain
};

// The topics that hold every word of the query, as a word or as a part of one, best first. None for
// a query without words.
std::vector<HelpFinding> SearchHelp(const HelpBook& book, const QString& query);

struct TextSpan {
  qsizetype start = 0;
  qsizetype length = 0;
};

// Where the words of the query stand in a text, from its beginning to its end.
std::vector<TextSpan> FindWords(const QString& text, const QString& query);

}  // namespace verlume::qt
