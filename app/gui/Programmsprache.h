#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>

// What the program's language means beyond the component's own texts: Qt's dialogs and buttons
// speak it, and dates and numbers are written the way its country writes them.
class Programmsprache {
public:
    Programmsprache() = default;
    ~Programmsprache();
    Programmsprache(const Programmsprache&) = delete;
    Programmsprache& operator=(const Programmsprache&) = delete;

    // A name of the language database ("Deutsch (&Deutschland)", "English (United Kingdom)").
    void wählen(const QString& sprache);

    static QLocale gebietsschema(const QString& sprache);
    // The name as the user reads it: without the mark of the mnemonic.
    static QString anzeigename(const QString& sprache);

private:
    QTranslator m_qt;
    bool m_installiert = false;
    const QLocale m_vorher; // the default locale before the first choice, given back at the end
};
