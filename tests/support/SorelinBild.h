#pragma once

#include "core/SorelinRahmen.h"
#include "links/SorelinUebertragung.h"

#include <QByteArray>
#include <QTimer>
#include <functional>

namespace vemo::test {

// A Sorelin memory image written by hand: what the line held before, the start mark, the start
// block (type, nine characters of serial number, firmware bytes), the blocks of kind 10 given, the
// data block and the end mark.
class SorelinBild {
public:
    explicit SorelinBild(QByteArray daten) : m_daten(std::move(daten)) {}

    SorelinBild& typ(int typ) {
        m_typ = typ;
        return *this;
    }
    SorelinBild& seriennummer(const QByteArray& nummer) {
        m_seriennummer = nummer;
        return *this;
    }
    SorelinBild& firmware(const QByteArray& bytes) {
        m_firmware = bytes;
        return *this;
    }
    SorelinBild& zusatzblöcke(const QByteArray& blöcke) {
        m_zusatzblöcke = blöcke;
        return *this;
    }
    SorelinBild& vorher(const QByteArray& bytes) {
        m_vorher = bytes;
        return *this;
    }

    static QByteArray hochZuerst(int zahl) { return QByteArray(1, char(zahl >> 8)) + char(zahl & 0xFF); }

    QByteArray datenblock() const {
        return QByteArray(1, sorelin::Datenblock) + hochZuerst(1) + hochZuerst(int(m_daten.size())) + m_daten;
    }
    QByteArray bytes() const {
        const QByteArray start = hochZuerst(m_typ) + m_seriennummer + m_firmware;
        return m_vorher + sorelin::Startmarke + char(start.size()) + start + m_zusatzblöcke + datenblock() +
               sorelin::Endmarke;
    }

private:
    QByteArray m_daten;
    int m_typ = 4120;
    QByteArray m_seriennummer = "SL4120001";
    QByteArray m_firmware = QByteArray("\x01\x04", 2);
    QByteArray m_zusatzblöcke = QByteArray("\x0A\x02\x00\x01", 4);
    QByteArray m_vorher;
};

// Runs the action once the transfer listens: its port has settled and the input of that time has
// been thrown away, which the blinking prompt shows. What an instrument sends before is lost.
inline void sobaldBereit(frmSorelin& form, std::function<void()> aktion) {
    auto* uhr = new QTimer(&form);
    QObject::connect(uhr, &QTimer::timeout, &form, [uhr, &form, aktion] {
        if (!form.blinkt())
            return;
        uhr->stop();
        aktion();
    });
    uhr->start(2);
}

} // namespace vemo::test
