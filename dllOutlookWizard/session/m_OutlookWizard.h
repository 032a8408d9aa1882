#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tarnel {

namespace outlook {
class Application;
class NameSpace;
}  // namespace outlook

class clsTarnelOutWizard;

inline constexpr const char* productTitle = "Tarnel - Version 1.14";

// Slots of SessionState::theDateFormats that this program reads.
namespace dateFormat {
inline constexpr std::size_t dayStart = 25;      // D5Start, minutes from midnight
inline constexpr std::size_t dayEnd = 26;        // D5End, minutes from midnight
inline constexpr std::size_t hoursInDay = 35;    // HoursInDay
inline constexpr std::size_t apptColor = 36;     // ApptColor
inline constexpr std::size_t outlookColor = 38;  // ApptOutlook
inline constexpr std::size_t count = 44;
}  // namespace dateFormat

// What the whole component shares. Lasts as long as the component stays loaded, so a second run finds the values of
// the first until they are overwritten.
struct SessionState {
  std::string theszConnect;  // ADO connection string of the task database
  bool curDoingAppts = false;
  std::string theTimeDisplay1;      // "ALL" or "DAY"
  std::string theTimeDisplay2;      // "M60" to "M1"
  std::string theTaskPrintSetting;  // CStringBag text
  std::string theOutlookProfile;    // "NONE" or empty: no profile is chosen
  std::int32_t OutTaskSetting = 0;  // 0 to 3
  std::int32_t OutApptSetting = 0;  // 0 to 3
  std::shared_ptr<outlook::Application> theOutlookApp;
  std::shared_ptr<outlook::NameSpace> theOutlookNS;
  std::string theOutlookProjectKey;
  std::string theOutlookProjectName;
  std::vector<std::string> theProjectKeys;
  std::vector<std::string> theProjectNames;  // in the same order
  std::array<std::string, dateFormat::count> theDateFormats;
  std::int32_t theOutlookApptColor = 0;
  std::int32_t theWorkDayStart = 0;  // minutes from midnight
  std::int32_t theWorkDayEnd = 0;
  std::array<std::int32_t, 15> thePointsTable{};
  std::array<std::string, 5> theImportanceNames;
  std::array<std::string, 5> theDifficultyNames;
  clsTarnelOutWizard* theWizardClass = nullptr;
};

// One for each thread.
SessionState& session();

// Whether theOutlookProfile names a profile.
bool profileIsChosen();

// Lets go of Outlook: the namespace first, then the application.
void releaseOutlook();

// Shows a box with an OK button under the product's title.
void tellUser(const std::string& text);
void tellUserOfFailure(const std::string& text);
// The same with Yes and No; true for Yes.
bool askUser(const std::string& text);

}  // namespace tarnel
