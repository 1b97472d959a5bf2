#include "platform/Schnittstellen.h"

#include <QSerialPortInfo>
#include <QStringList>
#include <algorithm>

namespace vemo {
namespace {

QString hex4(quint16 zahl) {
    return QString("%1").arg(zahl, 4, 16, QChar('0'));
}

// Windows opens a port by its name ("COM3"); elsewhere the device path is what a user knows.
QString gerätVon(const QSerialPortInfo& info) {
#ifdef Q_OS_WIN
    return info.portName();
#else
    return info.systemLocation();
#endif
}

} // namespace

QString Schnittstelle::zeile() const {
    QStringList teile{gerät};
    if (!beschreibung.trimmed().isEmpty())
        teile << beschreibung.trimmed();
    if (hersteller && produkt)
        teile << "USB " + hex4(*hersteller) + ":" + hex4(*produkt);
    return teile.join("  ");
}

QList<Schnittstelle> schnittstellen() {
    QList<Schnittstelle> liste;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        Schnittstelle s{gerätVon(info), info.description(), std::nullopt, std::nullopt};
        if (info.hasVendorIdentifier() && info.hasProductIdentifier()) {
            s.hersteller = info.vendorIdentifier();
            s.produkt = info.productIdentifier();
        }
        liste << s;
    }
    std::sort(liste.begin(), liste.end(),
              [](const Schnittstelle& a, const Schnittstelle& b) { return a.gerät < b.gerät; });
    return liste;
}

} // namespace vemo
