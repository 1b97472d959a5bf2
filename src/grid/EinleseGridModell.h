#pragma once

#include "grid/EinleseDatenController.h"

#include <QAbstractTableModel>

namespace vemo {

// The grid of the read-in form as a table model: the data rows below the header, the header row
// as the header, each cell in the font and colours of its state.
class EinleseGridModell : public QAbstractTableModel {
    Q_OBJECT
public:
    EinleseGridModell(const EinleseDatenController& formular, QObject* eltern);

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& index, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;

    // The grid has been filled anew.
    void neuLaden();

private:
    const EinleseDatenController& m_formular;
};

// A colour written as the system writes colours, a BGR number.
QColor ausBGR(int bgr);

} // namespace vemo
