// A help file: its chapters and topics, and the paragraph that explains each control.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace verlume::qt {

struct HelpTopic {
  QString id;
  QString title;
  QString html;    // including the title
  QString text;    // without title and markup
  QString folded;  // the text folded for searching, of the same length
};

struct HelpChapter {
  QString id;
  QString title;
  std::vector<HelpTopic> topics;  // at least one
};

struct HelpControl {
  QStringList names;  // the controls that the paragraph explains; the first name is its id
  QString topicId;
  QString html;  // title and paragraph, without links
};

// The target of a link: a topic and an anchor in it, or "".
struct HelpPlace {
  QString topicId;
  QString anchor;
};

class HelpBook {
 public:
  // An empty book: its file counts as missing.
  HelpBook() = default;

  // Reads a help file of at most kMaximumSize bytes. Never fails: if something is wrong with the
  // file, the book is empty and ProblemText describes the problem.
  static HelpBook Load(const QString& path, bool isGreek);

  static constexpr qint64 kMaximumSize = 4 << 20;

  // "" for a book without errors, else a plain-text description of the problem in the book's
  // language.
  QString ProblemText() const;
  bool IsGreek() const { return isGreek_; }

  const std::vector<HelpChapter>& Chapters() const { return chapters_; }
  const std::vector<HelpControl>& Controls() const { return controls_; }

  // Null if there is none.
  const HelpTopic* Topic(const QString& id) const;
  const HelpControl* Control(const QString& name) const;
  // The place of the chapter, topic or control with this id; a place without topic if there is
  // none.
  HelpPlace Find(const QString& id) const;

 private:
  enum class Problem { None, Missing, TooLarge, Damaged };

  QString path_;
  bool isGreek_ = false;
  Problem problem_ = Problem::Missing;
  qint64 problemLine_ = 0;
  std::vector<HelpChapter> chapters_;
  std::vector<HelpControl> controls_;
};

}  // namespace verlume::qt
