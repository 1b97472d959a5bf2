#include "Firmendaten.h"

#include "core/InitTabelle.h"
#include "core/ModulState.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

using namespace vemo;

const std::vector<Firmenangabe>& firmenangaben() {
    static const std::vector<Firmenangabe> a{
        {"Firma", "Firma"},
        {"Firma_TradingTitle", "Handelsname"},
        {"Firma_NiceicNo", "Registriernummer"},
        {"Firma_BranchNo", "Filialnummer"},
        {"Firma_PhoneNo", "Telefonnummer"},
        {"Firma_FaxNo", "Faxnummer"},
        {"Logo", "Logo"},
    };
    return a;
}

Firmendaten::Firmendaten(QWidget* eltern) : QDialog(eltern) {
    setWindowTitle(xText("Firmendaten"));
    auto* form = new QFormLayout(this);
    for (const Firmenangabe& a : firmenangaben()) {
        auto* feld = new QLineEdit;
        mitFalle([&] { feld->setText(InitLesen(a.name, QString())); });
        form->addRow(xText(a.label), feld);
        m_felder.push_back(feld);
    }
    auto* knöpfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(knöpfe, &QDialogButtonBox::accepted, this, &Firmendaten::accept);
    connect(knöpfe, &QDialogButtonBox::rejected, this, &Firmendaten::reject);
    form->addRow(knöpfe);
}

void Firmendaten::accept() {
    const bool geschrieben = mitFalle([this] {
        for (size_t i = 0; i < m_felder.size(); ++i)
            InitSchreiben(firmenangaben()[i].name, m_felder[i]->text());
    });
    if (geschrieben)
        QDialog::accept();
}
