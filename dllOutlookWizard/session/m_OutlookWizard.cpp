#include "m_OutlookWizard.h"

#include "Platform.h"

namespace tarnel {

SessionState& session() {
  thread_local SessionState state;
  return state;
}

bool profileIsChosen() {
  const std::string& profile = session().theOutlookProfile;
  return !profile.empty() && profile != "NONE";
}

void releaseOutlook() {
  session().theOutlookNS.reset();
  session().theOutlookApp.reset();
}

void tellUser(const std::string& text) {
  platform().desktop.message({text, productTitle, MessageIcon::information, MessageButtons::ok});
}

void tellUserOfFailure(const std::string& text) {
  platform().desktop.message({text, productTitle, MessageIcon::critical, MessageButtons::ok});
}

bool askUser(const std::string& text) {
  return platform().desktop.message({text, productTitle, MessageIcon::information, MessageButtons::yesNo}) ==
         MessageAnswer::yes;
}

}  // namespace tarnel
