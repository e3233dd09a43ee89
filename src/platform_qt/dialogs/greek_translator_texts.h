// The texts of Qt that the program's boxes and dialogs show, with their Greek translations. A text
// has the same translation in all dialogs.
#pragma once

#include <array>
#include <string_view>

namespace verlume::qt {

struct QtText {
  std::string_view source;
  std::u16string_view greek;
};

inline constexpr auto kButtonTexts = std::to_array<QtText>({
    {"OK", u"OK"},
    {"&OK", u"OK"},
    {"&Yes", u"&Ναι"},
    {"&No", u"&Όχι"},
    {"Cancel", u"Άκυρο"},
    {"&Cancel", u"Άκυρο"},
    {"Open", u"Άνοιγμα"},
    {"&Open", u"Άν&οιγμα"},
    {"Save", u"Αποθήκευση"},
    {"&Save", u"&Αποθήκευση"},
    {"&Choose", u"&Επιλογή"},
    {"Close", u"Κλείσιμο"},
    {"&Close", u"&Κλείσιμο"},
    {"Apply", u"Εφαρμογή"},
    {"Help", u"Βοήθεια"},
});

inline constexpr auto kEditMenuTexts = std::to_array<QtText>({
    {"&Undo", u"&Αναίρεση"},
    {"&Redo", u"Ακύρωση αναί&ρεσης"},
    {"Cu&t", u"Απο&κοπή"},
    {"&Copy", u"Αντι&γραφή"},
    {"&Paste", u"&Επικόλληση"},
    {"Delete", u"Διαγραφή"},
    {"Select All", u"Επιλογή όλων"},
    {"&Select All", u"Επιλογή ό&λων"},
    {"Copy &Link Location", u"Αντιγραφή διεύθυνσης &συνδέσμου"},
    {"&Step up", u"&Αύξηση"},
    {"Step &down", u"&Μείωση"},
    {"Insert Unicode control character", u"Εισαγωγή χαρακτήρα ελέγχου Unicode"},
});

inline constexpr auto kFileDialogTexts = std::to_array<QtText>({
    {"Look in:", u"Διερεύνηση σε:"},
    {"File &name:", u"Όνομα α&ρχείου:"},
    {"Files of type:", u"Αρχεία τύπου:"},
    {"Directory:", u"Φάκελλος:"},
    {"Directories", u"Φάκελλοι"},
    {"Files", u"Αρχεία"},
    {"All Files (*)", u"Όλα τα αρχεία (*)"},
    {"All Files (*.*)", u"Όλα τα αρχεία (*.*)"},
    {"Save As", u"Αποθήκευση ως"},
    {"Find Directory", u"Εύρεση φακέλλου"},
    {"Back", u"Πίσω"},
    {"Go back", u"Μετάβαση πίσω"},
    {"Forward", u"Εμπρός"},
    {"Go forward", u"Μετάβαση εμπρός"},
    {"Parent Directory", u"Γονικός φάκελλος"},
    {"Go to the parent directory", u"Μετάβαση στον γονικό φάκελλο"},
    {"Create New Folder", u"Δημιουργία νέου φακέλλου"},
    {"Create a New Folder", u"Δημιουργία νέου φακέλλου"},
    {"&New Folder", u"&Νέος φάκελλος"},
    {"New Folder", u"Νέος φάκελλος"},
    {"List View", u"Προβολή λίστας"},
    {"Change to list view mode", u"Αλλαγή σε προβολή λίστας"},
    {"Detail View", u"Προβολή λεπτομερειών"},
    {"Change to detail view mode", u"Αλλαγή σε προβολή λεπτομερειών"},
    {"Sidebar", u"Πλευρική στήλη"},
    {"List of places and bookmarks", u"Κατάλογος θέσεων και σελιδοδεικτών"},
    {"Recent Places", u"Πρόσφατες θέσεις"},
    {"Remove", u"Αφαίρεση"},
    {"&Rename", u"&Μετονομασία"},
    {"&Delete", u"&Διαγραφή"},
    {"Show ", u"Εμφάνιση "},
    {"Show &hidden files", u"Εμφάνιση &κρυφών αρχείων"},
    {"Name", u"Όνομα"},
    {"Size", u"Μέγεθος"},
    {"Type", u"Τύπος"},
    {"Kind", u"Είδος"},
    {"Date Modified", u"Ημερομηνία τροποποίησης"},
    {"Computer", u"Υπολογιστής"},
    {"My Computer", u"Ο υπολογιστής μου"},
    {"Drive", u"Μονάδα δίσκου"},
    {"Folder", u"Φάκελλος"},
    {"File Folder", u"Φάκελλος αρχείων"},
    {"File", u"Αρχείο"},
    {"%1 File", u"Αρχείο %1"},
    {"Shortcut", u"Συντόμευση"},
    {"Alias", u"Ψευδώνυμο"},
    {"Unknown", u"Άγνωστο"},
});

inline constexpr auto kFileQuestionTexts = std::to_array<QtText>({
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     u"%1\nΟ φάκελλος δεν βρέθηκε.\nΒεβαιωθείτε ότι δόθηκε το σωστό όνομα φακέλλου."},
    {"%1\nNo file can have this name.\nPlease choose another one.",
     u"%1\nΚανένα αρχείο δεν μπορεί να έχει αυτό το όνομα.\nΕπιλέξτε ένα άλλο."},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     u"%1\nΤο αρχείο δεν βρέθηκε.\nΒεβαιωθείτε ότι δόθηκε το σωστό όνομα αρχείου."},
    {"Existing file %1 is not writable",
     u"Στο αρχείο %1, που υπάρχει ήδη, δεν επιτρέπεται η εγγραφή"},
    {"%1 already exists.\nDo you want to replace it?",
     u"Το αρχείο %1 υπάρχει ήδη.\nΘέλετε να αντικατασταθεί;"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     u"Το «%1» προστατεύεται από εγγραφή.\nΘέλετε να διαγραφεί παρ' όλα αυτά;"},
    {"Are you sure you want to delete '%1'?", u"Θέλετε σίγουρα να διαγραφεί το «%1»;"},
    {"The folder %1 could not be made.", u"Δεν έγινε δυνατή η δημιουργία του φακέλλου %1."},
    {"Could not delete directory.", u"Δεν έγινε δυνατή η διαγραφή του φακέλλου."},
    {"Invalid filename", u"Μη έγκυρο όνομα αρχείου"},
    {"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no "
     "punctuation marks.",
     u"<b>Το όνομα «%1» δεν μπορεί να χρησιμοποιηθεί.</b><p>Δοκιμάστε άλλο όνομα, με λιγότερους "
     u"χαρακτήρες ή χωρίς σημεία στίξης."},
});

inline constexpr auto kColorDialogTexts = std::to_array<QtText>({
    {"Select Color", u"Επιλογή χρώματος"},
    {"&Basic colors", u"&Βασικά χρώματα"},
    {"&Custom colors", u"&Προσαρμοσμένα χρώματα"},
    {"&Add to Custom Colors", u"Προσ&θήκη στα προσαρμοσμένα"},
    {"&Pick Screen Color", u"&Λήψη χρώματος από την οθόνη"},
    {"Hu&e:", u"&Χροιά:"},
    {"&Sat:", u"&Κορεσμός:"},
    {"&Val:", u"&Τιμή:"},
    {"&Red:", u"Κό&κκινο:"},
    {"&Green:", u"Πρά&σινο:"},
    {"Bl&ue:", u"&Μπλε:"},
    {"A&lpha channel:", u"&Διαφάνεια:"},
    {"&HTML:", u"&HTML:"},
    {"Cursor at %1, %2\nPress ESC to cancel", u"Δρομέας στο %1, %2\nΠατήστε ESC για ακύρωση"},
});

// Style names such as "Bold" are not translated: the dialog looks them up among the names in the
// font's file.
inline constexpr auto kFontDialogTexts = std::to_array<QtText>({
    {"Select Font", u"Επιλογή γραμματοσειράς"},
    {"&Font", u"&Γραμματοσειρά"},
    {"Font st&yle", u"&Στυλ γραμματοσειράς"},
    {"&Size", u"&Μέγεθος"},
    {"Effects", u"Εφέ"},
    {"Co&lor...", u"&Χρώμα..."},
    {"Stri&keout", u"&Διαγραμμένη"},
    {"&Underline", u"&Υπογραμμισμένη"},
    {"Sample", u"Δείγμα"},
    {"Wr&iting System", u"Σύστημα γρα&φής"},
    {"Any", u"Οποιοδήποτε"},
    {"Enter a value:", u"Δώστε μια τιμή:"},
});

inline constexpr auto kWritingSystemTexts = std::to_array<QtText>({
    {"Latin", u"Λατινικό"},
    {"Greek", u"Ελληνικό"},
    {"Cyrillic", u"Κυριλλικό"},
    {"Armenian", u"Αρμενικό"},
    {"Hebrew", u"Εβραϊκό"},
    {"Arabic", u"Αραβικό"},
    {"Syriac", u"Συριακό"},
    {"Thaana", u"Θαάνα"},
    {"Devanagari", u"Ντεβαναγκάρι"},
    {"Bengali", u"Βεγγαλικό"},
    {"Gurmukhi", u"Γκουρμούκι"},
    {"Gujarati", u"Γκουτζαράτι"},
    {"Oriya", u"Ορίγια"},
    {"Tamil", u"Ταμίλ"},
    {"Telugu", u"Τελούγκου"},
    {"Kannada", u"Κανάντα"},
    {"Malayalam", u"Μαλαγιάλαμ"},
    {"Sinhala", u"Σινχάλα"},
    {"Thai", u"Ταϊλανδικό"},
    {"Lao", u"Λαοτινό"},
    {"Tibetan", u"Θιβετιανό"},
    {"Myanmar", u"Βιρμανικό"},
    {"Georgian", u"Γεωργιανό"},
    {"Khmer", u"Χμερ"},
    {"Simplified Chinese", u"Απλοποιημένο κινεζικό"},
    {"Traditional Chinese", u"Παραδοσιακό κινεζικό"},
    {"Japanese", u"Ιαπωνικό"},
    {"Korean", u"Κορεατικό"},
    {"Vietnamese", u"Βιετναμέζικο"},
    {"Symbol", u"Σύμβολα"},
    {"Ogham", u"Όγκαμ"},
    {"Runic", u"Ρουνικό"},
    {"N'Ko", u"Ν'Κο"},
});

}  // namespace verlume::qt
