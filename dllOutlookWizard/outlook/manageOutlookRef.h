#pragma once

#include <functional>

#include "Application.h"

namespace tarnel {

// Attaches to Outlook again: lets go of what the session held, attaches to the running Outlook, or creates one where
// a profile is chosen or none runs, and logs on. True when session().theOutlookApp and theOutlookNS are set and
// logged on. False when both attempts failed; the user has been told, and either may be set or empty.
bool manageOutlookRef();

// The same for a routine that can't go on without Outlook: where it is out of reach, calls `beforeTelling` and tells
// the user that as well.
bool attachOrTell(const std::function<void()>& beforeTelling = {});

// Ends a run: Redemption's cleanup, whose failures are ignored, then lets go of Outlook.
void closeOutlook();

// Lets waiting events of the form run, twice: the first round's events may raise others.
void letEventsRun();
// The same inside a run, as often as asked. A command that ran among them has let go of Outlook; the run attaches
// again.
void letEventsRunAttached(int rounds = 2);

// The session's objects. Failure 91 while they are empty.
outlook::Application& outlookApplication();
outlook::NameSpace& outlookNameSpace();

}  // namespace tarnel
