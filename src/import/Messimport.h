#pragma once

#include "import/Messtext.h"
#include "store/Recordset.h"

#include <QHash>
#include <QVariant>
#include <functional>

namespace vemo {

// Writes the circuits of a measurement text into the boards, circuits and measurement rows of an
// inspection, finding the cable, fuse and RCD types by their columns and adding a missing one.
class Messimport {
public:
    Messimport();

    void einlesen(const Messtext& text, const QVariant& prüfungID, const QVariant& datum);

private:
    QVariant verteiler(const QString& code, const QString& name, const QVariant& prüfungID);
    QVariant stromkreis(const Messkreis& k, const QVariant& verteilerID);
    void messung(const Messkreis& k, const QVariant& stromkreisID, const QVariant& datum);
    QVariant kabeltyp(const QString& name);
    QVariant sicherungstyp(const QString& name);
    QVariant rcdtyp(const QString& strom, const QString& art);
    // The key found or added for this type in this run, else what findenOderAnlegen gives.
    QVariant gemerkt(const QString& merker, const std::function<QVariant()>& findenOderAnlegen);

    Recordset m_verteiler, m_stromkreis, m_messung;
    QHash<QString, QVariant> m_typen; // found or added in this run, by table and columns
};

} // namespace vemo
