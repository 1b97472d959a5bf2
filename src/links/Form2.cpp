#include "links/Form2.h"

#include "core/ModulState.h"

namespace vemo {
namespace {
QString tastenHinweis() {
    return xText("RS232-Taste am Corvex drücken ...");
}
} // namespace

Form2::Form2(QObject* parent) : DialogController(parent), m_hinweis(tastenHinweis()) {
    m_blinker.setInterval(Blinktakt);
    connect(&m_blinker, &QTimer::timeout, this, &Form2::blinken);
}

Form2::~Form2() {
    // A view must not outlive its controller, whichever way the reception ended.
    schließen();
}

QString Form2::titel() const {
    return xText("Serielle Datenübertragung") + " - " + modul().anwendungstitel;
}

QString Form2::abbrechenText() const {
    return xText("Datenübertragung Abbrechen");
}

void Form2::wartenAnzeigen() {
    m_abbrechenAktiv = true;
    m_blinker.start();
    emit aktualisiert();
}

void Form2::textLeeren() {
    m_text.clear();
    m_caret = 0;
    emit aktualisiert();
}

void Form2::datenKommen() {
    m_sanduhr = true;
    m_blinker.stop();
    m_hinweis = xText("Datenübertragung läuft...");
    emit aktualisiert();
}

void Form2::zeilenAnzeigen(const QString& puffer) {
    m_text = m_text.right(Textlänge) + puffer;
    m_caret = std::max(0, int(m_text.size()) - 1);
    emit aktualisiert();
}

void Form2::abbrechen() {
    modul().Abbruchmerker = 1;
    modul().Empfangsende = 1;
}

void Form2::enterGedrückt() {
    modul().Empfangsende = 1;
}

bool Form2::tasteGedrückt(int zeichen) {
    if (zeichen != Enter)
        return false;
    enterGedrückt();
    return true;
}

void Form2::aktiviert() {
    emit raiseRequested();
}

void Form2::blinken() {
    if (m_blinkZustand != 1) {
        m_hinweis.clear();
        m_blinkZustand = 1;
    } else {
        m_hinweis = tastenHinweis();
        m_blinkZustand = 0;
    }
    emit aktualisiert();
    emit raiseRequested();
}

} // namespace vemo
