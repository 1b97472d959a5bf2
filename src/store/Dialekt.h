#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace vemo {

// A statement of the host's SQL dialect, translated for SQLite.
struct Übersetzung {
    QString sql;
    // Declared parameters of a saved query ("PARAMETERS paraKundeID Long; ..."), bound as ?1, ?2, ...
    QStringList parameter;
    // The literals a condition compares with, taken out of the statement and bound as ?1, ?2, ...
    // in their order; only in statements with no placeholders or parameters of their own.
    QVector<QVariant> werte;
    // A plain SELECT of one table, without grouping, DISTINCT, joins or unions: its rows can be
    // written back, and sqlMitRowid carries the row id of that table as the first column.
    bool einfacheAuswahl = false;
    QString sqlMitRowid;
};

// Translates the dialect the component's statements are written in: [bracketed] and digit-leading
// names, double-quoted strings, & concatenation (Null reads as empty text, numbers as the system
// writes them), DELETE * FROM, True and
// False, #date# literals, division as in floating point, a statement wrapped in parentheses with
// a ";" inside, and a PARAMETERS clause. Literals compared in a condition become bound values; a
// text compared with "=" or "<>" ignores case as the host's engine does (TextSortierfolge).
Übersetzung übersetzen(const QString& statement);

} // namespace vemo
