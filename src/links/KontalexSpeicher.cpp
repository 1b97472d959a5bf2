#include "links/KontalexSpeicher.h"

#include "links/KontalexText.h"

namespace vemo {
namespace {

const QByteArray Antwortmarke = "SER";
const QByteArray Blockmarke = "SRE";
constexpr int Anzahllänge = 6;
constexpr int Startlänge = 5;
constexpr int Kopflänge = 4;

} // namespace

QByteArray Kontalexspeicher::rohdatei() const {
    return anzahl + wer + start + dump() + ende;
}

QByteArray Kontalexspeicher::dump() const {
    QByteArray alles;
    for (const QByteArray& b : blöcke)
        alles += b;
    return alles;
}

QString Kontalexspeicher::modell() const {
    return geräteinfoLesen(wer).value(0);
}

int Kontalexspeicher::blockzahl() const {
    int anzahl = 0;
    for (const QByteArray& b : blöcke) {
        if (b.size() < Kopflänge || quint8(b[Kopflänge - 1]) == 0)
            break;
        ++anzahl;
    }
    return anzahl;
}

bool istKontalexRohdatei(const QByteArray& anfang) {
    return anfang.size() >= Anzahllänge && anfang.startsWith(Antwortmarke) && anfang[3] == 2;
}

std::optional<Kontalexspeicher> kontalexSpeicherLesen(const QByteArray& rohdatei) {
    if (!istKontalexRohdatei(rohdatei))
        return std::nullopt;
    Kontalexspeicher s;
    s.anzahl = rohdatei.left(Anzahllänge);
    qsizetype start = rohdatei.indexOf(Antwortmarke, Anzahllänge);
    if (start < 0)
        start = rohdatei.size();
    s.wer = rohdatei.mid(Anzahllänge, start - Anzahllänge);
    s.start = rohdatei.mid(start, Startlänge);
    qsizetype pos = start + s.start.size();
    while (pos + Kopflänge <= rohdatei.size() && rohdatei.mid(pos, Blockmarke.size()) == Blockmarke) {
        const int länge = quint8(rohdatei[pos + Kopflänge - 1]);
        s.blöcke << rohdatei.mid(pos, Kopflänge + länge);
        pos += Kopflänge + länge;
    }
    s.ende = rohdatei.mid(pos);
    return s;
}

} // namespace vemo
