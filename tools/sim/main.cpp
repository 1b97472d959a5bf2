// vemo0100-sim: an instrument at the far end of a pseudo-terminal, for trying and testing the links
// without the hardware.
#include "Instrumente.h"
#include "PtyLeitung.h"
#include "SorelinSpeicher.h"
#include "platform/Fehler.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

using namespace vemo::sim;

namespace {

int stopSignal[2] = {-1, -1};

void beiSignal(int) {
    const char c = 1;
    [[maybe_unused]] const auto n = ::write(stopSignal[1], &c, 1);
}

void melden(const QString& text) {
    std::fprintf(stderr, "vemo0100-sim: %s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}

int abbruch(const QString& text) {
    melden(text);
    return 2;
}

struct Optionen {
    const Instrumenttyp* typ = nullptr;
    QByteArray speicher;
    QString verknüpfung;
    double drückenNach = -1;
    Verhalten verhalten;
};

// A whole number of at least unten from an option that is set; false when it is not one.
bool zahlLesen(const QCommandLineParser& p, const QCommandLineOption& option, int unten, int& ziel) {
    if (!p.isSet(option))
        return true;
    bool ok = false;
    const int wert = p.value(option).toInt(&ok);
    if (!ok || wert < unten)
        return false;
    ziel = wert;
    return true;
}

// Reads the options; an error text when they don't fit.
QString optionenLesen(const QStringList& argumente, Optionen& o) {
    QCommandLineParser p;
    p.setApplicationDescription("Simulates an instrument on a pseudo-terminal.");
    p.addHelpOption();
    const QCommandLineOption typ("type", "Device type code of the instrument.", "CODE");
    const QCommandLineOption speicher(
        "memory", "What the instrument holds: the dump it prints, or the working file saved from it.",
        "FILE");
    const QCommandLineOption datensätze("records", "Generate a memory of N records (default 5).", "N", "5");
    const QCommandLineOption modell("model", "Model of the instrument, for types of several models.", "NAME");
    const QCommandLineOption instrument(
        "instrument", "Sorelin instrument type whose driver table builds the memory.", "TYPE");
    const QCommandLineOption treiber("db", "Database whose Sorelin driver tables to use.", "DB");
    const QCommandLineOption link("link", "Symbolic link to the serial device.", "PATH");
    const QCommandLineOption drücken("press-after", "Press the send key after SECONDS.", "SECONDS");
    const QCommandLineOption baud("baud",
                                  "Pace of the sending; 0 sends at once (default: the family's speed).", "N");
    const QCommandLineOption pause("pause", "Pause before each closing empty line (default 250).", "MS");
    const QCommandLineOption kurz("short", "Memory replies lack N characters at the end of their records.",
                                  "N");
    const QCommandLineOption kurzMal("short-replies", "Only the first K memory replies are short.", "K");
    const QCommandLineOption stilleNach("silent-after", "Fall silent after N characters of a memory reply.",
                                        "N");
    const QCommandLineOption stille("silence", "The silence lasts MS; 0 (default): the reply never ends.",
                                    "MS");
    const QCommandLineOption ausstecken("unplug-after", "Pull the cable MS after the start.", "MS");
    const QCommandLineOption eingesteckt("unplug-for", "Put it back MS later; 0 (default): never.", "MS");
    p.addOptions({typ, speicher, datensätze, modell, instrument, treiber, link, drücken, baud, pause, kurz,
                  kurzMal, stilleNach, stille, ausstecken, eingesteckt});
    p.process(argumente);

    bool ok = false;
    const int code = p.value(typ).toInt(&ok);
    if (!p.isSet(typ) || !ok)
        return "--type CODE is required";
    o.typ = instrumenttyp(code);
    if (!o.typ)
        return QString("type %1 is not simulated").arg(p.value(typ));
    if (p.isSet(speicher) && p.isSet(datensätze))
        return "--memory and --records exclude each other";
    if (p.isSet(modell) && !o.typ->speicherDesModells)
        return QString("type %1 has no models").arg(o.typ->code);
    if (p.isSet(instrument) || p.isSet(treiber)) {
        const int nummer = p.value(instrument).toInt(&ok);
        if (code != 102 || (p.isSet(instrument) && !ok))
            return "--instrument TYPE and --db DB are for --type 102";
        vemo::sim::sorelinWählen(p.isSet(instrument) ? nummer : vemo::sim::sorelin::StandardInstrument,
                                 p.value(treiber));
    }
    if (p.isSet(speicher)) {
        QFile datei(p.value(speicher));
        if (!datei.open(QIODevice::ReadOnly))
            return "cannot read " + datei.fileName() + ": " + datei.errorString();
        o.speicher = datei.readAll();
        if (o.typ->speicherPrüfen)
            if (const QString f = o.typ->speicherPrüfen(o.speicher, p.value(modell)); !f.isEmpty())
                return datei.fileName() + ": " + f;
    } else {
        const int n = p.value(datensätze).toInt(&ok);
        if (!ok || n < 0)
            return "--records needs a count";
        try {
            o.speicher =
                p.isSet(modell) ? o.typ->speicherDesModells(n, p.value(modell)) : o.typ->speicherErzeugen(n);
        } catch (const vemo::Fehler& f) {
            return "no memory: " + f.meldung();
        }
        if (o.speicher.isEmpty() && p.isSet(modell))
            return "model " + p.value(modell) + " is not simulated";
    }
    Takt& takt = o.verhalten.takt;
    Störungen& störungen = o.verhalten.störungen;
    takt.baud = o.typ->baud;
    int stilleNachZeichen = -1;
    if (!zahlLesen(p, baud, 0, takt.baud))
        return "--baud needs a line speed";
    if (!zahlLesen(p, pause, 0, takt.leerzeilenPause))
        return "--pause needs milliseconds";
    if (!zahlLesen(p, kurz, 0, störungen.fehlendeZeichen) ||
        !zahlLesen(p, kurzMal, 0, störungen.kurzeAntworten))
        return "--short and --short-replies need counts";
    if (!zahlLesen(p, stilleNach, 0, stilleNachZeichen) || !zahlLesen(p, stille, 0, störungen.stilleMs))
        return "--silent-after and --silence need counts";
    störungen.stilleNach = stilleNachZeichen;
    if (!zahlLesen(p, ausstecken, 0, störungen.ausgestecktAb) ||
        !zahlLesen(p, eingesteckt, 0, störungen.ausgestecktMs))
        return "--unplug-after and --unplug-for need milliseconds";
    if (p.isSet(drücken)) {
        o.drückenNach = p.value(drücken).toDouble(&ok);
        if (!ok || o.drückenNach < 0)
            return "--press-after needs seconds";
    }
    o.verknüpfung = p.value(link);
    return {};
}

// Replaces an old link, never a file that is something else.
QString verknüpfen(const QString& gerät, const QString& pfad) {
    const QFileInfo info(pfad);
    if (info.isSymLink())
        QFile::remove(pfad);
    else if (info.exists())
        return pfad + " exists and is not a link";
    if (!QFile::link(gerät, pfad))
        return "cannot link " + pfad;
    return {};
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName("vemo0100-sim");

    Optionen o;
    if (const QString fehler = optionenLesen(app.arguments(), o); !fehler.isEmpty())
        return abbruch(fehler);

    QString fehler;
    const auto gerät = o.typ->erstellen(o.speicher, o.verhalten, fehler);
    if (!gerät)
        return abbruch("the memory is not of type " + QString::number(o.typ->code) + ": " + fehler);
    const auto leitung = PtyLeitung::öffnen(fehler);
    if (!leitung)
        return abbruch("no pseudo-terminal: " + fehler);
    if (!o.verknüpfung.isEmpty())
        if (const QString f = verknüpfen(leitung->gerätePfad(), o.verknüpfung); !f.isEmpty())
            return abbruch(f);
    leitung->setInstrument(gerät.get());
    QObject::connect(gerät.get(), &Instrument::sent,
                     [](qint64 n) { melden(QString("sent %1 bytes").arg(n)); });
    QObject::connect(gerät.get(), &Instrument::note, [](const QString& text) { melden(text); });
    const auto drücken = [&gerät] {
        melden("key pressed");
        gerät->tasteGedrückt();
    };

    QSocketNotifier eingabe(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&eingabe, &QSocketNotifier::activated, [&] {
        char puffer[256];
        const ssize_t n = ::read(STDIN_FILENO, puffer, sizeof puffer);
        if (n <= 0) {
            eingabe.setEnabled(false);
            return;
        }
        for (ssize_t i = 0; i < n; ++i)
            if (puffer[i] == '\n')
                drücken();
    });
    if (o.drückenNach >= 0)
        QTimer::singleShot(int(o.drückenNach * 1000), drücken);

    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, stopSignal) != 0)
        return abbruch("no signal pipe");
    QSocketNotifier stop(stopSignal[0], QSocketNotifier::Read);
    QObject::connect(&stop, &QSocketNotifier::activated, &app, &QCoreApplication::quit);
    std::signal(SIGTERM, beiSignal);
    std::signal(SIGINT, beiSignal);

    std::printf("%s\n", leitung->gerätePfad().toLocal8Bit().constData());
    std::fflush(stdout);
    melden(QString("type %1 on %2").arg(o.typ->code).arg(leitung->gerätePfad()));

    const int ergebnis = app.exec();
    if (!o.verknüpfung.isEmpty() && QFileInfo(o.verknüpfung).symLinkTarget() == leitung->gerätePfad())
        QFile::remove(o.verknüpfung);
    return ergebnis;
}
