#include "conversion/FesteBreite.h"

#include "core/ModulState.h"
#include "platform/Ui.h"

namespace vemo {
namespace {
const QString Füller(15, ' ');
}

QString FesteBreite(const QString& text, int länge) {
    QString t = text;
    if (t.endsWith('!'))
        t.chop(1);
    if (t.size() > Füller.size())
        ui().MsgBox(t + xText(": Dieser Text ist zu lang !"), modul().anwendungstitel);
    if (länge > Füller.size())
        ui().MsgBox(QString::number(länge) + xText(": Diese Soll Länge ist zu groß !"),
                    modul().anwendungstitel);
    return t + Füller.left(std::max<qsizetype>(0, länge - t.size()));
}

} // namespace vemo
