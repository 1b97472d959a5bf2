#include "links/ZemakSpeichern.h"

#include "core/Arbeitsdateien.h"
#include "platform/Fehler.h"

#include <QFile>

namespace vemo {
namespace {

const QByteArray Abfragekopf = "QD 2,";

// The position behind the n-th comma from von on, or -1 when there are fewer.
qsizetype hinterKomma(const QByteArray& text, qsizetype von, int n) {
    qsizetype pos = von;
    for (int i = 0; i < n; ++i) {
        pos = text.indexOf(',', pos);
        if (pos < 0)
            return -1;
        ++pos;
    }
    return pos;
}

void speicherantwortTeilen(const QByteArray& stück, int kommas, QList<QByteArray>& zeilen) {
    Q_ASSERT(kommas > 0);
    qsizetype anfang = hinterKomma(stück, Abfragekopf.size(), 1);
    if (anfang < 0) {
        zeilen << stück;
        return;
    }
    zeilen << stück.left(anfang);
    for (qsizetype ende = hinterKomma(stück, anfang, kommas); ende >= 0;
         ende = hinterKomma(stück, anfang, kommas)) {
        zeilen << stück.mid(anfang, ende - anfang);
        anfang = ende;
    }
    zeilen << stück.mid(anfang);
}

} // namespace

QList<QByteArray> zemakZeilen(const QByteArray& empfangen, int kommas) {
    QList<QByteArray> zeilen;
    qsizetype anfang = 0;
    for (qsizetype cr = empfangen.indexOf('\r'); cr >= 0; cr = empfangen.indexOf('\r', anfang)) {
        const QByteArray stück = empfangen.mid(anfang, cr - anfang);
        if (stück.startsWith(Abfragekopf))
            speicherantwortTeilen(stück, kommas, zeilen);
        else
            zeilen << stück;
        anfang = cr + 1;
    }
    return zeilen;
}

void SaveZEMAKMessungen(const QByteArray& empfangen, int kommas) {
    QByteArray inhalt;
    for (const QByteArray& zeile : zemakZeilen(empfangen, kommas))
        inhalt += zeile + "\r\n";
    QFile datei(arbeitsdatei(datei::Ruvo));
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Truncate) || datei.write(inhalt) != inhalt.size() ||
        !datei.flush())
        throw fehler::mit(fehler::PfadZugriff, datei.fileName());
}

} // namespace vemo
