-- The function names that the Sorelin driver tables of data/host-sorelin-treiber.sql give, where
-- they are not already known from the other families: "LOW Ohm", "Zs", "Zs Ik", "Ri", "Ri Ik", the
-- touch voltage limits "Ub max" and "FI UL" and the RCD settings "FI Faktor", "FI Halbwelle",
-- "FI tmess mA", "FI tmess ms" stand in data/host-teilfunktion*.sql already.

-- Insulation: the setting text of the block gives the test voltage, the value the resistance.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Riso R V', 'VISO', 'V'),
  ('Riso R MOhm', 'RISO', 'MOhm');

-- RCD tests: the measured values stand before the touch voltage limit that heads the settings;
-- the settings byte itself and the kind of current have no column.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('FI t', 'FIT', 'ms'),
  ('FI Ub', 'FIUB', 'V'),
  ('FI Ia', 'FIIMESS', 'mA'),
  ('FI E, Idn', 'FIIDN', 'mA'),
  ('FI IdN', 'FIIDN', 'mA'),
  ('FI Einstellung', 'keine***', ''),
  ('FI Stromart', 'keine***', '');
