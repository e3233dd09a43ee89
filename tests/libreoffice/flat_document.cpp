#include "libreoffice/flat_document.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QXmlStreamReader>
#include <algorithm>

namespace verlume::libreoffice {
namespace {

using Properties = QHash<QString, QString>;

struct Style {
  QString parent;
  Properties properties;
};

class FlatDocumentReader {
 public:
  explicit FlatDocumentReader(QIODevice* file) : xml_(file) {}

  StyledText Read();

 private:
  QString Attribute(const char* name) const {
    return xml_.attributes().value(QLatin1String(name)).toString();
  }
  void ReadStyle();
  void ReadBody();
  void ReadElement(const Properties& around);
  void ReadContent(const Properties& properties);
  Properties Resolve(const QString& family, const QString& name) const;
  Look LookOf(const Properties& properties) const;
  void Add(const QString& text, const Properties& properties) {
    Append(lines_.back(), text, LookOf(properties));
  }

  QXmlStreamReader xml_;
  QHash<QString, QString> fontFamilies_;
  QHash<QString, Style> styles_;  // by family and name; the default of a family has no name
  StyledText lines_;
};

QString Unquoted(QString name) {
  if (name.startsWith(u'\'') && name.endsWith(u'\'')) name = name.mid(1, name.size() - 2);
  return name;
}

double Points(const QString& length) {
  return length.endsWith(QLatin1String("pt")) ? length.chopped(2).toDouble() : -1;
}

// A colour of one's own ends the automatic one.
Properties Merged(Properties under, const Properties& over) {
  if (over.contains(QStringLiteral("fo:color"))) {
    under.remove(QStringLiteral("style:use-window-font-color"));
  }
  for (auto it = over.begin(); it != over.end(); ++it) under.insert(it.key(), it.value());
  return under;
}

StyledText FlatDocumentReader::Read() {
  while (!xml_.atEnd()) {
    if (xml_.readNext() != QXmlStreamReader::StartElement) continue;
    const auto name = xml_.qualifiedName();
    if (name == QLatin1String("style:font-face")) {
      fontFamilies_.insert(Attribute("style:name"), Unquoted(Attribute("svg:font-family")));
    } else if (name == QLatin1String("style:style") ||
               name == QLatin1String("style:default-style")) {
      ReadStyle();
    } else if (name == QLatin1String("office:text")) {
      ReadBody();
    }
  }
  EXPECT_FALSE(xml_.hasError()) << xml_.errorString().toStdString();
  return lines_;
}

void FlatDocumentReader::ReadStyle() {
  const QString key = Attribute("style:family") + u'/' + Attribute("style:name");
  Style style{Attribute("style:parent-style-name"), {}};
  while (xml_.readNextStartElement()) {
    if (xml_.qualifiedName() == QLatin1String("style:text-properties")) {
      for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
        style.properties.insert(attribute.qualifiedName().toString(), attribute.value().toString());
      }
    }
    xml_.skipCurrentElement();
  }
  styles_.insert(key, style);
}

void FlatDocumentReader::ReadBody() {
  while (xml_.readNextStartElement()) {
    const auto name = xml_.qualifiedName();
    if (name == QLatin1String("text:p") || name == QLatin1String("text:h")) {
      lines_.emplace_back();
      ReadContent(Resolve(QStringLiteral("paragraph"), Attribute("text:style-name")));
    } else {
      xml_.skipCurrentElement();
    }
  }
}

// Of a paragraph or a span, up to its end.
void FlatDocumentReader::ReadContent(const Properties& properties) {
  while (!xml_.atEnd() && xml_.readNext() != QXmlStreamReader::EndElement) {
    if (xml_.isCharacters()) Add(xml_.text().toString(), properties);
    if (xml_.isStartElement()) ReadElement(properties);
  }
}

void FlatDocumentReader::ReadElement(const Properties& around) {
  const auto name = xml_.qualifiedName();
  if (name == QLatin1String("text:span")) {
    const QString style = Attribute("text:style-name");
    return ReadContent(Merged(around, Resolve(QStringLiteral("text"), style)));
  }
  if (name == QLatin1String("text:s")) {
    Add(QString(std::max(1, Attribute("text:c").toInt()), u' '), around);
  } else if (name == QLatin1String("text:tab")) {
    Add(QStringLiteral("\t"), around);
  } else if (name == QLatin1String("text:line-break")) {
    lines_.emplace_back();
  } else if (name != QLatin1String("text:soft-page-break")) {
    ADD_FAILURE() << "shown besides text: " << name.toString().toStdString();
  }
  xml_.skipCurrentElement();
}

Properties FlatDocumentReader::Resolve(const QString& family, const QString& name) const {
  const auto found = styles_.find(family + u'/' + name);
  if (found == styles_.end()) return {};
  if (name.isEmpty()) return found->properties;
  return Merged(Resolve(family, found->parent), found->properties);
}

Look FlatDocumentReader::LookOf(const Properties& properties) const {
  const auto value = [&](const char* name) { return properties.value(QLatin1String(name)); };
  const auto isOn = [&](const char* name) {
    return !value(name).isEmpty() && value(name) != QLatin1String("none");
  };
  const auto isEqual = [&](const char* name, const char* asian, const char* absent) {
    return properties.value(QLatin1String(name), QLatin1String(absent)) ==
           properties.value(QLatin1String(asian), QLatin1String(absent));
  };
  const bool oneLook = isEqual("fo:font-size", "style:font-size-asian", "") &&
                       isEqual("fo:font-weight", "style:font-weight-asian", "normal") &&
                       isEqual("fo:font-style", "style:font-style-asian", "normal");
  const bool hasColor = value("style:use-window-font-color") != QLatin1String("true");
  const QString font = value("style:font-name");
  return {fontFamilies_.value(font, font),
          oneLook ? Points(value("fo:font-size")) : -1,
          hasColor ? value("fo:color") : QStringLiteral("#000000"),
          value("fo:font-weight") == QLatin1String("bold"),
          value("fo:font-style") == QLatin1String("italic"),
          isOn("style:text-underline-style"),
          isOn("style:text-line-through-style")};
}

}  // namespace

StyledText ReadFlatDocument(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return FlatDocumentReader(&file).Read();
}

}  // namespace verlume::libreoffice
