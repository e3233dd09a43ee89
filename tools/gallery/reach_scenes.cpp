#include "reach_scenes.h"

#include "shell/text_pair.h"

namespace verlume::gallery {
namespace {

constexpr TextPair kMayAsk = {
    u"May Verlume ask your router to pass calls on to this computer while you wait and talk? "
    u"Without that, usually only computers on this network can call you.",
    u"Να ζητά το Verlume από τον δρομολογητή σας να προωθεί τις κλήσεις σε αυτόν τον υπολογιστή "
    u"όσο περιμένετε και συνομιλείτε; Χωρίς αυτό μπορούν συνήθως να σας καλέσουν μόνον οι "
    u"υπολογιστές αυτού του δικτύου."};
constexpr TextPair kThisNetwork = {u"computers on this network",
                                   u"οι υπολογιστές αυτού του δικτύου"};
constexpr TextPair kAnyoneWithIPv6 = {u"anyone who has IPv6", u"όλοι όσοι έχουν IPv6"};
constexpr TextPair kTemporary = {u"anyone, but it is temporary: do not give it to others",
                                 u"όλοι, αλλά είναι προσωρινή: μην τη δίνετε σε άλλους"};
constexpr TextPair kProvider = {
    u"computers on a network of your provider's, behind its own router",
    u"υπολογιστές σε δίκτυο του παρόχου σας, πίσω από τον δικό του δρομολογητή"};
constexpr TextPair kThisComputer = {u"this computer only", u"μόνο αυτός ο υπολογιστής"};
constexpr TextPair kPasses = {
    u"It passes calls for port 4000 on to this computer (UPnP). Its address is 203.0.113.7.",
    u"Προωθεί τις κλήσεις για τη θύρα 4000 σε αυτόν τον υπολογιστή (UPnP). Η διεύθυνσή του είναι "
    u"203.0.113.7."};
constexpr TextPair kBehindRouter = {
    u"It passes calls for port 4000 on to this computer (UPnP), but its own address, "
    u"192.168.178.20, "
    u"is local: there is another router between it and the Internet.",
    u"Προωθεί τις κλήσεις για τη θύρα 4000 σε αυτόν τον υπολογιστή (UPnP), αλλά η δική του "
    u"διεύθυνση, 192.168.178.20, είναι τοπική: υπάρχει και άλλος δρομολογητής ανάμεσα σε εκείνον "
    u"και το διαδίκτυο."};
constexpr TextPair kFirewallOn = {u"ufw is on.", u"Το ufw λειτουργεί."};
constexpr TextPair kNoFirewall = {u"None was found that can be asked.",
                                  u"Δεν βρέθηκε κανένα που να μπορεί να ερωτηθεί."};
constexpr TextPair kGive = {u"Give the other side the address below, or an invitation.",
                            u"Δώστε στην άλλη πλευρά την παρακάτω διεύθυνση ή μια πρόσκληση."};
constexpr TextPair kForwardTwice = {
    u"In the settings of the other router, which is nearer to the Internet, forward TCP port 4000 "
    u"to 192.168.178.20. Or let the other side wait for a call, and call it yourself.",
    u"Στις ρυθμίσεις του άλλου δρομολογητή, που είναι πιο κοντά στο διαδίκτυο, προωθήστε τη θύρα "
    u"TCP 4000 στη διεύθυνση 192.168.178.20. Ή αφήστε την άλλη πλευρά να περιμένει κλήση και "
    u"καλέστε την εσείς."};

bool SpeaksGreek(const Platform& platform) {
  return platform.frmMain.mnuToolsLanguageGreek.Checked();
}

struct ReachSample {
  TextPair router;
  TextPair firewall;
  TextPair advice;
  std::u16string_view address;
};

void ShowReach(const ReachWindow& frmReach, const ReachSample& sample, bool isGreek) {
  const auto row = [isGreek](std::u16string_view address, const TextPair& who) {
    return TableBox::Row{std::u16string(address), std::u16string(who.In(isGreek))};
  };
  frmReach.lstReachAddresses.SetRows(
      {row(u"2001:db8:1234:5678:9abc:def0:1234:5678", kAnyoneWithIPv6),
       row(u"2001:db8:1234:5678:a1b2:c3d4:e5f6:1789", kTemporary),
       row(u"192.168.1.20", kThisNetwork), row(u"100.64.12.7", kProvider),
       row(u"127.0.0.1", kThisComputer)});
  frmReach.lblReachRouter.SetCaption(sample.router.In(isGreek));
  frmReach.lblReachFirewall.SetCaption(sample.firewall.In(isGreek));
  frmReach.lblReachAdvice.SetCaption(sample.advice.In(isGreek));
  frmReach.txtReachAddress.SetText(sample.address);
  frmReach.cmdReachCopyAddress.SetEnabled(!sample.address.empty());
  frmReach.cmdReachCopyInvitation.SetEnabled(!sample.address.empty());
  frmReach.window.ShowModal();
}

}  // namespace

std::vector<ReachScene> ReachScenes(Platform& platform, const std::function<void()>& take) {
  std::vector<ReachScene> scenes;
  scenes.push_back({QStringLiteral("router-bar"), [&platform, take] {
                      const RouterBar& bar = platform.frmMain.routerBar;
                      bar.lblRouter.SetCaption(kMayAsk.In(SpeaksGreek(platform)));
                      bar.fraRouter.SetVisible(true);
                      take();
                      bar.fraRouter.SetVisible(false);
                    }});
  scenes.push_back({QStringLiteral("reach"), [&platform] {
                      ShowReach(platform.frmReach,
                                {kPasses, kNoFirewall, kGive, u"203.0.113.7 4000"},
                                SpeaksGreek(platform));
                    }});
  scenes.push_back({QStringLiteral("reach-two-routers"), [&platform] {
                      ShowReach(platform.frmReach, {kBehindRouter, kFirewallOn, kForwardTwice, u""},
                                SpeaksGreek(platform));
                    }});
  return scenes;
}

}  // namespace verlume::gallery
