#include "Uebersicht.h"

#include "Kontrast.h"
#include "Reihenanzeige.h"
#include "Zertifikatswerte.h"

#include "core/ModulState.h"
#include "store/Recordset.h"
#include "store/Variant.h"

#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace vemo;

namespace {

enum Rolle { Ebene = Qt::UserRole, Schlüssel };

// One level of the inspection hierarchy: how its rows are found under the parent and labelled.
struct Stufe {
    const char* abfrage; // below the customers with the parent's key as its one value
    const char* schlüssel;
    std::function<QString(const Recordset&)> beschriftung;
};

QString codeNrName(const Recordset& rs) {
    return (rs.Text("Code") + " " + rs.Text("Nr") + " " + rs.Text("Name")).simplified();
}

const std::vector<Stufe>& stufen() {
    static const std::vector<Stufe> s{
        {"SELECT * FROM Kunde ORDER BY Name", "KundeID",
         [](const Recordset& rs) { return (rs.Text("Nummernkreis") + " " + rs.Text("Name")).trimmed(); }},
        {"SELECT * FROM 0100_Anlage WHERE KundeID = ? ORDER BY 1", "AnlageID", codeNrName},
        {"SELECT * FROM 0100_Prüfung WHERE AnlagenID = ? ORDER BY 1", "PrüfungID",
         [](const Recordset& rs) {
             return rs.Text("Datum") + "  " + rs.Text("ProtokollNr") + "  " + rs.Text("PrüfgerätName1");
         }},
        {"SELECT * FROM 0100_Verteiler WHERE PrüfungID = ? ORDER BY 1", "VerteilerID", codeNrName},
        {"SELECT * FROM 0100_Stromkreis WHERE VerteilerID = ? ORDER BY 1", "StromkreisID", codeNrName},
    };
    return s;
}

const QStringList Kopfspalten{"Datum", "Uhrzeit", "Funktion", "Messwert", "Einheit"};

// The limit row has one insulation limit, which holds between whichever conductors were measured.
QString grenzspalte(const QString& spalte) {
    return spalte.startsWith("RISO_") ? QString("RISO") : spalte;
}

// The limit of a value column: the column of that name, for the tripping time its window.
QString grenzwertZu(const Recordset& grenz, const QString& spalte) {
    if (spalte == "FIT")
        return (grenz.Text("FIT MIN") + " " + grenz.Text("FIT MAX")).trimmed();
    return grenz.FieldIndex(grenzspalte(spalte)) >= 0 ? grenz.Text(grenzspalte(spalte)) : QString();
}

} // namespace

Uebersicht::Uebersicht(QWidget* eltern) : QWidget(eltern) {
    m_baum = new QTreeWidget;
    m_baum->setHeaderHidden(true);
    m_messungen = new QTableWidget;
    m_messungen->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_messungen->verticalHeader()->setVisible(false);
    m_kopf = new QLabel;
    auto* rechts = new QWidget;
    auto* rl = new QVBoxLayout(rechts);
    rl->setContentsMargins(0, 0, 0, 0);
    rl->addWidget(m_kopf);
    rl->addWidget(m_messungen);
    auto* zertifikat = new Zertifikatswerte;
    rl->addWidget(zertifikat, 1);
    connect(zertifikat, &Zertifikatswerte::prüfungAngelegt, this, &Uebersicht::aktualisieren);
    m_reihe = new Reihenanzeige;
    rl->addWidget(m_reihe, 1);
    auto* teiler = new QSplitter;
    teiler->addWidget(m_baum);
    teiler->addWidget(rechts);
    teiler->setStretchFactor(1, 2);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(teiler);
    connect(m_baum, &QTreeWidget::itemExpanded, this, &Uebersicht::zweigFüllen);
    connect(m_baum, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* k, QTreeWidgetItem*) { messungenZeigen(k); });
    connect(m_baum, &QTreeWidget::currentItemChanged, zertifikat, [zertifikat](QTreeWidgetItem* k) {
        zertifikat->zeigen(k ? k->data(0, Ebene).toInt() : -1, k ? k->data(0, Schlüssel) : QVariant());
    });
    connect(m_baum, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* k, QTreeWidgetItem*) {
        const bool prüfung = k && k->data(0, Ebene).toInt() == 2;
        m_reihe->prüfungZeigen(prüfung ? k->data(0, Schlüssel) : QVariant());
    });
    beschriften();
}

void Uebersicht::beschriften() {
    m_kopf->setText(xText("Messungen") + " / " + xText("Grenzwerte"));
}

// The keys from the customer down to this node: they name it again in the tree built anew.
QList<QVariant> Uebersicht::pfad(const QTreeWidgetItem* knoten) {
    QList<QVariant> schlüssel;
    for (; knoten; knoten = knoten->parent())
        schlüssel.prepend(knoten->data(0, Schlüssel));
    return schlüssel;
}

QTreeWidgetItem* Uebersicht::knotenAuf(const QList<QVariant>& pfad) const {
    QTreeWidgetItem* knoten = nullptr;
    for (const QVariant& schlüssel : pfad) {
        const int anzahl = knoten ? knoten->childCount() : m_baum->topLevelItemCount();
        QTreeWidgetItem* gefunden = nullptr;
        for (int i = 0; i < anzahl && !gefunden; ++i) {
            QTreeWidgetItem* kind = knoten ? knoten->child(i) : m_baum->topLevelItem(i);
            if (kind->data(0, Schlüssel).toString() == schlüssel.toString())
                gefunden = kind;
        }
        if (!gefunden)
            return nullptr;
        knoten = gefunden;
        zweigFüllen(knoten);
    }
    return knoten;
}

// The tree is built anew after every command; what the user had opened and chosen stays so, as
// far as it still exists.
void Uebersicht::aktualisieren() {
    QList<QList<QVariant>> offen;
    for (QTreeWidgetItemIterator it(m_baum); *it; ++it)
        if ((*it)->isExpanded())
            offen << pfad(*it);
    const QList<QVariant> gewählt = pfad(m_baum->currentItem());
    neuAufbauen();
    for (const QList<QVariant>& p : std::as_const(offen))
        if (QTreeWidgetItem* k = knotenAuf(p))
            k->setExpanded(true);
    if (QTreeWidgetItem* k = gewählt.isEmpty() ? nullptr : knotenAuf(gewählt))
        m_baum->setCurrentItem(k);
}

void Uebersicht::neuAufbauen() {
    m_baum->clear();
    messungenZeigen(nullptr);
    if (!db().istOffen())
        return;
    mitFalle([this] {
        Recordset rs = db().OpenRecordset(stufen()[0].abfrage);
        for (; !rs.Eof(); rs.MoveNext()) {
            auto* k = new QTreeWidgetItem(m_baum, {stufen()[0].beschriftung(rs)});
            k->setData(0, Ebene, 0);
            k->setData(0, Schlüssel, rs.Field("KundeID"));
            k->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        }
    });
}

void Uebersicht::zweigFüllen(QTreeWidgetItem* knoten) const {
    const int ebene = knoten->data(0, Ebene).toInt() + 1;
    if (knoten->childCount() > 0 || ebene >= int(stufen().size()))
        return;
    const Stufe& s = stufen()[size_t(ebene)];
    mitFalle([&] {
        Recordset rs = db().OpenRecordset(s.abfrage, {knoten->data(0, Schlüssel)});
        for (; !rs.Eof(); rs.MoveNext()) {
            auto* k = new QTreeWidgetItem(knoten, {s.beschriftung(rs)});
            k->setData(0, Ebene, ebene);
            k->setData(0, Schlüssel, rs.Field(s.schlüssel));
            if (ebene + 1 < int(stufen().size()))
                k->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        }
    });
    knoten->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

void Uebersicht::messungenZeigen(QTreeWidgetItem* knoten) {
    m_messungen->clear();
    m_messungen->setRowCount(0);
    m_messungen->setColumnCount(0);
    // Measurements belong to a circuit: elsewhere their table would only stand empty above the
    // certificate's values or a logger series.
    const bool stromkreis = knoten && knoten->data(0, Ebene).toInt() == int(stufen().size()) - 1;
    m_kopf->setVisible(stromkreis);
    m_messungen->setVisible(stromkreis);
    if (!stromkreis)
        return;
    mitFalle([&] {
        struct Zeile {
            QMap<QString, QString> wert, grenze;
        };
        std::vector<Zeile> zeilen;
        // The columns that hold a measured value in some row, in table order, each followed by its
        // limit; the columns of the heading lines only where they hold anything.
        QStringList köpfe, spalten;
        Recordset mess =
            db().OpenRecordset("SELECT * FROM 0100_Messung WHERE StromkreisID = ? ORDER BY MessID",
                               {knoten->data(0, Schlüssel)});
        for (; !mess.Eof(); mess.MoveNext()) {
            const Recordset grenz =
                db().OpenRecordset("SELECT * FROM 0100_Grenzwert WHERE MessID = ?", {mess.Field("MessID")});
            Zeile z;
            for (int i = 0; i < mess.FieldCount(); ++i) {
                const QString name = mess.FieldName(i);
                if (name == "MessID" || name == "StromkreisID" || mess.Text(name).isEmpty())
                    continue;
                z.wert[name] = mess.Text(name);
                if (!grenz.Eof())
                    z.grenze[name] = grenzwertZu(grenz, name);
                if (!köpfe.contains(name) && Kopfspalten.contains(name))
                    köpfe << name;
                if (!spalten.contains(name) && !Kopfspalten.contains(name))
                    spalten << name;
            }
            zeilen.push_back(z);
        }
        QStringList überschriften;
        for (const QString& k : köpfe)
            überschriften << xText(k);
        const Recordset grenzSpalten = db().OpenRecordset("SELECT * FROM 0100_Grenzwert WHERE MessID = -1");
        const auto hatGrenzwert = [&](const QString& w) {
            return w == "FIT" || grenzSpalten.FieldIndex(grenzspalte(w)) >= 0;
        };
        for (const QString& w : spalten) {
            überschriften << w;
            if (hatGrenzwert(w))
                überschriften << w + " " + xText("Grenzwert");
        }
        m_messungen->setColumnCount(int(überschriften.size()));
        m_messungen->setHorizontalHeaderLabels(überschriften);
        m_messungen->setRowCount(int(zeilen.size()));
        for (int r = 0; r < int(zeilen.size()); ++r) {
            const Zeile& z = zeilen[size_t(r)];
            int c = 0;
            for (const QString& k : köpfe)
                m_messungen->setItem(r, c++, new QTableWidgetItem(z.wert.value(k)));
            for (const QString& w : spalten) {
                m_messungen->setItem(r, c++, new QTableWidgetItem(z.wert.value(w)));
                if (!hatGrenzwert(w))
                    continue;
                auto* grenze = new QTableWidgetItem(z.grenze.value(w));
                grenze->setForeground(
                    gedämpft(palette().color(QPalette::Text), palette().color(QPalette::Base)));
                m_messungen->setItem(r, c++, grenze);
            }
        }
        m_messungen->resizeColumnsToContents();
    });
}
