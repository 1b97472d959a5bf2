#include "parsers/Primitive.h"
#include "platform/Zahlformat.h"
#include "support/Testumgebung.h"

#include <QRegularExpression>

using namespace vemo;

namespace {

struct Gefunden {
    QString zahl;
    QString rest;
    int start;
    QString text() const { return zahl + "|" + rest + "|" + QString::number(start); }
};

Gefunden getZahl(const QString& zeile, int start = 1) {
    QString rest = "vorher";
    const QString z = GetZahl(zeile, start, rest);
    return {z, rest, start};
}

class Zahlformate : public ::testing::Test {
protected:
    void TearDown() override { zahlformat::ausUmgebung(); }
};

// The dump samples read the common lines; these are the forms they do not show.
TEST(Primitive, NumbersFunctionNamesAndComparisons) {
    // "zahl|rest|next start": behind the unit, or standing on the next number.
    EXPECT_EQ(getZahl("R = 0,35 Ohm").text(), "0,35|Ohm|13");
    EXPECT_EQ(getZahl("Ub 12,3 25,0").text(), "12,3||9");
    // The phase mark of an RCD test; no number at all; an overload.
    const auto zahl = [](const QString& zeile) { return getZahl(zeile).zahl; };
    EXPECT_EQ(
        test::jeweils(zahl, {".5 V", ",5 V", "Isc = <0,1 kA", "RCD AC 180 x1", "nur Worte hier", "Riso OL"}),
        "0.5 | 0,5 | <0,1 | AC 180° |  | o.r.");

    QString funktion;
    EXPECT_EQ(GetFunktion("Ik = 657 A", funktion = "Zs", "A"), "Zs Ik"); // under the current main function
    QString f2, w2;
    EXPECT_EQ(GetFunktionMul("0001 R500V: 245,0 MOhm", f2, w2) + "|" + f2 + "|" + w2, "Riso MOhm|Riso V|500");
    const auto mul = [&](const QString& zeile) { return GetFunktionMul(zeile, f2, w2) + "|" + f2; };
    EXPECT_EQ(test::jeweils(mul, {"ZS0: 0,45 Ohm", "ohne Doppelpunkt"}), "ZS| | |");

    EXPECT_EQ(test::jeweils(SetNull, {"0", "x", "12", "1234"}), " |  | 012 | 234");
    const auto vergleiche = [](const QString& paar) {
        const QString a = paar.section(' ', 0, 0), b = paar.section(' ', 1, 1);
        return QString("%1%2").arg(IstGrösser(a, b)).arg(IstKleiner(a, b));
    };
    EXPECT_EQ(test::jeweils(vergleiche, {"5 >3", ">3 5", "1,5 2", "2 1.5", ">5 <3", "<3 5"}),
              "10 | 00 | 10 | 01 | 01 | 00");
}

// Val reads the number a text begins with, blanks anywhere ignored, as this pattern describes it;
// the hand-written reader must agree with the pattern on every kind of text.
TEST(Primitive, ValReadsTheLeadingNumberAsThePatternSays) {
    const QRegularExpression muster(R"(^[+-]?(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?)");
    const auto erwartet = [&](QString t) {
        t.remove(' ').remove('\t');
        const auto m = muster.match(t);
        return m.hasMatch() ? m.captured(0).replace('d', 'e').replace('D', 'e').toDouble() : 0.0;
    };
    // Separated by "|", the empty text among them.
    const QStringList texte =
        QString("0|0001|12abc| 1 2 "
                "|-3.5|+.5|.|-.|5.|1e3|1E+3x|2d-2|2e|2e+|3.e2|e5|1.2.3|--1|0,5|\t7|abc|1٣|٣|"
                "999999999999999999999|123456789012345|1234567890123456|+12|-0012|0100_Messung|-0|")
            .split('|');
    for (const QString& t : texte)
        EXPECT_EQ(zahlformat::val(t), erwartet(t)) << t.toStdString();
    EXPECT_EQ(zahlformat::val("&H1F"), 31);
    EXPECT_EQ(zahlformat::val("0001"), 1);
    EXPECT_EQ(zahlformat::val("2d-2"), 0.02);
}

// The store's and the dumps' spellings are read by hand; every date reads as Qt's parser reads it,
// under a German and a British locale.
TEST_F(Zahlformate, DatesReadAsTheGeneralParserReadsThem) {
    const auto erwartet = [](const QString& eingabe) -> std::optional<QDate> {
        const QString tag = eingabe.trimmed().section(' ', 0, 0);
        for (const char* f : {"yyyy-MM-dd", "d.M.yyyy", "d/M/yyyy", "d.M.yy"}) {
            QDate d = QDate::fromString(tag, f);
            if (d.isValid() && QString(f).endsWith(".yy") && d.year() < 1950)
                d = d.addYears(100);
            if (d.isValid())
                return d;
        }
        const QDate d = zahlformat::locale().toDate(tag, QLocale::ShortFormat);
        return d.isValid() ? std::optional<QDate>(d) : std::nullopt;
    };
    const QStringList texte{"2022-06-14",  "14.06.2022", "1.6.2022",    " 14.06.2022 10:00:00",
                            "29.02.2024",  "29.02.2023", "31.04.2022",  "0.6.2022",
                            "14.13.2022",  "2022-6-14",  "2022-06-1",   "14.06.22",
                            "14.06.49",    "14.06.0022", "014.06.2022", "14.06.20222",
                            "14/06/2022",  "-1.6.2022",  "1..2022",     "",
                            "14.06.2022.", "2022-02-30", "06/14/22"};
    for (const auto& land :
         {QLocale(QLocale::German, QLocale::Germany), QLocale(QLocale::English, QLocale::UnitedKingdom)}) {
        zahlformat::setzen(land);
        for (const QString& t : texte)
            EXPECT_EQ(zahlformat::datum(t), erwartet(t)) << t.toStdString();
    }
    EXPECT_EQ(zahlformat::datum("14.06.2022"), QDate(2022, 6, 14));
}

class EinheitTest : public test::Testumgebung {};

} // namespace
