// Texts for loading and saving a dialogue.
#pragma once

#include "shell/text_pair.h"

namespace verlume::dialogue_files_texts {

inline constexpr TextPair kLoadTitle = {u"Load dialogue", u"Φόρτωμα διαλόγου"};

inline constexpr TextPair kLoadQuestion = {
    u"Click 'Yes' to load a dialogue from a rich text "
    u"format file."
    u"\r\n"
    u"\r\n"
    u"Click 'No' to load a dialogue from a plain text "
    u"format file."
    u"\r\n"
    u"\r\n"
    u"Click 'Cancel' to cancel the load process.",
    u"Πατήστε το «Ναι» για να φορτώσετε έναν διάλογο από "
    u"αρχείο μορφής εμπλουτισμένου κειμένου."
    u"\r\n"
    u"\r\n"
    u"Πατήστε το «Όχι» για να φορτώσετε έναν διάλογο από "
    u"αρχείο μορφής απλού κειμένου."
    u"\r\n"
    u"\r\n"
    u"Πατήστε το «Άκυρο» για να ακυρώσετε την διδακασία του "
    u"φορτώματος."};

inline constexpr TextPair kLoadCaution = {
    u"\r\n"
    u"\r\n"
    u"CAUTION: The current contents of the dialogue, will "
    u"be replaced by the dialogue that will be loaded.",
    u"\r\n"
    u"\r\n"
    u"ΠΡΟΣΟΧΗ: Το τρέχον περιεχόμενο του διαλόγου, θα "
    u"αντικατασταθεί από αυτό που θα φορτωθεί."};

inline constexpr TextPair kLoadDialogTitle = {u"Load dialogue as %1", u"Φόρτωμα διαλόγου ως %1"};

inline constexpr TextPair kRichTextFilter = {u"Rich text format (*.rtf)|*.rtf",
                                             u"Μορφή εμπλουτισμένου κειμένου (*.rtf)|*.rtf"};

inline constexpr TextPair kPlainTextFilter = {u"Text document (*.txt)|*.txt|",
                                              u"Έγγραφο κειμένου (*.txt)|*.txt"};

inline constexpr TextPair kExtensionRefusal = {
    u"You may not alter the '.%1' extension.",
    u"Δεν επιτρέπεται να τροποποιήσετε την κατάληξη «.%1»."};

inline constexpr TextPair kSaveTitle = {u"Save dialogue as", u"Αποθήκευση διαλόγου ως"};

inline constexpr TextPair kNothingToSave = {u"There is no dialogue to save.",
                                            u"Δεν υπάρχει διάλογος προς αποθήκευση."};

inline constexpr TextPair kSaveQuestion = {
    u"Click 'Yes' to save the dialogue in a rich text "
    u"format file."
    u"\r\n"
    u"\r\n"
    u"Click 'No' to save the dialogue in a plain text "
    u"format file."
    u"\r\n"
    u"\r\n"
    u"Click 'Cancel' to cancel the save process.",
    u"Πατήστε το «Ναι» για να αποθηκεύσετε τον διάλογο "
    u"σε αρχείο μορφής εμπλουτισμένου κειμένου."
    u"\r\n"
    u"\r\n"
    u"Πατήστε το «Όχι» για να αποθηκεύσετε τον διάλογο "
    u"σε αρχείο μορφής απλού κειμένου."
    u"\r\n"
    u"\r\n"
    u"Πατήστε το «Άκυρο» για να ακυρώσετε την διαδικασία "
    u"της αποθηκεύσεως."};

inline constexpr TextPair kSaveDialogTitle = {u"Save dialogue as %1", u"Αποθήκευση διαλόγου ως %1"};

}  // namespace verlume::dialogue_files_texts
