#pragma once

#include "Leitung.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <memory>

namespace vemo::sim {

class Instrument;

// The instrument's end of a pseudo-terminal. The other end, the slave device, is a serial port to
// the program that opens it. The simulator keeps a handle of the slave itself, so that the line
// stays usable while no program has it open; bytes that find the line full wait, none are lost.
class PtyLeitung : public QObject, public Leitung {
    Q_OBJECT
public:
    // Nothing when the system gives no pseudo-terminal; the reason goes to fehler.
    static std::unique_ptr<PtyLeitung> öffnen(QString& fehler);
    // Takes over both handles of an open pseudo-terminal.
    PtyLeitung(int master, int slave, QString slavePfad);
    ~PtyLeitung() override;

    QString gerätePfad() const { return m_slavePfad; }
    void setInstrument(Instrument* gerät);
    void senden(const QByteArray& bytes) override;

private:
    void lesen();
    void weiterSchreiben();

    int m_master;
    int m_slave;
    QString m_slavePfad;
    Instrument* m_gerät = nullptr;
    QByteArray m_ausgang;
    QSocketNotifier m_lesbar;
    QSocketNotifier m_schreibbar;
};

} // namespace vemo::sim
