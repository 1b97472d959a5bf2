#include "Reihenanzeige.h"

#include "core/ModulState.h"
#include "logger/Reihenausgabe.h"
#include "logger/Reihendiagramm.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace vemo;

Reihenanzeige::Reihenanzeige(QWidget* eltern)
    : QWidget(eltern), m_kopf(new QLabel), m_diagramm(new Reihendiagramm) {
    setObjectName("Reihenanzeige");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_kopf);
    layout->addWidget(m_diagramm, 1);
    hide();
}

void Reihenanzeige::prüfungZeigen(const QVariant& prüfungID) {
    std::optional<GespeicherteReihe> reihe;
    if (prüfungID.isValid())
        mitFalle([&] { reihe = reiheDerPrüfung(prüfungID); });
    setVisible(reihe.has_value());
    if (!reihe)
        return;
    const Reihenkopf& k = reihe->kopf;
    m_kopf->setText(reihe->überschrift + "    " + xText("Spannung max") + ": " + k.maximum + " V    " +
                    xText("Spannung min") + ": " + k.minimum + " V    " + xText("Intervall (s)") + ": " +
                    k.intervall);
    m_diagramm->zeigen(reihe->diagramm);
}
