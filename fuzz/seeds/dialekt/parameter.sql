PARAMETERS paraKundeID Long;
SELECT [0100_Anlage].Code, [0100_Anlage].Nr, [0100_Anlage].Name FROM [0100_Anlage]
WHERE ((([0100_Anlage].KundeID)=[paraKundeID])) ORDER BY [0100_Anlage].Code;