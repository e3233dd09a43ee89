// Reads a help file: XHTML whose divisions of the classes "chapter", "topic" and "control" form the
// book. Tags and attributes other than the plain ones are left out, but their text is kept.
#pragma once

#include <QXmlStreamReader>
#include <vector>

#include "platform_qt/help/help_book.h"

namespace verlume::qt {

class HelpReader {
 public:
  explicit HelpReader(const QByteArray& bytes) : xml_(bytes) {}

  // False if the bytes are not well-formed, or the divisions are not nested as in a book.
  bool Read();
  // The line at which Read stopped.
  qint64 Line() const { return xml_.lineNumber(); }

  std::vector<HelpChapter> TakeChapters() { return std::move(chapters_); }
  std::vector<HelpControl> TakeControls() { return std::move(controls_); }

 private:
  enum class Role { None, Chapter, Topic, Control, ChapterTitle, TopicTitle, ControlTitle };
  struct Element {
    Role role = Role::None;
    QString endInTopic;    // what closes it in the topic's text
    QString endInControl;  // and in the control's
  };

  Role RoleOf(QStringView tag) const;
  bool IsOpen(Role role) const;
  void Open();
  void OpenDivision(Role role);
  void OpenMarkup(Element& element);
  void Close();
  void CloseTopic();
  void Text();

  HelpTopic& Topic() { return chapters_.back().topics.back(); }
  HelpControl& Control() { return controls_.back(); }

  QXmlStreamReader xml_;
  std::vector<Element> open_;
  std::vector<HelpChapter> chapters_;
  std::vector<HelpControl> controls_;
};

}  // namespace verlume::qt
