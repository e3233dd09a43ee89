// The formats of characters: Qt's, the run model's, the box's.
#pragma once

#include <QTextCharFormat>
#include <vector>

#include "platform/rich_text_box.h"
#include "richtext/document.h"

namespace verlume::qt {

// What a box writes with before anything is set: Arial, 10 points, the automatic colour.
inline constexpr std::u16string_view kOwnFontName = u"Arial";
inline constexpr double kOwnFontSize = 10;
QTextCharFormat OwnFormat();

// The members that have a value; merging it into another format leaves the others.
QTextCharFormat ToQt(const SelectionFormat& format);
SelectionFormat FromQt(const QTextCharFormat& format);
// `common` keeps the members in which `other` is the same.
void KeepCommon(SelectionFormat& common, const SelectionFormat& other);
// True when no member has a value any more.
bool IsUndetermined(const SelectionFormat& format);

QTextCharFormat ToQt(const richtext::CharFormat& format, const std::vector<richtext::Font>& fonts);
// Its font, when it is not among `fonts`, is added there with this character set.
richtext::CharFormat FromQt(const QTextCharFormat& format, int charset,
                            std::vector<richtext::Font>& fonts);

}  // namespace verlume::qt
