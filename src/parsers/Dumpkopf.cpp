#include "parsers/Dumpkopf.h"

#include "core/ModulState.h"
#include "parsers/Primitive.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"

namespace vemo {

QString geräteZeileLesen(Textdatei& datei) {
    while (!datei.zeileLesen().startsWith("---")) {
    }
    return datei.zeileLesen();
}

bool istMultitesterTabelle(const QString& geräteZeile) {
    const QString kopf = geräteZeile.trimmed();
    return kopf.startsWith("5831") || kopf.startsWith("5830");
}

bool istCorvexBericht(const QString& geräteZeile) {
    int start = 1;
    QString rest;
    return GetZahl(geräteZeile.trimmed().left(4), start, rest).size() == 4;
}

QString seriennummerDerGeräteZeile(const QString& geräteZeile) {
    return geräteZeile.right(11);
}

void kopfFehlt() {
    ui().MsgBox(xText("Messdaten Kopf fehlt"), modul().anwendungstitel);
    modul().Abbruchmerker = 1;
}

} // namespace vemo
