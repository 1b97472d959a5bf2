#include "platform/AufzeichnungsUi.h"

#include "platform/Dialog.h"
#include "platform/KonsolenUi.h"

#include <QCoreApplication>

namespace vemo {

int AufzeichnungsUi::MsgBox(const QString& text, const QString& titel, const MsgStil& stil) {
    meldungen.append({text, titel, stil});
    if (!antworten.isEmpty())
        return antworten.takeFirst();
    const QList<int> a = stil.antworten();
    return a.value(stil.standardKnopf - 1, a.first());
}

std::optional<QString> AufzeichnungsUi::dateiÖffnen(const DateiDialog& dialog) {
    dateiDialoge.append(dialog);
    return gewählteDatei;
}

void AufzeichnungsUi::sanduhr(bool an) {
    sanduhrTiefe += an ? 1 : -1;
}

void AufzeichnungsUi::DoEvents() {
    QCoreApplication::processEvents();
}

int AufzeichnungsUi::zeigeModal(DialogController& dialog) {
    dialoge << dialog.metaObject()->className();
    dialog.geöffnet();
    if (beiDialog)
        beiDialog(dialog);
    return warteAufSchließen(dialog);
}

void AufzeichnungsUi::zeigeNichtModal(DialogController& dialog) {
    dialoge << dialog.metaObject()->className();
    dialog.geöffnet();
    if (beiDialog)
        beiDialog(dialog);
}

QStringList AufzeichnungsUi::texte() const {
    QStringList t;
    for (const auto& m : meldungen)
        t << m.text;
    return t;
}

} // namespace vemo
