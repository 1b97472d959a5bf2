// The translation of the host's SQL dialect. What it gives is prepared, never run, on a read-only
// connection to the database of schema and host data, so that SQLite reads every translation the
// store would hand it; that a statement does not prepare is no finding, only a crash or a sanitizer
// report is.
#include "Fuzzumgebung.h"

#include "store/Dialekt.h"

#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

namespace {

sqlite3* leseverbindung(const QString& pfad) {
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(pfad.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "fuzz: the database does not open\n");
        std::abort();
    }
    return db;
}

// The literals the translation took out are bound by their order: a statement that prepares has no
// placeholder beyond their count. (It may have fewer: SQLite prepares up to a ";", and the literals
// of what follows are not its own.)
void vorbereiten(sqlite3* db, const QString& sql, const vemo::Übersetzung& ü) {
    sqlite3_stmt* anweisung = nullptr;
    const QByteArray text = sql.toUtf8();
    sqlite3_prepare_v2(db, text.constData(), int(text.size()), &anweisung, nullptr);
    if (anweisung && !ü.werte.isEmpty() && sqlite3_bind_parameter_count(anweisung) > ü.werte.size()) {
        std::fprintf(stderr, "fuzz: %d placeholders for %d values in %s\n",
                     sqlite3_bind_parameter_count(anweisung), int(ü.werte.size()), text.constData());
        std::abort();
    }
    sqlite3_finalize(anweisung);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* daten, size_t größe) {
    auto& umgebung = vemo::fuzz::Fuzzumgebung::instanz();
    static sqlite3* const db = (umgebung.frischerLauf(), leseverbindung(umgebung.datenbankPfad()));
    const QString anweisung = QString::fromUtf8(reinterpret_cast<const char*>(daten), qsizetype(größe));
    const vemo::Übersetzung ü = vemo::übersetzen(anweisung);
    vorbereiten(db, ü.sql, ü);
    if (ü.einfacheAuswahl)
        vorbereiten(db, ü.sqlMitRowid, ü);
    return 0;
}
