#include "panels/contenders.h"
#include "panels/workloads.h"

// fltk_bench ROWS [WORKLOADS [SAMPLES [SECONDS]]]
int main(int argc, char** argv) {
  using namespace qrn::bench;
  measure(fltkForms(), wishOf(argc, argv, 1));
  return 0;
}
