#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <array>

namespace vemo {

// A point of a recorded series: the value as the dump gives it, and its moment (invalid before
// the series has been given its start).
struct Messpunkt {
    QString wert;
    QDateTime zeit;
};

// What the data pool's chart holds: two rows of points with their captions. A row takes at most
// 1995 points, as the chart of the instruments' software always could; a longer series is cut.
class Diagramm {
public:
    static constexpr int HöchstePunkte = 1995;
    static constexpr int Reihen = 2;

    // False, and nothing added, when the row is full.
    bool hinzufügen(int reihe, const Messpunkt& punkt);
    void leeren();
    const QList<Messpunkt>& reihe(int r) const { return m_reihen.at(r); }
    // The points of the first row: the series of a logger.
    int anzahl() const { return int(m_reihen[0].size()); }

    QString xText;
    QString yText;
    std::array<QString, Reihen> reihenNamen;

private:
    std::array<QList<Messpunkt>, Reihen> m_reihen;
};

} // namespace vemo
