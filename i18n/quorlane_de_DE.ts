<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>CellPane</name>
    <message>
        <source>Cell</source>
        <translation>Zelle</translation>
    </message>
    <message>
        <source>No cell is current.</source>
        <translation>Keine Zelle ist ausgewählt.</translation>
    </message>
    <message>
        <source>%1, observation %2</source>
        <translation>%1, Beobachtung %2</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>Der Text ist leer.</translation>
    </message>
</context>
<context>
    <name>CellText</name>
    <message>
        <source>Character</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Numeric</source>
        <translation>Numerisch</translation>
    </message>
    <message>
        <source>Stored value: %1</source>
        <translation>Gespeicherter Wert: %1</translation>
    </message>
</context>
<context>
    <name>CheckBoxHeader</name>
    <message>
        <source>Show all variables</source>
        <translation>Alle Variablen zeigen</translation>
    </message>
</context>
<context>
    <name>ChooseDatasetsDialog</name>
    <message>
        <source>Open Datasets</source>
        <translation>Datasets öffnen</translation>
    </message>
    <message>
        <source>%1 holds several &amp;datasets. Which are to be opened?</source>
        <translation>%1 enthält mehrere &amp;Datasets. Welche sollen geöffnet werden?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CodeWindow</name>
    <message>
        <source>SAS Programs (*.sas);; All Files (*)</source>
        <translation>SAS-Programme (*.sas);; Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Nothing has been run. Line %1: %2</source>
        <translation>Nichts wurde ausgeführt. Zeile %1: %2</translation>
    </message>
    <message>
        <source>Run on %1. Statements passed over: %2</source>
        <translation>Ausgeführt auf %1. Übergangene Anweisungen: %2</translation>
    </message>
    <message>
        <source>Run on %1.</source>
        <translation>Ausgeführt auf %1.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
    <message>
        <source>Open SAS Program</source>
        <translation>SAS-Programm öffnen</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Save SAS Program</source>
        <translation>SAS-Programm speichern</translation>
    </message>
    <message>
        <source>The program %1 is not saved.
Do you want to save it?</source>
        <translation>Das Programm %1 ist nicht gespeichert.
Möchten Sie es speichern?</translation>
    </message>
</context>
<context>
    <name>CommandBoxes</name>
    <message>
        <source>Dataset Filter</source>
        <translation>Dataset-Filter</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>Bibliotheksfilter</translation>
    </message>
    <message>
        <source>By Variables</source>
        <translation>BY-Variablen</translation>
    </message>
</context>
<context>
    <name>CommandFailure</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
</context>
<context>
    <name>CompareDialog</name>
    <message>
        <source>ID variables</source>
        <translation>ID-Variablen</translation>
    </message>
    <message>
        <source>by position</source>
        <translation>nach Position</translation>
    </message>
    <message>
        <source>&amp;Propose</source>
        <translation>&amp;Vorschlagen</translation>
    </message>
    <message>
        <source>Variables to compare</source>
        <translation>Zu vergleichende Variablen</translation>
    </message>
    <message>
        <source>all common variables</source>
        <translation>alle gemeinsamen Variablen</translation>
    </message>
    <message>
        <source>Compare Datasets</source>
        <translation>Datasets vergleichen</translation>
    </message>
    <message>
        <source>The key variables of the file, or study, subject, sequence number and so on, as many as it takes</source>
        <translation>Die Schlüsselvariablen der Datei, sonst Studie, Person, laufende Nummer und so weiter, so viele wie nötig</translation>
    </message>
    <message>
        <source>Open File...</source>
        <translation>Datei öffnen...</translation>
    </message>
    <message>
        <source>&amp;Base:</source>
        <translation>&amp;Basis:</translation>
    </message>
    <message>
        <source>&amp;Compare:</source>
        <translation>&amp;Vergleich:</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>&amp;Tauschen</translation>
    </message>
    <message>
        <source>ID Variables</source>
        <translation>ID-Variablen</translation>
    </message>
    <message>
        <source>Variables to Compare</source>
        <translation>Zu vergleichende Variablen</translation>
    </message>
    <message>
        <source>NAME=OTHER compares variables of different names.</source>
        <translation>NAME=ANDERER vergleicht Variablen mit verschiedenen Namen.</translation>
    </message>
    <message>
        <source>&amp;SAS Program</source>
        <translation>&amp;SAS-Programm</translation>
    </message>
    <message>
        <source>Write the program that makes this comparison in SAS</source>
        <translation>Das Programm schreiben, das diesen Vergleich in SAS macht</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Choose two datasets, open ones or files.</source>
        <translation>Zwei Datasets wählen, offene oder Dateien.</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>Observations x variables: %1 and %2; variables in common: %3</source>
        <translation>Beobachtungen x Variablen: %1 und %2; gemeinsame Variablen: %3</translation>
    </message>
    <message>
        <source>Observations are matched by their position.</source>
        <translation>Beobachtungen werden nach ihrer Position zugeordnet.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Each observation has ID values of its own.</source>
        <translation>Jede Beobachtung hat eigene ID-Werte.</translation>
    </message>
    <message>
        <source>Observations that repeat ID values: %1; they are paired in their order.</source>
        <translation>Beobachtungen, die ID-Werte wiederholen: %1; sie werden in ihrer Reihenfolge zugeordnet.</translation>
    </message>
</context>
<context>
    <name>CompareOptionsPanel</name>
    <message>
        <source>What Is Equal</source>
        <translation>Was gleich ist</translation>
    </message>
    <message>
        <source>Larger differences are unequal; a negative number counts machine epsilons, -1000 means equal up to rounding</source>
        <translation>Größere Differenzen sind ungleich; eine negative Zahl zählt Maschinengenauigkeiten, -1000 heißt gleich bis auf Rundung</translation>
    </message>
    <message>
        <source>0 to 1; keeps differences of numbers near 0 from counting</source>
        <translation>0 bis 1; damit Differenzen von Zahlen nahe 0 nicht zählen</translation>
    </message>
    <message>
        <source>Criteria of single variables: VARIABLE=NUMBER, with a method of its own VARIABLE=NUMBER:METHOD</source>
        <translation>Kriterien einzelner Variablen: VARIABLE=ZAHL, mit eigener Methode VARIABLE=ZAHL:METHODE</translation>
    </message>
    <message>
        <source>&amp;Method:</source>
        <translation>&amp;Methode:</translation>
    </message>
    <message>
        <source>C&amp;riterion:</source>
        <translation>K&amp;riterium:</translation>
    </message>
    <message>
        <source>De&amp;lta:</source>
        <translation>De&amp;lta:</translation>
    </message>
    <message>
        <source>Cri&amp;teria of variables:</source>
        <translation>Kriterien von Varia&amp;blen:</translation>
    </message>
    <message>
        <source>Missing in base equals all (NOMISSBASE)</source>
        <translation>Fehlend in Basis gleicht allem (NOMISSBASE)</translation>
    </message>
    <message>
        <source>Missing in compare equals all (NOMISSCOMP)</source>
        <translation>Fehlend in Vergleich gleicht allem (NOMISSCOMP)</translation>
    </message>
    <message>
        <source>Filters and hidden variables count</source>
        <translation>Filter und verborgene Variablen zählen</translation>
    </message>
    <message>
        <source>Compare only the observations and variables that the grids show at the moment</source>
        <translation>Nur die Beobachtungen und Variablen vergleichen, die die Tabellen gerade zeigen</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Variables of one side</source>
        <translation>Variablen nur einer Seite</translation>
    </message>
    <message>
        <source>Observations of one side</source>
        <translation>Beobachtungen nur einer Seite</translation>
    </message>
    <message>
        <source>Variables with equal values</source>
        <translation>Variablen mit gleichen Werten</translation>
    </message>
    <message>
        <source>Brief summary</source>
        <translation>Kurze Übersicht</translation>
    </message>
    <message>
        <source>Values by observation</source>
        <translation>Werte nach Beobachtung</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiken</translation>
    </message>
    <message>
        <source>in total:</source>
        <translation>insgesamt:</translation>
    </message>
    <message>
        <source>of texts:</source>
        <translation>der Texte:</translation>
    </message>
    <message>
        <source>Smaller values are printed as 0, smaller differences not at all</source>
        <translation>Kleinere Werte werden als 0 gedruckt, kleinere Differenzen gar nicht</translation>
    </message>
    <message>
        <source>Differences per variable:</source>
        <translation>Differenzen je Variable:</translation>
    </message>
    <message>
        <source>Width of lines:</source>
        <translation>Breite der Zeilen:</translation>
    </message>
    <message>
        <source>F&amp;uzz:</source>
        <translation>F&amp;uzz:</translation>
    </message>
</context>
<context>
    <name>Comparisons</name>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>All compared values of %1 and %2 are equal</source>
        <translation>Alle verglichenen Werte von %1 und %2 sind gleich</translation>
    </message>
    <message>
        <source>%1 has been read anew since it was compared</source>
        <translation>%1 wurde nach dem Vergleich neu gelesen</translation>
    </message>
    <message>
        <source>Save Differences</source>
        <translation>Unterschiede speichern</translation>
    </message>
    <message>
        <source>Tab-Separated Text (*.txt *.tsv);;CSV Files (*.csv);;JSON Files (*.json)</source>
        <translation>Text mit Tabulatoren (*.txt *.tsv);;CSV-Dateien (*.csv);;JSON-Dateien (*.json)</translation>
    </message>
    <message>
        <source>Failed to save the file: %1</source>
        <translation>Die Datei konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>%1 is no longer open</source>
        <translation>%1 ist nicht mehr offen</translation>
    </message>
</context>
<context>
    <name>DataFilterDialog</name>
    <message>
        <source>Data Filter</source>
        <translation>Datenfilter</translation>
    </message>
    <message>
        <source>Show the rows &amp;where:</source>
        <translation>Nur &amp;Zeilen zeigen, für die gilt:</translation>
    </message>
    <message>
        <source>AGE &gt; 60 and SEX = &quot;F&quot;</source>
        <translation>AGE &gt; 60 and SEX = &quot;F&quot;</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DatasetContents</name>
    <message>
        <source>Data Set</source>
        <translation>Dataset</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>Name des Datasets</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Member Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Observations</source>
        <translation>Beobachtungen</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Key Variables</source>
        <translation>Schlüsselvariablen</translation>
    </message>
    <message>
        <source>Observation Length</source>
        <translation>Länge einer Beobachtung</translation>
    </message>
    <message>
        <source>Deleted Observations</source>
        <translation>Gelöschte Beobachtungen</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Last Modified</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>Engine and File</source>
        <translation>Format und Datei</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>File Size (bytes)</source>
        <translation>Dateigröße (Bytes)</translation>
    </message>
    <message>
        <source>File Last Modified</source>
        <translation>Datei zuletzt geändert</translation>
    </message>
    <message>
        <source>Format Version</source>
        <translation>Version des Formats</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Zeichensatz</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Komprimiert</translation>
    </message>
    <message>
        <source>Byte Order</source>
        <translation>Bytefolge</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Aufbau</translation>
    </message>
    <message>
        <source>Data Set Page Size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Number of Data Set Pages</source>
        <translation>Anzahl der Seiten</translation>
    </message>
    <message>
        <source>Release Created</source>
        <translation>Erstellt mit Version</translation>
    </message>
    <message>
        <source>Host Created</source>
        <translation>Erstellt auf</translation>
    </message>
    <message>
        <source>Further Attributes</source>
        <translation>Weitere Angaben</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>May Be Damaged</source>
        <translation>Vielleicht beschädigt</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Len</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Informat</source>
        <translation>Informat</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
</context>
<context>
    <name>DatasetOpener</name>
    <message>
        <source>&quot;%1&quot; is already open.
Do you want to reload it?</source>
        <translation>„%1“ ist bereits geöffnet.
Möchten Sie das Dataset neu laden?</translation>
    </message>
    <message>
        <source>Reload Dataset</source>
        <translation>Dataset neu laden</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Failed to open dataset &apos;%1&apos; in %2.</source>
        <translation>Das Dataset &apos;%1&apos; in %2 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The filter could not be kept: %1</source>
        <translation>Der Filter konnte nicht beibehalten werden: %1</translation>
    </message>
    <message>
        <source>Open R Data</source>
        <translation>R-Daten öffnen</translation>
    </message>
    <message>
        <source>Join SUPP--</source>
        <translation>SUPP-- anfügen</translation>
    </message>
    <message>
        <source>Failed to join %1</source>
        <translation>%1 konnten nicht zusammengefügt werden</translation>
    </message>
</context>
<context>
    <name>DatasetPropertiesDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Dataset</translation>
    </message>
    <message>
        <source>Name or label</source>
        <translation>Name oder Bezeichnung</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Save Properties</source>
        <translation>Eigenschaften speichern</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;CSV Files (*.csv)</source>
        <translation>Textdateien (*.txt);;CSV-Dateien (*.csv)</translation>
    </message>
</context>
<context>
    <name>DatasetWindow</name>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>%1 - %2 - Quorlane</source>
        <translation>%1 – %2 – Quorlane</translation>
    </message>
    <message>
        <source>%1 (in %2)</source>
        <translation>%1 (in %2)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>changed on disk</source>
        <translation>auf dem Datenträger geändert</translation>
    </message>
    <message>
        <source>gone from disk</source>
        <translation>nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>The file has changed since it was read; what is shown here is what it held before.</source>
        <translation>Die Datei hat sich geändert, seit sie gelesen wurde; hier ist zu sehen, was sie vorher enthielt.</translation>
    </message>
    <message>
        <source>The file is no longer there; what is shown here is what it held.</source>
        <translation>Die Datei ist nicht mehr vorhanden; hier ist zu sehen, was sie enthielt.</translation>
    </message>
    <message>
        <source>Rows of SUPP-- datasets that match no observation: %1. Rows whose value conflicts with another one: %2.</source>
        <translation>Zeilen von SUPP---Datasets, die zu keiner Beobachtung passen: %1. Zeilen, deren Wert einem anderen widerspricht: %2.</translation>
    </message>
    <message>
        <source>Show List</source>
        <translation>Liste zeigen</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>Base</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Diff.</source>
        <translation>Diff.</translation>
    </message>
    <message>
        <source>% Diff</source>
        <translation>% Diff</translation>
    </message>
    <message>
        <source>Only in base</source>
        <translation>Nur in der Basis</translation>
    </message>
    <message>
        <source>Only in compare</source>
        <translation>Nur im Vergleich</translation>
    </message>
    <message>
        <source>Base: %1</source>
        <translation>Basis: %1</translation>
    </message>
    <message>
        <source>Compare: %1</source>
        <translation>Vergleich: %1</translation>
    </message>
    <message>
        <source>Difference: %1</source>
        <translation>Differenz: %1</translation>
    </message>
    <message>
        <source>Difference: %1 (%2 %)</source>
        <translation>Differenz: %1 (%2 %)</translation>
    </message>
    <message>
        <source>%1, differs</source>
        <translation>%1, weicht ab</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Obs</source>
        <translation>Beob.</translation>
    </message>
    <message>
        <source>The number of the observation</source>
        <translation>Die Nummer der Beobachtung</translation>
    </message>
    <message>
        <source>Unequal values: %L1</source>
        <translation>Ungleiche Werte: %L1</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Next Difference	F8</source>
        <translation>Nächster Unterschied	F8</translation>
    </message>
    <message>
        <source>Previous Difference	Shift+F8</source>
        <translation>Voriger Unterschied	Shift+F8</translation>
    </message>
    <message>
        <source>Go to the Datasets	Return</source>
        <translation>Zu den Datasets gehen	Return</translation>
    </message>
    <message>
        <source>Hide Variable	H</source>
        <translation>Variable ausblenden	H</translation>
    </message>
    <message>
        <source>Unhide Variables	U</source>
        <translation>Variablen einblenden	U</translation>
    </message>
    <message>
        <source>Copy	Ctrl+C</source>
        <translation>Kopieren	Ctrl+C</translation>
    </message>
    <message>
        <source>The variables that are shown have no differences.
U shows the hidden ones.</source>
        <translation>Die gezeigten Variablen weisen keine Unterschiede auf.
U zeigt die ausgeblendeten.</translation>
    </message>
    <message>
        <source>There are no differences: all compared values are equal,
and no observation is in one dataset only.</source>
        <translation>Es gibt keine Unterschiede: Alle verglichenen Werte sind gleich,
und keine Beobachtung steht nur in einem der Datasets.</translation>
    </message>
</context>
<context>
    <name>DifferenceWindow</name>
    <message>
        <source>Dataset labels differ</source>
        <translation>Die Labels der Datasets sind verschieden</translation>
    </message>
    <message>
        <source>Dataset types differ</source>
        <translation>Die Typen der Datasets sind verschieden</translation>
    </message>
    <message>
        <source>Informats differ</source>
        <translation>Informate sind verschieden</translation>
    </message>
    <message>
        <source>Formats differ</source>
        <translation>Formate sind verschieden</translation>
    </message>
    <message>
        <source>Lengths differ</source>
        <translation>Längen sind verschieden</translation>
    </message>
    <message>
        <source>Labels differ</source>
        <translation>Labels sind verschieden</translation>
    </message>
    <message>
        <source>Observations are only in base</source>
        <translation>Beobachtungen stehen nur in der Basis</translation>
    </message>
    <message>
        <source>Observations are only in compare</source>
        <translation>Beobachtungen stehen nur im Vergleich</translation>
    </message>
    <message>
        <source>Variables are only in base</source>
        <translation>Variablen stehen nur in der Basis</translation>
    </message>
    <message>
        <source>Variables are only in compare</source>
        <translation>Variablen stehen nur im Vergleich</translation>
    </message>
    <message>
        <source>Values are unequal</source>
        <translation>Werte sind ungleich</translation>
    </message>
    <message>
        <source>Types of variables conflict</source>
        <translation>Typen von Variablen widersprechen sich</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Only differing &amp;variables</source>
        <translation>Nur abweichende &amp;Variablen</translation>
    </message>
    <message>
        <source>Only differing &amp;observations</source>
        <translation>Nur abweichende &amp;Beobachtungen</translation>
    </message>
    <message>
        <source>&amp;Percent</source>
        <translation>&amp;Prozent</translation>
    </message>
    <message>
        <source>Compare %1 with %2</source>
        <translation>%1 mit %2 vergleichen</translation>
    </message>
    <message>
        <source>Base: %1 (observations: %L2)</source>
        <translation>Basis: %1 (Beobachtungen: %L2)</translation>
    </message>
    <message>
        <source>Compare: %1 (observations: %L2)</source>
        <translation>Vergleich: %1 (Beobachtungen: %L2)</translation>
    </message>
    <message>
        <source>Method: %1</source>
        <translation>Methode: %1</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>SYSINFO: %1</source>
        <translation>SYSINFO: %1</translation>
    </message>
    <message>
        <source>Show differences in percent of the base, too</source>
        <translation>Unterschiede auch in Prozent der Basis zeigen</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Voriger</translation>
    </message>
    <message>
        <source>Previous difference (%1 or %2)</source>
        <translation>Voriger Unterschied (%1 oder %2)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Next difference (%1 or %2)</source>
        <translation>Nächster Unterschied (%1 oder %2)</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>Save all differences as a table</source>
        <translation>Alle Unterschiede als Tabelle speichern</translation>
    </message>
    <message>
        <source>Difference %L1 of %L2</source>
        <translation>Unterschied %L1 von %L2</translation>
    </message>
    <message>
        <source>Differences: %L1</source>
        <translation>Unterschiede: %L1</translation>
    </message>
    <message>
        <source>Hidden variables: %1</source>
        <translation>Ausgeblendete Variablen: %1</translation>
    </message>
    <message>
        <source>Went on from the first difference</source>
        <translation>Beim ersten Unterschied fortgesetzt</translation>
    </message>
    <message>
        <source>Went on from the last difference</source>
        <translation>Beim letzten Unterschied fortgesetzt</translation>
    </message>
    <message>
        <source>Scroll &amp;together</source>
        <translation>Gemeinsam &amp;blättern</translation>
    </message>
    <message>
        <source>Going to a row of one dataset goes to its partner in the other</source>
        <translation>Wer zu einer Zeile des einen Datasets geht, findet sich im anderen bei der zugehörigen</translation>
    </message>
</context>
<context>
    <name>DistributionChart</name>
    <message>
        <source>Distribution</source>
        <translation>Verteilung</translation>
    </message>
    <message>
        <source>The first %1 of %2 groups.</source>
        <translation>Die ersten %1 von %2 Gruppen.</translation>
    </message>
    <message>
        <source>Missing, not drawn: %1</source>
        <translation>Fehlend, nicht gezeichnet: %1</translation>
    </message>
    <message>
        <source>%1: minimum %2, quartiles %3 and %5, median %4, maximum %6</source>
        <translation>%1: Minimum %2, Quartile %3 und %5, Median %4, Maximum %6</translation>
    </message>
    <message>
        <source>From %1 to below %2: %3</source>
        <translation>Von %1 bis unter %2: %3</translation>
    </message>
</context>
<context>
    <name>DockWindows</name>
    <message>
        <source>Workspace</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeiten</translation>
    </message>
    <message>
        <source>Univariate</source>
        <translation>Univariat</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Variable - %1</source>
        <translation>Variablen - %1</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Häufigkeiten</translation>
    </message>
    <message>
        <source>Freq - %1</source>
        <translation>Häufigkeiten - %1</translation>
    </message>
    <message>
        <source>Univariate - %1</source>
        <translation>Univariat - %1</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Zelle</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>… or drop files here</source>
        <translation>… oder Dateien hier ablegen</translation>
    </message>
    <message>
        <source>Quorlane</source>
        <translation>Quorlane</translation>
    </message>
    <message>
        <source>No dataset is open. Choose what to open:</source>
        <translation>Es ist kein Dataset geöffnet. Was soll geöffnet werden?</translation>
    </message>
    <message>
        <source>Opened recently</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>%1 (in %2)</source>
        <translation>%1 (in %2)</translation>
    </message>
</context>
<context>
    <name>EngineMessages</name>
    <message>
        <source>unknown command</source>
        <translation>unbekannter Befehl</translation>
    </message>
    <message>
        <source>command must start with identifier</source>
        <translation>ein Befehl muss mit einem Wort beginnen</translation>
    </message>
    <message>
        <source>table needs variable(s)</source>
        <translation>table braucht Variablen</translation>
    </message>
    <message>
        <source>clear must follow library|dataset</source>
        <translation>auf clear muss library oder dataset folgen</translation>
    </message>
    <message>
        <source>expect &apos;filter&apos;</source>
        <translation>&apos;filter&apos; erwartet</translation>
    </message>
    <message>
        <source>expect variable name</source>
        <translation>Variablenname erwartet</translation>
    </message>
    <message>
        <source>expect variable</source>
        <translation>Variable erwartet</translation>
    </message>
    <message>
        <source>expect &apos;)&apos;</source>
        <translation>&apos;)&apos; erwartet</translation>
    </message>
    <message>
        <source>expect &apos;,&apos;</source>
        <translation>&apos;,&apos; erwartet</translation>
    </message>
    <message>
        <source>expect &apos;(&apos; after in</source>
        <translation>&apos;(&apos; nach in erwartet</translation>
    </message>
    <message>
        <source>expect variable name or a function</source>
        <translation>Variablenname oder Funktion erwartet</translation>
    </message>
    <message>
        <source>expect string literal</source>
        <translation>Text in Anführungszeichen erwartet</translation>
    </message>
    <message>
        <source>expect operator</source>
        <translation>Operator erwartet</translation>
    </message>
    <message>
        <source>expect value</source>
        <translation>Wert erwartet</translation>
    </message>
    <message>
        <source>expect null</source>
        <translation>null erwartet</translation>
    </message>
    <message>
        <source>too many parentheses</source>
        <translation>zu viele Klammern</translation>
    </message>
    <message>
        <source>unexpected trailing text</source>
        <translation>unerwarteter Text am Ende</translation>
    </message>
    <message>
        <source>unknown character in input</source>
        <translation>unbekanntes Zeichen in der Eingabe</translation>
    </message>
    <message>
        <source>unterminated string literal</source>
        <translation>Text ohne schließendes Anführungszeichen</translation>
    </message>
    <message>
        <source>The variable types do not match.</source>
        <translation>Die Typen der Variablen passen nicht zueinander.</translation>
    </message>
    <message>
        <source>There is no variable named %1</source>
        <translation>Es gibt keine Variable namens %1</translation>
    </message>
    <message>
        <source>The number %1 is out of range</source>
        <translation>Die Zahl %1 liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>%1 is not a valid date</source>
        <translation>%1 ist kein gültiges Datum</translation>
    </message>
    <message>
        <source>%1 is not a valid time</source>
        <translation>%1 ist keine gültige Uhrzeit</translation>
    </message>
    <message>
        <source>%1 is not a valid date-time</source>
        <translation>%1 ist kein gültiger Zeitpunkt</translation>
    </message>
    <message>
        <source>%1 does not count days or seconds and cannot be compared with a date or time</source>
        <translation>%1 zählt weder Tage noch Sekunden und kann nicht mit einem Datum oder einer Uhrzeit verglichen werden</translation>
    </message>
    <message>
        <source>This is no such filter: %1</source>
        <translation>Das ist kein solcher Filter: %1</translation>
    </message>
    <message>
        <source>Library Filter supports one level only. Please clear library filter first.</source>
        <translation>Der Bibliotheksfilter hat nur eine Stufe. Bitte zuerst den Bibliotheksfilter aufheben.</translation>
    </message>
    <message>
        <source>No dataset is open that this could act on.</source>
        <translation>Es ist kein Dataset geöffnet, auf das dies wirken könnte.</translation>
    </message>
    <message>
        <source>A text with both kinds of quotes cannot be written in a filter: %1</source>
        <translation>Ein Text mit beiden Arten von Anführungszeichen kann in keinem Filter stehen: %1</translation>
    </message>
    <message>
        <source>A text with invalid characters cannot be written in a filter</source>
        <translation>Ein Text mit ungültigen Zeichen kann in keinem Filter stehen</translation>
    </message>
    <message>
        <source>There is no value to filter by</source>
        <translation>Es gibt keinen Wert, nach dem gefiltert werden könnte</translation>
    </message>
    <message>
        <source>%1 holds numbers, which contain no text</source>
        <translation>%1 enthält Zahlen, in denen kein Text vorkommt</translation>
    </message>
    <message>
        <source>The variable %1 cannot be filtered: its name is more than letters, digits and _</source>
        <translation>Die Variable %1 kann nicht gefiltert werden: Ihr Name besteht nicht nur aus Buchstaben, Ziffern und _</translation>
    </message>
    <message>
        <source>An infinite number cannot be written in a filter</source>
        <translation>Eine unendliche Zahl kann in keinem Filter stehen</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Its suffix belongs to no kind of data file that can be opened</source>
        <translation>Ihre Endung gehört zu keiner Art von Datendatei, die geöffnet werden kann</translation>
    </message>
    <message>
        <source>A file of this kind holds one dataset only; it has none named %1</source>
        <translation>Eine Datei dieser Art enthält nur ein Dataset; sie hat keines namens %1</translation>
    </message>
    <message>
        <source>There is not enough memory to hold it</source>
        <translation>Der Arbeitsspeicher reicht für sie nicht aus</translation>
    </message>
    <message>
        <source>Its header promises %1 observations, but it is too short to hold them</source>
        <translation>Ihr Kopf verspricht %1 Beobachtungen, doch dafür ist sie zu kurz</translation>
    </message>
    <message>
        <source>It has %1 observations; at most %2 can be shown</source>
        <translation>Sie hat %1 Beobachtungen; höchstens %2 können gezeigt werden</translation>
    </message>
    <message>
        <source>The counts in its header are damaged</source>
        <translation>Die Anzahlen in ihrem Kopf sind beschädigt</translation>
    </message>
    <message>
        <source>It describes more variables than its header counts</source>
        <translation>Sie beschreibt mehr Variablen, als ihr Kopf zählt</translation>
    </message>
    <message>
        <source>Its header is damaged</source>
        <translation>Ihr Kopf ist beschädigt</translation>
    </message>
    <message>
        <source>Its long strings are damaged</source>
        <translation>Ihre langen Texte sind beschädigt</translation>
    </message>
    <message>
        <source>Its header names an unknown compression (%1); it was read as uncompressed</source>
        <translation>Ihr Kopf nennt eine unbekannte Komprimierung (%1); sie wurde als unkomprimiert gelesen</translation>
    </message>
    <message>
        <source>It is no SAS transport file</source>
        <translation>Sie ist keine SAS-Transportdatei</translation>
    </message>
    <message>
        <source>It holds no data set</source>
        <translation>Sie enthält kein Dataset</translation>
    </message>
    <message>
        <source>It has no data set named %1; it has %2</source>
        <translation>Sie enthält kein Dataset namens %1, sondern %2</translation>
    </message>
    <message>
        <source>It promises %1 variables, but it is too short to describe them</source>
        <translation>Sie verspricht %1 Variablen, ist aber zu kurz, um sie zu beschreiben</translation>
    </message>
    <message>
        <source>The record that starts a data set is damaged</source>
        <translation>Der Eintrag am Beginn eines Datasets ist beschädigt</translation>
    </message>
    <message>
        <source>The record that counts the variables is damaged</source>
        <translation>Der Eintrag, der die Variablen zählt, ist beschädigt</translation>
    </message>
    <message>
        <source>The record that starts the observations is missing</source>
        <translation>Der Eintrag am Beginn der Beobachtungen fehlt</translation>
    </message>
    <message>
        <source>The record that counts the long labels is damaged</source>
        <translation>Der Eintrag, der die langen Labels zählt, ist beschädigt</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Sie ist leer</translation>
    </message>
    <message>
        <source>It is cut short, or the sizes in its header are damaged</source>
        <translation>Sie ist abgeschnitten, oder die Größen in ihrem Kopf sind beschädigt</translation>
    </message>
    <message>
        <source>There is not enough memory for what its header promises</source>
        <translation>Der Arbeitsspeicher reicht nicht für das, was ihr Kopf verspricht</translation>
    </message>
    <message>
        <source>Its header promises %1 pages, but it is too short to hold them</source>
        <translation>Ihr Kopf verspricht %1 Seiten, doch dafür ist sie zu kurz</translation>
    </message>
    <message>
        <source>The description of its variables is missing</source>
        <translation>Die Beschreibung ihrer Variablen fehlt</translation>
    </message>
    <message>
        <source>It counts %1 variables, but describes %2</source>
        <translation>Sie zählt %1 Variablen, beschreibt aber %2</translation>
    </message>
    <message>
        <source>It counts %1 deleted observations, but marks %2</source>
        <translation>Sie zählt %1 gelöschte Beobachtungen, kennzeichnet aber %2</translation>
    </message>
    <message>
        <source>It is cut short within an observation</source>
        <translation>Sie ist innerhalb einer Beobachtung abgeschnitten</translation>
    </message>
    <message>
        <source>It is cut short within observation %1</source>
        <translation>Sie ist innerhalb der Beobachtung %1 abgeschnitten</translation>
    </message>
    <message>
        <source>Its header counts %1 observations, but it holds %2</source>
        <translation>Ihr Kopf zählt %1 Beobachtungen, doch sie enthält %2</translation>
    </message>
    <message>
        <source>It does not end with a whole record: observations at its end may be missing</source>
        <translation>Sie endet nicht mit einem ganzen Eintrag: Am Ende können Beobachtungen fehlen</translation>
    </message>
    <message>
        <source>Variable %1 has an impossible length, %2</source>
        <translation>Die Variable %1 hat eine unmögliche Länge, %2</translation>
    </message>
    <message>
        <source>It has no variables</source>
        <translation>Sie hat keine Variablen</translation>
    </message>
    <message>
        <source>%1 of its long texts are missing; their cells are empty</source>
        <translation>%1 ihrer langen Texte fehlen; deren Zellen sind leer</translation>
    </message>
    <message>
        <source>Unable to read from file</source>
        <translation>Die Datei konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unable to allocate memory</source>
        <translation>Der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message>
        <source>Unable to seek within file</source>
        <translation>In der Datei konnte keine Stelle gesucht werden</translation>
    </message>
    <message>
        <source>Invalid file, or file has unsupported features</source>
        <translation>Die Datei ist ungültig oder nutzt etwas, das nicht unterstützt wird</translation>
    </message>
    <message>
        <source>File has unsupported compression scheme</source>
        <translation>Die Komprimierung der Datei wird nicht unterstützt</translation>
    </message>
    <message>
        <source>File has an unsupported character set</source>
        <translation>Der Zeichensatz der Datei wird nicht unterstützt</translation>
    </message>
    <message>
        <source>File did not contain the expected number of columns</source>
        <translation>Die Datei enthält nicht die erwartete Anzahl von Spalten</translation>
    </message>
    <message>
        <source>File did not contain the expected number of rows</source>
        <translation>Die Datei enthält nicht die erwartete Anzahl von Zeilen</translation>
    </message>
    <message>
        <source>A row in the file was not the expected length</source>
        <translation>Eine Zeile der Datei hat nicht die erwartete Länge</translation>
    </message>
    <message>
        <source>Unable to convert string to the requested encoding</source>
        <translation>Ein Text konnte nicht in den gewünschten Zeichensatz umgewandelt werden</translation>
    </message>
    <message>
        <source>The file&apos;s timestamp string is invalid</source>
        <translation>Der Zeitstempel der Datei ist ungültig</translation>
    </message>
    <message>
        <source>It cannot be read to its end</source>
        <translation>Sie lässt sich nicht bis zum Ende lesen</translation>
    </message>
    <message>
        <source>It is no text file</source>
        <translation>Sie ist keine Textdatei</translation>
    </message>
    <message>
        <source>The quote that begins a value in line %1 is never closed</source>
        <translation>Das Anführungszeichen, mit dem in Zeile %1 ein Wert beginnt, wird nie geschlossen</translation>
    </message>
    <message>
        <source>Its first line names more than %1 variables</source>
        <translation>Ihre erste Zeile nennt mehr als %1 Variablen</translation>
    </message>
    <message>
        <source>It has more than %1 rows, the most that can be shown</source>
        <translation>Sie hat mehr als %1 Zeilen; mehr können nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Far more values are missing in its lines than there are</source>
        <translation>In ihren Zeilen fehlen weit mehr Werte, als da sind</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>There are letters behind the closing quote of a value; they are taken for a part of it</source>
        <translation>Hinter dem schließenden Anführungszeichen eines Wertes stehen Zeichen; sie gelten als Teil davon</translation>
    </message>
    <message>
        <source>There are NUL bytes in the file, which are left out</source>
        <translation>In der Datei stehen NUL-Bytes, die weggelassen sind</translation>
    </message>
    <message>
        <source>Lines with fewer values than variables, filled up with missing ones: %1</source>
        <translation>Zeilen mit weniger Werten als Variablen, mit fehlenden aufgefüllt: %1</translation>
    </message>
    <message>
        <source>Lines with more values than variables, whose last values are left out: %1</source>
        <translation>Zeilen mit mehr Werten als Variablen, deren letzte Werte weggelassen sind: %1</translation>
    </message>
    <message>
        <source>It is no JSON file</source>
        <translation>Sie ist keine JSON-Datei</translation>
    </message>
    <message>
        <source>It is no Dataset-JSON file: it starts with a list in place of its attributes</source>
        <translation>Sie ist keine Dataset-JSON-Datei: Sie beginnt mit einer Liste statt mit ihren Attributen</translation>
    </message>
    <message>
        <source>It is no Dataset-JSON file: it describes no columns</source>
        <translation>Sie ist keine Dataset-JSON-Datei: Sie beschreibt keine Spalten</translation>
    </message>
    <message>
        <source>It is no valid JSON</source>
        <translation>Sie ist kein gültiges JSON</translation>
    </message>
    <message>
        <source>It is no valid JSON: its rows are not separated by commas</source>
        <translation>Sie ist kein gültiges JSON: Ihre Zeilen sind nicht durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Its attributes are no valid JSON</source>
        <translation>Ihre Attribute sind kein gültiges JSON</translation>
    </message>
    <message>
        <source>It is cut short</source>
        <translation>Sie ist abgeschnitten</translation>
    </message>
    <message>
        <source>It is cut short: its compressed data have no end</source>
        <translation>Sie ist abgeschnitten: Ihre komprimierten Daten haben kein Ende</translation>
    </message>
    <message>
        <source>It is damaged: its compressed data cannot be unpacked</source>
        <translation>Sie ist beschädigt: Ihre komprimierten Daten lassen sich nicht entpacken</translation>
    </message>
    <message>
        <source>It holds a value that is too long or too deep to be read</source>
        <translation>Sie enthält einen Wert, der zum Lesen zu lang oder zu tief verschachtelt ist</translation>
    </message>
    <message>
        <source>It describes %1 variables; at most %2 can be shown</source>
        <translation>Sie beschreibt %1 Variablen; höchstens %2 können gezeigt werden</translation>
    </message>
    <message>
        <source>Line %1 is damaged: %2</source>
        <translation>Zeile %1 ist beschädigt: %2</translation>
    </message>
    <message>
        <source>Observation %1 is damaged: %2</source>
        <translation>Beobachtung %1 ist beschädigt: %2</translation>
    </message>
    <message>
        <source>it is no valid JSON</source>
        <translation>sie ist kein gültiges JSON</translation>
    </message>
    <message>
        <source>a text in it has no end</source>
        <translation>ein Text darin hat kein Ende</translation>
    </message>
    <message>
        <source>a text in it holds a control character</source>
        <translation>ein Text darin enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>a text in it has an escape that does not exist</source>
        <translation>ein Text darin hat eine Escapefolge, die es nicht gibt</translation>
    </message>
    <message>
        <source>a number in it is wrong</source>
        <translation>eine Zahl darin ist falsch</translation>
    </message>
    <message>
        <source>It goes on behind its end, which is left out</source>
        <translation>Sie geht hinter ihrem Ende weiter, was weggelassen ist</translation>
    </message>
    <message>
        <source>It holds rows more than once; the first ones are shown</source>
        <translation>Sie enthält mehrmals Zeilen; gezeigt werden die ersten</translation>
    </message>
    <message>
        <source>Its attribute %1 stands there more than once; the last one holds</source>
        <translation>Ihr Attribut %1 steht mehrmals da; das letzte gilt</translation>
    </message>
    <message>
        <source>It holds a further dataset, %1, which is left out</source>
        <translation>Sie enthält ein weiteres Dataset, %1, das weggelassen ist</translation>
    </message>
    <message>
        <source>%1 characters of its attributes are not valid and are shown as �</source>
        <translation>%1 Zeichen ihrer Attribute sind ungültig und werden als � gezeigt</translation>
    </message>
    <message>
        <source>%1: the data type is none of Dataset-JSON; read as texts</source>
        <translation>%1: Der Datentyp ist keiner von Dataset-JSON; als Texte gelesen</translation>
    </message>
    <message>
        <source>It names %1 of its variables not at all; the first is called %2</source>
        <translation>Sie gibt %1 ihrer Variablen keinen Namen; die erste heißt %2</translation>
    </message>
    <message>
        <source>%1: what is no number is shown as missing (%2, first in row %3)</source>
        <translation>%1: Was keine Zahl ist, wird als fehlend gezeigt (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>%1: what is no whole date or time is shown as missing (%2, first in row %3)</source>
        <translation>%1: Was kein ganzes Datum und keine ganze Zeit ist, wird als fehlend gezeigt (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>%1: a list or an object stands for a value (%2, first in row %3)</source>
        <translation>%1: Statt eines Werts steht dort eine Liste oder ein Objekt (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>%1: NaN is no number in JSON and is shown as missing (%2, first in row %3)</source>
        <translation>%1: NaN ist in JSON keine Zahl und wird als fehlend gezeigt (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>%1: numbers of more digits than can be reckoned with are shown as the file has them (%2, first in row %3)</source>
        <translation>%1: Zahlen mit mehr Ziffern, als gerechnet werden können, werden wie in der Datei gezeigt (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>%1: numbers too large to be reckoned with count as infinite (%2, first in row %3)</source>
        <translation>%1: Zahlen, die zum Rechnen zu groß sind, gelten als unendlich (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>%1: offsets from UTC are passed over (%2, first in row %3)</source>
        <translation>%1: Abweichungen von UTC werden übergangen (%2, zuerst in Zeile %3)</translation>
    </message>
    <message>
        <source>Rows with too few values are filled up with missing ones (%1, first in row %2)</source>
        <translation>Zeilen mit zu wenigen Werten sind mit fehlenden aufgefüllt (%1, zuerst in Zeile %2)</translation>
    </message>
    <message>
        <source>Of rows with too many values the last ones are left out (%1, first in row %2)</source>
        <translation>Von Zeilen mit zu vielen Werten sind die letzten weggelassen (%1, zuerst in Zeile %2)</translation>
    </message>
    <message>
        <source>Rows that are neither a list nor an object are shown as missing (%1, first in row %2)</source>
        <translation>Zeilen, die weder Liste noch Objekt sind, werden als fehlend gezeigt (%1, zuerst in Zeile %2)</translation>
    </message>
    <message>
        <source>Values of rows under names that no variable has are left out (%1, first in row %2)</source>
        <translation>Werte von Zeilen unter Namen, die keine Variable hat, sind weggelassen (%1, zuerst in Zeile %2)</translation>
    </message>
    <message>
        <source>Invalid characters are shown as � (%1, first in row %2)</source>
        <translation>Ungültige Zeichen werden als � gezeigt (%1, zuerst in Zeile %2)</translation>
    </message>
    <message>
        <source>The objects in it are damaged</source>
        <translation>Die Objekte darin sind beschädigt</translation>
    </message>
    <message>
        <source>Its packed data are damaged</source>
        <translation>Ihre gepackten Daten sind beschädigt</translation>
    </message>
    <message>
        <source>It is packed by %1, which cannot be read</source>
        <translation>Sie ist mit %1 gepackt, was nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>Sie kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>It is no file that R&apos;s saveRDS or save wrote</source>
        <translation>Sie ist keine Datei, die saveRDS oder save von R geschrieben hat</translation>
    </message>
    <message>
        <source>It was saved by an R older than 1.4, or by none</source>
        <translation>Sie wurde von einem R vor 1.4 gespeichert oder von keinem</translation>
    </message>
    <message>
        <source>Its objects are serialised in version %1, which is unknown</source>
        <translation>Ihre Objekte sind in der unbekannten Version %1 serialisiert</translation>
    </message>
    <message>
        <source>It has more variables than can be shown</source>
        <translation>Sie hat mehr Variablen, als gezeigt werden können</translation>
    </message>
    <message>
        <source>It holds no data frame, but %1</source>
        <translation>Sie enthält keinen Data Frame, sondern %1</translation>
    </message>
    <message>
        <source>It holds no data frame, and nothing else</source>
        <translation>Sie enthält keinen Data Frame und auch sonst nichts</translation>
    </message>
    <message>
        <source>It holds no data frame named %1</source>
        <translation>Sie enthält keinen Data Frame namens %1</translation>
    </message>
    <message>
        <source>The values of %1 are not shown: it holds %2</source>
        <translation>Die Werte von %1 werden nicht gezeigt: Inhalt ist %2</translation>
    </message>
    <message>
        <source>The names of its rows are not shown</source>
        <translation>Die Namen ihrer Zeilen werden nicht gezeigt</translation>
    </message>
    <message>
        <source>Its check sum is wrong: some of its values may be damaged</source>
        <translation>Ihre Prüfsumme ist falsch: Einige Werte könnten beschädigt sein</translation>
    </message>
    <message>
        <source>To unpack it takes more memory than its writer ever asks for</source>
        <translation>Das Entpacken braucht mehr Speicher, als ihr Schreiber je verlangt</translation>
    </message>
    <message>
        <source>a data frame</source>
        <translation>ein Data Frame</translation>
    </message>
    <message>
        <source>date-times in parts (POSIXlt)</source>
        <translation>Zeitpunkte in Teilen (POSIXlt)</translation>
    </message>
    <message>
        <source>a matrix</source>
        <translation>eine Matrix</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an expression</source>
        <translation>ein Ausdruck</translation>
    </message>
    <message>
        <source>a function</source>
        <translation>eine Funktion</translation>
    </message>
    <message>
        <source>a symbol</source>
        <translation>ein Symbol</translation>
    </message>
    <message>
        <source>a call</source>
        <translation>ein Aufruf</translation>
    </message>
    <message>
        <source>a pairlist</source>
        <translation>eine Paarliste</translation>
    </message>
    <message>
        <source>an environment</source>
        <translation>eine Umgebung</translation>
    </message>
    <message>
        <source>an S4 object</source>
        <translation>ein S4-Objekt</translation>
    </message>
    <message>
        <source>an object of another kind</source>
        <translation>ein Objekt anderer Art</translation>
    </message>
    <message>
        <source>The folder cannot be listed: %1</source>
        <translation>Der Ordner kann nicht aufgelistet werden: %1</translation>
    </message>
    <message>
        <source>It has both USUBJID and APID; one of them is to name the subject</source>
        <translation>Es enthält sowohl USUBJID als auch APID; nur eine davon darf die Person nennen</translation>
    </message>
    <message>
        <source>It has neither USUBJID nor APID</source>
        <translation>Es enthält weder USUBJID noch APID</translation>
    </message>
    <message>
        <source>It is no SUPP-- dataset, as it lacks %1</source>
        <translation>Es ist kein SUPP---Dataset: es fehlt %1</translation>
    </message>
    <message>
        <source>None of its rows belongs to %1; RDOMAIN is %2</source>
        <translation>Keine seiner Zeilen gehört zu %1; RDOMAIN ist %2</translation>
    </message>
    <message>
        <source>QNAM %1 is also a variable of %2; it is joined as %3</source>
        <translation>QNAM %1 ist auch eine Variable von %2; angefügt wird sie als %3</translation>
    </message>
    <message>
        <source>QNAM %1 has several labels: %2</source>
        <translation>QNAM %1 hat mehrere Bezeichnungen: %2</translation>
    </message>
    <message>
        <source>QNAM is blank</source>
        <translation>QNAM ist leer</translation>
    </message>
    <message>
        <source>QVAL is blank</source>
        <translation>QVAL ist leer</translation>
    </message>
    <message>
        <source>RDOMAIN is %1, which is not the domain of the observations</source>
        <translation>RDOMAIN ist %1, und das ist nicht die Domäne der Beobachtungen</translation>
    </message>
    <message>
        <source>It names no subject</source>
        <translation>Es ist keine Person genannt</translation>
    </message>
    <message>
        <source>IDVARVAL has no IDVAR</source>
        <translation>Zu IDVARVAL fehlt IDVAR</translation>
    </message>
    <message>
        <source>IDVARVAL is blank</source>
        <translation>IDVARVAL ist leer</translation>
    </message>
    <message>
        <source>%1 is numeric, and IDVARVAL is no number</source>
        <translation>%1 ist numerisch, und IDVARVAL ist keine Zahl</translation>
    </message>
    <message>
        <source>No observation belongs to this subject</source>
        <translation>Zu dieser Person gehört keine Beobachtung</translation>
    </message>
    <message>
        <source>The subject has no observation with this %1</source>
        <translation>Die Person hat keine Beobachtung mit diesem Wert von %1</translation>
    </message>
    <message>
        <source>Row %1 of %2 has another value: %3</source>
        <translation>Zeile %1 von %2 hat einen anderen Wert: %3</translation>
    </message>
    <message>
        <source>There is no variable named %1 in the data set %2</source>
        <translation>Es gibt keine Variable namens %1 im Dataset %2</translation>
    </message>
    <message>
        <source>The ID variable %1 is numeric in one data set and character in the other</source>
        <translation>Die ID-Variable %1 ist in einem Dataset numerisch und im anderen ein Text</translation>
    </message>
    <message>
        <source>None of the ID variables is in the data set %1</source>
        <translation>Keine der ID-Variablen steht im Dataset %1</translation>
    </message>
    <message>
        <source>There are more WITH than VAR variables</source>
        <translation>Es gibt mehr WITH- als VAR-Variablen</translation>
    </message>
    <message>
        <source>%1 has a criterion, but is no numeric variable that is compared</source>
        <translation>%1 hat ein Kriterium, ist aber keine numerische Variable, die verglichen wird</translation>
    </message>
    <message>
        <source>The criterion is no number</source>
        <translation>Das Kriterium ist keine Zahl</translation>
    </message>
    <message>
        <source>The delta of RELATIVE lies between 0 and 1, not %1</source>
        <translation>Das Delta von RELATIVE liegt zwischen 0 und 1, nicht %1</translation>
    </message>
    <message>
        <source>The method %1 takes no delta</source>
        <translation>Die Methode %1 kennt kein Delta</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is none of exact, absolute, relative and percent</source>
        <translation>%1 ist keins von exact, absolute, relative und percent</translation>
    </message>
    <message>
        <source>%1 is not VARIABLE=NUMBER[:METHOD]</source>
        <translation>%1 ist nicht VARIABLE=ZAHL[:METHODE]</translation>
    </message>
</context>
<context>
    <name>FailureNote</name>
    <message>
        <source>Did you mean %1?</source>
        <translation>Meinten Sie %1?</translation>
    </message>
</context>
<context>
    <name>FileKinds</name>
    <message>
        <source>Open SAS Datasets</source>
        <translation>SAS-Datasets öffnen</translation>
    </message>
    <message>
        <source>SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)</source>
        <translation>SAS-Datasets (*.sas7bdat);; SAS-Transportdateien (*.xpt)</translation>
    </message>
    <message>
        <source>Open Dataset-JSON Files</source>
        <translation>Dataset-JSON-Dateien öffnen</translation>
    </message>
    <message>
        <source>Dataset-JSON Files (*.json *.ndjson)</source>
        <translation>Dataset-JSON-Dateien (*.json *.ndjson)</translation>
    </message>
    <message>
        <source>Open R Datasets</source>
        <translation>R-Datasets öffnen</translation>
    </message>
    <message>
        <source>R Data Files (*.rds);; R Data Files (*.rdata);; R Data Files (*.rda)</source>
        <translation>R-Datendateien (*.rds);; R-Datendateien (*.rdata);; R-Datendateien (*.rda)</translation>
    </message>
    <message>
        <source>Open SPSS Datasets</source>
        <translation>SPSS-Datasets öffnen</translation>
    </message>
    <message>
        <source>SPSS Data Files (*.sav)</source>
        <translation>SPSS-Datendateien (*.sav)</translation>
    </message>
    <message>
        <source>Open Stata Datasets</source>
        <translation>Stata-Datasets öffnen</translation>
    </message>
    <message>
        <source>Stata Data Files (*.dta)</source>
        <translation>Stata-Datendateien (*.dta)</translation>
    </message>
    <message>
        <source>Open CSV Files</source>
        <translation>CSV-Dateien öffnen</translation>
    </message>
    <message>
        <source>CSV (Comma delimited) (*.csv)</source>
        <translation>CSV (durch Kommas getrennt) (*.csv)</translation>
    </message>
    <message>
        <source>Datasets (%1)</source>
        <translation>Datasets (%1)</translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>Failed to save the file: %1</source>
        <translation>Die Datei konnte nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>FindDialog</name>
    <message>
        <source>By &amp;Row</source>
        <translation>&amp;Zeilenweise</translation>
    </message>
    <message>
        <source>By &amp;Column</source>
        <translation>&amp;Spaltenweise</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find in table...</source>
        <translation>In der Tabelle suchen …</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Found, but not visible</source>
        <translation>Gefunden, aber nicht sichtbar</translation>
    </message>
</context>
<context>
    <name>FolderVariablesDialog</name>
    <message>
        <source>Only &amp;differences</source>
        <translation>Nur &amp;Unterschiede</translation>
    </message>
    <message>
        <source>Reading the folder...</source>
        <translation>Der Ordner wird gelesen ...</translation>
    </message>
    <message>
        <source>Variables of %1</source>
        <translation>Variablen von %1</translation>
    </message>
    <message>
        <source>The folder does not answer</source>
        <translation>Der Ordner antwortet nicht</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Search names, labels, formats, datasets</source>
        <translation>Namen, Labels, Formate und Datasets durchsuchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Reading file %1 of %2</source>
        <translation>Datei %1 von %2 wird gelesen</translation>
    </message>
    <message>
        <source>... and %1 more in the log</source>
        <translation>... und %1 weitere im Protokoll</translation>
    </message>
    <message>
        <source>Variables: %1 of %2, datasets: %3</source>
        <translation>Variablen: %1 von %2, Datasets: %3</translation>
    </message>
</context>
<context>
    <name>FolderVariablesModel</name>
    <message>
        <source>Numeric</source>
        <translation>Numerisch</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Dataset</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>Unterschiede</translation>
    </message>
</context>
<context>
    <name>FreqTableModel</name>
    <message>
        <source>Freq (%1)</source>
        <translation>Häuf. (%1)</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeit</translation>
    </message>
</context>
<context>
    <name>FreqTableView</name>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeit</translation>
    </message>
    <message>
        <source>Choose a value of a variable to filter by.</source>
        <translation>Wählen Sie den Wert einer Variablen, nach dem gefiltert werden soll.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clear Library Filter</source>
        <translation>Bibliotheksfilter aufheben</translation>
    </message>
    <message>
        <source>Undo Dataset Filter</source>
        <translation>Dataset-Filter zurücknehmen</translation>
    </message>
    <message>
        <source>Clear Dataset Filter</source>
        <translation>Dataset-Filter aufheben</translation>
    </message>
</context>
<context>
    <name>FrequencyPanel</name>
    <message>
        <source>Rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>Summe: %1</translation>
    </message>
    <message>
        <source>Subjects: %1</source>
        <translation>Personen: %1</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Ausgewählt: %1</translation>
    </message>
    <message>
        <source>Selected: %1 (%2 %)</source>
        <translation>Ausgewählt: %1 (%2 %)</translation>
    </message>
    <message>
        <source>There is no variable %1: observations are counted.</source>
        <translation>Es gibt keine Variable %1: gezählt werden Beobachtungen.</translation>
    </message>
    <message>
        <source>Counted under other filters than those in force now.</source>
        <translation>Gezählt unter anderen Filtern als den jetzt geltenden.</translation>
    </message>
</context>
<context>
    <name>GridContextMenu</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy (include Var Name)</source>
        <translation>Kopieren (mit Variablennamen)</translation>
    </message>
    <message>
        <source>Hide Variable	H</source>
        <translation>Variable ausblenden	H</translation>
    </message>
    <message>
        <source>Unhide Variables	U</source>
        <translation>Variablen einblenden	U</translation>
    </message>
    <message>
        <source>Shift Variable Left	Alt+Left</source>
        <translation>Variable nach links verschieben	Alt+Left</translation>
    </message>
    <message>
        <source>Shift Variable Right	Alt+Right</source>
        <translation>Variable nach rechts verschieben	Alt+Right</translation>
    </message>
    <message>
        <source>Go to Variable	G</source>
        <translation>Gehe zu Variable	G</translation>
    </message>
    <message>
        <source>Add By Variable	B</source>
        <translation>BY-Variable hinzufügen	B</translation>
    </message>
    <message>
        <source>Clear By Variable</source>
        <translation>BY-Variablen löschen</translation>
    </message>
    <message>
        <source>Clear Library Filter	Alt+C</source>
        <translation>Bibliotheksfilter aufheben	Alt+C</translation>
    </message>
    <message>
        <source>Clear Dataset Filter	C</source>
        <translation>Dataset-Filter aufheben	C</translation>
    </message>
    <message>
        <source>Undo Dataset Filter	Z</source>
        <translation>Letzten Dataset-Filter zurücknehmen	Z</translation>
    </message>
    <message>
        <source>Frequency	F</source>
        <translation>Häufigkeiten	F</translation>
    </message>
    <message>
        <source>Frequency (%1)	N</source>
        <translation>Häufigkeiten (%1)	N</translation>
    </message>
    <message>
        <source>Univariate	S</source>
        <translation>Univariate Statistik	S</translation>
    </message>
</context>
<context>
    <name>GridCounters</name>
    <message>
        <source>Rows: NA/NA</source>
        <translation>Zeilen: NA/NA</translation>
    </message>
    <message>
        <source>Rows: %1/%2</source>
        <translation>Zeilen: %1/%2</translation>
    </message>
    <message>
        <source>Vars: NA/NA</source>
        <translation>Var.: NA/NA</translation>
    </message>
    <message>
        <source>Vars: %1/%2</source>
        <translation>Var.: %1/%2</translation>
    </message>
</context>
<context>
    <name>GridEmptiness</name>
    <message>
        <source>No row meets the filters.</source>
        <translation>Keine Zeile erfüllt die Filter.</translation>
    </message>
    <message>
        <source>%1 takes the last step of the dataset filter back, %2 clears it.</source>
        <translation>%1 nimmt den letzten Schritt des Dataset-Filters zurück, %2 hebt ihn auf.</translation>
    </message>
    <message>
        <source>%1 clears the library filter.</source>
        <translation>%1 hebt den Bibliotheksfilter auf.</translation>
    </message>
    <message>
        <source>This dataset has no variables.</source>
        <translation>Dieses Dataset hat keine Variablen.</translation>
    </message>
    <message>
        <source>This dataset has no observations.</source>
        <translation>Dieses Dataset hat keine Beobachtungen.</translation>
    </message>
    <message>
        <source>All variables are hidden.
%1 shows them again.</source>
        <translation>Alle Variablen sind ausgeblendet.
%1 blendet sie wieder ein.</translation>
    </message>
</context>
<context>
    <name>GridServices</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
</context>
<context>
    <name>Libraries</name>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Remove Library</source>
        <translation>Bibliothek entfernen</translation>
    </message>
    <message>
        <source>Remove the library &quot;%1&quot; from the workspace?
The files in %2 stay as they are.</source>
        <translation>Soll die Bibliothek &quot;%1&quot; aus dem Arbeitsbereich entfernt werden?
Die Dateien in %2 bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The library filter of %1 cannot be used: %2</source>
        <translation>Der Bibliotheksfilter von %1 kann nicht verwendet werden: %2</translation>
    </message>
</context>
<context>
    <name>LibraryEditorDialog</name>
    <message>
        <source>&amp;Watch the folder for changes</source>
        <translation>Den Ordner auf Änderungen ü&amp;berwachen</translation>
    </message>
    <message>
        <source>&amp;Show its files when the program starts</source>
        <translation>Die Dateien beim &amp;Start des Programms zeigen</translation>
    </message>
    <message>
        <source>Choose color</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Add Library</source>
        <translation>Bibliothek hinzufügen</translation>
    </message>
    <message>
        <source>Edit Library</source>
        <translation>Bibliothek bearbeiten</translation>
    </message>
    <message>
        <source>the name that SAS programs use, such as ADAM</source>
        <translation>der Name in SAS-Programmen, zum Beispiel ADAM</translation>
    </message>
    <message>
        <source>a condition, such as SAFFL = &quot;Y&quot;</source>
        <translation>eine Bedingung, zum Beispiel SAFFL = &quot;Y&quot;</translation>
    </message>
    <message>
        <source>Becomes the library filter when a dataset is opened from here and none is in force</source>
        <translation>Wird zum Bibliotheksfilter, wenn von hier ein Dataset geöffnet wird und keiner in Kraft ist</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Display Name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>SAS Library</source>
        <translation>SAS-Bibliothek</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>Bibliotheksfilter</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen ...</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Verzeichnis auswählen</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>Farbe auswählen</translation>
    </message>
    <message>
        <source>Invalid Input</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message>
        <source>Directory is required.</source>
        <translation>Ein Verzeichnis ist erforderlich.</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Doppelt vorhanden</translation>
    </message>
    <message>
        <source>A library for this directory already exists.</source>
        <translation>Für dieses Verzeichnis gibt es bereits eine Bibliothek.</translation>
    </message>
</context>
<context>
    <name>LibraryItem</name>
    <message>
        <source>%1
%2, changed %3</source>
        <translation>%1
%2, geändert %3</translation>
    </message>
    <message>
        <source>Reading the folder...</source>
        <translation>Der Ordner wird gelesen ...</translation>
    </message>
    <message>
        <source>The folder cannot be listed</source>
        <translation>Der Ordner kann nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>No datasets</source>
        <translation>Keine Datasets</translation>
    </message>
    <message>
        <source>The folder does not answer</source>
        <translation>Der Ordner antwortet nicht</translation>
    </message>
</context>
<context>
    <name>LibraryRegistry</name>
    <message>
        <source>Database connection is not available.</source>
        <translation>Es besteht keine Verbindung zur Datenbank.</translation>
    </message>
    <message>
        <source>The libraries could not be read: %1</source>
        <translation>Die Bibliotheken konnten nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>A folder whose name is no text cannot be kept as a library: %1</source>
        <translation>Ein Ordner, dessen Name kein Text ist, kann keine Bibliothek werden: %1</translation>
    </message>
    <message>
        <source>The library could not be kept: %1</source>
        <translation>Die Bibliothek konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The library could not be renamed: %1</source>
        <translation>Die Bibliothek konnte nicht umbenannt werden: %1</translation>
    </message>
    <message>
        <source>The library could not be removed: %1</source>
        <translation>Die Bibliothek konnte nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>Unable to begin database transaction: %1</source>
        <translation>Die Datenbanktransaktion konnte nicht begonnen werden: %1</translation>
    </message>
    <message>
        <source>Unable to commit database transaction: %1</source>
        <translation>Die Datenbanktransaktion konnte nicht abgeschlossen werden: %1</translation>
    </message>
    <message>
        <source>Failed to delete library record: %1</source>
        <translation>Der Eintrag der Bibliothek konnte nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>Failed to update library record: %1</source>
        <translation>Der Eintrag der Bibliothek konnte nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>Failed to insert library record: %1</source>
        <translation>Der Eintrag der Bibliothek konnte nicht hinzugefügt werden: %1</translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>Opening %1 …</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>Trace</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>Fatal</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log messages</source>
        <translation>Log-Meldungen</translation>
    </message>
    <message>
        <source>All messages</source>
        <translation>Alle Meldungen</translation>
    </message>
    <message>
        <source>Information and above</source>
        <translation>Informationen und höher</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnungen und Fehler</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected messages, or all that are shown if none is selected</source>
        <translation>Kopiert die ausgewählten Meldungen oder, wenn keine ausgewählt ist, alle angezeigten</translation>
    </message>
    <message>
        <source>Sho&amp;w:</source>
        <translation>An&amp;zeigen:</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
<context>
    <name>LongLineEdit</name>
    <message>
        <source>This is not in force yet. Return runs it, Escape puts back what is.</source>
        <translation>Dies gilt noch nicht. Eingabe führt es aus, Escape stellt das Geltende wieder her.</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>Open SAS Datasets</source>
        <translation>SAS-Datasets öffnen</translation>
    </message>
    <message>
        <source>Open Dataset-JSON Files</source>
        <translation>Dataset-JSON-Dateien öffnen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Manage Libraries</source>
        <translation>Bibliotheken verwalten</translation>
    </message>
    <message>
        <source>Save Session...</source>
        <translation>Sitzung speichern...</translation>
    </message>
    <message>
        <source>Open R Datasets</source>
        <translation>R-Datasets öffnen</translation>
    </message>
    <message>
        <source>Open SPSS Datasets</source>
        <translation>SPSS-Datasets öffnen</translation>
    </message>
    <message>
        <source>Open Stata Datasets</source>
        <translation>Stata-Datasets öffnen</translation>
    </message>
    <message>
        <source>Open CSV Files</source>
        <translation>CSV-Dateien öffnen</translation>
    </message>
    <message>
        <source>New SAS Program</source>
        <translation>Neues SAS-Programm</translation>
    </message>
    <message>
        <source>Close	Ctrl+W</source>
        <translation>Schließen	Ctrl+W</translation>
    </message>
    <message>
        <source>Close All</source>
        <translation>Alle schließen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Quorlane</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Documentaiton</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Compare Datasets</source>
        <translation>Datasets vergleichen</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Toggle Dark Mode</source>
        <translation>Dunkelmodus umschalten</translation>
    </message>
    <message>
        <source>Toggle between light and dark mode</source>
        <translation>Zwischen hellem und dunklem Modus umschalten</translation>
    </message>
    <message>
        <source>Quick Open</source>
        <translation>Schnell öffnen</translation>
    </message>
    <message>
        <source>Edit Data Filter</source>
        <translation>Datenfilter bearbeiten</translation>
    </message>
    <message>
        <source>Next Dataset Tab</source>
        <translation>Nächster Dataset-Tab</translation>
    </message>
    <message>
        <source>Show left dock window and main window</source>
        <translation>Linkes Andockfenster und Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>Show main window maximize</source>
        <translation>Nur das Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>Show left dock window, main window and right dock window</source>
        <translation>Linkes Andockfenster, Hauptfenster und rechtes Andockfenster anzeigen</translation>
    </message>
    <message>
        <source>Show main window and right dock window</source>
        <translation>Hauptfenster und rechtes Andockfenster anzeigen</translation>
    </message>
    <message>
        <source>Layout %1</source>
        <translation>Layout %1</translation>
    </message>
    <message>
        <source>Go to Dataset Filter</source>
        <translation>Zum Dataset-Filter</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>Reset Window Arrangement</source>
        <translation>Fensteranordnung zurücksetzen</translation>
    </message>
    <message>
        <source>Put docks and toolbars where they stood at first</source>
        <translation>Stellt Andockfenster und Werkzeugleisten an ihren ersten Platz</translation>
    </message>
    <message>
        <source>Open SAS Program</source>
        <translation>SAS-Programm öffnen</translation>
    </message>
    <message>
        <source>Save SAS Program</source>
        <translation>SAS-Programm speichern</translation>
    </message>
    <message>
        <source>Save SAS Program As</source>
        <translation>SAS-Programm speichern unter</translation>
    </message>
    <message>
        <source>Reload Dataset</source>
        <translation>Dataset neu laden</translation>
    </message>
    <message>
        <source>Read the file anew and keep filters, columns, order and place</source>
        <translation>Die Datei neu lesen und Filter, Spalten, Reihenfolge und Stelle beibehalten</translation>
    </message>
    <message>
        <source>Copy Stored Values</source>
        <translation>Gespeicherte Werte kopieren</translation>
    </message>
    <message>
        <source>Copy with Names</source>
        <translation>Mit Namen kopieren</translation>
    </message>
    <message>
        <source>Dataset Properties</source>
        <translation>Eigenschaften des Datasets</translation>
    </message>
    <message>
        <source>Join SUPP--...</source>
        <translation>SUPP-- anfügen...</translation>
    </message>
    <message>
        <source>Show the dataset with its supplemental qualifiers</source>
        <translation>Das Dataset mit seinen ergänzenden Angaben (SUPP--) zeigen</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Dock Windows</source>
        <translation>Andockfenster</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>A&amp;usführen</translation>
    </message>
    <message>
        <source>Hel&amp;p</source>
        <translation>H&amp;ilfe</translation>
    </message>
</context>
<context>
    <name>MainTableView</name>
    <message>
        <source>The variable %1 is hidden.</source>
        <translation>Die Variable %1 ist ausgeblendet.</translation>
    </message>
    <message>
        <source>Observation %1 is hidden by a filter.</source>
        <translation>Beobachtung %1 ist durch einen Filter verborgen.</translation>
    </message>
</context>
<context>
    <name>MainToolBars</name>
    <message>
        <source>Quick Open</source>
        <translation>Schnell öffnen</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>Column Headers</source>
        <translation>Spaltenköpfe</translation>
    </message>
    <message>
        <source>Var Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Var Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Show variable names in the column headers</source>
        <translation>Variablennamen in den Spaltenköpfen anzeigen</translation>
    </message>
    <message>
        <source>Show variable labels in the column headers</source>
        <translation>Variablenlabels in den Spaltenköpfen anzeigen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorlane</source>
        <translation>Quorlane</translation>
    </message>
    <message>
        <source>Database Initialization Failed</source>
        <translation>Initialisierung der Datenbank fehlgeschlagen</translation>
    </message>
    <message>
        <source>The application will now exit.</source>
        <translation>Das Programm wird jetzt beendet.</translation>
    </message>
    <message>
        <source>About Quorlane</source>
        <translation>Über Quorlane</translation>
    </message>
    <message>
        <source>Quorlane %1
A viewer for statistical and clinical-trial datasets.
Data files are only ever read.</source>
        <translation>Quorlane %1
Ein Betrachter für Datasets aus Statistik und klinischen Studien.
Datendateien werden ausschließlich gelesen.</translation>
    </message>
    <message>
        <source>No browser could show %1</source>
        <translation>Kein Browser konnte %1 anzeigen</translation>
    </message>
    <message>
        <source>%1 - Quorlane</source>
        <translation>%1 - Quorlane</translation>
    </message>
</context>
<context>
    <name>ManageLibrariesDialog</name>
    <message>
        <source>Manage Libraries</source>
        <translation>Bibliotheken verwalten</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>SAS Library</source>
        <translation>SAS-Bibliothek</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>Bibliotheksfilter</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
</context>
<context>
    <name>NamePicker</name>
    <message>
        <source>Search variables</source>
        <translation>Variablen suchen</translation>
    </message>
</context>
<context>
    <name>OperatorLabel</name>
    <message>
        <source>The keys d and = filter by the current cell with this operator</source>
        <translation>Die Tasten d und = filtern mit diesem Operator nach der aktuellen Zelle</translation>
    </message>
    <message>
        <source>Key d: %1</source>
        <translation>Taste d: %1</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Unique variable name</source>
        <translation>Name der eindeutigen Variablen</translation>
    </message>
    <message>
        <source>The variable that identifies a subject</source>
        <translation>Die Variable, die einen Probanden identifiziert</translation>
    </message>
    <message>
        <source>Unique Variable Name:</source>
        <translation>Name der eindeutigen Variablen:</translation>
    </message>
</context>
<context>
    <name>OutputView</name>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>What a comparison of datasets reports stands here.</source>
        <translation>Hier steht, was ein Vergleich von Datasets berichtet.</translation>
    </message>
    <message>
        <source>Find in output...</source>
        <translation>In der Ausgabe suchen...</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>Copy what is selected, or all if nothing is</source>
        <translation>Das Markierte kopieren, oder alles, wenn nichts markiert ist</translation>
    </message>
    <message>
        <source>Went on from the beginning</source>
        <translation>Vom Anfang weitergesucht</translation>
    </message>
    <message>
        <source>Went on from the end</source>
        <translation>Vom Ende weitergesucht</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Save Output</source>
        <translation>Ausgabe speichern</translation>
    </message>
    <message>
        <source>Text Files (*.txt);;Listings (*.lst);;All Files (*)</source>
        <translation>Textdateien (*.txt);;Listen (*.lst);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <source>Cle&amp;ar</source>
        <translation>Lee&amp;ren</translation>
    </message>
</context>
<context>
    <name>ProgramEditor</name>
    <message>
        <source>SAS program</source>
        <translation>SAS-Programm</translation>
    </message>
    <message>
        <source>Statements for the active dataset: where, if, keep, drop, by</source>
        <translation>Anweisungen für das aktive Dataset: where, if, keep, drop, by</translation>
    </message>
</context>
<context>
    <name>ProgramRunner</name>
    <message>
        <source>This statement is passed over.</source>
        <translation>Diese Anweisung wird übergangen.</translation>
    </message>
    <message>
        <source>A quote or comment is not closed.</source>
        <translation>Ein Anführungszeichen oder Kommentar ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>%1 is the SAS name of several variables: %2</source>
        <translation>%1 ist der SAS-Name mehrerer Variablen: %2</translation>
    </message>
</context>
<context>
    <name>ProgramWindow</name>
    <message>
        <source>SAS program of the active dataset</source>
        <translation>SAS-Programm der aktiven Datei</translation>
    </message>
    <message>
        <source>The program of what the active dataset shows</source>
        <translation>Das Programm zu dem, was die aktive Datei zeigt</translation>
    </message>
</context>
<context>
    <name>PropertiesWindows</name>
    <message>
        <source>Dataset Properties</source>
        <translation>Eigenschaften des Datasets</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
    </message>
</context>
<context>
    <name>QuickOpenDialog</name>
    <message>
        <source>Quick Open</source>
        <translation>Schnell öffnen</translation>
    </message>
    <message>
        <source>Dataset, &quot;v&quot; and a variable, or a row number</source>
        <translation>Dataset, „v“ und eine Variable oder eine Zeilennummer</translation>
    </message>
    <message>
        <source>Return goes to observation %1</source>
        <translation>Die Eingabetaste führt zu Beobachtung %1</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Nichts passt</translation>
    </message>
    <message>
        <source>The workspace holds no datasets</source>
        <translation>Der Arbeitsbereich enthält keine Datasets</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>%1 (in %2)</source>
        <translation>%1 (in %2)</translation>
    </message>
</context>
<context>
    <name>RowModel</name>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Value in observation %1</source>
        <translation>Wert in Beobachtung %1</translation>
    </message>
</context>
<context>
    <name>RowPane</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>SessionNodes</name>
    <message>
        <source>Delete Session</source>
        <translation>Sitzung löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the session &quot;%1&quot;?
The files of its datasets stay.</source>
        <translation>Soll die Sitzung „%1“ gelöscht werden?
Die Dateien ihrer Datasets bleiben.</translation>
    </message>
</context>
<context>
    <name>SessionRegistry</name>
    <message>
        <source>Unable to access the session database.</source>
        <translation>Auf die Datenbank der Sitzungen kann nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>Failed to start a database transaction.</source>
        <translation>Die Transaktion der Datenbank konnte nicht begonnen werden.</translation>
    </message>
    <message>
        <source>Failed to commit the session data.</source>
        <translation>Die Daten der Sitzung konnten nicht festgeschrieben werden.</translation>
    </message>
    <message>
        <source>Failed to persist dataset information for the session.</source>
        <translation>Die Angaben zu einem Dataset der Sitzung konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Failed to look up existing sessions.</source>
        <translation>Die vorhandenen Sitzungen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Failed to create a new session record.</source>
        <translation>Die Sitzung konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Failed to update the session timestamp.</source>
        <translation>Der Zeitpunkt der Sitzung konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Failed to clear existing session datasets.</source>
        <translation>Die bisherigen Datasets der Sitzung konnten nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Failed to read the session information.
%1</source>
        <translation>Die Angaben zur Sitzung konnten nicht gelesen werden.
%1</translation>
    </message>
    <message>
        <source>The selected session no longer exists.</source>
        <translation>Die gewählte Sitzung gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Failed to load datasets for the session.
%1</source>
        <translation>Die Datasets der Sitzung konnten nicht gelesen werden.
%1</translation>
    </message>
    <message>
        <source>Failed to delete the session.</source>
        <translation>Die Sitzung konnte nicht gelöscht werden.</translation>
    </message>
</context>
<context>
    <name>Sessions</name>
    <message>
        <source>Save Session</source>
        <translation>Sitzung speichern</translation>
    </message>
    <message>
        <source>Session name:</source>
        <translation>Name der Sitzung:</translation>
    </message>
    <message>
        <source>Session %1</source>
        <translation>Sitzung %1</translation>
    </message>
    <message>
        <source>Session &quot;%1&quot; saved</source>
        <translation>Sitzung „%1“ gespeichert</translation>
    </message>
    <message>
        <source>Session name cannot be empty.</source>
        <translation>Der Name der Sitzung darf nicht leer sein.</translation>
    </message>
    <message>
        <source>No datasets are currently open to include in the session.</source>
        <translation>Es ist kein Dataset geöffnet, das in die Sitzung aufgenommen werden könnte.</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation>Sitzung öffnen</translation>
    </message>
    <message>
        <source>The session &quot;%1&quot; does not contain any datasets.</source>
        <translation>Die Sitzung „%1“ enthält keine Datasets.</translation>
    </message>
    <message>
        <source>Some datasets could not be restored:
%1</source>
        <translation>Einige Datasets konnten nicht wiederhergestellt werden:
%1</translation>
    </message>
    <message>
        <source>Session &quot;%1&quot; restored</source>
        <translation>Sitzung „%1“ wiederhergestellt</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>Session &quot;%1&quot; saved without joined datasets, of which there are %2</source>
        <translation>Sitzung „%1“ gespeichert, ohne zusammengefügte Datasets; davon gibt es %2</translation>
    </message>
</context>
<context>
    <name>ShortcutKeysWindow</name>
    <message>
        <source>Shortcut keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Layout 1</source>
        <translation>Layout 1</translation>
    </message>
    <message>
        <source>Show left dock window and main window</source>
        <translation>Linkes Andockfenster und Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>Layout 2</source>
        <translation>Layout 2</translation>
    </message>
    <message>
        <source>Show main window maximize</source>
        <translation>Nur das Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>Layout 3</source>
        <translation>Layout 3</translation>
    </message>
    <message>
        <source>Show left dock window, main window and right dock window</source>
        <translation>Linkes Andockfenster, Hauptfenster und rechtes Andockfenster anzeigen</translation>
    </message>
    <message>
        <source>Layout 4</source>
        <translation>Layout 4</translation>
    </message>
    <message>
        <source>Show main window and right dock window</source>
        <translation>Hauptfenster und rechtes Andockfenster anzeigen</translation>
    </message>
    <message>
        <source>Quick Open</source>
        <translation>Schnell öffnen</translation>
    </message>
    <message>
        <source>Open the quick navigation palette.</source>
        <translation>Öffnet die Palette für die schnelle Navigation.</translation>
    </message>
    <message>
        <source>Open SAS Datasets</source>
        <translation>SAS-Datasets öffnen</translation>
    </message>
    <message>
        <source>Open a SAS dataset.</source>
        <translation>Öffnet ein SAS-Dataset.</translation>
    </message>
    <message>
        <source>Toggle Dark Mode</source>
        <translation>Dunkelmodus umschalten</translation>
    </message>
    <message>
        <source>Toggle between dark and light themes.</source>
        <translation>Schaltet zwischen dunklem und hellem Design um.</translation>
    </message>
    <message>
        <source>Next Dataset Tab</source>
        <translation>Nächster Dataset-Tab</translation>
    </message>
    <message>
        <source>Switch to the next dataset window.</source>
        <translation>Wechselt zum nächsten Dataset-Fenster.</translation>
    </message>
    <message>
        <source>Exit Application</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>Close the application.</source>
        <translation>Beendet das Programm.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find text.</source>
        <translation>Sucht nach Text.</translation>
    </message>
    <message>
        <source>Dataset Filter, In operator</source>
        <translation>Dataset-Filter: in</translation>
    </message>
    <message>
        <source>Filter data with operator &apos;in&apos;.</source>
        <translation>Filtert die Daten mit dem Operator „in“.</translation>
    </message>
    <message>
        <source>Dataset Filter, Equal</source>
        <translation>Dataset-Filter: gleich</translation>
    </message>
    <message>
        <source>Filter data with operator =.</source>
        <translation>Filtert die Daten mit dem Operator =.</translation>
    </message>
    <message>
        <source>Dataset Filter, Uneuqal</source>
        <translation>Dataset-Filter: ungleich</translation>
    </message>
    <message>
        <source>Filter data with operator ^= or ~=.</source>
        <translation>Filtert die Daten mit dem Operator ^= oder ~=.</translation>
    </message>
    <message>
        <source>Dataset Filter, Greater</source>
        <translation>Dataset-Filter: größer</translation>
    </message>
    <message>
        <source>Filter data with operator &gt;.</source>
        <translation>Filtert die Daten mit dem Operator &gt;.</translation>
    </message>
    <message>
        <source>Dataset Filter, Less</source>
        <translation>Dataset-Filter: kleiner</translation>
    </message>
    <message>
        <source>Filter data with operator &lt;.</source>
        <translation>Filtert die Daten mit dem Operator &lt;.</translation>
    </message>
    <message>
        <source>Dataset Filter, Greater or Equal</source>
        <translation>Dataset-Filter: &gt;=</translation>
    </message>
    <message>
        <source>Filter data with operator &gt;=.</source>
        <translation>Filtert die Daten mit dem Operator &gt;=.</translation>
    </message>
    <message>
        <source>Dataset Filter, Less or Equal</source>
        <translation>Dataset-Filter: &lt;=</translation>
    </message>
    <message>
        <source>Filter data with operator &lt;=.</source>
        <translation>Filtert die Daten mit dem Operator &lt;=.</translation>
    </message>
    <message>
        <source>Dataset Filter, Undo</source>
        <translation>Dataset-Filter: zurück</translation>
    </message>
    <message>
        <source>Undo one step of dataset filter.</source>
        <translation>Nimmt einen Schritt des Dataset-Filters zurück.</translation>
    </message>
    <message>
        <source>Clear Dataset Filter</source>
        <translation>Dataset-Filter aufheben</translation>
    </message>
    <message>
        <source>Clear dataset level filter.</source>
        <translation>Hebt den Filter des Datasets auf.</translation>
    </message>
    <message>
        <source>Library Filter</source>
        <translation>Bibliotheksfilter</translation>
    </message>
    <message>
        <source>Filter data with operator =. It is library level.</source>
        <translation>Filtert die Daten mit dem Operator =, und zwar für die ganze Bibliothek.</translation>
    </message>
    <message>
        <source>Clear Library Filter</source>
        <translation>Bibliotheksfilter aufheben</translation>
    </message>
    <message>
        <source>Clear library level filter.</source>
        <translation>Hebt den Filter der Bibliothek auf.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeiten</translation>
    </message>
    <message>
        <source>Get the frequency of the selected variable(s). Select multiple variables by holding down the Ctrl key.</source>
        <translation>Zählt die Häufigkeiten der ausgewählten Variablen. Mehrere Variablen werden mit gedrückter Strg-Taste ausgewählt.</translation>
    </message>
    <message>
        <source>Freq (UniqueID)</source>
        <translation>Häufigkeiten (UniqueID)</translation>
    </message>
    <message>
        <source>Count distinct UniqueID of the selected variable(s). Select multiple variables by holding down the Ctrl key.</source>
        <translation>Zählt die verschiedenen eindeutigen IDs (UniqueID) zu den ausgewählten Variablen. Mehrere Variablen werden mit gedrückter Strg-Taste ausgewählt.</translation>
    </message>
    <message>
        <source>Hide Variable</source>
        <translation>Variable ausblenden</translation>
    </message>
    <message>
        <source>Hide the focused variable.</source>
        <translation>Blendet die Variable mit dem Fokus aus.</translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation>Alle Variablen ausblenden</translation>
    </message>
    <message>
        <source>Hide all the variables.</source>
        <translation>Blendet alle Variablen aus.</translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation>Alle Variablen einblenden</translation>
    </message>
    <message>
        <source>Unhide all hidden variables.</source>
        <translation>Blendet alle ausgeblendeten Variablen wieder ein.</translation>
    </message>
    <message>
        <source>Shift Variable Left</source>
        <translation>Variable nach links</translation>
    </message>
    <message>
        <source>Move the focused variable to the left.</source>
        <translation>Verschiebt die Variable mit dem Fokus nach links.</translation>
    </message>
    <message>
        <source>Shift Variable Right</source>
        <translation>Variable nach rechts</translation>
    </message>
    <message>
        <source>Move the focused variable to the right.</source>
        <translation>Verschiebt die Variable mit dem Fokus nach rechts.</translation>
    </message>
    <message>
        <source>Add By Variable</source>
        <translation>BY-Variable hinzufügen</translation>
    </message>
    <message>
        <source>Append the focused variable to the BY list.</source>
        <translation>Hängt die Variable mit dem Fokus an die BY-Liste an.</translation>
    </message>
    <message>
        <source>Go to Variable</source>
        <translation>Gehe zu Variable</translation>
    </message>
    <message>
        <source>Jump to the focused variable in Variables Window.</source>
        <translation>Springt im Variablenfenster zur Variablen mit dem Fokus.</translation>
    </message>
    <message>
        <source>Copy Selection</source>
        <translation>Auswahl kopieren</translation>
    </message>
    <message>
        <source>Copy selected cells.</source>
        <translation>Kopiert die ausgewählten Zellen.</translation>
    </message>
    <message>
        <source>Close Dataset</source>
        <translation>Dataset schließen</translation>
    </message>
    <message>
        <source>Close the current dataset.</source>
        <translation>Schließt das aktuelle Dataset.</translation>
    </message>
    <message>
        <source>Close All Datasets</source>
        <translation>Alle Datasets schließen</translation>
    </message>
    <message>
        <source>Close all the opened datasets</source>
        <translation>Schließt alle geöffneten Datasets.</translation>
    </message>
    <message>
        <source>Increase the Font Size</source>
        <translation>Schrift vergrößern</translation>
    </message>
    <message>
        <source>Make the font bigger.</source>
        <translation>Macht die Schrift größer.</translation>
    </message>
    <message>
        <source>Decrease the Font Size</source>
        <translation>Schrift verkleinern</translation>
    </message>
    <message>
        <source>Make the font smaller.</source>
        <translation>Macht die Schrift kleiner.</translation>
    </message>
    <message>
        <source>Jump to the focused variable in Dataset Window.</source>
        <translation>Springt im Dataset-Fenster zur Variablen mit dem Fokus.</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Dataset Window</source>
        <translation>Dataset-Fenster</translation>
    </message>
    <message>
        <source>Frequency Window</source>
        <translation>Häufigkeitsfenster</translation>
    </message>
    <message>
        <source>Variables Window</source>
        <translation>Variablenfenster</translation>
    </message>
    <message>
        <source>Show Cell</source>
        <translation>Zelle zeigen</translation>
    </message>
    <message>
        <source>Show the whole text of the current cell.</source>
        <translation>Zeigt den ganzen Text der aktuellen Zelle.</translation>
    </message>
    <message>
        <source>Show Row</source>
        <translation>Zeile zeigen</translation>
    </message>
    <message>
        <source>Show all variables of the current row.</source>
        <translation>Zeigt alle Variablen der aktuellen Zeile.</translation>
    </message>
</context>
<context>
    <name>SidePanels</name>
    <message>
        <source>Press F in a grid to count the values of the selected variables, or N to count distinct subjects.</source>
        <translation>Drücken Sie in einer Tabelle F, um die Werte der ausgewählten Variablen zu zählen, oder N, um verschiedene Personen zu zählen.</translation>
    </message>
    <message>
        <source>Select a numeric variable in a grid and press S for its statistics. B adds the current variable to those that they are grouped by.</source>
        <translation>Wählen Sie in einer Tabelle eine numerische Variable und drücken Sie S für ihre Statistik. B nimmt die aktuelle Variable in die auf, nach denen gruppiert wird.</translation>
    </message>
    <message>
        <source>Open or choose a dataset to see its variables.</source>
        <translation>Ein Dataset öffnen oder wählen, um seine Variablen zu sehen.</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unsupported OS</source>
        <translation>Nicht unterstütztes Betriebssystem</translation>
    </message>
    <message>
        <source>Uncatched exception: %1</source>
        <translation>Unbehandelte Ausnahme: %1</translation>
    </message>
    <message>
        <source>Unknown exception, the application will quit.</source>
        <translation>Unbekannte Ausnahme, das Programm wird beendet.</translation>
    </message>
    <message>
        <source>This application does not run on Windows Server edition. Please download the server edition from the website: %1</source>
        <translation>Dieses Programm läuft nicht auf Windows Server. Bitte laden Sie die Server-Edition von der Website herunter: %1</translation>
    </message>
</context>
<context>
    <name>StatisticsPanel</name>
    <message>
        <source>Made under other filters or BY variables than those in force now.</source>
        <translation>Entstanden unter anderen Filtern oder BY-Variablen als den jetzt geltenden.</translation>
    </message>
    <message>
        <source>Descriptive Statistics</source>
        <translation>Deskriptive Statistik</translation>
    </message>
    <message>
        <source>Please select at least one column.</source>
        <translation>Bitte wählen Sie mindestens eine Spalte aus.</translation>
    </message>
    <message>
        <source>Desciptive Stattistics</source>
        <translation>Deskriptive Statistik</translation>
    </message>
    <message>
        <source>Selected variable is not numeric.</source>
        <translation>Die ausgewählte Variable ist nicht numerisch.</translation>
    </message>
    <message>
        <source>No data available under current filters.</source>
        <translation>Unter den aktuellen Filtern gibt es keine Daten.</translation>
    </message>
</context>
<context>
    <name>StatusCounters</name>
    <message>
        <source>Rows: NA/NA</source>
        <translation>Zeilen: NA/NA</translation>
    </message>
    <message>
        <source>Vars: NA/NA</source>
        <translation>Var.: NA/NA</translation>
    </message>
    <message>
        <source>By: NA</source>
        <translation>By: NA</translation>
    </message>
    <message>
        <source>LF: NA</source>
        <translation>BF: NA</translation>
    </message>
    <message>
        <source>DF: NA</source>
        <translation>DF: NA</translation>
    </message>
    <message>
        <source>By: %1</source>
        <translation>By: %1</translation>
    </message>
    <message>
        <source>LF: %1</source>
        <translation>BF: %1</translation>
    </message>
    <message>
        <source>LF: (not applied) %1</source>
        <translation>BF: (nicht angewendet) %1</translation>
    </message>
    <message>
        <source>%1
This dataset is not filtered by it: %2</source>
        <translation>%1
Dieses Dataset wird damit nicht gefiltert: %2</translation>
    </message>
    <message>
        <source>DF: %1</source>
        <translation>DF: %1</translation>
    </message>
    <message>
        <source>Rows: NA / NA</source>
        <translation>Zeilen: NA / NA</translation>
    </message>
</context>
<context>
    <name>SuppFindingsDialog</name>
    <message>
        <source>Findings of %1</source>
        <translation>Befunde zu %1</translation>
    </message>
    <message>
        <source>Dataset</source>
        <translation>Dataset</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Person</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Show &amp;Row</source>
        <translation>&amp;Zeile zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Other Row</source>
        <translation>&amp;Andere Zeile zeigen</translation>
    </message>
    <message>
        <source>Show Obser&amp;vation</source>
        <translation>&amp;Beobachtung zeigen</translation>
    </message>
</context>
<context>
    <name>SuppJoins</name>
    <message>
        <source>Datasets (%1)</source>
        <translation>Datasets (%1)</translation>
    </message>
    <message>
        <source>Choose the SUPP-- Datasets</source>
        <translation>SUPP---Datasets auswählen</translation>
    </message>
    <message>
        <source>%1: joined variables %2, rows that match no observation %3, conflicts %4</source>
        <translation>%1: angefügte Variablen %2, Zeilen ohne passende Beobachtung %3, Widersprüche %4</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>A new version is available!

Latest version: %1
Your version: %2

Click &apos;Open&apos; to get the latest version:
%3</source>
        <translation>Eine neue Version ist verfügbar!

Neueste Version: %1
Ihre Version: %2

Mit „Öffnen“ erhalten Sie die neueste Version:
%3</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>keine rechtzeitige Antwort</translation>
    </message>
    <message>
        <source>the answer is too large</source>
        <translation>die Antwort ist zu groß</translation>
    </message>
    <message>
        <source>The check for updates has failed: %1</source>
        <translation>Die Suche nach Aktualisierungen ist fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Informat</source>
        <translation>Informat</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
</context>
<context>
    <name>VariableTableView</name>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Go to Variable</source>
        <translation>Gehe zu Variable</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeit</translation>
    </message>
    <message>
        <source>Frequency (%1)</source>
        <translation>Häufigkeit (%1)</translation>
    </message>
</context>
<context>
    <name>WorkspaceTree</name>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Workspace</source>
        <translation>Arbeitsbereich</translation>
    </message>
    <message>
        <source>Filter of the workspace</source>
        <translation>Filter des Arbeitsbereichs</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Manage Libraries</source>
        <translation>Bibliotheken verwalten</translation>
    </message>
    <message>
        <source>Variables of All Datasets</source>
        <translation>Variablen aller Datasets</translation>
    </message>
    <message>
        <source>Refresh	F5</source>
        <translation>Aktualisieren	F5</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Set Library Name	F2</source>
        <translation>Namen der Bibliothek ändern	F2</translation>
    </message>
    <message>
        <source>Remove	Del</source>
        <translation>Entfernen	Del</translation>
    </message>
    <message>
        <source>Open	Return</source>
        <translation>Öffnen	Return</translation>
    </message>
    <message>
        <source>Properties	Alt+Return</source>
        <translation>Eigenschaften	Alt+Return</translation>
    </message>
    <message>
        <source>Join SUPP--</source>
        <translation>SUPP-- anfügen</translation>
    </message>
    <message>
        <source>Compare With...</source>
        <translation>Vergleichen mit ...</translation>
    </message>
    <message>
        <source>Open Session</source>
        <translation>Sitzung öffnen</translation>
    </message>
    <message>
        <source>Delete Session	Del</source>
        <translation>Sitzung löschen	Del</translation>
    </message>
    <message>
        <source>Compare...</source>
        <translation>Vergleichen...</translation>
    </message>
</context>
</TS>
