// Full-text search in a help book. Ignores case and accents, in Greek too.
#pragma once

#include <QString>
#include <vector>

#include "platform_qt/help/help_book.h"

namespace verlume::qt {

// The text folded for searching: in lower case and without accents. It has the same length, so that
// positions in both are the same.
QString FoldForSearch(const QString& text);

struct HelpFinding {
  const HelpTopic* topic = nullptr;
  QString snippet;  // plain text around the first hit
};

// The topics that contain every word of the query, as a word or part of a word, best first. Empty
// if the query has no words.
std::vector<HelpFinding> SearchHelp(const HelpBook& book, const QString& query);

struct TextSpan {
  qsizetype start = 0;
  qsizetype length = 0;
};

// The places of the query's words in a text, in order.
std::vector<TextSpan> FindWords(const QString& text, const QString& query);

}  // namespace verlume::qt
