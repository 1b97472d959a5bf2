#include "support/Postgresserver.h"

#include "store/Schema.h"

#include <QFileInfo>
#include <QProcess>
#include <QUrl>
#include <cstdlib>
#include <libpq-fe.h>
#include <pwd.h>
#include <unistd.h>

namespace vemo::test {
namespace {

const QString Programme = "/usr/lib/postgresql/15/bin/";
const char* const Rolle = "vemo";

// The server refuses to run as root: as root, it runs as nobody in a folder nobody owns.
QStringList alsDienst(const QString& programm, const QStringList& argumente) {
    if (::geteuid() != 0)
        return QStringList{Programme + programm} + argumente;
    return QStringList{"runuser", "-u", "nobody", "--", Programme + programm} + argumente;
}

QString laufen(const QStringList& befehl) {
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(befehl.first(), befehl.mid(1));
    if (!p.waitForFinished(120000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        return befehl.mid(0, 5).join(' ') + ": " + QString::fromUtf8(p.readAll()).right(400);
    return {};
}

std::unique_ptr<Postgresserver>& server() {
    static std::unique_ptr<Postgresserver> s;
    return s;
}

} // namespace

std::string motorName(const ::testing::TestParamInfo<Motor>& info) {
    return info.param == Motor::Sqlite ? "Sqlite" : "Server";
}

bool Postgresserver::pflicht() {
    return qgetenv("VEMO_SERVER_PFLICHT") == "1";
}

Postgresserver* Postgresserver::gestartet(QString* grund) {
    static QString warum;
    static bool versucht = false;
    if (!versucht) {
        versucht = true;
        std::unique_ptr<Postgresserver> s(new Postgresserver);
        warum = s->starten();
        if (warum.isEmpty())
            server() = std::move(s);
    }
    *grund = "no PostgreSQL server for the tests: " + warum;
    return server().get();
}

QString Postgresserver::starten() {
    if (!QFileInfo(Programme + "initdb").isExecutable())
        return Programme + "initdb is missing (install postgresql)";
    if (!m_dir.isValid())
        return "no temporary folder";
    if (::geteuid() == 0) {
        const passwd* niemand = ::getpwnam("nobody");
        if (!niemand ||
            ::chown(m_dir.path().toLocal8Bit().constData(), niemand->pw_uid, niemand->pw_gid) != 0)
            return "the temporary folder cannot be given to nobody";
    }
    m_datenverzeichnis = m_dir.filePath("daten");
    if (const QString f = laufen(alsDienst("initdb", {"-D", m_datenverzeichnis, "-U", Rolle, "-A", "trust",
                                                      "-E", "UTF8", "--locale=C.UTF-8", "--no-sync"}));
        !f.isEmpty())
        return f;
    // Throw-away data: nothing is synced to disk.
    const QString optionen = "-k " + m_dir.path() +
                             " -c listen_addresses='' -c fsync=off -c synchronous_commit=off"
                             " -c full_page_writes=off -c max_connections=40";
    return laufen(alsDienst("pg_ctl", {"-D", m_datenverzeichnis, "-o", optionen, "-l",
                                       m_dir.filePath("server.log"), "-w", "-t", "60", "start"}));
}

Postgresserver::~Postgresserver() {
    laufen(alsDienst("pg_ctl", {"-D", m_datenverzeichnis, "-m", "immediate", "-w", "stop"}));
}

QString Postgresserver::uri(const QString& datenbank) const {
    return QString("postgresql://%1@/%2?host=%3")
        .arg(Rolle, datenbank, QUrl::toPercentEncoding(m_dir.path()));
}

void Postgresserver::ausführen(const QString& sql) const {
    PGconn* c = PQconnectdb(uri("postgres").toUtf8().constData());
    PGresult* r = PQexec(c, sql.toUtf8().constData());
    const bool gut = PQresultStatus(r) == PGRES_COMMAND_OK;
    const QString text = QString::fromUtf8(PQerrorMessage(c));
    PQclear(r);
    PQfinish(c);
    if (!gut)
        throw std::runtime_error((sql + ": " + text).toStdString());
}

QString Postgresserver::leereDatenbank() {
    const QString name = "t" + QString::number(++m_nummer);
    ausführen("CREATE DATABASE " + name);
    return uri(name);
}

// Each test's database is a copy of a template made once, which is quicker than the scripts.
QString Postgresserver::neueDatenbank(bool demo) {
    const QString vorlage = demo ? "vorlage_demo" : "vorlage";
    if (!m_vorlage[demo]) {
        ausführen("DROP DATABASE IF EXISTS " + vorlage);
        ausführen("CREATE DATABASE " + vorlage);
        datenbankAnlegen(uri(vorlage), demo);
        m_vorlage[demo] = true;
    }
    const QString name = "t" + QString::number(++m_nummer);
    ausführen("CREATE DATABASE " + name + " TEMPLATE " + vorlage);
    return uri(name);
}

} // namespace vemo::test
