#pragma once

#include <QString>
#include <QStringList>
#include <initializer_list>

namespace vemo {

// A run of consecutive codes and their names, as the instruments number them.
struct Namenlauf {
    int ab;
    QStringList namen;
};

// What the codes of a measurement mean: code to name within fixed bounds from 0. A code without a
// name gives the empty text; a code beyond the bounds is the run-time bounds error 9, as the
// instrument's table has no room for it.
class Namentabelle {
public:
    Namentabelle(int obergrenze, std::initializer_list<Namenlauf> läufe);
    QString name(int code) const;

private:
    QStringList m_namen;
};

// The three tables a model decodes its measurements with.
struct Namentabellen {
    Namentabelle funktionen;
    Namentabelle werte;
    Namentabelle einheiten;
};

// The tables of the installation testers, and those of the high-voltage insulation tester.
const Namentabellen& allgemeineNamen();
const Namentabellen& hochspannungsNamen();

} // namespace vemo
