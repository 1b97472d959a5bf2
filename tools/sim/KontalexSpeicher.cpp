#include "KontalexSpeicher.h"

#include <array>

namespace vemo::sim {
namespace {

constexpr int GrößteLänge = 255;
constexpr int PlätzeJeStromkreis = 4;
constexpr int StromkreiseJeObjekt = 3;

QByteArray niedrigZuerst(int zahl) {
    return QByteArray{1, char(zahl & 0xFF)} + char(zahl >> 8 & 0xFF);
}

QByteArray hochZuerst(int zahl) {
    return QByteArray{1, char(zahl >> 8 & 0xFF)} + char(zahl & 0xFF);
}

QByteArray messbytes(const Messung& m) {
    QByteArray b(1, char(m.funktion));
    for (const Messfeld& f : m.felder)
        b += QByteArray(1, f.art) + char(f.wertcode) + char(f.einheitcode) + f.wert + '\0';
    return b;
}

QByteArray komma(double wert, int stellen) {
    return QByteArray::number(wert, 'f', stellen);
}

// The tests of each model, one after the other; i varies the values.
using Prüfung = Messung (*)(int i);

const QList<Prüfung>& kontalexPrüfungen() {
    static const QList<Prüfung> p{
        [](int i) -> Messung {
            return {15,
                    {{'R', 4, 7, QByteArray::number(100 + i * 37 % 400)},
                     {'R', 6, 1, "512"},
                     {'P', 90, 1, "500"},
                     {'M', 4, 7, "1"}}};
        },
        [](int i) -> Messung {
            const double r = 0.10 + 0.01 * (i % 9);
            return {2,
                    {{'R', 4, 5, komma(r, 2)},
                     {'R', 2, 5, komma(r - 0.01, 2)},
                     {'R', 3, 5, komma(r + 0.01, 2)},
                     {'M', 4, 5, "2"}}};
        },
        [](int i) -> Messung {
            const double z = 0.30 + 0.02 * (i % 10);
            return {28,
                    {{'R', 20, 5, komma(z, 2)},
                     {'R', 21, 3, QByteArray::number(qRound(230 / z))},
                     {'R', 22, 5, komma(z * 0.8, 2)},
                     {'R', 23, 5, komma(z * 0.5, 2)}}};
        },
        [](int i) -> Messung {
            return {7,
                    {{'P', 87, 4, "30"},
                     {'P', 88, 2, "x1"},
                     {'P', 89, 32, ""},
                     {'P', 91, 34, ""},
                     {'R', 33, 10, QByteArray::number(12 + i % 20)},
                     {'R', 38, 1, komma(2.5 + 0.1 * (i % 10), 1)}}};
        },
        [](int) -> Messung {
            return {33, {{'R', 16, 2, "1.2.3"}}};
        },
        [](int i) -> Messung {
            return {11, {{'R', 49, 5, komma(8.5 + i % 7, 1)}, {'M', 50, 5, "100"}}};
        },
        [](int i) -> Messung {
            return {20, {{'R', 6, 1, QByteArray::number(228 + i % 5)}}};
        },
        [](int i) -> Messung {
            return {30,
                    {{'R', 24, 5, komma(0.25 + 0.01 * (i % 8), 2)},
                     {'R', 25, 24, komma(0.90 - 0.01 * (i % 8), 2)}}};
        },
        [](int i) -> Messung {
            return {8,
                    {{'P', 87, 4, "30"},
                     {'P', 89, 33, ""},
                     {'R', 36, 4, QByteArray::number(18 + i % 9)},
                     {'R', 35, 10, QByteArray::number(25 + i % 11)}}};
        },
        [](int i) -> Messung {
            const double r = 0.40 + 0.03 * (i % 6);
            return {27, {{'R', 28, 5, komma(r, 2)}, {'R', 29, 3, QByteArray::number(qRound(230 / r))}}};
        },
    };
    return p;
}

const QList<Prüfung>& pravitonixPrüfungen() {
    static const QList<Prüfung> p{
        [](int i) -> Messung {
            return {105, {{'R', 102, 105, QByteArray::number(150 + i * 29 % 300)}, {'P', 132, 101, "500"}}};
        },
        [](int i) -> Messung {
            const double r = 0.12 + 0.01 * (i % 7);
            return {103,
                    {{'R', 102, 103, komma(r, 2)},
                     {'R', 100, 103, komma(r - 0.01, 2)},
                     {'R', 101, 103, komma(r + 0.01, 2)}}};
        },
        [](int i) -> Messung {
            const double z = 0.35 + 0.02 * (i % 9);
            return {106,
                    {{'R', 119, 103, komma(z, 2)}, {'R', 120, 107, QByteArray::number(qRound(230 / z))}}};
        },
        [](int i) -> Messung {
            return {108, {{'R', 121, 103, komma(0.30 + 0.01 * (i % 6), 2)}, {'R', 122, 108, "0.70"}}};
        },
        [](int i) -> Messung {
            return {111,
                    {{'P', 128, 102, "30"},
                     {'P', 130, 2, "x1"},
                     {'P', 131, 116, ""},
                     {'P', 129, 118, ""},
                     {'R', 107, 106, QByteArray::number(15 + i % 25)},
                     {'R', 104, 101, komma(3.0 + 0.2 * (i % 5), 1)}}};
        },
        [](int) -> Messung {
            return {109, {{'R', 123, 2, "1.2.3"}}};
        },
        [](int i) -> Messung {
            return {112,
                    {{'P', 128, 102, "30"},
                     {'P', 131, 117, ""},
                     {'R', 109, 102, QByteArray::number(20 + i % 8)},
                     {'R', 108, 106, QByteArray::number(24 + i % 12)}}};
        },
        [](int i) -> Messung {
            return {104, {{'R', 124, 101, QByteArray::number(226 + i % 7)}}};
        },
    };
    return p;
}

const QList<Prüfung>& georinPrüfungen() {
    static const QList<Prüfung> p{
        [](int i) -> Messung {
            return {202, {{'R', 208, 203, komma(6.0 + 0.4 * (i % 10), 1)}, {'P', 207, 207, "48"}}};
        },
        [](int i) -> Messung {
            return {203, {{'R', 208, 203, komma(7.5 + 0.3 * (i % 9), 1)}, {'M', 208, 203, "10"}}};
        },
        [](int i) -> Messung {
            return {201, {{'R', 211, 210, QByteArray::number(60 + i % 50)}}};
        },
        [](int i) -> Messung {
            return {205, {{'R', 200, 205, QByteArray::number(300 + i * 41 % 500)}, {'P', 207, 207, "500"}}};
        },
        [](int i) -> Messung {
            return {208, {{'R', 200, 203, komma(0.08 + 0.01 * (i % 5), 2)}, {'M', 202, 203, "2"}}};
        },
        [](int i) -> Messung {
            return {206, {{'R', 204, 207, QByteArray::number(227 + i % 6)}}};
        },
        [](int i) -> Messung {
            return {207, {{'R', 203, 202, komma(1.2 + 0.1 * (i % 9), 1)}}};
        },
    };
    return p;
}

const QList<Prüfung>& voltiraPrüfungen() {
    static const QList<Prüfung> p{
        [](int i) -> Messung {
            return {2,
                    {{'R', 1, 3, QByteArray::number(800 + i * 53 % 900)},
                     {'R', 2, 1, "5000"},
                     {'R', 3, 14, "4.0"},
                     {'R', 4, 9, "22"}}};
        },
        [](int i) -> Messung {
            return {1, {{'R', 32, 1, QByteArray::number(395 + i % 8)}, {'R', 49, 16, "50.0"}}};
        },
        [](int i) -> Messung {
            return {4,
                    {{'R', 7, 4, komma(12.0 + 0.2 * (i % 5), 1)},
                     {'R', 8, 4, "18.9"},
                     {'R', 9, 4, "21.3"},
                     {'R', 10, 13, "1.52"},
                     {'R', 12, 13, "0.03"}}};
        },
        [](int) -> Messung {
            return {6, {{'R', 17, 4, "15.2"}, {'R', 18, 4, "14.8"}}};
        },
        [](int) -> Messung {
            return {7, {{'R', 48, 1, "5000"}, {'R', 33, 7, "1.2"}}};
        },
    };
    return p;
}

struct Simulation {
    QString modell;
    const QList<Prüfung>& (*prüfungen)();
    QString seriennummer;
};

const Simulation* simulation(const QString& modell) {
    static const std::array<Simulation, 4> simulationen{{
        {"KONTALEX", kontalexPrüfungen, kontalex::Seriennummern[0]},
        {"PRAVITONIX", pravitonixPrüfungen, kontalex::Seriennummern[1]},
        {"Georin-Barrier Analyzer", georinPrüfungen, kontalex::Seriennummern[2]},
        {"VOLTIRA 9KV", voltiraPrüfungen, kontalex::Seriennummern[3]},
    }};
    for (const Simulation& s : simulationen)
        if (s.modell == modell)
            return &s;
    return nullptr;
}

// Place after place, circuit after circuit, object after object; the high-voltage tester numbers
// its places on, past 999.
Messort ortDerMessung(int i, Blockform form) {
    Messort o;
    o.satz = i + 1;
    o.platz = form == Blockform::Block ? 998 + i : i % PlätzeJeStromkreis + 1;
    o.stromkreis = i / PlätzeJeStromkreis % StromkreiseJeObjekt + 1;
    o.objekt = i / (PlätzeJeStromkreis * StromkreiseJeObjekt) + 1;
    o.zeit = QByteArray::number(8 + i / 60 % 10).rightJustified(2, '0') + ":" +
             QByteArray::number(i % 60).rightJustified(2, '0');
    o.datum = "17.03.2024";
    return o;
}

} // namespace

QByteArray kontalexBlock(Blockform form, const Messort& ort, const Messung& messung) {
    QByteArray inhalt;
    switch (form) {
    case Blockform::Voll:
        inhalt = niedrigZuerst(ort.objekt) + niedrigZuerst(ort.stromkreis) + niedrigZuerst(ort.platz) + '\0' +
                 ort.zeit + '\0' + 'D' + ort.datum + '\0' + 'M' + messbytes(messung) + "T" + '\0' + 'S';
        break;
    case Blockform::Kurz:
        inhalt = niedrigZuerst(ort.stromkreis) + niedrigZuerst(ort.platz) + messbytes(messung) + 'S';
        break;
    case Blockform::Block:
        inhalt = hochZuerst(ort.satz) + hochZuerst(ort.platz) + messbytes(messung) + 'T' + ort.zeit + '\0' +
                 'D' + ort.datum + '\0';
        break;
    }
    inhalt.truncate(GrößteLänge);
    return "SRE" + QByteArray(1, char(inhalt.size())) + inhalt;
}

QByteArray anzahlAntwort(int blöcke) {
    return "SER" + QByteArray(1, 2) + hochZuerst(blöcke);
}

QByteArray werAntwort(const QString& modell, const QString& seriennummer) {
    const bool ohneSprache = kontalexModell(modell).ohneSprache;
    QList<QByteArray> felder{"WH",   "01",   modell.toLatin1(),       "STD",
                             "2.14", "HW 3", seriennummer.toLatin1(), "01.2024"};
    if (!ohneSprache)
        felder << "Deutsch";
    QByteArray antwort;
    for (const QByteArray& f : felder)
        antwort += f + '\0';
    return antwort;
}

QByteArray kontalexRohdatei(const QString& modell, const QList<QByteArray>& blöcke) {
    const Simulation* s = simulation(modell);
    const QString seriennummer = s ? s->seriennummer : kontalex::Seriennummern[0];
    QByteArray roh =
        anzahlAntwort(int(blöcke.size())) + werAntwort(modell, seriennummer) + kontalex::Bestätigt;
    for (const QByteArray& b : blöcke)
        roh += b;
    roh += kontalex::Endblock;
    if (kontalexModell(modell).mexMitAntwort)
        roh += kontalex::Bestätigt;
    return roh;
}

QByteArray kontalexSpeicher(int messungen, const QString& modell) {
    const Simulation* s = simulation(modell);
    if (!s)
        return {};
    const Blockform form = kontalexModell(modell).form;
    const QList<Prüfung>& prüfungen = s->prüfungen();
    QList<QByteArray> blöcke;
    for (int i = 0; i < messungen; ++i)
        blöcke << kontalexBlock(form, ortDerMessung(i, form), prüfungen[i % prüfungen.size()](i));
    return kontalexRohdatei(modell, blöcke);
}

} // namespace vemo::sim
