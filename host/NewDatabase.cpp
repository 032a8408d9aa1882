#include "NewDatabase.h"

#include "CCreateGuid.h"
#include "DemoMailbox.h"
#include "DemoScript.h"
#include "Failure.h"
#include "IcsReader.h"
#include "Leftovers.h"
#include "MailboxFile.h"
#include "SqlText.h"
#include "TaskDatabaseScript.h"
#include "UserFolders.h"
#include "createDatabase.h"

namespace tarnel::host {
namespace {

namespace fs = std::filesystem;

// The whole path, its folder made.
fs::path readyPath(const fs::path& file) {
  fs::path whole = fs::absolute(file);
  std::error_code error;
  fs::create_directories(whole.parent_path(), error);
  if (error)
    throw Failure(failure::pathAccess, "The folder \"" + whole.parent_path().string() +
                                           "\" can't be made: " + error.message() + ". Name a file in another folder.");
  return whole;
}

void requireFree(const fs::path& file, const char* advice) {
  if (fs::exists(fs::symlink_status(file)))
    throw Failure(failure::pathAccess, "\"" + file.string() + "\" exists already and was left as it is. " + advice);
}

// A mailbox that came up for a demo, gone again unless all of the demo was made.
class DraftMailbox {
 public:
  explicit DraftMailbox(fs::path file) : file_(std::move(file)) { mailbox::createMailbox(file_); }
  ~DraftMailbox() {
    if (!kept_) sqlite::removeDatabase(file_);
  }
  DraftMailbox(const DraftMailbox&) = delete;
  DraftMailbox& operator=(const DraftMailbox&) = delete;

  void fill(const std::string& calendar, const Clock& clock) {
    mailbox::Mailbox open(file_, Locale(), clock);
    const mailbox::ImportReport report = mailbox::importIcsText(open, calendar, "the demo mailbox");
    if (!report.skipped.empty()) throw Failure(failure::automation, report.skipped.front());
  }
  void keep() { kept_ = true; }

 private:
  fs::path file_;
  bool kept_ = false;
};

}  // namespace

fs::path defaultDatabase() { return userFolders::data() / "TarnelData.db"; }

void newDatabase(const fs::path& file, const fs::path& mailboxFile) {
  const fs::path database = readyPath(file);
  if (fs::exists(mailboxFile)) mailbox::inspectMailbox(mailboxFile);
  sqlite::createDatabase(database, taskDatabaseScript() + "INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES (" +
                                       sqlText(GetANewGuid()) + ", 'My Tasks');\n");
  try {
    mailbox::makeSureOfMailbox(fs::absolute(mailboxFile));
  } catch (...) {
    sqlite::removeDatabase(database);
    throw;
  }
}

void newDemo(const fs::path& file, const fs::path& mailboxFile, const Clock& clock) {
  const fs::path database = readyPath(file);
  const fs::path mailboxPath = readyPath(mailboxFile);
  requireFree(database, "Name another file or remove this one.");
  requireFree(mailboxPath, "Name another mailbox with --mailbox or remove this one.");
  const DemoContents contents = demoContents(clock.now(), GetANewGuid);
  DraftMailbox draft(mailboxPath);
  draft.fill(demoMailbox(contents, clock.now()), clock);
  sqlite::createDatabase(database, taskDatabaseScript() + demoScript(contents));
  draft.keep();
}

}  // namespace tarnel::host
