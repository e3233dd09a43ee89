// Texts of the About box.
#pragma once

#include "shell/text_pair.h"

namespace verlume::about_texts {

inline constexpr TextPair kCaption = {u"About", u"Σχετικά"};
inline constexpr TextPair kVersion = {u"Version %1", u"Έκδοση %1"};
inline constexpr TextPair kDescription = {
    u"This application allows two remote computers to "
    u"connect to each other, something that enables the "
    u"owners of these computers to exchange typed "
    u"messages in real time. The connection is "
    u"established using IP addresses and is rather "
    u"secure since NO server is needed for the "
    u"establishment of the connection.",
    u"Η εφαρμογή αυτή επιτρέπει σε δύο "
    u"απομακρυσμένους υπολογιστές να συνδεθούν "
    u"μεταξύ τους, ώστε οι κάτοχοί τους "
    u"να μπορούν να ανταλλάσσουν γραπτά "
    u"μηνύματα, σε πραγματικό χρόνο. Η επικοινωνία "
    u"γίνεται με διευθύνσεις IP και "
    u"είναι ιδιαίτερα ασφαλής αφού ΔΕΝ απαιτείται "
    u"διακομιστής για την επικοινωνία."};
inline constexpr TextPair kDisclaimer = {
    u"This application is freeware and therefore "
    u"its developer is not bound by any kind of "
    u"legal or other agreement to the end user.",
    u"Η εφαρμογή αυτή διανέμεται δωρεάν "
    u"και επομένως δεν υπάρχει καμμία νομική "
    u"ή άλλη δέσμευση ανάμεσα στον δημιουργό "
    u"της και στον τελικό χρήστη."};
inline constexpr TextPair kOk = {u"OK", u"OK"};
inline constexpr TextPair kSystemInfo = {u"System Info...", u"Πληροφορίες συστήματος..."};

// The picture's name, which assistive tools read.
inline constexpr TextPair kIconName = {u"Icon of Verlume", u"Εικονίδιο του Verlume"};

}  // namespace verlume::about_texts
