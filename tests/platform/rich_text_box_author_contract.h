// Who the paragraphs are from; part of rich_text_box_contract.h.
#pragma once

#include <vector>

namespace verlume {

template <class Platform>
class RichTextBoxAuthor : public RichTextBoxContract<Platform> {
 protected:
  void WriteLine(RichTextBox& box, Author author, std::u16string_view rtf) {
    const RichTextUpdate update(box);
    box.Select(box.TextLength(), 0);
    if (box.TextLength() > 0) box.SetSelText(u"\r\n");
    box.SetSelAuthor(author);
    box.SetSelText(u"<tag>");
    box.SetSelDocument(richtext::ReadRtf(rtf));
  }
  // The author of each paragraph.
  static std::vector<Author> Authors(RichTextBox& box) {
    std::vector<Author> authors;
    const std::u16string text = u'\n' + box.Text();
    for (std::size_t start = 0; start != text.npos; start = text.find(u'\n', start + 1)) {
      box.Select(start, 0);
      authors.push_back(box.SelAuthor());
    }
    return authors;
  }
};
TYPED_TEST_SUITE_P(RichTextBoxAuthor);

TYPED_TEST_P(RichTextBoxAuthor, NobodyIsTheAuthorAtFirst) {
  EXPECT_EQ(this->many->SelAuthor(), Author::None);
  this->many->SetText(u"a\nb");
  EXPECT_EQ(this->Authors(*this->many), std::vector(2, Author::None));
}

TYPED_TEST_P(RichTextBoxAuthor, EachLineHasItsOwn) {
  RichTextBox& box = *this->many;
  this->WriteLine(box, Author::User, u"{\\rtf1 one}");
  this->WriteLine(box, Author::Peer, u"{\\rtf1 two}");
  this->WriteLine(box, Author::None, u"{\\rtf1 three}");
  this->WriteLine(box, Author::PeerWithBrackets, u"{\\rtf1 four}");
  EXPECT_EQ(this->Authors(box),
            (std::vector{Author::User, Author::Peer, Author::None, Author::PeerWithBrackets}));
}

TYPED_TEST_P(RichTextBoxAuthor, AllParagraphsOfATextAreFromItsAuthor) {
  RichTextBox& box = *this->many;
  this->WriteLine(box, Author::User, u"{\\rtf1 one}");
  this->WriteLine(box, Author::Peer, u"{\\rtf1 two\\par\\par\\pard\\plain <tag>one\\line more}");
  this->WriteLine(box, Author::User, u"{\\rtf1 three}");
  EXPECT_EQ(this->Authors(box), (std::vector{Author::User, Author::Peer, Author::Peer, Author::Peer,
                                             Author::Peer, Author::User}));
}

TYPED_TEST_P(RichTextBoxAuthor, ADividedParagraphStaysItsAuthors) {
  RichTextBox& box = *this->many;
  this->WriteLine(box, Author::User, u"{\\rtf1 one}");
  this->WriteLine(box, Author::Peer, u"{\\rtf1 two}");
  box.Select(3, 0);
  box.SetSelText(u"x\ny");
  EXPECT_EQ(this->Authors(box), (std::vector{Author::User, Author::User, Author::Peer}));
}

TYPED_TEST_P(RichTextBoxAuthor, ItIsSetForAllThatIsSelected) {
  RichTextBox& box = *this->many;
  box.SetText(u"a\nb\nc\nd");
  box.Select(2, 3);
  box.SetSelAuthor(Author::Peer);
  EXPECT_EQ(this->Authors(box),
            (std::vector{Author::None, Author::Peer, Author::Peer, Author::None}));
}

TYPED_TEST_P(RichTextBoxAuthor, ALongLineHasOne) {
  RichTextBox& box = *this->many;
  const std::u16string words(20'000, u'x');
  this->WriteLine(box, Author::Peer, u"{\\rtf1 " + words + u"}");
  box.SetSelAuthor(Author::User);
  for (const std::size_t at : {0u, 10'000u, 20'000u}) {
    box.Select(at, 0);
    EXPECT_EQ(box.SelAuthor(), Author::User) << at;
  }
}

TYPED_TEST_P(RichTextBoxAuthor, NewContentIsFromNobody) {
  RichTextBox& box = *this->many;
  this->WriteLine(box, Author::Peer, u"{\\rtf1 one\\par two}");
  box.SetText(u"");
  EXPECT_EQ(this->Authors(box), std::vector(1, Author::None));
  this->WriteLine(box, Author::Peer, u"{\\rtf1 one}");
  box.SetRtf(u"{\\rtf1 a\\par b}");
  EXPECT_EQ(this->Authors(box), std::vector(2, Author::None));
}

TYPED_TEST_P(RichTextBoxAuthor, ALoadedFileIsFromAFile) {
  RichTextBox& box = *this->many;
  box.SetLocked(true);
  this->platform.files.files[u"/a.txt"] = "a\r\nb";
  this->platform.files.files[u"/a.rtf"] = "{\\rtf1 a\\par b\\par c}";
  box.LoadFile(u"/a.txt", TextFileFormat::PlainText);
  EXPECT_EQ(this->Authors(box), std::vector(2, Author::File));
  box.LoadFile(u"/a.rtf", TextFileFormat::RichText);
  EXPECT_EQ(this->Authors(box), std::vector(3, Author::File));
  this->WriteLine(box, Author::User, u"{\\rtf1 d}");
  EXPECT_EQ(this->Authors(box),
            (std::vector{Author::File, Author::File, Author::File, Author::User}));
}

TYPED_TEST_P(RichTextBoxAuthor, NothingOfItIsSaved) {
  RichTextBox& box = *this->many;
  const auto saved = [&](Author author) {
    box.SetRtf(kBoldRtf);  // so that each time the tag has the same format
    box.SetText(u"");
    this->WriteLine(box, author, u"{\\rtf1 one\\par two}");
    box.SaveFile(u"/a.rtf", TextFileFormat::RichText);
    box.SaveFile(u"/a.txt", TextFileFormat::PlainText);
    return this->platform.files.files[u"/a.rtf"] + this->platform.files.files[u"/a.txt"];
  };
  EXPECT_EQ(saved(Author::PeerReadingAlike), saved(Author::None));
}

TYPED_TEST_P(RichTextBoxAuthor, SettingItChangesNoText) {
  RichTextBox& box = *this->many;
  box.SetText(u"one");
  int changes = 0;
  box.onSelChange = box.onChange = [&] { ++changes; };
  box.SetSelAuthor(Author::Peer);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(box.Text(), u"one");
}

REGISTER_TYPED_TEST_SUITE_P(RichTextBoxAuthor, NobodyIsTheAuthorAtFirst, EachLineHasItsOwn,
                            AllParagraphsOfATextAreFromItsAuthor, ADividedParagraphStaysItsAuthors,
                            ItIsSetForAllThatIsSelected, ALongLineHasOne, NewContentIsFromNobody,
                            ALoadedFileIsFromAFile, NothingOfItIsSaved, SettingItChangesNoText);

}  // namespace verlume
