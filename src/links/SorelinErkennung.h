#pragma once

#include <QString>

namespace vemo {

// Whether the file is a block dump of the Sorelin family: its start mark FF D5 D5 D5 stands in it.
bool CheckSorelinTyp(const QString& pfad);

} // namespace vemo
