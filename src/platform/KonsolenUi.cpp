#include "platform/KonsolenUi.h"

#include "platform/Dialog.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QList>
#include <cstdio>

namespace vemo {

QString KonsolenUi::zeile(const QString& text, const QString& titel) {
    QString t = text;
    t.replace("\r\n", " | ").replace('\r', " | ").replace('\n', " | ");
    return titel + ": " + t;
}

int KonsolenUi::MsgBox(const QString& text, const QString& titel, const MsgStil& stil) {
    std::fprintf(stderr, "%s\n", zeile(text, titel).toLocal8Bit().constData());
    std::fflush(stderr);
    const QList<int> antworten = stil.antworten();
    if (m_immerJa && antworten.contains(antwort::Ja))
        return antwort::Ja;
    return antworten.value(stil.standardKnopf - 1, antworten.first());
}

std::optional<QString> KonsolenUi::dateiÖffnen(const DateiDialog&) {
    return std::nullopt;
}

void KonsolenUi::DoEvents() {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

int warteAufSchließen(DialogController& dialog) {
    if (dialog.istOffen()) {
        QEventLoop schleife;
        QObject::connect(&dialog, &DialogController::geschlossen, &schleife, &QEventLoop::quit);
        schleife.exec();
    }
    return dialog.ergebnis();
}

int KonsolenUi::zeigeModal(DialogController& dialog) {
    dialog.geöffnet();
    return warteAufSchließen(dialog);
}

void KonsolenUi::zeigeNichtModal(DialogController& dialog) {
    dialog.geöffnet();
}

int KonsolenUi::textBreite(const QString& text) {
    return int(text.size()) * 90;
}

} // namespace vemo
