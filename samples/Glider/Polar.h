#pragma once

constexpr double kAspectRatio = 21.0;

// The best ratio of lift to drag for a wing loading in kg/m2.
double LiftToDrag(double wingLoading);
