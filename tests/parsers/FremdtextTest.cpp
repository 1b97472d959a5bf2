#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "parsers/EinlesenVonDatei.h"
#include "parsers/Primitive.h"
#include "platform/Codepage.h"
#include "support/Dateien.h"
#include "support/Fremdtexte.h"
#include "support/Testumgebung.h"

#include <QSet>

using namespace vemo;
using namespace vemo::test;

namespace {

// A sample of each text format, its line that names the instrument written with a text of our
// choice ("%1"), and what the register keeps of that line as serial number: the line's last eleven
// characters, or the serial number's pattern.
struct Format {
    QString selektor, arbeitsdatei, probe;
    int zeile;
    QString kennzeile, seriennummer;
    QString erwartet(const QString& t) const {
        return seriennummer.isEmpty() ? kennzeile.arg(t).right(11) : seriennummer.arg(t);
    }
};

const Format Formate[] = {
    {selektor::Deutsch, datei::Ruvo, "corvex-verteilung.ser", 2, "4470D    No. %1", {}},
    {selektor::Deutsch, datei::Ruvo, "multitester-tabelle.ser", 2, "5831     No. %1", {}},
    {selektor::Zemak, datei::Ruvo, "zemak-3710.ser", 0, "ZEMAK 3710,1.03,%1", "%1"},
    {selektor::Zemak3720, datei::Ruvo, "zemak-3720.ser", 0, "ZEMAK 3720B,1.04,%1", "%1"},
    {selektor::Kontalex, datei::Rs232Txt, "kontalex.ser", 1,
     "\"KONTALEX\",\"STD\",\"2.14\",\"HW 3\",%1-118,\"01.2024\",\"Deutsch\",1", "%1-118"},
};

class Fremdtext : public Testumgebung {
protected:
    // Reads the sample with the text in its instrument line, from a file or as after a transfer.
    void lesen(const Format& f, const QString& text, const QString& dateiname) {
        QStringList zeilen = ausAnsi(inhalt(quelle("samples/" + f.probe))).split("\r\n");
        zeilen[f.zeile] = f.kennzeile.arg(text);
        schreiben(arbeitsdatei(f.arbeitsdatei), nachAnsi(zeilen.join("\r\n")));
        modul().Selektor() = f.selektor;
        modul().dateinameGewählt = dateiname;
        modul().aktuellesPrüfgerät = 0;
        modul().Abbruchmerker = 0;
        m_ui.meldungen.clear();
        EinlesenVonDatei();
        EXPECT_EQ(m_ui.texte(), QStringList());
        EXPECT_EQ(modul().Abbruchmerker, 0);
    }

    // Serial number and instrument of the newest read-in.
    QString seriennummer() const {
        return wert("SELECT Seriennummer FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC");
    }
    double prüfgerät() const {
        return wert("SELECT PrüfgerätID FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC").toDouble();
    }
};

// A serial number that reads as a condition or holds an apostrophe is stored as it came, found
// as itself and as nothing else: never as the instrument already in the register.
TEST_F(Fremdtext, SerialNumbersOfEveryFormatAreLookedUpAsTheirText) {
    sql("INSERT INTO \"Prüfgerät\" (\"PrüfgerätID\", Bezeichnung, typ, Seriennummer) VALUES "
        "(1, 'Zange', 103, '4711')");
    QSet<QString> registriert;
    for (const Format& f : Formate) {
        for (const QString& t : Fremdtexte) {
            SCOPED_TRACE((f.probe + " " + t).toStdString());
            const QString erwartet = f.erwartet(t);
            lesen(f, t, "/tmp/alt.ser");
            EXPECT_EQ(seriennummer(), erwartet);
            const double bekannt =
                wert("SELECT PrüfgerätID FROM Prüfgerät WHERE Seriennummer = ?", {erwartet}).toDouble();
            EXPECT_EQ(prüfgerät(), bekannt); // 0 until a transfer registered it

            lesen(f, t, {});
            const double id = prüfgerät();
            EXPECT_NE(id, 1);
            EXPECT_EQ(wert("SELECT Seriennummer FROM Prüfgerät WHERE PrüfgerätID = ?", {id}), erwartet);
            registriert << erwartet;
            lesen(f, t, {});
            EXPECT_EQ(prüfgerät(), id);
        }
    }
    EXPECT_EQ(anzahl("Prüfgerät"), 1 + registriert.size());

    // The take-over looks the function names of a dump up the same way.
    QString spalte, einheit;
    for (const QString& t : Fremdtexte)
        EXPECT_TRUE(TeilFunktionSuchen(t, spalte, einheit)) << t.toStdString();
}

} // namespace
