// Why calls and waits fail, in plain words, and what to do next. In a call %1 is the host and %2
// the port; in a wait %1 is the port.
#pragma once

#include "shell/text_pair.h"

namespace verlume::note_texts {

inline constexpr TextPair kUnknownHost = {
    u"No computer named %1 was found. Check the name, or call the IP address instead.",
    u"Δεν βρέθηκε υπολογιστής με το όνομα %1. Ελέγξτε το όνομα ή καλέστε τη διεύθυνση IP του."};
inline constexpr TextPair kRefused = {
    u"The computer %1 refused the call: nobody waits on port %2 there. Ask the other side to wait "
    u"on this port, and call again.",
    u"Ο υπολογιστής %1 αρνήθηκε την κλήση: κανείς δεν περιμένει εκεί στη θύρα %2. Ζητήστε από την "
    u"άλλη πλευρά να μπει σε αναμονή σε αυτήν τη θύρα και καλέστε ξανά."};
inline constexpr TextPair kSilent = {
    u"The computer %1 did not answer. It may be off, or a firewall may stop calls to port %2. "
    u"Check the address, and ask the other side to let the call through.",
    u"Ο υπολογιστής %1 δεν απάντησε. Ίσως είναι κλειστός ή ένα τείχος προστασίας σταματά τις "
    u"κλήσεις στη θύρα %2. Ελέγξτε τη διεύθυνση και ζητήστε από την άλλη πλευρά να επιτρέψει την "
    u"κλήση."};
inline constexpr TextPair kUnreachable = {
    u"The computer %1 cannot be reached from here. Check the network connection and the address.",
    u"Ο υπολογιστής %1 δεν είναι προσβάσιμος από εδώ. Ελέγξτε τη σύνδεση δικτύου και τη "
    u"διεύθυνση."};
inline constexpr TextPair kOther = {
    u"The call to %1 on port %2 could not be made. Check the address and the port.",
    u"Η κλήση προς %1 στη θύρα %2 δεν ήταν δυνατή. Ελέγξτε τη διεύθυνση και τη θύρα."};
inline constexpr TextPair kEndedByCallee = {
    u"The computer %1 took the call and ended it again. The other side may have refused it: ask, "
    u"and call again.",
    u"Ο υπολογιστής %1 δέχθηκε την κλήση και την τερμάτισε. Ίσως η άλλη πλευρά την απέρριψε: "
    u"συνεννοηθείτε και καλέστε ξανά."};
inline constexpr TextPair kCallerLeft = {
    u"The caller left before the conversation began. Wait again for the next call.",
    u"Αυτός που κάλεσε έφυγε πριν αρχίσει η συνομιλία. Μπείτε ξανά σε αναμονή για την επόμενη "
    u"κλήση."};
inline constexpr TextPair kPortTaken = {
    u"A program on this computer already uses port %1. Wait on another port.",
    u"Κάποιο πρόγραμμα σε αυτόν τον υπολογιστή χρησιμοποιεί ήδη τη θύρα %1. Επιλέξτε άλλη θύρα για "
    u"την αναμονή."};
inline constexpr TextPair kPortNotAllowed = {
    u"This computer does not let you wait on port %1. Choose a port from 1024 to 32767.",
    u"Αυτός ο υπολογιστής δεν σας επιτρέπει να περιμένετε στη θύρα %1. Επιλέξτε θύρα από 1024 έως "
    u"32767."};

}  // namespace verlume::note_texts
