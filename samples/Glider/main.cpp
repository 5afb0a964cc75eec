#include <cstdio>

#include "Glider.h"

int main() {
  const Glider glider(15.0, 320.0);
  std::printf("wing loading %.1f kg/m2, best glide 1:%.0f\n", glider.WingLoading(), glider.BestGlide());
}
