#include "ZemakSpeicher.h"

#include "core/Geraetetypen.h"
#include "core/Instrumentenuhr.h"

#include <array>
#include <map>

namespace vemo::sim {
namespace {

const QByteArray Zeilenende = "\r\n";
const QByteArray Antwortkopf = "QD 2,";

// Fixed-width upper-case hexadecimal text; a value too wide keeps its low digits.
QByteArray hex(quint64 wert, int stellen) {
    return QByteArray::number(wert, 16).toUpper().rightJustified(stellen, '0', true).right(stellen);
}

enum class Messart { Spannung, Isolation, Durchgang, Schleife, Fehlerstrom, Erde };
constexpr std::array MessartenReihum{Messart::Spannung, Messart::Isolation,   Messart::Durchgang,
                                     Messart::Schleife, Messart::Fehlerstrom, Messart::Erde};

// One stored measurement: where, when, and its two values with their attributes (the low two
// bits of an attribute count the decimals).
struct Messung {
    Messart art;
    int verteiler;
    int stromkreis;
    int nummer; // counted from 1
    quint32 uhr;
    quint32 a, attributA, b, attributB;
};

constexpr int StromkreiseJeVerteiler = 12;
constexpr int UhrAbstand = 90; // seconds between two measurements

struct Werte {
    quint32 a, attributA, b, attributB;
};

Werte werte(Messart art, int i, bool fehlerstromAlsAuslösestrom) {
    switch (art) {
    case Messart::Spannung: // 229.0 V and more, 50.0 Hz
        return {2290u + i % 20, 1, 500, 1};
    case Messart::Isolation: // MOhm at the test voltage in V
        return {500u + (i * 37) % 3000, 1, 512u + i % 20, 0};
    case Messart::Durchgang: // Ohm
        return {12u + i % 80, 2, 0, 0};
    case Messart::Schleife: { // Ohm and the short-circuit current in A
        const quint32 z = 25u + i % 70;
        return {z, 2, 23000 / z, 0};
    }
    case Messart::Fehlerstrom: // trip time in ms, or trip current in mA, and touch voltage in V
        return {fehlerstromAlsAuslösestrom ? 150u + i % 120 : 120u + (i * 13) % 250, 1, 5u + i % 30, 1};
    case Messart::Erde: // Ohm
        return {150u + (i * 7) % 900, 1, 0, 0};
    }
    return {};
}

Messung messung(int i, bool fehlerstromAlsAuslösestrom) {
    const Messart art = MessartenReihum[std::size_t(i) % MessartenReihum.size()];
    const Werte w = werte(art, i, fehlerstromAlsAuslösestrom);
    return {art,
            i / StromkreiseJeVerteiler + 1,
            i % StromkreiseJeVerteiler + 1,
            i + 1,
            *ZEMAKsecTime(6, 5, 2024, 8, 0, 0) + quint32(i * UhrAbstand),
            w.a,
            w.attributA,
            w.b,
            w.attributB};
}

constexpr quint32 Bemessungsstrom = 30; // mA of the residual current devices tested
constexpr quint32 Grenze50V = 0x8000;   // the bit that chooses the 50 V limit of the touch voltage

// Function number and the further bits of the mode word of the 3710 (function in bits 10 to 12).
quint32 modus3710(Messart art) {
    switch (art) {
    case Messart::Spannung:
        return 0 << 10;
    case Messart::Isolation:
        return 1 << 10 | 3 << 7; // 500 V
    case Messart::Durchgang:
        return 2 << 10;
    case Messart::Schleife:
        return 3 << 10 | 1; // loop, with its short-circuit current
    case Messart::Fehlerstrom:
        return 4 << 10 | 1 << 3 | 1; // trip time, x1, 30 mA
    case Messart::Erde:
        return 6 << 10;
    }
    return 0;
}

// The same for the 3710B, 3720 and Quentavoir (function in bits 10 to 13, one more function).
quint32 modus3710B(Messart art, bool mitMaskenDes3720) {
    switch (art) {
    case Messart::Spannung:
        return 0 << 10 | 1; // L-PE
    case Messart::Isolation:
        return 1 << 10 | (mitMaskenDes3720 ? 256 | 3 : 3 << 7);
    case Messart::Durchgang:
        return 2 << 10;
    case Messart::Schleife:
        return 3 << 10 | 1;
    case Messart::Fehlerstrom:
        return 5 << 10 | Grenze50V | (mitMaskenDes3720 ? 8 | 1 : 1 << 3 | 1);
    case Messart::Erde:
        return 7 << 10;
    }
    return 0;
}

QList<QByteArray> felder3710(const Messung& m) {
    return {hex(m.verteiler, 2), hex(m.stromkreis, 2),     hex(0, 4),
            hex(m.a, 4),         hex(m.attributA, 2),      hex(m.b, 4),
            hex(m.attributB, 2), hex(modus3710(m.art), 4), hex(m.uhr, 8)};
}

QList<QByteArray> felder3710B(const Messung& m) {
    const quint32 prüfstrom = m.art == Messart::Fehlerstrom ? Bemessungsstrom : 0;
    return {hex(m.verteiler, 2),
            hex(m.stromkreis, 2),
            hex((m.nummer - 1) % 444 + 1, 4),
            hex(m.a, 4),
            hex(m.attributA, 2),
            hex(m.b, 4),
            hex(m.attributB, 2),
            hex(modus3710B(m.art, false), 4),
            hex(prüfstrom, 4),
            hex(m.uhr, 8)};
}

QList<QByteArray> felder3720(const Messung& m) {
    const quint32 prüfstrom = m.art == Messart::Fehlerstrom ? Bemessungsstrom : 0;
    return {hex(m.verteiler, 4), hex(m.stromkreis, 4), hex(0, 4),           hex(m.a, 4),
            hex(m.attributA, 2), hex(m.b, 4),          hex(m.attributB, 2), hex(modus3710B(m.art, true), 4),
            hex(prüfstrom, 4),   hex(m.uhr, 8)};
}

// The 3740 keeps function, mode and status apart; its residual current test stores the trip
// current, and its mode word holds the conductors in the low nibble and the rated current in the
// high one.
QList<QByteArray> felder3740(const Messung& m) {
    static const std::map<Messart, std::pair<quint32, quint32>> funktionUndModus{
        {Messart::Spannung, {0, 1}}, {Messart::Isolation, {1, 1}},        {Messart::Durchgang, {2, 0}},
        {Messart::Schleife, {3, 1}}, {Messart::Fehlerstrom, {6, 0x1000}}, {Messart::Erde, {7, 0}},
    };
    const auto [funktion, modus] = funktionUndModus.at(m.art);
    const quint32 status = m.art == Messart::Fehlerstrom ? 0x40 : 0;
    return {hex(1, 4),      hex(m.verteiler, 4), hex(m.stromkreis, 4),
            hex(0, 4),      hex(modus, 4),       hex(funktion, 2),
            hex(status, 2), hex(m.uhr, 8),       hex(m.a, 4),
            hex(m.b, 4),    hex(0, 4),           hex(0, 4),
            hex(0, 4),      hex(m.attributA, 2), hex(m.attributB, 2),
            hex(0, 2),      hex(0, 2),           hex(0, 2),
            hex(0, 2)};
}

QByteArray datensatz(const Zemakvariante& v, int i) {
    const bool ist3740 = v.selektor == selektor::Zemak3740;
    const Messung m = messung(i, ist3740);
    if (v.selektor == selektor::Zemak)
        return felder3710(m).join(',');
    if (v.selektor == selektor::Zemak3710B)
        return felder3710B(m).join(',');
    if (ist3740)
        return felder3740(m).join(',');
    return felder3720(m).join(',');
}

// The closing's two characters: the instrument's check sum of the records.
QByteArray prüfsumme(const QList<QByteArray>& datensätze) {
    quint32 summe = 0;
    for (const QByteArray& d : datensätze)
        for (const char c : d)
            summe += quint8(c);
    return hex(summe & 0xFF, 2);
}

} // namespace

QByteArray zemakKennung(const Zemakvariante& v) {
    static const std::map<QString, QByteArray> kennungen{
        {selektor::Zemak, "ZEMAK 3710,V2.14,00471102"},
        {selektor::Zemak3710B, "ZEMAK 3710B,V3.02,00471103"},
        {selektor::Zemak3720, "ZEMAK 3720B,V1.40,00471104"},
        {selektor::Quentavoir, "HELVARD Quentavoir,V1.40,00471105"},
        {selektor::Zemak3740, "ZEMAK 3740B,V1.12,00471106"},
    };
    return kennungen.at(v.selektor);
}

QByteArray ZemakSpeicher::antwort() const {
    return kopf + datensätze.join() + "\r" + schluss + "\r";
}

QByteArray ZemakSpeicher::arbeitsdatei(const QByteArray& uhrzeile, const QByteArray& stellantwort) const {
    QList<QByteArray> zeilen{kennung, uhrzeile, stellantwort};
    if (!leer())
        zeilen << kopf << datensätze << schluss;
    return zeilen.join(Zeilenende) + Zeilenende;
}

std::optional<ZemakSpeicher> ZemakSpeicher::ausArbeitsdatei(const QByteArray& datei, const Zemakvariante& v,
                                                            QString& fehler) {
    QList<QByteArray> zeilen = datei.split('\n');
    for (QByteArray& z : zeilen)
        if (z.endsWith('\r'))
            z.chop(1);
    if (!zeilen.isEmpty() && zeilen.last().isEmpty())
        zeilen.removeLast();

    ZemakSpeicher s;
    const QString kennung = QString::fromLatin1(v.kennung);
    for (const QByteArray& z : zeilen)
        if (QString::fromLatin1(z).contains(kennung, Qt::CaseInsensitive)) {
            s.kennung = z;
            break;
        }
    if (s.kennung.isEmpty()) {
        fehler = "no identification line with \"" + kennung + "\"";
        return std::nullopt;
    }
    qsizetype kopf = -1;
    for (qsizetype i = 0; i < zeilen.size() && kopf < 0; ++i)
        if (zeilen[i].startsWith(Antwortkopf))
            kopf = i;
    if (kopf < 0)
        return s;
    if (kopf + 1 >= zeilen.size()) {
        fehler = "no closing line behind the records";
        return std::nullopt;
    }
    s.kopf = zeilen[kopf];
    s.datensätze = zeilen.mid(kopf + 1, zeilen.size() - kopf - 2);
    s.schluss = zeilen.last();
    return s;
}

ZemakSpeicher ZemakSpeicher::erzeugen(const Zemakvariante& v, int n) {
    ZemakSpeicher s;
    s.kennung = zemakKennung(v);
    if (n <= 0)
        return s;
    s.kopf = Antwortkopf + hex(quint64(n), v.zählerstellen) + ",";
    for (int i = 0; i < n; ++i)
        s.datensätze << datensatz(v, i) + (i + 1 < n ? "," : "");
    s.schluss = prüfsumme(s.datensätze);
    return s;
}

} // namespace vemo::sim
