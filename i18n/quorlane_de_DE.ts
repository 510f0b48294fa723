<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>CommandBoxes</name>
    <message>
        <source>Dataset Filter</source>
        <translation>Datensatzfilter</translation>
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
    <name>DatasetOpener</name>
    <message>
        <source>&quot;%1&quot; is already open.
Do you want to reload it?</source>
        <translation>„%1“ ist bereits geöffnet.
Möchten Sie den Datensatz neu laden?</translation>
    </message>
    <message>
        <source>Reload Dataset</source>
        <translation>Datensatz neu laden</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Failed to open the file: %1</source>
        <translation>Die Datei konnte nicht geöffnet werden: %1</translation>
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
        <translation>Es ist kein Datensatz geöffnet. Was soll geöffnet werden?</translation>
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
    <name>FileKinds</name>
    <message>
        <source>Open SAS Datasets</source>
        <translation>SAS-Datensätze öffnen</translation>
    </message>
    <message>
        <source>SAS Data Files (*.sas7bdat);; SAS Transport Files (*.xpt)</source>
        <translation>SAS-Datensätze (*.sas7bdat);; SAS-Transportdateien (*.xpt)</translation>
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
        <translation>R-Datensätze öffnen</translation>
    </message>
    <message>
        <source>R Data Files (*.rds);; R Data Files (*.rdata);; R Data Files (*.rda)</source>
        <translation>R-Datendateien (*.rds);; R-Datendateien (*.rdata);; R-Datendateien (*.rda)</translation>
    </message>
    <message>
        <source>Open SPSS Datasets</source>
        <translation>SPSS-Datensätze öffnen</translation>
    </message>
    <message>
        <source>SPSS Data Files (*.sav)</source>
        <translation>SPSS-Datendateien (*.sav)</translation>
    </message>
    <message>
        <source>Open Stata Datasets</source>
        <translation>Stata-Datensätze öffnen</translation>
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
        <translation>Datensatzfilter aufheben	C</translation>
    </message>
    <message>
        <source>Undo Dataset Filter	Z</source>
        <translation>Letzten Datensatzfilter zurücknehmen	Z</translation>
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
    <name>GridServices</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
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
    <name>MainActions</name>
    <message>
        <source>Open SAS Datasets</source>
        <translation>SAS-Datensätze öffnen</translation>
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
        <translation>R-Datensätze öffnen</translation>
    </message>
    <message>
        <source>Open SPSS Datasets</source>
        <translation>SPSS-Datensätze öffnen</translation>
    </message>
    <message>
        <source>Open Stata Datasets</source>
        <translation>Stata-Datensätze öffnen</translation>
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
        <translation>Datensätze vergleichen</translation>
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
        <translation>Nächster Datensatz-Tab</translation>
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
        <translation>Zum Datensatzfilter</translation>
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
        <source>Output</source>
        <translation>Ausgabe</translation>
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
        <source>New SAS Program</source>
        <translation>Neues SAS-Programm</translation>
    </message>
    <message>
        <source>The program in the Code window will be cleared. Go on?</source>
        <translation>Das Programm im Code-Fenster wird gelöscht. Fortfahren?</translation>
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
Ein Betrachter für Datensätze aus Statistik und klinischen Studien.
Datendateien werden ausschließlich gelesen.</translation>
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
    <name>ProgramEditor</name>
    <message>
        <source>SAS program</source>
        <translation>SAS-Programm</translation>
    </message>
    <message>
        <source>Statements for the active dataset: where, if, keep, drop, by</source>
        <translation>Anweisungen für den aktiven Datensatz: where, if, keep, drop, by</translation>
    </message>
</context>
<context>
    <name>ProgramRunner</name>
    <message>
        <source>Not all of these are variables.</source>
        <translation>Nicht alle dieser Namen sind Variablen.</translation>
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
        <translation>SAS-Datensätze öffnen</translation>
    </message>
    <message>
        <source>Open a SAS dataset.</source>
        <translation>Öffnet einen SAS-Datensatz.</translation>
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
        <translation>Nächster Datensatz-Tab</translation>
    </message>
    <message>
        <source>Switch to the next dataset window.</source>
        <translation>Wechselt zum nächsten Datensatzfenster.</translation>
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
        <translation>Datensatzfilter: in</translation>
    </message>
    <message>
        <source>Filter data with operator &apos;in&apos;.</source>
        <translation>Filtert die Daten mit dem Operator „in“.</translation>
    </message>
    <message>
        <source>Dataset Filter, Equal</source>
        <translation>Datensatzfilter: gleich</translation>
    </message>
    <message>
        <source>Filter data with operator =.</source>
        <translation>Filtert die Daten mit dem Operator =.</translation>
    </message>
    <message>
        <source>Dataset Filter, Uneuqal</source>
        <translation>Datensatzfilter: ungleich</translation>
    </message>
    <message>
        <source>Filter data with operator ^= or ~=.</source>
        <translation>Filtert die Daten mit dem Operator ^= oder ~=.</translation>
    </message>
    <message>
        <source>Dataset Filter, Greater</source>
        <translation>Datensatzfilter: größer</translation>
    </message>
    <message>
        <source>Filter data with operator &gt;.</source>
        <translation>Filtert die Daten mit dem Operator &gt;.</translation>
    </message>
    <message>
        <source>Dataset Filter, Less</source>
        <translation>Datensatzfilter: kleiner</translation>
    </message>
    <message>
        <source>Filter data with operator &lt;.</source>
        <translation>Filtert die Daten mit dem Operator &lt;.</translation>
    </message>
    <message>
        <source>Dataset Filter, Greater or Equal</source>
        <translation>Datensatzfilter: &gt;=</translation>
    </message>
    <message>
        <source>Filter data with operator &gt;=.</source>
        <translation>Filtert die Daten mit dem Operator &gt;=.</translation>
    </message>
    <message>
        <source>Dataset Filter, Less or Equal</source>
        <translation>Datensatzfilter: &lt;=</translation>
    </message>
    <message>
        <source>Filter data with operator &lt;=.</source>
        <translation>Filtert die Daten mit dem Operator &lt;=.</translation>
    </message>
    <message>
        <source>Dataset Filter, Undo</source>
        <translation>Datensatzfilter: zurück</translation>
    </message>
    <message>
        <source>Undo one step of dataset filter.</source>
        <translation>Nimmt einen Schritt des Datensatzfilters zurück.</translation>
    </message>
    <message>
        <source>Clear Dataset Filter</source>
        <translation>Datensatzfilter aufheben</translation>
    </message>
    <message>
        <source>Clear dataset level filter.</source>
        <translation>Hebt den Filter des Datensatzes auf.</translation>
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
        <translation>Zählt die Häufigkeiten der ausgewählten Variablen. Mehrere Variablen werden mit gedrückter Ctrl-Taste ausgewählt.</translation>
    </message>
    <message>
        <source>Freq (UniqueID)</source>
        <translation>Häufigkeiten (UniqueID)</translation>
    </message>
    <message>
        <source>Count distinct UniqueID of the selected variable(s). Select multiple variables by holding down the Ctrl key.</source>
        <translation>Zählt die verschiedenen eindeutigen IDs (UniqueID) zu den ausgewählten Variablen. Mehrere Variablen werden mit gedrückter Ctrl-Taste ausgewählt.</translation>
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
        <translation>Datensatz schließen</translation>
    </message>
    <message>
        <source>Close the current dataset.</source>
        <translation>Schließt den aktuellen Datensatz.</translation>
    </message>
    <message>
        <source>Close All Datasets</source>
        <translation>Alle Datensätze schließen</translation>
    </message>
    <message>
        <source>Close all the opened datasets</source>
        <translation>Schließt alle geöffneten Datensätze.</translation>
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
        <translation>Springt im Datensatzfenster zur Variablen mit dem Fokus.</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Dataset Window</source>
        <translation>Datensatzfenster</translation>
    </message>
    <message>
        <source>Frequency Window</source>
        <translation>Häufigkeitsfenster</translation>
    </message>
    <message>
        <source>Variables Window</source>
        <translation>Variablenfenster</translation>
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
    <name>StatisticsTable</name>
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
Dieser Datensatz wird damit nicht gefiltert: %2</translation>
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
</context>
</TS>
