// The underlined letters of menus, check boxes and buttons. They are chosen from the captions of
// the language in force, each letter once where it has to lead to one thing.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QStringList>
#include <vector>

namespace verlume::qt {

// For each caption the place of its letter, -1 where none is left for it. The first letters of
// words are preferred, and captions that come first; a caption without a letter of its own left
// takes one from another that can do with a second choice. Never an accented letter, and no letter
// of `taken`. Equal captions give equal letters.
std::vector<qsizetype> ChooseMnemonics(const QStringList& captions, const QString& taken = {});

// The caption as Qt wants it: "&" before the letter at `place`, "&&" for every "&" in it.
QString WithMnemonic(const QString& caption, qsizetype place);

// Gives an entry of a menu, or a menu of the menu bar, its caption; every entry beside it gets its
// letter anew. A menu bar's letters are not left to the check boxes of its window, and its window's
// push buttons have none: they come and go.
void SetCaptionWithMnemonic(QAction* action, const QString& caption);
void SetCaptionWithMnemonic(QAbstractButton* button, const QString& caption);

}  // namespace verlume::qt
