#pragma once

#include "panels/form.h"

namespace qrn::bench {

Contender headlessPanels();

// On Qt: they need the application object.
Contender panels();
Contender widgetGrids();
Contender tableViews();

Contender fltkForms();

}  // namespace qrn::bench
