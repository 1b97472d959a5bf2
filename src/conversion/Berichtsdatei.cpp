#include "conversion/Berichtsdatei.h"

#include "platform/Codepage.h"
#include "platform/Fehler.h"

#include <QDir>

namespace vemo {
namespace {

void öffnen(QFile& datei, QIODevice::OpenMode modus) {
    if (!datei.open(modus))
        throw fehler::mit(fehler::PfadZugriff, datei.fileName());
}

void schreiben(QFile& datei, const QByteArray& bytes) {
    if (datei.write(bytes) != bytes.size())
        throw fehler::mit(fehler::PfadZugriff, datei.fileName());
}

} // namespace

Berichtsdatei::Berichtsdatei(const QString& verzeichnis, const QString& nummer)
    : m_bericht(QDir(verzeichnis).filePath(nummer + ".sep")),
      m_kopie(QDir(verzeichnis).filePath(nummer + ".txt")) {
    öffnen(m_bericht, QIODevice::WriteOnly | QIODevice::Truncate);
    öffnen(m_kopie, QIODevice::WriteOnly | QIODevice::Append);
}

void Berichtsdatei::zeile(const QString& text) {
    const QByteArray bytes = nachAnsi(text) + "\r\n";
    schreiben(m_bericht, bytes);
    schreiben(m_kopie, bytes);
}

} // namespace vemo
