#include <QApplication>
#include <QStyleFactory>
#include <cstdio>
#include <string_view>

#include "panels/contenders.h"
#include "panels/workloads.h"

// panel_bench CONTENDER ROWS [WORKLOADS [SAMPLES [SECONDS]]]
int main(int argc, char** argv) {
  using namespace qrn::bench;
  const std::string_view who = argc > 1 ? argv[1] : "";
  const Wish wish = wishOf(argc, argv, 2);
  if (who == "headless") {
    measure(headlessPanels(), wish);
    return 0;
  }
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  if (who == "panel")
    measure(panels(), wish);
  else if (who == "grid")
    measure(widgetGrids(), wish);
  else if (who == "table")
    measure(tableViews(), wish);
  else
    fail("the contender is one of headless, panel, grid, table");
  return 0;
}
