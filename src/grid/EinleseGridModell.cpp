#include "grid/EinleseGridModell.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

namespace vemo {

EinleseGridModell::EinleseGridModell(const EinleseDatenController& formular, QObject* eltern)
    : QAbstractTableModel(eltern), m_formular(formular) {}

int EinleseGridModell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : m_formular.grid().datenzeilen();
}

int EinleseGridModell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : EinleseGrid::Cols;
}

QVariant EinleseGridModell::data(const QModelIndex& index, int rolle) const {
    if (!index.isValid())
        return {};
    const Zelle& z = m_formular.grid().zelle(index.row() + 1, index.column());
    switch (rolle) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: // the whole text where the column cuts it
        return z.text;
    case Qt::FontRole: {
        QFont f = QApplication::font();
        f.setBold(z.fett);
        return f;
    }
    case Qt::ForegroundRole:
        return z.farbe == farbe::Systemtext ? QApplication::palette().color(QPalette::ButtonText)
                                            : ausBGR(z.farbe);
    case Qt::BackgroundRole:
        return z.festerHintergrund ? QVariant(QApplication::palette().color(QPalette::Button)) : QVariant();
    case Qt::TextAlignmentRole:
        return int(index.column() == 0 ? Qt::AlignRight | Qt::AlignVCenter
                                       : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant EinleseGridModell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || abschnitt < 0 || abschnitt >= EinleseGrid::Cols)
        return {};
    switch (rolle) {
    case Qt::DisplayRole:
        return m_formular.grid().TextMatrix(0, abschnitt);
    case Qt::FontRole: {
        QFont f = QApplication::font();
        f.setBold(true);
        return f;
    }
    case Qt::TextAlignmentRole:
        return int(Qt::AlignCenter);
    default:
        return {};
    }
}

void EinleseGridModell::neuLaden() {
    beginResetModel();
    endResetModel();
}

QColor ausBGR(int bgr) {
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

} // namespace vemo
