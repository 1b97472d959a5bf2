-- The function names of the command-protocol instruments ("function, mode, quantity") that the
-- general tables do not already carry, each with the column of 0100_Messung it means and the unit
-- of that column, or "keine***" where the inspection record has no place for the value. The
-- high-voltage tester's names are text blocks of the take-over and need no row here.

-- The installation tester: loop and line quantities without a column, touch voltage, earth
-- resistance, the voltage test, the time of the tripping-current test.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Z LOOP, M, R', 'keine***', 'Ohm'),
  ('Z LOOP, M, Xl', 'keine***', 'Ohm'),
  ('Z LINE, M, R', 'keine***', 'Ohm'),
  ('Z LINE, M, Xl', 'keine***', 'Ohm'),
  ('RCD t, M, Uci', 'FIUB', 'V'),
  ('RCD I, M, t', 'FIT', 'ms'),
  ('RCD I, M, Uci', 'FIUB', 'V'),
  ('R EARTH, M, Re', 'ErdRE', 'Ohm'),
  (' TEST, M, U', 'ULN', 'V');

-- The compact tester: loop and line with their short-circuit currents, the RCD tests by their
-- own names.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('R LOOP PRAVITONIX, M, R', 'LOOPRS', 'Ohm'),
  ('R LOOP PRAVITONIX, M, Ik', 'LoopIKRS', 'A'),
  ('R LINE PRAVITONIX, M, R', 'LOOPRI', 'Ohm'),
  ('R LINE PRAVITONIX, M, Ik', 'LoopIKRI', 'A'),
  ('RCD t PRAVITONIX, E, Idn', 'FIIDN', 'mA'),
  ('RCD t PRAVITONIX, E, Faktor', 'FIFaktor', ''),
  ('RCD t PRAVITONIX, M, t', 'FIT', 'ms'),
  ('RCD t PRAVITONIX, M, U', 'FIUB', 'V'),
  ('RCD I PRAVITONIX, E, Idn', 'FIIDN', 'mA'),
  ('RCD I PRAVITONIX, M, Id', 'FIIMESS', 'mA'),
  ('RCD I PRAVITONIX, M, t', 'FIT', 'ms');

-- The earth and insulation tester: earth resistance by each method, soil resistivity and clamp
-- current without a column.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('R EARTH GEORTEST, M, Re', 'ErdRE', 'Ohm'),
  ('R EARTH GEORTEST, E, Un', 'keine***', 'V'),
  ('R EARTH CLAMP 1 GEORTEST, M, Re', 'ErdRE', 'Ohm'),
  ('ro EARTH GEORTEST, M, ro', 'keine***', 'Ohmm'),
  ('R ISO GEORTEST, M, R', 'RISO', 'MOhm'),
  ('R +/-200mA GEORTEST, M, R', 'LOW', 'Ohm'),
  ('CURRENT CLAMP, M, I', 'keine***', 'A');
