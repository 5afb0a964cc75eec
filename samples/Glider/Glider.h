#pragma once

// A glider in still air.
class Glider {
 public:
  Glider(double span, double mass) : span_(span), mass_(mass) {}
  double WingLoading() const;
  double BestGlide() const;

 private:
  double span_;  // m
  double mass_;  // kg
};
