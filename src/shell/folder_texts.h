// Texts of start-up about a missing folder.
#pragma once

#include "shell/text_pair.h"

namespace verlume {

struct FolderTexts {
  TextPair title;
  TextPair question;
  TextPair noteTitle;
  TextPair note;  // after No
};

inline constexpr FolderTexts kLogFolderTexts = {
    {u"Dialogue logging", u"Καταγραφή διαλόγου"},
    {u"The application needs to know the folder that will hold "
     u"the logs of your dialogues."
     u"\r\n\r\n"
     u"This message is being displayed because you have selected "
     u"to record your dialogues, BUT you either "
     u"have not defined such a folder, or the folder you have "
     u"already defined could not be located by this application."
     u"\r\n\r\n"
     u"If you don't define such a folder now, you will not be "
     u"able to record your dialogues."
     u"\r\n\r\n"
     u"Would you like to define such a folder now?",
     u"Η εφαρμογή πρέπει να γνωρίζει τον φάκελλο μέσα στον "
     u"οποίο θα γίνεται η καταγραφή των διαλόγων σας."
     u"\r\n\r\n"
     u"Το μήνυμα αυτό εμφανίζεται διότι έχετε μεν επιλέξει "
     u"να γίνεται καταγραφή των διαλόγων σας, ΑΛΛΑ είτε "
     u"δεν έχετε ορίσει "
     u"κάποιο φάκελλο, ή ο φάκελλος που έχετε ήδη ορίσει "
     u"δεν έγινε δυνατόν να εντοπισθεί από την εφαρμογή."
     u"\r\n\r\n"
     u"Αν δεν ορίσετε τώρα έναν φάκελλο, δεν θα μπορέσετε "
     u"να καταγράψετε τους διαλόγους σας."
     u"\r\n\r\n"
     u"Θέλετε να ορίσετε τώρα έναν φάκελλο;"},
    {u"Dialogue logging", u"Καταγραφή διαλόγων"},
    {u"Dialogue logging has been suspended.", u"Η καταγραφή των διαλόγων σας ακυρώθηκε."}};

inline constexpr FolderTexts kMacrosFolderTexts = {
    {u"Macros folder definition", u"Ορισμός φακέλλου μακροεντολών"},
    {u"The application needs to know the folder that will "
     u"hold the macros you save and/or recall."
     u"\r\n\r\n"
     u"This message is being displayed because you either "
     u"have not defined such a folder, or the folder you have "
     u"already defined could not be located by this "
     u"application."
     u"\r\n\r\n"
     u"If you don't define such a folder now, you will not be "
     u"able to save and/or recall your macros."
     u"\r\n\r\n"
     u"Would you like to define such a folder now?",
     u"Η εφαρμογή πρέπει να γνωρίζει τον φάκελλο ο οποίος "
     u"θα χρησιμοποιείται για την ανάκληση ή/και την αποθήκευση "
     u"των μακροεντολών σας."
     u"\r\n\r\n"
     u"Το μήνυμα αυτό εμφανίζεται είτε διότι δεν έχετε ορίσει "
     u"κάποιο φάκελλο, ή διότι ο φάκελλος που έχετε ήδη "
     u"ορίσει δεν έγινε δυνατόν να εντοπισθεί από την εφαρμογή."
     u"\r\n\r\n"
     u"Αν δεν ορίσετε τώρα έναν φάκελλο, δεν θα μπορέσετε να "
     u"ανακαλέσετε ή/και να αποθηκεύσετε τις μακροεντολές σας."
     u"\r\n\r\n"
     u"Θέλετε να ορίσετε τώρα έναν φάκελλο;"},
    {u"Macros folder definition", u"Ορισμός φακέλλου μακροεντολών"},
    {u"You won't be able to save and/or recall "
     u"your macros.",
     u"Δεν θα μπορείτε να ανακαλέσετε ή/και να "
     u"αποθηκεύσετε τις μακροεντολές σας."}};

}  // namespace verlume
