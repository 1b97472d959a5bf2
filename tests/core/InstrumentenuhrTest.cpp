#include "core/Instrumentenuhr.h"

#include <QDateTime>
#include <gtest/gtest.h>
#include <limits>
#include <time.h>

namespace vemo {
namespace {

constexpr quint32 Höchstwert = std::numeric_limits<quint32>::max();

// The computer's time zone for the length of a test, as a POSIX rule that needs no zone files.
class Zeitzone {
public:
    explicit Zeitzone(const char* regel) : m_hatte(qEnvironmentVariableIsSet("TZ")), m_alt(qgetenv("TZ")) {
        qputenv("TZ", regel);
        tzset();
    }
    ~Zeitzone() {
        if (m_hatte)
            qputenv("TZ", m_alt);
        else
            qunsetenv("TZ");
        tzset();
    }

private:
    bool m_hatte;
    QByteArray m_alt;
};

const char* const Mitteleuropa = "CET-1CEST,M3.5.0,M10.5.0/3";

struct Felder {
    int tag, monat, jahr, stunde, minute, sekunde;
};

Felder felder(quint32 n) {
    Felder f{};
    ZEMAKgetTime(n, f.tag, f.monat, f.jahr, f.stunde, f.minute, f.sekunde);
    return f;
}

std::optional<quint32> zählen(const Felder& f) {
    return ZEMAKsecTime(f.tag, f.monat, f.jahr, f.stunde, f.minute, f.sekunde);
}

TEST(Instrumentenuhr, RaenderUndUnmoeglicheDaten) {
    EXPECT_EQ(ZEMAKsecTime(1, 1, 2000, 0, 0, 0), 0u);
    EXPECT_EQ(ZEMAKsecTime(7, 2, 2136, 6, 28, 15), Höchstwert);
    EXPECT_EQ(ZEMAKsecTime(1, 3, 2000, 0, 0, 0), 60u * 86400) << "2000 has a 29 February";
    EXPECT_EQ(ZEMAKsecTime(29, 2, 2100, 12, 0, 0), std::nullopt) << "2100 has none";
    // Before the epoch, past the last count, and each field out of its range.
    for (const Felder& f : {Felder{31, 12, 1999, 23, 59, 59},
                            {7, 2, 2136, 6, 28, 16},
                            {31, 4, 2024, 0, 0, 0},
                            {1, 13, 2024, 0, 0, 0},
                            {0, 1, 2024, 0, 0, 0},
                            {1, 1, 2024, 24, 0, 0},
                            {1, 1, 2024, 0, 60, 0},
                            {1, 1, 2024, 0, 0, -1}})
        EXPECT_EQ(zählen(f), std::nullopt) << f.tag << "." << f.monat << "." << f.jahr << " " << f.stunde;
    const Felder letzte = felder(Höchstwert);
    EXPECT_EQ(QDateTime(QDate(letzte.jahr, letzte.monat, letzte.tag),
                        QTime(letzte.stunde, letzte.minute, letzte.sekunde)),
              QDateTime(QDate(2136, 2, 7), QTime(6, 28, 15)));
}

TEST(Instrumentenuhr, ZeigtDieOrtszeitWieDieUhrDesComputers) {
    const Zeitzone mez(Mitteleuropa);
    // The instrument is set to what the computer's clock shows, summer time included.
    const QDateTime sommer(QDate(2024, 7, 1), QTime(10, 0), Qt::UTC);
    const QDateTime winter(QDate(2024, 1, 15), QTime(10, 0), Qt::UTC);
    EXPECT_EQ(instrumentenzeit(sommer), ZEMAKsecTime(1, 7, 2024, 12, 0, 0));
    EXPECT_EQ(instrumentenzeit(winter), ZEMAKsecTime(15, 1, 2024, 11, 0, 0));
    EXPECT_EQ(ZeitAusSekunden(*ZEMAKsecTime(1, 7, 2024, 12, 0, 0)), sommer);
    EXPECT_EQ(ZeitAusSekunden(*ZEMAKsecTime(15, 1, 2024, 11, 0, 0)), winter);

    // The hour the clocks skip in spring shows as the computer's clock shows that moment; the
    // hour they repeat in autumn keeps its wall time.
    const QDateTime übersprungen = ZeitAusSekunden(*ZEMAKsecTime(31, 3, 2024, 2, 30, 0));
    ASSERT_TRUE(übersprungen.isValid());
    EXPECT_EQ(übersprungen.toString("dd.MM.yyyy hh:mm"), "31.03.2024 03:30");
    EXPECT_EQ(ZeitAusSekunden(*ZEMAKsecTime(27, 10, 2024, 2, 30, 0)).toString("dd.MM.yyyy hh:mm"),
              "27.10.2024 02:30");
}

} // namespace
} // namespace vemo
