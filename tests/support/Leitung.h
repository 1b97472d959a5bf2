#pragma once

#include "core/ModulState.h"
#include "platform/CommPortSpeicher.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QStringList>
#include <QTimer>
#include <memory>

namespace vemo::test {

// Hands the next serial control the component makes to one end of an in-memory pair and gives
// back the other end, the instrument's. Later controls are ends of fresh pairs with nobody behind.
inline std::unique_ptr<SpeicherCommPort> speicherleitungEinstecken(int stückgröße = 64) {
    auto paar = SpeicherCommPort::paar(stückgröße);
    auto halter = std::make_shared<std::unique_ptr<CommPort>>(std::move(paar.a));
    modul().commPortFabrik = [halter]() -> std::unique_ptr<CommPort> {
        if (*halter)
            return std::move(*halter);
        return std::move(SpeicherCommPort::paar().a);
    };
    return std::move(paar.b);
}

// Sends the pieces one after the other, each in a turn of the event loop of its own, the gap apart.
inline void nacheinanderSenden(CommPort& ende, const QList<QByteArray>& stücke, int abstand) {
    for (qsizetype i = 0; i < stücke.size(); ++i)
        QTimer::singleShot(int(abstand * (i + 1)), &ende, [&ende, s = stücke[i]] { ende.Output(s); });
}

// The simulator program on a pseudo-terminal of its own, stopped when the object goes.
class Simulator {
public:
    explicit Simulator(const QStringList& argumente) {
        m_prozess.start(QString(VEMO_BIN_DIR) + "/vemo0100-sim", argumente);
        const QDeadlineTimer frist(5000);
        while (!m_prozess.canReadLine() && m_prozess.state() != QProcess::NotRunning && !frist.hasExpired())
            m_prozess.waitForReadyRead(100);
        m_gerät = QString::fromLocal8Bit(m_prozess.readLine()).trimmed();
    }
    ~Simulator() {
        if (m_prozess.state() != QProcess::NotRunning) {
            m_prozess.terminate();
            if (!m_prozess.waitForFinished(2000))
                m_prozess.kill();
            m_prozess.waitForFinished(2000);
        }
    }

    // The slave device it printed; empty when it did not start.
    const QString& gerät() const { return m_gerät; }
    // The send key, as Enter on its standard input.
    void tasteDrücken() { m_prozess.write("\n"); }
    // The cable pulled: the instrument's end goes at once.
    void kabelZiehen() { m_prozess.kill(); }
    // Its log on standard error so far, one line a happening ("clock set to ...", "sent N bytes").
    QStringList protokoll() {
        m_protokoll += QString::fromLocal8Bit(m_prozess.readAllStandardError());
        return m_protokoll.split('\n', Qt::SkipEmptyParts);
    }
    QProcess& prozess() { return m_prozess; }

private:
    QProcess m_prozess;
    QString m_gerät;
    QString m_protokoll;
};

} // namespace vemo::test
