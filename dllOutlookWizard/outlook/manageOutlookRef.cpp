#include "manageOutlookRef.h"

#include "ClassFactory.h"
#include "Platform.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

constexpr const char* supportMailbox = "support@tarnel.example";

void logon() {
  if (profileIsChosen())
    outlookNameSpace().Logon(session().theOutlookProfile, false);
  else
    outlookNameSpace().Logon();
}

// All steps run, also after one that failed; a single failure fails the attempt.
template <class GetApplication>
bool attempt(GetApplication getApplication) {
  SessionState& state = session();
  bool succeeded = ignoringFailures([&] { state.theOutlookApp = getApplication(); });
  succeeded &= ignoringFailures([&] { state.theOutlookNS = outlookApplication().GetNamespace("MAPI"); });
  succeeded &= ignoringFailures(logon);
  return succeeded;
}

}  // namespace

bool manageOutlookRef() {
  releaseOutlook();
  letEventsRun();

  outlook::ClassFactory& factory = platform().outlook;
  const auto create = [&] { return factory.createApplication(); };
  const auto attach = [&] { return factory.activeApplication(); };
  if (profileIsChosen() ? attempt(create) : attempt(attach)) return true;
  if (attempt(create)) return true;

  tellUserOfFailure(std::string("Tarnel cannot properly access Microsoft Outlook on your computer.\r\n\r\n"
                                "Integration with Outlook Tasks and Appointments will be turned off.\r\n\r\n"
                                "If Outlook is installed on this PC, try opening it before opening Tarnel and please "
                                "email ") +
                    supportMailbox + " so we can work with you to correct this issue.");
  return false;
}

bool attachOrTell(const std::function<void()>& beforeTelling) {
  if (manageOutlookRef()) return true;
  if (beforeTelling) beforeTelling();
  tellUser("Unable to access Outlook. Outlook may be busy, or in an unresponsive state.");
  return false;
}

void closeOutlook() {
  ignoringFailures([] { platform().outlook.createMAPIUtils()->Cleanup(); });
  releaseOutlook();
}

void letEventsRun() {
  platform().desktop.doEvents();
  platform().desktop.doEvents();
}

void letEventsRunAttached(int rounds) {
  const bool attached = session().theOutlookNS != nullptr;
  for (; rounds > 0; --rounds) platform().desktop.doEvents();
  if (attached && !session().theOutlookNS) manageOutlookRef();
}

outlook::Application& outlookApplication() {
  if (!session().theOutlookApp) failObjectNotSet();
  return *session().theOutlookApp;
}

outlook::NameSpace& outlookNameSpace() {
  if (!session().theOutlookNS) failObjectNotSet();
  return *session().theOutlookNS;
}

}  // namespace tarnel
