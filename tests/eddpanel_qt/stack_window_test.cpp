#include "qt/stack_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "edd/reader.h"
#include "library/library.h"
#include "platform/qt/qt_site.h"
#include "qt/question_box.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::eddpanel {
namespace {

constexpr std::string_view kText = R"(
  MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1
  VARIABLE damping { LABEL "Damping"; HELP "Filters <b>the</b> {value}."; CLASS CONTAINED;
    HANDLING READ & WRITE; TYPE FLOAT { DEFAULT_VALUE 1.5; } }
  METHOD self_test { LABEL "Self test"; HELP "Runs it."; DEFINITION { int x; x = 1; } }
  MENU trim { LABEL "Trim"; STYLE DIALOG; ITEMS { damping } }
  MENU more { LABEL "More"; ITEMS { damping, trim } }
  MENU main { LABEL "Main"; ITEMS { damping, self_test, more } }
)";

/// The window of the sample host, without a display.
class Window : public testing::Test {
 protected:
  Window() {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    hears = pages.HelpShown.connect([this](QRNToolTip& shown) { tip = WeakRef<QRNToolTip>(&shown); });
  }

  MenuPage& top() { return *pages.top(); }
  std::string titles() {
    std::string all;
    for (std::int32_t i = 1; i <= stack->Count(); ++i)
      all += (i == 1 ? "" : " > ") + stack->Pages(Variant(i)).Title();
    return all;
  }
  void clicks(host::Control& control, Qt::MouseButton button = Qt::LeftButton) {
    const Rect at = control.visibleOnSurface();
    const QPoint middle(static_cast<int>(at.left + at.width / 2), static_cast<int>(at.top + at.height / 2));
    QTest::mouseClick(platform.widget(*stack), button, Qt::NoModifier, middle);
    QApplication::processEvents();
  }
  void presses(Qt::Key key) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key);
    QApplication::processEvents();
  }
  void types(const QString& text) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), text);
  }
  /// Chooses an entry, counted from 0, of the menu that pops up at a right click on an item.
  void choosesInMenuOf(host::Control& control, int entry) {
    QTimer::singleShot(0, [entry] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                        menu->actionGeometry(menu->actions()[entry]).center());
    });
    clicks(control, Qt::RightButton);
  }
  /// Clicks on a button of the question that comes up next.
  void willAnswer(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      asked = box->text();
      QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
  }
  /// On the page "Trim", which lies on two others.
  void editsOnADialog() {
    clicks(top().control(3));
    clicks(top().control(2));
    ASSERT_EQ(titles(), "Main > More > Trim");
    clicks(*top().row(1)->CurrentEditor());
    presses(Qt::Key_End);
    types("7");
    ASSERT_EQ(top().edits().count, 1);
  }

  struct Registration {
    Registration() { registerControls(); }
  } registration;
  edd::Description description = edd::readDescriptionText(kText, "sample.ddl");
  qt::QtPlatform platform;
  qt::QtSite site{platform};
  host::Owned<QRNDisplayStack> stack = host::create<QRNDisplayStack>(site);
  QuestionBox question;
  DevicePages pages{description, *stack, question};
  StackWindow window{platform, pages};
  WeakRef<QRNToolTip> tip;
  QString asked;
  Connection hears;
};

TEST_F(Window, ShowsTheHelpOfARowAtAClickOnItsIconAndNeverAsMarkup) {
  clicks(top().row(1)->imgIcon2());
  ASSERT_TRUE(tip);
  EXPECT_EQ(tip->Text(), "Damping\r\nFilters <b>the</b> {value}.");
  EXPECT_TRUE(tip->Visible());
}

TEST_F(Window, ShowsTheHelpOfAButtonThatIsChosenInItsMenu) {
  choosesInMenuOf(top().control(2), 0);
  ASSERT_TRUE(tip);
  EXPECT_EQ(tip->Text(), "Self test\r\nRuns it.");
  EXPECT_TRUE(tip->hasFocus());
}

TEST_F(Window, ShowsHelpAtF1AndClosesItAtEscape) {
  clicks(*top().row(1)->CurrentEditor());
  presses(Qt::Key_F1);
  ASSERT_TRUE(tip);
  EXPECT_TRUE(tip->Visible());
  presses(Qt::Key_Escape);
  EXPECT_FALSE(tip);
  EXPECT_TRUE(top().row(1)->hasFocus());
}

TEST_F(Window, ClosesTheHelpWhenAnotherApplicationIsActivated) {
  clicks(top().row(1)->imgIcon2());
  ASSERT_TRUE(tip);
  platform.windows().applicationActivated(false);
  EXPECT_FALSE(tip);
}

TEST_F(Window, ReportsWhatAMethodHasDoneInItsStatusBar) {
  clicks(top().control(2));
  EXPECT_EQ(window.statusBar()->currentMessage().toStdString(), "Self test: done");
}

TEST_F(Window, OpensTheMenusOnEachOtherAndGoesBackAtAClickOnACoveredPage) {
  EXPECT_EQ(window.windowTitle(), "Main");
  clicks(top().control(3));
  EXPECT_EQ(titles(), "Main > More");
  clicks(pages.page(1).panel().lblTitle());
  EXPECT_EQ(titles(), "Main");
}

TEST_F(Window, KeepsTheUserInADialog) {
  editsOnADialog();
  EXPECT_FALSE(pages.page(1).panel().Enabled());
  EXPECT_FALSE(pages.page(2).panel().Enabled());
  clicks(pages.page(1).panel().lblTitle());
  EXPECT_EQ(titles(), "Main > More > Trim");
}

TEST_F(Window, KeepsAPageWithEditedValuesOpenAtACancel) {
  editsOnADialog();
  willAnswer(QMessageBox::Cancel);
  clicks(top().panel().imgClose());
  EXPECT_EQ(asked, "\"Trim\" has a value that has not been written to the device.");
  EXPECT_EQ(titles(), "Main > More > Trim");
  EXPECT_EQ(top().row(1)->ValueText(), "1.57");
}

TEST_F(Window, WritesTheValuesOfAPageThatClosesAtApply) {
  editsOnADialog();
  willAnswer(QMessageBox::Apply);
  clicks(top().panel().imgClose());
  EXPECT_EQ(titles(), "Main > More");
  EXPECT_EQ(top().row(1)->ValueText(), "1.57");
}

TEST_F(Window, PutsTheValuesOfAPageThatClosesBackAtDiscard) {
  editsOnADialog();
  willAnswer(QMessageBox::Discard);
  clicks(top().panel().imgClose());
  EXPECT_EQ(titles(), "Main > More");
  EXPECT_EQ(top().row(1)->ValueText(), "1.5");
}

TEST_F(Window, StaysOpenWhileAPageDoes) {
  editsOnADialog();
  willAnswer(QMessageBox::Cancel);
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  willAnswer(QMessageBox::Discard);
  EXPECT_TRUE(window.close());
  EXPECT_EQ(stack->Count(), 0);
}

TEST_F(Window, OffersTheMenusToStartFromWhereThereAreSeveral) {
  EXPECT_FALSE(window.findChild<QListWidget*>()->isVisibleTo(&window));
  const auto two = edd::readDescriptionText(
      "MANUFACTURER 1, DEVICE_TYPE 1, DEVICE_REVISION 1, DD_REVISION 1\n"
      "VARIABLE a { LABEL \"A\"; CLASS CONTAINED; TYPE INTEGER(2); }\n"
      "MENU first { LABEL \"First\"; ITEMS { a } } MENU second { LABEL \"Second\"; ITEMS { a } }",
      "two.ddl");
  const auto other = host::create<QRNDisplayStack>(site);
  DevicePages others(two, *other, question);
  StackWindow shown(platform, others);
  auto* roots = shown.findChild<QListWidget*>();
  EXPECT_TRUE(roots->isVisibleTo(&shown));
  roots->setCurrentRow(1);
  EXPECT_EQ(other->Count(), 1);
  EXPECT_EQ(others.top()->menu().label, "Second");

  static_cast<host::TextBox*>(others.top()->row(1)->CurrentEditor())->userTyped("3", 1);
  willAnswer(QMessageBox::Cancel);
  roots->setCurrentRow(0);
  EXPECT_EQ(others.top()->menu().label, "Second");
  EXPECT_EQ(roots->currentRow(), 1);
}

TEST_F(Window, ClosesWithItsLastPage) {
  clicks(top().panel().Buttons().Item(Variant(1))->Control());
  EXPECT_EQ(stack->Count(), 0);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace qrn::eddpanel
