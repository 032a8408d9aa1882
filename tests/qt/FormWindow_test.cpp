#include "FormWindow.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>

#include "ShownForm.h"
#include "SplitterView.h"
#include "TabsView.h"
#include "Twips.h"

namespace tarnel::qt {
namespace {

TEST(FormWindow, viewsFollowTheirControls) {
  ShownForm shown;
  DemoForm& form = shown.form;
  EXPECT_EQ(shown.window->windowTitle(), "Demo Wizard");
  EXPECT_EQ(shown.window->size(), QSize(553, 369));
  EXPECT_EQ(shown.window->view(form.unknown), nullptr);
  EXPECT_EQ(shown.view(form.list).parentWidget(), &shown.view(form.leftPane));
  EXPECT_FALSE(shown.view(form.settings).isVisible());
  form.list.Move(15, 30, 150, 300);
  form.settings.setVisible(true);
  form.setCaption("Other");
  EXPECT_EQ(shown.view(form.list).geometry(), QRect(1, 2, 10, 20));
  EXPECT_TRUE(shown.view(form.settings).isVisible());
  EXPECT_EQ(shown.window->windowTitle(), "Other");
}

TEST(FormWindow, neighboursLeaveNoGapWhateverTheTwips) {
  EXPECT_EQ(pixelRect({7, 0, 16, 15}), QRect(0, 0, 2, 1));
  EXPECT_EQ(pixelRect({23, 0, 22, 15}), QRect(2, 0, 1, 1));
}

TEST(FormWindow, formDecidesTheSizeThatTheUserAskedFor) {
  ShownForm shown;
  shown.window->resize(700, 100);
  shown.settle();
  EXPECT_EQ(shown.form.Width(), twips(700) + Form::frameWidth);
  EXPECT_EQ(shown.form.Height(), 6000);
  EXPECT_EQ(shown.window->size(), QSize(700, 369));
  shown.window->move(40, 50);
  shown.settle();
  EXPECT_EQ(shown.form.Left(), twips(40));
  EXPECT_EQ(shown.form.Top(), twips(50));
  EXPECT_EQ(shown.form.Width(), twips(700) + Form::frameWidth);
}

TEST(FormWindow, placeOutOfSightIsBroughtBack) {
  DemoForm form;
  form.load();
  form.Move(-90000, 90000, 8400, 6000);
  FormWindow window(form, ViewFactory(), nullptr);
  window.present();
  EXPECT_GE(form.Left(), 0);
  EXPECT_LT(form.Top(), 15000);
}

TEST(FormWindow, closeBoxEnterAndEscapeAreTheForms) {
  for (const int way : std::initializer_list<int>{0, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    ShownForm shown;
    shown.view(shown.form.list).setFocus();
    way == 0 ? static_cast<void>(shown.window->close())
             : QTest::keyClick(&shown.view(shown.form.list), static_cast<Qt::Key>(way));
    EXPECT_FALSE(shown.form.isLoaded()) << way;
  }
}

TEST(FormWindow, formSeesEachKeyOnceAndBeforeItsControls) {
  ShownForm shown;
  QWidget& list = shown.view(shown.form.list);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_F1);
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(shown.form.keys, (std::vector<int>{112, 32}));
  EXPECT_TRUE(shown.form.list.Items().at(0).Checked());
}

TEST(FormWindow, escapeInAnOpenDropDownClosesOnlyThat) {
  ShownForm shown;
  auto* combo = shown.view(shown.form.picker).findChild<QComboBox*>();
  combo->setFocus();
  combo->showPopup();
  shown.settle();
  QTest::keyClick(combo->view(), Qt::Key_Escape);
  EXPECT_TRUE(shown.form.isLoaded());
  EXPECT_FALSE(combo->view()->isVisible());
}

TEST(FormWindow, tabKeyWalksTheControlsInTheirOrder) {
  ShownForm shown;
  QWidget* at = &shown.view(shown.form.tabs);
  at->setFocus();
  QStringList names;
  for (int i = 0; i < 12; ++i) {
    QTest::keyClick(shown.window->focusWidget(), Qt::Key_Tab);
    const QWidget* now = shown.window->focusWidget();
    const auto* button = qobject_cast<const QAbstractButton*>(now);
    names += button ? button->text() : now->accessibleName();
  }
  EXPECT_EQ(names.join(u'|').toStdString(),
            "Tasks:|Sort Order:|smtTaskList|All|None|Mark as Done|Delete|Copy/Update|smtTaskList|Divider: the left and "
            "right arrow keys move it|&Help|&Done");
}

TEST(FormWindow, everyTabStopHasAName) {
  ShownForm shown;
  for (const QWidget* widget : shown.window->findChildren<QWidget*>()) {
    if (!(widget->focusPolicy() & Qt::TabFocus) || widget->window() != shown.window.get()) continue;
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    EXPECT_FALSE(button ? button->text().isEmpty() : widget->accessibleName().isEmpty())
        << widget->metaObject()->className();
  }
}

TEST(FormWindow, splitterFollowsMouseAndKeysAndEndsEachDragOnce) {
  ShownForm shown;
  SSSplitter& splitter = shown.form.splitter;
  int ends = 0;
  const Connection onEnd = splitter.SplitterEndDrag.connect([&] { ++ends; });
  SplitterBar& bar = shown.view<SplitterView>(splitter).bar();
  const int before = pixels(splitter.Panes("Left").Width());
  QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(2, 50));
  QTest::mouseMove(&bar, QPoint(22, 50));
  EXPECT_EQ(pixels(splitter.Panes("Left").Width()), before + 20);
  EXPECT_EQ(ends, 0);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(32, 50));
  EXPECT_EQ(ends, 1);
  const float dragged = splitter.Panes("Left").Width();
  EXPECT_EQ(bar.x(), pixels(dragged));
  QTest::keyClick(&bar, Qt::Key_Left);
  EXPECT_LT(splitter.Panes("Left").Width(), dragged);
  EXPECT_EQ(ends, 2);
}

TEST(FormWindow, tabsSwitchByMnemonicKeyAndClickUnlessDisabled) {
  ShownForm shown;
  auto& tabs = shown.view<TabsView>(shown.form.tabs);
  tabs.setFocus();
  shown.form.tabs.setTabEnabled(1, false);
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
  EXPECT_EQ(shown.form.tabs.Current(), 0U);
  QTest::keyClick(&tabs, Qt::Key_Right);
  EXPECT_EQ(shown.form.tabs.Current(), 2U);
  EXPECT_TRUE(shown.view(shown.form.settings).isVisible());
  QTest::keyClick(shown.window.get(), Qt::Key_T, Qt::AltModifier);
  EXPECT_EQ(shown.form.tabs.Current(), 0U);
  shown.form.tabs.setCurrent(2);
  EXPECT_EQ(tabs.currentIndex(), 2);
}

}  // namespace
}  // namespace tarnel::qt
