#include "private_scenes.h"

#include "shell/private_texts.h"
#include "shell/text_pair.h"

namespace verlume::gallery {
namespace {

constexpr TextPair kBecoming = {u"Becoming private...", u"Γίνεται ιδιωτική..."};
constexpr TextPair kKnown = {u"Private, known since 3 November 2026",
                             u"Ιδιωτική, γνωστό κλειδί από 3 Νοεμβρίου 2026"};
constexpr TextPair kVerified = {u"Private, verified: Carol (calls itself Bob)",
                                u"Ιδιωτική, επαληθευμένη: Carol (συστήνεται ως Bob)"};
constexpr TextPair kOpen = {u"Not private: the other program cannot",
                            u"Όχι ιδιωτική: το άλλο πρόγραμμα δεν μπορεί"};
constexpr TextPair kWarning = {
    u"Not private: the other program cannot; another Bob is known",
    u"Όχι ιδιωτική: το άλλο πρόγραμμα δεν μπορεί· γνωστός και άλλος Bob"};
constexpr TextPair kChanged = {
    u"Carol has another key than on 3 November 2026, when you verified it. That happens with a new "
    u"computer, and also when somebody between you reads along. Ask her before you go on.",
    u"Η Carol έχει άλλο κλειδί από εκείνο που επαληθεύσατε στις 3 Νοεμβρίου 2026. Αυτό συμβαίνει "
    u"με έναν καινούριο υπολογιστή, αλλά και όταν κάποιος ανάμεσά σας διαβάζει όσα γράφετε. "
    u"Ρωτήστε την πριν συνεχίσετε."};
constexpr TextPair kWho = {u"You and Carol (203.0.113.7)", u"Εσείς και Carol (203.0.113.7)"};
constexpr const char16_t* kDigits = u"031415926535897932384626433832795028841971693993751058209749";

struct LockScene {
  const char* name;
  LockPicture picture;
  TextPair sentence;
};

constexpr LockScene kLocks[] = {
    {"lock-becoming", LockPicture::Becoming, kBecoming},
    {"lock-known", LockPicture::Closed, kKnown},
    {"lock-verified", LockPicture::Verified, kVerified},
    {"lock-open", LockPicture::Open, kOpen},
    {"lock-warning", LockPicture::Warning, kWarning},
};

bool IsGreek(const Platform& platform) {
  return platform.frmMain.mnuToolsLanguageGreek.Checked();
}

void ShowPeople(const PeopleWindow& frmPeople, bool isGreek) {
  const std::u16string since = isGreek ? u"3 Νοεμβρίου 2026" : u"3 November 2026";
  const std::u16string last = isGreek ? u"22 Νοεμβρίου 2026" : u"22 November 2026";
  const std::u16string yes = isGreek ? u"Ναι" : u"Yes";
  const std::u16string invited = isGreek ? u"Με πρόσκληση" : u"By invitation";
  frmPeople.lblPeopleNone.SetCaption(u"");
  frmPeople.lstPeople.SetRows({{u"Carol", u"Bob", since, last, yes},
                               {u"Δημήτρης", u"dimitris-laptop", since, last, invited},
                               {u"", std::u16string(32, u'n'), since, last, u""}});
  frmPeople.lstPeople.Select(0);
  frmPeople.fraPerson.SetVisible(true);
  frmPeople.txtPeopleName.SetText(u"Carol");
  frmPeople.chkPeopleVerified.SetValue(1);
  frmPeople.lblPeopleKey.SetCaption(
      u"3141 5926 5358 9793 2384 6264 3383 2795 0288 4197 1693 9937 5105 8209 7494 4592");
  frmPeople.window.ShowModal();
}

void ShowNobody(const PeopleWindow& frmPeople, bool isGreek) {
  frmPeople.lstPeople.SetRows({});
  frmPeople.fraPerson.SetVisible(false);
  frmPeople.lblPeopleNone.SetCaption(kNobodyYet.In(isGreek));
  frmPeople.window.ShowModal();
}

void ShowVerify(const VerifyWindow& frmVerify, bool isGreek) {
  frmVerify.lblVerifyWho.SetCaption(kWho.In(isGreek));
  frmVerify.lblVerifyDigits.SetDigits(kDigits);
  frmVerify.picVerifyCode.SetCode(kDigits);
  frmVerify.window.ShowModal();
}

void TakeKeyBar(const MainWindow& frmMain, bool isGreek, const std::function<void()>& take) {
  frmMain.keyBar.lblKey.SetCaption(kChanged.In(isGreek));
  frmMain.keyBar.fraKey.SetVisible(true);
  take();
  frmMain.keyBar.fraKey.SetVisible(false);
}

}  // namespace

std::vector<PrivateScene> PrivateScenes(Platform& platform, const std::function<void()>& take) {
  std::vector<PrivateScene> scenes;
  LockLabel& lock = platform.frmMain.lblLock;
  for (const LockScene& scene : kLocks) {
    scenes.push_back({QString::fromLatin1(scene.name), [&platform, &lock, &scene, take] {
                        lock.SetPicture(scene.picture);
                        lock.SetCaption(scene.sentence.In(IsGreek(platform)));
                        take();
                        lock.SetCaption(u"");
                      }});
  }
  scenes.push_back({QStringLiteral("key-bar"),
                    [&platform, take] { TakeKeyBar(platform.frmMain, IsGreek(platform), take); }});
  scenes.push_back({QStringLiteral("people"),
                    [&platform] { ShowPeople(platform.frmPeople, IsGreek(platform)); }});
  scenes.push_back({QStringLiteral("people-nobody"),
                    [&platform] { ShowNobody(platform.frmPeople, IsGreek(platform)); }});
  scenes.push_back({QStringLiteral("verify"),
                    [&platform] { ShowVerify(platform.frmVerify, IsGreek(platform)); }});
  return scenes;
}

}  // namespace verlume::gallery
