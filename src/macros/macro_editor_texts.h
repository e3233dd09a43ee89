// What the macro editor shows, asks and tells, besides macro_name_texts.h.
#pragma once

#include "shell/text_pair.h"

namespace verlume::macro_editor_texts {

inline constexpr TextPair kNoFolder = {u"You cannot save and/or recall your macros.",
                                       u"Δεν μπορείτε να ανακαλέσετε ή/και να αποθηκεύσετε "
                                       u"τις μακροεντολές σας."};
inline constexpr TextPair kNoFolderTitle = {u"Edit macros", u"Επεξεργασία μακροεντολών"};

namespace captions {
inline constexpr TextPair kWindow = {u"Macros", u"Μακροεντολές"};
inline constexpr TextPair kNames = {u"Macro selection listbox", u"Πλαίσιο επιλογής μακροεντολής"};
inline constexpr TextPair kText = {u"Macro editing textbox", u"Πλαίσιο επεξεργασίας μακροεντολής"};
inline constexpr TextPair kAdd = {u"Add", u"Προσθήκη"};
inline constexpr TextPair kEdit = {u"Edit", u"Επεξεργασία"};
inline constexpr TextPair kSave = {u"Save", u"Αποθήκευση"};
inline constexpr TextPair kSaveAs = {u"Save as", u"Αποθήκευση ως"};
inline constexpr TextPair kCancel = {u"Cancel", u"Άκυρο"};
inline constexpr TextPair kDelete = {u"Delete", u"Διαγραφή"};
inline constexpr TextPair kRun = {u"Run", u"Εκτέλεση"};
inline constexpr TextPair kClose = {u"Close", u"Κλείσιμο"};
inline constexpr TextPair kColour = {u"Font color", u"Χρώμα γραμματοσειράς"};
inline constexpr TextPair kBold = {u"Bold", u"Έντονη γραφή"};
inline constexpr TextPair kItalics = {u"Italics", u"Πλάγια γραφή"};
inline constexpr TextPair kUnderlined = {u"Underline", u"Υπογραμμισμένη γραφή"};
}  // namespace captions

namespace close {
inline constexpr TextPair kTitle = {u"Close macros editing form",
                                    u"Κλείσιμο φόρμας επεξεργασίας μακροεντολών"};
inline constexpr TextPair kOnlyByButton = {
    u"You may close the macros editing form, ONLY by clicking "
    u"on the button titled 'Close'.",
    u"Μπορείτε να κλείσετε την φόρμα επεξεργασίας των "
    u"μακροεντολών, ΜΟΝΟ πατώντας το κουμπί με τίτλο "
    u"«Κλείσιμο»."};
}  // namespace close

namespace add {
inline constexpr TextPair kTitle = {u"New macro name", u"Όνομα νέας μακροεντολής"};
inline constexpr TextPair kPrompt = {u"Type the name of the new macro.",
                                     u"Πληκτρολογήστε το όνομα της νέας μακροεντολής."};
inline constexpr TextPair kExists = {u"A macro named '%1' already exists.",
                                     u"Υπάρχει ήδη μακροεντολή με το όνομα «%1»."};
}  // namespace add

namespace save {
inline constexpr TextPair kTitle = {u"Save macro", u"Αποθήκευση μακροεντολής"};
inline constexpr TextPair kNothing = {u"There is nothing to save.",
                                      u"Δεν υπάρχει τίποτε προς αποθήκευση."};
}  // namespace save

namespace save_as {
inline constexpr TextPair kTitle = {u"Save macro as", u"Αποθήκευση μακροεντολής ως"};
inline constexpr TextPair kPrompt = {u"Type the new name under which macro '%1' will be saved.",
                                     u"Πληκτρολογήστε το νέο όνομα με το οποίο θέλετε να "
                                     u"αποθηκευθεί η μακροεντολή «%1»."};
}  // namespace save_as

namespace cancel {
inline constexpr TextPair kTitle = {u"Cancel modifications", u"Ακύρωση αλλαγών"};
inline constexpr TextPair kQuestion = {
    u"Are you sure you want to cancel all of the modifications "
    u"you may have performed on macro '%1'?",
    u"Είναι βέβαιο το ότι θέλετε να ακυρώσετε όλες τις τυχόν αλλαγές "
    u"που ίσως επιφέρατε στην μακροεντολή «%1»;"};
}  // namespace cancel

namespace remove {
inline constexpr TextPair kTitle = {u"Delete macro", u"Διαγραφή μακροεντολής"};
inline constexpr TextPair kQuestion = {u"Do you really want to delete macro '%1'?",
                                       u"Θέλετε πράγματι να διαγράψετε την μακροεντολή «%1»;"};
}  // namespace remove

}  // namespace verlume::macro_editor_texts
