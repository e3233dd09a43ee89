// The underlined letters (mnemonics) of menus, check boxes and buttons. They are chosen from the
// captions of the current language; a letter that must lead to one thing is used only once.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QPushButton>
#include <QStringList>
#include <vector>

namespace verlume::qt {

// For each caption the place of its letter, or -1 if none is left. Prefers the first letters of
// words, and serves earlier captions first. A caption without a free letter takes one from another
// caption that can use a different one. Never chooses an accented letter or a letter of `taken`.
// The same captions always give the same letters.
std::vector<qsizetype> ChooseMnemonics(const QStringList& captions, const QString& taken = {});

// The caption in Qt's notation: "&" before the letter at `place`, and "&&" for every "&" in it.
QString WithMnemonic(const QString& caption, qsizetype place);

// Sets the caption of a menu entry, or of a menu of the menu bar, and chooses new letters for all
// entries beside it. The letters of a menu bar are not available to the check boxes of its window.
// The push buttons of such a window have no letters, because they come and go; but for those of
// KeepMnemonic, which get theirs last.
void SetCaptionWithMnemonic(QAction* action, const QString& caption);
void SetCaptionWithMnemonic(QAbstractButton* button, const QString& caption);

// Gives a push button a letter although its window has a menu bar. Before it has a caption.
void KeepMnemonic(QPushButton* button);

}  // namespace verlume::qt
