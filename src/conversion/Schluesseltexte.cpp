#include "conversion/Schluesseltexte.h"

#include "core/ModulState.h"

namespace vemo {
namespace {

const QString Vierstellig = "*********** Maximum 4 Zeichen ************";

// Entry 4 onwards, as the host's installation writes them.
const QStringList& schlüsseltexte() {
    static const QStringList texte{
        "S                       = Stromkreis  (Ausdruck auf 0100-Corvex Drucker)",
        "P                       = Platz       (Ausdruck auf 0100-Corvex Drucker)",
        "DATEN LOGGER            = Datenlogger (Ausdruck auf 0100-Corvex Drucker)",
        "S: 255    FI-Analyse    = FI-Analyse  (Ausdruck auf 0100-Corvex Drucker)",
        "*************** Ab hier, Zeilenlänge = 4 *****************************",
        " IdF" + Vierstellig,
        " tFI" + Vierstellig,
        " Ris" + Vierstellig,
        " LOW" + Vierstellig,
        " Ri " + Vierstellig,
        " Zs " + Vierstellig,
        " Dre" + Vierstellig,
        " UbF" + Vierstellig,
        " Re " + Vierstellig,
        "  Ub max = 50.0 V       = Maximale Berührungsspannung",
        "  Ub max = 25.0 V       = Maximale Berührungsspannung",
    };
    return texte;
}

const QStringList& zeilenpräfixe() {
    static const QStringList präfixe{"R10", "R25", "R50", "V: ", "RI:", "ZS0", "ZS1",
                                     "RS0", "RS1", "Ub:", "T0:", "T18", "Re:", "R: "};
    return präfixe;
}

void eintragen(int ab, const QStringList& texte) {
    QStringList& tabelle = modul().mulTexte;
    if (tabelle.size() < ab + texte.size())
        tabelle.resize(ab + texte.size());
    for (qsizetype i = 0; i < texte.size(); ++i)
        tabelle[ab + i] = texte[i];
}

} // namespace

void SchlüsselTexteSetzen() {
    eintragen(4, schlüsseltexte());
}

void ZeilenPräfixeSetzen() {
    eintragen(1, zeilenpräfixe());
}

} // namespace vemo
