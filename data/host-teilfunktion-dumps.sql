-- The function names that the text dumps of the Multitester family give (report format and table
-- format), each with the column of 0100_Messung it means and the unit of that column, or
-- "mitCase***" where a handler of the take-over deals with the name and the rows that follow it.
-- The unit of a handled name is the one its handler converts to; an empty unit leaves values as they
-- come, as for the table format's loop lines, which carry resistance and current under one name.

-- Report format: insulation with its test voltage, continuity, voltage, frequency, earth.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Riso V', 'VISO', 'V'),
  ('Riso MOhm', 'RISO', 'MOhm'),
  ('LOW Ohm', 'LOW', 'Ohm'),
  ('U', 'ULN', 'V'),
  ('U f', 'Frequenz', 'Hz'),
  ('Re', 'ErdRE', 'Ohm'),
  ('Drehfeld', 'mitCase***', '');

-- Report format: loop impedance and internal resistance, each followed by its short-circuit current.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('Zs', 'mitCase***', 'Ohm'),
  ('Zs Ik', 'LoopIKRS', 'A'),
  ('Ri', 'mitCase***', 'Ohm'),
  ('Ri Ik', 'LoopIKRI', 'A');

-- Report format: RCD tests. The first row names the test and holds the phase; rated current,
-- factor, tripping current, time and touch voltage follow.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('tFI', 'mitCase***', ''),
  ('tFI S', 'mitCase***', ''),
  ('tFI mA', 'FIIDN', 'mA'),
  ('tFI t', 'FIT', 'ms'),
  ('tFI Ub', 'FIUB', 'V'),
  ('IdFI', 'mitCase***', ''),
  ('IdFI S', 'mitCase***', ''),
  ('IdFI mA', 'FIIDN', 'mA'),
  ('IdFI Id', 'FIIMESS', 'mA'),
  ('IdFI t', 'FIT', 'ms'),
  ('IdFI Ub', 'FIUB', 'V'),
  ('UbFI mA', 'mitCase***', 'mA'),
  ('UbFI S mA', 'mitCase***', 'mA'),
  ('UbFI', 'FIFaktor', ''),
  ('UbFI Ub', 'FIUB', 'V'),
  ('UbFI Re', 'FIRE', 'Ohm');

-- Table format: the key words of its lines.
INSERT OR IGNORE INTO "0100_TeilFunktion" (TeilFunktion, spaltenname, Einheit) VALUES
  ('ZS', 'mitCase***', ''),
  ('RS', 'mitCase***', ''),
  ('RI', 'mitCase***', ''),
  ('V', 'ULN', 'V'),
  ('T0', 'mitCase***', 'mA'),
  ('T180', 'mitCase***', 'mA'),
  ('Ub', 'mitCase***', 'V');
