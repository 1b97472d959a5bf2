#pragma once

#include "links/ZemakVarianten.h"
#include "platform/Dialog.h"

#include <QByteArray>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>

namespace vemo {

class CommPort;
class Fehler;

// The reception dialog of the 37xx family: it finds the instrument on the component's port, sets
// the instrument's clock to the computer's, asks for the stored measurements and saves the reply
// as the working file Ruvo.ser. The five dialogs of the family are this one machine with the
// constants of their variant.
//
// The serial control fills a buffer by its events; a timer looks at the buffer every 300 ms and
// either searches (sends "ID" until the identification comes), sets the clock and sends the
// query, or collects the reply until it ends in CR, two characters, CR. A reply that falls more
// than five characters short of its announced length is asked for again from "ID", up to five
// passes. The outcome is Abbruchmerker: clear when the file holds a whole memory.
class frmZEMAK : public DialogController {
    Q_OBJECT
public:
    static constexpr int Taktzeit = 300;          // ms
    static constexpr int Nachsicht = 5;           // characters a reply may lack and still count as whole
    static constexpr int Wiederholungsgrenze = 5; // short passes until the dialog gives up

    explicit frmZEMAK(const Zemakvariante& variante, QObject* parent = nullptr);
    ~frmZEMAK() override;

    const Zemakvariante& variante() const { return m_variante; }

    // What the view shows.
    QString titel() const;
    QString abbrechenText() const;
    QString zustandRahmen() const;
    QString hinweisRahmen() const;
    const QString& gerätezustand() const { return m_gerätezustand; }
    const QString& hinweis() const { return m_hinweis; }
    int balkenMax() const { return m_balkenMax; }
    int balkenWert() const { return m_balkenWert; }
    const QString& prozent() const { return m_prozent; }

    // The state machine's members.
    bool empfangAktiv() const { return m_empfangAktiv; }
    bool gerätGefunden() const { return m_gerätGefunden; }
    bool abfrageGesendet() const { return m_abfrageGesendet; }
    int wiederholungen() const { return m_wiederholungen; }
    const QByteArray& empfangspuffer() const { return m_empfangspuffer; }

    // The dialog has come up: opens the port, throws away what waits in the line, starts the search.
    void zeigen();
    // The abort button, and the window closed by its frame.
    void abbrechen();

private:
    void portÖffnen();
    void öffnungsfehler(const Fehler& f);
    void OnComm(int ereignis);
    void Timer1();
    void taktAusführen();
    void suchen();
    void uhrStellenUndAbfragen();
    void sammeln();
    void fortschrittZeigen(qsizetype p);
    void antwortVollständig();
    void keineDaten();
    void fertig();
    void portSchließen();
    void senden(const QByteArray& befehl);
    // Serves events for up to ms, until bedingung holds, or until the dialog is closed meanwhile.
    void warten(int ms, const std::function<bool()>& bedingung = {});
    // The 1-based position of a text in the buffer, whatever its case; 0 when it is not there.
    qsizetype stelle(const QByteArray& text) const;

    const Zemakvariante& m_variante;
    std::unique_ptr<CommPort> m_port;
    QTimer m_timer1;
    bool m_imTakt = false;

    bool m_empfangAktiv = false;
    QByteArray m_empfangspuffer;
    bool m_gerätGefunden = false;
    bool m_abfrageGesendet = false;
    int m_wiederholungen = 0;

    QString m_gerätezustand;
    QString m_hinweis;
    int m_balkenMax = 100; // the progress bar's range as it stands before the first reply
    int m_balkenWert = 0;
    QString m_prozent;
};

// Shows the dialog of the variant modally and returns when it has closed; Abbruchmerker tells how.
void zemakÜbertragen(const Zemakvariante& variante);

} // namespace vemo
