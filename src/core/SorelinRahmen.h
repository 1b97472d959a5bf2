#pragma once

#include <QByteArray>

namespace vemo::sorelin {

// The framing of a Sorelin memory image, as the instrument sends it when its send key is pressed:
// whatever the line held before, the start mark, a start block of its own length, optional blocks of
// kind 10, the data block of kind 30 with its length, and the end mark.
inline const QByteArray Startmarke("\xFF\xD5\xD5\xD5", 4);
inline const QByteArray Endmarke("\xFF\xAA\xAA\xAA", 4);
constexpr char Zusatzblock = 10;
constexpr char Datenblock = 30;
// Kind byte, two bytes of its own, the length of the data as two bytes, high byte first.
constexpr int DatenblockKopf = 5;

} // namespace vemo::sorelin
