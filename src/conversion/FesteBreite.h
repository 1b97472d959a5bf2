#pragma once

#include <QString>

namespace vemo {

// A column of the printed form: the text with blanks behind it up to the length. A text ending in
// "!" loses that mark first. The form's ruler is 15 blanks long: a longer text, or a longer column,
// is told to the user, and the text goes on with as many blanks as the ruler has.
QString FesteBreite(const QString& text, int länge);

} // namespace vemo
