#include "frmOutWiz.h"

#include <array>
#include <filesystem>
#include <functional>

#include "Captions.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "StoredSettings.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

// A day number up to this one is no date that a host means.
constexpr double lastUnsetDay = 1000;

constexpr const char* title = "Tarnel Outlook Wizard";

}  // namespace

frmOutWiz::frmOutWiz()
    : Form("frmOutWiz", title),
      Label1_("Label1", Label::Look::backdrop),
      lblHeader_("lblHeader", Label::Look::heading),
      tabWiz_("tabWiz", {"&Tasks", "&Appointments", "&Outlook Settings"}),
      tasks_(state_),
      appointments_(state_),
      settings_(state_),
      smtActions_("smtActions", SmartUI::Look::bar),
      imgOutlook_("imgOutlook", "OUTLOOK"),
      imgTarnel_("imgTarnel", "Tarnel"),
      imgCheck_("imgCheck", "CHECK"),
      formResizer_("SSResizer1", 0),
      appointmentsResizer_("SSResizer1", 1),
      tasksResizer_("SSResizer1", 2),
      settingsResizer_("SSResizer1", 5) {
  makeControls();
  anchorControls();
  listenToControls();
}

void frmOutWiz::makeControls() {
  const auto add = [this](const char* key, const char* caption, const char* toolTip) -> SmartItem& {
    SmartItem& item = smtActions_.Items().Add(0, key, caption, SmartItemType::button);
    item.setToolTipText(toolTip);
    return item;
  };
  add("HELP", "&Help", "Help with the Outlook Wizard");
  add("DONE", "&Done", "Close the Outlook Wizard");
  add("CANCEL", "C&ancel", "Cancel change(s) to Settings").setVisible(false);
  add("UPDATE", "&Update", "Apply Setting change(s) and close Wizard").setVisible(false);
  tasks_.panel.setVisible(false);
  tabWiz_.setAccessibleName("Parts of the Outlook Wizard");

  const auto addAll = [this](const std::vector<Control*>& controls) {
    for (Control* control : controls) addControl(*control);
  };
  addAll({&Label1_, &lblHeader_, &tabWiz_});
  addAll(tasks_.controls());
  addAll(appointments_.controls());
  addAll(settings_.controls());
  addAll({&smtActions_, &imgOutlook_, &imgTarnel_, &imgCheck_, &formResizer_, &appointmentsResizer_, &tasksResizer_,
          &settingsResizer_});
}

void frmOutWiz::listenToControls() {
  connections_.push_back(tabWiz_.Switching.connect([this](std::size_t tab) { tabWiz_Switching(tab); }));
  connections_.push_back(smtActions_.Click.connect([this](SmartItem& item) { smtActions_Click(item); }));
  connections_.push_back(tasks_.splitTasks.SplitterEndDrag.connect([this] { splitTasks_SplitterEndDrag(); }));
  connections_.push_back(appointments_.splitAppts.SplitterEndDrag.connect([this] { splitAppts_SplitterEndDrag(); }));
  connections_.push_back(settings_.lockTabs.connect([this] { lockTabs(); }));
  connections_.push_back(settings_.profileChosen.connect([this] { showProfile(); }));
  const auto passOn = [this](Signal<>& fromTab, Signal<>& event) {
    connections_.push_back(fromTab.connect([&event] { event(); }));
  };
  passOn(settings_.OutlookPrefsChanged, OutlookPrefsChanged);
  passOn(settings_.ImportFromOutlook, ImportFromOutlook);
  passOn(settings_.TurnOnOutlookCurrentTasks, TurnOnOutlookCurrentTasks);
  passOn(settings_.TurnOffOutlookCurrentTasks, TurnOffOutlookCurrentTasks);
  passOn(settings_.MOPKilled, MOPKilled);
}

void frmOutWiz::Form_Load() {
  standardHandler(modules::frmOutWiz, "Form_Load", [this] {
    state_.formLoading = true;
    appointments_.addImages({imgOutlook_.Picture(), imgTarnel_.Picture(), imgCheck_.Picture()});
    state_.formLoading = false;
  });
}

void frmOutWiz::SetupForm(Date CurDate) {
  standardHandler(modules::frmOutWiz, "SetupForm", [&] {
    state_.formLoading = true;
    state_.formCurDate = CurDate.wholeDay().days <= lastUnsetDay ? platform().clock.now().wholeDay() : CurDate;
    const std::array<std::function<void()>, 8> steps{
        [this] { appointments_.showFormDate(); },   [this] { loadMySettings(); },
        [this] { tasks_.lists.GetOutlookTasks(); }, [this] { appointments_.schedules.refreshDay(); },
        [this] { tasks_.setupPicker(); },           [this] { tasks_.lists.refillTarnelList(); },
        [this] { appointments_.SetCals(); },        [this] { openFirstTab(); }};
    for (const auto& step : steps) {
      if (!isLoaded()) return;  // a failure in the step before took the form away
      step();
    }
    filledProfile_ = session().theOutlookProfile;
    state_.formLoading = false;
    settings_.setTheSettings();
    UNlockTabs();
  });
}

bool frmOutWiz::loadMySettings() {
  return standardHandler<bool>(modules::frmOutWiz, "loadMySettings", [this](bool& loaded) {
    readLevelNamesAndPoints();
    readLayout(state_);
    readDateFormats();
    readIntegration();
    readProjects();
    placeBySettings();
    readProfile();
    showProfile();
    settingsRead_ = true;
    loaded = true;
  });
}

void frmOutWiz::fillFromOutlook() {
  filledProfile_ = session().theOutlookProfile;
  tasks_.lists.GetOutlookTasks();
  appointments_.schedules.refreshDay();
}

void frmOutWiz::openFirstTab() {
  if (session().curDoingAppts) {
    tabWiz_.setCurrent(1);
  } else {
    tabWiz_.setCurrent(0);
    SetVisibleTab(1);
  }
}

// The next command works on the profile's mailbox, whatever the settings tab offers, or on the one file that was named
// for all profiles: the title says so on every tab.
void frmOutWiz::showProfile() {
  const std::string profile = profileIsChosen() ? unzapAmps(session().theOutlookProfile) : std::string();
  const std::filesystem::path& file = platform().mailbox;
  const std::string mailbox = file.empty() ? profile : file.filename().string();
  setCaption(mailbox.empty() ? title : std::string(title) + " - " + mailbox);
}

}  // namespace tarnel
