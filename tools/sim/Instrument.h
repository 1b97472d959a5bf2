#pragma once

#include <QByteArray>
#include <QObject>

namespace vemo::sim {

class Leitung;

// The behaviour of an instrument at its end of the serial line: it answers what the computer
// sends and acts on its keys. Each family of instruments is a class of its own; the same object
// runs behind a pseudo-terminal in the simulator program and behind an in-memory port in tests.
class Instrument : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    void setLeitung(Leitung* leitung) { m_leitung = leitung; }
    // What the computer sent.
    virtual void empfangen(const QByteArray& bytes) = 0;
    // The key that makes the instrument send its memory.
    virtual void tasteGedrückt() = 0;

signals:
    // A transfer of the instrument's own has ended; the number of bytes it sent.
    void sent(qint64 bytes);
    // Something worth a line in the simulator's log: the clock set, the memory cleared.
    void note(const QString& text);

protected:
    void senden(const QByteArray& bytes);

private:
    Leitung* m_leitung = nullptr;
};

} // namespace vemo::sim
