#include "platform_qt/text/missing_scripts.h"

#include <QElapsedTimer>
#include <algorithm>

#include "platform_qt/text/turn.h"

namespace verlume::qt {
namespace {

// The characters before this one are in scripts that every computer shows.
constexpr char16_t kFirstToLookAt = 0x0530;

bool NeedsALook(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c >= kFirstToLookAt; });
}

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

}  // namespace

// Qt looks for one font for all that follows a letter until one of another script, blanks and
// digits too, and for what stands before the first letter.
QList<QTextLayout::FormatRange> PartsInMissingScripts(
    QStringView text, const std::function<bool(QChar::Script)>& shows) {
  QList<QTextLayout::FormatRange> parts;
  QChar::Script script = QChar::Script_Common;
  bool isMissing = false;
  for (qsizetype i = 0, next = 0; i < text.size(); i = next) {
    next = i + 1;
    char32_t c = text[i].unicode();
    if (text[i].isHighSurrogate() && next < text.size() && text[next].isLowSurrogate()) {
      c = QChar::surrogateToUcs4(text[i], text[next++]);
    }
    const QChar::Script own = QChar::script(c);
    const bool isFirst = script <= QChar::Script_Common;
    if (own > QChar::Script_Common && own != script && (isFirst || !QChar::isMark(c))) {
      script = own;
      isMissing = !shows(script);
      const qsizetype start = isFirst ? 0 : i;
      if (isMissing) parts.append({static_cast<int>(start), 0, InNoOtherFont()});
    }
    if (isMissing) parts.back().length = static_cast<int>(next) - parts.back().start;
  }
  return parts;
}

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
  QList<QTextLayout::FormatRange> formats = PartsInMissingScripts(
      text, [this](QChar::Script script) { return installed_.Shows(script); });
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
