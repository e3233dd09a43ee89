#include "commands/command_texts.h"

#include <algorithm>

namespace verlume {
namespace {

constexpr TextPair kNone = {u"", u""};

// In the order of the command table.
constexpr CommandText kCommandTexts[] = {
    {u"/MACROSFOLDER", kNone, {u"chooses the macros folder", u"ορίζει τον φάκελλο μακροεντολών"}},
    {u"/LOGFOLDER", kNone, {u"chooses the log folder", u"ορίζει τον φάκελλο καταγραφής"}},
    {u"/LOGDIALOGUE", kNone, {u"logging on", u"ενεργοποιεί την καταγραφή"}},
    {u"/DONTLOGDIALOGUE", kNone, {u"logging off", u"απενεργοποιεί την καταγραφή"}},
    {u"/LOADDIALOGUE", kNone, {u"loads a saved dialogue", u"φορτώνει αποθηκευμένο διάλογο"}},
    {u"/SAVEDIALOGUEAS", kNone, {u"saves the dialogue", u"αποθηκεύει τον διάλογο"}},
    {u"/EXIT", kNone, {u"ends the program", u"τερματίζει το πρόγραμμα"}},
    {u"/WAIT", {u"[port]", u"[θύρα]"}, {u"waits for a call", u"αναμένει κλήση"}},
    {u"/CALL",
     {u"[address] [port]", u"[διεύθυνση] [θύρα]"},
     {u"calls a computer", u"καλεί έναν υπολογιστή"}},
    {u"/CANCEL", kNone, {u"stops waiting or calling", u"διακόπτει την αναμονή ή την κλήση"}},
    {u"/CLOSE", kNone, {u"ends the conversation", u"τελειώνει τη συνομιλία"}},
    {u"/REFRESH",
     kNone,
     {u"reads the address of your computer again",
      u"διαβάζει ξανά τη διεύθυνση του υπολογιστή σας"}},
    {u"/BOLD", kNone, {u"bold on", u"έντονη γραφή"}},
    {u"/NOTBOLD", kNone, {u"bold off", u"όχι έντονη γραφή"}},
    {u"/ITALICS", kNone, {u"italics on", u"πλάγια γραφή"}},
    {u"/NOTITALICS", kNone, {u"italics off", u"όχι πλάγια γραφή"}},
    {u"/UNDERLINED", kNone, {u"underlined on", u"υπογραμμισμένη γραφή"}},
    {u"/NOTUNDERLINED", kNone, {u"underlined off", u"όχι υπογραμμισμένη γραφή"}},
    {u"/SIZE",
     {u"[number]", u"[αριθμός]"},
     {u"font size, from 8 to 11", u"μέγεθος γραμματοσειράς, από 8 μέχρι 11"}},
    {u"/FONTCOLOR",
     kNone,
     {u"chooses the colour of your text", u"ορίζει το χρώμα των γραμμάτων σας"}},
    {u"/FONT", kNone, {u"chooses the font", u"ορίζει τη γραμματοσειρά"}},
    {u"/DIALOGUEBACKCOLOR",
     kNone,
     {u"chooses the background of the dialogue pane", u"ορίζει το φόντο του πλαισίου διαλόγου"}},
    {u"/COMMANDSBACKCOLOR",
     kNone,
     {u"chooses the background of the command pane", u"ορίζει το φόντο του πλαισίου εντολών"}},
    {u"/NICK",
     {u"[nickname]", u"[ψευδώνυμο]"},
     {u"changes your nickname", u"αλλάζει το ψευδώνυμό σας"}},
    {u"/EDITMACROS", kNone, {u"opens the macro editor", u"ανοίγει το παράθυρο των μακροεντολών"}},
    {u"/CLEARDIALOGUE", kNone, {u"empties the dialogue pane", u"αδειάζει το πλαίσιο διαλόγου"}},
    {u"/CLEARCOMMANDS", kNone, {u"empties the command pane", u"αδειάζει το πλαίσιο εντολών"}},
    {u"/CLEARHISTORY",
     kNone,
     {u"forgets the lines that Page Up brings back",
      u"ξεχνά τις γραμμές που επαναφέρει το Page Up"}},
    {u"/DATE", kNone, {u"date stamps on", u"ημερομηνία στις γραμμές"}},
    {u"/NODATE", kNone, {u"date stamps off", u"χωρίς ημερομηνία"}},
    {u"/TIME", kNone, {u"time stamps on", u"ώρα στις γραμμές"}},
    {u"/NOTIME", kNone, {u"time stamps off", u"χωρίς ώρα"}},
    {u"/ALWAYSONTOP",
     kNone,
     {u"keeps the window above all others", u"κρατά το παράθυρο πάνω από όλα τα άλλα"}},
    {u"/NOTALWAYSONTOP",
     kNone,
     {u"lets other windows cover it again", u"επιτρέπει ξανά σε άλλα παράθυρα να το καλύπτουν"}},
    {u"/ENGLISH", kNone, {u"the program speaks English", u"το πρόγραμμα μιλά αγγλικά"}},
    {u"/GREEK", kNone, {u"the program speaks Greek", u"το πρόγραμμα μιλά ελληνικά"}},
    {u"/HELPDETAILED", kNone, {u"opens the manual", u"ανοίγει το εγχειρίδιο"}},
    {u"/HELPABOUT", kNone, {u"opens the About box", u"ανοίγει το παράθυρο «Σχετικά»"}},
    {u"/ME",
     {u"text", u"κείμενο"},
     {u"sends an action line: your nickname takes the place of the command",
      u"στέλνει μια γραμμή ενεργείας: το ψευδώνυμό σας παίρνει τη θέση της εντολής"}},
};

}  // namespace

const CommandText& TextOfCommand(std::u16string_view english) {
  return *std::ranges::find(kCommandTexts, english, &CommandText::command);
}

}  // namespace verlume
