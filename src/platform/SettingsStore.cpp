#include "platform/SettingsStore.h"

#include <QFileInfo>
#include <QSettings>

namespace vemo {

std::unique_ptr<QtSettingsStore> QtSettingsStore::proBenutzer(const QString& anwendung) {
    return std::unique_ptr<QtSettingsStore>(new QtSettingsStore(
        std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "vemotrix", anwendung)));
}

std::unique_ptr<QtSettingsStore> QtSettingsStore::inDatei(const QString& pfad) {
    return std::unique_ptr<QtSettingsStore>(
        new QtSettingsStore(std::make_unique<QSettings>(pfad, QSettings::IniFormat)));
}

QtSettingsStore::QtSettingsStore(std::unique_ptr<QSettings> s) : m_s(std::move(s)) {}
QtSettingsStore::~QtSettingsStore() = default;

QString QtSettingsStore::GetSetting(const QString& abschnitt, const QString& schlüssel,
                                    const QString& vorgabe) const {
    return m_s->value(abschnitt + "/" + schlüssel, vorgabe).toString();
}

void QtSettingsStore::SaveSetting(const QString& abschnitt, const QString& schlüssel, const QString& wert) {
    m_s->setValue(abschnitt + "/" + schlüssel, wert);
    m_s->sync();
}

QString QtSettingsStore::ordner() const {
    return QFileInfo(m_s->fileName()).absolutePath();
}

QString SpeicherSettingsStore::GetSetting(const QString& abschnitt, const QString& schlüssel,
                                          const QString& vorgabe) const {
    return werte.value(abschnitt + "/" + schlüssel, vorgabe);
}

void SpeicherSettingsStore::SaveSetting(const QString& abschnitt, const QString& schlüssel,
                                        const QString& wert) {
    werte.insert(abschnitt + "/" + schlüssel, wert);
}

} // namespace vemo
