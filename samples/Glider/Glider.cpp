#include "Glider.h"

#include "Polar.h"

double Glider::WingLoading() const { return mass_ / (span_ * span_ / kAspectRatio); }

double Glider::BestGlide() const { return LiftToDrag(WingLoading()); }
