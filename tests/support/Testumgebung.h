#pragma once

#include "core/ModulState.h"
#include "platform/AufzeichnungsUi.h"
#include "platform/SettingsStore.h"
#include "store/Datenbank.h"
#include "support/Postgresserver.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace vemo::test {

// A fresh component state for each test: a new database with schema and host data in a
// temporary folder, the recording Ui and settings kept in memory.
class Testumgebung : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Creates the database; with demo, the demo customers and plants too.
    void neueDatenbank(bool demo = false);
    void sql(const QString& natives) const;
    // A statement of the dialect with "?" placeholders, bound in order to the values.
    void ausführen(const QString& anweisung, const QVector<QVariant>& werte) const;
    // The first column of the first row of a query, as text.
    QString wert(const QString& abfrage) const;
    QString wert(const QString& abfrage, const QVector<QVariant>& werte) const;
    // The rows of a query, each as its columns joined by "|", so that a result compares as one text;
    // without its keys (the columns named ...ID), records of two databases whose keys differ.
    QStringList zeilen(const QString& abfrage, const QVector<QVariant>& werte = {},
                       bool ohneSchlüssel = false) const;
    // The first of them; empty without one.
    QString zeile(const QString& abfrage, const QVector<QVariant>& werte = {}) const;
    long anzahl(const QString& tabelle) const;
    // The row counts of tables named "A|B", joined the same way.
    QString anzahlen(const QString& tabellen) const;
    QString pfad(const QString& name) const { return m_dir.filePath(name); }

    // Aborts a dialog still open when its time is up: the test fails instead of hanging.
    template <class Dialog> void bewachen(Dialog& dialog, int frist = 5000) {
        QTimer::singleShot(frist, &dialog, [this, d = QPointer<Dialog>(&dialog)] {
            m_wachhund = true;
            if (d)
                d->abbrechen();
        });
    }

    QTemporaryDir m_dir;
    AufzeichnungsUi m_ui;
    SpeicherSettingsStore m_settings;
    QString m_dbPfad; // a file, or a server's URI
    Motor m_motor = Motor::Sqlite;
    bool m_wachhund = false;
};

// The same for each engine: a suite of these runs each test on an SQLite file and on a database of
// the test program's own PostgreSQL server.
class Motorumgebung : public Testumgebung, public ::testing::WithParamInterface<Motor> {
protected:
    void SetUp() override;
};

// A file of the source tree (samples, data).
QString quelle(const QString& relativ);

// Each input through f, the results joined by " | ": the cases of one rule compared as one text.
template <class F> QString jeweils(F f, const QStringList& eingaben) {
    QStringList ergebnisse;
    for (const QString& e : eingaben)
        ergebnisse << f(e);
    return ergebnisse.join(" | ");
}

} // namespace vemo::test

// Readable texts in the failure messages of the tests.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}
inline void PrintTo(const QStringList& l, std::ostream* os) {
    *os << '[' << l.join("; ").toStdString() << ']';
}
