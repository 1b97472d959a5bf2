#pragma once

#include <QString>
#include <optional>

namespace vemo {

class DialogController;

enum class MsgSymbol { Keins, Kritisch, Frage, Warnung, Information };
enum class MsgKnöpfe {
    Ok,
    OkAbbrechen,
    AbbrechenWiederholenIgnorieren,
    JaNeinAbbrechen,
    JaNein,
    WiederholenAbbrechen
};

// The answers of a message box, numbered as the system's constants are.
namespace antwort {
constexpr int Ok = 1;
constexpr int Abbrechen = 2;
constexpr int Abbruch = 3;
constexpr int Wiederholen = 4;
constexpr int Ignorieren = 5;
constexpr int Ja = 6;
constexpr int Nein = 7;
} // namespace antwort

struct MsgStil {
    MsgKnöpfe knöpfe = MsgKnöpfe::Ok;
    MsgSymbol symbol = MsgSymbol::Keins;
    int standardKnopf = 1; // 1 to 3, counted from the left

    // The style as one number: buttons + 16 critical / 32 question / 48 warning / 64 information
    // + 256 second / 512 third default button; 260 is Yes and No with No as default.
    static MsgStil ausZahl(int stil);
    // The answers of the buttons, left to right.
    QList<int> antworten() const;
};

struct DateiDialog {
    QString titel;
    QString filter; // "label|pattern"
    QString startverzeichnis;
    QString standardEndung;
};

// The window services the logic needs, so that it never touches a widget itself.
class Ui {
public:
    virtual ~Ui() = default;

    virtual int MsgBox(const QString& text, const QString& titel, const MsgStil& stil = {}) = 0;
    // A path, or nothing when the user cancels.
    virtual std::optional<QString> dateiÖffnen(const DateiDialog& dialog) = 0;
    virtual void sanduhr(bool an) = 0;
    // Lets pending events run, so that buttons and timers act during a long wait.
    virtual void DoEvents() = 0;
    // Shows a dialog and returns when it has been closed.
    virtual int zeigeModal(DialogController& dialog) = 0;
    // Shows a dialog and returns at once; it goes when the controller closes.
    virtual void zeigeNichtModal(DialogController& dialog) = 0;
    // The width of a text in the component's scale of measurement.
    virtual int textBreite(const QString& text) = 0;
};

} // namespace vemo
