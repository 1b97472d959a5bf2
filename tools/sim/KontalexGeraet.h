#pragma once

#include "Instrument.h"
#include "MultitesterGeraet.h"
#include "links/KontalexSpeicher.h"

#include <QByteArray>
#include <QStringList>
#include <QTimer>

namespace vemo::sim {

// A command-protocol instrument in remote mode: it answers "MRD" that it is ready, "MNU" with the
// number of blocks, "MWH" with who it is, "MSS" with the start, each "MRE" with the next block of
// its memory (the empty block once they are all gone), and "MEX", where its model does, with the
// end. The answers are those its memory holds, so that a transfer gives back the raw file it was
// made from. It sends at the pace of its line speed; it can be made to break off in a block.
// (No Q_OBJECT: it adds no signals, and the meta-object compiler reads no umlauts in class names.)
class KontalexGerät : public Instrument {
public:
    // rohdatei: a raw file as the component saves it; one that is none makes an empty memory.
    explicit KontalexGerät(const QByteArray& rohdatei, Takt takt = {}, QObject* parent = nullptr);

    void empfangen(const QByteArray& bytes) override;
    // The instrument has no send key: the computer asks.
    void tasteGedrückt() override {}

    // After this many blocks sent it stops in the middle of the next one, as a pulled cable does.
    void setAbbruchNachBlöcken(int blöcke) { m_abbruchNach = blöcke; }
    // The commands heard so far, in order.
    const QStringList& befehle() const { return m_befehle; }

private:
    void befehlAusführen(const QByteArray& befehl);
    void antworten(const QByteArray& antwort);
    QByteArray nächsterBlock();
    void weiterSenden();

    Kontalexspeicher m_speicher;
    Takt m_takt;
    QByteArray m_eingang;
    QByteArray m_ausgang;
    QStringList m_befehle;
    qsizetype m_nächsterBlock = 0;
    int m_abbruchNach = -1;
    bool m_stumm = false;
    bool m_abgebrochen = false;
    qint64 m_gesendet = 0;
    QTimer m_uhr;
};

} // namespace vemo::sim
