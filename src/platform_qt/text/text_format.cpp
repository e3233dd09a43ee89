#include "platform_qt/text/text_format.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <algorithm>
#include <cmath>

#include "platform_qt/convert/text.h"
#include "richtext/rtf_limits.h"

namespace verlume::qt {
namespace {

void SetColor(QTextCharFormat& format, Color color) {
  if (color == kAutomaticColor) {
    format.clearForeground();
  } else {
    format.setForeground(ToQt(color));
  }
}

Color ColorOf(const QTextCharFormat& format) {
  const QBrush brush = format.foreground();
  return brush.style() == Qt::NoBrush ? kAutomaticColor : FromQt(brush.color());
}

// The property that keeps the font name of the text. The family is the font that shows it on this
// computer.
constexpr int kFontName = QTextFormat::UserProperty;

// A family name without the foundry that Qt accepts in brackets behind it.
QString PlainFamily(const QString& name) {
  return name.left(name.indexOf(u'[')).simplified();
}

// The families of this computer, by their plain names in one case.
const QHash<QString, QString>& InstalledFamilies() {
  static const QHash<QString, QString> installed = [] {
    QHash<QString, QString> families;
    for (const QString& family : QFontDatabase::families()) {
      const QString plain = PlainFamily(family);
      families.insert(plain.toCaseFolded(), plain);
    }
    return families;
  }();
  return installed;
}

// Looking for a font that is not installed takes milliseconds for each of its sizes and styles, and
// a peer may name any number of such fonts. So each name is looked up once, however it is spelled,
// and beyond a certain number of names missing fonts are shown in the default font.
QString FamilyToShow(const QString& name) {
  constexpr qsizetype kMostNames = 64;
  static QHash<QString, QString> lookedUp;
  const QString plain = PlainFamily(name).toCaseFolded();
  const auto installed = InstalledFamilies().constFind(plain);
  if (installed != InstalledFamilies().constEnd()) return *installed;
  const auto known = lookedUp.constFind(plain);
  if (known != lookedUp.constEnd()) return *known;
  if (lookedUp.size() >= kMostNames) return ToQt(kDefaultFontName);
  return *lookedUp.insert(plain, QFontInfo(QFont(plain)).family());
}

std::u16string FontNameOf(const QTextCharFormat& format) {
  const QString name = format.stringProperty(kFontName);
  if (!name.isEmpty()) return FromQt(name);
  const QStringList families = format.fontFamilies().toStringList();
  return families.isEmpty() ? std::u16string(kDefaultFontName) : FromQt(families.front());
}

double FontSizeOf(const QTextCharFormat& format) {
  const double size = format.fontPointSize();
  return size > 0 ? size : kDefaultFontSize;
}

void SetFontName(QTextCharFormat& format, std::u16string_view name) {
  const QString wanted = ToQt(name.empty() ? kDefaultFontName : name);
  format.setProperty(kFontName, wanted);
  format.setFontFamilies({FamilyToShow(wanted)});
}

template <class T>
void KeepIfSame(std::optional<T>& common, const std::optional<T>& other) {
  if (common != other) common.reset();
}

// A document has no more fonts than the reader accepts; text in further ones gets the first font.
std::uint16_t IndexOf(const std::u16string& name, int charset, std::vector<richtext::Font>& fonts) {
  const auto found = std::find(fonts.begin(), fonts.end(), richtext::Font{name, charset});
  const auto index = static_cast<std::uint16_t>(found - fonts.begin());
  if (found != fonts.end()) return index;
  if (fonts.size() == richtext::limits::kMaxFonts) return 0;
  fonts.push_back({name, charset});
  return index;
}

}  // namespace

QTextCharFormat DefaultFormat() {
  return ToQt(SelectionFormat{.fontName = std::u16string(kDefaultFontName),
                              .fontSize = kDefaultFontSize,
                              .color = std::nullopt,
                              .bold = false,
                              .italic = false,
                              .underline = false,
                              .strikethrough = false});
}

QTextCharFormat ToQt(const SelectionFormat& format) {
  QTextCharFormat result;
  if (format.fontName) SetFontName(result, *format.fontName);
  if (format.fontSize) result.setFontPointSize(*format.fontSize);
  if (format.color) SetColor(result, *format.color);
  if (format.bold) result.setFontWeight(*format.bold ? QFont::Bold : QFont::Normal);
  if (format.italic) result.setFontItalic(*format.italic);
  if (format.underline) result.setFontUnderline(*format.underline);
  if (format.strikethrough) result.setFontStrikeOut(*format.strikethrough);
  return result;
}

SelectionFormat FromQt(const QTextCharFormat& format) {
  return {.fontName = FontNameOf(format),
          .fontSize = FontSizeOf(format),
          .color = std::max<Color>(ColorOf(format), 0),
          .bold = format.fontWeight() > QFont::Medium,
          .italic = format.fontItalic(),
          .underline = format.fontUnderline(),
          .strikethrough = format.fontStrikeOut()};
}

void KeepCommon(SelectionFormat& common, const SelectionFormat& other) {
  KeepIfSame(common.fontName, other.fontName);
  KeepIfSame(common.fontSize, other.fontSize);
  KeepIfSame(common.color, other.color);
  KeepIfSame(common.bold, other.bold);
  KeepIfSame(common.italic, other.italic);
  KeepIfSame(common.underline, other.underline);
  KeepIfSame(common.strikethrough, other.strikethrough);
}

bool IsUndetermined(const SelectionFormat& format) {
  return !format.fontName && !format.fontSize && !format.color && !format.bold && !format.italic &&
         !format.underline && !format.strikethrough;
}

QTextCharFormat ToQt(const richtext::CharFormat& format, const std::vector<richtext::Font>& fonts) {
  QTextCharFormat result;
  SetFontName(result, format.font < fonts.size() ? fonts[format.font].name : u"");
  result.setFontPointSize(format.halfPoints / 2.0);
  SetColor(result, format.color);
  result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
  result.setFontItalic(format.italic);
  result.setFontUnderline(format.underline);
  result.setFontStrikeOut(format.strikethrough);
  return result;
}

richtext::CharFormat FromQt(const QTextCharFormat& format, int charset,
                            std::vector<richtext::Font>& fonts) {
  richtext::CharFormat result;
  result.font = IndexOf(FontNameOf(format), charset, fonts);
  result.halfPoints = static_cast<std::uint16_t>(std::lround(FontSizeOf(format) * 2));
  result.color = ColorOf(format);
  result.bold = format.fontWeight() > QFont::Medium;
  result.italic = format.fontItalic();
  result.underline = format.fontUnderline();
  result.strikethrough = format.fontStrikeOut();
  return result;
}

}  // namespace verlume::qt
