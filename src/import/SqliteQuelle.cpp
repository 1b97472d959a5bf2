#include "import/SqliteQuelle.h"

#include "platform/Fehler.h"

#include <sqlite3.h>

namespace vemo {

namespace {

QVariant spaltenwert(sqlite3_stmt* st, int i) {
    switch (sqlite3_column_type(st, i)) {
    case SQLITE_INTEGER:
        return QVariant(qint64(sqlite3_column_int64(st, i)));
    case SQLITE_FLOAT:
        return QVariant(sqlite3_column_double(st, i));
    case SQLITE_TEXT:
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, i)),
                                 sqlite3_column_bytes(st, i));
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char*>(sqlite3_column_blob(st, i)), sqlite3_column_bytes(st, i));
    default:
        return QVariant::fromValue(nullptr);
    }
}

QString bezeichner(const QString& name) {
    return "\"" + QString(name).replace("\"", "\"\"") + "\"";
}

} // namespace

SqliteQuelle::SqliteQuelle(const QString& pfad, const QString& tabelle) {
    if (sqlite3_open_v2(pfad.toUtf8().constData(), &m_db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        scheitern(quellfehler::UnbekanntesFormat, "Unbekanntes Datenbankformat '" + pfad + "'.");
    sqlite3_busy_timeout(m_db, 5000);
    sqlite3_stmt* name = vorbereiten("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND "
                                     "name = " +
                                     QString("'%1' COLLATE NOCASE").arg(QString(tabelle).replace("'", "''")));
    const bool vorhanden = sqlite3_step(name) == SQLITE_ROW;
    sqlite3_finalize(name);
    if (!vorhanden)
        scheitern(quellfehler::TabelleNichtGefunden,
                  quellfehler::tabelleFehlt(tabelle).deutscheBeschreibung());
    sqlite3_stmt* zählung = vorbereiten("SELECT Count(*) FROM " + bezeichner(tabelle));
    if (sqlite3_step(zählung) == SQLITE_ROW)
        m_anzahl = long(sqlite3_column_int64(zählung, 0));
    sqlite3_finalize(zählung);
    m_zeilen = vorbereiten("SELECT * FROM " + bezeichner(tabelle));
    for (int i = 0; i < sqlite3_column_count(m_zeilen); ++i)
        m_spalten << QString::fromUtf8(sqlite3_column_name(m_zeilen, i));
}

SqliteQuelle::~SqliteQuelle() {
    sqlite3_finalize(m_zeilen);
    sqlite3_close(m_db);
}

sqlite3_stmt* SqliteQuelle::vorbereiten(const QString& anweisung) {
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(m_db, anweisung.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
        scheitern(quellfehler::UnbekanntesFormat,
                  "Unbekanntes Datenbankformat (" + QString::fromUtf8(sqlite3_errmsg(m_db)) + ").");
    return st;
}

void SqliteQuelle::scheitern(int nummer, const QString& text) {
    // The constructor may fail half way; the destructor does not run then.
    sqlite3_finalize(m_zeilen);
    sqlite3_close(m_db);
    m_zeilen = nullptr;
    m_db = nullptr;
    throw Fehler(nummer, text);
}

std::optional<Quellzeile> SqliteQuelle::nächsteZeile() {
    const int schritt = sqlite3_step(m_zeilen);
    if (schritt == SQLITE_DONE)
        return std::nullopt;
    if (schritt != SQLITE_ROW)
        throw Fehler(quellfehler::DatenträgerFehler,
                     "Datenträger- oder Netzwerkfehler (" + QString::fromUtf8(sqlite3_errmsg(m_db)) + ").");
    Quellzeile zeile;
    for (int i = 0; i < m_spalten.size(); ++i)
        zeile.setzen(m_spalten[i], spaltenwert(m_zeilen, i));
    return zeile;
}

} // namespace vemo
