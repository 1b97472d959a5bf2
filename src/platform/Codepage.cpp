#include "platform/Codepage.h"

#include <array>

namespace vemo {
namespace {

// 0x80 to 0x9F of the Western code page; the rest equals Latin-1. 0 marks an unassigned byte,
// which maps to itself.
constexpr std::array<char16_t, 32> Zeichen80bis9F{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

} // namespace

QString ausAnsi(const QByteArray& bytes) {
    QString s;
    s.reserve(bytes.size());
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b >= 0x80 && b <= 0x9F && Zeichen80bis9F[b - 0x80] != 0)
            s += QChar(Zeichen80bis9F[b - 0x80]);
        else
            s += QChar(b);
    }
    return s;
}

QByteArray nachAnsi(const QString& text) {
    QByteArray b;
    b.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
            b += char(u);
            continue;
        }
        char ersatz = '?';
        for (size_t i = 0; i < Zeichen80bis9F.size(); ++i)
            if (Zeichen80bis9F[i] == u || (Zeichen80bis9F[i] == 0 && u == 0x80 + i))
                ersatz = char(0x80 + i);
        b += ersatz;
    }
    return b;
}

} // namespace vemo
