// Texts about the name of a macro, used wherever the user types one.
#pragma once

#include "shell/text_pair.h"

namespace verlume::macro_name_texts {

// Appended to every prompt for a name.
inline constexpr TextPair kAvoid = {
    u"\r\n\r\n"
    u"Avoid using the characters"
    u"  \\  /  :  *  ?  \"  <  >  |  .  and the space.",
    u"\r\n\r\n"
    u"Αποφύγετε την χρήση των χαρακτήρων"
    u"  \\  /  :  *  ?  \"  <  >  |  .  και το κενό."};
inline constexpr TextPair kWrongName = {u"The name you typed is incorrect.",
                                        u"Το όνομα που πληκτρολογήσατε είναι λανθασμένο."};
inline constexpr TextPair kNameOfDevice = {u"Windows keeps the name '%1' for a device.",
                                           u"Τα Windows κρατούν το όνομα «%1» για μία συσκευή."};
inline constexpr TextPair kReplace = {
    u"A macro named '%1', already exists."
    u"\r\n\r\n"
    u"Would you like to replace it?",
    u"Υπάρχει ήδη μακροεντολή με το όνομα «%1»."
    u"\r\n\r\n"
    u"Μήπως θέλετε να την αντικαταστήσετε;"};

}  // namespace verlume::macro_name_texts
