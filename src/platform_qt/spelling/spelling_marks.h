// The waves below words of a pane that are in no dictionary. They are formats of the blocks'
// layouts, not of the document: neither what is sent nor what the user copies has them.
#pragma once

#include <QList>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextLayout>
#include <QTimer>
#include <optional>

#include "platform_qt/spelling/dictionaries.h"

namespace verlume::qt {

class SpellingMarks : public QObject {
 public:
  // The pane and the dictionaries must outlive it. Off at first.
  SpellingMarks(QPlainTextEdit& pane, Dictionaries& dictionaries);

  void SetOn(bool on);
  bool IsOn() const { return isOn_; }
  // Looks at all words again, between events.
  void CheckAll();
  // Goes on where a dictionary was busy.
  void GoOn();

  // The word in which the cursor is; none if that is not looked up. The cursor returned selects it.
  struct WordAt {
    QTextCursor place;
    QString text;  // as it is looked up
    spelling::Script script;
  };
  std::optional<WordAt> FindWord(const QTextCursor& cursor) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Marks = QList<QTextLayout::FormatRange>;

  void NoteChange(int position, int removed, int added);
  void NoteCaret();
  void CheckLater(int from, int to);
  void RunTurn();
  // None if a dictionary is not ready yet.
  std::optional<Marks> MarksOf(const QTextBlock& block) const;
  std::vector<spelling::Word> WordsIn(const QTextBlock& block) const;
  bool IsBeingTyped(const QTextBlock& block, const spelling::Word& word) const;
  QTextCharFormat Wave() const;

  QPlainTextEdit& pane_;
  Dictionaries& dictionaries_;
  bool isOn_ = false;
  bool isCommand_ = false;  // the line begins with "/"
  // What is still to be looked at: positions in the document, from the first to the last.
  int from_ = 0;
  int to_ = -1;
  // Behind what was typed last; none once the caret has left that word. No QTextCursor: one that
  // goes while a document is being cleared leaves the document with a pointer to it.
  std::optional<int> typed_;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
