// Messages about a settings file that cannot be used.
#pragma once

#include "shell/text_pair.h"

namespace verlume::settings_rescue_texts {

inline constexpr TextPair kTitle = {u"Settings file", u"Αρχείο ρυθμίσεων"};

// %1 is the copy.
inline constexpr TextPair kInvalidValue = {
    u"Not all of your settings could be understood. "
    u"Your settings file has been kept, as it was, under the name:"
    u"\r\n\r\n%1\r\n\r\n"
    u"The program uses its usual settings instead of those that it could not read.",
    u"Δεν έγιναν κατανοητές όλες οι ρυθμίσεις σας. "
    u"Το αρχείο των ρυθμίσεών σας φυλάχθηκε, όπως ήταν, με το όνομα:"
    u"\r\n\r\n%1\r\n\r\n"
    u"Στη θέση όσων δεν διαβάστηκαν η εφαρμογή χρησιμοποιεί τις συνήθεις ρυθμίσεις της."};

// %1 is the copy.
inline constexpr TextPair kDamaged = {
    u"Your settings file is damaged. It has been kept, as it was, under the name:"
    u"\r\n\r\n%1\r\n\r\n"
    u"The program begins anew with its usual settings.",
    u"Το αρχείο των ρυθμίσεών σας είναι κατεστραμμένο. Φυλάχθηκε, όπως ήταν, με το όνομα:"
    u"\r\n\r\n%1\r\n\r\n"
    u"Η εφαρμογή ξεκινά από την αρχή με τις συνήθεις ρυθμίσεις της."};

// %1 is the settings file.
inline constexpr TextPair kUnreadable = {
    u"Your settings file could not be read:"
    u"\r\n\r\n%1\r\n\r\n"
    u"It is left as it is. The program uses its usual settings, and what you change in them "
    u"now will be forgotten when the program ends.",
    u"Δεν ήταν δυνατόν να διαβαστεί το αρχείο των ρυθμίσεών σας:"
    u"\r\n\r\n%1\r\n\r\n"
    u"Το αρχείο μένει όπως είναι. Η εφαρμογή χρησιμοποιεί τις συνήθεις ρυθμίσεις της και ό,τι "
    u"αλλάξετε τώρα σε αυτές θα ξεχαστεί όταν τερματιστεί η εφαρμογή."};

// %1 is the settings file, %2 the copy.
inline constexpr TextPair kCopyFailed = {
    u"Your settings file could not be understood:"
    u"\r\n\r\n%1\r\n\r\n"
    u"It could not be kept under this name either:"
    u"\r\n\r\n%2\r\n\r\n"
    u"So it is left as it is, and what you change in the settings now will be forgotten when the "
    u"program ends.",
    u"Το αρχείο των ρυθμίσεών σας δεν έγινε κατανοητό:"
    u"\r\n\r\n%1\r\n\r\n"
    u"Δεν ήταν δυνατόν ούτε να φυλαχθεί με το όνομα:"
    u"\r\n\r\n%2\r\n\r\n"
    u"Γι' αυτό μένει όπως είναι και ό,τι αλλάξετε τώρα στις ρυθμίσεις θα ξεχαστεί όταν "
    u"τερματιστεί η εφαρμογή."};

}  // namespace verlume::settings_rescue_texts
