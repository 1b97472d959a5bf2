#include "ZemakUmgebung.h"
#include "support/Leitung.h"

#include "PortLeitung.h"
#include "ZemakGeraet.h"
#include "core/Geraetetypen.h"

#include <QTest>

namespace vemo::test {
namespace {

// The query dialog with an instrument on the in-memory line: what the pseudo-terminal cannot show.
class ZemakDialogTest : public ZemakUmgebung {
protected:
    // The instrument's end of the line; the component's end is kept in m_pc when it is made.
    std::unique_ptr<SpeicherCommPort> leitungEinstecken() {
        auto instrument = speicherleitungEinstecken();
        modul().commPortFabrik = [this, fabrik = modul().commPortFabrik] {
            auto p = fabrik();
            m_pc = static_cast<SpeicherCommPort*>(p.get());
            return p;
        };
        return instrument;
    }
    static const Zemakvariante& variante(const QString& selektor) { return *zemakVariante(selektor); }
    // As übertragen, noting whether the port was still open when the dialog closed.
    void übertragenMitPort(const QString& selektor, const std::function<void(frmZEMAK&)>& aktion = {}) {
        m_offenBeimSchließen = true;
        übertragen(selektor, [this, aktion](frmZEMAK& form) {
            QObject::connect(&form, &DialogController::geschlossen, &form,
                             [this] { m_offenBeimSchließen = m_pc && m_pc->PortOpen(); });
            if (aktion)
                aktion(form);
        });
    }

    QPointer<SpeicherCommPort> m_pc;
    bool m_offenBeimSchließen = true;
};

TEST_F(ZemakDialogTest, EinFalscherZaehlerIstEinLaufzeitfehlerDerAbbricht) {
    const Zemakvariante& v = variante(selektor::Zemak3720);
    const sim::ZemakSpeicher drei = sim::ZemakSpeicher::erzeugen(v, 3);
    for (const auto& [kopf, meldung] :
         {std::pair<QByteArray, QString>{"QD 2,0001,", "380 Ungültiger Eigenschaftswert"},
          std::pair<QByteArray, QString>{"QD 2,00G3,", "13 Typen unverträglich"}}) {
        SCOPED_TRACE(kopf.toStdString());
        m_ui.meldungen.clear();
        modul().Abbruchmerker = 0;
        ruvoVorbelegen();
        sim::ZemakSpeicher speicher = drei;
        speicher.kopf = kopf;
        auto instrument = leitungEinstecken();
        sim::ZemakGerät gerät(speicher, {{0, 0}, {}});
        sim::PortLeitung leitung(*instrument, gerät);

        übertragenMitPort(selektor::Zemak3720);

        EXPECT_EQ(m_ui.texte(), QStringList{meldung});
        EXPECT_EQ(m_ui.meldungen.value(0).titel, "vemotrix professional");
        EXPECT_EQ(modul().Abbruchmerker, 1);
        EXPECT_EQ(ruvo(), AlteDatei);
        EXPECT_FALSE(m_offenBeimSchließen);
    }
}

// Lost data makes the dialog deaf until the user aborts (an overflowing buffer and a parity error
// are the same table's other lines); a framing error and the other events leave the transfer alone.
TEST_F(ZemakDialogTest, LeitungsfehlerMachenTaubBisZumAbbruch) {
    const Zemakvariante& v = variante(selektor::Zemak3710B);
    {
        ruvoVorbelegen();
        auto instrument = leitungEinstecken();
        sim::ZemakGerät gerät(sim::ZemakSpeicher::erzeugen(v, 20), {{9600, 0}, {}});
        sim::PortLeitung leitung(*instrument, gerät);
        QByteArray pufferDanach;
        bool nochOffen = false;

        übertragen(selektor::Zemak3710B, [&](frmZEMAK& form) {
            sobald(
                form, [&form] { return form.gerätGefunden(); },
                [&] {
                    m_pc->ereignisAuslösen(commEreignis::Überlauf);
                    QTimer::singleShot(100, &form, [&] { pufferDanach = form.empfangspuffer(); });
                    // Long enough for the next tick to set the clock and send the query.
                    QTimer::singleShot(2200, &form, [&] {
                        nochOffen = form.istOffen();
                        EXPECT_EQ(form.empfangspuffer(), pufferDanach) << "deaf: nothing more is taken";
                        EXPECT_FALSE(form.empfangAktiv());
                        form.abbrechen();
                    });
                });
        });

        EXPECT_TRUE(nochOffen) << "only the abort button ends the dialog";
        EXPECT_EQ(gerät.speicherabfragen(), 1) << "the timer ran on and sent the query";
        EXPECT_EQ(m_ui.texte(), QStringList{"Data transmission Error: Data lost"});
        EXPECT_EQ(m_ui.meldungen.value(0).titel, "vemotrix professional");
        EXPECT_EQ(modul().Abbruchmerker, 1);
        EXPECT_EQ(ruvo(), AlteDatei);
    }

    m_ui.meldungen.clear();
    modul().Abbruchmerker = 0;
    auto instrument = leitungEinstecken();
    sim::ZemakGerät gerät(sim::ZemakSpeicher::erzeugen(v, 2), {{9600, 0}, {}});
    sim::PortLeitung leitung(*instrument, gerät);
    übertragen(selektor::Zemak3710B, [&](frmZEMAK& form) {
        sobald(
            form, [&form] { return form.gerätGefunden(); },
            [&] {
                for (int e : {1, 3, 4, 5, 6, 7, 1001, 1004, 1010, 1011})
                    m_pc->ereignisAuslösen(e);
            });
    });
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_TRUE(ruvo().startsWith("ZEMAK 3710B,"));
}

// An end of the line that cannot be opened, with the error a device gives.
class VerweigernderPort : public SpeicherCommPort {
public:
    explicit VerweigernderPort(int nummer) : SpeicherCommPort(0), m_nummer(nummer) {}

protected:
    void öffnen() override { throw portfehler::mit(m_nummer, "/dev/ttyS0"); }

private:
    int m_nummer;
};

TEST_F(ZemakDialogTest, PortfehlerBeimOeffnen) {
    // A port that is missing or held elsewhere ends the dialog with the error's own text.
    for (const int nummer : {8002, 8005, 8006, 8010}) {
        SCOPED_TRACE(nummer);
        m_ui.meldungen.clear();
        modul().Abbruchmerker = 0;
        modul().commPortFabrik = [nummer] { return std::make_unique<VerweigernderPort>(nummer); };
        übertragen(selektor::Zemak);
        ASSERT_EQ(m_ui.meldungen.size(), 1);
        EXPECT_EQ(m_ui.meldungen[0].text, portfehler::mit(nummer, "/dev/ttyS0").beschreibung());
        EXPECT_EQ(modul().Abbruchmerker, 1);
    }

    // Any other error is shown with its number, and the dialog waits for the user.
    m_ui.meldungen.clear();
    modul().Abbruchmerker = 0;
    modul().commPortFabrik = [] { return std::make_unique<VerweigernderPort>(8015); };
    bool nochOffen = false;
    übertragen(selektor::Zemak, [&](frmZEMAK& form) {
        QTimer::singleShot(800, &form, [&] {
            nochOffen = form.istOffen();
            form.abbrechen();
        });
    });
    EXPECT_TRUE(nochOffen);
    EXPECT_EQ(m_ui.texte(), QStringList{portfehler::mit(8015, "/dev/ttyS0").meldung()});
    EXPECT_EQ(modul().Abbruchmerker, 1);
}

TEST_F(ZemakDialogTest, AbbruchMittenImUhrStellenEndetSofort) {
    // An instrument that answers "ID" and nothing else: the dialog waits for the clock's reply.
    const Zemakvariante& v = variante(selektor::Zemak3740);
    ruvoVorbelegen();
    auto instrument = leitungEinstecken();
    instrument->setRThreshold(1);
    instrument->setPortOpen(true);
    QByteArray gehört;
    QObject::connect(instrument.get(), &CommPort::comm, instrument.get(), [&](int) {
        const QByteArray neu = instrument->Input();
        gehört += neu;
        if (neu.contains("ID\r"))
            instrument->Output(sim::zemakKennung(v) + "\r");
    });

    übertragen(selektor::Zemak3740, [&](frmZEMAK& form) {
        sobald(
            form, [&] { return gehört.contains("XG\r"); }, [&form] { form.abbrechen(); });
    });
    QTest::qWait(100); // what was sent in the last moments arrives

    EXPECT_FALSE(gehört.contains("XS,") || gehört.contains("~QD 2.")) << "nothing is sent after the abort";
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(modul().Abbruchmerker, 1);
    EXPECT_EQ(ruvo(), AlteDatei);
}

} // namespace
} // namespace vemo::test
