#include "takeover/TeilFunktionDialog.h"

#include "core/ModulState.h"
#include "platform/Ui.h"

namespace vemo {

frmTeilFunktion::frmTeilFunktion(QObject* parent) : DialogController(parent) {
    m_auswahl << "keine***"
              << "mitCase***";
    mitFalle([this] {
        const Recordset messung = db().OpenRecordset("0100_Messung");
        for (int i = 0; i < messung.FieldCount(); ++i)
            m_auswahl << messung.FieldName(i);
    });
    m_gewählt = m_auswahl.first();
}

QString frmTeilFunktion::Caption() const {
    return xText("Unbekannte TeilFunktion");
}

void frmTeilFunktion::ShowStart(const QString& teilFunktion) {
    m_teilFunktion = teilFunktion;
    emit aktualisiert();
    ui().zeigeModal(*this);
}

void frmTeilFunktion::Command1() {
    mitFalle([this] {
        Recordset rs = db().OpenRecordset("0100_Teilfunktion");
        rs.AddNew();
        rs.setField("TeilFunktion", m_teilFunktion);
        rs.setField("spaltenname", m_gewählt);
        rs.Update();
        rs.Close();
    });
    schließen(1);
}

} // namespace vemo
