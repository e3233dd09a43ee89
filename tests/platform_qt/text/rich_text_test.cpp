#include "platform_qt/text/rich_text.h"

#include <gtest/gtest.h>

#include <QTextDocument>

#include "platform_qt/text/text_insertion.h"
#include "richtext/rtf_limits.h"

namespace verlume::qt {
namespace {

TEST(QtRichText, ADocumentReadsBackAsItWasInserted) {
  richtext::Document document;
  document.text = u"plain\nbold \u03b1red";
  document.fonts = {{u"Arial", 161}, {u"Tahoma", 161}};
  richtext::CharFormat bold{.font = 0, .halfPoints = 20, .bold = true};
  richtext::CharFormat red{.font = 1, .halfPoints = 17, .color = 0x0000FF, .underline = true};
  document.runs = {{6, {.font = 0, .halfPoints = 20}}, {6, bold}, {3, red}};
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertDocument(cursor, document, Lines::Many);
  cursor.select(QTextCursor::Document);
  EXPECT_EQ(SelectedDocument(cursor, 161, Lines::Many), document);
}

TEST(QtRichText, APartOfADocumentReadsBackWithItsFormats) {
  richtext::Document document;
  document.text = u"abc\ndef";
  document.fonts = {{u"Arial", 161}};
  document.runs = {{2, {.bold = true}}, {5, {}}};
  QTextDocument shown;
  QTextCursor cursor(&shown);
  InsertDocument(cursor, document, Lines::Many);
  cursor.setPosition(1);
  cursor.setPosition(5, QTextCursor::KeepAnchor);
  const richtext::Document part = SelectedDocument(cursor, 161, Lines::Many);
  EXPECT_EQ(part.text, u"bc\nd");
  EXPECT_EQ(part.runs, (std::vector<richtext::Run>{{1, {.bold = true}}, {3, {}}}));
}

TEST(QtRichText, FontsBeyondTheLimitOfADocumentBecomeItsFirst) {
  QTextDocument shown;
  QTextCursor cursor(&shown);
  for (std::size_t i = 0; i <= richtext::limits::kMaxFonts; ++i) {
    QTextCharFormat format;
    format.setFontFamilies({QStringLiteral("Font %1").arg(i)});
    cursor.insertText(QStringLiteral("x"), format);
  }
  cursor.select(QTextCursor::Document);
  const richtext::Document document = SelectedDocument(cursor, 161, Lines::Many);
  EXPECT_EQ(document.fonts.size(), richtext::limits::kMaxFonts);
  EXPECT_EQ(document.runs.back().format.font, 0);
}

}  // namespace
}  // namespace verlume::qt
