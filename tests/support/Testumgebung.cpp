#include "support/Testumgebung.h"

#include "core/Schluesselvergabe.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "store/Variant.h"

#include <QDir>

namespace vemo::test {

void Testumgebung::SetUp() {
    ASSERT_TRUE(m_dir.isValid());
    modulNeuLaden();
    modul().ui = &m_ui;
    modul().settings = &m_settings;
    neueDatenbank(false);
}

void Motorumgebung::SetUp() {
    m_motor = GetParam();
    QString grund;
    if (m_motor == Motor::Server && !Postgresserver::gestartet(&grund)) {
        if (Postgresserver::pflicht())
            FAIL() << grund.toStdString();
        GTEST_SKIP() << grund.toStdString();
    }
    Testumgebung::SetUp();
}

void Testumgebung::TearDown() {
    EXPECT_FALSE(m_wachhund) << "the dialog did not end by itself";
    modulNeuLaden();
    modul().ui = nullptr;
    modul().settings = nullptr;
}

void Testumgebung::neueDatenbank(bool demo) {
    // As the host's change of database does: the allocator lets go of the old one's counter.
    NeueID("", "");
    modul().db.Close();
    if (m_motor == Motor::Server) {
        QString grund;
        m_dbPfad = Postgresserver::gestartet(&grund)->neueDatenbank(demo);
    } else {
        m_dbPfad = m_dir.filePath("vemotrix.db");
        datenbankAnlegen(m_dbPfad, demo);
    }
    modul().db = Datenbank::OpenDatabase(m_dbPfad);
    modul().datenbankName = m_dbPfad;
    modul().Datenbankverzeichnis = QDir::toNativeSeparators(m_dir.path());
}

void Testumgebung::sql(const QString& natives) const {
    modul().db.skriptAusführen(natives);
}

void Testumgebung::ausführen(const QString& anweisung, const QVector<QVariant>& werte) const {
    modul().db.Execute(anweisung, werte);
}

QString Testumgebung::wert(const QString& abfrage) const {
    Recordset rs = modul().db.OpenRecordset(abfrage);
    return rs.Eof() ? QString() : text(rs.Field(0));
}

QString Testumgebung::wert(const QString& abfrage, const QVector<QVariant>& werte) const {
    Recordset rs = modul().db.OpenRecordset(abfrage, werte);
    return rs.Eof() ? QString() : text(rs.Field(0));
}

QStringList Testumgebung::zeilen(const QString& abfrage, const QVector<QVariant>& werte,
                                 bool ohneSchlüssel) const {
    QStringList ergebnis;
    Recordset rs =
        werte.isEmpty() ? modul().db.OpenRecordset(abfrage) : modul().db.OpenRecordset(abfrage, werte);
    for (; !rs.Eof(); rs.MoveNext()) {
        QStringList spalten;
        for (int i = 0; i < rs.FieldCount(); ++i)
            if (!ohneSchlüssel || !rs.FieldName(i).endsWith("ID", Qt::CaseInsensitive))
                spalten << text(rs.Field(i));
        ergebnis << spalten.join('|');
    }
    return ergebnis;
}

QString Testumgebung::zeile(const QString& abfrage, const QVector<QVariant>& werte) const {
    return zeilen(abfrage, werte).value(0);
}

long Testumgebung::anzahl(const QString& tabelle) const {
    return wert("SELECT Count(*) FROM [" + tabelle + "]").toLong();
}

QString Testumgebung::anzahlen(const QString& tabellen) const {
    QStringList zahlen;
    for (const QString& tabelle : tabellen.split('|'))
        zahlen << QString::number(anzahl(tabelle));
    return zahlen.join('|');
}

QString quelle(const QString& relativ) {
    return QString(VEMO_SOURCE_DIR) + "/" + relativ;
}

} // namespace vemo::test
