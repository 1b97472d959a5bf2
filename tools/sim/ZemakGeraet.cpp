#include "ZemakGeraet.h"

#include "core/Instrumentenuhr.h"

namespace vemo::sim {
namespace {

const QByteArray Ok = "0";
const QByteArray Unverstanden = "?";
const QByteArray Leer = "5";
const QByteArray Kennungsbefehl = "PS 0,";
const QByteArray Stellbefehl = "XS,";

} // namespace

ZemakGerät::ZemakGerät(ZemakSpeicher speicher, Verhalten verhalten, QObject* parent)
    : Instrument(parent), m_speicher(std::move(speicher)), m_störungen(verhalten.störungen),
      m_schlange([this](const QByteArray& b) {
          senden(b);
          m_gesendet += b.size();
      }),
      m_uhrGestellt(werksuhr()) {
    m_schlange.setBaud(verhalten.takt.baud);
    m_seitGestellt.start();
    m_seitStart.start();
}

quint32 ZemakGerät::werksuhr() {
    return *ZEMAKsecTime(1, 1, 2020, 0, 0, 0);
}

quint32 ZemakGerät::uhr() const {
    return m_uhrGestellt + quint32(m_seitGestellt.elapsed() / 1000);
}

bool ZemakGerät::ausgesteckt() const {
    const qint64 ab = m_störungen.ausgestecktAb;
    const qint64 seitdem = m_seitStart.elapsed() - ab;
    return ab >= 0 && seitdem >= 0 && (m_störungen.ausgestecktMs == 0 || seitdem < m_störungen.ausgestecktMs);
}

void ZemakGerät::empfangen(const QByteArray& bytes) {
    if (ausgesteckt())
        return;
    m_eingang += bytes;
    for (qsizetype cr = m_eingang.indexOf('\r'); cr >= 0; cr = m_eingang.indexOf('\r')) {
        const QByteArray text = m_eingang.left(cr).trimmed();
        m_eingang.remove(0, cr + 1);
        befehl(text);
    }
}

void ZemakGerät::befehl(const QByteArray& text) {
    if (text == "ID")
        antworten(m_speicher.kennung);
    else if (text == "XG")
        antworten("XG," + QByteArray::number(uhr()));
    else if (text.startsWith(Stellbefehl))
        uhrStellen(text.mid(Stellbefehl.size()));
    else if (text == "~QD 2.")
        speicherSenden();
    else if (text.startsWith(Kennungsbefehl))
        kennungSetzen(text.mid(Kennungsbefehl.size()));
    else if (text == "CD") {
        m_speicher = {m_speicher.kennung, {}, {}, {}};
        emit note("memory cleared");
        antworten(Ok);
    } else
        antworten(Unverstanden);
}

void ZemakGerät::uhrStellen(const QByteArray& wert) {
    bool ok = false;
    const quint32 sekunden = wert.toUInt(&ok);
    if (!ok) {
        antworten(Unverstanden);
        return;
    }
    m_uhrGestellt = sekunden;
    m_seitGestellt.restart();
    emit note("clock set to " + QString::number(sekunden) + " (" +
              ZeitAusSekunden(sekunden).toString("dd.MM.yyyy HH:mm:ss") + ")");
    antworten(Ok);
}

// The serial number is what stands behind the identification's last comma.
void ZemakGerät::kennungSetzen(const QByteArray& id) {
    const qsizetype komma = m_speicher.kennung.lastIndexOf(',');
    m_speicher.kennung = m_speicher.kennung.left(komma + 1) + id;
    emit note("identification set to " + QString::fromLatin1(m_speicher.kennung));
    antworten(Ok);
}

// The misbehaviours of the tests act on the memory reply alone: characters missing at the end of
// its records, or a silence in its midst.
void ZemakGerät::speicherSenden() {
    if (m_speicher.leer()) {
        antworten(Leer);
        return;
    }
    ++m_abfragen;
    ZemakSpeicher gesendet = m_speicher;
    const bool kurz = m_störungen.kurzeAntworten < 0 || m_abfragen <= m_störungen.kurzeAntworten;
    if (kurz && m_störungen.fehlendeZeichen > 0) {
        const QByteArray alle = gesendet.datensätze.join();
        gesendet.datensätze = {alle.chopped(std::min<qsizetype>(m_störungen.fehlendeZeichen, alle.size()))};
    }
    const QByteArray antwort = gesendet.antwort();
    m_gesendet = 0;
    const qsizetype stille = m_störungen.stilleNach;
    if (stille < 0 || stille >= antwort.size()) {
        m_schlange.anhängen(antwort);
    } else {
        m_schlange.anhängen(antwort.left(stille), m_störungen.stilleMs);
        if (m_störungen.stilleMs > 0)
            m_schlange.anhängen(antwort.mid(stille));
    }
    connect(
        &m_schlange, &Sendeschlange::drained, this, [this] { emit sent(m_gesendet); },
        Qt::SingleShotConnection);
}

void ZemakGerät::antworten(const QByteArray& zeile) {
    m_schlange.anhängen(zeile + '\r');
}

} // namespace vemo::sim
