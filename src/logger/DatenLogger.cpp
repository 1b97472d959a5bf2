#include "logger/DatenLogger.h"

#include "core/Arbeitsdateien.h"
#include "core/ModulState.h"
#include "logger/Loggerdatei.h"
#include "logger/Zuordnen.h"
#include "platform/Textdatei.h"
#include "platform/Ui.h"

namespace vemo {

DatenLogger::DatenLogger(Zuordnen& datenpool, QObject* parent)
    : DialogController(parent), m_datenpool(datenpool) {
    const QDateTime vorher = datenpool.kopf().start;
    startSetzen(vorher.isValid() ? vorher : QDateTime::currentDateTime());
}

QString DatenLogger::titel() const {
    return xText("Daten Logger") + " - " + modul().anwendungstitel;
}

void DatenLogger::feldSetzen(int index, const QString& text) {
    m_felder.at(index) = text;
    emit aktualisiert();
}

bool DatenLogger::tasteErlaubt(int zeichen) {
    return zeichen == Rückschritt || (zeichen >= '0' && zeichen <= '9');
}

void DatenLogger::feldVerlassen(int index) {
    bool zahl = false;
    const int wert = m_felder.at(index).toInt(&zahl);
    if (zahl)
        m_felder.at(index) = QString::number(wert).rightJustified(2, '0');
    emit aktualisiert();
}

void DatenLogger::startSetzen(const QDateTime& start) {
    const QDate d = start.date();
    const QTime t = start.time();
    const int werte[Felder] = {d.day(), d.month(), d.year(), t.hour(), t.minute(), t.second()};
    for (int i = 0; i < Felder; ++i)
        m_felder[i] = QString::number(werte[i]).rightJustified(2, '0');
    emit aktualisiert();
}

QDateTime DatenLogger::start() const {
    int w[Felder];
    for (int i = 0; i < Felder; ++i)
        w[i] = m_felder[i].toInt();
    return QDateTime(QDate(w[2], w[1], w[0]), QTime(w[3], w[4], w[5]));
}

void DatenLogger::command1() {
    const QDateTime beginn = start();
    if (!beginn.isValid()) {
        ui().MsgBox(xText("Datum oder Uhrzeit des Beginns ist ungültig. "
                          "Bitte Tag, Monat, Jahr, Stunde, Minute und Sekunde prüfen."),
                    modul().anwendungstitel, {MsgKnöpfe::Ok, MsgSymbol::Warnung});
        return;
    }
    if (mitFalle([&] { reiheLesen(beginn); }))
        schließen(1);
}

void DatenLogger::command2() {
    schließen(0);
}

void DatenLogger::reiheLesen(const QDateTime& start) {
    Textdatei datei(arbeitsdatei(datei::RuvoSav));
    // The head lines follow the line of the logger's mark; a dump without one ends in error 62.
    bool marke = false;
    while (!marke)
        marke = istLoggerMarke(datei.zeileLesen());
    const Loggerreihe r = loggerreiheLesen(datei);
    Reihenkopf& kopf = m_datenpool.kopf();
    kopf = {start, r.anzahl, r.intervall, r.maximum, r.minimum};
    const qint64 intervall = intervallSekunden(r.intervall);
    Diagramm& d = m_datenpool.diagramm();
    d.leeren();
    QDateTime moment = start;
    for (const QString& wert : r.werte) {
        ui().DoEvents();
        moment = moment.addSecs(intervall);
        if (!d.hinzufügen(0, {wert, moment}))
            break;
    }
    m_datenpool.reiheFertig();
}

} // namespace vemo
