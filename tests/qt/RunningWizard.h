#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>

#include "FormWindow.h"
#include "MailboxFile.h"
#include "MailboxList.h"
#include "OutlookFactory.h"
#include "QtDesktop.h"
#include "TaskDatabase.h"
#include "TaskDatabaseScript.h"
#include "TestPlatform.h"
#include "clsTarnelOutWizard.h"

namespace tarnel::qt {

// The whole wizard in its real window, over a real task database and a real mailbox on 2026-11-19. Each test acts by
// mouse and keyboard inside the modal run.
struct RunningWizard : testing::Test {
  RunningWizard() {
    mailbox::createMailbox(mailbox_);
    closed_ = wizard_.CloseTheWizard.connect([this] { ++closeEvents_; });
  }

  // Opens the wizard, does `act` once its window stands, and closes the window by its close box where `act` has not.
  void run(const std::function<void()>& act, bool appointments = false) {
    installPlatform({desktop_, platform_.clock, locale_, platform_.registry, database_.provider, outlook_,
                     platform_.errorReport, platform_.utilities, platform_.applicationFolder.path()});
    onceShown<FormWindow>([&](FormWindow& window) {
      window_ = &window;
      EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
      QApplication::processEvents();
      act();
      if (QApplication::activeModalWidget() == &window) window.close();
    });
    wizard_.Setup(appointments, "DAY", "M60", database_.connect());
    window_ = nullptr;
    EXPECT_TRUE(platform_.errorReport.reports.empty());
  }

  // Does `act` when a window of this kind has come up; an event loop must be about to run.
  template <class Window, class Act>
  static void onceShown(Act act) {
    QTimer::singleShot(0, qApp, [act] {
      if (auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget()))
        act(*window);
      else
        onceShown<Window>(act);
    });
  }
  // Answers the box that comes next by this key.
  void answerNext(Qt::Key key) {
    onceShown<QMessageBox>([key](QMessageBox& box) { QTest::keyClick(&box, key); });
  }

  // The view of the control with this full name.
  template <class View = QWidget>
  View& view(const char* name) {
    return dynamic_cast<View&>(*window_->findChild<QWidget*>(QString::fromLatin1(name)));
  }
  QAbstractButton& button(const char* bar, const char* caption) {
    for (auto* button : view(bar).findChildren<QAbstractButton*>())
      if (button->text() == QString::fromLatin1(caption)) return *button;
    throw std::out_of_range(caption);
  }
  void press(const char* bar, const char* caption) { QTest::mouseClick(&button(bar, caption), Qt::LeftButton); }
  void type(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(QApplication::focusWidget(), key, with); }

  void addTask(const std::string& key, const std::string& description) {
    database_.addTask(key, description);
    database_.run("UPDATE TASKS SET tskCurrent = 1");
  }
  // "Folder: subject" of each item.
  std::string outlookItems() {
    std::string all;
    mailbox::Mailbox open(mailbox_, locale_, platform_.clock);
    for (const mailbox::ListedItem& item : mailbox::listItems(open)) all += item.folder + ": " + item.subject + "|";
    return all;
  }

  test::TestPlatform platform_;
  Locale locale_;
  test::TaskDatabase database_{host::taskDatabaseScript()};
  std::filesystem::path mailbox_ = platform_.applicationFolder / "Outlook.mailbox";
  mailbox::OutlookFactory outlook_{[](const std::string&) { return std::nullopt; }, mailbox_, Locale(),
                                   platform_.clock};
  QtDesktop desktop_;
  clsTarnelOutWizard wizard_;
  Connection closed_;
  int closeEvents_ = 0;
  FormWindow* window_ = nullptr;
};

}  // namespace tarnel::qt
