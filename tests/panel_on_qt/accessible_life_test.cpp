#include <QLineEdit>

#include "accessible_panel.h"

namespace qrn {
namespace {

// All that a tool may ask of an interface that has died meanwhile.
void expectDead(QAccessibleInterface& part) {
  EXPECT_FALSE(part.isValid());
  EXPECT_TRUE(part.state().invalid);
  EXPECT_EQ(part.childCount(), 0);
  EXPECT_EQ(part.child(0), nullptr);
  EXPECT_EQ(part.parent(), nullptr);
  EXPECT_EQ(part.focusChild(), nullptr);
  EXPECT_EQ(part.childAt(1, 1), nullptr);
  EXPECT_EQ(part.indexOfChild(&part), -1);
  EXPECT_EQ(part.rect(), QRect());
  EXPECT_EQ(part.window(), nullptr);
  EXPECT_EQ(part.role(), QAccessible::NoRole);
  EXPECT_EQ(part.text(QAccessible::Name), QString());
  EXPECT_EQ(part.text(QAccessible::Value), QString());
  part.setText(QAccessible::Value, "x");
  EXPECT_EQ(part.actionInterface(), nullptr);
  EXPECT_EQ(part.textInterface(), nullptr);
}

TEST_F(AccessiblePanelOnQt, TheInterfacesOfARowDieWithIt) {
  QAccessibleInterface &group = rowPart(1), &editor = editorOf(1), &icon = *group.child(1);
  QAccessibleTextInterface& text = *editor.textInterface();
  QAccessibleActionInterface& action = *icon.actionInterface();
  panel->Items().Remove(Variant("Pressure"));
  for (QAccessibleInterface* part : {&group, &editor, &icon}) expectDead(*part);
  EXPECT_EQ(text.text(0, 3), QString());
  EXPECT_EQ(text.cursorPosition(), 0);
  EXPECT_EQ(action.actionNames(), QStringList());
  action.doAction(QAccessibleActionInterface::pressAction());
}

TEST_F(AccessiblePanelOnQt, TheInterfaceOfARealEditorDiesWithItsRow) {
  row("Pressure").SetFocus();
  QAccessibleInterface& editor = editorOf(1);
  const QAccessible::Id id = QAccessible::uniqueId(&editor);
  ASSERT_NE(editor.object(), nullptr);
  panel->Items().Remove(Variant("Pressure"));
  expectDead(editor);
  settle();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AccessiblePanelOnQt, TheInterfaceOfAnEditorThatIsPaintedAgainDiesButTheRowLives) {
  row("Pressure").SetFocus();
  QAccessibleInterface& real = editorOf(1);
  row("Mode").SetFocus();
  expectDead(real);
  EXPECT_TRUE(editorOf(1).isValid());
  EXPECT_EQ(textOf(editorOf(1)), "Pressure");
}

TEST_F(AccessiblePanelOnQt, AnInterfaceOfAPaintedEditorLivesOnBesideTheRealOne) {
  QAccessibleInterface& painted = editorOf(1);
  row("Pressure").SetFocus();
  EXPECT_NE(&editorOf(1), &painted);
  EXPECT_TRUE(painted.isValid());
  EXPECT_EQ(painted.text(QAccessible::Name), editorOf(1).text(QAccessible::Name));
  EXPECT_EQ(painted.parent(), &rowPart(1));
  EXPECT_EQ(rowPart(1).indexOfChild(&painted), 0);
}

TEST_F(AccessiblePanelOnQt, AnEntryDiesWhenTheListGetsShorter) {
  QAccessibleInterface& entry = *editorOf(2).child(1);
  EXPECT_TRUE(entry.isValid());
  row("Mode").SetValueCount(1);
  expectDead(entry);
}

TEST_F(AccessiblePanelOnQt, EverythingDiesWithThePanelAndIsPutAwayWithItsWidget) {
  QAccessibleInterface &whole = top(), &group = rowPart(1), &editor = editorOf(1), &button = rowPart(6);
  const QAccessible::Id id = QAccessible::uniqueId(&editor);
  panel.reset();
  for (QAccessibleInterface* part : {&whole, &group, &editor, &button}) expectDead(*part);
  settle();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AccessiblePanelOnQt, TheWindowMayGoBeforeThePanel) {
  const QAccessible::Id id = QAccessible::uniqueId(&editorOf(1));
  row("Pressure").SetFocus();
  editorOf(1);
  window.reset();
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
  row("Pressure").SetValue(2);
  window = std::make_unique<QWidget>();
  canvas = static_cast<qt::QtCanvas*>(platform.widget(*panel));
  canvas->setParent(window.get());
  EXPECT_EQ(textOf(editorOf(1)), "Pressure");
}

TEST_F(AccessiblePanelOnQt, ThePanelMayEndWhileAToolPresses) {
  const auto listening = panel->ActionClick.connect([this](std::int32_t&) { panel.reset(); });
  rowPart(5).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(panel, nullptr);
}

TEST_F(AccessiblePanelOnQt, DeadInterfacesDoNotPileUp) {
  for (int i = 0; i < 500; ++i) {
    addRow("Passing", qrnTypeString);
    EXPECT_EQ(textOf(*rowPart(6).child(0)), "Passing");
    panel->Items().Remove(Variant("Passing"));
  }
  EXPECT_LT(canvas->accessibleParts(), 200U);
}

// ---- what tools are told ----

class AccessibleEventsOnQt : public AccessiblePanelOnQt {
 protected:
  using Lines = std::vector<std::string>;

  AccessibleEventsOnQt() {
    platform.accessibleEvents().listener = [this](QAccessibleEvent& event) {
      const std::string name = textOf(*event.accessibleInterface());
      switch (event.type()) {
        case QAccessible::Focus: lines.push_back("focus " + name); break;
        case QAccessible::TextUpdated:
          lines.push_back("text " + name + " " +
                          static_cast<QAccessibleTextUpdateEvent&>(event).textInserted().toStdString());
          break;
        case QAccessible::ValueChanged: lines.push_back("value " + name); break;
        case QAccessible::StateChanged: lines.push_back("state " + name); break;
        default: lines.push_back("something else");
      }
    };
  }
  Lines take() { return std::exchange(lines, {}); }

  Lines lines;
};

TEST_F(AccessibleEventsOnQt, NothingIsToldOfWhatNoToolHasAskedFor) {
  item("Pressure").SetParamValue(2);
  EXPECT_EQ(take(), Lines{});
  EXPECT_EQ(canvas->accessibleParts(), 0U);
}

TEST_F(AccessibleEventsOnQt, NewValuesOfPaintedEditorsAreTold) {
  for (const int position : {1, 2, 3, 4}) editorOf(position);
  editorOf(4).child(0);
  item("Pressure").SetParamValue(2);
  item("Mode").SetParamValue(1);
  item("Active").SetParamValue(true);
  item("Alarms").SetParamValue("1");
  EXPECT_EQ(take(), (Lines{"text Pressure 2", "value Mode", "state Active", "state low"}));
}

TEST_F(AccessibleEventsOnQt, APasswordIsNotToldInEventsEither) {
  row("Pressure").SetValueType(qrnTypeString);
  row("Pressure").SetPassword(true);
  editorOf(1);
  row("Pressure").SetValue("abc");
  EXPECT_EQ(take(), Lines{"text Pressure ***"});
}

TEST_F(AccessibleEventsOnQt, NothingIsToldOfAPanelThatNobodySees) {
  editorOf(1);
  window->hide();
  take();
  item("Pressure").SetParamValue(2);
  EXPECT_EQ(take(), Lines{});
}

TEST_F(AccessibleEventsOnQt, NewStatesAreTold) {
  editorOf(1);
  item("Pressure").SetParamState(qrnStateReadOnly);
  EXPECT_EQ(take(), Lines{"state Pressure"});
}

// Of the focus on a real editor Qt tells itself.
TEST_F(AccessibleEventsOnQt, TheFocusOnSomethingPaintedIsTold) {
  panel->SetItemFocus(Variant("selfTest"));
  EXPECT_EQ(take(), Lines{"focus Self test"});
  row("Pressure").SetFocus();
  EXPECT_EQ(take(), Lines{});
}

}  // namespace
}  // namespace qrn
