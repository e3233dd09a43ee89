#include "platform_qt/help/help_reader.h"

#include <algorithm>

#include "platform_qt/help/help_search.h"

namespace verlume::qt {
namespace {

// Tags within a line of text; every other tag separates words.
const QStringList kInlineTags = {"a", "b", "code", "em", "i", "strong"};
const QStringList kTags = {"a",  "b", "br",  "code",   "em",    "h2", "h3", "h4", "i", "li",
                           "ol", "p", "pre", "strong", "table", "td", "th", "tr", "ul"};
const QStringList kAttributes = {"border", "cellpadding", "cellspacing", "colspan", "rowspan"};

QString Required(QXmlStreamReader& xml, const QString& attribute) {
  const QString value = xml.attributes().value(attribute).toString();
  if (value.isEmpty()) xml.raiseError("A division has no " + attribute);
  return value;
}

// The attributes that are kept; links may only lead into the book.
QString ShownAttributes(const QXmlStreamAttributes& attributes, QStringView tag) {
  QString shown;
  for (const QXmlStreamAttribute& attribute : attributes) {
    const bool isLink = tag == u"a" && attribute.name() == u"href";
    if (isLink ? !attribute.value().startsWith(u'#')
               : !kAttributes.contains(attribute.name().toString())) {
      continue;
    }
    shown += QStringLiteral(" %1=\"%2\"")
                 .arg(attribute.name(), attribute.value().toString().toHtmlEscaped());
  }
  return shown;
}

}  // namespace

bool HelpReader::Read() {
  while (!xml_.atEnd()) {
    xml_.readNext();
    if (xml_.isStartElement()) Open();
    if (xml_.isEndElement()) Close();
    if (xml_.isCharacters()) Text();
  }
  return !xml_.hasError() && !chapters_.empty();
}

bool HelpReader::IsOpen(Role role) const {
  return std::any_of(open_.begin(), open_.end(),
                     [role](const Element& element) { return element.role == role; });
}

HelpReader::Role HelpReader::RoleOf(QStringView tag) const {
  const auto value = xml_.attributes().value(QStringLiteral("class"));
  if (tag == u"div" && value == u"chapter") return Role::Chapter;
  if (tag == u"div" && value == u"topic") return Role::Topic;
  if (tag == u"div" && value == u"control") return Role::Control;
  if (tag == u"h3" && IsOpen(Role::Control)) return Role::ControlTitle;
  if (tag == u"h2" && IsOpen(Role::Topic)) return Role::TopicTitle;
  if (tag == u"h1" && IsOpen(Role::Chapter)) return Role::ChapterTitle;
  return Role::None;
}

void HelpReader::Open() {
  Element element;
  element.role = RoleOf(xml_.name());
  if (element.role == Role::Chapter || element.role == Role::Topic ||
      element.role == Role::Control) {
    OpenDivision(element.role);
  } else if (IsOpen(Role::Topic)) {
    OpenMarkup(element);
  }
  open_.push_back(element);
}

void HelpReader::OpenDivision(Role role) {
  const bool inPlace = role == Role::Chapter ? !IsOpen(Role::Chapter)
                       : role == Role::Topic ? IsOpen(Role::Chapter) && !IsOpen(Role::Topic)
                                             : IsOpen(Role::Topic) && !IsOpen(Role::Control);
  if (!inPlace) return xml_.raiseError(QStringLiteral("A division out of its place"));
  const QString id = Required(xml_, QStringLiteral("id"));
  if (role == Role::Chapter) chapters_.push_back({id, {}, {}});
  if (role == Role::Topic) chapters_.back().topics.push_back({id, {}, {}, {}, {}});
  if (role == Role::Control) {
    const QString names = Required(xml_, QStringLiteral("data-controls"));
    controls_.push_back({names.split(u' ', Qt::SkipEmptyParts), Topic().id, {}});
  }
}

void HelpReader::OpenMarkup(Element& element) {
  const QStringView tag = xml_.name();
  if (!kTags.contains(tag.toString())) return;
  const QString start = '<' + tag.toString() + ShownAttributes(xml_.attributes(), tag) + '>';
  element.endInTopic = "</" + tag.toString() + '>';
  Topic().html += start;
  if (element.role == Role::ControlTitle) {
    // The target of links to the control.
    Topic().html += "<a name=\"" + Control().names.front().toHtmlEscaped() + "\"></a>";
  }
  if (!IsOpen(Role::Control) || tag == u"a") return;
  const bool isTitle = element.role == Role::ControlTitle;
  Control().html += isTitle ? QStringLiteral("<p><b>") : start;
  element.endInControl = isTitle ? QStringLiteral("</b></p>") : element.endInTopic;
}

void HelpReader::Close() {
  const Element element = open_.back();
  open_.pop_back();
  if (element.role == Role::Topic) return CloseTopic();
  if (element.role == Role::Control) Control().html = Control().html.trimmed();
  if (element.role == Role::Chapter && chapters_.back().topics.empty()) {
    return xml_.raiseError(QStringLiteral("A chapter without topics"));
  }
  if (!IsOpen(Role::Topic)) return;
  Topic().html += element.endInTopic;
  if (!kInlineTags.contains(xml_.name().toString())) Topic().text += u' ';
  if (IsOpen(Role::Control)) Control().html += element.endInControl;
}

void HelpReader::CloseTopic() {
  HelpTopic& topic = Topic();
  topic.title = topic.title.simplified();
  topic.text = topic.text.normalized(QString::NormalizationForm_C).simplified();
  topic.folded = FoldForSearch(topic.text);
}

void HelpReader::Text() {
  const QString text = xml_.text().toString();
  if (IsOpen(Role::ChapterTitle)) chapters_.back().title += text;
  if (!IsOpen(Role::Topic)) return;
  Topic().html += text.toHtmlEscaped();
  if (IsOpen(Role::Control)) Control().html += text.toHtmlEscaped();
  (IsOpen(Role::TopicTitle) ? Topic().title : Topic().text) += text;
}

}  // namespace verlume::qt
