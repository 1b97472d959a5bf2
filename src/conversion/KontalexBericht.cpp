#include "conversion/KontalexBericht.h"

#include "conversion/Berichtsdatei.h"
#include "conversion/BlockZeilen.h"
#include "conversion/Druckbloecke.h"
#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Satzdatei.h"

namespace vemo {
namespace {

constexpr int Spalte = 24;
const QString Leerzeile(Spalte, ' ');
constexpr int LeerzeilenDesLoggers = 4;

// What the logger's head lines show, by the names of its values.
struct Loggerwerte {
    QString intervall;
    QString maximum;
    QString minimum;
    QStringList mittelwerte;
};

QString dreistellig(const QString& zahl) {
    return zahl.rightJustified(3, '0');
}

class Bericht {
public:
    explicit Bericht(Satzleser& leser) : m_leser(leser) {}
    QString schreiben(const std::function<QString()>& nächsteNummer);

private:
    void kopfzeilen(Berichtsdatei& datei, const Satz& gerät);
    void blöcke(Berichtsdatei& datei);
    void logger(Berichtsdatei& datei, const QString& anzahl);
    Loggerwerte loggerwerteLesen();

    Satzleser& m_leser;
    Satz m_satz;
};

QString Bericht::schreiben(const std::function<QString()>& nächsteNummer) {
    m_leser.lesen(m_satz);
    QString loggerAnzahl;
    const bool istLogger = m_satz.a1() == kontalexsatz::Loggerkopf;
    if (istLogger) {
        loggerAnzahl = m_satz.a[1];
        m_leser.lesen(m_satz);
    }
    Satz gerät;
    if (m_satz.a1() == kontalexsatz::Gerätemarke) {
        m_leser.lesen(gerät);
        m_leser.lesen(m_satz);
    }
    const QString nummer = nächsteNummer();
    if (nummer.isEmpty())
        return {}; // the numbering has told the user why
    Berichtsdatei datei(modul().Datenbankverzeichnis, nummer);
    kopfzeilen(datei, gerät);
    if (istLogger)
        logger(datei, loggerAnzahl);
    else
        blöcke(datei);
    datei.zeile(" " + QString(Spalte - 1, '_'));
    datei.zeile(QString());
    return nummer;
}

void Bericht::kopfzeilen(Berichtsdatei& datei, const Satz& gerät) {
    datei.zeile(QString("OMNIVAR").leftJustified(Spalte));
    datei.zeile(QString(Spalte, '-'));
    datei.zeile(gerät.a[0] + "X        No. " + gerät.a[4]);
    datei.zeile(QString());
}

// Each value record goes into the print block of its function; records of functions the report
// doesn't know are passed over.
void Bericht::blöcke(Berichtsdatei& datei) {
    Satz kopf;
    while (m_satz.a1() != kontalexsatz::Endemarke) {
        if (m_satz.a1() == kontalexsatz::Blockmarke) {
            m_leser.lesen(kopf);
            m_leser.lesen(m_satz);
        } else if (const Druckblock* block = druckblockFür(m_satz.a1())) {
            const QString ort = "S: " + dreistellig(kopf.a[1]) + "  P: " + dreistellig(kopf.a[2]) + " ";
            BlockZeilen(datei, m_leser, m_satz, *block, ort, kopf.a[6], kopf.a[7]);
        } else {
            m_leser.lesen(m_satz);
        }
    }
}

Loggerwerte Bericht::loggerwerteLesen() {
    Loggerwerte w;
    while (m_satz.a1() != kontalexsatz::Endemarke) {
        const QString& name = m_satz.a[2];
        if (name == "Intervall ")
            w.intervall = m_satz.a[3];
        else if (name == "U(L-N) MAX")
            w.maximum = m_satz.a[3];
        else if (name == "U(L-N) MIN")
            w.minimum = m_satz.a[3];
        else if (name == "Mittelwert")
            w.mittelwerte << m_satz.a[3];
        m_leser.lesen(m_satz);
    }
    return w;
}

void Bericht::logger(Berichtsdatei& datei, const QString& anzahl) {
    const Loggerwerte w = loggerwerteLesen();
    datei.zeile(QString("DATEN LOGGER").leftJustified(Spalte));
    for (int i = 0; i < LeerzeilenDesLoggers; ++i)
        datei.zeile(Leerzeile);
    datei.zeile("ANZAHL MEßWERTE = " + anzahl);
    datei.zeile("INTERVALL       =  " + w.intervall + " s");
    datei.zeile("UL-N(L) MAX     =  " + w.maximum + " V");
    datei.zeile("UL-N(L) MIN     =  " + w.minimum + " V");
    for (const QString& wert : w.mittelwerte)
        datei.zeile("  " + wert);
}

} // namespace

QString KontalexBericht(const std::function<QString()>& nächsteNummer) {
    QString nummer;
    const bool fertig = mitFalle([&] {
        Satzleser leser(arbeitsdatei(datei::Rs232Txt));
        nummer = Bericht(leser).schreiben(nächsteNummer);
    });
    return fertig ? nummer : QString();
}

} // namespace vemo
