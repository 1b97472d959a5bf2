#include "parsers/Codeaufteilung.h"

#include "core/InitTabelle.h"
#include "platform/Fehler.h"
#include "platform/Zahlformat.h"

#include <cmath>
#include <limits>

namespace vemo {
namespace {

bool wahrheitswert(const QString& text) {
    if (const auto zahl = zahlformat::zahl(text))
        return *zahl != 0;
    const QString wort = text.trimmed().toLower();
    if (wort == "true" || wort == "wahr")
        return true;
    if (wort == "false" || wort == "falsch")
        return false;
    throw fehler::mit(fehler::TypenUnverträglich, "\"" + text + "\"");
}

qint32 ganzzahl32(const QString& text) {
    const auto zahl = zahlformat::zahl(text);
    if (!zahl)
        throw fehler::mit(fehler::TypenUnverträglich, "\"" + text + "\"");
    const double gerundet = std::nearbyint(*zahl);
    if (gerundet < std::numeric_limits<qint32>::min() || gerundet > std::numeric_limits<qint32>::max())
        throw fehler::mit(fehler::Überlauf, "\"" + text + "\"");
    return qint32(gerundet);
}

// The first or last characters of a text, however large the count the settings give.
QString vorne(const QString& text, qint64 anzahl) {
    return text.left(qsizetype(std::min<qint64>(anzahl, text.size())));
}
QString hinten(const QString& text, qint64 anzahl) {
    return text.right(qsizetype(std::min<qint64>(anzahl, text.size())));
}

} // namespace

Codeaufteilung codeaufteilungLesen() {
    // The names say 3720: the settings dialog of the family writes them so for every model.
    Codeaufteilung a;
    a.an = wahrheitswert(InitLesen("codeSplitting3720", "0"));
    a.kundenstellen = ganzzahl32(InitLesen("Kundencodestellen3720", "2"));
    a.verteilerstellen = ganzzahl32(InitLesen("Verteilercodestellen3720", "2"));
    return a;
}

void codeAufteilen(Blockkopf& kopf, const Codeaufteilung& aufteilung) {
    const qint64 k = aufteilung.kundenstellen;
    const qint64 v = aufteilung.verteilerstellen;
    const QString verteiler = kopf.verteilerNr;
    const QString stromkreis = kopf.stromkreisNr;
    if (k > 0)
        kopf.kundeNr = vorne(verteiler, k);
    if (k < 4)
        kopf.anlageNr = ("000" + hinten(verteiler, 4 - k)).right(3);
    kopf.verteilerNr = v > 0 ? ("0000" + vorne(stromkreis, v)).right(4) : "???";
    kopf.stromkreisNr = v < 4 ? ("0000" + hinten(stromkreis, 4 - v)).right(4) : "???";
}

} // namespace vemo
