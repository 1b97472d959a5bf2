#pragma once

namespace vemo {

// The links poll the port between turns of the event loop, so that the dialog's buttons and
// timers act during a reception. A poll that found nothing rests a moment, so as not to burn a
// core.
void ruhen();

// Lets events run for so many milliseconds, as while a port settles.
void wartenMitEreignissen(int ms);

} // namespace vemo
