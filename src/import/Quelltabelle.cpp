#include "import/Quelltabelle.h"

#include "import/JetQuelle.h"
#include "import/SqliteQuelle.h"
#include "platform/Fehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vemo {

QVariant Quellzeile::feld(const QString& spalte) const {
    const auto it = m_felder.constFind(spalte.toLower());
    if (it == m_felder.cend())
        throw fehler::mit(fehler::ElementNichtGefunden, spalte);
    return *it;
}

QString Quellzeile::text(const QString& spalte) const {
    const QVariant wert = feld(spalte);
    return wert.isNull() ? QString() : wert.toString();
}

Fehler quellfehler::tabelleFehlt(const QString& tabelle) {
    return Fehler(TabelleNichtGefunden,
                  "Die Eingabetabelle oder -abfrage '" + tabelle + "' wurde nicht gefunden.");
}

namespace {

// The first bytes of every SQLite database file.
const QByteArray SqliteKennung("SQLite format 3\0", 16);

void erreichbarPrüfen(const QString& pfad) {
    const QFileInfo info(pfad);
    if (pfad.trimmed().isEmpty() || info.fileName().trimmed().isEmpty())
        throw Fehler(quellfehler::KeinGültigerName, "'" + pfad + "' ist kein zulässiger Dateiname.");
    if (!info.absoluteDir().exists())
        throw Fehler(quellfehler::KeinGültigerPfad,
                     "'" + QDir::toNativeSeparators(info.absolutePath()) + "' ist kein zulässiger Pfad.");
    if (!info.exists() || info.isDir())
        throw Fehler(quellfehler::DatenbankNichtGefunden, "Datei '" + pfad + "' nicht gefunden.");
    if (!info.isReadable())
        throw Fehler(quellfehler::DatenträgerFehler, "Datenträger- oder Netzwerkfehler (" + pfad + ").");
}

QByteArray dateianfang(const QString& pfad) {
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        throw Fehler(quellfehler::DatenträgerFehler, "Datenträger- oder Netzwerkfehler (" + pfad + ").");
    return datei.read(SqliteKennung.size());
}

} // namespace

std::unique_ptr<Quelltabelle> quelltabelleÖffnen(const QString& pfad, const QString& tabelle) {
    erreichbarPrüfen(pfad);
    if (dateianfang(pfad) == SqliteKennung)
        return std::make_unique<SqliteQuelle>(pfad, tabelle);
    return std::make_unique<JetQuelle>(pfad, tabelle);
}

} // namespace vemo
