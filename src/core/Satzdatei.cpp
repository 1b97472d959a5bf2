#include "core/Satzdatei.h"

#include "platform/Codepage.h"

namespace vemo {

void Satzleser::lesen(Satz& satz) {
    for (QString& wert : satz.a)
        wert = m_datei.feldLesen();
}

QByteArray satzzeile(std::initializer_list<QVariant> werte) {
    QStringList teile;
    for (const QVariant& w : werte)
        teile << (w.typeId() == QMetaType::QString ? '"' + w.toString() + '"' : w.toString());
    return nachAnsi(teile.join(',')) + "\r\n";
}

} // namespace vemo
