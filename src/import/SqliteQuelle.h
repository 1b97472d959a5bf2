#pragma once

#include "import/Quelltabelle.h"

#include <QStringList>

struct sqlite3;
struct sqlite3_stmt;

namespace vemo {

// A source in our own format: the table of an SQLite file, opened read-only so that the import
// never changes the file it reads.
class SqliteQuelle : public Quelltabelle {
public:
    SqliteQuelle(const QString& pfad, const QString& tabelle);
    ~SqliteQuelle() override;
    SqliteQuelle(const SqliteQuelle&) = delete;
    SqliteQuelle& operator=(const SqliteQuelle&) = delete;

    long anzahl() const override { return m_anzahl; }
    QStringList spalten() const override { return m_spalten; }
    std::optional<Quellzeile> nächsteZeile() override;

private:
    sqlite3_stmt* vorbereiten(const QString& anweisung);
    [[noreturn]] void scheitern(int nummer, const QString& text);

    sqlite3* m_db = nullptr;
    sqlite3_stmt* m_zeilen = nullptr;
    QStringList m_spalten;
    long m_anzahl = 0;
};

} // namespace vemo
