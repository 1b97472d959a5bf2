#pragma once

#include "logger/Diagramm.h"
#include "platform/Dialog.h"

#include <QDateTime>
#include <QStringList>

namespace vemo {

class Textdatei;

// The captions the data pool shows beside a logger series: the start the user gave, and the four
// values of the dump's head.
struct Reihenkopf {
    QDateTime start;
    QString anzahl;
    QString intervall;
    QString maximum;
    QString minimum;
};

// The data pool ("Daten Pool"): what a dump holds that the read-in tables can't take. Set up by the
// pre-pass for its mode (module value datenpoolModus): a plain dump shows the assignment options and,
// for a Kontalex dump, the list of its boards; a logger series or an RCD analysis shows the chart.
// Command5 stores a logger series as a new inspection; Command4 closes without storing.
class Zuordnen : public DialogController {
    Q_OBJECT
public:
    static constexpr int NummerLänge = 8; // the number at the end of a list entry
    static constexpr int NamenBreite = 30;

    explicit Zuordnen(QObject* parent = nullptr);

    QString titel() const;
    QString modus() const;
    bool zeigtZuordnung() const { return m_zuordnung; }
    bool zeigtDiagramm() const { return !m_zuordnung; }
    // The pre-pass's choice between the two parts of the dialog.
    void zuordnungZeigen(bool an);

    // The boards of a Kontalex dump from Verteil.txt: name and number; the first is selected, and
    // that selection runs nothing.
    void listeFüllen();
    const QStringList& liste() const { return m_liste; }
    int gewählt() const { return m_gewählt; }
    QString listenÜberschrift() const;
    // The user chooses a board: its rendering becomes the working dump and feeds the chart.
    void eintragWählen(int index);

    // "Es gibt nur ein Hauptverteiler": the fields of the other boards are hidden.
    void nurHauptverteiler(bool an);
    bool andereVerteilerSichtbar() const { return !m_nurHauptverteiler; }
    QString alleVerteiler() const { return m_nurHauptverteiler ? "JA" : "NEIN"; }
    QString überschrift() const;
    QString alleText() const;
    QString bestimmteText() const;
    // Text9: the number of a board, shown with three digits when the field is left.
    void text9Verlassen(const QString& text);
    const QString& text9() const { return m_text9; }

    // The chart, refilled from Ruvo.SAV as the pre-pass reads it.
    void diagrammFüllen();
    Diagramm& diagramm() { return m_diagramm; }
    const Diagramm& diagramm() const { return m_diagramm; }
    Reihenkopf& kopf() { return m_kopf; }
    const Reihenkopf& kopf() const { return m_kopf; }
    // The ending of the two voltage captions: " (L-PE):" or " (L-N(L)):".
    QString spannungsEndung() const { return m_leiterPE ? " (L-PE):" : " (L-N(L)):"; }
    // The series has its times: the start the user gave, an interval a point.
    bool reiheBereit() const { return m_reiheBereit; }
    void reiheFertig();

    // Opens the dialog that asks for the start of the series.
    void startzeitFragen();
    void command4();
    // In logger mode: creates the inspection and stores the series; without a customer or plant it
    // says why and stays open.
    void command5();

private:
    void loggerLesen(Textdatei& datei);
    void analyseLesen(Textdatei& datei);

    bool m_zuordnung = true;
    QStringList m_liste;
    int m_gewählt = -1;
    bool m_listeWirdGefüllt = false;
    bool m_nurHauptverteiler = false;
    QString m_text9;
    Diagramm m_diagramm;
    Reihenkopf m_kopf;
    bool m_leiterPE = false;
    bool m_reiheBereit = false;
};

} // namespace vemo
