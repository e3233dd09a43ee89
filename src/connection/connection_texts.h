// The texts of all boxes of the connection, by action. The comment above a text says what "%1" and
// "%2" stand for.
#pragma once

#include "shell/text_pair.h"

namespace verlume::connection_texts {

inline constexpr TextPair kWrongPort = {
    u"The port number you typed, is wrong.",
    u"Ο αριθμός της θύρας που πληκτρολογήσατε, είναι λανθασμένος."};

namespace call_remote {

inline constexpr TextPair kTitle = {u"Calling remote computer", u"Κλήση απομακρυσμένου υπολογιστή"};
// %1 RemoteAddress, %2 RemotePort
inline constexpr TextPair kConnected = {
    u"There is an already active connection to a remote computer, at address %1, on port %2."
    u"\r\n\r\n"
    u"You must first close this connection and then call another remote computer.",
    u"Υπάρχει ήδη ενεργός σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση %1, μέσω της "
    u"θύρας %2.\r\n\r\n"
    u"Πρέπει πρώτα να κλείσετε αυτήν την σύνδεση και ύστερα να καλέσετε έναν άλλο "
    u"απομακρυσμένο υπολογιστή."};
// %1 LocalPort
inline constexpr TextPair kWaiting = {
    u"You are already waiting for an incoming call on port %1.\r\n\r\n"
    u"Do you want to quit waiting and call a remote computer?",
    u"Βρίσκεστε ήδη σε αναμονή για εισερχόμενη κλήση μέσω της θύρας %1.\r\n\r\n"
    u"Θέλετε να διακόψετε την αναμονή και να καλέσετε έναν απομακρυσμένο υπολογιστή;"};
// %1 RemotePort
inline constexpr TextPair kCalling = {
    u"You have already called a remote computer, on port %1.\r\n\r\n"
    u"Do you want to call another remote computer?",
    u"Έχετε ήδη καλέσει έναν απομακρυσμένο υπολογιστή, μέσω της θύρας %1.\r\n\r\n"
    u"Θέλετε να καλέσετε έναν άλλο απομακρυσμένο υπολογιστή;"};
inline constexpr TextPair kHostPrompt = {
    u"Type the name OR the IP address of the remote computer to which you want to get "
    u"connected.",
    u"Πληκτρολογήστε το όνομα Ή την διεύθυνση IP του απομακρυσμένου υπολογιστή με τον οποίο "
    u"θέλετε να συνδεθείτε."};
inline constexpr TextPair kHostTitle = {u"Calling remote computer - Name or IP",
                                        u"Κλήση απομακρυσμένου υπολογιστή - Όνομα ή IP"};
inline constexpr TextPair kPortPrompt = {
    u"Type the port of the remote computer to which you want to get connected.",
    u"Πληκτρολογήστε την θύρα του απομακρυσμένου υπολογιστή με τον οποίο θέλετε να συνδεθείτε."};
inline constexpr TextPair kPortTitle = {u"Calling remote computer - Port",
                                        u"Κλήση απομακρυσμένου υπολογιστή - Θύρα"};

}  // namespace call_remote

namespace wait_for_call {

inline constexpr TextPair kTitle = {u"Waiting for an incoming call",
                                    u"Αναμονή για εισερχόμενη κλήση"};
// %1 RemoteAddress, %2 RemotePort
inline constexpr TextPair kConnected = {
    u"There is an already active connection to a remote computer, at address %1, on port %2."
    u"\r\n\r\n"
    u"You must first close this connection and then enter a wait state for an incoming call.",
    u"Υπάρχει ήδη ενεργός σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση %1, μέσω της "
    u"θύρας %2.\r\n\r\n"
    u"Πρέπει πρώτα να κλείσετε αυτήν την σύνδεση και ύστερα να έλθετε σε κατάσταση αναμονής "
    u"για εισερχόμενη κλήση."};
// %1 RemotePort
inline constexpr TextPair kCalling = {
    u"You have already called a remote computer, on port %1.\r\n\r\n"
    u"Do you want to cancel this call and enter a wait state for an incoming call?",
    u"Έχετε ήδη καλέσει έναν απομακρυσμένο υπολογιστή, μέσω της θύρας %1.\r\n\r\n"
    u"Θέλετε να διακόψετε την κλήση και να έλθετε σε κατάσταση αναμονής για εισερχόμενη κλήση;"};
inline constexpr TextPair kPortTitle = {u"Incoming call port", u"Θύρα εισερχομένης κλήσεως"};
// %1 LocalPort
inline constexpr TextPair kWaiting = {
    u"You are already waiting for an incoming call on port %1.\r\n\r\n"
    u"Do you want to set another port?",
    u"Βρίσκεστε ήδη σε αναμονή για εισερχόμενη κλήση μέσω της θύρας %1.\r\n\r\n"
    u"Θέλετε να ορίσετε νέα θύρα;"};
inline constexpr TextPair kPortPrompt = {
    u"Type the port on which you want to receive the incoming call.",
    u"Πληκτρολογήστε την θύρα μέσω της οποίας θέλετε να λάβετε την εισερχόμενη κλήση."};

}  // namespace wait_for_call

namespace cancel_wait_or_call {

inline constexpr TextPair kTitle = {u"Command '/CANCEL'", u"Εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ»"};
inline constexpr TextPair kUseless = {
    u"The '/CANCEL' command is useful only if you want to stop waiting for an incoming call "
    u"or if you cant to cancel a call to a remote computer.\r\n\r\n"
    u"For the time being you are neither waiting for an incoming call nor have you called a "
    u"remote computer.",
    u"Η εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ», έχει αποτέλεσμα μόνο αν θέλετε να ακυρώσετε την "
    u"αναμονή για εισερχόμενη κλήση ή την κλήση απομακρυσμένου υπολογιστή.\r\n\r\n"
    u"Αυτήν την στιγμή, ούτε αναμένετε εισερχόμενη κλήση, ούτε έχετε καλέσει κάποιον "
    u"απομακρυσμένο υπολογιστή."};

}  // namespace cancel_wait_or_call

namespace close_connection {

inline constexpr TextPair kTitle = {u"Command '/CLOSE'", u"Εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ»"};
inline constexpr TextPair kUseless = {
    u"The '/CLOSE' command is useful only if there is an active connection to a remote "
    u"computer.\r\n\r\n"
    u"For the time being there is no active connection to a remote computer.",
    u"Η εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ», έχει αποτέλεσμα μόνο αν υπάρχει ενεργός σύνδεση με "
    u"κάποιον απομακρυσμένο υπολογιστή.\r\n\r\n"
    u"Αυτήν την στιγμή, δεν υπάρχει ενεργός σύνδεση με κάποιον απομακρυσμένο υπολογιστή."};

}  // namespace close_connection

namespace refresh_local_ip {

inline constexpr TextPair kTitle = {u"Refresh IP address", u"Ανανέωση διευθύνσεως IP"};
inline constexpr TextPair kNoNeed = {
    u"There is no need to refresh the IP address of your computer.",
    u"Η διεύθυνση IP του υπολογιστή σας δεν χρειάζεται ανανέωση."};
// %1 RemoteAddress, %2 RemotePort
inline constexpr TextPair kConnected = {
    u"There is an already active connection to a remote computer, at address %1, on port %2."
    u"\r\n\r\n"
    u"You must first close this connection and then refresh the IP address of your computer.",
    u"Υπάρχει ήδη ενεργός σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση %1, μέσω της "
    u"θύρας %2.\r\n\r\n"
    u"Πρέπει πρώτα να κλείσετε αυτήν την σύνδεση και ύστερα να ανανεώσετε την διεύθυνση IP "
    u"του υπολογιστή σας."};
// %1 RemotePort
inline constexpr TextPair kCalling = {
    u"You have already called a remote computer, on port %1.\r\n\r\n"
    u"Do you want to cancel this call in order to refresh the IP address of your computer?",
    u"Έχετε ήδη καλέσει έναν απομακρυσμένο υπολογιστή, μέσω της θύρας %1.\r\n\r\n"
    u"Θέλετε να διακόψετε την κλήση για να ανανεωθεί η διεύθυνση IP του υπολογιστή σας;"};
// %1 LocalPort
inline constexpr TextPair kWaiting = {
    u"You are already waiting for an incoming call on port %1.\r\n\r\n"
    u"Do you want to quit waiting in order to refresh the IP address of your computer?",
    u"Βρίσκεστε ήδη σε αναμονή για εισερχόμενη κλήση μέσω της θύρας %1.\r\n\r\n"
    u"Θέλετε να διακόψετε την αναμονή για να ανανεωθεί η διεύθυνση IP του υπολογιστή σας;"};

}  // namespace refresh_local_ip

namespace set_nickname {

inline constexpr TextPair kTitle = {u"Nickname definition", u"Ορισμός ψευδωνύμου"};
inline constexpr TextPair kPrompt = {
    u"Type the nickname you want to acquire.\r\n\r\n"
    u"You may type from 1 and up to 32 characters.",
    u"Πληκτρολογήστε το ψευδώνυμο που θέλετε να αποκτήσετε.\r\n\r\n"
    u"Μπορείτε να πληκτρολογήσετε από 1 μέχρι και 32 χαρακτήρες."};
inline constexpr TextPair kTooLong = {u"The nickname must not contain more than 32 characters.",
                                      u"Το ψευδώνυμο δεν πρέπει να υπερβαίνει τους 32 χαρακτήρες."};
// %1 the nickname, %2 what the peer reads
inline constexpr TextPair kNotCarried = {
    u"The nickname '%1' contains characters that cannot be sent. The remote computer will show "
    u"it as '%2'.\r\n\r\n"
    u"Do you want to choose another nickname?",
    u"Το ψευδώνυμο «%1» περιέχει χαρακτήρες που δεν μπορούν να σταλούν. Ο απομακρυσμένος "
    u"υπολογιστής θα το εμφανίζει ως «%2».\r\n\r\n"
    u"Θέλετε να επιλέξετε άλλο ψευδώνυμο;"};

}  // namespace set_nickname

namespace confirm_exit {

inline constexpr TextPair kTitle = {u"Command '/EXIT'", u"Εντολή «/EXIT» ή «/ΈΞΟΔΟΣ»"};
// Follows each of the three sentences.
inline constexpr TextPair kQuestion = {
    u"\r\n\r\n"
    u"Do you really want to shut down the application and return to the Windows environment?",
    u"\r\n\r\n"
    u"Θέλετε πράγματι να κλείσετε την εφαρμογή και να επιστρέψετε στο περιβάλλον των Windows;"};
// %1 LocalPort
inline constexpr TextPair kWaiting = {
    u"You are currently waiting for an incoming call on port %1.",
    u"Βρίσκεσθε σε αναμονή για εισερχόμενη κλήση μέσω της θύρας %1."};
// %1 RemoteHost, %2 RemotePort
inline constexpr TextPair kCalling = {
    u"You have placed a call to the remote computer %1, on port %2 and are currently waiting "
    u"for a response.",
    u"Έχετε καλέσει τον απομακρυσμένο υπολογιστή %1, μέσω της θύρας %2 και αναμένετε απάντηση."
    u""};
// %1 RemoteAddress, %2 RemotePort
inline constexpr TextPair kConnected = {
    u"You are curently connected to the remote computer at address %1, on port %2 and the "
    u"connection is still active.",
    u"Έχετε συνδεθεί με τον απομακρυσμένο υπολογιστή στην διεύθυνση %1, μέσω της θύρας %2 και "
    u"η σύνδεση αυτή είναι ενεργός."};

}  // namespace confirm_exit

namespace connection_request {

inline constexpr TextPair kTitle = {u"Incoming call", u"Εισερχόμενη κλήση"};
// %1 ip, %2 port
inline constexpr TextPair kAsk = {
    u"You have an incoming connection request from a remote computer, at address %1, on port "
    u"%2.\r\n\r\n"
    u"Will you accept it?",
    u"Έχετε εισερχόμενη κλήση για σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση %1, "
    u"μέσω της θύρας %2.\r\n\r\n"
    u"Θα την αποδεχθείτε;"};
// A tick. With it, No does not end the wait.
inline constexpr TextPair kKeepWaiting = {u"&Keep waiting", u"&Συνέχιση της αναμονής"};

}  // namespace connection_request

}  // namespace verlume::connection_texts
