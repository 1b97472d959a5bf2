#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QTimer>
#include <functional>

namespace vemo::sim {

// What an instrument has still to send, handed to the line at the pace of its line speed: in
// pieces of 20 ms of line time, each when the one before has had its time on the wire; a piece never
// ends between the CR and the LF of a line end. A text may be followed by a pause of silence. At
// 0 baud each text goes at once, whole.
class Sendeschlange : public QObject {
    Q_OBJECT
public:
    explicit Sendeschlange(std::function<void(const QByteArray&)> senden, QObject* parent = nullptr);

    void setBaud(int baud) { m_baud = baud; }
    void anhängen(const QByteArray& text, int pauseDanach = 0);
    // Held, nothing goes out until it is released (XOFF and XON of the other end).
    void anhalten(bool an);
    bool angehalten() const { return m_angehalten; }
    bool leer() const { return m_stücke.isEmpty(); }

signals:
    // The last piece has gone out.
    void drained();

private:
    struct Stück {
        QByteArray bytes;
        int pauseDanach; // ms
    };
    void nächstesStück();

    std::function<void(const QByteArray&)> m_senden;
    int m_baud = 9600;
    QList<Stück> m_stücke;
    bool m_angehalten = false;
    QTimer m_uhr;
};

} // namespace vemo::sim
