// The letters that shell/look_alikes.cpp takes for each other.
#pragma once

#include <string_view>

namespace verlume::look_alike_tables {

// Each character of `from` stands for the one at the same place in `to`.
struct Replacement {
  std::u16string_view from;
  std::u16string_view to;
};

// Every letter of `from` stands for the letter `to`.
struct Variants {
  std::u16string_view from;
  char16_t to;
};

// Accents, and letters of one alphabet that are the same letter.
inline constexpr Variants kUnaccented[] = {
    {u"ÀÁÂÃÄÅĀĂĄ", u'A'}, {u"àáâãäåāăą", u'a'}, {u"ÇĆĈĊČ", u'C'},      {u"çćĉċč", u'c'},
    {u"ĎĐ", u'D'},        {u"ďđ", u'd'},        {u"ÈÉÊËĒĔĖĘĚ", u'E'},  {u"èéêëēĕėęě", u'e'},
    {u"ĜĞĠĢ", u'G'},      {u"ĝğġģɡ", u'g'},     {u"ĤĦ", u'H'},         {u"ĥħ", u'h'},
    {u"ÌÍÎÏĨĪĬĮİ", u'I'}, {u"ìíîïĩīĭįı", u'i'}, {u"Ĵ", u'J'},          {u"ĵȷ", u'j'},
    {u"Ķ", u'K'},         {u"ķĸ", u'k'},        {u"ĹĻĽĿŁ", u'L'},      {u"ĺļľŀł", u'l'},
    {u"ÑŃŅŇ", u'N'},      {u"ñńņň", u'n'},      {u"ÒÓÔÕÖØŌŎŐ", u'O'},  {u"òóôõöøōŏő", u'o'},
    {u"ŔŖŘ", u'R'},       {u"ŕŗř", u'r'},       {u"ŚŜŞŠȘ", u'S'},      {u"śŝşšș", u's'},
    {u"ŢŤŦȚ", u'T'},      {u"ţťŧț", u't'},      {u"ÙÚÛÜŨŪŬŮŰŲ", u'U'}, {u"ùúûüũūŭůűų", u'u'},
    {u"Ŵ", u'W'},         {u"ŵ", u'w'},         {u"ÝŶŸ", u'Y'},        {u"ýÿŷ", u'y'},
    {u"ŹŻŽ", u'Z'},       {u"źżž", u'z'},       {u"Ά", u'Α'},          {u"ά", u'α'},
    {u"Έ", u'Ε'},         {u"έϵ", u'ε'},        {u"Ή", u'Η'},          {u"ή", u'η'},
    {u"ΊΪ", u'Ι'},        {u"ίϊΐ", u'ι'},       {u"Ό", u'Ο'},          {u"ό", u'ο'},
    {u"ΎΫ", u'Υ'},        {u"ύϋΰ", u'υ'},       {u"Ώ", u'Ω'},          {u"ώ", u'ω'},
    {u"ς", u'σ'},         {u"ϐ", u'β'},         {u"ϑ", u'θ'},          {u"ϕ", u'φ'},
    {u"ϖ", u'π'},         {u"ϱ", u'ρ'},         {u"ϰ", u'κ'},          {u"\u00B5", u'μ'},
    {u"ЀЁ", u'Е'},        {u"ѐё", u'е'},        {u"ЃҐ", u'Г'},         {u"ѓґ", u'г'},
    {u"Ї", u'І'},         {u"ї", u'і'},         {u"Ќ", u'К'},          {u"ќ", u'к'},
    {u"ЍЙ", u'И'},        {u"ѝй", u'и'},        {u"Ў", u'У'},          {u"ў", u'у'},
};

// The Greek letters with several accents, by code: U+1F00 to U+1FFF in groups of one letter.
struct AccentedGroup {
  char16_t last;  // of the group; it begins behind the group before
  char16_t letter;
};
inline constexpr char16_t kFirstAccented = 0x1F00;
inline constexpr AccentedGroup kAccentedGreek[] = {
    {0x1F0F, u'α'}, {0x1F1F, u'ε'}, {0x1F2F, u'η'}, {0x1F3F, u'ι'}, {0x1F4F, u'ο'}, {0x1F5F, u'υ'},
    {0x1F6F, u'ω'}, {0x1F71, u'α'}, {0x1F73, u'ε'}, {0x1F75, u'η'}, {0x1F77, u'ι'}, {0x1F79, u'ο'},
    {0x1F7B, u'υ'}, {0x1F7D, u'ω'}, {0x1F8F, u'α'}, {0x1F9F, u'η'}, {0x1FAF, u'ω'}, {0x1FBF, u'α'},
    {0x1FC9, u'ε'}, {0x1FCF, u'η'}, {0x1FDF, u'ι'}, {0x1FE3, u'υ'}, {0x1FE5, u'ρ'}, {0x1FEB, u'υ'},
    {0x1FEF, u'ρ'}, {0x1FF9, u'ο'}, {0x1FFF, u'ω'},
};

// Letters of another alphabet that look like a Latin one, or a Cyrillic one like a Greek one.
inline constexpr Replacement kSameShape[] = {
    // Greek
    {u"ΑΒΕΖΗΙΚΜΝΟΡΤΥΧ", u"ABEZHIKMNOPTYX"},
    {u"αγηικνορτυχω", u"aynikvoptuxw"},
    {u"ϒϳϲϹ", u"YjcC"},
    // Cyrillic
    {u"АВЕЅІЈКМНОРСТУХҮ", u"ABESIJKMHOPCTYXY"},
    {u"аеѕіјкопрстухһԁѵѡү", u"aesijkonpctyxhdvwy"},
    {u"ГЛПФфвмнЗз", u"ΓΛΠΦφBMH33"},
    // Latin
    {u"ɑſ", u"af"},
};

// Letters and digits of one alphabet that look the same as they are written.
inline constexpr Replacement kSameStroke = {u"I1|0", u"lllO"};

}  // namespace verlume::look_alike_tables
