// What the user is told when this program has no key to show.
#pragma once

#include "connection/note_texts.h"

namespace verlume::own_key_texts {

inline constexpr TextPair kTitle = {u"Private conversations", u"Ιδιωτικές συνομιλίες"};

inline constexpr NoteText kUnreadable = {
    {u"Conversations are not private: the file of your key, Verlume.key, cannot be read",
     u"Οι συνομιλίες δεν είναι ιδιωτικές: το αρχείο του κλειδιού σας, Verlume.key, δεν διαβάζεται"},
    {u"Put the right file back in its place, beside the settings.",
     u"Βάλτε το σωστό αρχείο στη θέση του, δίπλα στις ρυθμίσεις."}};
inline constexpr NoteText kUnwritable = {
    {u"Conversations are not private: the file of your key, Verlume.key, cannot be made",
     u"Οι συνομιλίες δεν είναι ιδιωτικές: το αρχείο του κλειδιού σας, Verlume.key, δεν μπορεί να "
     u"δημιουργηθεί"},
    {u"Make room on the disk, and see whether the folder of the settings can be written.",
     u"Ελευθερώστε χώρο στον δίσκο και ελέγξτε αν επιτρέπεται η εγγραφή στον φάκελο των "
     u"ρυθμίσεων."}};
inline constexpr NoteText kUnavailable = {
    {u"Conversations are not private: this system cannot encrypt them",
     u"Οι συνομιλίες δεν είναι ιδιωτικές: αυτό το σύστημα δεν μπορεί να τις κρυπτογραφήσει"},
    {u"Have OpenSSL 3 and the TLS support of Qt installed.",
     u"Ζητήστε να εγκατασταθούν το OpenSSL 3 και η υποστήριξη TLS του Qt."}};

// Follows one of the reasons above.
inline constexpr TextPair kNeeded = {
    u"Nothing was begun, because this conversation has to be private.",
    u"Δεν ξεκίνησε τίποτα, επειδή αυτή η συνομιλία πρέπει να είναι ιδιωτική."};
inline constexpr TextPair kReplace = {
    u"The file of your key, Verlume.key, cannot be read.\r\n\r\n"
    u"Shall a new key take its place? The old file is kept beside it. Whoever knows you by the old "
    u"key will be warned that it has changed.",
    u"Το αρχείο του κλειδιού σας, Verlume.key, δεν διαβάζεται.\r\n\r\n"
    u"Να πάρει τη θέση του ένα νέο κλειδί; Το παλιό αρχείο φυλάσσεται δίπλα του. Όσοι σας "
    u"γνωρίζουν με το παλιό κλειδί θα προειδοποιηθούν ότι άλλαξε."};
inline constexpr TextPair kTurnedOff = {
    u"An invitation needs a private conversation, and you have turned these off in Tools > Private "
    u"conversations.",
    u"Η πρόσκληση χρειάζεται ιδιωτική συνομιλία, και αυτές τις έχετε απενεργοποιήσει στο μενού "
    u"Εργαλεία > Ιδιωτικές συνομιλίες."};

}  // namespace verlume::own_key_texts
