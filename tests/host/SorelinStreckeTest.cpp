#include "support/Dateien.h"
#include "support/Leitung.h"
#include "support/SorelinBild.h"
#include "support/Testumgebung.h"

#include "PortLeitung.h"
#include "SorelinGeraet.h"
#include "SorelinSpeicher.h"
#include "core/Arbeitsdateien.h"
#include "grid/EinleseDatenController.h"
#include "grid/GridBefehle.h"
#include "host/Modul15a.h"
#include "links/SorelinUebertragung.h"

#include <QDir>
#include <QMap>

using namespace vemo;

namespace {

// The Sorelin instruments from the send key to the inspection record, through the component as
// the host drives it.
class SorelinStreckeTest : public test::Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        neueDatenbank(true);
        QDir(m_dir.path()).mkpath("sicherung");
        m_komponente = std::make_unique<vemo0100Modul15a>(m_ui, m_settings);
        m_komponente->setVemotrixDBName(m_dbPfad);
        m_komponente->setBackupVerzeichnis(pfad("sicherung"));
        m_komponente->setCommPort(1);
        m_komponente->setPrüfgeräteTypID(102);
    }
    void TearDown() override {
        m_komponente.reset();
        Testumgebung::TearDown();
    }

    // Presses the instrument's key once the dialog shows.
    void tasteImDialog(const std::function<void()>& taste) {
        m_ui.beiDialog = [this, taste](DialogController& d) {
            QPointer<frmSorelin> form = qobject_cast<frmSorelin*>(&d);
            ASSERT_TRUE(form);
            form->setEinschwingzeit(10);
            test::sobaldBereit(*form, taste);
            bewachen(*form);
        };
    }
    // The values of the read-in row of a circuit, by function name.
    QMap<QString, QString> werteDesKreises(const QString& stromkreisNr) const {
        QMap<QString, QString> werte;
        for (const QString& z :
             zeilen("SELECT m.Funktion, m.wert FROM 0100_EinleseMessDaten m JOIN 0100_EinleseDaten "
                    "d ON d.MessungID = m.MessungID WHERE d.StromkreisNr = ?",
                    {stromkreisNr}))
            werte.insert(z.section('|', 0, 0), z.section('|', 1));
        return werte;
    }
    // Columns of the measurement row (m) and its limit row (g) of a circuit of the new inspection.
    QString kreis(const QString& stromkreis, const QString& auswahl) const {
        return zeile("SELECT " + auswahl +
                         " FROM 0100_Messung m LEFT JOIN 0100_Grenzwert g ON g.MessID = m.MessID JOIN "
                         "0100_Stromkreis s ON s.StromkreisID = m.StromkreisID JOIN 0100_Verteiler v ON "
                         "v.VerteilerID = s.VerteilerID WHERE v.PrüfungID >= 10000 AND s.Code = ?",
                     {stromkreis});
    }

    std::unique_ptr<vemo0100Modul15a> m_komponente;
};

TEST_F(SorelinStreckeTest, BeideGeraetetypenVomSimulatorBisInsPruefprotokoll) {
    const struct {
        int typ;
        QString name;
        QString nennstrom;   // the function name of the rated current
        QString auslösezeit; // of the trip time
        QString grenzeUb;    // of the touch voltage limit
    } typen[] = {
        {4120, "SORELIN PM 12", "FI E, Idn", "FI t", "Ub max"},
        {4130, "SORELIN PM 20", "FI IdN", "FI tmess ms", "FI UL"},
    };
    int nummer = 0;
    for (const auto& t : typen) {
        SCOPED_TRACE(t.typ);
        m_ui.meldungen.clear();
        auto leitung = test::speicherleitungEinstecken(32);
        const QByteArray bild = sim::sorelinSpeicher(db(), t.typ, 3);
        sim::SorelinGerät gerät(bild, {0, 0});
        sim::PortLeitung kabel(*leitung, gerät);
        tasteImDialog([&gerät] { gerät.tasteGedrückt(); });

        m_komponente->DatenEmpfangen();

        ASSERT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        EXPECT_EQ(test::inhalt(arbeitsdatei(datei::Rs232Sep)), bild);
        const QString kopie = pfad(QString("sicherung/%1.ser").arg(++nummer, 8, 10, QChar('0')));
        EXPECT_EQ(test::inhalt(kopie), bild) << "the numbered copy of the image";
        EXPECT_EQ(wert("SELECT Group_Concat(StromkreisNr, ' ') FROM 0100_EinleseDaten"), "0001 0002 0003");
        EXPECT_EQ(wert("SELECT PrüfgerätName FROM 0100_EinleseGeräteDaten"), t.name);

        ASSERT_EQ(zuordnenBefehl("1-3", "1", "1"), 0); // Bäckerei Sommer
        ASSERT_EQ(zuordnenBefehl("1-3", "2", "2"), 0); // her plant 002 Verkaufsraum
        const QMap<QString, QString> gelesen = werteDesKreises("0002");
        ASSERT_TRUE(gelesen.contains("Riso R MOhm") && gelesen.contains(t.nennstrom))
            << gelesen.keys().join(", ").toStdString();

        EinleseDatenController form;
        form.übernehmenKlick();

        EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
        EXPECT_EQ(anzahl("0100_EinleseDaten"), 0);
        // The limit of the insulation follows the test voltage 500 V.
        EXPECT_EQ(
            kreis("0002", "m.VISO, m.RISO, m.LOW, m.LOOPRS, m.LoopIKRS, m.FIIDN, m.FIT, g.RISO, g.FIUB"),
            QStringList({"500", gelesen["Riso R MOhm"], gelesen["LOW Ohm"], gelesen["Zs"], gelesen["Zs Ik"],
                         gelesen[t.nennstrom], gelesen[t.auslösezeit], ">1", "<" + gelesen[t.grenzeUb]})
                .join('|'));
        EXPECT_FALSE(kreis("0002", "g.FIRE").isEmpty());
        sql("DELETE FROM \"0100_Messung\"; DELETE FROM \"0100_Grenzwert\"; DELETE FROM \"0100_Stromkreis\";");
    }
}

} // namespace
