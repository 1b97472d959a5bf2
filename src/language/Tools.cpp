#include "language/Tools.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <optional>

namespace vemo {

namespace {

struct Wurzel {
    quint32 handle;
    const char* name;
};
constexpr Wurzel wurzeln[] = {
    {Tools::HkeyClassesRoot, "HKEY_CLASSES_ROOT"},
    {Tools::HkeyCurrentUser, "HKEY_CURRENT_USER"},
    {Tools::HkeyLocalMachine, "HKEY_LOCAL_MACHINE"},
    {Tools::HkeyUsers, "HKEY_USERS"},
};

// The registry of this platform. There is none here: no key can be opened and no value read, so the
// component's questions to it are answered with "not there", as for a missing key.
std::optional<quint32> registrySchlüsselÖffnen(quint32, const QString&) {
    return std::nullopt;
}
std::optional<QString> registryTextLesen(quint32, const QString&) {
    return std::nullopt;
}

} // namespace

bool Tools::AnwendungMitDateiStarten(qint32, const QString& datei, const QString&,
                                     const QString& verzeichnis) {
    const QString pfad = verzeichnis.isEmpty() ? datei : QDir(verzeichnis).absoluteFilePath(datei);
    QDesktopServices::openUrl(QUrl::fromLocalFile(pfad));
    return true;
}

bool Tools::SchlüsselÖffnen(quint32 eltern, const QString& unterschlüssel, quint32& handle) {
    const QString elternPfad = SchlüsselPfad(eltern);
    const std::optional<quint32> neu = registrySchlüsselÖffnen(eltern, unterschlüssel);
    if (!neu)
        return false;
    handle = *neu;
    m_offeneSchlüssel.push_back({*neu, elternPfad + "\\" + unterschlüssel});
    return true;
}

QString Tools::SchlüsselPfad(quint32 handle) const {
    for (const Wurzel& w : wurzeln)
        if (w.handle == handle)
            return w.name;
    for (const OffenerSchlüssel& s : m_offeneSchlüssel)
        if (s.handle == handle)
            return s.pfad;
    return {};
}

bool Tools::WertLesen(quint32 handle, const QString& wertName, QString& text) const {
    text.clear();
    const std::optional<QString> wert = registryTextLesen(handle, wertName);
    if (!wert)
        return false;
    text = wert->left(wert->indexOf(QChar(0)));
    return true;
}

} // namespace vemo
