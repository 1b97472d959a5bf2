#include "support/Dateien.h"
#include "support/Leitung.h"
#include "support/Testumgebung.h"

#include "CorvexSpeicher.h"
#include "core/Arbeitsdateien.h"
#include "links/DumpEmpfang.h"
#include "links/Form2.h"

#include <QPointer>
#include <QTimer>

namespace vemo::test {
namespace {

const QByteArray CRLF = "\r\n";

class DumpEmpfangTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().CommPort = 1;
    }
    QByteArray ruvo() const { return inhalt(arbeitsdatei(datei::Ruvo)); }
    // Calls the action once the wait dialog is shown, after the given milliseconds.
    void beimDialog(int ms, std::function<void(Form2&)> aktion) {
        m_ui.beiDialog = [this, ms, aktion](DialogController& d) {
            m_form = qobject_cast<Form2*>(&d);
            ASSERT_NE(m_form, nullptr);
            QTimer::singleShot(ms, m_form, [this, aktion] { aktion(*m_form); });
            bewachen(*m_form);
        };
    }

    QPointer<Form2> m_form;
};

// A memory printed at the instrument's own pace, whose last line end the pieces on the line used to
// part between CR and LF, ends the reception by itself with its closing empty lines. Umlauts and
// signs of the Western code page, and a line of blanks, travel as they are.
TEST_F(DumpEmpfangTest, EinDumpKommtUnverfaelschtUndEndetVonSelbst) {
    const QByteArray speicher =
        sim::corvexSpeicher(5) +
        "S: 001    P: 003\r\n   \r\n Zs = 0,35 \xb5\x4f\x68m \xe4\xf6\xfc\xdf \xb0\x43\r\n";
    schreiben(pfad("speicher.txt"), speicher);
    schreiben(pfad("RUVO.SER"), "ein alter Dump, der ersetzt wird\r\n");
    Simulator sim({"--type", "100", "--memory", pfad("speicher.txt"), "--link", pfad("port")});
    ASSERT_FALSE(sim.gerät().isEmpty());
    modul().portPfad = pfad("port");
    beimDialog(100, [&sim](Form2&) { sim.tasteDrücken(); });

    EXPECT_EQ(dumpEmpfangen(), EmpfangsErgebnis::Weiter);
    EXPECT_EQ(ruvo(), speicher + CRLF + CRLF + CRLF);
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(m_ui.dialoge, QStringList{"vemo::Form2"});
    EXPECT_TRUE(m_form.isNull()) << "the wait dialog is unloaded";
}

TEST_F(DumpEmpfangTest, DreiLeerzeilenInEigenenLesevorgaengenBeenden) {
    auto instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    bool leitungenGesetzt = false;
    beimDialog(10, [&](Form2&) {
        // RTS on, DTR off, as the instrument sees them on its CTS and DSR.
        leitungenGesetzt = instrument->CTSHolding() && !instrument->DSRHolding();
        nacheinanderSenden(*instrument, {"Zeile 1\r\n", CRLF, "  \r\n", CRLF, "danach nichts mehr\r\n"}, 30);
    });

    EXPECT_EQ(dumpEmpfangen(), EmpfangsErgebnis::Weiter);
    EXPECT_TRUE(leitungenGesetzt);
    EXPECT_EQ(ruvo(), "Zeile 1\r\n\r\n  \r\n\r\n") << "a line of blanks counts as empty";
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_EQ(modul().Empfangsende, 1);
    EXPECT_FALSE(instrument->CTSHolding()) << "the port is closed";
}

TEST_F(DumpEmpfangTest, EinFehlenderPortGehtAnDieFalleUndLaesstDenAltenDump) {
    schreiben(pfad("RUVO.SER"), "der Dump von gestern\r\n");

    modul().portPfad = pfad("kein-port");
    try {
        dumpEmpfangen();
        ADD_FAILURE() << "no error for a missing device";
    } catch (const Fehler& f) {
        EXPECT_EQ(f.nummer(), fehler::PortUngültig);
        EXPECT_TRUE(f.beschreibung().contains(pfad("kein-port")));
    }

    EXPECT_EQ(ruvo(), "der Dump von gestern\r\n");
    EXPECT_TRUE(m_ui.dialoge.isEmpty());
}

} // namespace
} // namespace vemo::test
