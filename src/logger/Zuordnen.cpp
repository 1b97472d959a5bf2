#include "logger/Zuordnen.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "core/Sanduhr.h"
#include "core/Worttabelle.h"
#include "logger/DatenLogger.h"
#include "logger/Loggerdatei.h"
#include "logger/Reihenspeicher.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"
#include "platform/Zahlformat.h"

namespace vemo {
namespace {

constexpr int Listenüberschrift = 402; // entry of the .MNU table
const QString Analysezeile = "S: 255    FI-Analyse    ";

bool istVaritron() {
    return modul().Selektor() == "Multitester = 0100-Varitron";
}

// A board of Verteil.txt as the list shows it: the object text of its block head, else its plant,
// board and circuit numbers, then the eight-digit number at the right.
QString listeneintrag(const QStringList& felder) {
    QString name = felder.value(4).trimmed();
    if (name.isEmpty())
        name = felder.value(1) + "." + felder.value(2) + "." + felder.value(3);
    return name.leftJustified(Zuordnen::NamenBreite) + felder.value(0).right(Zuordnen::NummerLänge);
}

// A line of Verteil.txt: the number and the values of the block head, separated by commas, texts in
// double quotes, which may hold commas themselves.
QStringList felderDerZeile(const QString& zeile) {
    QStringList felder(1);
    bool inAnführung = false;
    for (const QChar c : zeile) {
        if (c == '"')
            inAnführung = !inAnführung;
        else if (c == ',' && !inAnführung)
            felder << QString();
        else
            felder.back() += c;
    }
    for (QString& f : felder)
        f = f.trimmed();
    return felder;
}

QStringList verteilerLesen() {
    QStringList einträge;
    Textdatei datei(arbeitsdatei(datei::Verteil));
    while (!datei.eof())
        if (const QString zeile = datei.zeileLesen(); !zeile.trimmed().isEmpty())
            einträge << listeneintrag(felderDerZeile(zeile));
    return einträge;
}

} // namespace

Zuordnen::Zuordnen(QObject* parent) : DialogController(parent) {
    m_diagramm.xText = xText("Zeit");
    m_diagramm.yText = xText("Spannung");
}

QString Zuordnen::titel() const {
    return xText("Daten Pool") + " - " + modul().anwendungstitel;
}

QString Zuordnen::modus() const {
    return modul().datenpoolModus;
}

void Zuordnen::zuordnungZeigen(bool an) {
    m_zuordnung = an;
    emit aktualisiert();
}

QString Zuordnen::listenÜberschrift() const {
    const QString text = mnuText(Listenüberschrift);
    return text.isEmpty() ? xText("Auswahl eines Objekts / Anlage:") : text;
}

void Zuordnen::listeFüllen() {
    m_listeWirdGefüllt = true;
    mitFalle([&] { m_liste = verteilerLesen(); });
    m_gewählt = m_liste.isEmpty() ? -1 : 0;
    m_listeWirdGefüllt = false;
    emit aktualisiert();
}

void Zuordnen::eintragWählen(int index) {
    if (m_listeWirdGefüllt || index < 0 || index >= m_liste.size())
        return;
    m_gewählt = index;
    const Sanduhr sanduhr;
    const QString nummer = m_liste[index].right(NummerLänge);
    const bool kopiert = mitFalle([&] {
        dateiKopieren(ohneGroßKlein(modul().Datenbankverzeichnis, nummer + ".SEP"),
                      arbeitsdatei(datei::Ruvo));
        dateiKopieren(arbeitsdatei(datei::Ruvo), arbeitsdatei(datei::RuvoSav));
    });
    if (kopiert)
        diagrammFüllen();
    emit aktualisiert();
}

void Zuordnen::nurHauptverteiler(bool an) {
    m_nurHauptverteiler = an;
    emit aktualisiert();
}

QString Zuordnen::überschrift() const {
    return xText(istVaritron() ? "Wie werden die Messungen..." : "Wie werden die Stromkreise...");
}

QString Zuordnen::alleText() const {
    return xText(istVaritron() ? "Alle Messungen einem Auftraggeber zuordnen"
                               : "Alle Stromkreise einem Auftraggeber zuordnen");
}

QString Zuordnen::bestimmteText() const {
    return xText(istVaritron() ? "Bestimmte Messungen einem Auftraggeber zuordnen"
                               : "Bestimmte Stromkreise einem Auftraggeber zuordnen");
}

void Zuordnen::text9Verlassen(const QString& text) {
    const auto zahl = zahlformat::zahl(text.trimmed());
    m_text9 = zahl ? QString::number(qint64(*zahl)).rightJustified(3, '0') : text;
    emit aktualisiert();
}

void Zuordnen::diagrammFüllen() {
    m_diagramm.leeren();
    m_reiheBereit = false;
    mitFalle([&] {
        Textdatei datei(arbeitsdatei(datei::RuvoSav));
        while (!datei.eof()) {
            const QString zeile = datei.zeileLesen();
            if (istLoggerMarke(zeile))
                return loggerLesen(datei);
            if (zeile.left(Analysezeile.size()) == Analysezeile)
                return analyseLesen(datei);
        }
    });
    emit aktualisiert();
}

void Zuordnen::loggerLesen(Textdatei& datei) {
    const Loggerreihe r = loggerreiheLesen(datei);
    m_kopf.anzahl = r.anzahl;
    m_kopf.intervall = r.intervall;
    m_kopf.maximum = r.maximum;
    m_kopf.minimum = r.minimum;
    m_leiterPE = r.leiterPE;
    m_diagramm.reihenNamen = {xText("Spannung"), QString()};
    for (const QString& wert : r.werte)
        if (!m_diagramm.hinzufügen(0, {wert, {}}))
            break;
}

// An analysis: one line a step, the fault current and the trip time, up to the first line without.
void Zuordnen::analyseLesen(Textdatei& datei) {
    m_diagramm.reihenNamen = {"Id (mA)", "t (ms)"};
    while (!datei.eof()) {
        const QString zeile = datei.zeileLesen().trimmed();
        if (zeile.isEmpty() || zeile.startsWith('-'))
            continue;
        const QStringList teile = zeile.split(' ', Qt::SkipEmptyParts);
        if (teile.size() < 4 || !zahlformat::istNumerisch(teile[0]))
            return;
        m_diagramm.hinzufügen(0, {teile[0], {}});
        m_diagramm.hinzufügen(1, {teile[2], {}});
    }
}

void Zuordnen::reiheFertig() {
    m_reiheBereit = true;
    emit aktualisiert();
}

void Zuordnen::startzeitFragen() {
    DatenLogger dialog(*this);
    ui().zeigeModal(dialog);
    emit aktualisiert();
}

void Zuordnen::command4() {
    schließen(0);
}

void Zuordnen::command5() {
    if (modus() != "DATEN LOGGER") {
        schließen(1);
        return;
    }
    if (!m_reiheBereit)
        startzeitFragen();
    if (!m_reiheBereit)
        return;
    if (!fnVorZuordnenAuswahlPrüfen())
        return;
    const bool gespeichert = mitFalle([&] { reiheSpeichern(m_kopf, m_diagramm); });
    if (gespeichert)
        schließen(1);
}

} // namespace vemo
