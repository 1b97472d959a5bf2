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

TEST_F(DumpEmpfangTest, LeerzeilenMitDatenDazwischenOderInEinemStueckBeendenNicht) {
    auto instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    // Two empty lines, data, two more, then two in one read where the third would be due, then three
    // lines of blanks, each in two reads as the lines inside a dump come at the instrument's pace.
    const QList<QByteArray> stücke{"A\r\n", CRLF, CRLF, "B\r\n", CRLF, CRLF,    "\r\n\r\n", "  ",
                                   CRLF,    "  ", CRLF, "  ",    CRLF, "C\r\n", "halbe Zei"};
    QByteArray textZuletzt;
    bool liefNoch = false;
    beimDialog(10, [&](Form2& form) {
        nacheinanderSenden(*instrument, stücke, 20);
        QTimer::singleShot(20 * int(stücke.size()) + 200, &form, [&] {
            liefNoch = modul().Empfangsende == 0 && form.istOffen();
            textZuletzt = form.text().toLatin1();
            form.enterGedrückt();
        });
    });

    EXPECT_EQ(dumpEmpfangen(), EmpfangsErgebnis::Weiter);
    EXPECT_TRUE(liefNoch);
    // Enter is a success; the half line without its end reaches neither file nor text box.
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_EQ(ruvo(), "A\r\n\r\n\r\nB\r\n\r\n\r\n\r\n\r\n  \r\n  \r\n  \r\nC\r\n");
    EXPECT_TRUE(textZuletzt.endsWith("  \r\nC\r\n"));
}

TEST_F(DumpEmpfangTest, VorDemErstenByteGehtEsStillUndMitLeererDatei) {
    schreiben(pfad("RUVO.SER"), "der Dump von gestern\r\n");
    auto instrument = speicherleitungEinstecken();
    instrument->setPortOpen(true);
    beimDialog(50, [](Form2& form) { form.abbrechen(); });

    EXPECT_EQ(dumpEmpfangen(), EmpfangsErgebnis::StillVerlassen);
    EXPECT_EQ(ruvo(), QByteArray());
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(modul().Empfangsende, 0);
    EXPECT_TRUE(m_form.isNull());
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

TEST_F(DumpEmpfangTest, OhneHandshakeNurFuerDasVaritron) {
    for (const auto& [selektor, erwartet] :
         {std::pair{QString("Multitester = Deutsch"), Handshake::XonXoff},
          std::pair{QString("Multitester = 0100-Varitron"), Handshake::Keins}}) {
        SCOPED_TRACE(selektor.toStdString());
        modul().Selektor() = selektor;
        auto instrument = speicherleitungEinstecken();
        const CommPort* port = nullptr;
        modul().commPortFabrik = [&port, fabrik = modul().commPortFabrik] {
            auto p = fabrik();
            port = p.get();
            return p;
        };
        Handshake gesehen = Handshake::RtsCts;
        QString settings;
        beimDialog(10, [&](Form2& form) {
            gesehen = port->Handshaking();
            settings = port->Settings();
            form.abbrechen();
        });
        dumpEmpfangen();
        EXPECT_EQ(gesehen, erwartet);
        EXPECT_EQ(settings, "2400,N,8,1");
    }
}

} // namespace
} // namespace vemo::test
