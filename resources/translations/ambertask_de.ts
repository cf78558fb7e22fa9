<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AlertActions</name>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Erledigen</translation>
    </message>
    <message>
        <source>&amp;Open Item</source>
        <translation>Aufgabe ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Remind me later</source>
        <translation>&amp;Später erinnern</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Verwerfen</translation>
    </message>
</context>
<context>
    <name>AlertListModel</name>
    <message>
        <source>id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Kategorie: %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>AlertNotification</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Later (15 minutes)</source>
        <translation>Später (15 Minuten)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>Cancelled</name>
    <message>
        <source>The operation was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>CategoriesPage</name>
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
        <source>&amp;Help</source>
        <translation>H&amp;ilfe</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Add a category</source>
        <translation>Kategorie hinzufügen</translation>
    </message>
    <message>
        <source>Edit the selected category</source>
        <translation>Ausgewählte Kategorie bearbeiten</translation>
    </message>
    <message>
        <source>Delete the selected category</source>
        <translation>Ausgewählte Kategorie löschen</translation>
    </message>
    <message>
        <source>Help on categories</source>
        <translation>Hilfe zu Kategorien</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos; category, all tasks under this category will be deleted?</source>
        <translation>Möchten Sie die Kategorie „%1“ wirklich löschen? Alle Aufgaben dieser Kategorie werden mitgelöscht.</translation>
    </message>
    <message>
        <source>Category &quot;%1&quot; deleted with its tasks</source>
        <translation>Kategorie „%1“ mit ihren Aufgaben gelöscht</translation>
    </message>
    <message>
        <source>There are no categories yet</source>
        <translation>Es gibt noch keine Kategorien</translation>
    </message>
</context>
<context>
    <name>CategoryInput</name>
    <message>
        <source>The changes to the category are not saved.</source>
        <translation>Die Änderungen an der Kategorie sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>Die Änderungen an „%1“ sind nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>CategoryPictures</name>
    <message>
        <source>Home</source>
        <translation>Zuhause</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Einkaufen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Post</translation>
    </message>
    <message>
        <source>Finance</source>
        <translation>Finanzen</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Reisen</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Lernen</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>Ideen</translation>
    </message>
</context>
<context>
    <name>ChangeTexts</name>
    <message>
        <source>1 task deleted</source>
        <translation>1 Aufgabe gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted</source>
        <translation>
            <numerusform>%n Aufgabe gelöscht</numerusform>
            <numerusform>%n Aufgaben gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task duplicated</source>
        <translation>1 Aufgabe dupliziert</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks duplicated</source>
        <translation>
            <numerusform>%n Aufgabe dupliziert</numerusform>
            <numerusform>%n Aufgaben dupliziert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task completed</source>
        <translation>1 Aufgabe erledigt</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks completed</source>
        <translation>
            <numerusform>%n Aufgabe erledigt</numerusform>
            <numerusform>%n Aufgaben erledigt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task set back to &quot;Not Started&quot;</source>
        <translation>1 Aufgabe auf „Nicht begonnen“ zurückgesetzt</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks set back to &quot;Not Started&quot;</source>
        <translation>
            <numerusform>%n Aufgabe auf „Nicht begonnen“ zurückgesetzt</numerusform>
            <numerusform>%n Aufgaben auf „Nicht begonnen“ zurückgesetzt</numerusform>
        </translation>
    </message>
    <message>
        <source>Status of 1 task changed</source>
        <translation>Status von 1 Aufgabe geändert</translation>
    </message>
    <message numerus="yes">
        <source>Status of %n tasks changed</source>
        <translation>
            <numerusform>Status von %n Aufgabe geändert</numerusform>
            <numerusform>Status von %n Aufgaben geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Priority of 1 task changed</source>
        <translation>Priorität von 1 Aufgabe geändert</translation>
    </message>
    <message numerus="yes">
        <source>Priority of %n tasks changed</source>
        <translation>
            <numerusform>Priorität von %n Aufgabe geändert</numerusform>
            <numerusform>Priorität von %n Aufgaben geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Category of 1 task changed</source>
        <translation>Kategorie von 1 Aufgabe geändert</translation>
    </message>
    <message numerus="yes">
        <source>Category of %n tasks changed</source>
        <translation>
            <numerusform>Kategorie von %n Aufgabe geändert</numerusform>
            <numerusform>Kategorie von %n Aufgaben geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder dismissed</source>
        <translation>1 Erinnerung verworfen</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders dismissed</source>
        <translation>
            <numerusform>%n Erinnerung verworfen</numerusform>
            <numerusform>%n Erinnerungen verworfen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder postponed</source>
        <translation>1 Erinnerung aufgeschoben</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders postponed</source>
        <translation>
            <numerusform>%n Erinnerung aufgeschoben</numerusform>
            <numerusform>%n Erinnerungen aufgeschoben</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task imported</source>
        <translation>1 Aufgabe importiert</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks imported</source>
        <translation>
            <numerusform>%n Aufgabe importiert</numerusform>
            <numerusform>%n Aufgaben importiert</numerusform>
        </translation>
    </message>
    <message>
        <source>No copy was kept: %1</source>
        <translation>Es wurde keine Kopie aufbewahrt: %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>1 task moved on to its next time</source>
        <translation>1 Aufgabe auf den nächsten Termin verschoben</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks deleted this time</source>
        <translation>
            <numerusform>%n Aufgabe nur für diesen Termin gelöscht</numerusform>
            <numerusform>%n Aufgaben nur für diesen Termin gelöscht</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ClsTask</name>
    <message>
        <source>The statement is unfinished: %1</source>
        <translation>Die Anweisung ist unvollständig: %1</translation>
    </message>
    <message>
        <source>The task was not stored: there is no number left for a new one. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>Die Aufgabe wurde nicht gespeichert: Für eine neue ist keine Nummer mehr frei. Löschen Sie Aufgaben, die Sie nicht mehr brauchen, beenden Sie dann Ambertask und starten Sie es neu.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Die Option „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value.</source>
        <translation>Die Option „%1“ braucht einen Wert.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; takes no value.</source>
        <translation>Die Option „%1“ nimmt keinen Wert an.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;; the formats are &quot;ics&quot; and &quot;csv&quot;.</source>
        <translation>Das Format „%1“ gibt es nicht; die Formate sind „ics“ und „csv“.</translation>
    </message>
    <message>
        <source>With &quot;-&quot; the format has to be said, by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>Bei „-“ muss das Format angegeben werden, mit „--format ics“ oder „--format csv“.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; ends neither in &quot;.ics&quot; nor in &quot;.csv&quot;; say the format by &quot;--format ics&quot; or &quot;--format csv&quot;.</source>
        <translation>Der Name „%1“ endet weder auf „.ics“ noch auf „.csv“; geben Sie das Format mit „--format ics“ oder „--format csv“ an.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; goes with &quot;%2&quot; only.</source>
        <translation>Die Option „%1“ ist nur zusammen mit „%2“ möglich.</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; do not go together.</source>
        <translation>Die Optionen „%1“ und „%2“ schließen einander aus.</translation>
    </message>
    <message>
        <source>The word &quot;%1&quot; is one too many.</source>
        <translation>Das Wort „%1“ ist überzählig.</translation>
    </message>
    <message>
        <source>Ambertask --export FILE [--format ics|csv]</source>
        <translation>Ambertask --export DATEI [--format ics|csv]</translation>
    </message>
    <message>
        <source>Ambertask --import FILE [--format ics|csv] [--yes] [--with-programs]</source>
        <translation>Ambertask --import DATEI [--format ics|csv] [--yes] [--with-programs]</translation>
    </message>
    <message>
        <source>Without an option the organizer starts with its window. With one of these it does what it is told and ends, without a window, also while a copy runs:</source>
        <translation>Ohne Option startet Ambertask mit seinem Fenster. Mit einer der folgenden Optionen führt es den Auftrag ohne Fenster aus und endet dann, auch wenn Ambertask bereits läuft:</translation>
    </message>
    <message>
        <source>Writes all tasks, each on a line, with tabs between the fields, which the first line names. In texts \t stands for a tab, \n for a line break and \\ for \.</source>
        <translation>Gibt alle Aufgaben aus, jede in einer Zeile, mit Tabulatoren zwischen den Feldern, die die erste Zeile nennt. In Texten steht \t für einen Tabulator, \n für einen Zeilenumbruch und \\ für \.</translation>
    </message>
    <message>
        <source>Writes all tasks as an array of JSON objects.</source>
        <translation>Gibt alle Aufgaben als Array von JSON-Objekten aus.</translation>
    </message>
    <message>
        <source>--export FILE</source>
        <translation>--export DATEI</translation>
    </message>
    <message>
        <source>Writes all tasks to FILE, as iCalendar (.ics) or CSV (.csv).</source>
        <translation>Schreibt alle Aufgaben in DATEI, als iCalendar (.ics) oder CSV (.csv).</translation>
    </message>
    <message>
        <source>--import FILE</source>
        <translation>--import DATEI</translation>
    </message>
    <message>
        <source>Says what an import of FILE would do and imports nothing; the status is 1.</source>
        <translation>Gibt aus, was ein Import von DATEI bewirken würde, und importiert nichts; der Rückgabewert ist 1.</translation>
    </message>
    <message>
        <source>--import FILE --yes</source>
        <translation>--import DATEI --yes</translation>
    </message>
    <message>
        <source>Imports FILE, without the programs that its tasks would start; it names them.</source>
        <translation>Importiert DATEI ohne die Programme, die die Aufgaben darin starten würden, und nennt diese.</translation>
    </message>
    <message>
        <source>--import FILE --yes --with-programs</source>
        <translation>--import DATEI --yes --with-programs</translation>
    </message>
    <message>
        <source>Imports these programs as well.</source>
        <translation>Importiert auch diese Programme.</translation>
    </message>
    <message>
        <source>The format of FILE, where its name does not tell. FILE can be &quot;-&quot; then, for standard output or standard input.</source>
        <translation>Das Format von DATEI, wenn es nicht aus dem Namen hervorgeht. DATEI kann dann „-“ sein, für die Standardausgabe oder die Standardeingabe.</translation>
    </message>
    <message>
        <source>Writes this text.</source>
        <translation>Gibt diesen Text aus.</translation>
    </message>
    <message>
        <source>Writes the version.</source>
        <translation>Gibt die Version aus.</translation>
    </message>
    <message>
        <source>The status is 0, 1 when something has failed, and 2 when the command line is wrong.</source>
        <translation>Der Rückgabewert ist 0, bei einem Fehler 1 und bei einer falschen Befehlszeile 2.</translation>
    </message>
    <message>
        <source>--format ics|csv</source>
        <translation>--format ics|csv</translation>
    </message>
</context>
<context>
    <name>CommandRun</name>
    <message>
        <source>1 record cannot be read and is left out. %1</source>
        <translation>1 Eintrag kann nicht gelesen werden und wird ausgelassen. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n records cannot be read and are left out. The first: %1</source>
        <translation>
            <numerusform>%n Eintrag kann nicht gelesen werden und wird ausgelassen. Der erste: %1</numerusform>
            <numerusform>%n Einträge können nicht gelesen werden und werden ausgelassen. Der erste: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>See &quot;Ambertask --help&quot;.</source>
        <translation>Siehe „Ambertask --help“.</translation>
    </message>
    <message>
        <source>Nothing was imported; the option &quot;--yes&quot; imports it.</source>
        <translation>Es wurde nichts importiert; mit der Option „--yes“ wird importiert.</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Es gibt nichts zu importieren.</translation>
    </message>
    <message>
        <source>Imported.</source>
        <translation>Importiert.</translation>
    </message>
    <message>
        <source>What cannot be read in the file was left out.</source>
        <translation>Was in der Datei nicht gelesen werden kann, wurde ausgelassen.</translation>
    </message>
    <message>
        <source>New: %1</source>
        <translation>Neu: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>New category: %1</source>
        <translation>Neue Kategorie: %1</translation>
    </message>
    <message>
        <source>Starts a program, &quot;%1&quot;: %2</source>
        <translation>Startet ein Programm, „%1“: %2</translation>
    </message>
    <message>
        <source>Left out, a program that &quot;%1&quot; would start: %2</source>
        <translation>Ausgelassen, ein Programm, das „%1“ starten würde: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1: %2</source>
        <translation>Nicht lesbar, Zeile %1: %2</translation>
    </message>
    <message>
        <source>Not readable, line %1, &quot;%2&quot;: %3</source>
        <translation>Nicht lesbar, Zeile %1, „%2“: %3</translation>
    </message>
    <message>
        <source>There are no tasks yet: the program folder &quot;%1&quot; does not exist. The first start makes it, and so does an import.</source>
        <translation>Es gibt noch keine Aufgaben: Der Programmordner „%1“ ist nicht vorhanden. Der erste Start legt ihn an, ebenso ein Import.</translation>
    </message>
    <message>
        <source>There are no tasks yet. The first start makes the data file, and so does an import.</source>
        <translation>Es gibt noch keine Aufgaben. Der erste Start legt die Datendatei an, ebenso ein Import.</translation>
    </message>
</context>
<context>
    <name>CompiledHelpWindow</name>
    <message>
        <source>Ambertask Help</source>
        <translation>Ambertask-Hilfe</translation>
    </message>
    <message>
        <source>Topic</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Startseite</translation>
    </message>
    <message>
        <source>&amp;Smaller text</source>
        <translation>&amp;Kleinere Schrift</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Inde&amp;x</translation>
    </message>
    <message>
        <source>S&amp;earch</source>
        <translation>S&amp;uche</translation>
    </message>
    <message>
        <source>The help cannot be shown</source>
        <translation>Die Hilfe kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is damaged or cannot be read. Installing the program again brings it back; your tasks are kept.</source>
        <translation>Die Hilfedatei „%1“ ist beschädigt oder nicht lesbar. Eine Neuinstallation des Programms stellt sie wieder her; Ihre Aufgaben bleiben erhalten.</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is not in the program&apos;s folder. Installing the program again brings it back; your tasks are kept.</source>
        <translation>Die Hilfedatei „%1“ befindet sich nicht im Programmordner. Eine Neuinstallation des Programms stellt sie wieder her; Ihre Aufgaben bleiben erhalten.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>Diese Seite kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>The help file has no topic number %1.</source>
        <translation>Die Hilfedatei enthält kein Thema mit der Nummer %1.</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>La&amp;rger text</source>
        <translation>&amp;Größere Schrift</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. Do you want to write this topic to a PDF file instead?</source>
        <translation>Auf diesem Computer ist kein Drucker eingerichtet. Möchten Sie dieses Thema stattdessen in eine PDF-Datei schreiben?</translation>
    </message>
    <message>
        <source>The topic could not be printed.</source>
        <translation>Das Thema konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The topic could not be written to &quot;%1&quot;: %2.</source>
        <translation>Das Thema konnte nicht in „%1“ geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF gespeichert als „%1“</translation>
    </message>
</context>
<context>
    <name>Connection</name>
    <message>
        <source>The connection is open already.</source>
        <translation>Die Verbindung ist bereits geöffnet.</translation>
    </message>
    <message>
        <source>The data file knows no users and no passwords.</source>
        <translation>Die Datendatei kennt keine Benutzer und keine Kennwörter.</translation>
    </message>
    <message>
        <source>The connection string &quot;%1&quot; names no data file.</source>
        <translation>Die Verbindungszeichenfolge „%1“ nennt keine Datendatei.</translation>
    </message>
    <message>
        <source>The connection to the data file is not open.</source>
        <translation>Die Verbindung zur Datendatei ist nicht geöffnet.</translation>
    </message>
</context>
<context>
    <name>ContentsPane</name>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
</context>
<context>
    <name>CopyListModel</name>
    <message>
        <source>First change of the day</source>
        <translation>Erste Änderung des Tages</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Deletion of tasks</source>
        <translation>Löschen von Aufgaben</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>1 task added</source>
        <translation>1 Aufgabe hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks added</source>
        <translation>
            <numerusform>%n Aufgabe hinzugefügt</numerusform>
            <numerusform>%n Aufgaben hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task changed</source>
        <translation>1 Aufgabe geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks changed</source>
        <translation>
            <numerusform>%n Aufgabe geändert</numerusform>
            <numerusform>%n Aufgaben geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task gone</source>
        <translation>1 Aufgabe entfernt</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks gone</source>
        <translation>
            <numerusform>%n Aufgabe entfernt</numerusform>
            <numerusform>%n Aufgaben entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>other categories</source>
        <translation>Kategorien geändert</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>nichts geändert</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Since then</source>
        <translation>Seitdem</translation>
    </message>
    <message>
        <source>is being compared...</source>
        <translation>wird verglichen…</translation>
    </message>
</context>
<context>
    <name>CustomIcons</name>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: this is not a plain file name.</source>
        <translation>Das Bild „%1“ kann nicht verwendet werden: Das ist kein einfacher Dateiname.</translation>
    </message>
</context>
<context>
    <name>DataFileCopies</name>
    <message>
        <source>&quot;%1&quot; belongs to the data file.</source>
        <translation>„%1“ gehört zur Datendatei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the data file itself.</source>
        <translation>„%1“ ist die Datendatei selbst.</translation>
    </message>
    <message>
        <source>An operation on &quot;%1&quot; is not finished.</source>
        <translation>Ein Vorgang an „%1“ ist nicht abgeschlossen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no data file.</source>
        <translation>„%1“ ist keine Datendatei.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>DataFileRoad</name>
    <message>
        <source>The data file was made by a later version of Ambertask; this version cannot use it.</source>
        <translation>Die Datendatei wurde mit einer späteren Version von Ambertask angelegt; diese Version kann sie nicht verwenden.</translation>
    </message>
</context>
<context>
    <name>Dialect</name>
    <message>
        <source>The date literal %1 is not of the form #month/day/year hours:minutes#.</source>
        <translation>Das Datumsliteral %1 hat nicht die Form #Monat/Tag/Jahr Stunden:Minuten#.</translation>
    </message>
    <message>
        <source>The date literal %1 names no existing day and time.</source>
        <translation>Das Datumsliteral %1 nennt keinen existierenden Zeitpunkt.</translation>
    </message>
    <message>
        <source>The statement holds a zero character.</source>
        <translation>Die Anweisung enthält ein Nullzeichen.</translation>
    </message>
    <message>
        <source>The date literal %1 is not closed.</source>
        <translation>Das Datumsliteral %1 ist nicht abgeschlossen.</translation>
    </message>
</context>
<context>
    <name>DisplayGate</name>
    <message>
        <source>Ambertask needs a graphical desktop, and none could be reached from here.</source>
        <translation>Ambertask braucht eine grafische Arbeitsumgebung, und von hier aus war keine zu erreichen.</translation>
    </message>
</context>
<context>
    <name>Draft</name>
    <message>
        <source>The input is too large. Nothing was stored.</source>
        <translation>Die Eingabe ist zu groß. Es wurde nichts gespeichert.</translation>
    </message>
</context>
<context>
    <name>EmptyListNote</name>
    <message>
        <source>%1 of 1 task</source>
        <translation>%1 von 1 Aufgabe</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n tasks</source>
        <translation>
            <numerusform>%1 von %n Aufgabe</numerusform>
            <numerusform>%1 von %n Aufgaben</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show all</source>
        <translation>Alle a&amp;nzeigen</translation>
    </message>
    <message>
        <source>There are no tasks yet</source>
        <translation>Es gibt noch keine Aufgaben</translation>
    </message>
    <message>
        <source>No task matches the filters</source>
        <translation>Keine Aufgabe passt zu den Filtern</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;</source>
        <translation>Nichts gefunden zu „%1“</translation>
    </message>
</context>
<context>
    <name>ExchangeTexts</name>
    <message>
        <source>The file could not be read: %1.</source>
        <translation>Die Datei konnte nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The file is no iCalendar file.</source>
        <translation>Die Datei ist keine iCalendar-Datei.</translation>
    </message>
    <message>
        <source>It has no end.</source>
        <translation>Der Eintrag hat kein Ende.</translation>
    </message>
    <message>
        <source>Its parts are nested too deeply.</source>
        <translation>Die Teile des Eintrags sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The file ends in the middle of it.</source>
        <translation>Die Datei endet mitten im Eintrag.</translation>
    </message>
    <message>
        <source>One of its parts has no end.</source>
        <translation>Ein Teil des Eintrags hat kein Ende.</translation>
    </message>
    <message>
        <source>One of its lines is too long.</source>
        <translation>Eine Zeile des Eintrags ist zu lang.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Der Eintrag ist zu groß.</translation>
    </message>
    <message>
        <source>It has too many columns.</source>
        <translation>Der Eintrag hat zu viele Spalten.</translation>
    </message>
    <message>
        <source>One of its quotes has no end.</source>
        <translation>Ein Anführungszeichen im Eintrag wird nicht geschlossen.</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; cannot be read: %2</source>
        <translation>Die Spalte „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file is no list of tasks: its first line has no column &quot;%1&quot;.</source>
        <translation>Die Datei ist keine Aufgabenliste: In ihrer ersten Zeile fehlt die Spalte „%1“.</translation>
    </message>
    <message>
        <source>It holds bytes that are no text in UTF-8.</source>
        <translation>Der Eintrag enthält Bytes, die kein Text in UTF-8 sind.</translation>
    </message>
    <message>
        <source>1 task is new.</source>
        <translation>1 Aufgabe ist neu.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are new.</source>
        <translation>
            <numerusform>%n Aufgabe ist neu.</numerusform>
            <numerusform>%n Aufgaben sind neu.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is changed.</source>
        <translation>1 Aufgabe wird geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are changed.</source>
        <translation>
            <numerusform>%n Aufgabe wird geändert.</numerusform>
            <numerusform>%n Aufgaben werden geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is the same.</source>
        <translation>1 Aufgabe ist unverändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are the same.</source>
        <translation>
            <numerusform>%n Aufgabe ist unverändert.</numerusform>
            <numerusform>%n Aufgaben sind unverändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file holds no task.</source>
        <translation>Die Datei enthält keine Aufgabe.</translation>
    </message>
    <message>
        <source>1 category is made.</source>
        <translation>1 Kategorie wird angelegt.</translation>
    </message>
    <message numerus="yes">
        <source>%n categories are made.</source>
        <translation>
            <numerusform>%n Kategorie wird angelegt.</numerusform>
            <numerusform>%n Kategorien werden angelegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task cannot be read and stays out.</source>
        <translation>1 Aufgabe kann nicht gelesen werden und wird ausgelassen.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks cannot be read and stay out.</source>
        <translation>
            <numerusform>%n Aufgabe kann nicht gelesen werden und wird ausgelassen.</numerusform>
            <numerusform>%n Aufgaben können nicht gelesen werden und werden ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry is no task and stays out.</source>
        <translation>1 Eintrag ist keine Aufgabe und wird ausgelassen.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are no tasks and stay out.</source>
        <translation>
            <numerusform>%n Eintrag ist keine Aufgabe und wird ausgelassen.</numerusform>
            <numerusform>%n Einträge sind keine Aufgaben und werden ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 reminder is past and comes in as dismissed.</source>
        <translation>1 Erinnerung liegt in der Vergangenheit und wird als verworfen importiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n reminders are past and come in as dismissed.</source>
        <translation>
            <numerusform>%n Erinnerung liegt in der Vergangenheit und wird als verworfen importiert.</numerusform>
            <numerusform>%n Erinnerungen liegen in der Vergangenheit und werden als verworfen importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task repeats and comes in once.</source>
        <translation>1 Aufgabe wiederholt sich und wird nur einmal importiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks repeat and come in once.</source>
        <translation>
            <numerusform>%n Aufgabe wiederholt sich und wird nur einmal importiert.</numerusform>
            <numerusform>%n Aufgaben wiederholen sich und werden nur einmal importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task has no due date and is due today.</source>
        <translation>1 Aufgabe hat kein Fälligkeitsdatum und wird heute fällig.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks have no due date and are due today.</source>
        <translation>
            <numerusform>%n Aufgabe hat kein Fälligkeitsdatum und wird heute fällig.</numerusform>
            <numerusform>%n Aufgaben haben kein Fälligkeitsdatum und werden heute fällig.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 further reminder is kept, but does not remind.</source>
        <translation>1 weitere Erinnerung bleibt erhalten, erinnert aber nicht.</translation>
    </message>
    <message numerus="yes">
        <source>%n further reminders are kept, but do not remind.</source>
        <translation>
            <numerusform>%n weitere Erinnerung bleibt erhalten, erinnert aber nicht.</numerusform>
            <numerusform>%n weitere Erinnerungen bleiben erhalten, erinnern aber nicht.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task is in an unknown time zone and is taken as local time.</source>
        <translation>1 Aufgabe hat eine unbekannte Zeitzone und wird als Ortszeit gelesen.</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are in unknown time zones and are taken as local time.</source>
        <translation>
            <numerusform>%n Aufgabe hat eine unbekannte Zeitzone und wird als Ortszeit gelesen.</numerusform>
            <numerusform>%n Aufgaben haben unbekannte Zeitzonen und werden als Ortszeit gelesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tasks cannot be exported or imported: the module &quot;ambertask_exchange&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>Aufgaben können weder exportiert noch importiert werden: Das Modul „ambertask_exchange“ fehlt im Programmordner oder ist beschädigt.</translation>
    </message>
    <message>
        <source>Imported</source>
        <translation>Importiert</translation>
    </message>
    <message>
        <source>A task before it has the same UID.</source>
        <translation>Eine Aufgabe davor hat dieselbe UID.</translation>
    </message>
    <message>
        <source>The file holds more than %1 tasks that are new. Nothing was stored.</source>
        <translation>Die Datei enthält mehr als %1 neue Aufgaben. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The file is too large. Nothing was stored.</source>
        <translation>Die Datei ist zu groß. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The file holds %1 tasks that are new, and there is room for %2. Nothing was stored. Delete tasks that you no longer need, then end Ambertask and start it again.</source>
        <translation>Die Datei enthält %1 neue Aufgaben, aber es ist nur Platz für %2. Es wurde nichts gespeichert. Löschen Sie Aufgaben, die Sie nicht mehr brauchen, beenden Sie dann Ambertask und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The tasks could not be written: %1.</source>
        <translation>Die Aufgaben konnten nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>Its due date cannot be read: %1</source>
        <translation>Das Fälligkeitsdatum kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Nothing was stored: another program has changed the tasks meanwhile.</source>
        <translation>Es wurde nichts gespeichert: Ein anderes Programm hat die Aufgaben inzwischen geändert.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>FileError</name>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>there is no file name</source>
        <translation>der Dateiname fehlt</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the file would be too large</source>
        <translation>die Datei würde zu groß</translation>
    </message>
    <message>
        <source>there is no permission for that</source>
        <translation>dafür fehlt die Berechtigung</translation>
    </message>
    <message>
        <source>nothing can be written to that disk</source>
        <translation>auf diesen Datenträger kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the file or its folder does not exist</source>
        <translation>die Datei oder ihr Ordner existiert nicht</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>the disk failed or was taken out</source>
        <translation>der Datenträger ist defekt oder wurde entfernt</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>ein anderes Programm verwendet sie</translation>
    </message>
</context>
<context>
    <name>FileExchange</name>
    <message>
        <source>iCalendar Files (*.ics)|*.ics</source>
        <translation>iCalendar-Dateien (*.ics)|*.ics</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)|*.csv</source>
        <translation>CSV-Dateien (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>the name of the file ends neither with .ics nor with .csv</source>
        <translation>der Dateiname endet weder auf .ics noch auf .csv</translation>
    </message>
    <message>
        <source>1 task was exported to &quot;%1&quot;</source>
        <translation>1 Aufgabe wurde nach „%1“ exportiert</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were exported to &quot;%1&quot;</source>
        <translation>
            <numerusform>%n Aufgabe wurde nach „%1“ exportiert</numerusform>
            <numerusform>%n Aufgaben wurden nach „%1“ exportiert</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was added</source>
        <translation>1 Aufgabe wurde hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were added</source>
        <translation>
            <numerusform>%n Aufgabe wurde hinzugefügt</numerusform>
            <numerusform>%n Aufgaben wurden hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 task was changed</source>
        <translation>1 Aufgabe wurde geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were changed</source>
        <translation>
            <numerusform>%n Aufgabe wurde geändert</numerusform>
            <numerusform>%n Aufgaben wurden geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>iCalendar and CSV Files (*.ics;*.csv)|*.ics;*.csv</source>
        <translation>iCalendar- und CSV-Dateien (*.ics;*.csv)|*.ics;*.csv</translation>
    </message>
    <message>
        <source>Exporting the tasks...</source>
        <translation>Die Aufgaben werden exportiert…</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Nothing was exported: %1</source>
        <translation>Es wurde nichts exportiert: %1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>Die Datei wird gelesen…</translation>
    </message>
    <message>
        <source>Nothing was imported: %1</source>
        <translation>Es wurde nichts importiert: %1</translation>
    </message>
    <message>
        <source>Importing the tasks...</source>
        <translation>Die Aufgaben werden importiert…</translation>
    </message>
    <message>
        <source>Nothing was imported.
%1</source>
        <translation>Es wurde nichts importiert.
%1</translation>
    </message>
    <message>
        <source>Nothing was imported yet: the tasks or the file have been changed meanwhile.
The window shows what the import would do now.</source>
        <translation>Es wurde noch nichts importiert: Die Aufgaben oder die Datei wurden inzwischen geändert.
Das Fenster zeigt, was der Import jetzt bewirken würde.</translation>
    </message>
</context>
<context>
    <name>FilterFold</name>
    <message>
        <source>Unfold the filters</source>
        <translation>Filter aufklappen</translation>
    </message>
    <message>
        <source>Fold the filters away</source>
        <translation>Filter einklappen</translation>
    </message>
</context>
<context>
    <name>FindField</name>
    <message>
        <source>Find tasks</source>
        <translation>Aufgaben finden</translation>
    </message>
</context>
<context>
    <name>GridView</name>
    <message>
        <source>Sorts the list</source>
        <translation>Sortiert die Liste</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Aufsteigend sortiert</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Absteigend sortiert</translation>
    </message>
</context>
<context>
    <name>HTMLHelpViewer</name>
    <message>
        <source>The help window is missing from this installation.</source>
        <translation>Das Hilfefenster fehlt in dieser Installation.</translation>
    </message>
</context>
<context>
    <name>ImportListModel</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Same</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
</context>
<context>
    <name>IndexPane</name>
    <message>
        <source>First letters of a keyword</source>
        <translation>Anfangsbuchstaben eines Stichworts</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>&amp;Keyword</source>
        <translation>S&amp;tichwort</translation>
    </message>
</context>
<context>
    <name>KeptCopies</name>
    <message>
        <source>it is not a folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>der Datenträger ist fast voll</translation>
    </message>
</context>
<context>
    <name>Lateness</name>
    <message>
        <source>due now</source>
        <translation>jetzt fällig</translation>
    </message>
    <message>
        <source>1 minute late</source>
        <translation>seit 1 Minute fällig</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes late</source>
        <translation>
            <numerusform>seit %n Minute fällig</numerusform>
            <numerusform>seit %n Minuten fällig</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour late</source>
        <translation>seit 1 Stunde fällig</translation>
    </message>
    <message numerus="yes">
        <source>%n hours late</source>
        <translation>
            <numerusform>seit %n Stunde fällig</numerusform>
            <numerusform>seit %n Stunden fällig</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day late</source>
        <translation>seit 1 Tag fällig</translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>seit %n Tag fällig</numerusform>
            <numerusform>seit %n Tagen fällig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n times since %1</source>
        <translation>
            <numerusform>%n-mal seit %1</numerusform>
            <numerusform>%n-mal seit %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MaintenancePage</name>
    <message>
        <source>Ambertaks Backup Files (*.abk)|*.abk</source>
        <translation>Ambertask-Sicherungen (*.abk)|*.abk</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>H&amp;ilfe</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete Tasks</source>
        <translation>Aufgaben löschen</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>Stat&amp;us</translation>
    </message>
    <message>
        <source>&amp;All tasks</source>
        <translation>&amp;Alle Aufgaben</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>Nur ak&amp;tive Aufgaben</translation>
    </message>
    <message>
        <source>&amp;Expired tasks only</source>
        <translation>Nur überfälli&amp;ge Aufgaben</translation>
    </message>
    <message>
        <source>Date Range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>Bi&amp;s</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>Si&amp;chern</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Backup and Restore</source>
        <translation>Sichern und Wiederherstellen</translation>
    </message>
    <message>
        <source>There is no tasks according to the selected criteria!</source>
        <translation>Es gibt keine Aufgaben, auf die die gewählten Kriterien zutreffen!</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>Möchten Sie %n Aufgabe wirklich löschen?</numerusform>
            <numerusform>Möchten Sie %n Aufgaben wirklich löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Backing up the data...</source>
        <translation>Die Daten werden gesichert…</translation>
    </message>
    <message>
        <source>Restoring the data...</source>
        <translation>Die Daten werden wiederhergestellt…</translation>
    </message>
    <message>
        <source>Deleting the tasks...</source>
        <translation>Die Aufgaben werden gelöscht…</translation>
    </message>
    <message>
        <source>1 task was deleted</source>
        <translation>1 Aufgabe wurde gelöscht</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks were deleted</source>
        <translation>
            <numerusform>%n Aufgabe wurde gelöscht</numerusform>
            <numerusform>%n Aufgaben wurden gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored from &quot;%1&quot;</source>
        <translation>Aus „%1“ wiederhergestellt</translation>
    </message>
    <message>
        <source>Restored 1 task from &quot;%1&quot;; what was there before is in %2</source>
        <translation>1 Aufgabe aus „%1“ wiederhergestellt; was vorher da war, liegt in %2</translation>
    </message>
    <message numerus="yes">
        <source>Restored %n tasks from &quot;%1&quot;; what was there before is in %2</source>
        <translation>
            <numerusform>%n Aufgabe aus „%1“ wiederhergestellt; was vorher da war, liegt in %2</numerusform>
            <numerusform>%n Aufgaben aus „%1“ wiederhergestellt; was vorher da war, liegt in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup saved to &quot;%1&quot;</source>
        <translation>Sicherung gespeichert als „%1“</translation>
    </message>
    <message>
        <source>The backup could not be written: %1</source>
        <translation>Die Sicherung konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Nothing was restored: %1</source>
        <translation>Es wurde nichts wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>Restore from a c&amp;opy...</source>
        <translation>Aus K&amp;opie wiederherstellen…</translation>
    </message>
    <message>
        <source>Shows the copies of your data that the program has made by itself</source>
        <translation>Zeigt die Kopien Ihrer Daten, die das Programm selbst angelegt hat</translation>
    </message>
    <message>
        <source>Exchange with other programs</source>
        <translation>Austausch mit anderen Programmen</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>Saves all tasks as iCalendar or CSV, for other programs</source>
        <translation>Speichert alle Aufgaben als iCalendar oder CSV, für andere Programme</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>I&amp;mportieren…</translation>
    </message>
    <message>
        <source>Adds the tasks of an iCalendar or CSV file; shows first what would happen</source>
        <translation>Fügt die Aufgaben einer iCalendar- oder CSV-Datei hinzu; zeigt vorher, was geschehen würde</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;This Time</source>
        <translation>&amp;Diesen Termin</translation>
    </message>
    <message>
        <source>&amp;All Times</source>
        <translation>Alle &amp;Termine</translation>
    </message>
</context>
<context>
    <name>OverflowError</name>
    <message>
        <source>task id</source>
        <translation>Aufgaben-ID</translation>
    </message>
    <message>
        <source>icon number</source>
        <translation>Symbolnummer</translation>
    </message>
    <message>
        <source>category id</source>
        <translation>Kategorie-ID</translation>
    </message>
    <message>
        <source>Overflow: the %1 %2 does not fit into 16 bits.</source>
        <translation>Überlauf: %1 %2 passt nicht in 16 Bit.</translation>
    </message>
</context>
<context>
    <name>PdfFileChoice</name>
    <message>
        <source>PDF Files (*.pdf)|*.pdf</source>
        <translation>PDF-Dateien (*.pdf)|*.pdf</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>it is neither a GIF nor a JPEG nor a PNG picture.</source>
        <translation>es ist weder ein GIF- noch ein JPEG- noch ein PNG-Bild.</translation>
    </message>
    <message>
        <source>it is damaged or incomplete.</source>
        <translation>es ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>it is %1 x %2 pixels large, more than %3 x %3 are not accepted.</source>
        <translation>es ist %1 × %2 Pixel groß, mehr als %3 × %3 sind nicht zulässig.</translation>
    </message>
    <message>
        <source>there is no such file.</source>
        <translation>die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>it is not an ordinary file.</source>
        <translation>es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB.</source>
        <translation>es ist größer als %1 MiB.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be used: %2</source>
        <translation>Das Bild „%1“ kann nicht verwendet werden: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>Als &amp;PDF exportieren…</translation>
    </message>
    <message>
        <source>&amp;First</source>
        <translation>&amp;Erste</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Vorherige</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>&amp;Last</source>
        <translation>&amp;Letzte</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>P&amp;apier</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>Aus&amp;richtung</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom o&amp;ut</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>&amp;Seite</translation>
    </message>
    <message>
        <source> of %1</source>
        <translation> von %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Der Bericht konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The report could not be written to &quot;%1&quot;: %2.</source>
        <translation>Der Bericht konnte nicht in „%1“ geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer.</source>
        <translation>Auf diesem Computer ist kein Drucker eingerichtet.</translation>
    </message>
    <message>
        <source>PDF saved to &quot;%1&quot;</source>
        <translation>PDF gespeichert als „%1“</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>Der Bericht wird vorbereitet…</translation>
    </message>
    <message>
        <source>&amp;Save as...</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Saves the tasks of the report as iCalendar or CSV, for other programs</source>
        <translation>Speichert die Aufgaben des Berichts als iCalendar oder CSV, für andere Programme</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Printing...</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Writing the PDF file...</source>
        <translation>PDF-Datei wird geschrieben…</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The task &quot;%1&quot; was added; the filters do not show it</source>
        <translation>Die Aufgabe „%1“ wurde hinzugefügt; die Filter zeigen sie nicht</translation>
    </message>
    <message>
        <source>The task &quot;%1&quot; was added; the search does not show it</source>
        <translation>Die Aufgabe „%1“ wurde hinzugefügt; die Suche zeigt sie nicht</translation>
    </message>
</context>
<context>
    <name>ProgressBox</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>RecordSet</name>
    <message>
        <source>The value of column &quot;%1&quot; is no whole number.</source>
        <translation>Der Wert der Spalte „%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is out of range: %2.</source>
        <translation>Der Wert der Spalte „%1“ liegt außerhalb des Bereichs: %2.</translation>
    </message>
    <message>
        <source>There is no current record.</source>
        <translation>Es gibt keinen aktuellen Datensatz.</translation>
    </message>
    <message>
        <source>The field name &quot;%1&quot; is ambiguous.</source>
        <translation>Der Feldname „%1“ ist mehrdeutig.</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>Es gibt kein Feld „%1“.</translation>
    </message>
    <message>
        <source>There is no field number %1.</source>
        <translation>Es gibt kein Feld mit der Nummer %1.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is null.</source>
        <translation>Der Wert der Spalte „%1“ ist leer (NULL).</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no text.</source>
        <translation>Der Wert der Spalte „%1“ ist kein Text.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; does not fit into memory.</source>
        <translation>Der Wert der Spalte „%1“ passt nicht in den Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is no date and time: %2.</source>
        <translation>Der Wert der Spalte „%1“ ist kein Zeitpunkt: %2.</translation>
    </message>
    <message>
        <source>The value of column &quot;%1&quot; is empty.</source>
        <translation>Der Wert der Spalte „%1“ ist leer.</translation>
    </message>
</context>
<context>
    <name>RepeatByHand</name>
    <message>
        <source>Custom ...</source>
        <translation>Benutzerdefiniert…</translation>
    </message>
</context>
<context>
    <name>RepeatChoices</name>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Jeden Tag</translation>
    </message>
    <message>
        <source>Every weekday</source>
        <translation>Jeden Arbeitstag</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Jede Woche</translation>
    </message>
    <message>
        <source>Every 2 weeks</source>
        <translation>Alle 2 Wochen</translation>
    </message>
    <message>
        <source>Every month on the same day</source>
        <translation>Am selben Tag jedes Monats</translation>
    </message>
    <message>
        <source>Every month on the last day</source>
        <translation>Am letzten Tag jedes Monats</translation>
    </message>
    <message>
        <source>Every year</source>
        <translation>Jedes Jahr</translation>
    </message>
</context>
<context>
    <name>RepeatInput</name>
    <message>
        <source>Please tick a weekday.</source>
        <translation>Bitte wählen Sie einen Wochentag aus.</translation>
    </message>
    <message>
        <source>The last day should not be earlier than the due date.</source>
        <translation>Der letzte Tag darf nicht vor dem Fälligkeitsdatum liegen.</translation>
    </message>
</context>
<context>
    <name>RepeatTexts</name>
    <message>
        <source>%1 until %2</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;, and %2 the last day</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1, once</source>
        <extracomment>%1 is how something repeats, as in &quot;every week on Tuesday&quot;</extracomment>
        <translation>%1, einmal</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n times</source>
        <translation>
            <numerusform>%1, %n-mal</numerusform>
            <numerusform>%1, %n-mal</numerusform>
        </translation>
    </message>
    <message>
        <source>by a rule of another program</source>
        <translation>nach einer Regel eines anderen Programms</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>jeden Tag</translation>
    </message>
    <message numerus="yes">
        <source>every %n days</source>
        <translation>
            <numerusform>alle %n Tage</numerusform>
            <numerusform>alle %n Tage</numerusform>
        </translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>Day and month of a date, in the format of QLocale: &quot;d. MMMM&quot;, &quot;MMMM d&quot;, &quot;d &apos;de&apos; MMMM&quot;</extracomment>
        <translation>d. MMMM</translation>
    </message>
    <message>
        <source>every year on %1</source>
        <extracomment>%1 is a day and a month</extracomment>
        <translation>jedes Jahr am %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n years on %1</source>
        <translation>
            <numerusform>alle %n Jahre am %1</numerusform>
            <numerusform>alle %n Jahre am %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every weekday</source>
        <extracomment>on each day of the working week, as from Monday to Friday</extracomment>
        <translation>jeden Arbeitstag</translation>
    </message>
    <message>
        <source>every week on %1</source>
        <extracomment>%1 is a weekday or several: &quot;Monday and Thursday&quot;</extracomment>
        <translation>jede Woche am %1</translation>
    </message>
    <message numerus="yes">
        <source>every %n weeks on %1</source>
        <translation>
            <numerusform>alle %n Wochen am %1</numerusform>
            <numerusform>alle %n Wochen am %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on day %1</source>
        <extracomment>%1 is the number of a day</extracomment>
        <translation>am Tag %1 jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on day %1</source>
        <translation>
            <numerusform>alle %n Monate am Tag %1</numerusform>
            <numerusform>alle %n Monate am Tag %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last day</source>
        <translation>am letzten Tag jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last day</source>
        <translation>
            <numerusform>alle %n Monate am letzten Tag</numerusform>
            <numerusform>alle %n Monate am letzten Tag</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the first %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>am ersten %1 jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the first %1</source>
        <translation>
            <numerusform>alle %n Monate am ersten %1</numerusform>
            <numerusform>alle %n Monate am ersten %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the second %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>am zweiten %1 jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the second %1</source>
        <translation>
            <numerusform>alle %n Monate am zweiten %1</numerusform>
            <numerusform>alle %n Monate am zweiten %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the third %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>am dritten %1 jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the third %1</source>
        <translation>
            <numerusform>alle %n Monate am dritten %1</numerusform>
            <numerusform>alle %n Monate am dritten %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the fourth %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>am vierten %1 jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the fourth %1</source>
        <translation>
            <numerusform>alle %n Monate am vierten %1</numerusform>
            <numerusform>alle %n Monate am vierten %1</numerusform>
        </translation>
    </message>
    <message>
        <source>every month on the last %1</source>
        <extracomment>%1 is a weekday</extracomment>
        <translation>am letzten %1 jedes Monats</translation>
    </message>
    <message numerus="yes">
        <source>every %n months on the last %1</source>
        <translation>
            <numerusform>alle %n Monate am letzten %1</numerusform>
            <numerusform>alle %n Monate am letzten %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Rest</name>
    <message>
        <source>Only the beginning is shown. The &quot;⋯&quot; stands for the rest.</source>
        <translation>Nur der Anfang ist zu sehen. Das „⋯“ steht für den Rest.</translation>
    </message>
</context>
<context>
    <name>ScreenErrorReport</name>
    <message>
        <source>Close &amp;program</source>
        <translation>&amp;Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Fortfahren</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>SearchPane</name>
    <message>
        <source>List &amp;topics</source>
        <translation>The&amp;men auflisten</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>Zu suchende Wörter</translation>
    </message>
    <message>
        <source>Topics found</source>
        <translation>Gefundene Themen</translation>
    </message>
    <message>
        <source>&amp;Words</source>
        <translation>&amp;Wörter</translation>
    </message>
    <message>
        <source>No topic contains all of these words.</source>
        <translation>Kein Thema enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>1 topic found.</source>
        <translation>1 Thema gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n topics found.</source>
        <translation>
            <numerusform>%n Thema gefunden.</numerusform>
            <numerusform>%n Themen gefunden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>it does not exist</source>
        <translation>sie ist nicht vorhanden</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>nicht genügend Arbeitsspeicher</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; the statement was not run: %2</source>
        <translation>Die Datendatei „%1“ hatte zuvor einen Fehler; die Anweisung wurde nicht ausgeführt: %2</translation>
    </message>
    <message>
        <source>The statement is too long (%1 bytes): %2</source>
        <translation>Die Anweisung ist zu lang (%1 Bytes): %2</translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation>Die Anweisung ist leer.</translation>
    </message>
    <message>
        <source>The text holds more than one statement: %1</source>
        <translation>Der Text enthält mehr als eine Anweisung: %1</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written: %2.</source>
        <translation>Die Datendatei „%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed before; nothing was stored.</source>
        <translation>Die Datendatei „%1“ hatte zuvor einen Fehler; es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be written; nothing was stored: %2.</source>
        <translation>Die Datendatei „%1“ konnte nicht geschrieben werden; es wurde nichts gespeichert: %2.</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; could not be opened: %2.</source>
        <translation>Die Datendatei „%1“ konnte nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The statement failed: %1.
%2</source>
        <translation>Die Anweisung ist fehlgeschlagen: %1.
%2</translation>
    </message>
    <message>
        <source>The data file &quot;%1&quot; failed at the statement
%2
: %3.</source>
        <translation>In der Datendatei „%1“ trat bei der Anweisung
%2
ein Fehler auf: %3.</translation>
    </message>
    <message>
        <source>another program is using it (%1)</source>
        <translation>ein anderes Programm verwendet sie (%1)</translation>
    </message>
    <message>
        <source>a rule in its table &quot;%1&quot; could remove records</source>
        <translation>eine Regel in ihrer Tabelle „%1“ könnte Einträge entfernen</translation>
    </message>
    <message>
        <source>It has been changed since.</source>
        <translation>Es wurde seitdem geändert.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>&amp;Save Settings</source>
        <translation>Einstellungen &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>H&amp;ilfe</translation>
    </message>
    <message>
        <source>Show &amp;grid</source>
        <translation>&amp;Gitterlinien anzeigen</translation>
    </message>
    <message>
        <source>Show &amp;today&apos;s tasks on start</source>
        <translation>&amp;Beim Start die heutigen Aufgaben anzeigen</translation>
    </message>
    <message>
        <source>Start with &amp;windows</source>
        <translation>Beim &amp;Anmelden starten</translation>
    </message>
    <message>
        <source>Always on to&amp;p</source>
        <translation>Immer im &amp;Vordergrund</translation>
    </message>
    <message>
        <source>&amp;Minimize on start</source>
        <translation>&amp;Minimiert starten</translation>
    </message>
    <message>
        <source>Show tray &amp;balloon when closed</source>
        <translation>Beim Schließen Hin&amp;weis im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Task p&amp;riority</source>
        <translation>&amp;Priorität</translation>
    </message>
    <message>
        <source>Task &amp;due date</source>
        <translation>&amp;Fälligkeit</translation>
    </message>
    <message>
        <source>Task r&amp;eminder</source>
        <translation>&amp;Erinnerung</translation>
    </message>
    <message>
        <source>Task stat&amp;us</source>
        <translation>S&amp;tatus</translation>
    </message>
    <message>
        <source>Show Columns</source>
        <translation>Angezeigte Spalten</translation>
    </message>
    <message>
        <source>Current s&amp;kin</source>
        <translation>A&amp;ktueller Skin</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Add &amp;new skin</source>
        <translation>&amp;Neuen Skin hinzufügen</translation>
    </message>
    <message>
        <source>Add new skin</source>
        <translation>Neuen Skin hinzufügen</translation>
    </message>
    <message>
        <source>Download More Skins</source>
        <translation>Weitere Skins herunterladen</translation>
    </message>
    <message>
        <source>Skins</source>
        <translation>Skins</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Skin Files (*.skf)|*.skf</source>
        <translation>Skin-Dateien (*.skf)|*.skf</translation>
    </message>
    <message>
        <source>The new skin is now available in the skins list.</source>
        <translation>Der neue Skin steht jetzt in der Liste der Skins zur Verfügung.</translation>
    </message>
    <message>
        <source>The skin was not added: %1</source>
        <translation>Der Skin wurde nicht hinzugefügt: %1</translation>
    </message>
    <message>
        <source>The skin &quot;%1&quot; was added; to wear it, choose it in the list and save the settings</source>
        <translation>Der Skin „%1“ wurde hinzugefügt; wählen Sie ihn in der Liste und speichern Sie die Einstellungen, um ihn zu verwenden</translation>
    </message>
    <message>
        <source>This desktop lets no program keep its windows on top. The menu of a title bar may offer it.</source>
        <translation>Dieser Desktop lässt kein Programm seine Fenster im Vordergrund halten. Das Menü einer Titelleiste bietet es vielleicht an.</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The row of the table &quot;settings&quot; is missing in the data file.</source>
        <translation>In der Datendatei fehlt die Zeile der Tabelle „settings“.</translation>
    </message>
</context>
<context>
    <name>SkinFile</name>
    <message>
        <source>%1: the file is not a text in UTF-8</source>
        <translation>%1: Die Datei ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>%1: the file does not exist</source>
        <translation>%1: Die Datei ist nicht vorhanden</translation>
    </message>
    <message>
        <source>%1: it is not a file</source>
        <translation>%1: Das ist keine Datei</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: the file is larger than 1 MiB</source>
        <translation>%1: Die Datei ist größer als 1 MiB</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
</context>
<context>
    <name>SkinHeader</name>
    <message>
        <source>the file does not begin with a comment block</source>
        <translation>die Datei beginnt nicht mit einem Kommentarblock</translation>
    </message>
    <message>
        <source>the comment block has no end</source>
        <translation>der Kommentarblock hat kein Ende</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be the name of a file</source>
        <translation>„%1“ kann kein Dateiname sein</translation>
    </message>
    <message>
        <source>unknown keyword &quot;%1&quot;</source>
        <translation>unbekanntes Schlüsselwort „%1“</translation>
    </message>
    <message>
        <source>a second &quot;%1&quot;</source>
        <translation>„%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; says nothing</source>
        <translation>„%1“ hat keinen Inhalt</translation>
    </message>
    <message>
        <source>expected &quot;@color token #rrggbb&quot;</source>
        <translation>erwartet wird „@color token #rrggbb“</translation>
    </message>
    <message>
        <source>a second colour &quot;%1&quot;</source>
        <translation>die Farbe „%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>expected &quot;@disabled Role $token&quot;</source>
        <translation>erwartet wird „@disabled Role $token“</translation>
    </message>
    <message>
        <source>expected &quot;@palette Role $token&quot;</source>
        <translation>erwartet wird „@palette Role $token“</translation>
    </message>
    <message>
        <source>unknown palette role &quot;%1&quot;</source>
        <translation>unbekannte Palettenrolle „%1“</translation>
    </message>
    <message>
        <source>the comment block has no &quot;@name&quot;</source>
        <translation>im Kommentarblock fehlt „@name“</translation>
    </message>
    <message>
        <source>unknown colour &quot;$%1&quot;</source>
        <translation>unbekannte Farbe „$%1“</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The skin could not be used.
%1</source>
        <translation>Der Skin konnte nicht verwendet werden.
%1</translation>
    </message>
    <message>
        <source>%1: the file has to be named &quot;%2&quot;, as its skin is</source>
        <translation>%1: die Datei muss „%2“ heißen, so wie ihr Skin</translation>
    </message>
</context>
<context>
    <name>TaskActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Erledigen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Postpone</source>
        <translation>&amp;Aufschieben</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Status</source>
        <translation>&amp;Status</translation>
    </message>
    <message>
        <source>Pr&amp;iority</source>
        <translation>&amp;Priorität</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>TaskChoices</name>
    <message>
        <source>Set Ba&amp;ck to &quot;Not Started&quot;</source>
        <translation>Auf „Nicht b&amp;egonnen“ zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Erledigen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>Möchten Sie diese Aufgabe wirklich löschen?</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete %n tasks?</source>
        <translation>
            <numerusform>Möchten Sie %n Aufgabe wirklich löschen?</numerusform>
            <numerusform>Möchten Sie %n Aufgaben wirklich löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Not Started</source>
        <translation>&amp;Nicht begonnen</translation>
    </message>
    <message>
        <source>In &amp;Progress</source>
        <translation>In &amp;Bearbeitung</translation>
    </message>
    <message>
        <source>&amp;Completed</source>
        <translation>&amp;Erledigt</translation>
    </message>
    <message>
        <source>&amp;Waiting on someone else</source>
        <translation>&amp;Wartet auf andere</translation>
    </message>
    <message>
        <source>&amp;Deferred</source>
        <translation>&amp;Zurückgestellt</translation>
    </message>
    <message>
        <source>&amp;High</source>
        <translation>&amp;Hoch</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Low</source>
        <translation>N&amp;iedrig</translation>
    </message>
    <message>
        <source>This task repeats. Do you want to delete it this time, or all times?</source>
        <translation>Diese Aufgabe wiederholt sich. Möchten Sie nur diesen Termin oder alle Termine löschen?</translation>
    </message>
    <message>
        <source>These tasks repeat. Do you want to delete them this time, or all times?</source>
        <translation>Diese Aufgaben wiederholen sich. Möchten Sie jeweils nur diesen Termin oder alle Termine löschen?</translation>
    </message>
    <message>
        <source>Some of the tasks repeat. Do you want to delete those this time, or all times?
The others are deleted.</source>
        <translation>Einige der Aufgaben wiederholen sich. Möchten Sie davon jeweils nur diesen Termin oder alle Termine löschen?
Die anderen Aufgaben werden gelöscht.</translation>
    </message>
</context>
<context>
    <name>TaskFilters</name>
    <message>
        <source>A&amp;ll</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Spec&amp;ific</source>
        <translation>&amp;Zeitraum</translation>
    </message>
    <message>
        <source>All tas&amp;ks</source>
        <translation>Alle Au&amp;fgaben</translation>
    </message>
    <message>
        <source>Acti&amp;ve tasks only</source>
        <translation>Nur a&amp;ktive Aufgaben</translation>
    </message>
    <message>
        <source>E&amp;xpired tasks only</source>
        <translation>Nur überfälli&amp;ge Aufgaben</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>Bi&amp;s</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Categor&amp;y</source>
        <translation>Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>Stat&amp;us</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fälligkeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>The same order chosen again is turned round</source>
        <translation>Dieselbe Reihenfolge noch einmal gewählt wird umgekehrt</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Kategorie: %1</translation>
    </message>
    <message>
        <source>Status: %1</source>
        <translation>Status: %1</translation>
    </message>
    <message>
        <source>Due from %1 to %2</source>
        <translation>Fällig vom %1 bis zum %2</translation>
    </message>
    <message>
        <source>Active tasks only</source>
        <translation>Nur aktive Aufgaben</translation>
    </message>
    <message>
        <source>Expired tasks only</source>
        <translation>Nur überfällige Aufgaben</translation>
    </message>
    <message>
        <source>No filter leaves a task out</source>
        <translation>Kein Filter lässt eine Aufgabe weg</translation>
    </message>
</context>
<context>
    <name>TaskGridModel</name>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Due today</source>
        <translation>Heute fällig</translation>
    </message>
</context>
<context>
    <name>TaskInput</name>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>Datum und Uhrzeit der Erinnerung dürfen nicht in der Vergangenheit liegen</translation>
    </message>
    <message>
        <source>Please enter task name.</source>
        <translation>Bitte geben Sie den Namen der Aufgabe ein.</translation>
    </message>
    <message>
        <source>Please select category.</source>
        <translation>Bitte wählen Sie eine Kategorie aus.</translation>
    </message>
    <message>
        <source>Please select reminder sound.</source>
        <translation>Bitte wählen Sie einen Erinnerungston aus.</translation>
    </message>
    <message>
        <source>Please select reminder file.</source>
        <translation>Bitte wählen Sie eine Erinnerungsdatei aus.</translation>
    </message>
    <message>
        <source>The changes to the task are not saved.</source>
        <translation>Die Änderungen an der Aufgabe sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>The changes to &apos;%1&apos; are not saved.</source>
        <translation>Die Änderungen an „%1“ sind nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>TaskListModel</name>
    <message>
        <source>id</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>periority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>reminder</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Reminder on</source>
        <translation>Erinnerung ein</translation>
    </message>
    <message>
        <source>Reminder off</source>
        <translation>Erinnerung aus</translation>
    </message>
    <message>
        <source>Category: %1</source>
        <translation>Kategorie: %1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>Wiederholt sich %1</translation>
    </message>
</context>
<context>
    <name>TaskMoments</name>
    <message>
        <source>1 &amp;day before</source>
        <translation>1 &amp;Tag vorher</translation>
    </message>
    <message>
        <source>&amp;At the due moment</source>
        <translation>&amp;Zum Fälligkeitszeitpunkt</translation>
    </message>
    <message>
        <source>&amp;5 minutes before</source>
        <translation>&amp;5 Minuten vorher</translation>
    </message>
    <message>
        <source>&amp;15 minutes before</source>
        <translation>&amp;15 Minuten vorher</translation>
    </message>
    <message>
        <source>&amp;30 minutes before</source>
        <translation>&amp;30 Minuten vorher</translation>
    </message>
    <message>
        <source>1 &amp;hour before</source>
        <translation>1 &amp;Stunde vorher</translation>
    </message>
    <message>
        <source>To&amp;day, %1</source>
        <translation>&amp;Heute, %1</translation>
    </message>
    <message>
        <source>&amp;Tomorrow, %1</source>
        <translation>&amp;Morgen, %1</translation>
    </message>
    <message>
        <source>Next &amp;Monday, %1</source>
        <translation>&amp;Nächsten Montag, %1</translation>
    </message>
</context>
<context>
    <name>TaskRepeats</name>
    <message>
        <source>Tasks cannot repeat in this data file, which is of an earlier version and could not be upgraded. The next start of Ambertask tries it again.</source>
        <translation>In dieser Datendatei können sich Aufgaben nicht wiederholen: Sie hat eine frühere Version und konnte nicht aktualisiert werden. Der nächste Start von Ambertask versucht es erneut.</translation>
    </message>
</context>
<context>
    <name>TaskStoring</name>
    <message>
        <source>Nothing was stored: there is no number left for a new category.</source>
        <translation>Es wurde nichts gespeichert: Für eine neue Kategorie ist keine Nummer mehr frei.</translation>
    </message>
    <message>
        <source>Nothing was stored: there is no room for so many tasks.</source>
        <translation>Es wurde nichts gespeichert: Für so viele Aufgaben ist kein Platz.</translation>
    </message>
    <message>
        <source>Nothing was stored: the task &quot;%1&quot; has been deleted meanwhile. Choose the file again.</source>
        <translation>Es wurde nichts gespeichert: Die Aufgabe „%1“ wurde inzwischen gelöscht. Wählen Sie die Datei noch einmal aus.</translation>
    </message>
</context>
<context>
    <name>TasksPage</name>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
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
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>H&amp;ilfe</translation>
    </message>
    <message>
        <source>Please enter categories in the categories section first.</source>
        <translation>Bitte legen Sie zuerst auf der Seite „Kategorien“ eine Kategorie an.</translation>
    </message>
</context>
<context>
    <name>TopicView</name>
    <message>
        <source>This page cannot be shown</source>
        <translation>Diese Seite kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>The help file has no readable page &quot;%1&quot;.</source>
        <translation>Die Hilfedatei enthält keine lesbare Seite „%1“.</translation>
    </message>
</context>
<context>
    <name>TrayNews</name>
    <message numerus="yes">
        <source>%n due</source>
        <comment>reminders</comment>
        <translation>
            <numerusform>%n fällig</numerusform>
            <numerusform>%n fällig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <comment>tasks</comment>
        <translation>
            <numerusform>%n überfällig</numerusform>
            <numerusform>%n überfällig</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>2 due, 3 overdue</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>UnchangedFile</name>
    <message>
        <source>another program is using it</source>
        <translation>ein anderes Programm verwendet sie</translation>
    </message>
</context>
<context>
    <name>UndoBar</name>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Not undone: %1</source>
        <translation>Nicht rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Not done again: %1</source>
        <translation>Nicht wiederholt: %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>It would leave tasks without a category.</source>
        <translation>Es blieben Aufgaben ohne Kategorie zurück.</translation>
    </message>
</context>
<context>
    <name>UnreadableRecords</name>
    <message>
        <source>Category %1: %2</source>
        <translation>Kategorie %1: %2</translation>
    </message>
    <message>
        <source>Category %1, &quot;%2&quot;: %3</source>
        <translation>Kategorie %1, „%2“: %3</translation>
    </message>
    <message>
        <source>Task %1: %2</source>
        <translation>Aufgabe %1: %2</translation>
    </message>
    <message>
        <source>Task %1, &quot;%2&quot;: %3</source>
        <translation>Aufgabe %1, „%2“: %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Some values in the data file cannot be read. For this reason these are not shown:</source>
        <translation>Einige Werte in der Datendatei können nicht gelesen werden. Deshalb wird Folgendes nicht angezeigt:</translation>
    </message>
    <message>
        <source>The tasks of a category that is not shown are not shown either.</source>
        <translation>Die Aufgaben einer Kategorie, die nicht angezeigt wird, werden ebenfalls nicht angezeigt.</translation>
    </message>
    <message>
        <source>Everything stays in the data file as it is. To have it back, restore a backup that was made before (page Maintenance), or correct the values with another program.</source>
        <translation>In der Datendatei bleibt alles, wie es ist. Um es zurückzubekommen, stellen Sie eine frühere Sicherung wieder her (Seite Wartung) oder berichtigen Sie die Werte mit einem anderen Programm.</translation>
    </message>
    <message>
        <source>Some settings cannot be read. They are for now what they are in a new data file:</source>
        <translation>Einige Einstellungen können nicht gelesen werden. Sie gelten vorerst so wie in einer neuen Datendatei:</translation>
    </message>
    <message>
        <source>To store them anew, press &quot;Save Settings&quot; on the page Settings.</source>
        <translation>Um sie neu zu speichern, drücken Sie auf der Seite Einstellungen „Einstellungen speichern“.</translation>
    </message>
</context>
<context>
    <name>UnusableCopy</name>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>UsualMoments</name>
    <message>
        <source>In &amp;5 minutes</source>
        <translation>In &amp;5 Minuten</translation>
    </message>
    <message>
        <source>In &amp;15 minutes</source>
        <translation>In &amp;15 Minuten</translation>
    </message>
    <message>
        <source>In 1 &amp;hour</source>
        <translation>In 1 &amp;Stunde</translation>
    </message>
    <message>
        <source>This &amp;evening</source>
        <translation>Heute &amp;Abend</translation>
    </message>
    <message>
        <source>&amp;Tomorrow morning</source>
        <translation>&amp;Morgen früh</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>&amp;Nächste Woche</translation>
    </message>
</context>
<context>
    <name>clsGuiLoader</name>
    <message>
        <source>None</source>
        <translation>Keine Sortierung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>All</source>
        <comment>statuses</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Not Started</source>
        <translation>Nicht begonnen</translation>
    </message>
    <message>
        <source>In Progress</source>
        <translation>In Bearbeitung</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Waiting on someone else</source>
        <translation>Wartet auf andere</translation>
    </message>
    <message>
        <source>Deferred</source>
        <translation>Zurückgestellt</translation>
    </message>
    <message>
        <source>All</source>
        <comment>categories</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
</context>
<context>
    <name>drTasks</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Periority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Tasks Report</source>
        <translation>Aufgabenbericht</translation>
    </message>
    <message>
        <source>The report cannot be shown: the module &quot;ambertask_report&quot; is missing from the program&apos;s folder or damaged.</source>
        <translation>Der Bericht kann nicht angezeigt werden: Das Modul „ambertask_report“ fehlt im Programmordner oder ist beschädigt.</translation>
    </message>
    <message>
        <source>The tasks could not be saved.
%1</source>
        <translation>Die Aufgaben konnten nicht gespeichert werden.
%1</translation>
    </message>
    <message>
        <source>Repeats %1</source>
        <translation>Wiederholt sich %1</translation>
    </message>
    <message>
        <source>Nothing was saved: the report shows tasks from before the restore.</source>
        <translation>Nichts wurde gespeichert: Der Bericht zeigt Aufgaben von vor der Wiederherstellung.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About Ambertask</source>
        <translation>Über Ambertask</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>Version 1.1</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Ambertask is a simple and powerful task management software program.</source>
        <translation>Ambertask ist ein einfaches und leistungsfähiges Programm zur Aufgabenverwaltung.</translation>
    </message>
    <message>
        <source>Ambertask comes without any warranty. Your tasks stay on this computer; keep a backup of what you would miss.</source>
        <translation>Ambertask wird ohne jede Gewährleistung bereitgestellt. Ihre Aufgaben bleiben auf diesem Computer; sichern Sie, was Sie nicht verlieren möchten.</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Die Systeminformationen sind derzeit nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>frmAlerts</name>
    <message>
        <source>New reminder</source>
        <translation>Neue Erinnerung</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Open Item</source>
        <translation>Aufgabe öffnen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Dismiss All</source>
        <translation>Alle verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Uhrzeit:</translation>
    </message>
    <message>
        <source>Due reminders</source>
        <translation>Fällige Erinnerungen</translation>
    </message>
    <message>
        <source>New reminder date</source>
        <translation>Datum der neuen Erinnerung</translation>
    </message>
    <message>
        <source>New reminder time</source>
        <translation>Uhrzeit der neuen Erinnerung</translation>
    </message>
    <message>
        <source>Moves the selected reminder to the new date and time</source>
        <translation>Verschiebt die ausgewählte Erinnerung auf das neue Datum und die neue Uhrzeit</translation>
    </message>
    <message>
        <source>Opens the task of the selected reminder</source>
        <translation>Öffnet die Aufgabe der ausgewählten Erinnerung</translation>
    </message>
    <message>
        <source>Switches the selected reminder off</source>
        <translation>Schaltet die ausgewählte Erinnerung aus</translation>
    </message>
    <message>
        <source>Switches all due reminders off</source>
        <translation>Schaltet alle fälligen Erinnerungen aus</translation>
    </message>
    <message>
        <source>1 Reminder</source>
        <translation>1 Erinnerung</translation>
    </message>
    <message numerus="yes">
        <source>%n Reminders</source>
        <translation>
            <numerusform>%n Erinnerung</numerusform>
            <numerusform>%n Erinnerungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Reminder date and time should not be earlier than current system date and time</source>
        <translation>Datum und Uhrzeit der Erinnerung dürfen nicht in der Vergangenheit liegen</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>Setzen auf</translation>
    </message>
    <message>
        <source>Set date and time to</source>
        <translation>Datum und Uhrzeit setzen auf</translation>
    </message>
    <message>
        <source>Fills in a usual moment; &quot;Remind me later&quot; then puts the reminder off</source>
        <translation>Trägt einen üblichen Zeitpunkt ein; „Später erinnern“ verschiebt dann die Erinnerung</translation>
    </message>
</context>
<context>
    <name>frmCategoryDetails</name>
    <message>
        <source>Icon %1 of %2</source>
        <translation>Symbol %1 von %2</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>De&amp;fault Icon</source>
        <translation>&amp;Standardsymbol</translation>
    </message>
    <message>
        <source>C&amp;ustom Icon</source>
        <translation>&amp;Eigenes Symbol</translation>
    </message>
    <message>
        <source>Default icons</source>
        <translation>Standardsymbole</translation>
    </message>
    <message>
        <source>Custom icon</source>
        <translation>Eigenes Symbol</translation>
    </message>
    <message>
        <source>Custom icon preview</source>
        <translation>Vorschau des eigenen Symbols</translation>
    </message>
    <message>
        <source>Prefered size 24*24 pixels</source>
        <translation>Empfohlene Größe: 24 × 24 Pixel</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>D&amp;urchsuchen</translation>
    </message>
    <message>
        <source>Browse for a custom icon</source>
        <translation>Eigenes Symbol suchen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>The category no longer exists.</source>
        <translation>Die Kategorie ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</source>
        <translation>Bilddateien (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg</translation>
    </message>
    <message>
        <source>A category with the same name already exists</source>
        <translation>Eine Kategorie mit diesem Namen ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Please enter category name.</source>
        <translation>Bitte geben Sie den Namen der Kategorie ein.</translation>
    </message>
    <message>
        <source>Please browse for a custom icon</source>
        <translation>Bitte wählen Sie ein eigenes Symbol aus</translation>
    </message>
</context>
<context>
    <name>frmCopies</name>
    <message>
        <source>&amp;Restore</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>Restore from a Copy</source>
        <translation>Aus Kopie wiederherstellen</translation>
    </message>
    <message>
        <source>Copies of your data</source>
        <translation>Kopien Ihrer Daten</translation>
    </message>
    <message>
        <source>No copy has been made yet. The first one is made before the next change.</source>
        <translation>Es wurde noch keine Kopie angelegt. Die erste wird vor der nächsten Änderung angelegt.</translation>
    </message>
    <message>
        <source>Puts the selected copy in the place of your data, which is kept as another copy</source>
        <translation>Setzt die ausgewählte Kopie an die Stelle Ihrer Daten, die als weitere Kopie erhalten bleiben</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Closes this list and changes nothing</source>
        <translation>Schließt diese Liste und ändert nichts</translation>
    </message>
    <message>
        <source>Co&amp;pies of your data that the program has made by itself</source>
        <translation>Ko&amp;pien Ihrer Daten, die das Programm selbst angelegt hat</translation>
    </message>
    <message>
        <source>The copies could not be compared: %1</source>
        <translation>Die Kopien konnten nicht verglichen werden: %1</translation>
    </message>
    <message>
        <source>Are you sure you want to restore the copy of %1? Your data as it is now is kept as another copy.</source>
        <translation>Möchten Sie die Kopie vom %1 wirklich wiederherstellen? Ihre jetzigen Daten bleiben als weitere Kopie erhalten.</translation>
    </message>
</context>
<context>
    <name>frmImport</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Line %1, &quot;%2&quot;: %3</source>
        <translation>Zeile %1, „%2“: %3</translation>
    </message>
    <message>
        <source>New categories: %1</source>
        <translation>Neue Kategorien: %1</translation>
    </message>
    <message>
        <source>And more that cannot be read.</source>
        <translation>Und weitere, die nicht gelesen werden können.</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Import Tasks</source>
        <translation>Aufgaben importieren</translation>
    </message>
    <message>
        <source>Tasks to import</source>
        <translation>Zu importierende Aufgaben</translation>
    </message>
    <message>
        <source>Programs to start with the reminder</source>
        <translation>Mit der Erinnerung zu startende Programme</translation>
    </message>
    <message>
        <source>&amp;Programs to start with the reminder; tick those that you trust</source>
        <translation>Mit der Erinnerung zu startende &amp;Programme; wählen Sie die aus, denen Sie vertrauen</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>&amp;Tasks</source>
        <translation>Au&amp;fgaben</translation>
    </message>
    <message>
        <source>From &quot;%1&quot;</source>
        <translation>Aus „%1“</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Version 1.1</source>
        <translation>Version 1.1</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Infobereich</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Ambertask</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Ambertaks</source>
        <translation>Ambertask</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Ambertaks is still running..</source>
        <translation>Ambertask läuft weiter.</translation>
    </message>
</context>
<context>
    <name>frmRepeat</name>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a weekday, %2 a date and a time</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>The same day</source>
        <translation>Derselbe Tag</translation>
    </message>
    <message>
        <source>The last day</source>
        <translation>Der letzte Tag</translation>
    </message>
    <message>
        <source>The same weekday</source>
        <translation>Derselbe Wochentag</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>On a date</source>
        <translation>An einem Datum</translation>
    </message>
    <message>
        <source>After a number of times</source>
        <translation>Nach einer Anzahl von Terminen</translation>
    </message>
    <message>
        <source>On these &amp;weekdays</source>
        <translation>An diesen &amp;Wochentagen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Repeat every so many</source>
        <translation>Wiederholen alle</translation>
    </message>
    <message>
        <source>Days, weeks, months or years</source>
        <translation>Tage, Wochen, Monate oder Jahre</translation>
    </message>
    <message>
        <source>On these weekdays</source>
        <translation>An diesen Wochentagen</translation>
    </message>
    <message>
        <source>Day of the month</source>
        <translation>Tag des Monats</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Number of times</source>
        <translation>Anzahl der Termine</translation>
    </message>
    <message>
        <source>Next due moments</source>
        <translation>Nächste Fälligkeiten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Repeat &amp;every:</source>
        <translation>Wiederholen a&amp;lle:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Day of the &amp;month:</source>
        <translation>Tag des &amp;Monats:</translation>
    </message>
    <message>
        <source>E&amp;nd:</source>
        <translation>E&amp;nde:</translation>
    </message>
    <message>
        <source>&amp;Last day:</source>
        <translation>Letzter Ta&amp;g:</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>&amp;Termine:</translation>
    </message>
    <message>
        <source>Ne&amp;xt due moments:</source>
        <translation>Nächste &amp;Fälligkeiten:</translation>
    </message>
</context>
<context>
    <name>frmTaskDetails</name>
    <message>
        <source>Task Details</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>The task no longer exists.</source>
        <translation>Die Aufgabe ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Executable Files (*.exe;*.bat;)|*.exe;*.bat</source>
        <translation>Ausführbare Dateien (*.exe;*.bat;)|*.exe;*.bat</translation>
    </message>
    <message>
        <source>Wave Files (*.wav)|*.wav</source>
        <translation>Wave-Dateien (*.wav)|*.wav</translation>
    </message>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>&amp;Enable reminder</source>
        <translation>&amp;Erinnerung aktivieren</translation>
    </message>
    <message>
        <source>Reminder sou&amp;nd</source>
        <translation>Erinnerungs&amp;ton</translation>
    </message>
    <message>
        <source>Reminder &amp;file</source>
        <translation>Erinnerungs&amp;datei</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen…</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Durc&amp;hsuchen…</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Aufgabenname</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>Due time</source>
        <translation>Fällig um</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Enable reminder</source>
        <translation>Erinnerung aktivieren</translation>
    </message>
    <message>
        <source>Reminder date</source>
        <translation>Erinnerung am</translation>
    </message>
    <message>
        <source>Reminder time</source>
        <translation>Erinnerung um</translation>
    </message>
    <message>
        <source>Reminder sound</source>
        <translation>Erinnerungston</translation>
    </message>
    <message>
        <source>Reminder sound file</source>
        <translation>Datei des Erinnerungstons</translation>
    </message>
    <message>
        <source>Browse for a reminder sound</source>
        <translation>Erinnerungston suchen</translation>
    </message>
    <message>
        <source>Reminder file</source>
        <translation>Erinnerungsdatei</translation>
    </message>
    <message>
        <source>Program or batch file</source>
        <translation>Programm oder Batchdatei</translation>
    </message>
    <message>
        <source>Browse for a reminder file</source>
        <translation>Erinnerungsdatei suchen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Task name:</source>
        <translation>Aufgaben&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Category:</source>
        <translation>&amp;Kategorie:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>D&amp;ue date:</source>
        <translation>&amp;Fällig am:</translation>
    </message>
    <message>
        <source>Due ti&amp;me:</source>
        <translation>Fäll&amp;ig um:</translation>
    </message>
    <message>
        <source>&amp;Status:</source>
        <translation>&amp;Status:</translation>
    </message>
    <message>
        <source>&amp;Priority:</source>
        <translation>&amp;Priorität:</translation>
    </message>
    <message>
        <source>&amp;Reminder date:</source>
        <translation>Erinnerun&amp;g am:</translation>
    </message>
    <message>
        <source>Reminder t&amp;ime:</source>
        <translation>Erinnerung u&amp;m:</translation>
    </message>
    <message>
        <source>Wa&amp;ve:</source>
        <translation>&amp;Wave:</translation>
    </message>
    <message>
        <source>Pro&amp;gram:</source>
        <translation>P&amp;rogramm:</translation>
    </message>
    <message>
        <source>Set to</source>
        <translation>Setzen auf</translation>
    </message>
    <message>
        <source>Set the due moment to</source>
        <translation>Fälligkeit setzen auf</translation>
    </message>
    <message>
        <source>Set the reminder to</source>
        <translation>Erinnerung setzen auf</translation>
    </message>
    <message>
        <source>Switches the reminder on; it follows the due moment until it is changed</source>
        <translation>Schaltet die Erinnerung ein; sie folgt der Fälligkeit, bis sie geändert wird</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Repeat tas&amp;k:</source>
        <translation>Wiederho&amp;lung:</translation>
    </message>
</context>
<context>
    <name>modAmbertaks</name>
    <message>
        <source>The program folder could not be made.
%1</source>
        <translation>Der Programmordner konnte nicht angelegt werden.
%1</translation>
    </message>
    <message>
        <source>The program folder could not be kept from a second copy of the program.
%1</source>
        <translation>Der Programmordner konnte nicht gegen eine zweite Kopie des Programms gesichert werden.
%1</translation>
    </message>
</context>
</TS>
