#pragma once

#include "links/MyComm.h"
#include "platform/Dialog.h"

#include <QByteArray>
#include <QString>
#include <QTimer>
#include <optional>

namespace vemo {

// The dialog of the Sorelin block transfer. The instrument sends its memory image on its own when
// its send key is pressed; the dialog sends nothing, listens on the raw port, follows the framing
// far enough to show progress and to know the end, and saves every byte it got as Rs232.sep beside
// the database, but only once the end mark has come: an abort at any moment leaves the file of the
// last transfer as it was. The whole transfer runs while the dialog is shown; its abort button and
// Ctrl-C reach the loops through Abbruchmerker.
class frmSorelin : public DialogController {
    Q_OBJECT
public:
    static constexpr int Gerätecode = 102;     // the raw port's line: 9600 baud, even parity, RTS on
    static constexpr int Blinktakt = 500;      // ms of Timer1
    static constexpr int Einschwingzeit = 200; // ms the port settles before its input is thrown away

    explicit frmSorelin(QObject* parent = nullptr);
    ~frmSorelin() override;

    // Shows the dialog modally and runs the transfer in it; returns when it has closed.
    void zeigen();

    QString titel() const;
    QString abbrechenText() const;
    const QString& sendText() const { return m_sendText; }
    bool sendTextSichtbar() const { return m_sendTextSichtbar; }
    bool blinkt() const { return m_blinker.isActive(); }
    // The progress bar Bar1 and the label beside it.
    int fortschrittMin() const { return m_min; }
    int fortschrittMax() const { return m_max; }
    int fortschrittWert() const { return m_wert; }
    const QString& prozentText() const { return m_prozent; }
    // Everything received since the port's input was thrown away.
    const QByteArray& empfangspuffer() const { return m_puffer; }

    // ComAbbruch: the port closes, Abbruchmerker is set, the dialog goes.
    void abbrechen();

    // Tests shorten the wait of a port that settles.
    void setEinschwingzeit(int ms) { m_einschwingzeit = ms; }

private:
    void übertragen();
    bool portÖffnen();
    // Reads what has come, serving events; false when the transfer is to end (Abbruchmerker).
    bool lesen();
    bool bisLänge(qsizetype länge);
    std::optional<qsizetype> startmarkeAbwarten();
    void datenKommen();
    std::optional<qsizetype> datenblockSuchen(qsizetype startmarke);
    bool bisEndmarke(qsizetype datenblock);
    void fortschrittZeigen();
    void speichern() const;
    void fehlerMelden(const Fehler& f);
    void blinken();
    void beenden();

    MyComm m_comm;
    QTimer m_blinker;
    QByteArray m_puffer;
    QString m_sendText;
    bool m_sendTextSichtbar = true;
    int m_min = 0;
    int m_max = 100;
    int m_wert = 0;
    QString m_prozent;
    int m_einschwingzeit = Einschwingzeit;
};

} // namespace vemo
