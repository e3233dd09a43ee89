#include "platform_qt/spelling/spelling_marks.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QEvent>
#include <QSignalBlocker>
#include <QTextBlock>
#include <algorithm>

#include "platform_qt/convert/text.h"
#include "platform_qt/fonts/turn.h"
#include "platform_qt/text/readable_shade.h"

namespace verlume::qt {
namespace {

// Tells the waves from the other formats of a layout.
constexpr int kIsWave = QTextFormat::UserProperty + 2;

// A character is two units at most.
constexpr int kMostTypedAtOnce = 2;

// How long words are looked up before events are handled again.
constexpr std::chrono::milliseconds kTurnOfSpelling{5};

using FormatRanges = QList<QTextLayout::FormatRange>;

bool IsWave(const QTextLayout::FormatRange& range) {
  return range.format.hasProperty(kIsWave);
}

void ShowFormats(const QTextBlock& block, const FormatRanges& formats) {
  if (formats == block.layout()->formats()) return;
  block.layout()->setFormats(formats);
  auto* document = const_cast<QTextDocument*>(block.document());
  // A wave moves no letter: there is nothing that the widget need be told.
  const QSignalBlocker quiet(document->documentLayout());
  document->markContentsDirty(block.position(), block.length());
}

void ReplaceWaves(const QTextBlock& block, const FormatRanges& waves) {
  FormatRanges formats = block.layout()->formats();
  formats.removeIf(IsWave);
  ShowFormats(block, formats + waves);
}

// Whether a word may go on in the block behind this one.
bool GoesOn(const QTextBlock& block) {
  const QTextBlock next = block.next();
  if (!block.isValid() || !next.isValid()) return false;
  const QString end = block.text().right(1);
  const QString start = next.text().left(1);
  return !end.isEmpty() && !end[0].isSpace() && !start.isEmpty() && !start[0].isSpace();
}

// How a dictionary spells it.
QString LookedUp(QString word) {
  word.replace(QChar(0x2019), u'\'').replace(QChar(0x02BC), u'\'');
  return word.normalized(QString::NormalizationForm_C);
}

// Keeps the waves under their words while these move, until the words are looked up again.
void MoveWaves(const QTextBlock& block, int place, int removed, int added) {
  FormatRanges formats = block.layout()->formats();
  if (std::ranges::none_of(formats, IsWave)) return;
  formats.removeIf([&](const QTextLayout::FormatRange& range) {
    const bool isTouched = range.start < place + removed && range.start + range.length > place;
    return IsWave(range) && isTouched;
  });
  for (QTextLayout::FormatRange& range : formats) {
    if (IsWave(range) && range.start >= place + removed) range.start += added - removed;
  }
  block.layout()->setFormats(formats);
}

}  // namespace

SpellingMarks::SpellingMarks(QPlainTextEdit& pane, Dictionaries& dictionaries)
    : pane_(pane), dictionaries_(dictionaries) {
  connect(pane.document(), &QTextDocument::contentsChange, this, &SpellingMarks::NoteChange);
  connect(&pane, &QPlainTextEdit::cursorPositionChanged, this, &SpellingMarks::NoteCaret);
  pane.installEventFilter(this);
  connect(&nextTurn_, &QTimer::timeout, this, &SpellingMarks::RunTurn);
}

void SpellingMarks::SetOn(bool on) {
  isOn_ = on;
  isCommand_ = pane_.document()->firstBlock().text().startsWith(u'/');
  if (isOn_) return CheckAll();
  to_ = from_ - 1;
  nextTurn_.stop();
  for (QTextBlock block = pane_.document()->firstBlock(); block.isValid(); block = block.next()) {
    ReplaceWaves(block, {});
  }
  pane_.viewport()->update();
}

void SpellingMarks::CheckAll() {
  CheckLater(0, pane_.document()->characterCount() - 1);
}

void SpellingMarks::GoOn() {
  if (isOn_ && to_ >= from_) nextTurn_.start(0);
}

void SpellingMarks::CheckLater(int from, int to) {
  const bool hasMore = to_ >= from_;
  from_ = hasMore ? std::min(from_, from) : from;
  to_ = hasMore ? std::max(to_, to) : to;
  GoOn();
}

void SpellingMarks::NoteChange(int position, int removed, int added) {
  if (!isOn_) return;
  const QTextBlock first = pane_.document()->findBlock(position);
  const bool isWithinOne = position + added < first.position() + first.length();
  const int touched = isWithinOne ? removed : first.length() + removed;
  MoveWaves(first, position - first.position(), touched, added);
  if (to_ > position) to_ = std::max(position, to_ + added - removed);
  typed_.reset();
  // More at once was not typed: it was pasted, or put there by the program.
  if (added <= kMostTypedAtOnce) {
    typed_ = std::min(position + added, pane_.document()->characterCount() - 1);
  }
  const bool wasCommand = isCommand_;
  isCommand_ = pane_.document()->firstBlock().text().startsWith(u'/');
  if (isCommand_ != wasCommand) return CheckAll();
  CheckLater(position, position + added);
}

void SpellingMarks::NoteCaret() {
  if (!typed_) return;
  const QTextCursor caret = pane_.textCursor();
  const QTextBlock block = pane_.document()->findBlock(*typed_);
  if (caret.block() == block) {
    const int from = std::min(caret.position(), *typed_) - block.position();
    const int to = std::max(caret.position(), *typed_) - block.position();
    if (!block.text().mid(from, to - from).contains(u' ')) return;
  }
  CheckLater(*typed_, *typed_);
  typed_.reset();
}

bool SpellingMarks::eventFilter(QObject*, QEvent* event) {
  if (!isOn_) return false;
  if (event->type() == QEvent::PaletteChange) CheckAll();
  // Text that is being composed takes the place of all formats of its block's layout.
  if (event->type() == QEvent::InputMethod) {
    const int caret = pane_.textCursor().position();
    CheckLater(caret, caret);
  }
  return false;
}

void SpellingMarks::RunTurn() {
  QElapsedTimer turn;
  turn.start();
  nextTurn_.stop();
  while (to_ >= from_) {
    if (turn.hasExpired(kTurnOfSpelling.count())) {
      nextTurn_.start(kPauseBetweenTurns);
      break;
    }
    const QTextBlock block = pane_.document()->findBlock(from_);
    if (!block.isValid()) {
      to_ = from_ - 1;
      break;
    }
    const std::optional<Marks> marks = MarksOf(block);
    // The dictionary will tell when it is ready.
    if (!marks) break;
    ReplaceWaves(block, *marks);
    from_ = block.position() + block.length();
  }
  pane_.viewport()->update();
}

std::vector<spelling::Word> SpellingMarks::WordsIn(const QTextBlock& block) const {
  const std::u16string first = FromQt(pane_.document()->firstBlock().text());
  const std::size_t start = spelling::StartOfWords(first);
  const bool isFirst = block.blockNumber() == 0;
  if (start > 0 && start == first.size()) return {};
  std::vector<spelling::Word> words =
      spelling::WordsOf(isFirst ? std::u16string_view(first) : FromQt(block.text()));
  if (isFirst) std::erase_if(words, [&](const auto& word) { return word.start < start; });
  // A word that goes on in another block is no word that could be looked up.
  const auto length = static_cast<std::size_t>(block.length() - 1);
  std::erase_if(words, [&](const auto& word) {
    return (word.start == 0 && GoesOn(block.previous())) ||
           (word.start + word.length == length && GoesOn(block));
  });
  return words;
}

bool SpellingMarks::IsBeingTyped(const QTextBlock& block, const spelling::Word& word) const {
  const QTextCursor caret = pane_.textCursor();
  if (!typed_ || caret.block() != block) return false;
  const auto place = static_cast<std::size_t>(caret.positionInBlock());
  return word.start <= place && place <= word.start + word.length;
}

std::optional<SpellingMarks::Marks> SpellingMarks::MarksOf(const QTextBlock& block) const {
  Marks marks;
  // While text is being composed, places in the layout are none in the text.
  if (!block.layout()->preeditAreaText().isEmpty()) return marks;
  const QString text = block.text();
  for (const spelling::Word& word : WordsIn(block)) {
    if (IsBeingTyped(block, word)) continue;
    const int start = static_cast<int>(word.start);
    const int length = static_cast<int>(word.length);
    switch (dictionaries_.Check(LookedUp(text.mid(start, length)), word.script)) {
      case Dictionaries::Verdict::NotYet:
        return std::nullopt;
      case Dictionaries::Verdict::Wrong:
        marks.append({start, length, Wave()});
        break;
      case Dictionaries::Verdict::Right:
        break;
    }
  }
  return marks;
}

QTextCharFormat SpellingMarks::Wave() const {
  const Color ground = FromQt(pane_.palette().color(QPalette::Base));
  QTextCharFormat wave;
  wave.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
  wave.setUnderlineColor(ToQt(ReadableShade(FromQt(QColor(0xD0, 0, 0)), ground)));
  wave.setProperty(kIsWave, true);
  return wave;
}

std::optional<SpellingMarks::WordAt> SpellingMarks::FindWord(const QTextCursor& cursor) const {
  const QTextBlock block = cursor.block();
  const auto place = static_cast<std::size_t>(cursor.positionInBlock());
  for (const spelling::Word& word : WordsIn(block)) {
    if (place < word.start || place > word.start + word.length) continue;
    QTextCursor selected(block);
    const int start = block.position() + static_cast<int>(word.start);
    selected.setPosition(start);
    selected.setPosition(start + static_cast<int>(word.length), QTextCursor::KeepAnchor);
    return WordAt{selected, LookedUp(selected.selectedText()), word.script};
  }
  return std::nullopt;
}

}  // namespace verlume::qt
