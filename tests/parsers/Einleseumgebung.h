#pragma once

#include "support/Dateien.h"
#include "support/Testumgebung.h"

#include "core/Arbeitsdateien.h"
#include "parsers/EinlesenVonDatei.h"
#include "platform/Codepage.h"
#include "platform/Zahlformat.h"
#include "store/Recordset.h"
#include "store/Variant.h"

namespace vemo::test {

// Reads working files as the driver does after a transfer or a chosen file, in the German number
// format, and shows the read-in rows compactly: "head: Funktion=wert Einheit | ...", one text a
// block in key order, the head the columns named, a column left Null shown as "∅".
class Einleseumgebung : public Testumgebung {
protected:
    void SetUp() override {
        Testumgebung::SetUp();
        zahlformat::setzen(QLocale(QLocale::German, QLocale::Germany));
    }
    void TearDown() override {
        zahlformat::ausUmgebung();
        Testumgebung::TearDown();
    }

    // Puts a sample, or lines in the Western code page, in place of the working file.
    static void probeAblegen(const QString& arbeitsdateiName, const QString& probe) {
        schreiben(arbeitsdatei(arbeitsdateiName), inhalt(quelle("samples/" + probe)));
    }
    static void zeilenAblegen(const QString& arbeitsdateiName, const QStringList& zeilen) {
        schreiben(arbeitsdatei(arbeitsdateiName), nachAnsi(zeilen.join("\r\n") + "\r\n"));
    }

    QStringList blöcke(const QStringList& kopf = {"VerteilerNr", "StromkreisNr"},
                       const QString& trenner = " ") const {
        QStringList ergebnis;
        Recordset b = db().OpenRecordset("SELECT * FROM 0100_EinleseDaten ORDER BY MessungID");
        for (; !b.Eof(); b.MoveNext()) {
            QStringList werte;
            Recordset w =
                db().OpenRecordset("SELECT * FROM 0100_EinleseMessDaten WHERE MessungID = ? ORDER BY rowid",
                                   {b.Field("MessungID")});
            for (; !w.Eof(); w.MoveNext())
                werte << (spalte(w, "Funktion") + "=" + spalte(w, "wert") + " " + spalte(w, "Einheit"))
                             .trimmed();
            QStringList k;
            for (const QString& name : kopf)
                k << b.Text(name);
            ergebnis << k.join(trenner) + ": " + werte.join(" | ");
        }
        return ergebnis;
    }
    static QString spalte(const Recordset& r, const QString& name) {
        return istNull(r.Field(name)) ? "∅" : r.Text(name);
    }
};

} // namespace vemo::test
