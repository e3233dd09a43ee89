#include "shell/view.h"

#include <algorithm>
#include <array>

namespace verlume {
namespace {

// In per cent, and the usual size is one of them.
constexpr std::array kZooms = {kLeastZoom, 67,  80,  90,  kUsualZoom, 110,
                               125,        150, 175, 200, 250,        kGreatestZoom};

int ZoomBeside(int percent, int steps) {
  const auto found = std::ranges::lower_bound(kZooms, percent);
  const auto last = static_cast<std::ptrdiff_t>(kZooms.size()) - 1;
  const std::ptrdiff_t place = std::min(found - kZooms.begin(), last) + steps;
  return kZooms[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place, 0, last))];
}

}  // namespace

void View::ShowState() {
  const MainWindow& frmMain = platform_.frmMain;
  const int zoom = frmMain.rtbData.Zoom();
  frmMain.mnuViewStatusPanel.SetChecked(frmMain.fraPanel.Visible());
  frmMain.mnuViewZoomIn.SetEnabled(zoom < kZooms.back());
  frmMain.mnuViewZoomOut.SetEnabled(zoom > kZooms.front());
  frmMain.mnuViewZoomReset.SetEnabled(zoom != kUsualZoom);
}

void View::mnuViewStatusPanel_Click() {
  errors_.Guard(Procedure::View, [this] {
    Panel& panel = platform_.frmMain.fraPanel;
    panel.SetVisible(!panel.Visible());
    ShowState();
  });
}

void View::mnuViewZoomReset_Click() {
  SetZoom(kUsualZoom);
}

void View::ZoomBy(int steps) {
  SetZoom(ZoomBeside(platform_.frmMain.rtbData.Zoom(), steps));
}

void View::SetZoom(int percent) {
  errors_.Guard(Procedure::View, [this, percent] {
    for (RichTextBox* pane : {&platform_.frmMain.rtbData, &platform_.frmMain.rtbCommands}) {
      pane->SetZoom(percent);
    }
    ShowState();
  });
}

}  // namespace verlume
