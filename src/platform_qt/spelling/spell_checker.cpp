#include "platform_qt/spelling/spell_checker.h"

#include <QLocale>
#include <QPointer>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/rich_text.h"

namespace verlume::qt {
namespace {

constexpr qsizetype kMostSuggestions = 5;

}  // namespace

QtSpellChecker::QtSpellChecker(QPlainTextEdit* pane, const QString& folder)
    : pane_(*pane), dictionaries_(folder, QLocale::system().name()), marks_(*pane, dictionaries_) {
  dictionaries_.onReady = [this] { marks_.GoOn(); };
}

void QtSpellChecker::SetOwnWords(std::vector<std::u16string> words) {
  dictionaries_.SetOwnWords(words);
  if (IsOn()) marks_.CheckAll();
}

void QtSpellChecker::SetCaption(SpellingEntry entry, std::u16string_view caption) {
  captions_[entry] = ToQt(caption);
}

QString QtSpellChecker::CaptionOf(SpellingEntry entry) const {
  const auto place = captions_.find(entry);
  return place == captions_.end() ? QString() : place->second;
}

QList<QAction*> QtSpellChecker::SpellingActions(const QTextCursor& cursor, QObject* owner) {
  if (!IsOn()) return {};
  const std::optional<SpellingMarks::WordAt> word = marks_.FindWord(cursor);
  if (!word || dictionaries_.Check(word->text, word->script) != Dictionaries::Verdict::Wrong) {
    return {};
  }
  QList<QAction*> actions;
  for (qsizetype i = 0; i < kMostSuggestions; ++i) {
    actions.append(new QAction(CaptionOf(SpellingEntry::Searching), owner));
    actions.back()->setEnabled(false);
    actions.back()->setVisible(i == 0);
  }
  OfferSuggestions(*word, actions);
  auto* add = new QAction(CaptionOf(SpellingEntry::AddWord), owner);
  QObject::connect(add, &QAction::triggered, &marks_, [this, text = word->text] {
    if (onAddWord) onAddWord(FromQt(text));
  });
  auto* separator = new QAction(owner);
  separator->setSeparator(true);
  return actions << add << separator;
}

void QtSpellChecker::OfferSuggestions(const SpellingMarks::WordAt& word,
                                      const QList<QAction*>& places) {
  const QList<QPointer<QAction>> actions(places.begin(), places.end());
  const auto offer = [this, word, actions](const QStringList& found) {
    if (found.isEmpty() && actions.front()) {
      actions.front()->setText(CaptionOf(SpellingEntry::NoSuggestion));
    }
    for (qsizetype i = 0; i < found.size(); ++i) {
      QAction* action = actions[i];
      if (!action) return;
      action->setText(found[i]);
      action->setEnabled(true);
      action->setVisible(true);
      QObject::connect(action, &QAction::triggered, &marks_,
                       [this, word, by = found[i]] { Replace(word, by); });
    }
  };
  dictionaries_.Suggest(word.text, word.script, kMostSuggestions, offer);
}

// The word may have been changed meanwhile.
void QtSpellChecker::Replace(const SpellingMarks::WordAt& word, const QString& by) {
  const auto now = marks_.FindWord(word.place);
  if (pane_.isReadOnly() || !now || now->text != word.text) return;
  QTextCursor place = now->place;
  place.insertText(by, FormatOfFirst(place));
}

}  // namespace verlume::qt
