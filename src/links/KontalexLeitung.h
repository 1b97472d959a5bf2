#pragma once

#include "platform/Fehler.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

namespace vemo {

class CommPort;

// The serial side of the command protocol. A command is three letters with no end mark; its answer
// gathers in the buffer, and it is complete when the buffer has not grown over one interval of the
// silence timer. While the raw file is open ("Messungen" mode) every byte goes into it the moment
// it comes, so that a broken transfer leaves what came.
class KontalexLeitung : public QObject {
    Q_OBJECT
public:
    explicit KontalexLeitung(int stillezeit, QObject* parent = nullptr);
    ~KontalexLeitung() override;

    // The component's port at 9600 baud without handshake; raises the port's errors.
    void öffnen();
    void schließen();

    void rohdateiÖffnen(const QString& pfad);
    void rohdateiSchließen();

    // Empties the buffer (and, for a block, the port's input), sends, and watches for silence.
    void senden(const QByteArray& befehl, bool eingangLeeren = false);
    const QByteArray& puffer() const { return m_puffer; }
    bool stille() const { return m_stille; }
    // The silence seen is dealt with: the flag goes and the timer stops.
    void stilleQuittieren();
    // Raises an error of the raw file that came up while bytes arrived.
    void fehlerWeitergeben();

private:
    void ereignis(int ereignis);
    void stilleTakt();

    std::unique_ptr<CommPort> m_port;
    QTimer m_timer1;
    QByteArray m_puffer;
    QByteArray m_letzterPuffer;
    bool m_stille = false;
    QFile m_rohdatei;
    std::optional<Fehler> m_fehler;
};

} // namespace vemo
