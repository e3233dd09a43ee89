// What is printed about the arguments.
#pragma once

#include "shell/text_pair.h"

namespace verlume::command_line_texts {

// %1 is what is wrong.
inline constexpr TextPair kLine = {u"verlume: %1 Try 'verlume --help'.\n",
                                   u"verlume: %1 Δείτε 'verlume --help'.\n"};

// %1 is the argument.
inline constexpr TextPair kUnknownOption = {u"There is no option '%1'.",
                                            u"Δεν υπάρχει επιλογή '%1'."};
inline constexpr TextPair kNeither = {u"'%1' is neither an option nor an invitation.",
                                      u"Το '%1' δεν είναι ούτε επιλογή ούτε πρόσκληση."};
inline constexpr TextPair kTwice = {u"The option '%1' is there twice.",
                                    u"Η επιλογή '%1' υπάρχει δύο φορές."};
inline constexpr TextPair kTakesNoValue = {u"The option '%1' takes no value.",
                                           u"Η επιλογή '%1' δεν δέχεται τιμή."};
inline constexpr TextPair kNeedsHostAndPort = {u"'--call' needs a host and a port.",
                                               u"Η '--call' χρειάζεται διεύθυνση και θύρα."};
inline constexpr TextPair kNoHost = {u"'%1' is not a host.", u"Το '%1' δεν είναι διεύθυνση."};
// %2 and %3 are the least and the greatest.
inline constexpr TextPair kNoPort = {u"'%1' is not a port, a number from %2 to %3.",
                                     u"Το '%1' δεν είναι θύρα, αριθμός από %2 έως %3."};
inline constexpr TextPair kNeedsFolder = {u"'--folder' needs a folder.",
                                          u"Η '--folder' χρειάζεται φάκελλο."};
inline constexpr TextPair kOneAtATime = {
    u"Only one of '--wait', '--call' and an invitation can be done at a time.",
    u"Μόνο ένα από '--wait', '--call' και πρόσκληση μπορεί να γίνει κάθε φορά."};
inline constexpr TextPair kFolderRefused = {
    u"verlume: The folder '%1' cannot be made or written to.\n",
    u"verlume: Ο φάκελλος '%1' δεν μπορεί να δημιουργηθεί ή να γραφτεί.\n"};

// %1 is the number.
inline constexpr TextPair kVersion = {u"verlume %1\n", u"verlume %1\n"};

inline constexpr TextPair kHelp = {
    u"Usage: verlume [OPTION]... [INVITATION]\n"
    u"Typed conversation between two computers, over one direct TCP connection.\n"
    u"\n"
    u"  --wait [PORT]      wait for a call, on a free port when none is given\n"
    u"  --call HOST PORT   call a computer\n"
    u"  --folder FOLDER    keep settings and key in this folder, an identity of its\n"
    u"                     own; it is made if it is missing\n"
    u"  --help             print this text and end\n"
    u"  --version          print the version and end\n"
    u"\n"
    u"An INVITATION is an address that begins with verlume://. The program asks\n"
    u"before it calls there.\n"
    u"\n"
    u"If a copy that keeps its settings in the same folder is running, it waits,\n"
    u"calls or opens the invitation, and this one ends at once.\n",
    u"Χρήση: verlume [ΕΠΙΛΟΓΗ]... [ΠΡΟΣΚΛΗΣΗ]\n"
    u"Γραπτή συνομιλία μεταξύ δύο υπολογιστών, μέσω μιας άμεσης σύνδεσης TCP.\n"
    u"\n"
    u"  --wait [ΘΥΡΑ]          αναμονή κλήσης, σε ελεύθερη θύρα αν δεν δοθεί κάποια\n"
    u"  --call ΔΙΕΥΘΥΝΣΗ ΘΥΡΑ  κλήση ενός υπολογιστή\n"
    u"  --folder ΦΑΚΕΛΛΟΣ      ρυθμίσεις και κλειδί σε αυτόν τον φάκελλο, ως χωριστή\n"
    u"                         ταυτότητα· δημιουργείται αν λείπει\n"
    u"  --help                 εμφάνιση αυτού του κειμένου και τέλος\n"
    u"  --version              εμφάνιση της έκδοσης και τέλος\n"
    u"\n"
    u"ΠΡΟΣΚΛΗΣΗ είναι μια διεύθυνση που αρχίζει με verlume://. Το πρόγραμμα ρωτά\n"
    u"πριν καλέσει εκεί.\n"
    u"\n"
    u"Αν εκτελείται ήδη ένα αντίγραφο με ρυθμίσεις στον ίδιο φάκελλο, αναμένει,\n"
    u"καλεί ή ανοίγει την πρόσκληση εκείνο, και αυτό εδώ τελειώνει αμέσως.\n"};

}  // namespace verlume::command_line_texts
