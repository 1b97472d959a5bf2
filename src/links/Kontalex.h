#pragma once

#include "links/KontalexLeitung.h"
#include "platform/Dialog.h"

#include <QStringList>
#include <QTimer>

namespace vemo {

struct Kontalexmodell;

// The dialog that fetches the memory of a command-protocol instrument block by block. It asks
// "MRD" every second until the instrument is ready, and gives the user 30 seconds to make it so;
// then the transfer runs: "MNU" the number of blocks, "MWH" who is there, "MSS" the start, "MRE"
// block after block up to the empty one (and the one more a block may announce), "MEX" the end of
// remote mode. The raw bytes go to RS232.SEP as they come, the decoded values to RS232.TXT. A
// silent instrument holds the transfer until the user aborts: there is no time limit of its own.
class Kontalex : public DialogController {
    Q_OBJECT
public:
    // The times of the dialog; tests shorten them.
    struct Zeiten {
        int wartezeit = 30;      // s the user has to get the instrument ready
        int sekundentakt = 1000; // ms of Timer2, the countdown
        int bereitTakt = 500;    // ms of ReadyTimer, asking and looking in turn
        int stillezeit = 40;     // ms without a byte that end an answer
        int mexFrist = 200;      // ms the end of remote mode is waited for
    };

    explicit Kontalex(QObject* parent = nullptr) : Kontalex(Zeiten{}, parent) {}
    explicit Kontalex(const Zeiten& zeiten, QObject* parent = nullptr);
    ~Kontalex() override;

    // Opens the port and starts the wait. False when the port could not be had: the user has been
    // told, Abbruchmerker is set, and the dialog is not to be shown.
    bool laden();

    QString titel() const;
    QString abbrechenText() const;
    QString baudrateText() const;                          // Label2
    QString messungenText() const;                         // Label4
    QString abbruchInText() const;                         // Label5
    const QString& kennung() const { return m_kennung; }   // Label1: the baud rate, or what is asked
    const QString& zustand() const { return m_zustand; }   // Label9
    const QString& sekunden() const { return m_sekunden; } // Label6: seconds left
    const QString& blocknummer() const { return m_block; } // Label3
    int prozent() const { return int(m_prozent); }         // the bar in Picture1

    // The user aborted, or the waiting time ran out: the driver leaves without a word.
    bool abgebrochen() const { return m_abgebrochen; }
    // The instrument held no block.
    bool keineDaten() const { return m_keineDaten; }

    // Command1.
    void abbrechen();

private:
    void sekundeVorbei();
    void bereitTakt();
    void fragen();
    void schauen();
    void übertragen();
    void ablauf();
    void fehlgeschlagen();
    bool schritt(const std::function<void()>& routine);
    void warten(const std::function<bool()>& bis);
    bool wartenHöchstens(int ms, const std::function<bool()>& bis);
    int blockzahlHolen();
    QStringList geräteinfoHolen();
    bool speicherStarten();
    void blöckeHolen(QByteArray& dump);
    QByteArray blockHolen();
    void fernbetriebBeenden(const Kontalexmodell& modell);
    void dateienSchreiben(const QStringList& geräteinfo, const QByteArray& dump);
    void fortschritt(int blöcke);
    void anzeigen();

    Zeiten m_zeiten;
    KontalexLeitung m_leitung;
    QTimer m_timer2;
    QTimer m_bereitTimer;
    bool m_fragen = true;
    int m_restzeit = 0;
    int m_blockzahl = 0;
    bool m_endeBlock = false;
    bool m_zusatzBlock = false;
    bool m_abgebrochen = false;
    bool m_keineDaten = false;
    double m_prozent = 0;
    QString m_kennung;
    QString m_zustand;
    QString m_sekunden;
    QString m_block;
};

} // namespace vemo
