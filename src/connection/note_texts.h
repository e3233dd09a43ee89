// Why calls and waits fail, in plain words, and what to do next. In a call %1 is the host and %2
// the port; in a wait %1 is the port.
#pragma once

#include "shell/text_pair.h"

namespace verlume {

struct NoteText {
  TextPair reason;  // without a full stop
  TextPair advice;
};

}  // namespace verlume

namespace verlume::note_texts {

inline constexpr NoteText kUnknownHost = {
    {u"No computer named %1 was found", u"Δεν βρέθηκε υπολογιστής με το όνομα %1"},
    {u"Check the name, or call the IP address instead.",
     u"Ελέγξτε το όνομα ή καλέστε τη διεύθυνση IP του."}};
inline constexpr NoteText kRefused = {
    {u"The computer %1 refused the call: nobody waits on port %2 there",
     u"Ο υπολογιστής %1 αρνήθηκε την κλήση: κανείς δεν περιμένει εκεί στη θύρα %2"},
    {u"Ask the other side to wait on this port, and call again.",
     u"Ζητήστε από την άλλη πλευρά να μπει σε αναμονή σε αυτήν τη θύρα και καλέστε ξανά."}};
inline constexpr NoteText kSilent = {
    {u"The computer %1 did not answer", u"Ο υπολογιστής %1 δεν απάντησε"},
    {u"It may be off, or a firewall may stop calls to port %2. Check the address, and ask the "
     u"other "
     u"side to let the call through.",
     u"Ίσως είναι κλειστός ή ένα τείχος προστασίας σταματά τις κλήσεις στη θύρα %2. Ελέγξτε τη "
     u"διεύθυνση και ζητήστε από την άλλη πλευρά να επιτρέψει την κλήση."}};
inline constexpr NoteText kUnreachable = {{u"The computer %1 cannot be reached from here",
                                           u"Ο υπολογιστής %1 δεν είναι προσβάσιμος από εδώ"},
                                          {u"Check the network connection and the address.",
                                           u"Ελέγξτε τη σύνδεση δικτύου και τη διεύθυνση."}};
inline constexpr NoteText kOther = {
    {u"The call to %1 on port %2 could not be made",
     u"Η κλήση προς %1 στη θύρα %2 δεν ήταν δυνατή"},
    {u"Check the address and the port.", u"Ελέγξτε τη διεύθυνση και τη θύρα."}};
inline constexpr NoteText kEndedByCallee = {
    {u"The computer %1 took the call and ended it again",
     u"Ο υπολογιστής %1 δέχθηκε την κλήση και την τερμάτισε"},
    {u"The other side may have refused it: ask, and call again.",
     u"Ίσως η άλλη πλευρά την απέρριψε: συνεννοηθείτε και καλέστε ξανά."}};
inline constexpr NoteText kCallerLeft = {
    {u"The caller left before the conversation began",
     u"Αυτός που κάλεσε έφυγε πριν αρχίσει η συνομιλία"},
    {u"Wait again for the next call.", u"Μπείτε ξανά σε αναμονή για την επόμενη κλήση."}};
inline constexpr NoteText kPortTaken = {
    {u"A program on this computer already uses port %1",
     u"Κάποιο πρόγραμμα σε αυτόν τον υπολογιστή χρησιμοποιεί ήδη τη θύρα %1"},
    {u"Wait on another port.", u"Επιλέξτε άλλη θύρα για την αναμονή."}};
inline constexpr NoteText kPortNotAllowed = {
    {u"This computer does not let you wait on port %1",
     u"Αυτός ο υπολογιστής δεν σας επιτρέπει να περιμένετε στη θύρα %1"},
    {u"Choose a port from 1024 to 32767.", u"Επιλέξτε θύρα από 1024 έως 32767."}};

// The keys could not be proved. Of a call or a wait alike.
inline constexpr NoteText kNotOffered = {
    {u"The other program cannot talk in private, and this conversation has to be",
     u"Το άλλο πρόγραμμα δεν μπορεί να συνομιλεί ιδιωτικά, και αυτή η συνομιλία πρέπει να είναι "
     u"ιδιωτική"},
    {u"It may be an older program, or somebody between you may want it so. Ask the other side.",
     u"Ίσως είναι παλαιότερο πρόγραμμα, ίσως το θέλει έτσι κάποιος ανάμεσά σας. Ρωτήστε την άλλη "
     u"πλευρά."}};
inline constexpr NoteText kOtherKey = {
    {u"Somebody else answered than the one who sent the invitation",
     u"Απάντησε κάποιος άλλος από αυτόν που έστειλε την πρόσκληση"},
    {u"Ask for a new invitation. If the key has not changed there, somebody is between you.",
     u"Ζητήστε νέα πρόσκληση. Αν το κλειδί εκεί δεν έχει αλλάξει, κάποιος βρίσκεται ανάμεσά "
     u"σας."}};
inline constexpr NoteText kBroken = {
    {u"The private connection was disturbed before it began",
     u"Η ιδιωτική σύνδεση διαταράχθηκε προτού αρχίσει"},
    {u"Try again. If it happens each time, somebody between you may not want you to talk in "
     u"private.",
     u"Προσπαθήστε ξανά. Αν συμβαίνει κάθε φορά, ίσως κάποιος ανάμεσά σας δεν θέλει να μιλάτε "
     u"ιδιωτικά."}};
inline constexpr NoteText kLate = {{u"The private connection did not come about in time",
                                    u"Η ιδιωτική σύνδεση δεν ολοκληρώθηκε εγκαίρως"},
                                   {u"The line may be very slow. Try again.",
                                    u"Ίσως η γραμμή είναι πολύ αργή. Προσπαθήστε "
                                    u"ξανά."}};
inline constexpr NoteText kNoKey = {
    {u"This program has no key to show, and this conversation has to be private",
     u"Αυτό το πρόγραμμα δεν έχει κλειδί να δείξει, και αυτή η συνομιλία πρέπει να είναι ιδιωτική"},
    {u"Wait or call again: you will be told what is wrong with the key.",
     u"Μπείτε ξανά σε αναμονή ή καλέστε ξανά: θα σας εξηγηθεί τι συμβαίνει με το κλειδί."}};

}  // namespace verlume::note_texts
