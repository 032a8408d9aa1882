#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>

#include "CheckListView.h"
#include "FormWindow.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "QtDesktop.h"
#include "SplitterView.h"
#include "TaskDatabase.h"
#include "TestPlatform.h"
#include "Twips.h"
#include "clsTarnelOutWizard.h"

namespace tarnel::qt {
namespace {

// The whole wizard in its real window, over a real task database and a real mailbox on 2026-11-19. Each test acts by
// mouse and keyboard inside the modal run.
struct WizardWindow : testing::Test {
  WizardWindow() {
    mailbox::createMailbox(mailbox_);
    closed_ = wizard_.CloseTheWizard.connect([this] { ++closeEvents_; });
  }

  // Opens the wizard, does `act` once its window is open, and closes the window by its close box where `act` has not.
  void run(const std::function<void()>& act, bool appointments = false) {
    installPlatform({desktop_, platform_.clock, locale_, platform_.registry, database_.provider, outlook_,
                     platform_.errorReport, platform_.utilities, platform_.applicationFolder.path()});
    onceShown([&](FormWindow& window) {
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

  // Does `act` when the window has come up; an event loop must be about to run.
  template <class Act>
  static void onceShown(Act act) {
    QTimer::singleShot(0, qApp, [act] {
      if (auto* window = dynamic_cast<FormWindow*>(QApplication::activeModalWidget()))
        act(*window);
      else
        onceShown(act);
    });
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

  test::TestPlatform platform_;
  Locale locale_;
  test::TaskDatabase database_;
  std::filesystem::path mailbox_ = platform_.applicationFolder / "Outlook.mailbox";
  mailbox::OutlookFactory outlook_{[](const std::string&) { return std::nullopt; }, mailbox_, Locale(),
                                   platform_.clock};
  QtDesktop desktop_;
  clsTarnelOutWizard wizard_;
  Connection closed_;
  int closeEvents_ = 0;
  FormWindow* window_ = nullptr;
};

Qt::CheckState checkOf(const CheckListView& list, int row) {
  return static_cast<Qt::CheckState>(list.model()->index(row, 0).data(Qt::CheckStateRole).toInt());
}

QString captions(const CheckListView& list) {
  QString all;
  for (int row = 0; row < list.model()->rowCount(); ++row) all += list.model()->index(row, 0).data().toString() + u'|';
  return all;
}

void moveToTheLeft(SplitterBar& bar) {
  const int before = bar.x();
  QTest::keyClick(&bar, Qt::Key_Left);
  EXPECT_EQ(bar.x(), before - 10);
  QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(1, 50));
  QTest::mouseMove(&bar, QPoint(-59, 50));
  EXPECT_EQ(bar.x(), before - 70);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(-9, 50));
  EXPECT_EQ(bar.x(), before - 80);
}

TEST_F(WizardWindow, keyboardAloneReachesRowsTabsAndDropDowns) {
  addTask("T1", "Pay the rent");
  database_.run("UPDATE TASKS SET tskProjectKey = 'P1', tskProject = 'Zoo'");
  addTask("T2", "Water the plants");
  database_.run("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('P1', 'Zoo')");
  run([&] {
    auto& list = view<CheckListView>("smtTaskList(0)");
    list.setFocus();
    type(Qt::Key_Home);
    type(Qt::Key_Down);
    type(Qt::Key_Space);
    EXPECT_EQ(checkOf(list, 1), Qt::Checked);
    type(Qt::Key_Space);
    EXPECT_EQ(checkOf(list, 1), Qt::Unchecked);

    type(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(view("picWiz(0)").isVisible());
    EXPECT_FALSE(view("picWiz(1)").isVisible());
    EXPECT_TRUE(view("tabWiz").hasFocus()) << "what had the focus is hidden now";
    type(Qt::Key_T, Qt::AltModifier);

    auto& picker = *view("smtSkedPickTasks").findChild<QComboBox*>();
    picker.setFocus();
    QTest::keyClick(&picker, Qt::Key_Z);
    QTest::keyClick(picker.view(), Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(picker.currentText(), "Zoo");
    EXPECT_EQ(captions(list), "Pay the rent|");
    picker.showPopup();
    QTest::keyClick(picker.view(), Qt::Key_Escape);
    EXPECT_FALSE(picker.view()->isVisible());
    EXPECT_TRUE(window_->isVisible()) << "Enter and Escape were the open list's";
  });
}

TEST_F(WizardWindow, sizeAndSplitterAreKeptByDoneAndByNothingElse) {
  const auto layout = [this] {
    return database_.describe(
        "SELECT SetSettingValue FROM Settings WHERE SetSettingSection = 'OutWizard' ORDER BY setSettingDisplayOrd");
  };
  const auto change = [this] {
    window_->move(100, 40);
    window_->resize(400, 100);
    QApplication::processEvents();
    EXPECT_EQ(window_->size(), QSize(pixels(7600 - Form::frameWidth), pixels(6000 - Form::frameHeight)));
    window_->resize(700, 500);
    moveToTheLeft(view<SplitterView>("splitTasks").bar());
    EXPECT_LT(view("smtTaskList(0)").width(), view("smtTaskList(1)").width() - 100);
    EXPECT_EQ(view("smtTaskActions(1)").geometry().bottom() + 1, view("paneAppt(3)").height());
  };
  run([&] {});
  EXPECT_EQ(closeEvents_, 0);
  const std::string first = layout();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    run([&] {
      change();
      type(key);
    });
    EXPECT_EQ(layout(), first);
  }
  EXPECT_EQ(closeEvents_, 3);
  run(change);
  EXPECT_EQ(layout(), first);
  run([&] {
    change();
    press("smtActions", "&Done");
  });
  EXPECT_EQ(closeEvents_, 4);
  EXPECT_EQ(layout().substr(0, 21), "1500\n600\n10600\n7960\n0");
  run([&] {
    EXPECT_EQ(window_->pos(), QPoint(100, 40));
    EXPECT_EQ(window_->size(), QSize(700, 500));
    EXPECT_LT(view("smtTaskList(0)").width(), view("smtTaskList(1)").width() - 100);
  });
}

TEST_F(WizardWindow, tabGoesAroundAllThatCanBeSeenAsTheEyeDoesAndEachHasAName) {
  addTask("T1", "Pay the rent");
  for (const bool appointments : {false, true})
    run([&] {
      const char* rightSide = appointments ? "ctDaySked(1)" : "smtTaskList(1)";
      std::set<QWidget*> reached;
      QPoint last;
      view("tabWiz").setFocus();
      if (appointments) type(Qt::Key_A, Qt::AltModifier);
      // A date box keeps the focus for each of its parts.
      for (int presses = 0; presses < 60; ++presses) {
        QWidget* at = QApplication::focusWidget();
        if (presses > 0 && at == &view("tabWiz")) break;
        reached.insert(at);
        const QString name = QAccessible::queryAccessibleInterface(at)->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty() || name.startsWith("smt") || name.startsWith("ct")) << name.toStdString();
        // Downwards on the left side, then on the right one, then the buttons below both.
        const QPoint place = at->mapTo(window_, QPoint(0, 0));
        const bool samePane = (place.x() < window_->width() / 2) == (last.x() < window_->width() / 2);
        if (at->cursor().shape() == Qt::SplitHCursor) {
          EXPECT_TRUE(reached.contains(&view(rightSide))) << "the bar comes after what it divides";
        } else {
          EXPECT_TRUE(!samePane || place.y() + 3 >= last.y()) << name.toStdString();
          last = place;
        }
        type(Qt::Key_Tab);
      }
      std::set<QWidget*> wanted;
      for (auto* widget : window_->findChildren<QWidget*>())
        if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy() &&
            !qobject_cast<QAbstractButton*>(widget))
          wanted.insert(widget);
      for (QWidget* widget : wanted) {
        if (widget->inherits("QLineEdit")) continue;  // is a part of its date box
        EXPECT_TRUE(reached.contains(widget)) << widget->metaObject()->className();
      }
      EXPECT_TRUE(reached.contains(&button("smtActions", "&Done")));
      EXPECT_EQ(QAccessible::queryAccessibleInterface(&view("lblShow(3)"))->text(QAccessible::Name), "Tarnel");
    });
}

TEST_F(WizardWindow, allCommandsAndTheWholeDateAreSeenAtTheFirstSize) {
  run([&] {
    EXPECT_EQ(window_->width(), pixels(8400 - Form::frameWidth));
    for (const char* bar : {"smtTaskActions(0)", "smtTaskActions(1)"})
      for (const char* caption : {"All", "None", "Mark as Done", "Delete", "Copy/Update"})
        EXPECT_TRUE(button(bar, caption).isVisible()) << bar << caption;
    type(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(view("picWiz(0)").isVisible());
    auto& edit = *view("ctDeadline").findChild<QLineEdit*>();
    EXPECT_EQ(edit.text(), "11/19/2026");
    EXPECT_LE(edit.fontMetrics().horizontalAdvance(edit.text()), edit.width() - 4);
    for (auto* button : view("ctDeadline").findChildren<QPushButton*>()) EXPECT_TRUE(button->isVisible());
    for (const char* bar : {"smtApptActions(0)", "smtApptActions(1)"}) {
      EXPECT_TRUE(button(bar, "Copy/Update").font().bold()) << bar;
      EXPECT_FALSE(button(bar, "Delete").font().bold()) << bar;
    }
  });
}

}  // namespace
}  // namespace tarnel::qt
