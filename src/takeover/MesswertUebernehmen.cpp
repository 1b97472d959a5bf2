#include "takeover/MesswertUebernehmen.h"

#include "core/Laufschluessel.h"
#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "parsers/Primitive.h"
#include "platform/Ui.h"
#include "store/Transaktion.h"
#include "store/Variant.h"
#include "takeover/Messzeilen.h"
#include "takeover/Wertlauf.h"
#include "takeover/Zuordnungstabelle.h"

#include <array>

namespace vemo {
namespace {

// The reserved column names of 0100_TeilFunktion: the value is dropped, or a routine of its own
// should have taken the name.
const QString keineSpalte = "keine***";
const QString mitCase = "mitCase***";

bool istPräfixiert(const QString& funktion) {
    return funktion.size() >= 2 && funktion[1] == '_';
}

// A line of text with its own name and no column, on the row prepared for it.
void textSchreiben(Recordset& rsMessung, const QString& funktion, const QVariant& messwert,
                   const QVariant& einheit) {
    rsMessung.setField("Funktion", funktion);
    rsMessung.setField("Messwert", messwert);
    rsMessung.setField("Einheit", einheit);
    rsMessung.Update();
    zurLetztenÄnderung(rsMessung);
}

void textzeile(Wertlauf& w, const QString& funktion, const QVariant& messwert, const QVariant& einheit) {
    zeileFürSpalte(w.rsMessung, "Funktion");
    textSchreiben(w.rsMessung, funktion, messwert, einheit);
}

// A text block is dated by two heading lines.
void kopfzeilen(Wertlauf& w, const QVariant& datum, const QVariant& uhrzeit) {
    textzeile(w, xText("Datum"), datum, QString());
    weitereZeile(w.rsMessung);
    textSchreiben(w.rsMessung, xText("Uhrzeit"), uhrzeit, QString());
}

// A line of a text block: the test before the first comma and the quantity behind the last.
void textblockZeile(Wertlauf& w, const QString& funktion) {
    const QString test = funktion.left(funktion.indexOf(',')).trimmed();
    const QString grösse = funktion.mid(funktion.lastIndexOf(',') + 1).trimmed();
    textzeile(w, xText(test) + " " + xText(grösse), w.wert(), w.zeileneinheit());
}

void spalteFüllen(Wertlauf& w) {
    zeileFürSpalte(w.rsMessung, w.spaltenname);
    w.rsMessung.setField(w.spaltenname, w.umgerechnet());
    w.rsMessung.Update();
    zurLetztenÄnderung(w.rsMessung);
}

// "s_NEW" starts a further measurement row; it belongs to no circuit yet.
void steuerzeile(Wertlauf& w, const QString& funktion) {
    if (funktion == "s_NEW") {
        w.rsMessung.AddNew();
        w.rsMessung.setField("MessID", NeueID("", w.rsMessung.Name()));
        w.rsMessung.Update();
    }
    zurLetztenÄnderung(w.rsMessung);
}

// "m_", "g_" and "s_" names: a measured column, a limit column, a control row. A name the table
// does not know is dropped.
void präfixiert(Wertlauf& w, const QString& funktion) {
    if (TeilFunktionSuchen(funktion, w.spaltenname, w.einheit))
        return;
    switch (funktion[0].unicode()) {
    case 's':
        steuerzeile(w, funktion);
        break;
    case 'm':
        spalteFüllen(w);
        break;
    case 'g':
        w.grenzwertHolen();
        w.rsGrenzwert.Edit();
        w.rsGrenzwert.setField(w.spaltenname, w.umgerechnet());
        w.rsGrenzwert.Update();
        break;
    default:
        break;
    }
}

// A name without a routine goes to the column the table gives it. A name the table does not know
// goes to the column of the last name it knew.
void allgemein(Wertlauf& w, const QString& funktion) {
    const QString kennung = w.spaltenname.left(10);
    if (kennung == keineSpalte)
        return;
    if (kennung == mitCase) {
        ui().MsgBox("keine case behandlung vorhanden " + funktion, modul().anwendungstitel);
        zurLetztenÄnderung(w.rsMessung);
        return;
    }
    spalteFüllen(w);
}

void quellzeileÜbernehmen(Wertlauf& w) {
    const QString funktion = w.funktion();
    if (istPräfixiert(funktion)) {
        präfixiert(w, funktion);
    } else if (istTextblock(funktion)) {
        textblockZeile(w, funktion);
    } else {
        w.nachschlagen();
        if (const handler::Handler h = handlerFür(funktion))
            h(w);
        else
            allgemein(w, funktion);
    }
}

void abbilden(const QVariant& messungID, const QVariant& datum, const QVariant& uhrzeit) {
    Wertlauf w;
    w.rsMess = db().OpenRecordset("SELECT * FROM 0100_EinleseMessDaten WHERE MessungID = " + text(messungID));
    if (w.rsMess.Eof())
        return;
    w.rsMessung = db().OpenRecordset("SELECT * FROM 0100_Messung WHERE StromkreisID = " +
                                     text(laufschlüssel().stromkreisID));
    NewMessung(w.rsMessung);
    if (istTextblock(w.funktion()))
        kopfzeilen(w, datum, uhrzeit);
    while (!w.rsMess.Eof()) {
        quellzeileÜbernehmen(w);
        w.weiter();
        if (w.stop)
            break;
    }
}

} // namespace

bool istTextblock(const QString& funktion) {
    static const std::array<QString, 6> blöcke{"VOLTAGE",      "INSULATION",   "DIAGNISTIC",
                                               "STEP VOLTAGE", "WITHSTANDING", "HARMONICS"};
    for (const QString& block : blöcke)
        if (funktion.startsWith(block.left(7)))
            return true;
    return false;
}

void MesswertÜbernehmen(const QVariant& messungID, const QVariant& datum, const QVariant& uhrzeit) {
    try {
        abbilden(messungID, datum, uhrzeit);
    } catch (const Fehler& f) {
        // A block cut short, a column the table names wrongly: the mapping ends here. The store
        // failing is no bad value: it ends the row, which stays read in.
        if (istSpeicherausfall(f))
            throw;
    } catch (const std::exception&) {
    }
}

} // namespace vemo
