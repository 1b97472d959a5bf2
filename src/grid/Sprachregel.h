#pragma once

namespace vemo {

// True when the language is exactly "English (United Kingdom)": the grid and the take-over then
// follow the rules of the UK certificate.
bool englischUK();

} // namespace vemo
