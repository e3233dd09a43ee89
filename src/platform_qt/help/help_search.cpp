#include "platform_qt/help/help_search.h"

#include <QStringList>
#include <algorithm>

namespace verlume::qt {
namespace {

// A hit in a title counts more than many in the text; one at the start of a word more than one
// inside.
constexpr int kTitleWeight = 20;
constexpr int kWordStartWeight = 3;
constexpr int kSnippetBefore = 40;
constexpr int kSnippetLength = 130;

QChar WithoutAccent(QChar unit) {
  while (unit.decompositionTag() == QChar::Canonical) unit = unit.decomposition().front();
  return unit.toCaseFolded();
}

QStringList WordsOf(const QString& query) {
  return FoldForSearch(query.normalized(QString::NormalizationForm_C))
      .split(u' ', Qt::SkipEmptyParts);
}

bool StartsWord(const QString& text, qsizetype place) {
  return place == 0 || !text[place - 1].isLetterOrNumber();
}

int Hits(const QString& folded, const QString& word) {
  int hits = 0;
  for (qsizetype at = folded.indexOf(word); at >= 0; at = folded.indexOf(word, at + word.size())) {
    hits += StartsWord(folded, at) ? kWordStartWeight : 1;
  }
  return hits;
}

// 0 if a word is missing.
int Score(const HelpTopic& topic, const QStringList& words) {
  const QString title = FoldForSearch(topic.title);
  int score = 0;
  for (const QString& word : words) {
    const int hits = kTitleWeight * Hits(title, word) + Hits(topic.folded, word);
    if (hits == 0) return 0;
    score += hits;
  }
  return score;
}

// The first hit at the start of a word, else the first hit, else 0.
qsizetype FirstHit(const QString& folded, const QStringList& words) {
  qsizetype inside = -1;
  for (const QString& word : words) {
    for (qsizetype at = folded.indexOf(word); at >= 0; at = folded.indexOf(word, at + 1)) {
      if (StartsWord(folded, at)) return at;
      if (inside < 0) inside = at;
    }
  }
  return std::max<qsizetype>(inside, 0);
}

QString Snippet(const HelpTopic& topic, const QStringList& words) {
  const QString& text = topic.text;
  if (text.size() <= kSnippetLength) return text;
  const qsizetype hit = FirstHit(topic.folded, words);
  qsizetype start = std::max<qsizetype>(hit - kSnippetBefore, 0);
  // Cut at the ends of words if they are near.
  if (start > 0) start = std::min(text.indexOf(u' ', start) + 1, hit);
  qsizetype end = std::min(start + kSnippetLength, text.size());
  const qsizetype wordEnd = text.lastIndexOf(u' ', end);
  if (end < text.size() && wordEnd > start) end = wordEnd;
  const QString ellipsis = QStringLiteral("…");
  return (start > 0 ? ellipsis : QString()) + text.mid(start, end - start) +
         (end < text.size() ? ellipsis : QString());
}

}  // namespace

QString FoldForSearch(const QString& text) {
  QString folded = text;
  for (QChar& unit : folded) unit = unit.isSpace() ? QChar(u' ') : WithoutAccent(unit);
  return folded;
}

std::vector<HelpFinding> SearchHelp(const HelpBook& book, const QString& query) {
  const QStringList words = WordsOf(query);
  if (words.isEmpty()) return {};
  std::vector<std::pair<int, const HelpTopic*>> scored;
  for (const HelpChapter& chapter : book.Chapters()) {
    for (const HelpTopic& topic : chapter.topics) {
      if (const int score = Score(topic, words)) scored.emplace_back(score, &topic);
    }
  }
  std::stable_sort(scored.begin(), scored.end(),
                   [](const auto& one, const auto& other) { return one.first > other.first; });
  std::vector<HelpFinding> findings;
  findings.reserve(scored.size());
  for (const auto& [score, topic] : scored) findings.push_back({topic, Snippet(*topic, words)});
  return findings;
}

std::vector<TextSpan> FindWords(const QString& text, const QString& query) {
  const QString folded = FoldForSearch(text);
  std::vector<TextSpan> spans;
  for (const QString& word : WordsOf(query)) {
    for (qsizetype at = folded.indexOf(word); at >= 0; at = folded.indexOf(word, at + 1)) {
      spans.push_back({at, word.size()});
    }
  }
  std::sort(spans.begin(), spans.end(),
            [](const TextSpan& one, const TextSpan& other) { return one.start < other.start; });
  return spans;
}

}  // namespace verlume::qt
