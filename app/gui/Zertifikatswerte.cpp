#include "Zertifikatswerte.h"

#include "Firmendaten.h"

#include "core/InitTabelle.h"
#include "core/ModulState.h"
#include "store/Recordset.h"
#include "takeover/MesswertUebernehmenZertifikat.h"
#include "takeover/Zertifikatssatz.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace vemo;

namespace {

const int EbeneAnlage = 1;
const int EbenePrüfung = 2;

// The columns the certificate's mapping fills in one table, in the order the mapping names them.
QStringList zertifikatsspalten(const QString& tabelle) {
    QStringList spalten;
    Recordset rs = db().OpenRecordset("SELECT SpaltenName FROM 0100_TeilfunktionUK WHERE Zertifikat = ? AND "
                                      "Tabelle = ? AND Prozedur <> 'Store' GROUP BY SpaltenName "
                                      "ORDER BY Min(TeilfunktionUKID)",
                                      {ZertifikatNiceic, tabelle});
    for (; !rs.Eof(); rs.MoveNext())
        spalten << rs.Text("SpaltenName");
    return spalten;
}

// A table of a line or a few is no higher than its lines.
void höheAnpassen(QTableWidget* t) {
    t->setMaximumHeight(t->horizontalHeader()->height() +
                        t->rowCount() * t->verticalHeader()->defaultSectionSize() + 2 * t->frameWidth() + 4);
}

QTableWidget* neueTabelle(const char* name) {
    auto* t = new QTableWidget;
    t->setObjectName(name);
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->verticalHeader()->setVisible(false);
    return t;
}

// One line a record: the columns that name it, then its certificate values.
void füllen(QTableWidget* t, const QStringList& namensspalten, const QStringList& werte, Recordset rs) {
    const QStringList köpfe = namensspalten + werte;
    t->clear();
    t->setColumnCount(int(köpfe.size()));
    t->setHorizontalHeaderLabels(köpfe);
    t->setRowCount(0);
    for (int r = 0; !rs.Eof(); rs.MoveNext(), ++r) {
        t->setRowCount(r + 1);
        for (int c = 0; c < köpfe.size(); ++c)
            t->setItem(r, c, new QTableWidgetItem(rs.Text(köpfe[c])));
    }
    t->resizeColumnsToContents();
}

// The value columns of a table, to follow the columns that name its records in a select list.
QString auswahl(const QString& alias, const QStringList& spalten) {
    QString s;
    for (const QString& sp : spalten)
        s += ", " + alias + ".[" + sp + "]";
    return s;
}

} // namespace

Zertifikatswerte::Zertifikatswerte(QWidget* eltern) : QWidget(eltern) {
    m_firma = new QLabel;
    m_firma->setObjectName("Firma");
    m_firma->setTextFormat(Qt::PlainText);
    m_firmendaten = new QPushButton;
    m_neuePrüfung = new QPushButton;
    m_neuePrüfung->setObjectName("NeuePrüfung");
    m_anlagenwerte = neueTabelle("Anlagenwerte");
    m_verteilerwerte = neueTabelle("Verteilerwerte");
    m_kreiswerte = neueTabelle("Kreiswerte");

    auto* kopf = new QHBoxLayout;
    kopf->addWidget(m_firma, 1);
    kopf->addWidget(m_firmendaten);
    m_werte = new QWidget;
    auto* werte = new QVBoxLayout(m_werte);
    werte->setContentsMargins(0, 0, 0, 0);
    werte->addLayout(kopf);
    for (auto [text, tabelle] :
         {std::pair{"Anlage", m_anlagenwerte}, std::pair{"Verteiler", m_verteilerwerte},
          std::pair{"Stromkreise", m_kreiswerte}}) {
        auto* überschrift = new QLabel;
        überschrift->setProperty("deutsch", text);
        m_überschriften.push_back(überschrift);
        überschrift->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        werte->addWidget(überschrift);
        werte->addWidget(tabelle, tabelle == m_kreiswerte ? 1 : 0);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_neuePrüfung, 0, Qt::AlignLeft);
    layout->addWidget(m_werte, 1);
    connect(m_firmendaten, &QPushButton::clicked, this, [this] {
        Firmendaten dialog(this);
        if (dialog.exec() == QDialog::Accepted)
            firmaZeigen();
    });
    connect(m_neuePrüfung, &QPushButton::clicked, this, &Zertifikatswerte::prüfungAnlegen);
    hide();
}

void Zertifikatswerte::zeigen(int ebene, const QVariant& schlüssel) {
    m_firmendaten->setText(xText("Firmendaten"));
    m_neuePrüfung->setText(xText("Neue Zertifikatsprüfung"));
    // The language may have changed since the last look.
    for (QLabel* l : m_überschriften)
        l->setText("<b>" + xText(l->property("deutsch").toString()) + "</b>");
    m_anlage = ebene == EbeneAnlage ? schlüssel : QVariant();
    bool zertifikat = false;
    if (ebene == EbenePrüfung)
        mitFalle([&] { zertifikat = istZertifikat(schlüssel); });
    m_neuePrüfung->setVisible(ebene == EbeneAnlage);
    m_werte->setVisible(zertifikat);
    setVisible(ebene == EbeneAnlage || zertifikat);
    if (zertifikat)
        werteZeigen(schlüssel);
}

void Zertifikatswerte::firmaZeigen() {
    QStringList zeilen;
    mitFalle([&] {
        for (const Firmenangabe& a : firmenangaben())
            if (const QString w = InitLesen(a.name, QString()); !w.isEmpty())
                zeilen << w;
    });
    m_firma->setText(xText("Zertifikat") + ": " + zeilen.join(" · "));
}

void Zertifikatswerte::werteZeigen(const QVariant& prüfungID) {
    firmaZeigen();
    mitFalle([&] {
        const QStringList anlage = zertifikatsspalten("0100U_CertNic");
        füllen(m_anlagenwerte, {}, anlage,
               db().OpenRecordset("SELECT c.pid" + auswahl("c", anlage) +
                                      " FROM 0100U_CertNic AS c WHERE c.pid = ?",
                                  {prüfungID}));
        höheAnpassen(m_anlagenwerte);
        const QStringList verteiler = zertifikatsspalten("0100_Verteiler");
        füllen(m_verteilerwerte, {"Code", "Nr", "Name"}, verteiler,
               db().OpenRecordset("SELECT v.Code, v.Nr, v.Name" + auswahl("v", verteiler) +
                                      " FROM 0100_Verteiler AS v WHERE v.PrüfungID = ? ORDER BY v.Code",
                                  {prüfungID}));
        höheAnpassen(m_verteilerwerte);
        // A circuit has its one measurement row; should there be more, each shows.
        const QStringList kreis = zertifikatsspalten("0100_Messung");
        füllen(m_kreiswerte, {"Verteiler", "Code", "Nr", "Name"}, kreis,
               db().OpenRecordset("SELECT v.Code AS Verteiler, s.Code, s.Nr, s.Name" + auswahl("m", kreis) +
                                      " FROM (0100_Verteiler AS v INNER JOIN 0100_Stromkreis AS s ON "
                                      "s.VerteilerID = v.VerteilerID) LEFT JOIN 0100_Messung AS m ON "
                                      "m.StromkreisID = s.StromkreisID WHERE v.PrüfungID = ? "
                                      "ORDER BY v.Code, s.Code, m.MessID",
                                  {prüfungID}));
    });
}

void Zertifikatswerte::prüfungAnlegen() {
    if (m_anlage.isValid() && mitFalle([this] { ZertifikatsprüfungAnlegen(m_anlage); }))
        emit prüfungAngelegt();
}

void Zertifikatswerte::ergebnisseZeigen(QWidget* eltern) {
    QVariant prüfung = modul().ListePrüfungID;
    mitFalle([&] {
        const Recordset rs = db().OpenRecordset(
            "SELECT PrüfungID FROM 0100_EinleseDaten WHERE PrüfungID <> 0 ORDER BY MessungID");
        if (!rs.Eof())
            prüfung = rs.Field("PrüfungID");
    });
    auto* fenster = new Zertifikatswerte(eltern);
    fenster->setWindowFlag(Qt::Window);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->setWindowTitle(xText("Zertifikat"));
    fenster->zeigen(EbenePrüfung, prüfung);
    fenster->resize(900, 500);
    fenster->show();
}
