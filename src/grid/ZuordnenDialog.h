#pragma once

#include "platform/Dialog.h"

// The meta-object compiler reads no umlauts; it needs nothing of this header.
#ifndef Q_MOC_RUN
#include "grid/ComboListe.h"
#endif

#include <QList>
#include <QString>

namespace vemo {

// A combo box of the dialog: its entries (text and key), the chosen one (-1: none), and whether the
// user can choose.
struct Zuordnungsliste {
    QList<ComboEintrag> einträge;
    int listIndex = -1;
    bool aktiv = true;

    bool gewählt() const { return listIndex >= 0 && listIndex < einträge.size(); }
    QVariant schlüssel() const { return gewählt() ? einträge[listIndex].schlüssel : QVariant(); }
};

// The dialog frmZuordnen: all read-in rows of the newest device assigned in one step to a customer,
// a plant and an inspection. A device that measured in several plants gets its customer alone.
class frmZuordnen : public DialogController {
    Q_OBJECT
public:
    struct Beschriftungen {
        QString titel;
        QString rahmen;
        QString kunde;
        QString anlage;
        QString prüfung;
        QString weiter;
        QString hilfe;
    };

    // Loads the form: the customers by name; plant and inspection wait for the customer.
    explicit frmZuordnen(QObject* eltern = nullptr);

    const Beschriftungen& beschriftungen() const { return m_texte; }
    const Zuordnungsliste& comboKunde() const { return m_kunde; }
    const Zuordnungsliste& comboAnlage() const { return m_anlage; }
    const Zuordnungsliste& comboPrüfung() const { return m_prüfung; }

    // The user's choice in a combo box; -1 chooses nothing.
    void kundeKlick(int index);
    void anlageKlick(int index);
    void prüfungKlick(int index);
    // CoWeiter: writes the chosen keys into the newest device's rows and unloads the form.
    void weiterKlick();

private:
    void anlagenFüllen();
    void prüfungenFüllen();

    Beschriftungen m_texte;
    Zuordnungsliste m_kunde;
    Zuordnungsliste m_anlage;
    Zuordnungsliste m_prüfung;
};

} // namespace vemo
