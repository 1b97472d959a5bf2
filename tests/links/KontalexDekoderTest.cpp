#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "KontalexSpeicher.h"
#include "core/Arbeitsdateien.h"
#include "links/KontalexDekoder.h"
#include "links/KontalexText.h"

namespace vemo::test {
namespace {

using sim::kontalexBlock;

class KontalexDekoderTest : public Testumgebung {
protected:
    static QList<Ortsgruppe> dekodieren(const QString& modell, const QByteArray& dump) {
        KontalexDekoder d(kontalexModell(modell), "Anlage 1");
        QList<Ortsgruppe> gruppen;
        d.dekodieren(dump, [&](const Ortsgruppe& g) { gruppen << g; });
        return gruppen;
    }
    static QStringList zeilen(const QList<Messzeile>& zeilen) {
        QStringList t;
        for (const Messzeile& z : zeilen)
            t << z.funktion + "|" + z.art + "|" + z.wertname + "|" + z.wert + "|" + z.einheit;
        return t;
    }
    QByteArray lesen(const QString& name) const { return inhalt(pfad(name)); }
};

// The record file: every line eight values, texts quoted, CR LF; an empty memory is the end line
// and the word table's message.
TEST_F(KontalexDekoderTest, SatzdateiUndLeererSpeicher) {
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
}

} // namespace
} // namespace vemo::test
