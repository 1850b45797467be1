#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTimer>
#include <string>
#include <vector>

#include "rows_on_qt.h"

namespace qrn {
namespace {

/// Right clicks on a row of each kind of editor.
class RowMenuOnQt : public RowsOnQt, public ::testing::WithParamInterface<qrnValueType> {
 protected:
  using Captions = std::vector<std::string>;

  RowMenuOnQt() {
    subject = &add(GetParam());
    for (int i = 0; i < 3 && GetParam() != qrnTypeString && GetParam() != qrnTypeBoolean; ++i)
      subject->SetValueNames(-1, "entry");
    show();
    // A menu of the program has a loop of its own.
    look.callOnTimeout(&look, [this] { closeMenu(); });
    look.start(0);
  }

  void closeMenu() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    menus.emplace_back();
    for (const QAction* action : menu->actions()) {
      if (!action->isSeparator()) menus.back().push_back(action->text().toStdString());
    }
    menu->close();
  }
  /// The menus that a right click brings, one after the other.
  std::vector<Captions> rightClick() {
    const QPoint at = middleOf(*subject->CurrentEditor());
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, Qt::NoModifier, at);
    for (int turns = 0; turns < 5; ++turns) settle();
    return std::exchange(menus, {});
  }

  QRNEdit* subject = nullptr;
  QTimer look;
  std::vector<Captions> menus;
};

TEST_P(RowMenuOnQt, IsOfferedByTheEditorWithTheFocus) {
  subject->AddMenuItem("Read");
  subject->SetFocus();
  settle();
  EXPECT_EQ(rightClick(), (std::vector<Captions>{{"Read"}}));
}

TEST_P(RowMenuOnQt, IsOfferedByAPaintedEditor) {
  subject->AddMenuItem("Read");
  EXPECT_EQ(rightClick(), (std::vector<Captions>{{"Read"}}));
  EXPECT_TRUE(subject->hasFocus());
}

TEST_P(RowMenuOnQt, LeavesTheMenuOfTheWidgetAloneWhereThereIsNone) {
  for (int i = 0; i < 2; ++i) {
    const std::vector<Captions> shown = rightClick();
    if (GetParam() == qrnTypeString) {
      ASSERT_EQ(shown.size(), 1u);
      EXPECT_GT(shown[0].size(), 5u);
    } else {
      EXPECT_EQ(shown, std::vector<Captions>());
    }
  }
}

TEST_P(RowMenuOnQt, IsNotOfferedWhileThePanelIsDisabled) {
  subject->AddMenuItem("Read");
  subject->SetFocus();
  panel->SetEnabled(false);
  EXPECT_EQ(rightClick(), std::vector<Captions>());
}

TEST_P(RowMenuOnQt, MayTakeThePanelAway) {
  subject->AddMenuItem("Read");
  subject->SetFocus();
  settle();
  look.disconnect();
  look.callOnTimeout(&look, [this] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    panel.reset();
    menu->close();
  });
  const QPoint at = middleOf(*subject->CurrentEditor());
  QTest::mouseClick(window->windowHandle(), Qt::RightButton, Qt::NoModifier, at);
  settle();
  EXPECT_FALSE(panel);
}

INSTANTIATE_TEST_SUITE_P(Editors, RowMenuOnQt,
                         ::testing::Values(qrnTypeString, qrnTypeBoolean, qrnTypeList, qrnTypeBitfield));

}  // namespace
}  // namespace qrn
