#pragma once

#include "Instrument.h"
#include "Sendeschlange.h"
#include "Verhalten.h"
#include "ZemakSpeicher.h"

#include <QElapsedTimer>

namespace vemo::sim {

// An instrument of the 37xx family: it answers commands ended by CR, each with a line ended by
// CR. "ID" gives its identification, "XG" its clock as "XG," and the count of seconds, "XS,n"
// sets the clock, "~QD 2." sends the memory ("5" when it holds nothing), "PS 0,id" makes the 8
// characters id its serial number, "CD" empties the memory; the last three, and what it does not
// understand ("?"), are answered with a status line. Its cable can be pulled for a while. The key does
// nothing: the family sends only when asked. (No Q_OBJECT: it adds no signals, and the meta-object compiler
// reads no umlauts in class names.)
class ZemakGerät : public Instrument {
public:
    explicit ZemakGerät(ZemakSpeicher speicher, Verhalten verhalten = {{9600, 0}, {}},
                        QObject* parent = nullptr);

    void empfangen(const QByteArray& bytes) override;
    void tasteGedrückt() override {}

    // Where the clock stands until it is first set: 01.01.2020 00:00:00.
    static quint32 werksuhr();

    quint32 uhr() const;
    const ZemakSpeicher& speicher() const { return m_speicher; }
    // How many memory replies it has begun to send.
    int speicherabfragen() const { return m_abfragen; }

private:
    void befehl(const QByteArray& text);
    void uhrStellen(const QByteArray& wert);
    void kennungSetzen(const QByteArray& id);
    void speicherSenden();
    void antworten(const QByteArray& zeile);
    // The cable is out: the instrument hears nothing, so it answers nothing.
    bool ausgesteckt() const;

    ZemakSpeicher m_speicher;
    Störungen m_störungen;
    Sendeschlange m_schlange;
    QByteArray m_eingang;
    quint32 m_uhrGestellt;
    QElapsedTimer m_seitGestellt;
    QElapsedTimer m_seitStart;
    int m_abfragen = 0;
    qint64 m_gesendet = 0;
};

} // namespace vemo::sim
