// What lblStatus says about the connection. The comment above a text says what "%1" and "%2" stand
// for.
#pragma once

#include "shell/text_pair.h"

namespace verlume::status_texts {

// %1 host, %2 port
inline constexpr TextPair kCalling = {u"Remote computer / port: %1 / %2. Calling...",
                                      u"Απομακρυσμένος υπολογιστής / θύρα: %1 / %2. Κλήση..."};
// %1 port
inline constexpr TextPair kWaiting = {u"Local port: %1. Waiting for an incoming call...",
                                      u"Τοπική θύρα: %1. Αναμονή για εισερχόμενη κλήση..."};
// %1 LocalPort
inline constexpr TextPair kWaitCancelled = {
    u"Local port: %1. You stopped waiting for an incoming call.",
    u"Τοπική θύρα: %1. Διακόψατε την αναμονή για εισερχόμενη κλήση."};
// %1 RemoteHost, %2 RemotePort
inline constexpr TextPair kCallCancelled = {
    u"Remote computer / port: %1 / %2. You cancelled the call.",
    u"Απομακρυσμένος υπολογιστής / θύρα: %1 / %2. Ακυρώσατε την κλήση."};
// %1 RemoteAddress, %2 RemotePort
inline constexpr TextPair kClosedByUser = {
    u"Remote computer IP address / port: %1 / %2. Disconnected.",
    u"Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: %1 / %2. Αποσυνδεθήκατε."};
// %1 ip, %2 port
inline constexpr TextPair kEstablishing = {
    u"Remote computer / port: %1 / %2. Establishing a connection...",
    u"Απομακρυσμένος υπολογιστής / θύρα: %1 / %2. Σύνδεση σε εξέλιξη..."};
// %1 ip, %2 port
inline constexpr TextPair kActive = {
    u"Remote computer IP address / port: %1 / %2. Active connection.",
    u"Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: %1 / %2. Ενεργός σύνδεση."};
// %1 ip, %2 LocalPort
inline constexpr TextPair kRejected = {
    u"Remote computer IP address / Local port: %1 / %2. You rejected the incoming call.",
    u"Διεύθυνση IP απομακρυσμένου υπολογιστή / Τοπική θύρα: %1 / %2. Απορρίψατε την "
    u"εισερχόμενη κλήση."};
// %1 RemoteHost, %2 RemotePort
inline constexpr TextPair kNotEstablished = {
    u"Remote computer / port: %1 / %2. A connection could NOT be established.",
    u"Απομακρυσμένος υπολογιστής / θύρα: %1 / %2. Η σύνδεση ΔΕΝ κατέστη εφικτή."};
// %1 RemoteHost, %2 RemotePort
inline constexpr TextPair kNotPrivate = {
    u"Remote computer / port: %1 / %2. A private connection could NOT be established.",
    u"Απομακρυσμένος υπολογιστής / θύρα: %1 / %2. Η ιδιωτική σύνδεση ΔΕΝ κατέστη εφικτή."};
// %1 RemoteAddress, %2 RemotePort. Greek tells "it was disconnected" from "you disconnected".
inline constexpr TextPair kClosedByPeer = {
    u"Remote computer IP address / port: %1 / %2. Disconnected.",
    u"Διεύθυνση IP απομακρυσμένου υπολογιστή / θύρα: %1 / %2. Αποσυνδέθηκε."};

}  // namespace verlume::status_texts
