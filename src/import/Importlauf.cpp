#include "import/Importlauf.h"

#include "core/ModulState.h"
#include "core/Schluesselvergabe.h"
#include "import/Messimport.h"
#include "import/Pruefungsdaten.h"
#include "import/Quelltabelle.h"
#include "import/Stammdaten.h"
#include "platform/Ui.h"

#include <optional>

namespace vemo {

namespace {

const QString Quelltabellenname = "kunden";
constexpr long Stapel = 500;

// The measurement text may run over the three memo fields of the old table, in this order.
QString messtextDerZeile(const Quellzeile& z) {
    return z.text("Reserve3") + z.text("Messung_2") + z.text("form1_text14");
}

void meldung(const QString& text) {
    ui().MsgBox(text, modul().anwendungstitel);
}

void fehlerMelden(const Fehler& f) {
    meldung(xText("Fehler") + " " + QString::number(f.nummer()) + ":  " + f.beschreibung());
}

} // namespace

// The tables the run writes, open for a batch of source rows.
struct Importlauf::Ziele {
    Stammdaten stamm;
    Pruefungsdaten prüfungen;
    Messimport messungen;
};

int Importlauf::ausführen(const QString& quellpfad) {
    std::unique_ptr<Quelltabelle> quelle;
    try {
        quelle = quelltabelleÖffnen(quellpfad, Quelltabellenname);
    } catch (const Fehler& f) {
        meldung(xText("Importieren nicht möglich") + "\r\n" + xText("Fehler") + " " +
                QString::number(f.nummer()) + ":  " + f.beschreibung());
        return f.nummer();
    }
    int ergebnis = 0;
    const Protokollzählung zählung;
    try {
        std::optional<Ziele> ziele;
        Importstand stand{quelle->anzahl(), 0};
        if (beiFortschritt)
            beiFortschritt(stand);
        long gelesen = 0;
        while (const auto zeile = quelle->nächsteZeile()) {
            // A table opened by name keeps the rows added through it: the run opens its tables anew
            // now and then, so that its memory does not grow with the source.
            if (gelesen % Stapel == 0)
                ziele.emplace();
            if (!zeileImportieren(*zeile, *ziele))
                ergebnis = Messtextfehler;
            ++gelesen;
            const int prozent = stand.anzahl > 0 ? int(std::min(100L, gelesen * 100 / stand.anzahl)) : 100;
            if (prozent != stand.prozent && beiFortschritt) {
                stand.prozent = prozent;
                beiFortschritt(stand);
            }
        }
    } catch (const Fehler& f) {
        fehlerMelden(f);
        return f.nummer();
    }
    return ergebnis;
}

// False when the row's measurement text was refused; the row's inspection has arrived all the same.
bool Importlauf::zeileImportieren(const Quellzeile& zeile, Ziele& ziele) {
    const QVariant kunde = ziele.stamm.kunde(zeile);
    const QVariant anlage = ziele.stamm.anlage(zeile, kunde);
    const QVariant prüfung = ziele.prüfungen.prüfung(zeile, anlage);
    ziele.prüfungen.betriebsmittel(zeile, prüfung);
    const Messtext text = messtextLesen(messtextDerZeile(zeile));
    if (!text.fehler.isEmpty()) {
        meldung(text.fehler.join("\r\n"));
        return false;
    }
    ziele.messungen.einlesen(text, prüfung, prüfdatum(zeile));
    return true;
}

} // namespace vemo
