#pragma once

#include <QMap>
#include <QString>
#include <memory>

class QSettings;

namespace vemo {

// The per-user settings: a section and a key give a text.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual QString GetSetting(const QString& abschnitt, const QString& schlüssel,
                               const QString& vorgabe = {}) const = 0;
    virtual void SaveSetting(const QString& abschnitt, const QString& schlüssel, const QString& wert) = 0;
    // The folder the settings are kept in: a workplace's own place.
    virtual QString ordner() const = 0;
};

// Over QSettings: per user under the application's name, or in a file of its own (--settings).
class QtSettingsStore : public SettingsStore {
public:
    static std::unique_ptr<QtSettingsStore> proBenutzer(const QString& anwendung);
    static std::unique_ptr<QtSettingsStore> inDatei(const QString& pfad);
    ~QtSettingsStore() override;

    QString GetSetting(const QString& abschnitt, const QString& schlüssel,
                       const QString& vorgabe = {}) const override;
    void SaveSetting(const QString& abschnitt, const QString& schlüssel, const QString& wert) override;
    QString ordner() const override;

private:
    explicit QtSettingsStore(std::unique_ptr<QSettings> s);
    std::unique_ptr<QSettings> m_s;
};

// Kept in memory only; for tests.
class SpeicherSettingsStore : public SettingsStore {
public:
    QString GetSetting(const QString& abschnitt, const QString& schlüssel,
                       const QString& vorgabe = {}) const override;
    void SaveSetting(const QString& abschnitt, const QString& schlüssel, const QString& wert) override;
    QString ordner() const override { return ordnerPfad; }

    QMap<QString, QString> werte; // "section/key"
    QString ordnerPfad;
};

} // namespace vemo
