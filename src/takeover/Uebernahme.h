#pragma once

namespace vemo {

class EinleseDatenController;

// The button Übernehmen: every read-in row that is assigned far enough finds or creates its plant,
// inspection, board and circuit, has its values mapped beside their limits, enters its instrument
// in the inspection, and leaves the read-in table. Rows that are not far enough assigned stay in the
// grid. Each row's records are committed as they are made: a run broken off can be started again.
void Übernehmen(EinleseDatenController& form);

} // namespace vemo
