#pragma once

#include "links/Einstellungsvarianten.h"
#include "platform/Dialog.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>

namespace vemo {

class CommPort;
class Fehler;

// The settings dialog of the 37xx instruments: it shows the instrument on the component's port
// with its serial number and clock, sends it an identification text, sets its clock to the
// computer's, clears its memory, and keeps the code splitting settings of the table init, which
// say how the readers divide the instrument's four-digit codes. Both dialogs of the family are this
// one machine with the texts of their variant.
//
// Every 800 ms a tick asks "ID" and, when the instrument answers, "XG": so the dialog shows
// "(keine Verbindung)" at the next tick after the cable is pulled, and the instrument again once it
// is back. The settings of init are written on every closing, without a question.
class frmSettingZEMAK3710 : public DialogController {
    Q_OBJECT
public:
    static constexpr int Taktzeit = 800;     // ms between two polls of the instrument
    static constexpr int Antwortfrist = 300; // ms a reply to "ID" or "XG" may take
    static constexpr int Befehlspause = 200; // ms the reply to a command is waited for, then dropped
    static inline const QString Vorgabekennung = "########";

    explicit frmSettingZEMAK3710(const Einstellungsvariante& variante, QObject* parent = nullptr);
    ~frmSettingZEMAK3710() override;

    const Einstellungsvariante& variante() const { return m_variante; }

    // The fixed texts of the dialog, translated.
    QString titel() const;
    QString uhrRahmen() const;
    QString kennungsRahmen() const;
    QString aufteilungsRahmen() const;
    QStringList kundenstellenListe() const;
    QStringList verteilerstellenListe() const;

    // What the view shows.
    const QString& gerät() const { return m_gerät; }
    const QString& serienNr() const { return m_serienNr; }
    const QString& prüfgerätZeit() const { return m_prüfgerätZeit; }
    const QString& pcZeit() const { return m_pcZeit; }
    const QString& kennungstext() const { return m_kennungstext; }
    bool verbunden() const { return m_verbunden; }
    bool aufteilungSichtbar() const { return m_aufteilungSichtbar; }
    bool codeSplitting() const { return m_codeSplitting; }
    // List indexes of the two combos, 0 to 2; -1 when init holds a value they don't offer.
    int kundenstellenIndex() const { return m_kundenstellen; }
    int verteilerstellenIndex() const { return m_verteilerstellen; }

    // Reads the settings of init; a store error is shown and leaves the defaults.
    void laden();
    // The dialog has come up: opens the port, throws away what waits in the line, starts polling.
    void zeigen();
    // Opens the port and lets it settle; false when it could not be had (the reason has been shown).
    bool verbinden();
    // One poll of the instrument, as the timer makes it.
    void Timer1();

    // The controls.
    void setKennungstext(const QString& text);
    void setCodeSplitting(bool an);
    void setKundenstellenIndex(int index);
    void setVerteilerstellenIndex(int index);
    void ComSend();
    void ComSync();
    void ComMesLöschen();
    void ComSchließen();

    // The 8 characters "PS 0," sends for a text: trimmed, blanks in front, the last 8 of a longer one.
    static QString kennungFürGerät(const QString& text);

signals:
    // The serial number has replaced "########" in the text box: the view selects it whole.
    void kennungUebernommen();

private:
    void öffnungsfehler(const Fehler& f);
    void taktAusführen();
    void gerätZeigen(const QByteArray& antwort, qsizetype p);
    void uhrZeigen();
    void keineVerbindung();
    // Sends a command and reads the reply until it holds the word and ends in CR, for at most the
    // reply time; the reply as it came.
    QByteArray fragen(const QByteArray& befehl, const QByteArray& wort);
    // Sends a command, waits for its reply and drops it unread, with the busy cursor.
    void befehlSenden(const QByteArray& befehl);
    // Closing, however it comes: polling stops, the port closes, init gets the settings. A close
    // asked for while the instrument is being talked to waits for the end of that talk.
    void entladen();
    void portSchließen();
    void einstellungenSchreiben();

    const Einstellungsvariante& m_variante;
    std::unique_ptr<CommPort> m_port;
    QTimer m_timer1;
    bool m_beschäftigt = false; // a tick or a command is talking to the instrument
    bool m_entladen = false;
    bool m_entladenNachTakt = false;

    bool m_verbunden = false;
    QString m_gerät;
    QString m_serienNr;
    QString m_prüfgerätZeit;
    QString m_pcZeit;
    QString m_kennungstext = Vorgabekennung;
    bool m_aufteilungSichtbar = false;
    bool m_codeSplitting = false;
    int m_kundenstellen = 1;
    int m_verteilerstellen = 1;
    // What init held for the combos, written back unchanged while a combo shows no choice.
    QString m_kundenstellenGelesen = "2";
    QString m_verteilerstellenGelesen = "2";
};

// Shows the settings dialog for the component's device type modally and returns when it is closed.
void einstellungZemak3710();

} // namespace vemo
