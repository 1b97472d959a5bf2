#pragma once

#include <QFile>
#include <QString>

namespace vemo {

// A numbered rendering in the working directory: the report number + ".sep", written anew, and its
// copy number + ".txt", appended to. Every line goes to both, in the Windows code page, ended by
// CR LF. Write errors raise 75.
class Berichtsdatei {
public:
    Berichtsdatei(const QString& verzeichnis, const QString& nummer);

    void zeile(const QString& text);

private:
    QFile m_bericht;
    QFile m_kopie;
};

} // namespace vemo
