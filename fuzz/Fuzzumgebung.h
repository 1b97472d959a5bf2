#pragma once

#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>

namespace vemo::fuzz {

// What every fuzz program's input runs against: a database with schema and host data, the word
// tables beside it, the recording Ui and settings kept in memory. The folder is made once; before
// each input its files are written back as they were made, so that no input sees what the one
// before it left, and a finding replays alone.
class Fuzzumgebung {
public:
    // The one environment of the program, made on first use.
    static Fuzzumgebung& instanz();

    // The database folder as freshly made, the module state as after loading, no message shown.
    void frischerLauf();
    // Writes the input as a file of the database folder and gives its path.
    QString dateiAblegen(const QString& name, const uint8_t* daten, std::size_t größe) const;
    QString pfad(const QString& name) const { return m_dir.filePath(name); }
    QString datenbankPfad() const { return pfad(DatenbankName); }

    // An error outside the component's own numbers, caught by the standard trap, is a fault the
    // trap only hid: the program aborts, so that libFuzzer keeps the input.
    void keinInternerFehler() const;

    AufzeichnungsUi ui;
    SpeicherSettingsStore settings;

private:
    Fuzzumgebung();
    void ordnerLeeren() const;

    static inline const QString DatenbankName = "vemotrix.db";
    QTemporaryDir m_dir;
    QMap<QString, QByteArray> m_urzustand; // the folder's files as made: name and content
};

} // namespace vemo::fuzz
