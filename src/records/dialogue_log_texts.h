// Texts of the dialogue log.
#pragma once

#include "shell/text_pair.h"

namespace verlume::dialogue_log_texts {

inline constexpr TextPair kLogFolderTitle = {u"Log folder definition",
                                             u"Ορισμός φακέλλου καταγραφής"};

inline constexpr TextPair kLogFolderRefusal = {
    u"The messages you are exchanging with the remote "
    u"computer are being recorded and for this reason "
    u"you are not allowed to change the log folder "
    u"at this time.",
    u"Η καταγραφή του διαλόγου σας με τον απομακρυσμένο "
    u"υπολογιστή βρίσκεται σε εξέλιξη και για τον λόγο "
    u"αυτό δεν επιτρέπεται τώρα η αλλαγή του φακέλλου "
    u"καταγραφής."};

inline constexpr TextPair kSuggestedLogFolder = {u"Verlume dialogues", u"Διάλογοι Verlume"};

inline constexpr TextPair kLogFolderDialogTitle = {
    u"Select the folder that will hold the logs of your dialogues",
    u"Επιλέξτε τον φάκελλο στον οποίο θα καταγράφονται οι διάλογοί σας"};

inline constexpr TextPair kLogQuestionTitle = {u"Dialogue logging", u"Καταγραφή διαλόγου"};

inline constexpr TextPair kLogQuestion = {
    u"The application needs to know the folder that will hold "
    u"the logs of your dialogues."
    u"\r\n"
    u"\r\n"
    u"This message is being displayed because you either "
    u"have not defined such a folder, or the folder you have "
    u"already defined could not be located by this application."
    u"\r\n"
    u"\r\n"
    u"If you don't define such a folder now, you will not be "
    u"able to record your dialogues."
    u"\r\n"
    u"\r\n"
    u"Would you like to define such a folder now?",
    u"Η εφαρμογή πρέπει να γνωρίζει τον φάκελλο μέσα στον "
    u"οποίο θα γίνεται η καταγραφή των διαλόγων σας."
    u"\r\n"
    u"\r\n"
    u"Το μήνυμα αυτό εμφανίζεται είτε διότι δεν έχετε ορίσει "
    u"κάποιο φάκελλο, ή διότι ο φάκελλος που έχετε ήδη ορίσει "
    u"δεν έγινε δυνατόν να εντοπισθεί από την εφαρμογή."
    u"\r\n"
    u"\r\n"
    u"Αν δεν ορίσετε τώρα έναν φάκελλο, δεν θα μπορέσετε "
    u"να καταγράψετε τους διαλόγους σας."
    u"\r\n"
    u"\r\n"
    u"Θέλετε να ορίσετε τώρα έναν φάκελλο;"};

inline constexpr TextPair kLogImpossible = {u"The logs of your dialogues cannot be recorded.",
                                            u"Η καταγραφή των διαλόγων σας είναι αδύνατον "
                                            u"να πραγματοποιηθεί."};

}  // namespace verlume::dialogue_log_texts
