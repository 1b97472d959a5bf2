#include "language/Registrydatei.h"

#include <QIODevice>

namespace vemo {
namespace {

constexpr char Typmarke = '@';

bool istKommentar(const QString& zeile) {
    return zeile.startsWith(';') || zeile.startsWith('#');
}

// A section's name as QSettings nests groups: "Software\vemotrix" becomes "Software/vemotrix".
QString gruppeDerZeile(const QString& zeile) {
    QString gruppe = zeile.mid(1, zeile.size() - 2).trimmed();
    gruppe.replace('\\', '/');
    return gruppe.compare("General", Qt::CaseInsensitive) == 0 ? QString() : gruppe;
}

QVariant wertDerZeile(const QString& text) {
    if (text.startsWith(Typmarke))
        return text.toUtf8();
    return text;
}

bool lesen(QIODevice& gerät, QSettings::SettingsMap& werte) {
    const QStringList zeilen = QString::fromUtf8(gerät.readAll()).split('\n');
    QString gruppe;
    for (const QString& roh : zeilen) {
        const QString zeile = roh.trimmed();
        if (zeile.isEmpty() || istKommentar(zeile))
            continue;
        if (zeile.startsWith('[') && zeile.endsWith(']')) {
            gruppe = gruppeDerZeile(zeile);
            continue;
        }
        const qsizetype gleich = zeile.indexOf('=');
        const QString name = zeile.left(gleich).trimmed();
        if (gleich <= 0 || name.isEmpty())
            continue;
        werte.insert(gruppe.isEmpty() ? name : gruppe + "/" + name,
                     wertDerZeile(zeile.mid(gleich + 1).trimmed()));
    }
    return true;
}

bool schreiben(QIODevice&, const QSettings::SettingsMap&) {
    return false;
}

} // namespace

QSettings::Format registryFormat() {
    static const QSettings::Format format = QSettings::registerFormat("conf", lesen, schreiben);
    return format;
}

} // namespace vemo
