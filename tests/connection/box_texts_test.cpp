// All boxes of the actions, in both languages, with icon, buttons, default button and title.
#include <gtest/gtest.h>

#include "support/side.h"

namespace verlume {
namespace {

Message QuestionWithNoAsDefault(std::u16string_view text, std::u16string_view title) {
  return Question(text, title, Answer::No);
}

struct Box {
  ConnectionState state;
  fake::Action action;
  Message (*shape)(std::u16string_view text, std::u16string_view title);
  TextPair text;
  TextPair title;
};

const Box kBoxes[] = {
    {ConnectionState::Connected,
     &fake::Run<&ConnectionActions::CallRemote>,
     &Refusal,
     {u"There is an already active connection to a remote computer, at address 192.0.2.2, "
      u"on port 4000.\r\n\r\n"
      u"You must first close this connection and then call another remote computer.",
      u"Υπάρχει ήδη ενεργός σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση 192.0.2.2, "
      u"μέσω της θύρας 4000.\r\n\r\n"
      u"Πρέπει πρώτα να κλείσετε αυτήν την σύνδεση και ύστερα να καλέσετε έναν άλλο "
      u"απομακρυσμένο υπολογιστή."},
     {u"Calling remote computer", u"Κλήση απομακρυσμένου υπολογιστή"}},
    {ConnectionState::Waiting,
     &fake::Run<&ConnectionActions::CallRemote>,
     &QuestionWithNoAsDefault,
     {u"You are already waiting for an incoming call on port 4001.\r\n\r\n"
      u"Do you want to quit waiting and call a remote computer?",
      u"Βρίσκεστε ήδη σε αναμονή για εισερχόμενη κλήση μέσω της θύρας 4001.\r\n\r\n"
      u"Θέλετε να διακόψετε την αναμονή και να καλέσετε έναν απομακρυσμένο υπολογιστή;"},
     {u"Calling remote computer", u"Κλήση απομακρυσμένου υπολογιστή"}},
    {ConnectionState::Calling,
     &fake::Run<&ConnectionActions::CallRemote>,
     &QuestionWithNoAsDefault,
     {u"You have already called a remote computer, on port 4000.\r\n\r\n"
      u"Do you want to call another remote computer?",
      u"Έχετε ήδη καλέσει έναν απομακρυσμένο υπολογιστή, μέσω της θύρας 4000.\r\n\r\n"
      u"Θέλετε να καλέσετε έναν άλλο απομακρυσμένο υπολογιστή;"},
     {u"Calling remote computer", u"Κλήση απομακρυσμένου υπολογιστή"}},
    {ConnectionState::Connected,
     &fake::Run<&ConnectionActions::WaitForCall>,
     &Refusal,
     {u"There is an already active connection to a remote computer, at address 192.0.2.2, "
      u"on port 4000.\r\n\r\n"
      u"You must first close this connection and then enter a wait state for an incoming "
      u"call.",
      u"Υπάρχει ήδη ενεργός σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση 192.0.2.2, "
      u"μέσω της θύρας 4000.\r\n\r\n"
      u"Πρέπει πρώτα να κλείσετε αυτήν την σύνδεση και ύστερα να έλθετε σε κατάσταση "
      u"αναμονής για εισερχόμενη κλήση."},
     {u"Waiting for an incoming call", u"Αναμονή για εισερχόμενη κλήση"}},
    {ConnectionState::Calling,
     &fake::Run<&ConnectionActions::WaitForCall>,
     &QuestionWithNoAsDefault,
     {u"You have already called a remote computer, on port 4000.\r\n\r\n"
      u"Do you want to cancel this call and enter a wait state for an incoming call?",
      u"Έχετε ήδη καλέσει έναν απομακρυσμένο υπολογιστή, μέσω της θύρας 4000.\r\n\r\n"
      u"Θέλετε να διακόψετε την κλήση και να έλθετε σε κατάσταση αναμονής για εισερχόμενη "
      u"κλήση;"},
     {u"Waiting for an incoming call", u"Αναμονή για εισερχόμενη κλήση"}},
    {ConnectionState::Waiting,
     &fake::Run<&ConnectionActions::WaitForCall>,
     &QuestionWithNoAsDefault,
     {u"You are already waiting for an incoming call on port 4001.\r\n\r\n"
      u"Do you want to set another port?",
      u"Βρίσκεστε ήδη σε αναμονή για εισερχόμενη κλήση μέσω της θύρας 4001.\r\n\r\n"
      u"Θέλετε να ορίσετε νέα θύρα;"},
     {u"Incoming call port", u"Θύρα εισερχομένης κλήσεως"}},
    {ConnectionState::Idle,
     &fake::Run<&ConnectionActions::CancelWaitOrCall>,
     &Note,
     {u"The '/CANCEL' command is useful only if you want to stop waiting for an incoming "
      u"call or if you cant to cancel a call to a remote computer.\r\n\r\n"
      u"For the time being you are neither waiting for an incoming call nor have you called "
      u"a remote computer.",
      u"Η εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ», έχει αποτέλεσμα μόνο αν θέλετε να ακυρώσετε την "
      u"αναμονή για εισερχόμενη κλήση ή την κλήση απομακρυσμένου υπολογιστή.\r\n\r\n"
      u"Αυτήν την στιγμή, ούτε αναμένετε εισερχόμενη κλήση, ούτε έχετε καλέσει κάποιον "
      u"απομακρυσμένο υπολογιστή."},
     {u"Command '/CANCEL'", u"Εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ»"}},
    {ConnectionState::Connected,
     &fake::Run<&ConnectionActions::CancelWaitOrCall>,
     &Note,
     {u"The '/CANCEL' command is useful only if you want to stop waiting for an incoming "
      u"call or if you cant to cancel a call to a remote computer.\r\n\r\n"
      u"For the time being you are neither waiting for an incoming call nor have you called "
      u"a remote computer.",
      u"Η εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ», έχει αποτέλεσμα μόνο αν θέλετε να ακυρώσετε την "
      u"αναμονή για εισερχόμενη κλήση ή την κλήση απομακρυσμένου υπολογιστή.\r\n\r\n"
      u"Αυτήν την στιγμή, ούτε αναμένετε εισερχόμενη κλήση, ούτε έχετε καλέσει κάποιον "
      u"απομακρυσμένο υπολογιστή."},
     {u"Command '/CANCEL'", u"Εντολή «/CANCEL» ή «/ΑΚΎΡΩΣΗ»"}},
    {ConnectionState::Idle,
     &fake::Run<&ConnectionActions::CloseConnection>,
     &Note,
     {u"The '/CLOSE' command is useful only if there is an active connection to a remote "
      u"computer.\r\n\r\n"
      u"For the time being there is no active connection to a remote computer.",
      u"Η εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ», έχει αποτέλεσμα μόνο αν υπάρχει ενεργός σύνδεση με "
      u"κάποιον απομακρυσμένο υπολογιστή.\r\n\r\n"
      u"Αυτήν την στιγμή, δεν υπάρχει ενεργός σύνδεση με κάποιον απομακρυσμένο υπολογιστή."},
     {u"Command '/CLOSE'", u"Εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ»"}},
    {ConnectionState::Waiting,
     &fake::Run<&ConnectionActions::CloseConnection>,
     &Note,
     {u"The '/CLOSE' command is useful only if there is an active connection to a remote "
      u"computer.\r\n\r\n"
      u"For the time being there is no active connection to a remote computer.",
      u"Η εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ», έχει αποτέλεσμα μόνο αν υπάρχει ενεργός σύνδεση με "
      u"κάποιον απομακρυσμένο υπολογιστή.\r\n\r\n"
      u"Αυτήν την στιγμή, δεν υπάρχει ενεργός σύνδεση με κάποιον απομακρυσμένο υπολογιστή."},
     {u"Command '/CLOSE'", u"Εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ»"}},
    {ConnectionState::Calling,
     &fake::Run<&ConnectionActions::CloseConnection>,
     &Note,
     {u"The '/CLOSE' command is useful only if there is an active connection to a remote "
      u"computer.\r\n\r\n"
      u"For the time being there is no active connection to a remote computer.",
      u"Η εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ», έχει αποτέλεσμα μόνο αν υπάρχει ενεργός σύνδεση με "
      u"κάποιον απομακρυσμένο υπολογιστή.\r\n\r\n"
      u"Αυτήν την στιγμή, δεν υπάρχει ενεργός σύνδεση με κάποιον απομακρυσμένο υπολογιστή."},
     {u"Command '/CLOSE'", u"Εντολή «/CLOSE» ή «/ΚΛΕΊΣΙΜΟ»"}},
    {ConnectionState::Idle,
     &fake::Run<&ConnectionActions::RefreshLocalIP>,
     &Note,
     {u"There is no need to refresh the IP address of your computer.",
      u"Η διεύθυνση IP του υπολογιστή σας δεν χρειάζεται ανανέωση."},
     {u"Refresh IP address", u"Ανανέωση διευθύνσεως IP"}},
    {ConnectionState::Connected,
     &fake::Run<&ConnectionActions::RefreshLocalIP>,
     &Refusal,
     {u"There is an already active connection to a remote computer, at address 192.0.2.2, "
      u"on port 4000.\r\n\r\n"
      u"You must first close this connection and then refresh the IP address of your "
      u"computer.",
      u"Υπάρχει ήδη ενεργός σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση 192.0.2.2, "
      u"μέσω της θύρας 4000.\r\n\r\n"
      u"Πρέπει πρώτα να κλείσετε αυτήν την σύνδεση και ύστερα να ανανεώσετε την διεύθυνση "
      u"IP του υπολογιστή σας."},
     {u"Refresh IP address", u"Ανανέωση διευθύνσεως IP"}},
    {ConnectionState::Calling,
     &fake::Run<&ConnectionActions::RefreshLocalIP>,
     &QuestionWithNoAsDefault,
     {u"You have already called a remote computer, on port 4000.\r\n\r\n"
      u"Do you want to cancel this call in order to refresh the IP address of your computer?",
      u"Έχετε ήδη καλέσει έναν απομακρυσμένο υπολογιστή, μέσω της θύρας 4000.\r\n\r\n"
      u"Θέλετε να διακόψετε την κλήση για να ανανεωθεί η διεύθυνση IP του υπολογιστή σας;"},
     {u"Refresh IP address", u"Ανανέωση διευθύνσεως IP"}},
    {ConnectionState::Waiting,
     &fake::Run<&ConnectionActions::RefreshLocalIP>,
     &QuestionWithNoAsDefault,
     {u"You are already waiting for an incoming call on port 4001.\r\n\r\n"
      u"Do you want to quit waiting in order to refresh the IP address of your computer?",
      u"Βρίσκεστε ήδη σε αναμονή για εισερχόμενη κλήση μέσω της θύρας 4001.\r\n\r\n"
      u"Θέλετε να διακόψετε την αναμονή για να ανανεωθεί η διεύθυνση IP του υπολογιστή σας;"},
     {u"Refresh IP address", u"Ανανέωση διευθύνσεως IP"}},
    {ConnectionState::Waiting,
     &fake::Run<&ConnectionActions::ConfirmExit>,
     &QuestionWithNoAsDefault,
     {u"You are currently waiting for an incoming call on port 4001.\r\n\r\n"
      u"Do you really want to shut down the application and return to the Windows "
      u"environment?",
      u"Βρίσκεσθε σε αναμονή για εισερχόμενη κλήση μέσω της θύρας 4001.\r\n\r\n"
      u"Θέλετε πράγματι να κλείσετε την εφαρμογή και να επιστρέψετε στο περιβάλλον των "
      u"Windows;"},
     {u"Command '/EXIT'", u"Εντολή «/EXIT» ή «/ΈΞΟΔΟΣ»"}},
    {ConnectionState::Calling,
     &fake::Run<&ConnectionActions::ConfirmExit>,
     &QuestionWithNoAsDefault,
     {u"You have placed a call to the remote computer bob, on port 4000 and are currently "
      u"waiting for a response.\r\n\r\n"
      u"Do you really want to shut down the application and return to the Windows "
      u"environment?",
      u"Έχετε καλέσει τον απομακρυσμένο υπολογιστή bob, μέσω της θύρας 4000 και αναμένετε "
      u"απάντηση.\r\n\r\n"
      u"Θέλετε πράγματι να κλείσετε την εφαρμογή και να επιστρέψετε στο περιβάλλον των "
      u"Windows;"},
     {u"Command '/EXIT'", u"Εντολή «/EXIT» ή «/ΈΞΟΔΟΣ»"}},
    {ConnectionState::Connected,
     &fake::Run<&ConnectionActions::ConfirmExit>,
     &QuestionWithNoAsDefault,
     {u"You are curently connected to the remote computer at address 192.0.2.2, on port "
      u"4000 and the connection is still active.\r\n\r\n"
      u"Do you really want to shut down the application and return to the Windows "
      u"environment?",
      u"Έχετε συνδεθεί με τον απομακρυσμένο υπολογιστή στην διεύθυνση 192.0.2.2, μέσω της "
      u"θύρας 4000 και η σύνδεση αυτή είναι ενεργός.\r\n\r\n"
      u"Θέλετε πράγματι να κλείσετε την εφαρμογή και να επιστρέψετε στο περιβάλλον των "
      u"Windows;"},
     {u"Command '/EXIT'", u"Εντολή «/EXIT» ή «/ΈΞΟΔΟΣ»"}},
};

void ExpectMessage(const Message& shown, const Message& expected) {
  EXPECT_EQ(shown.text, expected.text);
  EXPECT_EQ(shown.title, expected.title);
  EXPECT_EQ(shown.icon, expected.icon);
  EXPECT_EQ(shown.buttons, expected.buttons);
  EXPECT_EQ(shown.defaultAnswer, expected.defaultAnswer);
  EXPECT_EQ(shown.unexpected, expected.unexpected);
}

class BoxTextsTest : public testing::TestWithParam<bool>, protected fake::TwoSides {
 protected:
  void SetUp() override { alice.state.IsGreek = GetParam(); }
  std::u16string In(const TextPair& text) const { return std::u16string(text.In(GetParam())); }
  // Alice has called bob on port 4000, or waits on port 4001.
  void Bring(ConnectionState state) {
    ResetConnection(alice.state, alice.fake.platform);
    ResetConnection(bob.state, bob.fake.platform);
    if (state == ConnectionState::Waiting) alice.Wait(u"4001");
    if (state == ConnectionState::Calling) alice.Call(u"bob 4000");
    if (state == ConnectionState::Connected) Connect();
    ASSERT_EQ(alice.State(), state);
  }
  fake::FakeDialogs& dialogs = alice.fake.dialogs;
};

INSTANTIATE_TEST_SUITE_P(BothLanguages, BoxTextsTest, testing::Bool());

TEST_P(BoxTextsTest, EachActionSaysWhatFitsTheState) {
  for (const Box& box : kBoxes) {
    Bring(box.state);
    // The address has changed whenever the refresh asks anything.
    const bool hasMoved = box.state != ConnectionState::Idle;
    alice.fake.socket.localIP = hasMoved ? u"198.51.100.7" : u"192.0.2.1";
    dialogs.messages.clear();
    dialogs.answers.assign(1, Answer::No);
    box.action(alice.actions, alice.state.CommandLine);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    ExpectMessage(dialogs.messages[0], box.shape(In(box.text), In(box.title)));
    EXPECT_EQ(alice.State(), box.state);
  }
}

TEST_P(BoxTextsTest, CallingAsksForHostAndPort) {
  dialogs.typed = {u"bob", u"no port", u""};
  alice.Call(u"");
  ASSERT_EQ(dialogs.asked.size(), 3u);
  EXPECT_EQ(dialogs.asked[0].prompt,
            In({u"Type the name OR the IP address of the remote computer to which you want to get "
                u"connected.",
                u"Πληκτρολογήστε το όνομα Ή την διεύθυνση IP του απομακρυσμένου υπολογιστή με τον "
                u"οποίο θέλετε να συνδεθείτε."}));
  EXPECT_EQ(dialogs.asked[0].title, In({u"Calling remote computer - Name or IP",
                                        u"Κλήση απομακρυσμένου υπολογιστή - Όνομα ή IP"}));
  EXPECT_EQ(dialogs.asked[1].prompt,
            In({u"Type the port of the remote computer to which you want to get connected.",
                u"Πληκτρολογήστε την θύρα του απομακρυσμένου υπολογιστή με τον οποίο θέλετε να "
                u"συνδεθείτε."}));
  const std::u16string title =
      In({u"Calling remote computer - Port", u"Κλήση απομακρυσμένου υπολογιστή - Θύρα"});
  EXPECT_EQ(dialogs.asked[1].title, title);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  ExpectMessage(dialogs.messages[0],
                Note(In({u"The port number you typed, is wrong.",
                         u"Ο αριθμός της θύρας που πληκτρολογήσατε, είναι λανθασμένος."}),
                     title));
}

TEST_P(BoxTextsTest, WaitingAsksForThePort) {
  dialogs.typed = {u""};
  alice.Wait(u"no port");
  const std::u16string title = In({u"Incoming call port", u"Θύρα εισερχομένης κλήσεως"});
  ASSERT_EQ(dialogs.messages.size(), 1u);
  ExpectMessage(dialogs.messages[0],
                Note(In({u"The port number you typed, is wrong.",
                         u"Ο αριθμός της θύρας που πληκτρολογήσατε, είναι λανθασμένος."}),
                     title));
  ASSERT_EQ(dialogs.asked.size(), 1u);
  EXPECT_EQ(dialogs.asked[0].title, title);
  EXPECT_EQ(dialogs.asked[0].prompt,
            In({u"Type the port on which you want to receive the incoming call.",
                u"Πληκτρολογήστε την θύρα μέσω της οποίας θέλετε να λάβετε την εισερχόμενη "
                u"κλήση."}));
}

TEST_P(BoxTextsTest, TheNicknameIsAskedFor) {
  dialogs.typed = {u""};
  alice.Nick(std::u16string(33, u'a'));
  const std::u16string title = In({u"Nickname definition", u"Ορισμός ψευδωνύμου"});
  ASSERT_EQ(dialogs.messages.size(), 1u);
  ExpectMessage(dialogs.messages[0],
                Note(In({u"The nickname must not contain more than 32 characters.",
                         u"Το ψευδώνυμο δεν πρέπει να υπερβαίνει τους 32 χαρακτήρες."}),
                     title));
  ASSERT_EQ(dialogs.asked.size(), 1u);
  EXPECT_EQ(dialogs.asked[0].title, title);
  EXPECT_EQ(dialogs.asked[0].prompt,
            In({u"Type the nickname you want to acquire.\r\n\r\n"
                u"You may type from 1 and up to 32 characters.",
                u"Πληκτρολογήστε το ψευδώνυμο που θέλετε να αποκτήσετε.\r\n\r\n"
                u"Μπορείτε να πληκτρολογήσετε από 1 μέχρι και 32 χαρακτήρες."}));
}

TEST_P(BoxTextsTest, AnIncomingCallIsAskedAboutWithYesAsDefault) {
  alice.Wait(u"4001");
  bob.Call(u"alice 4001");
  dialogs.answers = {Answer::No};
  network.RunUntilIdle();
  const TextPair text = {
      u"You have an incoming connection request from a remote computer, at address 192.0.2.2, on "
      u"port %1.\r\n\r\nWill you accept it?",
      u"Έχετε εισερχόμενη κλήση για σύνδεση με απομακρυσμένο υπολογιστή, στην διεύθυνση "
      u"192.0.2.2, μέσω της θύρας %1.\r\n\r\nΘα την αποδεχθείτε;"};
  const std::u16string port = DecimalText(bob.fake.socket.LocalPort());
  Message expected = Question(text.Fill(GetParam(), {port}),
                              In({u"Incoming call", u"Εισερχόμενη κλήση"}), Answer::Yes);
  expected.unexpected = true;
  ASSERT_EQ(dialogs.messages.size(), 1u);
  ExpectMessage(dialogs.messages[0], expected);
}

}  // namespace
}  // namespace verlume
