#include "StandardHandler.h"
#include "frmOutWiz.h"

// Where things are on the form. All lengths in twips.

namespace tarnel {
namespace {

constexpr std::int16_t settingsPanel = 2;

constexpr float designWidth = 8400;
constexpr float designHeight = 5805;
constexpr float smallestWidth = 7600;
constexpr float smallestHeight = 6000;

constexpr float backdropHeight = 645;
constexpr float tabHeight = 360;
constexpr float actionsHeight = 480;
constexpr float besideSplitters = 50;  // what the stored shares are not applied to

// What a panel leaves free beside and below it: when its tab comes up, and when the form is resized.
constexpr float besideShownPanel = 150;
constexpr float belowShownPanel = 470;
constexpr float besideResizedPanel = 100;
constexpr float belowResizedPanel = 460;

constexpr Anchors acrossTop{.left = true, .top = true, .right = true, .bottom = false};
constexpr Anchors acrossBottom{.left = true, .top = false, .right = true, .bottom = true};
constexpr Anchors filling{.left = true, .top = true, .right = true, .bottom = true};

const char* header(std::int16_t panel) {
  switch (panel) {
    case 0:
      return "Select and copy or drag Task Appointments to your Outlook Calendar. Depending on your Outlook Settings, "
             "Task Appointment copy to Outlook always, never or when you decide.";
    case 1:
      return "Select and copy Tasks to and from Outlook's Task List. Depending on your Outlook Settings, Tasks will "
             "update in either program.";
    default:
      return "Your Outlook Settings reflect how you use Outlook's Tasks and Calendar and how you want to use Tarnel.";
  }
}

}  // namespace

void frmOutWiz::anchorControls() {
  Move(Left(), Top(), designWidth, designHeight);
  Label1_.Move(0, 0, designWidth, backdropHeight);
  lblHeader_.Move(60, 75, designWidth - 120, 570);
  tabWiz_.Move(0, backdropHeight, ScaleWidth(), tabHeight);
  smtActions_.Move(0, ScaleHeight() - actionsHeight, ScaleWidth(), actionsHeight);

  formResizer_.attach(*this);
  formResizer_.anchor(tabWiz_, acrossTop);
  formResizer_.anchor(smtActions_, acrossBottom);
  const auto fill = [this](PictureBox& panel, SSResizer& resizer, Control& content) {
    resizer.attach(panel);
    resizer.anchor(content, filling);
    placePanel(panel, besideResizedPanel, belowResizedPanel);
    formResizer_.anchor(panel, filling);
  };
  fill(appointments_.panel, appointmentsResizer_, appointments_.splitAppts);
  fill(tasks_.panel, tasksResizer_, tasks_.splitTasks);
  fill(settings_.panel, settingsResizer_, settings_.smtSettings);
}

PictureBox& frmOutWiz::picWiz(std::int16_t panel) {
  if (panel == 0) return appointments_.panel;
  if (panel == 1) return tasks_.panel;
  if (panel == settingsPanel) return settings_.panel;
  failSubscript();
}

void frmOutWiz::placePanel(PictureBox& panel, float besideWidth, float besideHeight) {
  const float top = tabWiz_.Top() + tabWiz_.Height();
  panel.Move(tabWiz_.Left(), top, Width() - besideWidth, Height() - (top + smtActions_.Height() + besideHeight));
}

void frmOutWiz::placeBySettings() {
  const auto& sizes = state_.meSizes;
  Move(sizes[meSize::left], sizes[meSize::top], sizes[meSize::width], sizes[meSize::height]);
  const float room = sizes[meSize::width] - besideSplitters;
  tasks_.splitTasks.Panes("Left").setWidth(room * sizes[meSize::taskSplit]);
  appointments_.splitAppts.Panes("Left").setWidth(room * sizes[meSize::apptSplit]);
}

bool frmOutWiz::SetVisibleTab(std::int16_t panel) {
  return standardHandler<bool>(modules::frmOutWiz, "SetVisibleTab", [&](bool& shown) {
    tabWiz_.setWidth(Width());
    tabWiz_.setHeight(tabHeight);
    PictureBox& before = picWiz(visibleTab_);
    if (before.Visible()) {
      before.setVisible(false);
      before.setTop(tabWiz_.Height());
    }
    PictureBox& next = picWiz(panel);
    placePanel(next, besideShownPanel, belowShownPanel);
    next.setVisible(true);
    lblHeader_.setCaption(header(panel));
    if (panel == settingsPanel) settings_.SetupForProfiles();
    visibleTab_ = panel;
    shown = true;
  });
}

void frmOutWiz::Form_Resize() {
  if (state_.formLoading) return;
  ignoringFailures([this] {
    if (Height() < smallestHeight) setHeight(smallestHeight);
    if (Width() < smallestWidth) setWidth(smallestWidth);
    placePanel(picWiz(visibleTab_), besideResizedPanel, belowResizedPanel);
    picWiz(visibleTab_).setVisible(true);
    lblHeader_.Move(60, 75, Width() - 120, 570);
    Label1_.Move(0, 0, Width(), backdropHeight);
    rememberPlace();
  });
  state_.formClosing = true;
}

void frmOutWiz::rememberPlace() {
  auto& sizes = state_.meSizes;
  sizes[meSize::left] = Left();
  sizes[meSize::top] = Top();
  sizes[meSize::width] = Width();
  sizes[meSize::height] = Height();
  sizes[meSize::taskSplit] = tasks_.splitTasks.Panes("Left").Width() / Width();
  sizes[meSize::apptSplit] = appointments_.splitAppts.Panes("Left").Width() / Width();
}

void frmOutWiz::splitTasks_SplitterEndDrag() {
  standardHandler(modules::frmOutWiz, "splitTasks_SplitterEndDrag", [this] {
    state_.meSizes[meSize::taskSplit] = tasks_.splitTasks.Panes("Left").Width() / Width();
    state_.formClosing = true;
  });
}

void frmOutWiz::splitAppts_SplitterEndDrag() {
  standardHandler(modules::frmOutWiz, "splitAppts_SplitterEndDrag", [this] {
    state_.meSizes[meSize::apptSplit] = appointments_.splitAppts.Panes("Left").Width() / Width();
    state_.formClosing = true;
  });
}

}  // namespace tarnel
