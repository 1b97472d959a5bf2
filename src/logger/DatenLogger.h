#pragma once

#include "platform/Dialog.h"

#include <QDateTime>
#include <array>

namespace vemo {

class Zuordnen;

// The dialog "Daten Logger": asks when the series began, in six fields (day, month, year, hour,
// minute, second), and gives each point of the series in the data pool its moment: the start plus
// one interval for the first point, one more for each further point.
class DatenLogger : public DialogController {
    Q_OBJECT
public:
    static constexpr int Felder = 6;
    static constexpr int Rückschritt = 8;

    explicit DatenLogger(Zuordnen& datenpool, QObject* parent = nullptr);

    QString titel() const;
    const QString& feld(int index) const { return m_felder.at(index); }
    void feldSetzen(int index, const QString& text);
    // Only Backspace and the digits pass; false when the key is dropped.
    static bool tasteErlaubt(int zeichen);
    // A field left shows its number with two digits at least.
    void feldVerlassen(int index);
    void startSetzen(const QDateTime& start);
    // The start moment of the six fields; invalid when they make no date and time.
    QDateTime start() const;

    // Command1: reads the series from Ruvo.SAV into the data pool with the times of its points.
    void command1();
    // Command2: leaves the series as it was.
    void command2();

private:
    void reiheLesen(const QDateTime& start);

    Zuordnen& m_datenpool;
    std::array<QString, Felder> m_felder;
};

} // namespace vemo
