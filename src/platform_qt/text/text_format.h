// Converts character formats between Qt, the documents of richtext/ and the box's interface.
#pragma once

#include <QTextCharFormat>
#include <vector>

#include "platform/rich_text_box.h"
#include "richtext/document.h"

namespace verlume::qt {

// The format of text in a box in which none has been set: Arial, 10 points, automatic colour.
inline constexpr std::u16string_view kDefaultFontName = u"Arial";
inline constexpr double kDefaultFontSize = 10;
QTextCharFormat DefaultFormat();

// Sets only the properties whose members have a value; merging keeps the others.
QTextCharFormat ToQt(const SelectionFormat& format);
SelectionFormat FromQt(const QTextCharFormat& format);
// Resets the members of `common` that differ in `other`.
void KeepCommon(SelectionFormat& common, const SelectionFormat& other);
// True when no member has a value any more.
bool IsUndetermined(const SelectionFormat& format);

QTextCharFormat ToQt(const richtext::CharFormat& format, const std::vector<richtext::Font>& fonts);
// Adds its font with this character set to `fonts`, if it is not there yet.
richtext::CharFormat FromQt(const QTextCharFormat& format, int charset,
                            std::vector<richtext::Font>& fonts);

}  // namespace verlume::qt
