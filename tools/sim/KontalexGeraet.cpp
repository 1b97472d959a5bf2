#include "KontalexGeraet.h"

#include "KontalexSpeicher.h"

#include <algorithm>

namespace vemo::sim {
namespace {

constexpr int Befehlslänge = 3;
const QByteArray Blockbefehl("MRE\0", 4);
constexpr int Stückdauer = 20; // ms of line time written at once

Kontalexspeicher speicherAus(const QByteArray& rohdatei) {
    if (auto s = kontalexSpeicherLesen(rohdatei))
        return *s;
    return *kontalexSpeicherLesen(anzahlAntwort(0) + kontalex::Bestätigt);
}

} // namespace

KontalexGerät::KontalexGerät(const QByteArray& rohdatei, Takt takt, QObject* parent)
    : Instrument(parent), m_speicher(speicherAus(rohdatei)), m_takt(takt) {
    m_uhr.setSingleShot(true);
    connect(&m_uhr, &QTimer::timeout, this, &KontalexGerät::weiterSenden);
}

void KontalexGerät::empfangen(const QByteArray& bytes) {
    m_eingang += bytes;
    while (m_eingang.size() >= Befehlslänge) {
        if (m_eingang.startsWith("MRE")) {
            if (m_eingang.size() < Blockbefehl.size())
                return;
            m_eingang.remove(0, Blockbefehl.size());
            befehlAusführen("MRE");
            continue;
        }
        const QByteArray befehl = m_eingang.left(Befehlslänge);
        static const QList<QByteArray> bekannt{"MRD", "MNU", "MWH", "MSS", "MEX"};
        if (!bekannt.contains(befehl)) {
            m_eingang.remove(0, 1); // noise on the line
            continue;
        }
        m_eingang.remove(0, Befehlslänge);
        befehlAusführen(befehl);
    }
}

void KontalexGerät::befehlAusführen(const QByteArray& befehl) {
    m_befehle << QString::fromLatin1(befehl);
    if (befehl == "MRD")
        antworten(kontalex::Bestätigt);
    else if (befehl == "MNU")
        antworten(m_speicher.anzahl);
    else if (befehl == "MWH")
        antworten(m_speicher.wer);
    else if (befehl == "MSS")
        antworten(m_speicher.start);
    else if (befehl == "MRE")
        antworten(nächsterBlock());
    else if (befehl == "MEX") {
        antworten(m_speicher.ende);
        emit sent(m_gesendet + m_ausgang.size());
    }
}

QByteArray KontalexGerät::nächsterBlock() {
    if (m_nächsterBlock >= m_speicher.blöcke.size())
        return kontalex::Endblock;
    const QByteArray block = m_speicher.blöcke[m_nächsterBlock++];
    if (m_abbruchNach >= 0 && m_nächsterBlock > m_abbruchNach) {
        m_abgebrochen = true;
        return block.left(block.size() / 2);
    }
    return block;
}

void KontalexGerät::antworten(const QByteArray& antwort) {
    if (m_stumm || antwort.isEmpty())
        return;
    m_ausgang += antwort;
    if (!m_uhr.isActive())
        weiterSenden();
}

// A piece of the line time at a time; at speed 0 everything at once.
void KontalexGerät::weiterSenden() {
    if (m_ausgang.isEmpty())
        return;
    const qsizetype größe = m_takt.baud > 0
                                ? std::max<qsizetype>(1, qsizetype(m_takt.baud) / 10 * Stückdauer / 1000)
                                : m_ausgang.size();
    const QByteArray stück = m_ausgang.left(größe);
    m_ausgang.remove(0, stück.size());
    senden(stück);
    m_gesendet += stück.size();
    if (m_abgebrochen && m_ausgang.isEmpty())
        m_stumm = true; // the cable is gone: nothing more comes through
    if (!m_ausgang.isEmpty())
        m_uhr.start(Stückdauer);
}

} // namespace vemo::sim
