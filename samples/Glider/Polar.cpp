#include "Polar.h"

#include <cmath>

double LiftToDrag(double wingLoading) { return 6.5 * std::sqrt(wingLoading); }
