#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWidget>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/qt/qt_site.h"

namespace qrn {
namespace {

/// A panel of 1,000 rows of all kinds in a window of Qt.
class PanelOnQt : public ::testing::Test {
 protected:
  static constexpr int kRows = 1000;

  PanelOnQt() {
    registerControls();
    panel = host::create<QRNDisplay>(site);
    constexpr qrnValueType kTypes[] = {qrnTypeDouble, qrnTypeList, qrnTypeBoolean, qrnTypeString};
    for (int i = 0; i < kRows; ++i) {
      QRNEdit& row = panel->Items().AddParameter("", kTypes[i % 4])->Control();
      row.SetLabelText("Row " + std::to_string(i + 1));
      row.SetUnitText("mm");
      if (row.ValueType() == qrnTypeList) row.SetValueNames(0, "first"), row.SetValueNames(1, "second");
      if (row.ValueType() == qrnTypeDouble) row.SetValue(1.5);
    }
    panel->LayoutControls(false);
    canvas = platform.widget(*panel);
    canvas->resize(400, 300);
    canvas->show();
    settle();
  }

  QRNEdit& row(int position) {
    return static_cast<clsQRNParam&>(*panel->Items().Item(Variant(position))).Control();
  }
  /// Runs the event loop until nothing is left to do, deletions included.
  static void settle() {
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  int widgets() const {
    settle();
    return static_cast<int>(canvas->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size());
  }
  template <class Widget>
  Widget* only() const {
    settle();
    const auto found = canvas->findChildren<Widget*>(Qt::FindDirectChildrenOnly);
    return found.size() == 1 ? found.front() : nullptr;
  }
  QPoint middleOf(host::Control& control) const {
    const Rect at = control.visibleOnSurface();
    return {static_cast<int>(at.left + at.width / 2), static_cast<int>(at.top + at.height / 2)};
  }
  void clicks(host::Control& control) {
    QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier, middleOf(control));
  }

  qt::QtPlatform platform;
  qt::QtSite site{platform};
  host::Owned<QRNDisplay> panel;
  QWidget* canvas = nullptr;
};

TEST_F(PanelOnQt, HasAScrollBarAndNoEditorUntilOneGetsTheFocus) {
  EXPECT_EQ(widgets(), 1);
  EXPECT_NE(only<QScrollBar>(), nullptr);
}

TEST_F(PanelOnQt, HasOneEditorAfterClicksOnMany) {
  for (const int position : {1, 2, 4, 5}) clicks(*row(position).CurrentEditor());
  EXPECT_EQ(widgets(), 2);
  EXPECT_NE(only<QLineEdit>(), nullptr);
}

TEST_F(PanelOnQt, KeepsTheEditorAndItsFocusWhenItIsScrolledOutOfView) {
  clicks(*row(1).CurrentEditor());
  only<QScrollBar>()->setValue(5000);
  EXPECT_EQ(widgets(), 2);
  EXPECT_TRUE(row(1).hasFocus());
  EXPECT_TRUE(only<QLineEdit>()->hasFocus());
  only<QScrollBar>()->setValue(0);
  QTest::keyClicks(only<QLineEdit>(), "7");
  EXPECT_NE(row(1).ValueText().find('7'), std::string::npos);
}

TEST_F(PanelOnQt, ScrollsWithTheBarAndTheWheelAlike) {
  only<QScrollBar>()->setValue(100);
  EXPECT_EQ(panel->sbrVertical().Value(), 100);
  EXPECT_EQ(panel->ControlsContainer().scrolledBy(), 100);
  panel->wheel(-1);
  EXPECT_EQ(only<QScrollBar>()->value(), panel->sbrVertical().Value());
  EXPECT_EQ(panel->ControlsContainer().scrolledBy(), panel->sbrVertical().Value());
  EXPECT_GT(panel->sbrVertical().Value(), 100);
}

TEST_F(PanelOnQt, GoesOnToTheNextRowWithTabAndBringsItIntoView) {
  clicks(*row(1).CurrentEditor());
  for (int i = 0; i < 40; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_TRUE(row(41).hasFocus());
  EXPECT_FALSE(row(41).CurrentEditor()->visibleOnSurface().empty());
  EXPECT_EQ(widgets(), 2);
}

TEST_F(PanelOnQt, MarksTheCurrentEntryOfABitListThatGetsTheFocus) {
  row(2).SetValueType(qrnTypeBitfield);
  row(2).SetValueNames(0, "first");
  row(2).SetValueNames(1, "second");
  row(2).SetValue("01");
  row(2).SetFocus();
  const auto* list = only<QListWidget>();
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->currentRow(), 0);
  EXPECT_EQ(list->selectedItems().size(), 1);
}

TEST_F(PanelOnQt, LosesNoWidgetWhenTheFocusedRowIsRemoved) {
  clicks(*row(1).CurrentEditor());
  panel->Items().Remove(Variant(1));
  EXPECT_EQ(widgets(), 1);
}

TEST_F(PanelOnQt, HidesTheScrollBarWhenEverythingFits) {
  panel->RemoveControls();
  EXPECT_EQ(widgets(), 0);
}

// ---- the footer ----

class FooterOnQt : public PanelOnQt {
 protected:
  FooterOnQt() {
    for (const char* caption : {"&OK", "&Apply", "&Cancel"}) panel->Buttons().AddButton("", caption);
    settle();
    listening_ = panel->ButtonClick.connect([this](std::int32_t& index) { clicked.push_back(index); });
  }

  host::CommandButton& button(int position) { return panel->Buttons().Item(Variant(position))->Control(); }
  QWidget* keyboard() const { return QApplication::focusWidget(); }
  using Clicked = std::vector<std::int32_t>;
  /// Nothing has arrived when the handlers of what the user did have returned; one click is still posted.
  void expectLater(int position) {
    EXPECT_EQ(clicked, Clicked{});
    settle();
    EXPECT_EQ(std::exchange(clicked, {}), Clicked{position});
  }

  Clicked clicked;

 private:
  Connection listening_;
};

TEST_F(FooterOnQt, HasNoWidgetsUntilAButtonGetsTheFocus) {
  EXPECT_EQ(widgets(), 1);
  clicks(button(2));
  EXPECT_NE(only<QPushButton>(), nullptr);
  clicks(*row(1).CurrentEditor());
  EXPECT_EQ(only<QPushButton>(), nullptr);
}

TEST_F(FooterOnQt, AClickOfTheMouseArrivesOnceAndLater) {
  clicks(button(2));
  expectLater(2);
  // The second one goes straight to the widget.
  QTest::mouseClick(only<QPushButton>(), Qt::LeftButton);
  expectLater(2);
}

TEST_F(FooterOnQt, AClickOfTheKeyboardArrivesOnceAndLater) {
  button(1).SetFocus();
  QTest::keyClick(keyboard(), Qt::Key_Space);
  expectLater(1);
  QTest::keyClick(keyboard(), Qt::Key_Return);
  expectLater(1);
  QTest::keyClick(keyboard(), Qt::Key_Enter);
  expectLater(1);
}

TEST_F(FooterOnQt, AltAndTheLetterClickFromARowBeingEditedAndFromTheButtonItself) {
  clicks(*row(1).CurrentEditor());
  QTest::keyClick(keyboard(), Qt::Key_A, Qt::AltModifier);
  expectLater(2);
  QTest::keyClick(keyboard(), Qt::Key_A, Qt::AltModifier);
  expectLater(2);
  EXPECT_TRUE(button(2).hasFocus());
}

TEST_F(FooterOnQt, AButtonClicksItselfWhenItsTimeHasRunOut) {
  panel->Buttons().Item(Variant(3))->SetAutoFireDelay(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !clicked.empty(); }, 5000));
  EXPECT_EQ(clicked, Clicked{3});
}

TEST_F(FooterOnQt, ThePanelMayGoInsideAClick) {
  const auto closing = panel->ButtonClick.connect([this](std::int32_t&) { panel.reset(); });
  clicks(button(1));
  EXPECT_TRUE(panel);
  settle();
  EXPECT_FALSE(panel);
}

TEST_F(FooterOnQt, TabGoesFromTheLastRowToTheFirstButtonAndOutBehindTheLast) {
  row(kRows).SetFocus();
  QTest::keyClick(keyboard(), Qt::Key_Tab);
  EXPECT_TRUE(button(1).hasFocus());
  QTest::keyClick(keyboard(), Qt::Key_Tab);
  QTest::keyClick(keyboard(), Qt::Key_Tab);
  EXPECT_TRUE(button(3).hasFocus());
  QTest::keyClick(keyboard(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(button(2).hasFocus());
}

}  // namespace
}  // namespace qrn
