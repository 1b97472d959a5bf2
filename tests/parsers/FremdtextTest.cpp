#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "parsers/EinlesenVonDatei.h"
#include "parsers/Primitive.h"
#include "platform/Codepage.h"
#include "store/Variant.h"
#include "support/Fremdtexte.h"
#include "support/Testumgebung.h"

#include <QFile>
#include <QSet>
#include <functional>

using namespace vemo;
using namespace vemo::test;

namespace {

// A sample of each text format, its line that names the instrument written with a text of our
// choice, and what the register keeps of that text as serial number.
struct Format {
    const char* name;
    QString selektor, arbeitsdatei, probe;
    int zeile;
    std::function<QString(const QString&)> kennzeile;
    std::function<QString(const QString&)> seriennummer;
};

QString letzteElf(const QString& zeile) {
    return zeile.right(11);
}

const Format Formate[] = {
    {"Corvex", selektor::Deutsch, datei::Ruvo, "corvex-verteilung.ser", 2,
     [](const QString& t) { return "4470D    No. " + t; },
     [](const QString& t) { return letzteElf("4470D    No. " + t); }},
    {"Multitester", selektor::Deutsch, datei::Ruvo, "multitester-tabelle.ser", 2,
     [](const QString& t) { return "5831     No. " + t; },
     [](const QString& t) { return letzteElf("5831     No. " + t); }},
    {"ZEMAK 3710", selektor::Zemak, datei::Ruvo, "zemak-3710.ser", 0,
     [](const QString& t) { return "ZEMAK 3710,1.03," + t; }, [](const QString& t) { return t; }},
    {"ZEMAK 3720", selektor::Zemak3720, datei::Ruvo, "zemak-3720.ser", 0,
     [](const QString& t) { return "ZEMAK 3720B,1.04," + t; }, [](const QString& t) { return t; }},
    {"Kontalex", selektor::Kontalex, datei::Rs232Txt, "kontalex.ser", 1,
     [](const QString& t) {
         return "\"KONTALEX\",\"STD\",\"2.14\",\"HW 3\"," + t + "-118,\"01.2024\",\"Deutsch\",1";
     },
     [](const QString& t) { return t + "-118"; }},
};

class Fremdtext : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        sql("INSERT INTO \"Prüfgerät\" (\"PrüfgerätID\", Bezeichnung, typ, Seriennummer) VALUES "
            "(1, 'Zange', 103, '4711')");
    }

    // Reads the sample with the text in its instrument line, from a file or as after a transfer.
    void lesen(const Format& f, const QString& text, const QString& dateiname) {
        QFile probe(quelle("samples/" + f.probe));
        ASSERT_TRUE(probe.open(QIODevice::ReadOnly));
        QStringList zeilen = ausAnsi(probe.readAll()).split("\r\n");
        zeilen[f.zeile] = f.kennzeile(text);
        QFile arbeit(arbeitsdatei(f.arbeitsdatei));
        ASSERT_TRUE(arbeit.open(QIODevice::WriteOnly | QIODevice::Truncate));
        arbeit.write(nachAnsi(zeilen.join("\r\n")));
        arbeit.close();
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
        const QString id = wert("SELECT PrüfgerätID FROM 0100_EinleseGeräteDaten ORDER BY GeräteID DESC");
        return id.isEmpty() ? 0 : id.toDouble();
    }
};

// A serial number that reads as a condition or holds an apostrophe is stored as it came, found
// as itself and as nothing else: never as the instrument already in the register.
TEST_F(Fremdtext, SerialNumbersOfEveryFormatAreLookedUpAsTheirText) {
    QSet<QString> registriert;
    for (const Format& f : Formate) {
        for (const QString& t : Fremdtexte) {
            SCOPED_TRACE(std::string(f.name) + " " + t.toStdString());
            const QString erwartet = f.seriennummer(t);
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
