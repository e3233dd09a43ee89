#include "platform_qt/text/missing_scripts.h"

#include <QElapsedTimer>
#include <algorithm>

#include "platform_qt/fonts/missing_parts.h"
#include "platform_qt/fonts/turn.h"

namespace verlume::qt {
namespace {

const QTextCharFormat& InNoOtherFont() {
  static const QTextCharFormat format = [] {
    QTextCharFormat result;
    result.setFontStyleStrategy(QFont::NoFontMerging);
    return result;
  }();
  return format;
}

bool IsMark(const QTextLayout::FormatRange& range) {
  return range.format == InNoOtherFont();
}

QTextLayout::FormatRange MarkOf(const TextPart& part) {
  return {static_cast<int>(part.start), static_cast<int>(part.length), InNoOtherFont()};
}

}  // namespace

MissingScripts::MissingScripts(QTextDocument& document, InstalledScripts& installed)
    : document_(document), installed_(installed) {
  connect(&document, &QTextDocument::contentsChange, this,
          [this](int position, int removed, int added) { NoteChange(position, removed, added); });
  connect(&nextTurn_, &QTimer::timeout, this, [this] { RunTurn(); });
}

void MissingScripts::NoteChange(int position, int removed, int added) {
  const bool isBefore = position + removed <= unsureFrom_;
  unsureFrom_ = isBefore ? unsureFrom_ + added - removed : std::min(unsureFrom_, position);
  QTextBlock block = document_.findBlock(position);
  for (; block.isValid() && block.position() <= position + added; block = block.next()) Mark(block);
}

void MissingScripts::Mark(const QTextBlock& block) {
  QTextLayout& layout = *block.layout();
  // Formats of text that is being composed have places of their own.
  if (!layout.preeditAreaText().isEmpty()) return;
  const QString text = block.text();
  const QList<QTextLayout::FormatRange> before = layout.formats();
  if (!NeedsALook(text) && before.isEmpty()) return;
  QList<QTextLayout::FormatRange> formats;
  const auto shows = [this](QChar::Script script) { return installed_.Shows(script); };
  for (const TextPart& part : PartsInMissingScripts(text, shows)) formats.append(MarkOf(part));
  if (!installed_.IsComplete() && !formats.isEmpty()) NoteUnsure(block);
  if (formats.isEmpty() && std::none_of(before.begin(), before.end(), IsMark)) return;
  // The shades of the block are added again before it is painted.
  layout.setFormats(formats);
}

void MissingScripts::NoteUnsure(const QTextBlock& block) {
  const bool isFirst = !nextTurn_.isActive();
  unsureFrom_ = isFirst ? block.position() : std::min(unsureFrom_, block.position());
  // Not started anew: text that comes turn after turn would put it off.
  if (!nextTurn_.isActive()) nextTurn_.start(kPauseBetweenTurns);
}

void MissingScripts::RunTurn() {
  if (!installed_.IsComplete()) return installed_.RunTurn();
  QElapsedTimer turn;
  turn.start();
  while (nextTurn_.isActive() && !turn.hasExpired(kTurn.count())) MarkNext();
}

// Lays the block out at once, so that a turn ends where that takes long.
void MissingScripts::MarkNext() {
  const QTextBlock block = document_.findBlock(unsureFrom_);
  if (!block.isValid()) return nextTurn_.stop();
  const QList<QTextLayout::FormatRange> before = block.layout()->formats();
  Mark(block);
  unsureFrom_ = block.position() + block.length();
  if (block.layout()->formats() == before) return;
  document_.markContentsDirty(block.position(), block.length());
}

}  // namespace verlume::qt
