#include "Hauptfenster.h"

#include "Portauswahl.h"
#include "Uebersicht.h"
#include "Zertifikatswerte.h"

#include "core/Geraetetypen.h"
#include "core/ModulState.h"
#include "grid/ZuordnenDialog.h"
#include "host/Modul15a.h"
#include "language/SprachDatenbank.h"
#include "platform/SettingsStore.h"
#include "platform/Ui.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QFileInfo>

#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>
#include <map>

using namespace vemo;

namespace {
const QString Abschnitt = "Host";
// How the user knows the instruments of each device type code.
const std::map<int, QString> Gerätenamen{
    {100, "Multitester, Corvex"}, {101, "Kontalex"},   {102, "Sorelin"},    {103, "ZEMAK 3710"},
    {104, "ZEMAK 3710B"},         {105, "ZEMAK 3720"}, {106, "Quentavoir"}, {107, "ZEMAK 3740"}};
const QStringList SprachenListe{"Deutsch", "Deutsch (&Deutschland)", "Deutsch (&Österreich)",
                                "English (United Kingdom)"};
} // namespace

Hauptfenster::Hauptfenster(vemo0100Modul15a& komponente, SettingsStore& einstellungen,
                           const QString& datenbank)
    : m_komponente(komponente), m_einstellungen(einstellungen) {
    auto* mitte = new QWidget;
    auto* layout = new QVBoxLayout(mitte);
    layout->addWidget(eigenschaftenBauen());
    m_übersicht = new Uebersicht;
    layout->addWidget(m_übersicht, 1);
    setCentralWidget(mitte);
    menüsBauen();
    m_komponente.setHWndAccess(qint32(winId()));

    m_port->setText(gemerkt("Port", "1"));
    m_typ->setCurrentIndex(std::max(0, m_typ->findData(gemerkt("Typ", "100").toInt())));
    m_backup->setText(gemerkt("Backup"));
    m_arbeitsordner->setText(gemerkt("Arbeitsordner"));
    m_komponente.setArbeitsverzeichnis(m_arbeitsordner->text());
    eigenschaftenÜbernehmen();
    const QString gemerkteDb = gemerkt("Datenbank");
    const bool geöffnet = (!datenbank.isEmpty() && datenbankSetzen(datenbank)) ||
                          (!gemerkteDb.isEmpty() && datenbankSetzen(gemerkteDb));
    if (!geöffnet) {
        m_programmsprache.wählen(gemerkt("Sprache", "Deutsch (&Deutschland)"));
        beschriften();
    }
    resize(1100, 700);
}

QWidget* Hauptfenster::eigenschaftenBauen() {
    auto* rahmen = new QWidget;
    auto* form = new QFormLayout(rahmen);
    const auto zeile = [&](const char* text, QWidget* feld, QPushButton* knopf = nullptr) {
        auto* label = new QLabel;
        label->setProperty("Tag", "x");
        label->setProperty("deutsch", text);
        m_beschriftungen.push_back(label);
        if (!knopf) {
            form->addRow(label, feld);
            return;
        }
        auto* h = new QHBoxLayout;
        h->addWidget(feld, 1);
        h->addWidget(knopf);
        form->addRow(label, h);
    };
    // A file is picked with "...", an office's server is typed as its URI (postgresql://...).
    m_datenbank = new QLineEdit;
    m_datenbank->setObjectName("Datenbank");
    connect(m_datenbank, &QLineEdit::editingFinished, this, &Hauptfenster::datenbankEingegeben);
    auto* wählen = new QPushButton("...");
    wählen->setObjectName("DatenbankWaehlen");
    connect(wählen, &QPushButton::clicked, this, &Hauptfenster::datenbankWählen);
    zeile("Datenbank", m_datenbank, wählen);
    m_sprache = new QComboBox;
    m_sprache->setObjectName("Sprache");
    for (const QString& name : SprachenListe)
        m_sprache->addItem(Programmsprache::anzeigename(name), name);
    connect(m_sprache, &QComboBox::activated, this,
            [this] { spracheSetzen(m_sprache->currentData().toString()); });
    zeile("Sprache", m_sprache);
    m_port = new Portauswahl;
    connect(m_port, &Portauswahl::portGesetzt, this, &Hauptfenster::eigenschaftenÜbernehmen);
    zeile("Schnittstelle", m_port);
    m_typ = new QComboBox;
    for (const auto& t : gerätetypen())
        m_typ->addItem(QString::number(t.code) + "  " + Gerätenamen.at(t.code), t.code);
    connect(m_typ, &QComboBox::activated, this, &Hauptfenster::eigenschaftenÜbernehmen);
    connect(m_port, &Portauswahl::instrumentGefunden, this,
            [this](int typ) { m_typ->setCurrentIndex(std::max(0, m_typ->findData(typ))); });
    zeile("Gerätetyp", m_typ);
    m_backup = new QLineEdit;
    connect(m_backup, &QLineEdit::editingFinished, this, &Hauptfenster::eigenschaftenÜbernehmen);
    zeile("Sicherungsverzeichnis", m_backup, ordnerWahl(m_backup, "Sicherungsverzeichnis"));
    m_arbeitsordner = new QLineEdit;
    connect(m_arbeitsordner, &QLineEdit::editingFinished, this, &Hauptfenster::arbeitsordnerSetzen);
    zeile("Arbeitsordner", m_arbeitsordner, ordnerWahl(m_arbeitsordner, "Arbeitsordner"));
    return rahmen;
}

// The "..." beside a folder's field: the folder picked goes into the field as if typed.
QPushButton* Hauptfenster::ordnerWahl(QLineEdit* feld, const char* titel) {
    auto* knopf = new QPushButton("...");
    connect(knopf, &QPushButton::clicked, this, [this, feld, titel] {
        const QString p = QFileDialog::getExistingDirectory(this, xText(titel), feld->text());
        if (!p.isEmpty()) {
            feld->setText(p);
            emit feld->editingFinished();
        }
    });
    return knopf;
}

// The working files follow the work folder at once: the open database is opened again with it.
void Hauptfenster::arbeitsordnerSetzen() {
    merken("Arbeitsordner", m_arbeitsordner->text().trimmed());
    m_komponente.setArbeitsverzeichnis(m_arbeitsordner->text().trimmed());
    if (m_komponente.vemotrixDB().istOffen())
        datenbankSetzen(m_datenbank->text());
}

void Hauptfenster::menüsBauen() {
    m_dateiMenü = menuBar()->addMenu(QString());
    const auto dateiAktion = [this](const char* text, const QKeySequence& taste,
                                    const std::function<void()>& f) {
        QAction* a = m_dateiMenü->addAction(QString(), this, f);
        a->setShortcut(taste);
        m_dateiAktionen.emplace_back(a, text);
    };
    dateiAktion("&Neue Demo-Datenbank...", QKeySequence::New, [this] { demoDatenbankAnlegen(); });
    m_dateiMenü->addSeparator();
    dateiAktion("&Beenden", QKeySequence::Quit, [this] { close(); });

    m_befehlsMenü = menuBar()->addMenu(QString());
    vemo0100Modul15a& k = m_komponente;
    m_befehle = {
        {"Daten &empfangen", [this, &k] { nachEinlesen([&k] { k.DatenEmpfangen(); }); }, true,
         QKeySequence(Qt::CTRL | Qt::Key_R)},
        {"Einlese&daten",
         [this, &k] {
             k.EinleseDaten();
             if (k.EinlesedatenIDRow().toInt() != 1) // the grid's "Edit results"
                 return;
             k.setEinlesedatenIDRow(0);
             Zertifikatswerte::ergebnisseZeigen(this);
         },
         true, QKeySequence(Qt::CTRL | Qt::Key_D)},
        {"Einlesen aus Da&tei", [this, &k] { nachEinlesen([&k] { k.EinlesenAusDatei(); }); }, true,
         QKeySequence::Open},
        {"Daten &importieren", [&k] { k.DatenImportieren(); }, true, QKeySequence(Qt::CTRL | Qt::Key_I)},
        {"Einstellung &ZEMAK 3710", [&k] { k.EinstellungZemak3710(); }},
    };
    // A tool of the developers, who measure texts against the host's widths with it.
    if (qEnvironmentVariableIsSet("VEMOTRIX_ENTWICKLER"))
        m_befehle.push_back({"Textbreite messen",
                             [this, &k] {
                                 const QString t =
                                     QInputDialog::getText(this, xText("Textbreite messen"), xText("Text"));
                                 qint32 breite = 0;
                                 k.vmxTextWidth(t, breite);
                                 statusBar()->showMessage(QString("%1: %2").arg(t).arg(breite));
                             },
                             false});
    for (Befehl& b : m_befehle) {
        b.aktion = m_befehlsMenü->addAction(QString(), this, [this, b] { befehl(b); });
        b.aktion->setShortcut(b.taste);
    }
}

void Hauptfenster::beschriften() {
    setWindowTitle("vemotrix - " + m_komponente.PrüfgeräteTypID().toString());
    for (QLabel* l : m_beschriftungen)
        l->setText(xText(l->property("deutsch").toString() + ":"));
    m_dateiMenü->setTitle(xText("&Datei"));
    for (auto& [aktion, text] : m_dateiAktionen)
        aktion->setText(xText(text));
    m_befehlsMenü->setTitle(xText("&Messungen"));
    for (Befehl& b : m_befehle)
        b.aktion->setText(xText(b.text));
    m_port->beschriften();
    m_übersicht->beschriften();
}

// Runs a public method, then shows what it changed.
void Hauptfenster::befehl(const Befehl& b) {
    eigenschaftenÜbernehmen();
    if (b.brauchtDatenbank && !datenbankDa())
        return;
    b.ausführen();
    m_übersicht->aktualisieren();
}

// Without a database the component has nothing to work on: the user is told so and may choose
// one at once, and the command goes on with it.
bool Hauptfenster::datenbankDa() {
    if (m_komponente.vemotrixDB().istOffen())
        return true;
    const MsgStil wahl{MsgKnöpfe::OkAbbrechen, MsgSymbol::Information, 1};
    if (ui().MsgBox(xText("Zuerst eine Datenbank wählen."), modul().anwendungstitel, wahl) != antwort::Ok)
        return false;
    return datenbankWählen();
}

bool Hauptfenster::datenbankWählen() {
    const QString filter = xText("vemotrix-Datenbank") + " (*.db)|*.db|" + xText("Alle Dateien") + " (*)|*";
    const auto pfad =
        ui().dateiÖffnen({xText("Datenbank"), filter, QFileInfo(m_datenbank->text()).absolutePath(), "db"});
    return pfad && datenbankSetzen(*pfad);
}

// A name typed into the field opens that database; one that cannot be opened leaves the database
// in use open, and the field shows it again.
void Hauptfenster::datenbankEingegeben() {
    const QString name = m_datenbank->text().trimmed();
    const QString bisher = m_komponente.vemotrixDB().istOffen() ? gemerkt("Datenbank") : QString();
    if (name == bisher)
        return;
    if (name.isEmpty() || !datenbankSetzen(name))
        m_datenbank->setText(bisher);
}

// The key of the newest read-in device; empty when there is none.
QString Hauptfenster::neuestesGerät() const {
    QString gerät;
    mitFalle([&] {
        const Recordset rs = m_komponente.vemotrixDB().OpenRecordset(
            "SELECT Max(GeräteID) AS Neuestes FROM 0100_EinleseGeräteDaten");
        gerät = rs.Text("Neuestes");
    });
    return gerät;
}

// A read-in that brought a device's rows offers to assign them all at once, then shows the grid.
// The user may decline and assign row by row in the grid.
void Hauptfenster::nachEinlesen(const std::function<void()>& einlesen) {
    const QString vorher = neuestesGerät();
    einlesen();
    const QString nachher = neuestesGerät();
    if (nachher.isEmpty() || nachher == vorher)
        return;
    const MsgStil frage{MsgKnöpfe::JaNein, MsgSymbol::Frage, 1};
    if (ui().MsgBox(xText("Die eingelesenen Messungen des Geräts jetzt zuordnen?"), modul().anwendungstitel,
                    frage) == antwort::Ja) {
        frmZuordnen zuordnen;
        ui().zeigeModal(zuordnen);
    }
    m_komponente.EinleseDaten();
}

// A file that cannot be the database is refused before the open one is let go, so the user goes
// on with the database he had.
bool Hauptfenster::datenbankSetzen(const QString& pfad) {
    if (!datenbankBrauchbar(pfad))
        return false;
    m_komponente.setVemotrixDBName(pfad);
    if (!m_komponente.vemotrixDB().istOffen()) {
        m_datenbank->clear();
        m_übersicht->aktualisieren();
        return false;
    }
    m_datenbank->setText(pfad);
    // Left empty, the field shows the folder the working files go to without one.
    m_arbeitsordner->setPlaceholderText(modul().Datenbankverzeichnis);
    merken("Datenbank", pfad);
    if (m_backup->text().isEmpty()) {
        m_backup->setText(modul().Datenbankverzeichnis);
        eigenschaftenÜbernehmen();
    }
    // The language is written after the database, whose directory holds the language database.
    spracheSetzen(gemerkt("Sprache", "Deutsch (&Deutschland)"));
    return true;
}

// The same test the component makes when it opens a database (a database file with customers),
// made on a connection of its own; the error shows as the component shows it.
bool Hauptfenster::datenbankBrauchbar(const QString& pfad) const {
    return mitFalle([&] { Datenbank::OpenDatabase(pfad).TableDefs("Kunde"); });
}

void Hauptfenster::spracheSetzen(const QString& sprache) {
    if (m_komponente.vemotrixDB().istOffen())
        m_komponente.setSprache(sprache);
    const QString gilt = modul().sprachen.Sprache();
    m_sprache->setCurrentIndex(std::max(0, int(SprachenListe.indexOf(gilt))));
    merken("Sprache", gilt);
    m_programmsprache.wählen(gilt);
    beschriften();
    m_übersicht->aktualisieren();
}

void Hauptfenster::eigenschaftenÜbernehmen() {
    bool istNummer = false;
    const int port = m_port->text().toInt(&istNummer);
    m_komponente.setCommPort(istNummer ? port : 0);
    modul().portPfad = istNummer ? QString() : m_port->text().trimmed();
    m_komponente.setPrüfgeräteTypID(m_typ->currentData());
    m_komponente.setBackupVerzeichnis(m_backup->text());
    merken("Port", m_port->text());
    merken("Typ", m_typ->currentData().toString());
    merken("Backup", m_backup->text());
}

void Hauptfenster::merken(const QString& schlüssel, const QString& wert) {
    m_einstellungen.SaveSetting(Abschnitt, schlüssel, wert);
}

QString Hauptfenster::gemerkt(const QString& schlüssel, const QString& vorgabe) const {
    return m_einstellungen.GetSetting(Abschnitt, schlüssel, vorgabe);
}

void Hauptfenster::demoDatenbankAnlegen() {
    const QString pfad =
        QFileDialog::getSaveFileName(this, xText("Neue Demo-Datenbank..."), QString(), "vemotrix (*.db)");
    if (pfad.isEmpty())
        return;
    const bool angelegt = mitFalle([&] {
        datenbankAnlegen(pfad, true);
        spracheDatenbankAnlegen(QFileInfo(pfad).absolutePath());
    });
    if (angelegt)
        datenbankSetzen(pfad);
}
