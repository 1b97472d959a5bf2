// A database file the component cannot work on: missing, not a database, or write-protected. One
// clear message, and no crash, neither in the host's component nor on the command line.
#include "host/Modul15a.h"
#include "store/Schema.h"
#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include <QFile>
#include <QProcess>
#include <unistd.h>

using namespace vemo;

namespace {

constexpr uid_t Niemand = 65534;

// Root writes to any file whatever its mode: for a write-protected file to be one, the test gives
// up that right while it lasts.
class OhneRootRechte {
public:
    OhneRootRechte() : m_war(::geteuid() == 0) {
        if (m_war && ::setegid(Niemand) == 0 && ::seteuid(Niemand) != 0)
            ::setegid(0);
    }
    ~OhneRootRechte() {
        if (m_war && ::seteuid(0) == 0)
            ::setegid(0);
    }
    OhneRootRechte(const OhneRootRechte&) = delete;
    OhneRootRechte& operator=(const OhneRootRechte&) = delete;

private:
    bool m_war;
};

class DatenbankdateiTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        // Others may create the database's side files beside it, but not write the file itself.
        QFile::setPermissions(m_dir.path(), QFileDevice::Permissions(0x7777));
        datei("kein-sqlite.db", "Dies ist eine Notiz, keine Datenbank.\r\n");
        datei("leer.db", "");
        for (const char* name : {"kein-sqlite.db", "leer.db"})
            QFile::setPermissions(pfad(name), QFileDevice::Permissions(0x6666));
        datenbankAnlegen(pfad("schreibgeschuetzt.db"), false);
        QFile::setPermissions(pfad("schreibgeschuetzt.db"),
                              QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    }
    void datei(const QString& name, const QByteArray& bytes) const { test::schreiben(pfad(name), bytes); }

    struct Fall {
        const char* datei;
        const char* nummer; // of the message
    };
    static constexpr Fall Fälle[] = {
        {"fehlt.db", "3024"},
        {"kein-sqlite.db", "3343"},
        {"leer.db", "3343"}, // SQLite would take it for an empty database and make it one
        {"schreibgeschuetzt.db", "3027"},
    };
};

TEST_F(DatenbankdateiTest, DieKomponenteZeigtEineMeldungUndBleibtOhneDatenbank) {
    const OhneRootRechte ohneRoot;
    for (const Fall& f : Fälle) {
        SCOPED_TRACE(f.datei);
        m_ui.meldungen.clear();
        vemo0100Modul15a komponente(m_ui, m_settings);
        komponente.setBackupVerzeichnis(m_dir.path());
        komponente.setVemotrixDBName(pfad(f.datei));
        ASSERT_EQ(m_ui.meldungen.size(), 1) << m_ui.texte().join(" | ").toStdString();
        EXPECT_TRUE(m_ui.meldungen[0].text.startsWith(QString(f.nummer) + " "))
            << m_ui.meldungen[0].text.toStdString();
        EXPECT_FALSE(komponente.vemotrixDB().istOffen());

        // Each command without a database tells so by its trap, once.
        m_ui.meldungen.clear();
        komponente.EinlesenAusDateiName(test::quelle("samples/corvex-verteilung.ser"));
        komponente.EinleseDaten();
        EXPECT_EQ(m_ui.texte(), QStringList(2, "91 Objektvariable oder With-Blockvariable nicht festgelegt"));
    }
    EXPECT_EQ(QFile(pfad("kein-sqlite.db")).size(), 39) << "a file that is not a database stays as it was";
    EXPECT_EQ(QFile(pfad("leer.db")).size(), 0);
}

TEST_F(DatenbankdateiTest, DieKommandozeileEndetMitEinerZeile) {
    for (const Fall& f : Fälle) {
        SCOPED_TRACE(f.datei);
        QProcess p;
        p.setChildProcessModifier([] {
            if (::getuid() == 0 && ::setgid(Niemand) == 0) [[maybe_unused]]
                const int rc = ::setuid(Niemand);
        });
        p.start(QString(VEMO_BIN_DIR) + "/vemo0100",
                {"--db", pfad(f.datei), "--settings", pfad("einstellungen.ini"), "grid"});
        ASSERT_TRUE(p.waitForFinished(20000));
        EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(p.exitCode(), 1);
        const QStringList zeilen =
            QString::fromLocal8Bit(p.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
        ASSERT_EQ(zeilen.size(), 1) << zeilen.join('\n').toStdString();
        EXPECT_TRUE(zeilen[0].contains(": " + QString(f.nummer) + " ")) << zeilen[0].toStdString();
    }
}

} // namespace
