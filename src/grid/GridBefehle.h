#pragma once

#include "grid/EinleseGrid.h"

#include <QString>
#include <QTextStream>
#include <optional>

namespace vemo {

// The read-in grid on the command line: the grid as the form fills it, the form's choice for a
// selection of rows, and its deletion of rows. Every command runs the form's own logic headless;
// its messages go through the Ui. Exit status: 0 done, 1 refused or not done, 2 arguments that
// cannot be understood.

// Rows as the command line names them: "A" or "A-B", counted from 1, in either order.
struct Zeilenbereich {
    long von = 0;
    long bis = 0;
};
std::optional<Zeilenbereich> zeilenbereichLesen(const QString& text);

// One object a row: {"nr": "1.1", "cells": [{"text": "...", "state": "resolved"}, ... the five
// cells of customer to circuit], "moment": "..."}; the states are resolved, create, unresolved.
QString gridJson(const EinleseGrid& grid);
// A text table with the grid's headers; a cell to be created is marked "+", an unresolved one "!".
QString gridTabelle(const EinleseGrid& grid);

// grid [--json]
int gridBefehl(bool json, QTextStream& aus);
// assign --rows A[-B] --column 1..5 --key K: the key must be one of the list the combo box of
// the first row's cell offers.
int zuordnenBefehl(const QString& zeilen, const QString& spalte, const QString& schlüssel);
// delete-rows --rows A[-B], after the form's question.
int zeilenLöschenBefehl(const QString& zeilen);

} // namespace vemo
