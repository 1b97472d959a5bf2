#include "platform/Textdatei.h"

#include "platform/Codepage.h"
#include "platform/Fehler.h"

#include <QFile>
#include <QFileInfo>

namespace vemo {

Textdatei::Textdatei(const QString& pfad) {
    QFile f(pfad);
    if (!QFileInfo::exists(pfad))
        throw fehler::mit(fehler::DateiNichtGefunden, pfad);
    if (!f.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    m_daten = f.readAll();
    // A Ctrl-Z ends a text file, as it does for the system's line input.
    if (const qsizetype z = m_daten.indexOf('\x1a'); z >= 0)
        m_daten.truncate(z);
}

QString Textdatei::zeileLesen() {
    if (eof())
        throw fehler::mit(fehler::HinterDateiende);
    qsizetype e = m_pos;
    while (e < m_daten.size() && m_daten[e] != '\r' && m_daten[e] != '\n')
        ++e;
    const QString zeile = ausAnsi(m_daten.mid(m_pos, e - m_pos));
    if (e < m_daten.size() && m_daten[e] == '\r')
        ++e;
    if (e < m_daten.size() && m_daten[e] == '\n')
        ++e;
    m_pos = e;
    return zeile;
}

QString Textdatei::feldLesen() {
    if (eof())
        throw fehler::mit(fehler::HinterDateiende);
    while (m_pos < m_daten.size() && m_daten[m_pos] == ' ')
        ++m_pos;
    QByteArray feld;
    if (m_pos < m_daten.size() && m_daten[m_pos] == '"') {
        const qsizetype ende = m_daten.indexOf('"', m_pos + 1);
        const qsizetype bis = ende < 0 ? m_daten.size() : ende;
        feld = m_daten.mid(m_pos + 1, bis - m_pos - 1);
        m_pos = std::min(m_daten.size(), bis + 1);
    }
    qsizetype e = m_pos;
    while (e < m_daten.size() && m_daten[e] != ',' && m_daten[e] != '\r' && m_daten[e] != '\n')
        ++e;
    feld += m_daten.mid(m_pos, e - m_pos).trimmed();
    m_pos = e;
    if (m_pos < m_daten.size() && m_daten[m_pos] == ',')
        ++m_pos;
    else {
        if (m_pos < m_daten.size() && m_daten[m_pos] == '\r')
            ++m_pos;
        if (m_pos < m_daten.size() && m_daten[m_pos] == '\n')
            ++m_pos;
    }
    return ausAnsi(feld);
}

} // namespace vemo
