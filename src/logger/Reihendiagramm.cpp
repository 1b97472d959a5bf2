#include "logger/Reihendiagramm.h"

#include "logger/Diagramm.h"
#include "platform/Zahlformat.h"

#include <QDateTimeAxis>
#include <QLineSeries>
#include <QValueAxis>

namespace vemo {
namespace {

bool mitZeiten(const Diagramm& d) {
    return d.anzahl() > 0 && d.reihe(0).constFirst().zeit.isValid();
}

QLineSeries* linie(const QList<Messpunkt>& punkte, const QString& name, bool zeiten) {
    auto* linie = new QLineSeries;
    linie->setName(name);
    for (qsizetype i = 0; i < punkte.size(); ++i) {
        const double x = zeiten ? double(punkte[i].zeit.toMSecsSinceEpoch()) : double(i + 1);
        linie->append(x, zahlformat::zahl(punkte[i].wert.trimmed()).value_or(0));
    }
    return linie;
}

QAbstractAxis* zeitachse(const Diagramm& d, bool zeiten) {
    if (!zeiten) {
        auto* achse = new QValueAxis;
        achse->setLabelFormat("%d");
        achse->setTitleText("#");
        return achse;
    }
    auto* achse = new QDateTimeAxis;
    achse->setFormat("dd.MM. HH:mm");
    achse->setTitleText(d.xText);
    return achse;
}

} // namespace

Reihendiagramm::Reihendiagramm(QWidget* eltern) : QChartView(eltern) {
    setRenderHint(QPainter::Antialiasing);
    setMinimumSize(420, 260);
}

void Reihendiagramm::zeigen(const Diagramm& d) {
    auto* chart = new QChart;
    const bool zeiten = mitZeiten(d);
    QAbstractAxis* x = zeitachse(d, zeiten);
    auto* y = new QValueAxis;
    y->setTitleText(d.yText);
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    for (int r = 0; r < Diagramm::Reihen; ++r) {
        if (d.reihe(r).isEmpty())
            continue;
        QLineSeries* l = linie(d.reihe(r), d.reihenNamen[size_t(r)], zeiten);
        chart->addSeries(l);
        l->attachAxis(x);
        l->attachAxis(y);
    }
    y->applyNiceNumbers();
    chart->legend()->setVisible(d.reihe(1).size() > 0);
    // The view hands the chart it showed back to us; it goes with the next turn of the event loop.
    QChart* alt = this->chart();
    setChart(chart);
    alt->deleteLater();
}

} // namespace vemo
