#pragma once

#include <QColor>

// The contrast of two colours as readers of screens measure it: 1 (none) to 21 (black on white).
double kontrast(const QColor& a, const QColor& b);

// The text colour moved towards the background as far as text stays readable on it (a contrast of
// 4.5 at least): for values that stand second beside the main ones.
QColor gedämpft(const QColor& text, const QColor& grund);
