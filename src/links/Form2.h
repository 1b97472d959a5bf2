#pragma once

#include "platform/Dialog.h"

#include <QString>
#include <QTimer>

namespace vemo {

// The wait dialog of the dump reception: it asks the user to press the instrument's send key,
// shows the tail of what arrives, and offers the way out. Its buttons and keys reach the
// reception loop through the module flags: abort sets Abbruchmerker and Empfangsende, Enter in the
// text box sets Empfangsende alone and so ends the reception as a success.
class Form2 : public DialogController {
    Q_OBJECT
public:
    static constexpr int Blinktakt = 1000; // ms
    static constexpr int Textlänge = 255;  // characters of the text box kept before a new line
    static constexpr int Enter = 13;

    explicit Form2(QObject* parent = nullptr);
    ~Form2() override;

    QString titel() const;
    QString abbrechenText() const;
    const QString& hinweis() const { return m_hinweis; }
    const QString& text() const { return m_text; }
    // Where the caret stands in the text: at its end less one character.
    int caret() const { return m_caret; }
    bool abbrechenAktiv() const { return m_abbrechenAktiv; }
    bool blinkt() const { return m_blinker.isActive(); }
    bool sanduhr() const { return m_sanduhr; }

    // The reception's steps.
    void wartenAnzeigen();
    void textLeeren();
    void datenKommen();
    // A buffer that holds a line end: the text box keeps its last characters and shows it behind.
    void zeilenAnzeigen(const QString& puffer);

    // What the user does.
    void abbrechen();
    void enterGedrückt();
    // A character typed into the text box; false when it is swallowed.
    bool tasteGedrückt(int zeichen);
    void aktiviert();

signals:
    // The view should come to the front.
    void raiseRequested();

private:
    void blinken();

    QTimer m_blinker;
    int m_blinkZustand = 0;
    QString m_hinweis;
    QString m_text;
    int m_caret = 0;
    bool m_abbrechenAktiv = false;
    bool m_sanduhr = false;
};

} // namespace vemo
