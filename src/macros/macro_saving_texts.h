// Texts for saving the command pane as a macro, in addition to macro_name_texts.h.
#pragma once

#include "shell/text_pair.h"

namespace verlume::macro_saving_texts {

inline constexpr TextPair kNoFolder = {u"The current macro cannot be saved.",
                                       u"Η τρέχουσα μακροεντολή είναι αδύνατον να αποθηκευθεί."};
inline constexpr TextPair kTitle = {u"Save macro", u"Αποθήκευση μακροεντολής"};
inline constexpr TextPair kNothingTyped = {
    u"There is no macro to save."
    u"\r\n\r\n"
    u"Would you like to edit your macros?",
    u"Δεν υπάρχει μακροεντολή προς αποθήκευση."
    u"\r\n\r\n"
    u"Μήπως θέλετε να επεξεργασθείτε τις μακροεντολές σας;"};
inline constexpr TextPair kNameTitle = {u"Macro name", u"Όνομα μακροεντολής"};
inline constexpr TextPair kNamePrompt = {
    u"Type the name under which this macro will be saved.",
    u"Πληκτρολογήστε το όνομα με το οποίο θέλετε να αποθηκευθεί "
    u"αυτή η μακροεντολή."};
inline constexpr TextPair kNoName = {
    u"You didn't type the name under which this macro will "
    u"be saved."
    u"\r\n\r\n"
    u"Are you sure you don't want to save this macro?",
    u"Δεν πληκτρολογήσατε το όνομα με το οποίο θέλετε "
    u"να αποθηκευθεί αυτή η μακροεντολή."
    u"\r\n\r\n"
    u"Θέλετε πράγματι να ακυρώσετε την αποθήκευση αυτής "
    u"της μακροεντολής;"};

}  // namespace verlume::macro_saving_texts
