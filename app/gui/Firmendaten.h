#pragma once

#include <QDialog>
#include <QString>
#include <vector>

class QLineEdit;

// The company that issues the certificates, as the settings of table init keep it.
struct Firmenangabe {
    const char* name;  // the setting's name
    const char* label; // its caption, through xText
};
const std::vector<Firmenangabe>& firmenangaben();

// Edits the company's details; OK writes each of them back.
class Firmendaten : public QDialog {
    Q_OBJECT
public:
    explicit Firmendaten(QWidget* eltern = nullptr);
    void accept() override;

private:
    std::vector<QLineEdit*> m_felder;
};
