#pragma once

#include <QStringList>

namespace vemo::test {

// Texts a dump, a file or a source database may hold that read as pieces of a statement or of a
// pattern: each must arrive, and be found, as the text it is.
inline const QStringList Fremdtexte{"1' OR 1=1--", "O'Neill-42", "x\"; DROP TABLE Kunde;--", "]", "[", "&",
                                    "%",           "*"};

} // namespace vemo::test
