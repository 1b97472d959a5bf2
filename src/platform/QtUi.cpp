#include "platform/QtUi.h"

#include "platform/Dialog.h"
#include "platform/KonsolenUi.h"
#include "platform/Zentrieren.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>

namespace vemo {
namespace {

QMessageBox::StandardButton knopf(int antwortNr) {
    switch (antwortNr) {
    case antwort::Ok:
        return QMessageBox::Ok;
    case antwort::Abbrechen:
        return QMessageBox::Cancel;
    case antwort::Abbruch:
        return QMessageBox::Abort;
    case antwort::Wiederholen:
        return QMessageBox::Retry;
    case antwort::Ignorieren:
        return QMessageBox::Ignore;
    case antwort::Ja:
        return QMessageBox::Yes;
    default:
        return QMessageBox::No;
    }
}

QMessageBox::Icon symbol(MsgSymbol s) {
    switch (s) {
    case MsgSymbol::Kritisch:
        return QMessageBox::Critical;
    case MsgSymbol::Frage:
        return QMessageBox::Question;
    case MsgSymbol::Warnung:
        return QMessageBox::Warning;
    case MsgSymbol::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// "Messungen (*.ser)|*.ser|Alle Dateien (*)|*": label and pattern in turn, and each label
// already names its pattern, so the dialog is given the labels alone, first filter first.
QString dialogFilter(const QString& filter) {
    const QStringList teile = filter.split('|');
    QStringList labels;
    for (qsizetype i = 0; i < teile.size(); i += 2)
        labels << teile[i];
    return labels.join(";;");
}

// A message box is as wide as its text; a longer title would be cut by the window frame. The
// box is widened to the title, with room for the frame's buttons.
void titelPlatzGeben(QMessageBox& box) {
    constexpr int RahmenKnöpfe = 120;
    QFont rahmenschrift = QApplication::font(); // frames commonly draw the title in bold
    rahmenschrift.setBold(true);
    const int titel = QFontMetrics(rahmenschrift).horizontalAdvance(box.windowTitle());
    auto* raster = qobject_cast<QGridLayout*>(box.layout());
    if (!raster)
        return;
    raster->addItem(new QSpacerItem(titel + RahmenKnöpfe, 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                    raster->rowCount(), 0, 1, raster->columnCount());
}

} // namespace

int QtUi::MsgBox(const QString& text, const QString& titel, const MsgStil& stil) {
    QMessageBox box(symbol(stil.symbol), titel, text, QMessageBox::NoButton, m_hauptfenster);
    const QList<int> antworten = stil.antworten();
    for (int a : antworten)
        box.addButton(knopf(a));
    box.setDefaultButton(knopf(antworten.value(stil.standardKnopf - 1, antworten.first())));
    titelPlatzGeben(box);
    const int gewählt = box.exec();
    for (int a : antworten)
        if (knopf(a) == gewählt)
            return a;
    return antworten.contains(antwort::Abbrechen) ? antwort::Abbrechen : antworten.last();
}

std::optional<QString> QtUi::dateiÖffnen(const DateiDialog& d) {
    const QString pfad =
        QFileDialog::getOpenFileName(m_hauptfenster, d.titel, d.startverzeichnis, dialogFilter(d.filter));
    if (pfad.isEmpty())
        return std::nullopt;
    return pfad;
}

void QtUi::sanduhr(bool an) {
    if (an)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtUi::DoEvents() {
    QApplication::processEvents();
}

QDialog* QtUi::ansichtErstellen(DialogController& dialog) {
    const auto it = m_ansichten.find(dialog.metaObject()->className());
    if (it == m_ansichten.end())
        return nullptr;
    QDialog* view = it->second(dialog, m_hauptfenster);
    DialogZentrieren(*view, m_hauptfenster);
    QObject::connect(&dialog, &DialogController::geschlossen, view, [view](int) { view->close(); });
    return view;
}

int QtUi::zeigeModal(DialogController& dialog) {
    dialog.geöffnet();
    QDialog* view = ansichtErstellen(dialog);
    if (!view)
        return warteAufSchließen(dialog);
    view->setAttribute(Qt::WA_DeleteOnClose);
    QPointer<QDialog> wache(view);
    view->exec();
    if (dialog.istOffen())
        dialog.schließen(0); // the window was closed by its frame
    return dialog.ergebnis();
}

void QtUi::zeigeNichtModal(DialogController& dialog) {
    dialog.geöffnet();
    if (QDialog* view = ansichtErstellen(dialog)) {
        view->setAttribute(Qt::WA_DeleteOnClose);
        view->show();
    }
}

int QtUi::textBreite(const QString& text) {
    // Twips, as the host measures: fifteen to the pixel.
    return QFontMetrics(QApplication::font()).horizontalAdvance(text) * 15;
}

} // namespace vemo
