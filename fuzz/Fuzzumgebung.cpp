#include "Fuzzumgebung.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "platform/Dialog.h"
#include "platform/Zahlformat.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <cstdio>
#include <cstdlib>

namespace vemo::fuzz {
namespace {

QByteArray dateiInhalt(const QString& pfad) {
    QFile f(pfad);
    if (!f.open(QIODevice::ReadOnly))
        qFatal("fuzz: %s cannot be read", qPrintable(pfad));
    return f.readAll();
}

void dateiSchreiben(const QString& pfad, const QByteArray& inhalt) {
    QFile f(pfad);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(inhalt) != inhalt.size())
        qFatal("fuzz: %s cannot be written", qPrintable(pfad));
}

// The event loop and the application paths some routines ask for.
void anwendungStarten() {
    static int argc = 1;
    static char name[] = "vemo0100-fuzz";
    static char* argv[] = {name, nullptr};
    static QCoreApplication anwendung(argc, argv);
}

} // namespace

Fuzzumgebung& Fuzzumgebung::instanz() {
    static Fuzzumgebung umgebung;
    return umgebung;
}

Fuzzumgebung::Fuzzumgebung() {
    anwendungStarten();
    if (!m_dir.isValid())
        qFatal("fuzz: no temporary folder");
    datenbankAnlegen(datenbankPfad(), false);
    for (const QString& name : QDir(m_dir.path()).entryList(QDir::Files))
        m_urzustand.insert(name, dateiInhalt(pfad(name)));
    QDir().mkpath(pfad("backup"));
}

void Fuzzumgebung::frischerLauf() {
    // As the host's change of database does: the allocator lets go of the old one's counter.
    NeueID("", "");
    modul().db.Close();
    modulNeuLaden();
    // The instruments' home market writes a decimal comma; the dumps carry either mark.
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    ordnerLeeren();
    for (auto it = m_urzustand.cbegin(); it != m_urzustand.cend(); ++it)
        dateiSchreiben(pfad(it.key()), it.value());
    settings.werte.clear();
    ui.meldungen.clear();
    ui.dialoge.clear();
    ui.dateiDialoge.clear();
    // Nobody sits at the fuzzer: a dialog an input opens (the data pool of a logger dump, say) is
    // closed as soon as it shows, as a user who cancels it would.
    ui.beiDialog = [](DialogController& d) { d.schließen(); };
    ModulState& m = modul();
    m.ui = &ui;
    m.settings = &settings;
    m.db = Datenbank::OpenDatabase(datenbankPfad());
    m.datenbankName = datenbankPfad();
    m.Datenbankverzeichnis = QDir::toNativeSeparators(m_dir.path());
    m.BackupVerzeichnis = pfad("backup");
}

void Fuzzumgebung::ordnerLeeren() const {
    for (const QString& name : QDir(m_dir.path()).entryList(QDir::Files))
        QFile::remove(pfad(name));
    QDir backup(pfad("backup"));
    for (const QString& name : backup.entryList(QDir::Files))
        backup.remove(name);
}

QString Fuzzumgebung::dateiAblegen(const QString& name, const uint8_t* daten, std::size_t größe) const {
    const QString ziel = pfad(name);
    dateiSchreiben(ziel, QByteArray(reinterpret_cast<const char*>(daten), qsizetype(größe)));
    return ziel;
}

void Fuzzumgebung::keinInternerFehler() const {
    for (const auto& meldung : ui.meldungen) {
        if (meldung.text.startsWith("51 ")) {
            std::fprintf(stderr, "fuzz: the trap caught an internal error: %s\n", qPrintable(meldung.text));
            std::abort();
        }
    }
}

} // namespace vemo::fuzz
