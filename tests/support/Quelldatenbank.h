#pragma once

#include <QString>
#include <QVariantMap>

namespace vemo::test {

// An older database in our own SQLite format with its table kunden, written row by row; a column
// a row does not name stays Null.
class Quelldatenbank {
public:
    explicit Quelldatenbank(QString pfad);

    void zeile(const QVariantMap& felder) const;
    const QString& pfad() const { return m_pfad; }

    // The columns of the table, named as the old input masks named their controls.
    static const QStringList& spalten();

private:
    QString m_pfad;
};

// A source row of a customer, plant and inspection with the given measurement text.
QVariantMap quellzeile(const QString& kunde, const QString& anlage, const QString& messtext = {});

} // namespace vemo::test
