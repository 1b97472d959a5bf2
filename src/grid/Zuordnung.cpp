#include "grid/Zuordnung.h"

#include "core/ModulState.h"
#include "store/Variant.h"

namespace vemo {

namespace {

// The typed number that a choice of board or circuit writes beside the key.
QString nummernfeld(int spalte) {
    switch (spalte) {
    case 4:
        return "VerteilerNr";
    case 5:
        return "StromkreisNr";
    default:
        return {};
    }
}

bool betroffen(const Recordset& zeile, const Recordset& referenz, int spalte, const QVariant& gewählt) {
    for (int oben = 1; oben < spalte; ++oben)
        if (!gleich(zeile.Field(schlüsselfeld(oben)), referenz.Field(schlüsselfeld(oben))))
            return false;
    return !gleich(zeile.Field(schlüsselfeld(spalte)), gewählt);
}

void schreiben(Recordset& zeile, int spalte, const ComboEintrag& wahl) {
    zeile.Edit();
    if (const QString nummer = nummernfeld(spalte); !nummer.isEmpty())
        zeile.setField(nummer, wahl.text);
    zeile.setField(schlüsselfeld(spalte), wahl.schlüssel);
    for (int unten = spalte + 1; unten <= 5; ++unten)
        zeile.setField(schlüsselfeld(unten), 0);
    zeile.Update();
}

} // namespace

void zuordnen(long ersteZeile, long letzteZeile, int spalte, const ComboEintrag& wahl,
              const std::function<void(long zeile)>& vorÄnderung) {
    Recordset einlese = db().OpenRecordset("0100_EinleseDaten");
    einlese.setAbsolutePosition(ersteZeile - 1);
    const Recordset referenz = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten WHERE MessungID = " +
                                                  text(einlese.Field("MessungID")));
    for (long zeile = ersteZeile; zeile <= letzteZeile && !einlese.Eof(); ++zeile) {
        if (betroffen(einlese, referenz, spalte, wahl.schlüssel)) {
            if (vorÄnderung)
                vorÄnderung(zeile);
            schreiben(einlese, spalte, wahl);
        }
        einlese.MoveNext();
    }
}

} // namespace vemo
