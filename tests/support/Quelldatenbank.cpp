#include "support/Quelldatenbank.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vemo::test {

namespace {

void ausführen(const QString& pfad, const QString& anweisung, const QVariantList& werte = {}) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(pfad.toUtf8().constData(), &db), SQLITE_OK);
    sqlite3_stmt* st = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(db, anweisung.toUtf8().constData(), -1, &st, nullptr), SQLITE_OK)
        << sqlite3_errmsg(db);
    for (int i = 0; i < werte.size(); ++i) {
        const QVariant& w = werte[i];
        if (w.isNull())
            sqlite3_bind_null(st, i + 1);
        else if (w.typeId() == QMetaType::Int)
            sqlite3_bind_int(st, i + 1, w.toInt());
        else
            sqlite3_bind_text(st, i + 1, w.toString().toUtf8().constData(), -1, SQLITE_TRANSIENT);
    }
    EXPECT_EQ(sqlite3_step(st), SQLITE_DONE) << sqlite3_errmsg(db);
    sqlite3_finalize(st);
    sqlite3_close(db);
}

QStringList nummeriert(const QString& stamm, int von, int bis) {
    QStringList namen;
    for (int i = von; i <= bis; ++i)
        namen << stamm + QString::number(i);
    return namen;
}

} // namespace

const QStringList& Quelldatenbank::spalten() {
    static const QStringList namen =
        QString(
            "Kunden Nr Adresse Adresse3 Anlage Anlagenplaner Pruefdatum Puefprot_Nr Auftragsnr Netzspannung "
            "Pruefung_nach Seriennummer Messung_1_Label14 Prüfer Betriebsmittel Messung_2 form1_text14 "
            "kopf_label2 kopf_label3 Erprobung_MaskedEdit1 Erprobung_maskedEdit2")
            .split(' ') +
        nummeriert("kopf_Check3d", 1, 13) + nummeriert("Besichtigung_check3d", 1, 17) +
        nummeriert("besichtigung_maskedEdit", 1, 2) + nummeriert("Erprobung_check3d", 2, 12) +
        nummeriert("Erprobung_Text", 3, 6) + nummeriert("Form1_MaskedEdit", 1, 11) +
        nummeriert("Form1_check3d", 1, 4) + nummeriert("Reserve", 1, 3);
    return namen;
}

Quelldatenbank::Quelldatenbank(QString pfad) : m_pfad(std::move(pfad)) {
    ausführen(m_pfad, "CREATE TABLE kunden (\"" + spalten().join("\", \"") + "\")");
}

void Quelldatenbank::zeile(const QVariantMap& felder) const {
    QStringList namen;
    QStringList platzhalter;
    QVariantList werte;
    for (auto it = felder.begin(); it != felder.end(); ++it) {
        namen << "\"" + it.key() + "\"";
        platzhalter << "?";
        werte << it.value();
    }
    ausführen(m_pfad, "INSERT INTO kunden (" + namen.join(", ") + ") VALUES (" + platzhalter.join(", ") + ")",
              werte);
}

QVariantMap quellzeile(const QString& kunde, const QString& anlage, const QString& messtext) {
    return {{"Kunden", kunde},
            {"Nr", "K-" + kunde.left(3)},
            {"Adresse", "Lindenweg 4"},
            {"Adresse3", "34117 Kassel"},
            {"Anlage", anlage},
            {"Anlagenplaner", "Planbüro West"},
            {"Pruefdatum", "14.06.2019"},
            {"Puefprot_Nr", "P-" + anlage},
            {"Reserve3", messtext}};
}

} // namespace vemo::test
