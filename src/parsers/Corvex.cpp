#include "parsers/Corvex.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "parsers/Dumpkopf.h"
#include "parsers/Einlesebloecke.h"
#include "parsers/GeraetAnmelden.h"
#include "parsers/Primitive.h"
#include "platform/Textdatei.h"

namespace vemo {
namespace {

bool istLoggerMarke(const QString& zeile) {
    static const QStringList marken{"DATEN LOGGER", "DATEN LOGGERI", "DATA LOGGERI", "DATA LOGGER"};
    return marken.contains(zeile.trimmed());
}

// "S: 001    P: 002": board and circuit, told by the colon in second place.
bool istBlockkopf(const QString& zeile) {
    return zeile.trimmed().mid(1, 1) == ":";
}

bool leer(const QString& zeile) {
    return zeile.trimmed().isEmpty();
}

// One pass over the report. Groups of values are separated by an empty line; a group that follows
// without a new header belongs to the header before it and becomes a block of its own.
class CorvexBericht {
public:
    explicit CorvexBericht(const QString& pfad) : m_datei(pfad) {}
    void lesen();

private:
    bool zumErstenBlockkopf();
    void blöckeLesen(qint32 geräteID);
    qint32 blockAnlegen(Einleseblöcke& blöcke, qint32 geräteID, const QString& kopf);
    void linealÜberspringen();
    bool gruppeLesen(Einleseblöcke& blöcke, qint32 messungID);
    void werteDerZeile(Einleseblöcke& blöcke, qint32 messungID);

    Textdatei m_datei;
    QString m_zeile;
    QString m_funktion; // the main function of the group, carried from line to line
};

void CorvexBericht::lesen() {
    const QString geräteZeile = geräteZeileLesen(m_datei);
    if (istMultitesterTabelle(geräteZeile)) {
        modul().DatenloggerMode = false;
        MultitesterGefunden() = true;
        return;
    }
    if (!istCorvexBericht(geräteZeile)) {
        kopfFehlt();
        return;
    }
    const auto geräteID = GerätAnmelden(familie::Corvex, {{}, {}, seriennummerDerGeräteZeile(geräteZeile)});
    if (!geräteID)
        return;
    if (!zumErstenBlockkopf()) {
        // A logger record, and a dump without any block as well, are for the data pool.
        modul().DatenloggerMode = true;
        return;
    }
    blöckeLesen(*geräteID);
}

bool CorvexBericht::zumErstenBlockkopf() {
    while (!m_datei.eof()) {
        m_zeile = m_datei.zeileLesen();
        if (istLoggerMarke(m_zeile))
            return false;
        if (istBlockkopf(m_zeile))
            return true;
    }
    return false;
}

void CorvexBericht::blöckeLesen(qint32 geräteID) {
    Einleseblöcke blöcke;
    QString kopf;
    bool weitereGruppe = false;
    while (!m_datei.eof()) {
        if (!weitereGruppe)
            kopf = m_zeile;
        const qint32 messungID = blockAnlegen(blöcke, geräteID, kopf);
        if (!weitereGruppe)
            linealÜberspringen();
        weitereGruppe = gruppeLesen(blöcke, messungID);
    }
}

qint32 CorvexBericht::blockAnlegen(Einleseblöcke& blöcke, qint32 geräteID, const QString& kopf) {
    int start = 1;
    QString rest;
    const QString verteiler = GetZahl(kopf, start, rest);
    const QString stromkreis = GetZahl(kopf, start, rest);
    return blöcke.neuerBlock(geräteID, vierstellig(verteiler), vierstellig(stromkreis));
}

// Behind a header stand the ruler and a line of 24 blanks; a second blank line is passed over too.
void CorvexBericht::linealÜberspringen() {
    m_datei.zeileLesen();
    m_zeile = m_datei.zeileLesen();
    if (leer(m_zeile))
        m_zeile = m_datei.zeileLesen();
}

// Reads the lines of a group up to the next header; true when a further group under the same
// header follows, whose first line is then the current one.
bool CorvexBericht::gruppeLesen(Einleseblöcke& blöcke, qint32 messungID) {
    m_funktion.clear();
    while (!istBlockkopf(m_zeile) && !m_datei.eof()) {
        werteDerZeile(blöcke, messungID);
        m_zeile = m_datei.zeileLesen();
        if (!leer(m_zeile))
            continue;
        m_funktion.clear();
        if (m_datei.eof())
            return false;
        m_zeile = m_datei.zeileLesen();
        if (!istBlockkopf(m_zeile) && !leer(m_zeile))
            return true;
    }
    return false;
}

// "name = value unit", possibly several values on a line: a row for each value found.
void CorvexBericht::werteDerZeile(Einleseblöcke& blöcke, qint32 messungID) {
    const int länge = int(m_zeile.trimmed().size());
    int start = 1;
    while (länge >= start) {
        QString einheit;
        const QString zahl = GetZahl(m_zeile, start, einheit);
        if (!zahl.isEmpty())
            blöcke.neuerWert(messungID, GetFunktion(m_zeile, m_funktion, einheit), WertText(zahl), einheit);
    }
}

} // namespace

bool& MultitesterGefunden() {
    return modul().multitesterGefunden;
}

void Corvex() {
    try {
        CorvexBericht(arbeitsdatei(datei::Ruvo)).lesen();
    } catch (const Fehler& f) {
        // A dump that ends where a head or a block still needs lines has no head to speak of.
        if (f.nummer() == fehler::HinterDateiende)
            kopfFehlt();
        else
            fehlerZeigen(f);
    }
}

} // namespace vemo
