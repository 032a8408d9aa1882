#include "QtDesktop.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <sstream>
#include <thread>

#include "DemoForm.h"
#include "FailureOf.h"
#include "PictureDesktop.h"
#include "ProgressWindow.h"
#include "QtApplication.h"
#include "TempFolder.h"
#include "Twips.h"
#include "ViewFactory.h"

namespace tarnel::qt {
namespace {

// Does `act` with the widget that is modal once the event loop runs.
template <class Act>
void whenShown(Act act) {
  QTimer::singleShot(0, qApp, [act] { act(QApplication::activeModalWidget()); });
}

struct LoadedForm : DemoForm {
  LoadedForm() { load(); }
};

TEST(QtDesktop, messageAnswersByKeyboard) {
  QtDesktop desktop;
  const Message question{"Line one\r\n<b>two</b>", "Title", MessageIcon::none, MessageButtons::yesNo};
  const auto answer = [&](Qt::Key key) {
    whenShown([key](QWidget* box) {
      EXPECT_EQ(dynamic_cast<QMessageBox&>(*box).text(), "Line one\n<b>two</b>");
      EXPECT_EQ(dynamic_cast<QMessageBox&>(*box).textFormat(), Qt::PlainText);
      QTest::keyClick(box, key);
    });
    return desktop.message(question);
  };
  EXPECT_EQ(answer(Qt::Key_Return), MessageAnswer::yes);
  EXPECT_EQ(answer(Qt::Key_Escape), MessageAnswer::no);
  whenShown([](QWidget* box) { QTest::keyClick(box, Qt::Key_Escape); });
  EXPECT_EQ(desktop.message({"Done", "Title"}), MessageAnswer::ok);
}

TEST(QtDesktop, reportCanBeCopiedWithAllItsFacts) {
  QtDesktop desktop;
  whenShown([](QWidget* dialog) {
    for (auto* button : dialog->findChildren<QPushButton*>())
      if (button->text() == "&Copy") button->click();
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  desktop.report({"Project1", "Module1", "Procedure1", "It failed", -2147217864, 17, "Profile1", "1.14.0", "/tasks.db",
                  "/o.mailbox", "/errors.txt"});
  const QString copied = QApplication::clipboard()->text();
  for (const char* fact : {"Project1", "Module1", "Procedure1", "It failed", "-2147217864", "17", "Profile1", "1.14.0",
                           "/tasks.db", "/o.mailbox", "/errors.txt"})
    EXPECT_TRUE(copied.contains(fact)) << fact;
}

// A view that fails where it is made, where it comes up, or where it is painted.
struct FailingView : QWidget {
  FailingView(int moment, QWidget* parent) : QWidget(parent), moment_(moment) { failAt(1); }
  void showEvent(QShowEvent*) override { failAt(2); }
  void paintEvent(QPaintEvent*) override { failAt(3); }
  void failAt(int moment) const {
    if (moment == moment_) throw Failure(moment, "the view failed");
  }
  int moment_;
};

TEST(QtDesktop, failureOfAViewIsHandedOnAndCanBeReported) {
  for (int moment = 1; moment <= 3; ++moment) {
    ViewFactory views;
    views.add<SftTabs>([moment](SftTabs&, ViewSite&, QWidget* parent) { return new FailingView(moment, parent); });
    QtDesktop desktop(views);
    LoadedForm form;
    EXPECT_EQ(test::failureOf([&] { form.showModal(desktop); }), moment);
    whenShown([](QWidget* dialog) {
      EXPECT_EQ(dialog->parentWidget(), nullptr);
      QTest::keyClick(dialog, Qt::Key_Escape);
    });
    desktop.report({"P", "M", "F", "text", moment, 0, ""});
  }
}

TEST(QtDesktop, modalFormsAreAboveOneAnotherAndEachReturnsWithItsOwn) {
  QtDesktop desktop;
  LoadedForm lower, upper;
  std::string order;
  const Connection onClick = lower.actions.Click.connect([&](SmartItem&) {
    whenShown([&](QWidget* window) {
      EXPECT_EQ(dynamic_cast<FormWindow*>(window)->parentWidget()->windowTitle(), "Demo Wizard");
      window->close();
    });
    upper.showModal(desktop);
    order += "upper ";
    lower.unload();
  });
  whenShown([&](QWidget*) { lower.actions.press(lower.actions.Items().Item("&Help")); });
  lower.showModal(desktop);
  EXPECT_EQ(order + "lower", "upper lower");
}

TEST(QtDesktop, bothFormsGoWhenTheUpperOnesEventTakesThemDown) {
  QtDesktop desktop;
  LoadedForm lower, upper;
  whenShown([&](QWidget*) {
    whenShown([&](QWidget*) {
      for (Form* form : openForms()) form->unload();
    });
    upper.showModal(desktop);
  });
  lower.showModal(desktop);
  EXPECT_TRUE(openForms().empty());
}

TEST(QtDesktop, whatAListenerThrowsComesOutOfTheModalRun) {
  QtDesktop desktop;
  LoadedForm form;
  const Connection onClick = form.actions.Click.connect([](SmartItem&) { throw Failure(91, "No object"); });
  whenShown([&](QWidget* window) {
    for (auto* button : window->findChildren<QPushButton*>())
      if (button->text() == "&Help") button->click();
  });
  EXPECT_THROW(form.showModal(desktop), Failure);
  EXPECT_TRUE(form.isLoaded());
}

TEST(QtDesktop, pointerFollowsAndIsPutBack) {
  {
    QtDesktop desktop;
    desktop.setMousePointer(MousePointer::hourglass);
    desktop.setMousePointer(MousePointer::hourglass);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtDesktop, shortRunShowsNoProgress) {
  QtDesktop desktop;
  for (int i = 1; i <= 10000; ++i) desktop.progress(i, 10000);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(Progress, longRunShowsItselfAndLetsNoInputInUntilItEnds) {
  ShownForm shown;
  Progress progress;
  int pressed = 0;
  const Connection onClick = shown.form.actions.Click.connect([&](SmartItem&) { ++pressed; });
  // Called from the event loop, as a command is.
  QTimer::singleShot(0, qApp, [&] {
    while (!progress.window()) progress.step(3, 10, shown.window.get());
    EXPECT_EQ(progress.window()->shownText(), "3 of 10");
    EXPECT_EQ(QApplication::activeModalWidget(), progress.window());
    QTest::mouseClick(shown.window->windowHandle(), Qt::LeftButton, {},
                      shown.button(shown.form.actions, "&Help")->mapTo(shown.window.get(), QPoint(5, 5)));
    progress.step(10, 10, shown.window.get());
    EXPECT_EQ(progress.window(), nullptr);
  });
  shown.settle();
  EXPECT_EQ(pressed, 0);
}

TEST(Progress, abandonedRunLosesItsBarWithTheNextRoundOfTheLoop) {
  Progress progress;
  QEventLoop loop;
  QTimer::singleShot(0, &loop, [&] {
    while (!progress.window()) progress.step(3, 10, nullptr);
    QApplication::processEvents();
    EXPECT_NE(progress.window(), nullptr);
    QTimer::singleShot(0, &loop, [&] { loop.quit(); });
  });
  loop.exec();
  EXPECT_EQ(progress.window(), nullptr);
}

TEST(QtApplication, refusedStartLeavesTheEnvironmentAsItWas) {
  qputenv("QT_QPA_PLATFORM", "of the host");
  std::thread([] {
    int count = 0;
    EXPECT_THROW(QtApplication(QtApplication::WithoutScreen{}, count, nullptr), Failure);
  }).join();
  EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "of the host");
  qunsetenv("QT_QPA_PLATFORM");
}

TEST(FormWindow, titleFollowsTheFormAndClosingIsNotRefused) {
  ShownForm shown;
  shown.form.setCaption("Other");
  EXPECT_EQ(shown.window->windowTitle(), "Other");
  EXPECT_TRUE(shown.window->close());
}

TEST(FormWindow, placeOutOfSightIsBroughtBack) {
  LoadedForm form;
  form.Move(-90000, 90000, 8400, 6000);
  FormWindow window(form, ViewFactory(), nullptr);
  window.present();
  EXPECT_GE(form.Left(), 0);
  EXPECT_LT(form.Top(), 15000);
}

TEST(FormWindow, neighboursLeaveNoGapWhateverTheTwips) {
  EXPECT_EQ(pixelRect({7, 0, 16, 15}), QRect(0, 0, 2, 1));
  EXPECT_EQ(pixelRect({23, 0, 22, 15}), QRect(2, 0, 1, 1));
}

TEST(PictureDesktop, savesOnePictureATabAndClosesTheForm) {
  const test::TempFolder folder;
  std::ostringstream told;
  PictureDesktop desktop(folder / "pictures", 2, told);
  LoadedForm form;
  form.tabs.setTabEnabled(1, false);
  form.showModal(desktop);
  EXPECT_FALSE(form.isLoaded());
  ASSERT_EQ(desktop.pictures().size(), 2U);
  const QImage picture(QString::fromStdString(desktop.pictures()[0].string()));
  EXPECT_EQ(picture.size(), QSize(1106, 738));
}

TEST(PictureDesktop, folderThatCannotBeMadeIsAFailure) {
  std::ostringstream told;
  PictureDesktop desktop("/proc/tarnel-pictures", 1, told);
  LoadedForm form;
  EXPECT_EQ(test::failureOf([&] { form.showModal(desktop); }), failure::pathAccess);
}

}  // namespace
}  // namespace tarnel::qt
