#pragma once

#include <QString>
#include <QStringList>

namespace vemo::detail {

// A statement as the store writes it for SQLite, as the server reads it: names in lower case (the
// server's schema is made in lower case, so that names compare without regard to case, umlauts
// included), ?N placeholders as $N, and no collation of comparisons, since every text column
// carries the server's case-blind collation itself. Text in single quotes stays as it is.
QString fürPostgres(const QString& sql);

// A script of the SQLite schema and host data as the server's statements: the types SQLite takes
// as the server's, every text column with the case-blind collation, a rowid column in every table
// (the row identity the record set finds, re-reads, locks and deletes rows by, as SQLite's own),
// triggers as trigger functions, and INSERT OR IGNORE as ON CONFLICT DO NOTHING.
QStringList skriptFürPostgres(const QString& skript);

// The collation and the functions of the host's dialect that the server lacks: VbText for &,
// Val, Mid, Len, UCase, LCase; and vemo_folgen_nachziehen, which sets the counter of every
// identity column past the highest key its table holds, as after rows written with their keys.
QString postgresGrundlagen();

} // namespace vemo::detail
