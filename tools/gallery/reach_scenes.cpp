#include "reach_scenes.h"

#include "reach/address_rows.h"
#include "reach/advice.h"
#include "reach/reach_words.h"
#include "reach/router_bar.h"

namespace verlume::gallery {
namespace {

constexpr std::int32_t kGalleryPort = 4000;

bool SpeaksGreek(const Platform& platform) {
  return platform.frmMain.mnuToolsLanguageGreek.Checked();
}

// A computer that waits, with an address of every kind.
ReachFacts FactsWith(RouterVerdict router, const PlaceToCall& place, bool hasFirewall) {
  ReachFacts facts;
  facts.addresses = {{u"2001:db8:1234:5678:9abc:def0:1234:5678", u"eth0", false},
                     {u"2a02:587:1234:5678:9abc:def0:1234:5678", u"eth0", false},
                     {u"2a02:587:1234:5678:a1b2:c3d4:e5f6:1789", u"eth0", true},
                     {u"192.168.1.20", u"eth0", false},
                     {u"100.64.12.7", u"wwan0", false},
                     {u"127.0.0.1", u"lo", false}};
  if (hasFirewall) facts.firewalls = {{u"ufw", true}};
  facts.router = std::move(router);
  facts.choice = RouterChoice::Yes;
  facts.isListening = true;
  facts.port = kGalleryPort;
  facts.place = place;
  return facts;
}

void ShowReach(const ReachWindow& frmReach, const ReachFacts& facts, bool isGreek) {
  const bool hasPlace = !facts.place.host.empty();
  frmReach.lstReachAddresses.SetRows(AddressRows(facts, isGreek));
  frmReach.lblReachRouter.SetCaption(RouterText(facts, isGreek));
  frmReach.lblReachFirewall.SetCaption(FirewallText(facts.firewalls, isGreek));
  frmReach.lblReachAdvice.SetCaption(AdviceText(facts, isGreek));
  frmReach.txtReachAddress.SetText(hasPlace ? facts.place.host + u" 4000" : std::u16string());
  frmReach.cmdReachCopyAddress.SetEnabled(hasPlace);
  frmReach.cmdReachCopyInvitation.SetEnabled(hasPlace);
  frmReach.window.ShowModal();
}

void TakeRouterBar(const Platform& platform, const std::function<void()>& take) {
  AppState state;
  state.IsGreek = SpeaksGreek(platform);
  state.AsksAboutRouter = true;
  ShowRouterBar(state, platform);
  take();
  platform.frmMain.routerBar.fraRouter.SetVisible(false);
}

}  // namespace

std::vector<ReachScene> ReachScenes(Platform& platform, const std::function<void()>& take) {
  const PlaceToCall outer{u"203.0.113.7", kGalleryPort};
  const PlaceToCall inner{u"192.168.178.20", kGalleryPort};
  std::vector<ReachScene> scenes;
  const auto add = [&](const char* name, const ReachFacts& facts) {
    scenes.push_back({QString::fromLatin1(name), [&platform, facts] {
                        ShowReach(platform.frmReach, facts, SpeaksGreek(platform));
                      }});
  };
  scenes.push_back(
      {QStringLiteral("router-bar"), [&platform, take] { TakeRouterBar(platform, take); }});
  RouterVerdict passes;
  passes.finding = RouterFinding::Passes;
  passes.place = outer;
  add("reach", FactsWith(passes, outer, false));
  RouterVerdict behind;
  behind.finding = RouterFinding::BehindRouter;
  behind.place = inner;
  add("reach-two-routers", FactsWith(behind, {}, true));
  RouterVerdict refused;
  refused.finding = RouterFinding::Refused;
  refused.words = u"<b>ConflictInMappingEntry</b> " + std::u16string(160, u'W');
  add("reach-refused", FactsWith(refused, {}, true));
  return scenes;
}

}  // namespace verlume::gallery
