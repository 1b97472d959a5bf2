#include "core/ModulState.h"
#include "core/Laufschluessel.h"
#include "core/Schluesselvergabe.h"
#include "platform/Zahlformat.h"
#include "store/Schema.h"
#include "support/Testumgebung.h"

using namespace vemo;

namespace {

using ModulStateTest = test::Testumgebung;

// Loading the component anew must leave nothing of the last run behind: a counter row of another
// database, the keys of a take-over, the raw port's bytes, a German decimal comma.
TEST_F(ModulStateTest, LoadingAnewForgetsEveryRunState) {
    EXPECT_EQ(NeueID("", "0100_Messung"), 10000); // the allocator now holds this database's counter
    laufschlüssel() = {1, 2, 3, 4};
    modul().portpuffer.bytes = "alt";
    modul().portpuffer.anzahl = 3;
    modul().multitesterGefunden = true;
    modul().datenübernahme = [](EinleseDatenController&) {};
    zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(zahlformat::text(1.5), "1,5");

    modulNeuLaden();
    modul().ui = &m_ui;
    modul().settings = &m_settings;
    // A second database whose counter stands elsewhere: the key continues its counter, not the
    // first database's row the allocator held before.
    datenbankAnlegen(pfad("zweite.db"), false);
    modul().db = Datenbank::OpenDatabase(pfad("zweite.db"));
    sql("DELETE FROM IDIncrement; INSERT INTO IDIncrement (OffsetFaktor, TabelleName, LastID) "
        "VALUES (0, '0100_Messung', 50000);");
    EXPECT_EQ(NeueID("", "0100_Messung"), 50001);

    EXPECT_EQ(laufschlüssel().prüfungID, 0);
    EXPECT_EQ(laufschlüssel().stromkreisID, 0);
    EXPECT_TRUE(modul().portpuffer.bytes.isEmpty());
    EXPECT_EQ(modul().portpuffer.anzahl, 0);
    EXPECT_FALSE(modul().multitesterGefunden);
    EXPECT_FALSE(modul().datenübernahme);
    EXPECT_EQ(zahlformat::text(1.5), "1.5") << "the tests run in the C locale";
    EXPECT_TRUE(m_ui.meldungen.isEmpty());
}

} // namespace
