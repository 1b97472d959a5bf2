#pragma once

#include "Programmsprache.h"

#include <QKeySequence>
#include <QMainWindow>
#include <functional>
#include <vector>

class QComboBox;
class QLineEdit;
class QPushButton;
class QLabel;
class QMenu;
class QAction;
class Portauswahl;
class Uebersicht;
class vemo0100Modul15a;

namespace vemo {
class SettingsStore;
}

// The small host application: it creates the component, lets the user set its properties and
// offers each public method as a menu command; what arrived where shows in the overview.
class Hauptfenster : public QMainWindow {
    Q_OBJECT
public:
    // datenbank: the one named on the command line; otherwise the one last used is opened.
    Hauptfenster(vemo0100Modul15a& komponente, vemo::SettingsStore& einstellungen,
                 const QString& datenbank = {});

private:
    struct Befehl {
        QString text;
        std::function<void()> ausführen;
        bool brauchtDatenbank = true;
        QKeySequence taste = {};
        QAction* aktion = nullptr;
    };

    QWidget* eigenschaftenBauen();
    QPushButton* ordnerWahl(QLineEdit* feld, const char* titel);
    void arbeitsordnerSetzen();
    void menüsBauen();
    void beschriften();
    void befehl(const Befehl& b);
    bool datenbankDa();
    bool datenbankWählen();
    void datenbankEingegeben();
    bool datenbankBrauchbar(const QString& pfad) const;
    void nachEinlesen(const std::function<void()>& einlesen);
    QString neuestesGerät() const;
    bool datenbankSetzen(const QString& pfad);
    void spracheSetzen(const QString& sprache);
    void eigenschaftenÜbernehmen();
    void merken(const QString& schlüssel, const QString& wert);
    QString gemerkt(const QString& schlüssel, const QString& vorgabe = {}) const;
    void demoDatenbankAnlegen();

    vemo0100Modul15a& m_komponente;
    vemo::SettingsStore& m_einstellungen;
    QLineEdit* m_datenbank;
    QComboBox* m_sprache;
    Portauswahl* m_port;
    QComboBox* m_typ;
    QLineEdit* m_backup;
    QLineEdit* m_arbeitsordner;
    std::vector<QLabel*> m_beschriftungen;
    QMenu* m_dateiMenü;
    QMenu* m_befehlsMenü;
    std::vector<Befehl> m_befehle;
    std::vector<std::pair<QAction*, QString>> m_dateiAktionen;
    Uebersicht* m_übersicht;
    Programmsprache m_programmsprache;
};
