#include "Befehle.h"

#include "Instrumentbefehl.h"
#include "Portbefehle.h"
#include "Sitzung.h"

#include "core/ModulState.h"
#include "grid/EinleseDatenController.h"
#include "grid/GridBefehle.h"
#include "grid/ZuordnenDialog.h"
#include "import/FormImport.h"
#include "language/SprachDatenbank.h"
#include "logger/Reihenausgabe.h"
#include "platform/Fehler.h"
#include "store/Datenbank.h"
#include "store/Schema.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTextStream>
#include <cstdio>
#include <functional>
#include <map>

namespace {

void ausgeben(const QString& text) {
    std::fputs(text.toLocal8Bit().constData(), stderr);
    std::fputs("\n", stderr);
}

int initDb(const Optionen& o) {
    const QString pfad = o.argumente.value(0);
    if (pfad.isEmpty()) {
        ausgeben("vemo0100: init-db needs the path of the database");
        return 2;
    }
    try {
        // A server's database takes the language table itself; a file has its own beside it.
        if (vemo::Datenbank::istServer(pfad)) {
            vemo::datenbankAnlegen(pfad, o.schalter("--demo"));
            return 0;
        }
        QDir().mkpath(QFileInfo(pfad).absolutePath());
        vemo::datenbankAnlegen(pfad, o.schalter("--demo"));
        vemo::spracheDatenbankAnlegen(QFileInfo(pfad).absolutePath());
    } catch (const vemo::Fehler& f) {
        ausgeben("vemo0100: " + f.meldung());
        return 1;
    }
    return 0;
}

int copyDb(const Optionen& o) {
    if (o.argumente.size() != 2) {
        ausgeben("vemo0100: copy-db needs the database to copy and the new one");
        return 2;
    }
    try {
        vemo::datenbankKopieren(o.argumente.value(0), o.argumente.value(1));
    } catch (const vemo::Fehler& f) {
        ausgeben("vemo0100: " + f.meldung());
        return 1;
    }
    return 0;
}

// Runs a command on the component set up from the global options.
int mitKomponente(const Optionen& o, const std::function<int(Sitzung&)>& befehl) {
    if (o.db.isEmpty()) {
        ausgeben("vemo0100: " + o.befehl + " needs --db DB");
        return 2;
    }
    Sitzung s(o);
    if (!s.bereit())
        return 1;
    const int status = befehl(s);
    return status != 0 ? status : s.ergebnis();
}

// What a logger dump read headless leaves: the key of the new inspection, or the stored series.
void loggerAusgeben(bool json) {
    const vemo::ModulState& m = vemo::modul();
    if (m.loggerIDDATLOG == 0) {
        if (m.DatenloggerMode && m.datenpoolModus == "DATEN LOGGER")
            ausgeben("vemo0100: the dump is a logger series; --start \"DD.MM.YYYY HH:MM:SS\" stores it");
        return;
    }
    QTextStream aus(stdout);
    if (json)
        aus << QJsonDocument(vemo::reiheAlsJson(m.loggerIDDATLOG)).toJson();
    else
        aus << m.loggerPrüfungID << Qt::endl;
}

// The start of a logger series from --start: invalid when not given; false when it is no date.
bool startLesen(const Optionen& o, QDateTime& start) {
    start = QDateTime::fromString(o.option("--start").value_or(QString()), "dd.MM.yyyy HH:mm:ss");
    if (o.option("--start") && !start.isValid()) {
        ausgeben("vemo0100: --start needs \"DD.MM.YYYY HH:MM:SS\", not " + *o.option("--start"));
        return false;
    }
    return true;
}

// Reads a dump that may hold a logger series. No window answers the data pool here: the start given
// stores the series, and without one the data pool is left at once, storing nothing.
int mitLoggerStart(const Optionen& o, const std::function<void(Sitzung&)>& lesen) {
    QDateTime start;
    if (!startLesen(o, start))
        return 2;
    return mitKomponente(o, [&](Sitzung& s) {
        vemo::modul().datenpoolOhneDialog = true;
        vemo::modul().loggerStart = start;
        lesen(s);
        loggerAusgeben(o.schalter("--json"));
        const bool nichtGespeichert =
            start.isValid() && vemo::modul().DatenloggerMode && vemo::modul().loggerIDDATLOG == 0;
        return nichtGespeichert ? 1 : 0;
    });
}

int readFile(const Optionen& o) {
    const QString datei = o.argumente.value(0);
    if (datei.isEmpty()) {
        ausgeben("vemo0100: read-file needs the path of a dump");
        return 2;
    }
    return mitLoggerStart(o, [&](Sitzung& s) { s.komponente().EinlesenAusDateiName(datei); });
}

int grid(const Optionen& o) {
    return mitKomponente(o, [&](Sitzung&) {
        QTextStream aus(stdout);
        return vemo::gridBefehl(o.schalter("--json"), aus);
    });
}

int assign(const Optionen& o) {
    const auto zeilen = o.option("--rows");
    const auto spalte = o.option("--column");
    const auto schlüssel = o.option("--key");
    if (!zeilen || !spalte || !schlüssel) {
        ausgeben("vemo0100: assign needs --rows A[-B] --column 1..5 --key K");
        return 2;
    }
    return mitKomponente(o, [&](Sitzung&) { return vemo::zuordnenBefehl(*zeilen, *spalte, *schlüssel); });
}

int deleteRows(const Optionen& o) {
    const auto zeilen = o.option("--rows");
    if (!zeilen) {
        ausgeben("vemo0100: delete-rows needs --rows A[-B]");
        return 2;
    }
    return mitKomponente(o, [&](Sitzung&) { return vemo::zeilenLöschenBefehl(*zeilen); });
}

int receive(const Optionen& o) {
    if (o.port.isEmpty()) {
        ausgeben("vemo0100: receive needs --port N|PATH");
        return 2;
    }
    return mitLoggerStart(o, [](Sitzung& s) { s.komponente().DatenEmpfangen(); });
}

int takeOver(const Optionen& o) {
    return mitKomponente(o, [](Sitzung&) {
        vemo::EinleseDatenController form;
        form.übernehmenKlick();
        return 0;
    });
}

int instrument(const Optionen& o) {
    QString fehler;
    const auto auftrag = instrumentauftragLesen(o, fehler);
    if (!auftrag) {
        ausgeben("vemo0100: " + fehler);
        return 2;
    }
    if (auftrag->brauchtGerät() && o.port.isEmpty()) {
        ausgeben("vemo0100: instrument needs --port N|PATH");
        return 2;
    }
    return mitKomponente(o, [&](Sitzung&) {
        QTextStream aus(stdout);
        return instrumentBefehl(*auftrag, aus);
    });
}

// Chooses the entry with the key in a combo box of the bulk assignment; false, with a message, when
// the box offers no such entry.
bool wählen(const vemo::Zuordnungsliste& liste, const QString& schlüssel, const QString& was,
            const std::function<void(int)>& klick) {
    const int index = vemo::eintragMitSchlüssel(liste.einträge, schlüssel.toInt());
    if (!liste.aktiv || index < 0) {
        ausgeben("vemo0100: assign-device: the newest device's rows cannot go to " + was + " " + schlüssel);
        return false;
    }
    klick(index);
    return true;
}

int assignDevice(const Optionen& o) {
    const auto kunde = o.option("--customer");
    if (!kunde) {
        ausgeben("vemo0100: assign-device needs --customer K [--plant A] [--inspection P]");
        return 2;
    }
    return mitKomponente(o, [&](Sitzung&) {
        vemo::frmZuordnen form;
        const auto anlage = o.option("--plant");
        const auto prüfung = o.option("--inspection");
        if (!wählen(form.comboKunde(), *kunde, "customer", [&](int i) { form.kundeKlick(i); }) ||
            (anlage && !wählen(form.comboAnlage(), *anlage, "plant", [&](int i) { form.anlageKlick(i); })) ||
            (prüfung &&
             !wählen(form.comboPrüfung(), *prüfung, "inspection", [&](int i) { form.prüfungKlick(i); })))
            return 1;
        form.weiterKlick();
        return 0;
    });
}

int importieren(const Optionen& o) {
    const QString quelle = o.argumente.value(0);
    if (quelle.isEmpty()) {
        ausgeben("vemo0100: import needs the path of the older database");
        return 2;
    }
    return mitKomponente(o, [&](Sitzung&) {
        vemo::FormImport form;
        form.setDatenquelle(quelle);
        QObject::connect(&form, &vemo::FormImport::progressed,
                         [](int prozent) { ausgeben(QString::number(prozent) + "%"); });
        form.konvertierenKlick();
        return form.ergebnisCode() == 0 ? 0 : 1;
    });
}

int ports(const Optionen&) {
    QTextStream aus(stdout);
    return portsBefehl(aus);
}

int detect(const Optionen& o) {
    QTextStream aus(stdout);
    return detectBefehl(o, aus);
}

} // namespace

int befehlAusführen(const Optionen& o) {
    static const std::map<QString, std::function<int(const Optionen&)>> befehle{
        {"init-db", initDb},
        {"read-file", readFile},
        {"grid", grid},
        {"assign", assign},
        {"delete-rows", deleteRows},
        {"take-over", takeOver},
        {"receive", receive},
        {"assign-device", assignDevice},
        {"import", importieren},
        {"instrument", instrument},
        {"ports", ports},
        {"detect", detect},
        {"copy-db", copyDb},
    };
    const auto it = befehle.find(o.befehl);
    if (it == befehle.end()) {
        ausgeben("vemo0100: unknown command " + o.befehl + "\n" + Gebrauch);
        return 2;
    }
    return it->second(o);
}
