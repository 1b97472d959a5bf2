#pragma once

#include <QVariant>
#include <QWidget>
#include <vector>

class QLabel;
class QPushButton;
class QTableWidget;

// The worst values a certificate inspection has collected, for the installation, each board and
// each circuit, under the company that issues the certificate. On a plant it offers a new
// inspection of certificate type; on anything else it keeps out of sight.
class Zertifikatswerte : public QWidget {
    Q_OBJECT
public:
    explicit Zertifikatswerte(QWidget* eltern = nullptr);
    // The node of the overview: its level (1 plant, 2 inspection) and key.
    void zeigen(int ebene, const QVariant& schlüssel);
    // The results the read-in data's "Edit results" asks for: the certificate values of the
    // inspection its rows are assigned to, in a window of their own.
    static void ergebnisseZeigen(QWidget* eltern);

signals:
    void prüfungAngelegt();

private:
    void werteZeigen(const QVariant& prüfungID);
    void firmaZeigen();
    void prüfungAnlegen();

    QVariant m_anlage;
    QVariant m_prüfung;
    QLabel* m_firma;
    std::vector<QLabel*> m_überschriften;
    QPushButton* m_firmendaten;
    QPushButton* m_neuePrüfung;
    QWidget* m_werte;
    QTableWidget* m_anlagenwerte;
    QTableWidget* m_verteilerwerte;
    QTableWidget* m_kreiswerte;
};
