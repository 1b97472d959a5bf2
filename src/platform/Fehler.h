#pragma once

#include <QByteArray>
#include <QString>
#include <exception>

namespace vemo {

// The one error of the component: a number and the description the user's message shows.
// Stores, files and ports raise it; each routine with a trap of its own catches it and
// reports "number description" through the Ui.
class Fehler : public std::exception {
public:
    Fehler(int nummer, QString beschreibung);

    int nummer() const { return m_nummer; }
    // The description in the language the user chose (see Fehlertexte).
    QString beschreibung() const;
    // The description as it was raised, for building other errors from it.
    const QString& deutscheBeschreibung() const { return m_beschreibung; }
    // The text of the standard message: number, one blank, description.
    QString meldung() const;
    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_nummer;
    QString m_beschreibung;
    QByteArray m_what;
};

// The numbers the system's messages and traps test for, each with its description.
namespace fehler {
constexpr int UngültigerAufruf = 5;
constexpr int Überlauf = 6;
constexpr int IndexAußerhalb = 9;
constexpr int DivisionDurchNull = 11;
constexpr int TypenUnverträglich = 13;
constexpr int DateiNichtGefunden = 53;
constexpr int DateiGeöffnet = 55;
constexpr int HinterDateiende = 62;
constexpr int PfadZugriff = 75;
constexpr int PfadNichtGefunden = 76;
constexpr int UnzulässigNull = 94;
constexpr int OhneAddNewEdit = 3020;
constexpr int KeinAktuellerDatensatz = 3021;
constexpr int DoppelterSchlüssel = 3022;
constexpr int DatenbankNichtGefunden = 3024;
constexpr int Schreibgeschützt = 3027;
constexpr int ZuWenigeParameter = 3061;
constexpr int SyntaxFehler = 3075;
constexpr int TabelleNichtGefunden = 3078;
constexpr int DatensatzGelöscht = 3167;
constexpr int Gesperrt = 3260;
constexpr int UnbekanntesDatenbankformat = 3343;
constexpr int ElementNichtGefunden = 3265;
constexpr int PortUngültig = 8002;
constexpr int PortBereitsGeöffnet = 8005;
constexpr int PortNichtGeöffnet = 8012;

Fehler mit(int nummer);
Fehler mit(int nummer, const QString& detail);
} // namespace fehler

} // namespace vemo
