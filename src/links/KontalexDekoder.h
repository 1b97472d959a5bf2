#pragma once

#include "links/KontalexModelle.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>

namespace vemo {

// One measured value as the record file holds it.
struct Messzeile {
    QString funktion;
    QString art; // "M" measured, "E" setting, "G" limit
    QString wertname;
    QString wert;
    QString einheit;
};

// Where a measurement was taken, and what was measured there.
struct Ortsgruppe {
    int objekt = 0;
    int stromkreis = 0;
    int platz = 0;
    QString objektText;
    QString stromkreisText;
    QString platzText;
    QString zeit;
    QString datum;
    QList<Messzeile> zeilen;
};

// The measurement bytes of a group: the function code, then fields ended by byte 0, each the kind
// letter, the value code, the unit code and the value as text. Fields shorter than three bytes say
// nothing. Function code 102 is the data logger's. Codes outside a table raise error 9.
QList<Messzeile> messzeilenLesen(const QByteArray& bytes, const Namentabellen& namen, bool& loggerDaten);

// Walks the blocks of a memory up to its empty end block, as the model lays them out, and hands on
// each location group in turn, so that a code out of bounds (error 9, raised) leaves the groups before it
// delivered. The number texts are at least three digits and left blank where they repeat the group before:
// the object alone, the circuit with its object, the place with both.
class KontalexDekoder {
public:
    // anlagenText: the object text of the models that don't number their objects.
    KontalexDekoder(const Kontalexmodell& modell, QString anlagenText);

    void dekodieren(const QByteArray& dump, const std::function<void(const Ortsgruppe&)>& ablage);
    bool loggerDaten() const { return m_loggerDaten; }

private:
    Ortsgruppe gruppeLesen(const QByteArray& inhalt);
    Ortsgruppe vollLesen(const QByteArray& inhalt);
    Ortsgruppe kurzLesen(const QByteArray& inhalt);
    Ortsgruppe blockLesen(const QByteArray& inhalt);
    void texteSetzen(Ortsgruppe& g);

    const Kontalexmodell& m_modell;
    QString m_anlagenText;
    bool m_loggerDaten = false;
    bool m_ersteGruppe = true;
    int m_objekt = 0;
    int m_stromkreis = 0;
    int m_platz = 0;
};

} // namespace vemo
