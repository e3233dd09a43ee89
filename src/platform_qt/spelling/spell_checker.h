// Spelling in a pane, implemented with Hunspell and the dictionaries of the system.
#pragma once

#include <QAction>
#include <map>

#include "platform/spell_checker.h"
#include "platform_qt/spelling/spelling_marks.h"

namespace verlume::qt {

class QtSpellChecker : public SpellChecker {
 public:
  // For the pane, which must outlive it, with the dictionaries of a folder.
  explicit QtSpellChecker(QPlainTextEdit* pane, const QString& folder = DictionaryFolder());

  bool HasDictionary() const override { return dictionaries_.HasAny(); }
  void SetOn(bool on) override { marks_.SetOn(on); }
  bool IsOn() const override { return marks_.IsOn(); }
  void SetOwnWords(std::vector<std::u16string> words) override;
  void SetCaption(SpellingEntry entry, std::u16string_view caption) override;

  // For a menu: what there is to choose for a wrong word at the cursor, and a separator behind it;
  // nothing for any other place. They belong to `owner`. The suggestions come as soon as they are
  // found, while the menu is open perhaps.
  QList<QAction*> SpellingActions(const QTextCursor& cursor, QObject* owner);

 private:
  void OfferSuggestions(const SpellingMarks::WordAt& word, const QList<QAction*>& places);
  void Replace(const SpellingMarks::WordAt& word, const QString& by);
  QString CaptionOf(SpellingEntry entry) const;

  QPlainTextEdit& pane_;
  std::map<SpellingEntry, QString> captions_;
  Dictionaries dictionaries_;
  SpellingMarks marks_;
};

}  // namespace verlume::qt
