#include "conversion/DumpUmschreiben.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "platform/Codepage.h"
#include "platform/Textdatei.h"

#include <QFile>
#include <QRegularExpression>

namespace vemo {
namespace {

constexpr int Spalte = 24;
const QString Leerzeile(Spalte, ' ');
const QString Lineal(Spalte, '-');
constexpr int Kopfzeilen = 2; // the title and the line with the serial number
constexpr int Präfixlänge = 3;

using Form = QStringList (*)(const QString& präfix, const QStringList& werte);

QStringList riso(const QString& präfix, const QStringList& w) {
    static const QHash<QString, QString> spannung{{"R10", "1000V"}, {"R25", "250V"}, {"R50", "500V"}};
    // The overrange marks "OL", ">200" and "o.r." stand where the value would.
    return {" Riso " + spannung.value(präfix) + " =  " + w.value(0) + "  MOhm"};
}

QStringList niederohm(const QString&, const QStringList& w) {
    bool zahl = false;
    const double wert = w.value(0).toDouble(&zahl);
    return {" LOW Ohm    =  " + (zahl ? QString::number(wert, 'f', 4) : w.value(0)) + "  Ohm"};
}

QStringList innenwiderstand(const QString&, const QStringList& w) {
    return {" Ri   = " + w.value(0) + "  Ohm", " Ik   = " + w.value(1) + "  kA"};
}

QStringList schleife(const QString& präfix, const QStringList& w) {
    static const QHash<QString, QString> marke{{"ZS0", "0z"}, {"ZS1", "1z"}, {"RS0", "0r"}, {"RS1", "1r"}};
    return {" Zs  " + marke.value(präfix) + " = " + w.value(0) + "  Ohm"};
}

QStringList spannung(const QString&, const QStringList& w) {
    const QString f = w.value(1);
    // Above its range the instrument prints the frequency with its unit in one word.
    const QString frequenz = f.startsWith(">200") ? " f    = >200Hz" : " f    = " + f + "  Hz";
    return {" U    = " + w.value(0) + "  V", frequenz};
}

QStringList berührungsspannung(const QString&, const QStringList& w) {
    const QString wert = w.value(0);
    if (wert.startsWith('-'))
        return {"  Ub- = " + wert.mid(1) + "  V"};
    return {"  Ub  = " + wert + "  V"};
}

QStringList auslösezeit(const QString& präfix, const QStringList& w) {
    const QString phase = präfix == "T18" ? "180" : "0";
    return {" tFI AC " + phase.leftJustified(6) + w.value(0) + " mA  x1", "  t   = " + w.value(1) + "  ms"};
}

QStringList erde(const QString&, const QStringList& w) {
    return {" Re         = " + w.value(0) + "  Ohm"};
}

// The form of each entry of the prefix table (ZeilenPräfixeSetzen), by its number.
const Form Formen[] = {riso,        riso,        riso,     spannung, innenwiderstand,
                       schleife,    schleife,    schleife, schleife, berührungsspannung,
                       auslösezeit, auslösezeit, erde,     niederohm};

QStringList werte(const QString& text) {
    QStringList werte = text.split(' ', Qt::SkipEmptyParts);
    for (QString& w : werte)
        w = KommaZuPunkt(w);
    return werte;
}

// The form of a coded line, by its prefix in the shared table; none for any other line.
std::optional<QStringList> umgeschrieben(const QString& zeile) {
    const QStringList& tabelle = modul().mulTexte;
    for (int i = 0; i < int(std::size(Formen)); ++i) {
        const QString präfix = tabelle.value(i + 1);
        if (!präfix.isEmpty() && zeile.startsWith(präfix))
            return Formen[i](präfix, werte(zeile.mid(Präfixlänge)));
    }
    return std::nullopt;
}

QString seriennummer(const QString& zeile) {
    const qsizetype pos = zeile.indexOf("No.");
    const QString nummer = pos < 0 ? QString() : zeile.mid(pos + 3).trimmed();
    return nummer == "---" ? QString() : nummer;
}

// The lines of the report form, from the coded dump's lines.
class Umschreibung {
public:
    QStringList zeilen;

    void kopf(const QString& nummer) {
        zeilen << "RUVO GmbH 0100 Multi    " << Lineal << "4470D    No. " + nummer
               << " " + QString(Spalte - 1, '_') << Leerzeile;
    }
    void zeile(const QString& z) {
        static const QRegularExpression ort(R"(^\s*([SP])\s*(\d+)\s*$)");
        if (const auto m = ort.match(z); m.hasMatch()) {
            (m.captured(1) == "S" ? m_verteiler : m_platz) = m.captured(2);
            m_kopfSteht = false;
        } else if (z.trimmed().compare("FI-ANALYSE", Qt::CaseInsensitive) == 0) {
            analyseBeginnen();
        } else if (m_inAnalyse && !z.trimmed().isEmpty() && !umgeschrieben(z)) {
            m_schritte << werte(z);
        } else {
            analyseBeenden();
            form(z);
        }
    }
    void ende() {
        analyseBeenden();
        zeilen << " " + QString(Spalte - 1, '_') << Leerzeile << Leerzeile << Leerzeile;
    }

private:
    void form(const QString& z) {
        const auto form = umgeschrieben(z);
        if (!form)
            return;
        if (!m_kopfSteht)
            zeilen << StromkreisKopf(m_verteiler, m_platz);
        m_kopfSteht = true;
        zeilen << *form << Leerzeile;
    }
    void analyseBeginnen() {
        analyseBeenden();
        m_inAnalyse = true;
    }
    void analyseBeenden() {
        if (!m_inAnalyse)
            return;
        zeilen << FiAnalyse(m_schritte);
        m_schritte.clear();
        m_inAnalyse = false;
        m_kopfSteht = false; // what follows belongs to its circuit again
    }

    QString m_verteiler;
    QString m_platz;
    bool m_kopfSteht = false;
    bool m_inAnalyse = false;
    QList<QStringList> m_schritte;
};

void schreiben(const QString& pfad, const QStringList& zeilen) {
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw fehler::mit(fehler::PfadZugriff, pfad);
    for (const QString& z : zeilen) {
        const QByteArray bytes = nachAnsi(z) + "\r\n";
        if (datei.write(bytes) != bytes.size())
            throw fehler::mit(fehler::PfadZugriff, pfad);
    }
}

// The rewritten text takes the place of the dump; both names are looked for without regard to case.
void anDieStelle(const QString& trans, const QString& ruvo) {
    if (QFile::exists(ruvo) && !QFile::remove(ruvo))
        throw fehler::mit(fehler::PfadZugriff, ruvo);
    if (!QFile::rename(trans, ruvo))
        throw fehler::mit(fehler::PfadZugriff, trans);
}

} // namespace

QString KommaZuPunkt(const QString& text) {
    const qsizetype komma = text.indexOf(',');
    return komma < 0 ? text : text.left(komma) + "." + text.mid(komma + 1);
}

QStringList StromkreisKopf(const QString& verteiler, const QString& platz) {
    const QString s = verteiler.isEmpty() ? "S: ---" : "S:  " + ("0000" + verteiler).right(3);
    return {s + "    P:  " + ("000" + platz).right(3), Lineal, Leerzeile};
}

QStringList FiAnalyse(const QList<QStringList>& schritte) {
    // The analysis line as the key texts give it (entry 7); while a dump is rewritten the prefixes
    // hold that entry, so it stands here in full.
    QStringList block{"S: 255    FI-Analyse    ", Lineal, Leerzeile};
    for (const QStringList& s : schritte)
        block << "  " + s.value(0).rightJustified(6) + " mA  " + s.value(1).rightJustified(5) + " ms";
    block << Leerzeile;
    return block;
}

bool DumpUmschreiben() {
    return mitFalle([] {
        const QString ruvo = arbeitsdatei(datei::Ruvo);
        const QString trans = arbeitsdatei(datei::Trans);
        Textdatei eingabe(ruvo);
        Umschreibung u;
        QString nummer;
        for (int i = 0; i < Kopfzeilen && !eingabe.eof(); ++i)
            if (const QString s = seriennummer(eingabe.zeileLesen()); !s.isEmpty())
                nummer = s;
        u.kopf(nummer);
        while (!eingabe.eof())
            u.zeile(eingabe.zeileLesen());
        u.ende();
        schreiben(trans, u.zeilen);
        anDieStelle(trans, ruvo);
    });
}

} // namespace vemo
