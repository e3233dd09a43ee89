#include "platform_qt/help/help_book.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform_qt/help/help_files.h"

namespace verlume::qt {
namespace {

class HelpBookTest : public testing::Test {
 protected:
  // A book made from these bytes.
  HelpBook Book(const QByteArray& bytes, bool isGreek = false) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return HelpBook::Load(path, isGreek);
  }
  // A book with one topic that contains the markup.
  HelpBook TopicOf(const QByteArray& markup) {
    return Book(
        "<html><body><div class=\"chapter\" id=\"c\"><h1>C</h1><div class=\"topic\" id=\"t\">"
        "<h2>T</h2>" +
        markup + "</div></div></body></html>");
  }

  QTemporaryDir folder;
  QString path = folder.filePath("book.hlp");
};

TEST_F(HelpBookTest, HoldsChaptersAndTopicsInTheirOrder) {
  const HelpBook book = SmallBook(false);
  EXPECT_EQ(book.ProblemText(), "");
  ASSERT_EQ(book.Chapters().size(), 2u);
  EXPECT_EQ(book.Chapters()[0].id, "start");
  EXPECT_EQ(book.Chapters()[0].title, "Getting started");
  ASSERT_EQ(book.Chapters()[1].topics.size(), 2u);
  EXPECT_EQ(book.Chapters()[1].topics[0].id, "panel");
  EXPECT_EQ(book.Chapters()[1].topics[0].title, "The panel");
}

TEST_F(HelpBookTest, TopicKeepsItsMarkupAndItsPlainText) {
  const HelpBook book = SmallBook(false);
  const HelpTopic* topic = book.Topic("waiting");
  ASSERT_NE(topic, nullptr);
  EXPECT_TRUE(topic->html.startsWith("<h2>Waiting</h2>")) << topic->html.toStdString();
  EXPECT_TRUE(topic->html.contains("<code>/WAIT 4000</code>: the port is 4000 &amp; free."));
  EXPECT_EQ(topic->text, "Type /WAIT 4000: the port is 4000 & free. lamp yellow");
  EXPECT_EQ(book.Topic("start"), nullptr);
}

TEST_F(HelpBookTest, NothingFromOutsideComesIntoATopic) {
  const QString html = SmallBook(false).Topic("welcome")->html;
  EXPECT_TRUE(html.contains("<a href=\"#waiting\">Waiting</a>"));
  EXPECT_TRUE(html.contains("outside link"));
  EXPECT_FALSE(html.contains("example.org")) << html.toStdString();
  EXPECT_FALSE(html.contains("<img"));
  EXPECT_FALSE(SmallBook(false).Topic("waiting")->html.contains("style"));
}

TEST_F(HelpBookTest, AControlHasItsParagraphUnderEachOfItsNames) {
  const HelpBook book = SmallBook(false);
  const HelpControl* control = book.Control("lblLocalNicknameCaption");
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(control, book.Control("lblLocalNickname"));
  EXPECT_EQ(control->names, QStringList({"lblLocalNickname", "lblLocalNicknameCaption"}));
  EXPECT_EQ(control->topicId, "panel");
  EXPECT_TRUE(control->html.startsWith("<p><b>Local"));
  EXPECT_TRUE(control->html.endsWith("</b></p><p>The address of this computer.</p>"));
  EXPECT_EQ(book.Control("lblLocal"), nullptr);
}

TEST_F(HelpBookTest, AControlsParagraphStandsForItselfWithoutLinks) {
  const QString html = SmallBook(false).Control("lblStatus")->html;
  EXPECT_TRUE(html.contains("see Waiting.")) << html.toStdString();
}

TEST_F(HelpBookTest, AnIdIsFoundWhereItStands) {
  const HelpBook book = SmallBook(true);
  EXPECT_EQ(book.Find("waiting").topicId, "waiting");
  EXPECT_EQ(book.Find("waiting").anchor, "");
  EXPECT_EQ(book.Find("window").topicId, "panel");
  EXPECT_EQ(book.Find("lblStatus").topicId, "panel");
  EXPECT_EQ(book.Find("lblStatus").anchor, "lblStatus");
  EXPECT_EQ(book.Find("elsewhere").topicId, "");
  EXPECT_EQ(book.Find("").topicId, "");
}

TEST_F(HelpBookTest, AMissingFileIsToldOfInTheLanguageInForce) {
  const HelpBook english = HelpBook::Load("/nowhere/book.hlp", false);
  EXPECT_EQ(english.ProblemText(),
            "There is no help: the help file is missing or cannot be opened.\n\n"
            "/nowhere/book.hlp");
  EXPECT_TRUE(english.Chapters().empty());
  const HelpBook greek = HelpBook::Load("/nowhere/book.hlp", true);
  EXPECT_TRUE(greek.ProblemText().startsWith("Δεν υπάρχει βοήθεια"));
  EXPECT_TRUE(greek.ProblemText().endsWith("/nowhere/book.hlp"));
}

TEST_F(HelpBookTest, AFolderInTheFilesPlaceIsAMissingFile) {
  EXPECT_TRUE(HelpBook::Load(folder.path(), false).ProblemText().contains("missing"));
}

TEST_F(HelpBookTest, ADamagedFileIsToldOfWithItsLine) {
  const HelpBook book = Book("<html>\n<body>\n<p>no end\n</body></html>");
  EXPECT_TRUE(book.ProblemText().contains("damaged at line 4")) << book.ProblemText().toStdString();
  EXPECT_TRUE(book.Chapters().empty());
  EXPECT_TRUE(Book("{\\rtf1 }", true).ProblemText().contains("κατεστραμμένο"));
}

TEST_F(HelpBookTest, DivisionsOutOfTheirPlaceAreDamage) {
  const auto isDamaged = [this](const QByteArray& body) {
    return Book("<html><body>" + body + "</body></html>").ProblemText().contains("damaged");
  };
  const QByteArray sound =
      "<div class='chapter' id='c'><div class='topic' id='t'>"
      "<div class='control' id='x' data-controls='x'/></div></div>";
  EXPECT_FALSE(isDamaged(sound));
  EXPECT_TRUE(isDamaged(""));
  EXPECT_TRUE(isDamaged("<div class='topic' id='t'></div>"));
  EXPECT_TRUE(isDamaged("<div class='chapter' id='c'></div>"));
  EXPECT_TRUE(isDamaged("<div class='chapter'><div class='topic' id='t'/></div>"));
  EXPECT_TRUE(
      isDamaged("<div class='chapter' id='c'><div class='topic' id='t'>"
                "<div class='topic' id='u'/></div></div>"));
  EXPECT_TRUE(
      isDamaged("<div class='chapter' id='c'><div class='control' id='x' "
                "data-controls='x'/><div class='topic' id='t'/></div>"));
  EXPECT_TRUE(isDamaged(QByteArray(sound).replace("data-controls='x'", "")));
}

TEST_F(HelpBookTest, AHugeFileIsRefusedUnread) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(HelpBook::kMaximumSize + 1));
  file.close();
  EXPECT_TRUE(HelpBook::Load(path, false).ProblemText().contains("too large"));
  EXPECT_TRUE(HelpBook::Load(path, true).ProblemText().contains("υπερβολικά μεγάλο"));
}

TEST_F(HelpBookTest, AFileOfTheLargestSizeIsRead) {
  QByteArray bytes =
      "<html><body><div class='chapter' id='c'><div class='topic' id='t'/></div></body></html>";
  bytes.append(HelpBook::kMaximumSize - bytes.size(), ' ');
  EXPECT_EQ(Book(bytes).ProblemText(), "");
}

TEST_F(HelpBookTest, ManyNestedTagsAreReadInPeace) {
  constexpr int kDepth = 20000;
  const HelpBook book =
      TopicOf(QByteArray("<b>").repeated(kDepth) + "deep" + QByteArray("</b>").repeated(kDepth));
  EXPECT_EQ(book.Topic("t")->text, "deep");
}

TEST_F(HelpBookTest, EntitiesThatGrowWithoutEndAreDamage) {
  QByteArray bytes = "<!DOCTYPE html [<!ENTITY a \"aaaaaaaaaa\">";
  for (char name = 'b'; name <= 'h'; ++name) {
    const QByteArray inner = QByteArray("&") + char(name - 1) + ';';
    bytes += QByteArray("<!ENTITY ") + name + " \"" + inner.repeated(10) + "\">";
  }
  const HelpBook book = Book(bytes + "]><html><body>&h;</body></html>");
  EXPECT_TRUE(book.ProblemText().contains("damaged"));
}

TEST_F(HelpBookTest, TextIsNotMarkup) {
  const HelpBook book = TopicOf("<p>1 &lt; 2 &amp;amp; <![CDATA[<b>]]></p>");
  EXPECT_EQ(book.Topic("t")->text, "1 < 2 &amp; <b>");
  EXPECT_TRUE(book.Topic("t")->html.contains("1 &lt; 2 &amp;amp; &lt;b&gt;"));
}

TEST_F(HelpBookTest, CellsAndItemsPartWordsAndStylesDoNot) {
  const HelpBook book = TopicOf("<ul><li>o<b>n</b>e</li><li>two</li></ul>");
  EXPECT_EQ(book.Topic("t")->text, "one two");
}

}  // namespace
}  // namespace verlume::qt
