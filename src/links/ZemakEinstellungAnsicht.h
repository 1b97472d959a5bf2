#pragma once

#include "links/Abbruchfenster.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vemo {

class DialogController;
class frmSettingZEMAK3710;

// The window of the 37xx settings: the instrument with its identification, its clock beside the
// computer's, the button that clears its memory, and the frame of the code splitting. Closing it
// by its frame or with Escape is the close button.
class ZemakEinstellungAnsicht : public Abbruchfenster {
    Q_OBJECT
public:
    ZemakEinstellungAnsicht(frmSettingZEMAK3710& form, QWidget* eltern);

    static QDialog* erstellen(DialogController& controller, QWidget* eltern);

private:
    QGroupBox* kennungBauen();
    QGroupBox* uhrBauen();
    QGroupBox* aufteilungBauen();
    void anzeigen();
    void kennungMarkieren();

    QPointer<frmSettingZEMAK3710> m_form;
    QLabel* m_gerät;
    QLabel* m_serienNr;
    QLineEdit* m_kennung;
    QLabel* m_prüfgerätZeit;
    QLabel* m_pcZeit;
    QPushButton* m_sync;
    QPushButton* m_löschen;
    QGroupBox* m_aufteilung;
    QCheckBox* m_codeSplitting;
    QComboBox* m_kundenstellen;
    QComboBox* m_verteilerstellen;
};

} // namespace vemo
