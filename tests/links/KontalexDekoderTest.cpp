#include "support/Dateien.h"
#include "support/Fehlernummer.h"
#include "support/Testumgebung.h"

#include "KontalexSpeicher.h"
#include "core/Arbeitsdateien.h"
#include "links/KontalexDekoder.h"
#include "links/KontalexSpeicher.h"
#include "links/KontalexText.h"

#include <QFile>

namespace vemo::test {
namespace {

using sim::kontalexBlock;
using sim::Messort;
using sim::Messung;

class KontalexDekoderTest : public Testumgebung {
protected:
    static QList<Ortsgruppe> dekodieren(const QString& modell, const QByteArray& dump,
                                        bool* logger = nullptr) {
        KontalexDekoder d(kontalexModell(modell), "Anlage 1");
        QList<Ortsgruppe> gruppen;
        d.dekodieren(dump, [&](const Ortsgruppe& g) { gruppen << g; });
        if (logger)
            *logger = d.loggerDaten();
        return gruppen;
    }
    static QStringList zeilen(const QList<Messzeile>& zeilen) {
        QStringList t;
        for (const Messzeile& z : zeilen)
            t << z.funktion + "|" + z.art + "|" + z.wertname + "|" + z.wert + "|" + z.einheit;
        return t;
    }
    static QStringList orte(const QList<Ortsgruppe>& gruppen) {
        QStringList t;
        for (const Ortsgruppe& g : gruppen)
            t << QString("%1 %2 %3 [%4|%5|%6] %7 %8")
                     .arg(g.objekt)
                     .arg(g.stromkreis)
                     .arg(g.platz)
                     .arg(g.objektText, g.stromkreisText, g.platzText, g.zeit, g.datum);
        return t;
    }
    QByteArray lesen(const QString& name) const { return inhalt(pfad(name)); }
};

const Messung Isolation{15, {{'R', 4, 7, "245"}, {'P', 90, 1, "500"}, {'M', 4, 7, "1"}}};

// Object, circuit and place low byte first; a number that repeats the group before prints blank,
// the circuit only with its object, the place only with both.
TEST_F(KontalexDekoderTest, VolleFormNummerntexteUndWiederholteGruppen) {
    const QList<Messort> orte_{{1, 1, 1, "08:00", "17.03.2024"}, {1, 1, 2, "08:01", "17.03.2024"},
                               {1, 2, 2, "08:02", "17.03.2024"}, {2, 2, 2, "08:03", "18.03.2024"},
                               {2, 2, 2, "08:04", "18.03.2024"}, {300, 1, 1000, "08:05", "18.03.2024"}};
    QByteArray dump;
    for (const Messort& o : orte_)
        dump += kontalexBlock(Blockform::Voll, o, Isolation);
    dump += sim::kontalex::Endblock;

    const QList<Ortsgruppe> gruppen = dekodieren("KONTALEX", dump);
    EXPECT_EQ(orte(gruppen), (QStringList{
                                 "1 1 1 [001|001|001] 08:00 17.03.2024",
                                 "1 1 2 [||002] 08:01 17.03.2024",
                                 "1 2 2 [|002|002] 08:02 17.03.2024",
                                 "2 2 2 [002|002|002] 08:03 18.03.2024",
                                 "2 2 2 [||] 08:04 18.03.2024",
                                 "300 1 1000 [300|001|1000] 08:05 18.03.2024",
                             }));
    EXPECT_EQ(zeilen(gruppen[0].zeilen),
              (QStringList{"R ISO|M|R|245|MOhm", "R ISO|E|Un|500|V", "R ISO|G|R|1|MOhm"}));
}

// The short form keeps no clock and numbers no objects: the caller's object text stands once.
TEST_F(KontalexDekoderTest, KurzeFormMitAnlagentextUndFestenZeiten) {
    const Messung schleife{106, {{'R', 119, 103, "0.41"}, {'R', 120, 107, "561"}, {'R', 200, 103, "x"}}};
    const QByteArray dump = kontalexBlock(Blockform::Kurz, {9, 3, 1, "10:00", "1.1.2024"}, schleife) +
                            kontalexBlock(Blockform::Kurz, {9, 3, 2, "10:01", "1.1.2024"}, schleife);
    const QList<Ortsgruppe> gruppen = dekodieren("PRAVITONIX", dump);
    EXPECT_EQ(orte(gruppen),
              (QStringList{"1 3 1 [Anlage 1|003|001] 00:00 01.01.00", "1 3 2 [||002] 00:00 01.01.00"}));
    EXPECT_EQ(zeilen(gruppen[0].zeilen),
              (QStringList{"R LOOP PRAVITONIX|M|R|0.41|Ohm", "R LOOP PRAVITONIX|M|Ik|561|A",
                           "R LOOP PRAVITONIX|M|R|x|Ohm"}));
}

// The high-voltage tester: place high byte first behind a record number, time and date behind
// the values, its own tables, the position moved on by the length byte.
TEST_F(KontalexDekoderTest, BlockformDesHochspannungspruefers) {
    const Messung diagnose{4, {{'R', 7, 4, "12.4"}, {'R', 10, 13, "1.52"}}};
    const QByteArray dump =
        kontalexBlock(Blockform::Block, {0, 0, 0x1234, "11:30", "02.04.2024", 7}, diagnose) + "Rauschen" +
        kontalexBlock(Blockform::Block, {0, 0, 5, "11:31", "02.04.2024", 8}, diagnose);
    const QList<Ortsgruppe> gruppen = dekodieren("VOLTIRA 9KV", dump);
    EXPECT_EQ(orte(gruppen),
              (QStringList{"0 0 4660 [000|000|4660] 11:30 02.04.2024", "0 0 5 [||005] 11:31 02.04.2024"}));
    EXPECT_EQ(zeilen(gruppen[0].zeilen),
              (QStringList{"DIAGNISTIC TEST|M|R(t1)|12.4|GOhm", "DIAGNISTIC TEST|M|PI1|1.52|"}));
}

// Fields shorter than three bytes say nothing; the logger's function code is noticed; a code
// beyond its table stops the walk with the bounds error, the groups before it delivered.
TEST_F(KontalexDekoderTest, KurzeFelderLoggerUndCodesAusserhalbDerTabelle) {
    bool logger = false;
    const QByteArray messbytes("\x66"
                               "P\x88\x08"
                               "60\0"
                               "x\0"
                               "M\x87\x65"
                               "231\0",
                               16);
    EXPECT_EQ(zeilen(messzeilenLesen(messbytes, allgemeineNamen(), logger)),
              (QStringList{"UL-UN LOGGER|E|Intervall |60|s", "UL-UN LOGGER|G|Mittelwert|231|V"}));
    EXPECT_TRUE(logger);

    const QByteArray gut =
        kontalexBlock(Blockform::Block, {0, 0, 1, "t", "d", 1}, {1, {{'R', 32, 1, "398"}}});
    const QByteArray schlecht =
        kontalexBlock(Blockform::Block, {0, 0, 2, "t", "d", 2}, {11, {{'R', 1, 1, "1"}}});
    QList<Ortsgruppe> geliefert;
    KontalexDekoder d(kontalexModell("VOLTIRA 9KV"), {});
    // Function code 11 lies beyond the high-voltage table.
    EXPECT_EQ(fehlernummer(
                  [&] { d.dekodieren(gut + schlecht + gut, [&](const Ortsgruppe& g) { geliefert << g; }); }),
              fehler::IndexAußerhalb);
    EXPECT_EQ(geliefert.size(), 1);
    EXPECT_FALSE(d.loggerDaten());
    EXPECT_TRUE(dekodieren("KONTALEX", sim::kontalex::Endblock + "SRE").isEmpty())
        << "no group in an end block";
}

TEST_F(KontalexDekoderTest, GeraeteinfoMitSpracheNurWoDasModellEineNennt) {
    EXPECT_EQ(geräteinfoLesen(sim::werAntwort("KONTALEX", "11840217")),
              (QStringList{"KONTALEX", "STD", "2.14", "HW 3", "11840217", "01.2024", "Deutsch"}));
    for (const QString modell : {"PRAVITONIX", "Georin-Barrier Analyzer"})
        EXPECT_EQ(geräteinfoLesen(sim::werAntwort(modell, "117")).last(), "No Language");
    EXPECT_EQ(geräteinfoLesen(QByteArray("a\0b\0  VOLTIRA 9KV  \0 X \0", 24)).mid(0, 3),
              (QStringList{"VOLTIRA 9KV", "X", ""}))
        << "name and the next field trimmed, missing fields empty";
}

// The record file: every line eight values, texts quoted, CR LF; an empty memory is the end line
// and the word table's message; a logger file gets its head in front.
TEST_F(KontalexDekoderTest, SatzdateiLeereSpeicherUndLoggerkopf) {
    const QByteArray dump = kontalexBlock(Blockform::Voll, {1, 2, 3, "08:00", "17.03.2024"},
                                          {7, {{'P', 89, 33, ""}, {'R', 33, 10, "18"}}}) +
                            sim::kontalex::Endblock;
    const QStringList info{"KONTALEX", "STD", "2.14", "HW 3", "11840217", "01.2024", "Deutsch"};
    EXPECT_FALSE(kontalexTextSchreiben(pfad("RS232.TXT"), info, dump));
    EXPECT_EQ(lesen("RS232.TXT"),
              "\"- - - -     Start Ger\xe4tedaten      - - - -\",1,1,1,1,1,1,1\r\n"
              "\"KONTALEX\",\"STD\",\"2.14\",\"HW 3\",\"11840217\",\"01.2024\",\"Deutsch\",1\r\n"
              "\"- - - - Start Verteiler, Stromkreis, Platz, Messungen - - - -\",1,1,1,1,1,1,1\r\n"
              "1,2,3,\"001\",\"002\",\"003\",\"08:00\",\"17.03.2024\"\r\n"
              "\"RCD t\",\"E\",\"phase:\",\"\",\"180\xb0\",1,1,1\r\n"
              "\"RCD t\",\"M\",\"t\",\"18\",\"ms\",1,1,1\r\n"
              "\"----Dateiende----\",1,1,1,1,1,1,1\r\n");
    EXPECT_TRUE(m_ui.meldungen.isEmpty());

    modul().mnuTexte = QStringList(404);
    modul().mnuTexte[403] = "Im Gerät sind keine Messungen gespeichert !";
    EXPECT_FALSE(kontalexTextSchreiben(pfad("leer.txt"), info, {}));
    EXPECT_EQ(lesen("leer.txt"), "\"----Dateiende----\",1,1,1,1,1,1,1\r\n");
    EXPECT_EQ(m_ui.texte(), QStringList{"Im Gerät sind keine Messungen gespeichert !"});

    QByteArray logger;
    for (int i = 0; i < 4; ++i)
        logger += kontalexBlock(Blockform::Kurz, {1, 1, 1, "", ""},
                                {102, {{'R', 135, 101, "23" + QByteArray::number(i)}}});
    QStringList pravitonix = info;
    pravitonix[0] = "PRAVITONIX";
    EXPECT_TRUE(kontalexTextSchreiben(pfad("logger.txt"), pravitonix, logger));
    const QByteArray vorher = lesen("logger.txt");
    loggerKopfSchreiben(pfad("logger.txt"));
    // 2 + 4 × 3 + 1 lines: (15 - 9) / 3 = 2 logged values, as the instruments count them.
    EXPECT_EQ(lesen("logger.txt"), "\"Datenlogger PRAVITONIX\",2,1,1,1,1,1,1\r\n" + vorher);
    EXPECT_FALSE(QFile::exists(pfad("RS232_d.txt")));
}

TEST_F(KontalexDekoderTest, RohdateiZerfaelltInAntwortenUndBloecke) {
    const QByteArray roh = sim::kontalexSpeicher(5, "VOLTIRA 9KV");
    const auto s = kontalexSpeicherLesen(roh);
    ASSERT_TRUE(s.has_value());
    EXPECT_EQ(s->rohdatei(), roh);
    EXPECT_EQ(s->ende, sim::kontalex::Bestätigt);
    // Five blocks and the empty one.
    EXPECT_EQ(QString("%1 %2 %3").arg(s->modell()).arg(s->blöcke.size()).arg(s->blockzahl()),
              "VOLTIRA 9KV 6 5");

    const auto abgeschnitten = kontalexSpeicherLesen(roh.left(roh.size() - 40));
    ASSERT_TRUE(abgeschnitten.has_value());
    EXPECT_EQ(abgeschnitten->rohdatei(), roh.left(roh.size() - 40));
    EXPECT_TRUE(abgeschnitten->ende.isEmpty());

    EXPECT_FALSE(kontalexSpeicherLesen("\"- - - -     Start").has_value());
    EXPECT_EQ(kontalexSpeicherLesen(sim::kontalexSpeicher(0, "KONTALEX"))->blockzahl(), 0);
}

} // namespace
} // namespace vemo::test
