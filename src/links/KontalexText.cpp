#include "links/KontalexText.h"

#include "core/ModulState.h"
#include "core/Satzdatei.h"
#include "core/Worttabelle.h"
#include "links/KontalexDekoder.h"
#include "links/KontalexModelle.h"
#include "platform/Codepage.h"
#include "platform/Ui.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cmath>

namespace vemo {
namespace {

constexpr int Felder = 7;
constexpr int StummeFelder = 2;
const QString OhneSprache = "No Language";
// A logger file counts its values from its lines: the lines that are not values, and the lines a
// value takes.
constexpr int KopfzeilenDesLoggers = 9;
constexpr int ZeilenJeLoggerwert = 3;
const QString Loggerdatei = "RS232_d.txt";
// The entry of the word table that tells the user the instrument held nothing.
constexpr int KeineMessungen = 403;

class Ausgabe {
public:
    explicit Ausgabe(const QString& pfad) : m_datei(pfad) {
        if (!m_datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
            throw fehler::mit(fehler::PfadZugriff, pfad);
    }
    void schreiben(const QByteArray& zeile) {
        if (m_datei.write(zeile) != zeile.size())
            throw fehler::mit(fehler::PfadZugriff, m_datei.fileName());
    }

private:
    QFile m_datei;
};

QByteArray markenzeile(const QString& marke) {
    return satzzeile({marke, 1, 1, 1, 1, 1, 1, 1});
}

void gruppeSchreiben(Ausgabe& aus, const Ortsgruppe& g) {
    aus.schreiben(markenzeile(kontalexsatz::Blockmarke));
    aus.schreiben(satzzeile(
        {g.objekt, g.stromkreis, g.platz, g.objektText, g.stromkreisText, g.platzText, g.zeit, g.datum}));
    for (const Messzeile& z : g.zeilen)
        aus.schreiben(satzzeile({z.funktion, z.art, z.wertname, z.wert, z.einheit, 1, 1, 1}));
}

} // namespace

QStringList geräteinfoLesen(const QByteArray& antwort) {
    QStringList felder;
    for (const QByteArray& f : antwort.split('\0'))
        felder << ausAnsi(f);
    felder.resize(std::max<qsizetype>(felder.size(), StummeFelder + Felder));
    QStringList info = felder.mid(StummeFelder, Felder);
    info[0] = info[0].trimmed();
    info[1] = info[1].trimmed();
    if (!kontalexModell(info[0]).ohneSprache)
        return info;
    info[Felder - 1] = OhneSprache;
    return info;
}

bool kontalexTextSchreiben(const QString& pfad, const QStringList& geräteinfo, const QByteArray& dump) {
    Ausgabe aus(pfad);
    bool loggerDaten = false;
    if (!dump.isEmpty()) {
        aus.schreiben(markenzeile(kontalexsatz::Gerätemarke));
        QString info[Felder];
        for (int i = 0; i < Felder; ++i)
            info[i] = geräteinfo.value(i);
        aus.schreiben(satzzeile({info[0], info[1], info[2], info[3], info[4], info[5], info[6], 1}));
        KontalexDekoder dekoder(kontalexModell(info[0]), xText("Anlage") + " 1");
        dekoder.dekodieren(dump, [&aus](const Ortsgruppe& g) { gruppeSchreiben(aus, g); });
        loggerDaten = dekoder.loggerDaten();
    } else if (const QString text = mnuText(KeineMessungen); !text.isEmpty()) {
        ui().MsgBox(xText(text), modul().anwendungstitel);
    }
    aus.schreiben(markenzeile(kontalexsatz::Endemarke));
    return loggerDaten;
}

void loggerKopfSchreiben(const QString& pfad) {
    QFile quelle(pfad);
    if (!quelle.open(QIODevice::ReadOnly))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    const QByteArray inhalt = quelle.readAll();
    quelle.close();
    const auto zeilen = inhalt.count('\n');
    const auto werte = std::lround(double(zeilen - KopfzeilenDesLoggers) / ZeilenJeLoggerwert);
    // The new file is written beside the old one first, so that a failure leaves the old one whole.
    const QString neu = QFileInfo(pfad).dir().filePath(Loggerdatei);
    {
        Ausgabe aus(neu);
        aus.schreiben(satzzeile({kontalexsatz::Loggerkopf, qlonglong(werte), 1, 1, 1, 1, 1, 1}));
        aus.schreiben(inhalt);
    }
    if (!QFile::remove(pfad) || !QFile::rename(neu, pfad))
        throw fehler::mit(fehler::PfadZugriff, pfad);
}

} // namespace vemo
