#pragma once

#include "platform/Fehler.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <memory>
#include <optional>

namespace vemo {

// One row of the older database's table: its fields by column name, found without regard to case
// as the old database found them. A column the table lacks raises 3265, as the old engine did: a
// database older than the mapping ends the run instead of bringing nameless rows.
class Quellzeile {
public:
    void setzen(const QString& spalte, const QVariant& wert) { m_felder.insert(spalte.toLower(), wert); }
    QVariant feld(const QString& spalte) const;
    // The field appended to an empty text: Null reads as "".
    QString text(const QString& spalte) const;

private:
    QHash<QString, QVariant> m_felder;
};

// A table of an older database, read row by row from the first. Everything the import reads from
// the source passes through here, so the file format of the source stays behind this one class.
class Quelltabelle {
public:
    virtual ~Quelltabelle() = default;
    virtual long anzahl() const = 0;
    virtual QStringList spalten() const = 0;
    // The next row; nothing after the last.
    virtual std::optional<Quellzeile> nächsteZeile() = 0;
};

// The store's failures for a source that cannot be reached, as the import run reports them.
namespace quellfehler {
constexpr int DatenbankNichtGefunden = 3024;
constexpr int DatenträgerFehler = 3043;
constexpr int KeinGültigerPfad = 3044;
constexpr int KeinGültigerName = 3055;
constexpr int TabelleNichtGefunden = 3078;
constexpr int UnbekanntesFormat = 3343;
Fehler tabelleFehlt(const QString& tabelle);
} // namespace quellfehler

// Opens the table of the database at pfad: a file in the old desktop format (Jet) or one in our
// own SQLite format, told apart by the file's first bytes. Raises 3055 for a path that names no
// file, 3044 for a folder that does not exist, 3024 for a missing file, 3343 for a file of
// neither format and 3078 when the table is missing.
std::unique_ptr<Quelltabelle> quelltabelleÖffnen(const QString& pfad, const QString& tabelle);

} // namespace vemo
