<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
</context>
<context>
    <name>HTMLHelpViewer</name>
    <message>
        <source>The help window is missing from this installation.</source>
        <translation>Das Hilfefenster fehlt in dieser Installation.</translation>
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
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <translation>„%1“ ist bereits vorhanden. Möchten Sie die Datei ersetzen?</translation>
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
</context>
<context>
    <name>TasksPage</name>
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
        <source>Tasks</source>
        <translation>Aufgaben</translation>
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
    <message>
        <source>Are you sure you want to delete this task?</source>
        <translation>Möchten Sie diese Aufgabe wirklich löschen?</translation>
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
