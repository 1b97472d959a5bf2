#pragma once

#include "platform/Dialog.h"

#include <QString>

namespace vemo {

// The import dialog FormImport: the user picks the older database, starts the import and sees its
// progress; the result tells whether the dialog closes.
class FormImport : public DialogController {
    Q_OBJECT
public:
    struct Beschriftungen {
        QString titel;
        QString rahmen;       // Frame1
        QString ändern;       // control3
        QString konvertieren; // Konvertieren
        QString abbrechen;    // Abbrechen
        QString hilfe;        // ImportHilfe
    };

    explicit FormImport(QObject* eltern = nullptr);

    const Beschriftungen& beschriftungen() const { return m_texte; }
    const QString& datenquelle() const { return m_datenquelle; }
    void setDatenquelle(const QString& pfad);
    // " 12 Prüfungen werden importiert..." and "40%" while the import runs.
    const QString& anzahlText() const { return m_anzahlText; }
    const QString& prozentText() const { return m_prozentText; }
    bool läuft() const { return m_läuft; }
    // The result code of the last run: 0 when it succeeded.
    int ergebnisCode() const { return m_ergebnisCode; }

    void ändernKlick();
    void konvertierenKlick();
    void abbrechenKlick() { schließen(); }

signals:
    void progressed(int prozent);

private:
    Beschriftungen m_texte;
    QString m_datenquelle;
    QString m_anzahlText;
    QString m_prozentText;
    bool m_läuft = false;
    int m_ergebnisCode = 0;
};

} // namespace vemo
