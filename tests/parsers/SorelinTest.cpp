#include "Einleseumgebung.h"
#include "support/Fehlernummer.h"
#include "support/SorelinBild.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "host/DateiEinlesen.h"
#include "parsers/EinlesenVonDatei.h"
#include "parsers/SorelinTreiber.h"
#include "store/Variant.h"

namespace vemo::test {
namespace {

// A circuit of the SORELIN PM 12 (type 4120): insulation at 500 V of 245 MOhm in the range without
// divisor, continuity 0.35 Ohm, loop 0.41 Ohm with 561 A, and an RCD test whose id 20 is the top
// byte of its trip time of 23 ms, touch voltage 1.8 V, tripping current 21 mA, limit 50 V, rated
// current 30 mA and the settings byte 05 (type A, factor x1, half-wave 0°).
const QByteArray Kreis1 = QByteArray::fromHex("8180F5 820023 8300290231 140017001200153200 1E05");
const QStringList Kreis1Zeilen{"Riso R V=500 V", "Riso R MOhm=245 MOhm", "LOW Ohm=0.35 Ohm", "Zs=0.41 Ohm",
                               "Zs Ik=561 A",    "FI t=23 ms",           "FI Ub=1.8 V",      "FI Ia=21 mA",
                               "Ub max=50 V",    "FI E, Idn=30 mA",      "FI Einstellung=5", "FI Stromart=A",
                               "FI Faktor=x1",   "FI Halbwelle=0°"};
// Behind the start block 240 a second circuit: both readings over range.
const QByteArray Kreis2 = QByteArray::fromHex("F0 813FFF 82FFFF");

class SorelinTest : public Einleseumgebung {
protected:
    void SetUp() override {
        Einleseumgebung::SetUp();
        zahlformat::ausUmgebung(); // the number format of the environment, as the host starts
        modul().Selektor() = selektor::Sorelin;
    }

    // Reads the image as the driver does after a transfer.
    void lesen(const QByteArray& bild) {
        schreiben(arbeitsdatei(datei::Rs232Sep), bild);
        modul().Abbruchmerker = 0;
        m_ui.meldungen.clear();
        EinlesenVonDatei();
    }
    // Each read-in row as "board/circuit: Funktion=wert Einheit | ...".
    QStringList gelesen() const { return blöcke({"VerteilerNr", "StromkreisNr"}, "/"); }
};

TEST_F(SorelinTest, NurEineNeuereFirmwareAlsDerTreiberWirdAbgewiesenEineSeriennummerAusDIstKeine) {
    // The driver of type 4120 knows version 1.4: the bytes 1 and 4. A serial number of D's is none.
    lesen(SorelinBild(Kreis1).firmware(QByteArray("\x01\x04", 2)).seriennummer("DDDDDDDDD").bytes());
    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_EQ(anzahl("0100_EinleseDaten"), 1);
    EXPECT_EQ(modul().sorelinSeriennummer, QString());
    EXPECT_EQ(wert("SELECT Seriennummer FROM 0100_EinleseGeräteDaten"), "");

    lesen(SorelinBild(Kreis1).firmware(QByteArray("\x01\x05", 2)).bytes());
    EXPECT_EQ(modul().Abbruchmerker, 1);
    ASSERT_EQ(m_ui.meldungen.size(), 1);
    EXPECT_EQ(m_ui.meldungen[0].text, "Ihr Treiber ist nicht aktuell SORELIN PM 12 Version 1.5");
    EXPECT_EQ(m_ui.meldungen[0].stil.symbol, MsgSymbol::Warnung);
    EXPECT_EQ(anzahl("0100_EinleseGeräteDaten"), 1) << "nothing of the refused image is written";
}

TEST_F(SorelinTest, WasDerParserNichtLesenKannWirdGemeldet) {
    const struct {
        const char* fall;
        QByteArray bild;
        QStringList meldungen;
    } fälle[] = {
        {"no start mark", QByteArray::fromHex("00FFD5D500"), {"Startblock Error", "9 Index außerhalb"}},
        {"a block kind it does not know",
         SorelinBild(Kreis1).zusatzblöcke("\x07").bytes(),
         {"Blockkennung nicht bekannt"}},
        {"two blocks of kind 10",
         SorelinBild(Kreis1).zusatzblöcke(QByteArray::fromHex("0A00 0A00")).bytes(),
         {"MessBlockKennung nicht bekannt"}},
        {"no driver table for the type", SorelinBild(Kreis1).typ(4999).bytes(), {"Unbekanntes Prüfgerät"}},
        {"a block the driver does not know",
         SorelinBild(Kreis1 + "\x85").bytes(),
         {"3021 Kein aktueller Datensatz"}},
        {"an image cut off inside a block", SorelinBild(Kreis1).bytes().left(29), {"9 Index außerhalb"}},
    };
    for (const auto& f : fälle) {
        SCOPED_TRACE(f.fall);
        sql("DELETE FROM \"0100_EinleseDaten\"; DELETE FROM \"0100_EinleseGeräteDaten\";");
        lesen(f.bild);
        EXPECT_EQ(modul().Abbruchmerker, 1);
        ASSERT_EQ(m_ui.meldungen.size(), f.meldungen.size()) << m_ui.texte().join(" | ").toStdString();
        for (qsizetype i = 0; i < f.meldungen.size(); ++i) {
            EXPECT_TRUE(m_ui.meldungen[i].text.startsWith(f.meldungen[i]))
                << m_ui.meldungen[i].text.toStdString();
            EXPECT_EQ(m_ui.meldungen[i].titel, "vemotrix professional");
        }
    }
    // What was read before the block it did not know stays.
    sql("DELETE FROM \"0100_EinleseDaten\";");
    lesen(SorelinBild(Kreis1 + "\x85").bytes());
    EXPECT_EQ(gelesen(), QStringList{"0001/0001: " + Kreis1Zeilen.join(" | ")});
}

TEST_F(SorelinTest, DerErsteStromkreisGehtNichtInDieLetzteZeileEinesAnderenEinlesens) {
    lesen(SorelinBild(QByteArray::fromHex("820023")).bytes());
    lesen(SorelinBild(QByteArray::fromHex("820024 F0 820025")).bytes());

    EXPECT_EQ(modul().Abbruchmerker, 0);
    EXPECT_EQ(gelesen(), (QStringList{"0001/0001: LOW Ohm=0.35 Ohm", "0001/0001: LOW Ohm=0.36 Ohm",
                                      "0001/0002: LOW Ohm=0.37 Ohm"}));
    EXPECT_EQ(anzahl("0100_EinleseGeräteDaten"), 2);
}

// A driver table of our own: a selective RCD test with settings 07 (A, x2, 180°), then trip time
// series heads for 500 mA and for 30 mA with settings 08 (limit 25 V) and 00 (50 V). Beside them
// the columns no shipped driver leaves empty or writes otherwise: a mask, a scale given as "&H",
// an overflow list whose "Kein Overflow" matches first, and a value with no columns at all.
TEST_F(SorelinTest, DieRcdBloeckeUndDieWertspaltenEinesEigenenTreibers) {
    QStringList spalten;
    for (int i = 1; i <= 23; ++i)
        spalten << QString("\"%1\" TEXT").arg(i);
    sql("CREATE TABLE \"77Sorelin\" (" + spalten.join(", ") +
        ");"
        "INSERT INTO \"77Sorelin\" (\"1\", \"2\", \"3\", \"4\", \"5\") VALUES ('Version', '1', '', '', ''),"
        "  ('NameDE', 'Prüfling', '', '', ''), ('StartBlock', '240', '', '', ''),"
        "  ('Arten', '1', 'A', '0', 'AC'), ('Faktoren', '2', 'x2', '0', 'x1'),"
        "  ('Wellen', '4', '180°', '0', '0°'), ('Grenzen', '8', '25 V', '0', '50 V'),"
        "  ('Bereich', '&H8000', '1000', '0', '10'), ('Grenze', 'F000', 'Kein Overflow', '4000', '> ');"
        "INSERT INTO \"77Sorelin\" (\"1\", \"7\", \"8\", \"9\", \"13\", \"14\", \"15\") VALUES"
        "  ('Wert', '1', '2', '0FFF', 'Bereich', 'Grenze', '3'), ('Leer', '1', '4', '', '', '', '');"
        "INSERT INTO \"77Sorelin\" (\"1\", \"2\", \"4\", \"5\", \"6\", \"7\", \"8\", \"9\", \"10\", \"12\")"
        "  VALUES ('20DE', '30 mA (s)', 'Arten', 'Faktoren', 'Wellen', '1', '2', 'FF', 'E', 'FI');"
        "INSERT INTO \"77Sorelin\" (\"1\", \"4\", \"5\", \"7\", \"8\", \"9\", \"10\", \"11\", \"12\","
        "  \"16\", \"18\", \"20\") VALUES ('5DE', 'Grenzen', 'Faktoren', '2', '3', 'FFFF', 'IdN', 'mA', 'FI',"
        "  '1', 'Einstellung', 'FI');");
    lesen(SorelinBild(QByteArray::fromHex("1407 F0 0501F408 F0 05001E00"))
              .typ(77)
              .firmware(QByteArray("\x01\x00", 2))
              .bytes());
    EXPECT_TRUE(m_ui.meldungen.isEmpty()) << m_ui.texte().join(" | ").toStdString();
    EXPECT_EQ(gelesen(),
              (QStringList{"0001/0001: FI E mA=30 mA | FI E=7 | FI Stromart=A | FI Faktor=S x2 | "
                           "FI Halbwelle=180°",
                           "0001/0002: FI IdN=500 mA | FI Einstellung=8 | FI UL=25 V | FI Faktor=x1",
                           "0001/0003: FI IdN=30 mA | FI Einstellung=0 | FI UL=50 V"}));

    const SorelinTreiber treiber = SorelinTreiber::öffnen(db(), 77);
    const auto wert = [&](const QString& hexUndZeile) {
        return GetSorelinWert(QByteArray::fromHex(hexUndZeile.section(' ', 0, 0).toLatin1()), 0, treiber,
                              *treiber.zeile(hexUndZeile.section(' ', 1)), 8);
    };
    EXPECT_EQ(jeweils(wert, {"8123 Wert", "0123 Wert", "4123 Wert", "F123 Wert", "FFFFFFFF Leer"}),
              "0.291 | 29.100 | > 29.100 | 0.291 | 4294967295");
    EXPECT_EQ(fehlernummer([&] { wert("81 Wert"); }), fehler::IndexAußerhalb);
    EXPECT_EQ(fehlernummer([] { treiberHexZahl("zz"); }), fehler::TypenUnverträglich);
    EXPECT_EQ(fehlernummer([] { rohzahl(QByteArray(8, 0), 0, 5); }), fehler::TypenUnverträglich);
}

} // namespace
} // namespace vemo::test
