#include "libreoffice/conversation.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

#include "platform_qt/convert/text.h"

namespace verlume::libreoffice {

using qt::FromQt;

Conversation::Conversation() : peer_(network_, u"Βασίλης {β}\\", u"192.0.2.2") {
  fakes_.files.MakeFolder(u"/macros");
  fakes_.files.ReplaceText(u"/verlume/Verlume.ini",
                           u"[General]\r\nNickname=Άννα\r\nMacrosfolder=/macros/\r\n"
                           u"DateStamp=True\r\nTimeStamp=True\r\n");
  program_.Start();
  QApplication::processEvents();
  peer_.Wait(u"4000");
  peer_.fake.dialogs.answers.push_back(Answer::Yes);
  Type(QStringLiteral("/CALL peer 4000"));
  PressEnter();
  network_.RunUntilIdle();
  EXPECT_EQ(peer_.State(), ConnectionState::Connected);
}

void Conversation::Choose(const FontChoice& font) {
  fakes_.commonDialog.fonts.push_back(font);
  ChooseEntry("mnuFormatFontSettings");
}

void Conversation::Type(const QString& text) {
  for (const char32_t character : text.toUcs4()) Press(0, QString::fromUcs4(&character, 1));
}

void Conversation::PressEnter() {
  Press(Qt::Key_Return, QStringLiteral("\r"));
}

void Conversation::Receive(std::u16string_view rtf) {
  peer_.wire.SendChatLine(rtf);
  network_.RunUntilIdle();
}

void Conversation::ReceiveAction(std::u16string_view rtf) {
  peer_.wire.SendActionLine(rtf);
  network_.RunUntilIdle();
}

QString Conversation::Save() {
  const QString path = folder_.filePath(QStringLiteral("dialogue.rtf"));
  AnswerRichTextIn(path);
  ChooseEntry("mnuFileLogSaveAs");
  return path;
}

void Conversation::Load(const QString& path) {
  AnswerRichTextIn(path);
  ChooseEntry("mnuFileLogOpen");
}

StyledText Conversation::Shown() {
  return StyledTextOf(*window_.form().Find<QPlainTextEdit>("rtbData")->document());
}

void Conversation::Press(int key, const QString& text) {
  auto* commands = window_.form().Find<QPlainTextEdit>("rtbCommands");
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(commands, &press);
}

void Conversation::ChooseEntry(const char* name) {
  window_.form().Find<QAction>(name)->trigger();
}

void Conversation::AnswerRichTextIn(const QString& path) {
  fakes_.dialogs.answers.push_back(Answer::Yes);
  FileChoice choice;
  choice.fileName = FromQt(path);
  fakes_.commonDialog.files.push_back(choice);
}

}  // namespace verlume::libreoffice
