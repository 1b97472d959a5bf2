#pragma once

#include "links/KontalexNamen.h"

#include <QString>

namespace vemo {

// How a model lays out the location group of a memory block.
enum class Blockform {
    Voll,  // object, circuit and place numbers, time and date
    Kurz,  // circuit and place; the object is the caller's, time and date are not kept
    Block, // a place number, high byte first, behind a record number; time and date behind the values
};

// What sets the models of the command protocol apart; they answer to the name they give to "MWH".
struct Kontalexmodell {
    QString name;
    Blockform form;
    const Namentabellen& namen;
    bool mexMitAntwort; // the model confirms the end of remote mode
    bool ohneSprache;   // the model names no language in its identification
};

// The model of that name; the first model, the full decoder, for a name nobody knows.
const Kontalexmodell& kontalexModell(const QString& name);
const QList<Kontalexmodell>& kontalexModelle();

} // namespace vemo
