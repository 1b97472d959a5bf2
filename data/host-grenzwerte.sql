-- Limits a measurement starts from. Limits are text with their comparison sign in front.

-- The standard row: same columns, same order as 0100_Grenzwert; values are copied by position.
INSERT INTO "0100_GrenzwertStandard" VALUES
  (1, '>1', '<1', '', '', '', '', '<50', '', '<100', '', '<300', 'x', 'x', 'x', 'x', '', NULL);

-- Insulation resistance in MOhm by test voltage in V.
INSERT INTO "0100_GrenzwertISO" VALUES
  ('50', '>0,25'), ('100', '>0,25'), ('250', '>0,5'), ('500', '>1'), ('1000', '>1');

-- RCD trip times in ms by test current factor; Selektive -1 for selective (time-delayed) devices.
-- At half the rated current a device must not trip at all within the time given.
INSERT INTO "0100_GrenzwertRCD" (Faktor, Selektive, "FIT MIN", "FIT MAX") VALUES
  (0.5, 0, '>300', ''), (0.5, -1, '>500', ''),
  (1, 0, '', '<300'), (1, -1, '>130', '<500'),
  (2, 0, '', '<150'), (2, -1, '>60', '<200'),
  (5, 0, '', '<40'), (5, -1, '>50', '<150');
