#include "Empfangskonsole.h"

#include "core/ModulState.h"
#include "links/Form2.h"
#include "links/Kontalex.h"
#include "links/SorelinUebertragung.h"
#include "links/ZemakDialog.h"

#include <QTimer>
#include <cstdio>

using namespace vemo;

Empfangskonsole::Empfangskonsole(bool immerJa) : KonsolenUi(immerJa) {
    QObject::connect(&m_wache, &Konsolenwache::unterbrochen, [this] { abbrechen(); });
    QObject::connect(&m_wache, &Konsolenwache::zeileEingegeben, [this] {
        if (m_form)
            m_form->enterGedrückt();
    });
}

void Empfangskonsole::abbrechen() {
    m_ctrlC = true;
    if (m_form)
        m_form->abbrechen();
    else if (m_sorelin)
        m_sorelin->abbrechen();
    else if (m_kontalex)
        m_kontalex->abbrechen();
    else if (m_abfrage)
        m_abfrage->abbrechen();
    else
        modul().Abbruchmerker = 1; // the run ends as aborted, and a wait still to come at once
}

void Empfangskonsole::zeigeNichtModal(DialogController& dialog) {
    KonsolenUi::zeigeNichtModal(dialog);
    auto* form = qobject_cast<Form2*>(&dialog);
    if (!form)
        return;
    m_form = form;
    // Ctrl-C came before the wait: the abort button is pressed as soon as there is one, so that no
    // dump is received only to be thrown away.
    if (m_ctrlC) {
        form->abbrechen();
        return;
    }
    std::fprintf(stderr, "%s\n", form->titel().toLocal8Bit().constData());
    QObject::connect(form, &DialogController::aktualisiert, form, [this] { hinweisZeigen(); });
    hinweisZeigen();
}

void Empfangskonsole::neueZeile(const QString& text, QString& zuletzt) {
    if (text.isEmpty() || text == zuletzt)
        return;
    zuletzt = text;
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

// The blinking of the window has no meaning here.
void Empfangskonsole::hinweisZeigen() {
    if (m_form)
        neueZeile(m_form->hinweis(), m_gezeigt);
}

void Empfangskonsole::abfrageZeigen() {
    if (!m_abfrage)
        return;
    neueZeile(m_abfrage->gerätezustand(), m_zustand);
    neueZeile(m_abfrage->hinweis(), m_gezeigt);
    const QString prozent = m_abfrage->prozent().trimmed();
    if (prozent.isEmpty())
        return;
    const QString zehner = QString::number(prozent.chopped(1).toInt() / 10 * 10) + "%";
    neueZeile(zehner, m_prozentZehner);
}

// The modal transfer dialogs: their title, then each change of what they show; a Ctrl-C that came
// before presses their abort button as soon as the dialog runs.
int Empfangskonsole::zeigeModal(DialogController& dialog) {
    if (auto* sorelin = qobject_cast<frmSorelin*>(&dialog)) {
        m_sorelin = sorelin;
        std::fprintf(stderr, "%s\n", sorelin->titel().toLocal8Bit().constData());
        QObject::connect(sorelin, &DialogController::aktualisiert, sorelin, [this] { sendTextZeigen(); });
        sendTextZeigen();
        if (m_ctrlC)
            QTimer::singleShot(0, sorelin, &frmSorelin::abbrechen);
    } else if (auto* abfrage = qobject_cast<frmZEMAK*>(&dialog)) {
        m_abfrage = abfrage;
        std::fprintf(stderr, "%s\n", abfrage->titel().toLocal8Bit().constData());
        QObject::connect(abfrage, &DialogController::aktualisiert, abfrage, [this] { abfrageZeigen(); });
        abfrageZeigen();
        if (m_ctrlC)
            QTimer::singleShot(0, abfrage, &frmZEMAK::abbrechen);
    } else if (auto* kontalex = qobject_cast<Kontalex*>(&dialog)) {
        m_kontalex = kontalex;
        std::fprintf(stderr, "%s\n", kontalex->titel().toLocal8Bit().constData());
        QObject::connect(kontalex, &DialogController::aktualisiert, kontalex, [this] { zustandZeigen(); });
        if (m_ctrlC)
            QTimer::singleShot(0, kontalex, &Kontalex::abbrechen);
    }
    return KonsolenUi::zeigeModal(dialog);
}

// The block transfer's prompt whenever it changes.
void Empfangskonsole::sendTextZeigen() {
    if (m_sorelin)
        neueZeile(m_sorelin->sendText(), m_gezeigt);
}

// The state once each time it changes, with the blocks fetched so far.
void Empfangskonsole::zustandZeigen() {
    if (!m_kontalex)
        return;
    QString zustand = m_kontalex->zustand();
    if (!m_kontalex->blocknummer().isEmpty())
        zustand += " " + m_kontalex->messungenText() + ": " + m_kontalex->blocknummer();
    neueZeile(zustand, m_gezeigt);
}
