#include "language/Tools.h"

#include "language/Registrydatei.h"

#include <QDesktopServices>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>
#include <memory>
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

QSettings::Format registryFormatDerPlattform() {
#ifdef Q_OS_WIN
    return QSettings::NativeFormat;
#else
    return registryFormat();
#endif
}

// A name of the registry's, found without regard to case as the registry finds it; nothing when
// there is no such name.
std::optional<QString> gleichnamig(const QStringList& namen, const QString& gesucht) {
    for (const QString& name : namen)
        if (name.compare(gesucht, Qt::CaseInsensitive) == 0)
            return name;
    return std::nullopt;
}

// The key of a full path ("HKEY_CURRENT_USER\Software\..."), its groups entered; nothing when
// the key is not there.
std::unique_ptr<QSettings> schlüssel(const QString& pfad) {
    QStringList teile = pfad.split('\\', Qt::SkipEmptyParts);
    if (teile.isEmpty())
        return nullptr;
    auto s = std::make_unique<QSettings>(Tools::registryOrt(teile.takeFirst()), registryFormatDerPlattform());
    for (const QString& teil : std::as_const(teile)) {
        const std::optional<QString> gruppe = gleichnamig(s->childGroups(), teil);
        if (!gruppe)
            return nullptr;
        s->beginGroup(*gruppe);
    }
    return s;
}

} // namespace

bool Tools::AnwendungMitDateiStarten(qint32, const QString& datei, const QString&,
                                     const QString& verzeichnis) {
    const QString pfad = verzeichnis.isEmpty() ? datei : QDir(verzeichnis).absoluteFilePath(datei);
    QDesktopServices::openUrl(QUrl::fromLocalFile(pfad));
    return true;
}

QString Tools::registryOrt(const QString& wurzel) {
#ifdef Q_OS_WIN
    return wurzel;
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/vemotrix/registry/" +
           wurzel + ".conf";
#endif
}

bool Tools::SchlüsselÖffnen(quint32 eltern, const QString& unterschlüssel, quint32& handle) {
    const QString elternPfad = SchlüsselPfad(eltern);
    const QString pfad = elternPfad + "\\" + unterschlüssel;
    if (elternPfad.isEmpty() || !schlüssel(pfad))
        return false;
    // Handles of opened keys count up from 1, below the root keys; none is ever given twice.
    handle = quint32(m_offeneSchlüssel.size() + 1);
    m_offeneSchlüssel.push_back({handle, pfad});
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
    const QString pfad = SchlüsselPfad(handle);
    const std::unique_ptr<QSettings> s = pfad.isEmpty() ? nullptr : schlüssel(pfad);
    if (!s)
        return false;
    // The value without a name is the key's own, which QSettings calls "Default".
    const QString name = wertName.isEmpty() ? QString("Default") : wertName;
    const QVariant wert = s->value(gleichnamig(s->childKeys(), name).value_or(name));
    if (wert.typeId() != QMetaType::QString)
        return false;
    text = wert.toString();
    text = text.left(text.indexOf(QChar(0)));
    return true;
}

} // namespace vemo
