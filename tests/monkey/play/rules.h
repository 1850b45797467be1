#pragma once

namespace qrn::monkey {

class Stage;

// What the library promises whatever was done before. A broken promise is a complaint of the stage.

/// Before every step: remembers what the rules compare with.
void beforeStep(Stage& stage);
/// After every step.
void checkRules(Stage& stage);

/// Right after the focus was moved, and after the keyboard has moved it.
void checkFocusIsOfUse(Stage& stage);
void checkKeyboardStaysOnTop(Stage& stage);

/// Those of a stack; checkRules asks them.
void checkStack(Stage& stage);

/// Right after a full layout that nobody interfered with.
void checkItemsLieWhereTheyBelong(Stage& stage);
void checkButtonsLieWhereTheyBelong(Stage& stage);

}  // namespace qrn::monkey
