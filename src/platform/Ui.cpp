#include "platform/Ui.h"

#include <QList>

namespace vemo {

MsgStil MsgStil::ausZahl(int stil) {
    MsgStil s;
    s.knöpfe = static_cast<MsgKnöpfe>(std::clamp(stil & 0x7, 0, 5));
    switch (stil & 0x70) {
    case 16:
        s.symbol = MsgSymbol::Kritisch;
        break;
    case 32:
        s.symbol = MsgSymbol::Frage;
        break;
    case 48:
        s.symbol = MsgSymbol::Warnung;
        break;
    case 64:
        s.symbol = MsgSymbol::Information;
        break;
    default:
        break;
    }
    s.standardKnopf = 1 + ((stil & 0x300) >> 8);
    return s;
}

QList<int> MsgStil::antworten() const {
    using namespace antwort;
    switch (knöpfe) {
    case MsgKnöpfe::Ok:
        return {Ok};
    case MsgKnöpfe::OkAbbrechen:
        return {Ok, Abbrechen};
    case MsgKnöpfe::AbbrechenWiederholenIgnorieren:
        return {Abbruch, Wiederholen, Ignorieren};
    case MsgKnöpfe::JaNeinAbbrechen:
        return {Ja, Nein, Abbrechen};
    case MsgKnöpfe::JaNein:
        return {Ja, Nein};
    case MsgKnöpfe::WiederholenAbbrechen:
        return {Wiederholen, Abbrechen};
    }
    return {Ok};
}

} // namespace vemo
