// A help file: its chapters and topics, and the paragraph that explains each control.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace verlume::qt {

struct HelpTopic {
  QString id;
  QString title;
  QString html;    // with its title
  QString text;    // without its title and without markup
  QString folded;  // the text as a search compares it, unit by unit
};

struct HelpChapter {
  QString id;
  QString title;
  std::vector<HelpTopic> topics;  // at least one
};

struct HelpControl {
  QStringList names;  // of the controls that one paragraph explains; the first is its id
  QString topicId;
  QString html;  // title and paragraph, without links
};

// A place in the book that a link leads to: a topic and, within it, an anchor or "".
struct HelpPlace {
  QString topicId;
  QString anchor;
};

class HelpBook {
 public:
  // No file yet: it is missing.
  HelpBook() = default;

  // Reads a help file of at most kMaximumSize bytes. Never fails: what is wrong with the file is
  // what ProblemText tells, and the book is then empty.
  static HelpBook Load(const QString& path, bool isGreek);

  static constexpr qint64 kMaximumSize = 4 << 20;

  // "" for a sound book, else what is wrong with it, in the book's language. Plain text.
  QString ProblemText() const;
  bool IsGreek() const { return isGreek_; }

  const std::vector<HelpChapter>& Chapters() const { return chapters_; }
  const std::vector<HelpControl>& Controls() const { return controls_; }

  // Null where there is none.
  const HelpTopic* Topic(const QString& id) const;
  const HelpControl* Control(const QString& name) const;
  // Where the chapter, topic or control of that id stands; no topic where there is none.
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
