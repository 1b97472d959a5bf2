#pragma once

#include <QChartView>

namespace vemo {

class Diagramm;

// The chart of a series: a line a row, over the time axis when the points have their moments and
// over their count before that; the value axis is captioned with the chart's y text.
class Reihendiagramm : public QChartView {
    Q_OBJECT
public:
    explicit Reihendiagramm(QWidget* eltern = nullptr);

    void zeigen(const Diagramm& diagramm);
};

} // namespace vemo
