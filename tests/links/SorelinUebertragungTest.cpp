#include "support/Dateien.h"
#include "support/Leitung.h"
#include "support/SorelinBild.h"
#include "support/Testumgebung.h"

#include "PortLeitung.h"
#include "SorelinGeraet.h"
#include "ansichten/Ansichten.h"
#include "core/Arbeitsdateien.h"
#include "links/SorelinUebertragung.h"
#include "platform/QtUi.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

namespace vemo::test {
namespace {

const QByteArray AlteDatei = "das Bild von gestern";

class SorelinUebertragungTest : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        modul().CommPort = 1;
        schreiben(pfad("RS232.SEP"), AlteDatei);
    }
    QByteArray datei() const { return inhalt(arbeitsdatei(datei::Rs232Sep)); }
    // Calls the action once the dialog is shown.
    void imDialog(std::function<void(frmSorelin&)> aktion) {
        m_ui.beiDialog = [this, aktion](DialogController& d) {
            auto* form = qobject_cast<frmSorelin*>(&d);
            ASSERT_NE(form, nullptr);
            aktion(*form);
            bewachen(*form);
        };
    }
    // The dialog as the driver shows it, with the port's settling shortened.
    void übertragen() {
        modul().Abbruchmerker = 0;
        frmSorelin form;
        form.setEinschwingzeit(10);
        form.zeigen();
        EXPECT_FALSE(form.istOffen());
        m_puffer = form.empfangspuffer();
    }

    QByteArray m_puffer;
};

TEST_F(SorelinUebertragungTest, AllesAbDemErstenByteKommtErstNachDerEndmarkeInDieDatei) {
    // Bytes before the mark, the mark split over two reads, a start block of length 0 and two
    // blocks of kind 10 before the data block.
    auto instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    const QByteArray daten = QByteArray::fromHex("8180F5820023");
    const QByteArray rest =
        QByteArray::fromHex("D5D5 00 0A0111 0A00") + SorelinBild(daten).datenblock() + sorelin::Endmarke;
    QByteArray dateiUnterwegs;
    imDialog([&](frmSorelin& form) {
        QObject::connect(&form, &frmSorelin::aktualisiert, &form, [&] {
            if (dateiUnterwegs.isEmpty() && !form.prozentText().isEmpty())
                dateiUnterwegs = datei();
        });
        sobaldBereit(form, [&] {
            nacheinanderSenden(*instrument, {"\x01\x02\xFF\xD5", rest.left(8), rest.mid(8, 5), rest.mid(13)},
                               30);
        });
    });

    übertragen();

    const QByteArray alles = "\x01\x02\xFF\xD5" + rest;
    EXPECT_EQ(datei(), alles);
    EXPECT_EQ(m_puffer, alles);
    EXPECT_EQ(dateiUnterwegs, AlteDatei) << "the old file stays until the end mark";
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
}

TEST_F(SorelinUebertragungTest, EineUnbekannteBlockartOderEinFruehesAbbrechenEndetOhneZuSpeichern) {
    auto instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    imDialog([&](frmSorelin& form) {
        sobaldBereit(form,
                     [&] { instrument->Output(sorelin::Startmarke + QByteArray::fromHex("00 0A00 07 1E")); });
    });

    übertragen();

    EXPECT_EQ(m_ui.texte(), QStringList{"Blockkennung nicht bekannt"});
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(datei(), AlteDatei);

    // Aborted before the transfer begins: nothing is waited for and nothing told.
    m_ui.meldungen.clear();
    imDialog([](frmSorelin& form) { form.abbrechen(); });
    übertragen();
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(datei(), AlteDatei);
}

TEST_F(SorelinUebertragungTest, PortfehlerWerdenGemeldetUndBrechenAb) {
    modul().portPfad = pfad("kein-port");
    übertragen();
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("8002 ")) << m_ui.meldungen[0].text.toStdString();
    EXPECT_EQ(modul().Abbruchmerker, 1);

    // A port already open is told by its text alone.
    m_ui.meldungen.clear();
    modul().portPfad.clear();
    auto instrument = speicherleitungEinstecken();
    modul().commPortFabrik = [fabrik = modul().commPortFabrik] {
        auto p = fabrik();
        p->setPortOpen(true);
        return p;
    };
    übertragen();
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith(fehler::mit(fehler::PortBereitsGeöffnet).beschreibung()))
        << m_ui.meldungen[0].text.toStdString();

    // A data block longer than 32767 bytes overflows the length's 16-bit arithmetic.
    m_ui.meldungen.clear();
    instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    imDialog([&](frmSorelin& form) {
        sobaldBereit(
            form, [&] { instrument->Output(sorelin::Startmarke + QByteArray::fromHex("00 1E0000 8001")); });
    });
    übertragen();
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_TRUE(m_ui.meldungen[0].text.startsWith("6 ")) << m_ui.meldungen[0].text.toStdString();
    EXPECT_EQ(datei(), AlteDatei);
}

TEST_F(SorelinUebertragungTest, FensterSchliessenBrichtAb) {
    QtUi qtUi(ansichten());
    modul().ui = &qtUi;
    auto instrument = speicherleitungEinstecken(0);
    instrument->setPortOpen(true);
    frmSorelin form;
    form.setEinschwingzeit(10);
    QPointer<QDialog> fenster;
    bool gefunden = false;
    sobaldBereit(form, [&] {
        instrument->Output(SorelinBild(QByteArray(300, '\x11')).bytes().left(150));
        QTimer::singleShot(200, &form, [&] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->objectName() == "frmSorelin")
                    fenster = qobject_cast<QDialog*>(w);
            if (!fenster)
                return form.abbrechen();
            gefunden = true;
            EXPECT_EQ(fenster->windowTitle(), "vemotrix professional - Serielle Datenübertragung");
            fenster->close();
        });
    });

    form.zeigen();
    modul().ui = &m_ui;

    EXPECT_TRUE(gefunden) << "the view is found by the controller's class";
    EXPECT_EQ(modul().Abbruchmerker, 1) << "closing the window aborts";
    EXPECT_EQ(datei(), AlteDatei);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(fenster.isNull());
}

} // namespace
} // namespace vemo::test
