#pragma once

#include <QString>

namespace vemo {

// A text from outside (a dump, a file, a source database, the user) as a literal of the host's
// dialect: in apostrophes, each apostrophe in it doubled, so that whatever it holds stays a value
// and never becomes part of the statement. The translation binds such a literal where a condition
// compares with it, so quoting costs no prepared statement of its own.
QString literal(const QString& text);

} // namespace vemo
