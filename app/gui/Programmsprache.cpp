#include "Programmsprache.h"

#include "platform/Zahlformat.h"

#include <QCoreApplication>
#include <QLibraryInfo>

Programmsprache::~Programmsprache() {
    if (m_installiert)
        QCoreApplication::removeTranslator(&m_qt);
    QLocale::setDefault(m_vorher);
}

void Programmsprache::wählen(const QString& sprache) {
    const QLocale locale = gebietsschema(sprache);
    if (m_installiert)
        QCoreApplication::removeTranslator(&m_qt);
    // Qt's own texts come from the distribution's translations; English needs none.
    m_installiert = m_qt.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
                    QCoreApplication::installTranslator(&m_qt);
    QLocale::setDefault(locale);
    vemo::zahlformat::setzen(locale);
}

QLocale Programmsprache::gebietsschema(const QString& sprache) {
    if (sprache.startsWith("English"))
        return QLocale(QLocale::English, QLocale::UnitedKingdom);
    if (sprache.contains("Österreich"))
        return QLocale(QLocale::German, QLocale::Austria);
    return QLocale(QLocale::German, QLocale::Germany);
}

QString Programmsprache::anzeigename(const QString& sprache) {
    return QString(sprache).remove('&');
}
