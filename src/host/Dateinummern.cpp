#include "host/Dateinummern.h"

#include "core/Arbeitsdateien.h"
#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "platform/SettingsStore.h"
#include "platform/Zahlformat.h"
#include "store/Variant.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vemo {
namespace {

const QString Abschnitt = "Application";
const QString Schlüssel = "LastFile";

// "LastFile = 00000041" gives 41; the default "00000000" has no text behind the name and counts 0.
qint64 nummerAus(const QString& zeile) {
    return qint64(zahlformat::val(zeile.mid(11)));
}

struct Schritt {
    QString nummer;
    QString zeile;
};

Schritt weiterzählen(qint64& nummer) {
    ++nummer;
    const QString ziffern = QString::number(nummer).rightJustified(8, '0');
    if (ziffern == "99999999") {
        nummer = 0;
        return {"00000000", "LastFile = 00000000"};
    }
    return {ziffern, "LastFile = " + ziffern};
}

QString backupVerzeichnis() {
    const QString v = text(modul().BackupVerzeichnis);
    if (v.isEmpty() || !QFileInfo(v).isDir())
        throw fehler::mit(fehler::PfadNichtGefunden, v);
    return v;
}

// Creates the numbered file only if no file has its number yet, in one step of the file system:
// another workplace counting from the same "LastFile" meanwhile never gets the same file, and a
// copy never overwrites another. False when the number was taken.
bool neuAnlegen(const QString& ziel, const QByteArray& inhalt) {
    QFile datei(ziel);
    if (!datei.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        if (QFileInfo::exists(ziel))
            return false;
        throw fehler::mit(fehler::PfadZugriff, ziel);
    }
    if (datei.write(inhalt) != inhalt.size() || !datei.flush()) {
        datei.remove();
        throw fehler::mit(fehler::PfadZugriff, ziel);
    }
    return true;
}

} // namespace

QString NächsteDateiNummer() {
    QString ergebnis;
    mitFalle([&] {
        const QString zeile = settings().GetSetting(Abschnitt, Schlüssel, "00000000");
        modul().selektorTabelle[19] = zeile;
        const QDir backup(backupVerzeichnis());
        qint64 nummer = nummerAus(zeile);
        Schritt s;
        do {
            s = weiterzählen(nummer);
        } while (QFileInfo::exists(ohneGroßKlein(backup.path(), s.nummer + ".ser")));
        settings().SaveSetting(Abschnitt, Schlüssel, s.zeile);
        ergebnis = s.nummer;
    });
    return ergebnis;
}

QString NächsteSepNummer() {
    QString ergebnis;
    mitFalle([&] {
        const QString zeile = settings().GetSetting(Abschnitt, Schlüssel, "00000000");
        modul().selektorTabelle[22] = zeile;
        qint64 nummer = nummerAus(zeile);
        const Schritt s = weiterzählen(nummer);
        settings().SaveSetting(Abschnitt, Schlüssel, s.zeile);
        ergebnis = s.nummer;
    });
    return ergebnis;
}

void backupVerzeichnisPrüfen() {
    backupVerzeichnis();
}

void nummerierteKopieAnlegen(const QString& selektor) {
    const QByteArray inhalt = dateiLesen(arbeitsdatei(rohdateiFür(selektor)));
    QString ziel;
    do {
        const QString nummer = NächsteDateiNummer();
        ziel = text(modul().BackupVerzeichnis) + QDir::separator() + nummer + ".ser";
        modul().backupNummer = nummer;
        modul().backupPfad = ziel;
        if (nummer.isEmpty())
            throw fehler::mit(fehler::PfadNichtGefunden, ziel);
    } while (!neuAnlegen(ziel, inhalt));
}

} // namespace vemo
