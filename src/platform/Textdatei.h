#pragma once

#include <QByteArray>
#include <QString>

namespace vemo {

// A text file read line by line, as the system's line input does: lines end at CR LF, a lone CR
// or LF; the text is decoded from the Windows Western code page. Reading past the end raises
// error 62, a file that cannot be opened 53 (missing) or 75 (no access).
class Textdatei {
public:
    explicit Textdatei(const QString& pfad);

    bool eof() const { return m_pos >= m_daten.size(); }
    QString zeileLesen();
    // The record up to the next comma or line end; quoted fields lose their quotes.
    QString feldLesen();

private:
    QByteArray m_daten;
    qsizetype m_pos = 0;
};

} // namespace vemo
