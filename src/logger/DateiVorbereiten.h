#pragma once

namespace vemo {

// The pre-pass of a dump that holds what the read-in tables can't take: it looks at Ruvo.ser once
// more (through its copy Ruvo.SAV), sets the data pool mode by what it finds, a logger series,
// an RCD analysis or a plain dump with its boards, and shows the data pool for it. With neu, and
// only for the 0100-Varitron, the coded dump is first rewritten in report form. A dump of none of
// these kinds says "Messdaten Kopf fehlt" and sets Abbruchmerker instead.
void DateiVorbereiten(bool neu);

} // namespace vemo
