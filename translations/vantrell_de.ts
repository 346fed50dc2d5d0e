<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Alert</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
</context>
<context>
    <name>Column</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Nutzung</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Source Timecode</source>
        <translation>Quell-Timecode</translation>
    </message>
    <message>
        <source>Reel</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Verwendungen</translation>
    </message>
    <message>
        <source>Sequences</source>
        <translation>Sequenzen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Scoring</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>head %1</source>
        <translation>Anfang %1</translation>
    </message>
    <message>
        <source>tail %1</source>
        <translation>Ende %1</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>eingeschaltet</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 ein</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 aus</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>vorher %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>variable</source>
        <translation>variabel</translation>
    </message>
</context>
<context>
    <name>Edit</name>
    <message>
        <source>Rename Marker</source>
        <translation>Marker umbenennen</translation>
    </message>
    <message>
        <source>Rename Markers</source>
        <translation>Marker umbenennen</translation>
    </message>
    <message>
        <source>Change Comment</source>
        <translation>Kommentar ändern</translation>
    </message>
    <message>
        <source>Change Comments</source>
        <translation>Kommentare ändern</translation>
    </message>
    <message>
        <source>Change Color</source>
        <translation>Farbe ändern</translation>
    </message>
    <message>
        <source>Change Colors</source>
        <translation>Farben ändern</translation>
    </message>
    <message>
        <source>Change In Point</source>
        <translation>In-Punkt ändern</translation>
    </message>
    <message>
        <source>Change In Points</source>
        <translation>In-Punkte ändern</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <translation>Dauer ändern</translation>
    </message>
    <message>
        <source>Change Durations</source>
        <translation>Dauern ändern</translation>
    </message>
    <message>
        <source>Change Chapter Flag</source>
        <translation>Kapitelkennzeichen ändern</translation>
    </message>
    <message>
        <source>Change Chapter Flags</source>
        <translation>Kapitelkennzeichen ändern</translation>
    </message>
    <message>
        <source>Change Compression Flag</source>
        <translation>Komprimierungskennzeichen ändern</translation>
    </message>
    <message>
        <source>Change Compression Flags</source>
        <translation>Komprimierungskennzeichen ändern</translation>
    </message>
    <message>
        <source>Change Scoring Flag</source>
        <translation>Scoring-Kennzeichen ändern</translation>
    </message>
    <message>
        <source>Change Scoring Flags</source>
        <translation>Scoring-Kennzeichen ändern</translation>
    </message>
    <message>
        <source>Change Marker Field</source>
        <translation>Markerfeld ändern</translation>
    </message>
    <message>
        <source>Change Marker Fields</source>
        <translation>Markerfelder ändern</translation>
    </message>
    <message>
        <source>Move Marker to Sequence</source>
        <translation>Marker in Sequenz verschieben</translation>
    </message>
    <message>
        <source>Move Marker to Clip</source>
        <translation>Marker in Clip verschieben</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Marker hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate Marker</source>
        <translation>Marker duplizieren</translation>
    </message>
    <message>
        <source>Duplicate Markers</source>
        <translation>Marker duplizieren</translation>
    </message>
    <message>
        <source>Move Marker</source>
        <translation>Marker verschieben</translation>
    </message>
    <message>
        <source>Move Markers</source>
        <translation>Marker verschieben</translation>
    </message>
    <message>
        <source>Import Markers</source>
        <translation>Marker importieren</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Marker entfernen</translation>
    </message>
    <message>
        <source>Remove Markers</source>
        <translation>Marker entfernen</translation>
    </message>
    <message>
        <source>Offset Marker</source>
        <translation>Marker versetzen</translation>
    </message>
    <message>
        <source>Offset Markers</source>
        <translation>Marker versetzen</translation>
    </message>
    <message>
        <source>Carry Markers</source>
        <translation>Marker übertragen</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Neu verknüpfen</translation>
    </message>
    <message>
        <source>Change Effect</source>
        <translation>Effekt ändern</translation>
    </message>
    <message>
        <source>Change Effects</source>
        <translation>Effekte ändern</translation>
    </message>
    <message>
        <source>Switch On Effect</source>
        <translation>Effekt einschalten</translation>
    </message>
    <message>
        <source>Switch On Effects</source>
        <translation>Effekte einschalten</translation>
    </message>
    <message>
        <source>Switch Off Effect</source>
        <translation>Effekt ausschalten</translation>
    </message>
    <message>
        <source>Switch Off Effects</source>
        <translation>Effekte ausschalten</translation>
    </message>
    <message>
        <source>Remove Effect</source>
        <translation>Effekt entfernen</translation>
    </message>
    <message>
        <source>Remove Effects</source>
        <translation>Effekte entfernen</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>„%1“ rückgängig</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>The row above or below</source>
        <translation>Die Zeile darüber oder darunter</translation>
    </message>
    <message>
        <source>The cell to the left or right</source>
        <translation>Die Zelle links oder rechts</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>Eine Seite nach oben oder unten</translation>
    </message>
    <message>
        <source>The first or last cell of the row</source>
        <translation>Die erste oder letzte Zelle der Zeile</translation>
    </message>
    <message>
        <source>The first or last cell of the table</source>
        <translation>Die erste oder letzte Zelle der Tabelle</translation>
    </message>
    <message>
        <source>Select further rows</source>
        <translation>Weitere Zeilen auswählen</translation>
    </message>
    <message>
        <source>The next or previous cell</source>
        <translation>Die nächste oder vorige Zelle</translation>
    </message>
    <message>
        <source>Out of the table</source>
        <translation>Aus der Tabelle heraus</translation>
    </message>
    <message>
        <source>Switch the check box of the current cell</source>
        <translation>Kästchen der aktuellen Zelle umschalten</translation>
    </message>
    <message>
        <source>Edit the current cell, or open its list</source>
        <translation>Aktuelle Zelle bearbeiten oder ihre Liste öffnen</translation>
    </message>
    <message>
        <source>The context menu of the selected rows</source>
        <translation>Das Kontextmenü der ausgewählten Zeilen</translation>
    </message>
    <message>
        <source>Markers Table</source>
        <translation>Markertabelle</translation>
    </message>
    <message>
        <source>Effects Table</source>
        <translation>Effekttabelle</translation>
    </message>
    <message>
        <source>Take the selected effects off the list; the project keeps them</source>
        <translation>Ausgewählte Effekte aus der Liste nehmen; im Projekt bleiben sie</translation>
    </message>
    <message>
        <source>Marker Overview</source>
        <translation>Markerübersicht</translation>
    </message>
    <message>
        <source>The previous or next marker</source>
        <translation>Der vorige oder nächste Marker</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>Vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>Show the whole sequence</source>
        <translation>Die ganze Sequenz anzeigen</translation>
    </message>
    <message>
        <source>Show the whole sequence, then back to the table</source>
        <translation>Die ganze Sequenz anzeigen, dann zurück zur Tabelle</translation>
    </message>
    <message>
        <source>While a Cell Is Edited</source>
        <translation>Beim Bearbeiten einer Zelle</translation>
    </message>
    <message>
        <source>Keep what was typed</source>
        <translation>Eingabe übernehmen</translation>
    </message>
    <message>
        <source>Keep a typed in point, with the duration of the marker</source>
        <translation>Eingegebenen In-Punkt übernehmen, die Dauer des Markers behalten</translation>
    </message>
    <message>
        <source>Keep what was typed and edit the next or previous cell</source>
        <translation>Eingabe übernehmen und die nächste oder vorige Zelle bearbeiten</translation>
    </message>
    <message>
        <source>Leave the cell as it was</source>
        <translation>Zelle unverändert lassen</translation>
    </message>
    <message>
        <source>Sheets and Alerts</source>
        <translation>Dialoge und Meldungen</translation>
    </message>
    <message>
        <source>The default button</source>
        <translation>Die Standardschaltfläche</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>Abbrechen oder schließen</translation>
    </message>
    <message>
        <source>The next or previous field</source>
        <translation>Das nächste oder vorige Feld</translation>
    </message>
    <message>
        <source>In the preview of notes: check or uncheck the selected rows</source>
        <translation>In der Notizvorschau: Kästchen der ausgewählten Zeilen umschalten</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Zoom the strips in or out</source>
        <translation>Die Streifen vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>Show the whole cuts</source>
        <translation>Die ganzen Fassungen anzeigen</translation>
    </message>
    <message>
        <source>Scroll the strips</source>
        <translation>Die Streifen verschieben</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Das Fenster schließen</translation>
    </message>
    <message>
        <source>The menu of the table&apos;s header: its columns</source>
        <translation>Das Menü des Tabellenkopfes: seine Spalten</translation>
    </message>
    <message>
        <source>Media Table</source>
        <translation>Medientabelle</translation>
    </message>
    <message>
        <source>Open the file with its application</source>
        <translation>Datei mit ihrem Programm öffnen</translation>
    </message>
    <message>
        <source>Search Field</source>
        <translation>Suchfeld</translation>
    </message>
    <message>
        <source>To the rows that were found</source>
        <translation>Zu den gefundenen Zeilen</translation>
    </message>
    <message>
        <source>Clear the search, then back to the table</source>
        <translation>Suche leeren, dann zurück zur Tabelle</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Send to Premiere Pro</source>
        <translation>An Premiere Pro senden</translation>
    </message>
    <message>
        <source>Send to Final Cut Pro</source>
        <translation>An Final Cut Pro senden</translation>
    </message>
</context>
<context>
    <name>MarkerListPanels</name>
    <message>
        <source>Final Cut Pro X XML files</source>
        <translation>Final-Cut-Pro-X-XML-Dateien</translation>
    </message>
    <message>
        <source>Marker lists</source>
        <translation>Markerlisten</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import Markers</source>
        <translation>Marker importieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export Markers</source>
        <translation>Marker exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
</context>
<context>
    <name>MarkerOffset</name>
    <message>
        <source>Timecodes count at %1 frames per second, without drop frame.</source>
        <translation>Timecodes zählen mit %1 Frames pro Sekunde, ohne Drop-Frame.</translation>
    </message>
    <message>
        <source>Timecodes count at %1 frames per second, the rate of the table&apos;s first row, without drop frame.</source>
        <translation>Timecodes zählen mit %1 Frames pro Sekunde, der Framerate der ersten Zeile der Tabelle, ohne Drop-Frame.</translation>
    </message>
    <message>
        <source>Timecodes count at %1 frames per second, the rate of the table&apos;s first row (%2), without drop frame.</source>
        <translation>Timecodes zählen mit %1 Frames pro Sekunde, der Framerate der ersten Zeile der Tabelle (%2), ohne Drop-Frame.</translation>
    </message>
    <message>
        <source>%1 frame</source>
        <translation>%1 Frame</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Frames</translation>
    </message>
    <message>
        <source>%1: “%2” moves from %3 to %4.</source>
        <translation>%1: „%2“ rückt von %3 nach %4.</translation>
    </message>
    <message>
        <source>This is not a whole number of frames.</source>
        <translation>Das ist keine ganze Zahl von Frames.</translation>
    </message>
    <message>
        <source>This is before the start.</source>
        <translation>Das liegt vor dem Anfang.</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Unable to load project</source>
        <translation>Das Projekt kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 is not installed on this system.</source>
        <translation>Final Cut Pro 7 ist auf diesem System nicht installiert.</translation>
    </message>
    <message>
        <source>Final Cut Pro gave no XML of the project.</source>
        <translation>Final Cut Pro hat kein XML des Projekts geliefert.</translation>
    </message>
    <message>
        <source>An internal error ended the loading; the log tells more.</source>
        <translation>Ein interner Fehler hat das Laden beendet; Näheres steht im Protokoll.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged and was repaired while it was opened (%2).</source>
        <translation>Die Datei „%1“ ist beschädigt und wurde beim Öffnen repariert (%2).</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was not read whole.</source>
        <translation>Die Datei „%1“ wurde nicht vollständig gelesen.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no editing project: %2. Nothing in it can be shown.</source>
        <translation>Die Datei „%1“ ist kein Schnittprojekt: %2. Nichts daraus kann angezeigt werden.</translation>
    </message>
    <message>
        <source>its element &quot;%1&quot; is in the namespace &quot;%2&quot;, while those of a project are in none</source>
        <translation>ihr Element „%1“ ist im Namensraum „%2“, die eines Projekts sind in keinem</translation>
    </message>
    <message>
        <source>its root element &quot;%1&quot; is in the namespace &quot;%2&quot;, while those of a project are in none</source>
        <translation>ihr Wurzelelement „%1“ ist im Namensraum „%2“, die eines Projekts sind in keinem</translation>
    </message>
    <message>
        <source>its root element is &quot;%1&quot; instead of &quot;xmeml&quot;</source>
        <translation>ihr Wurzelelement ist „%1“ statt „xmeml“</translation>
    </message>
    <message>
        <source>Not all that the project holds could be listed; the log tells why.</source>
        <translation>Nicht alles im Projekt konnte aufgelistet werden; das Protokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>The project could not be written.</source>
        <translation>Das Projekt konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The project is being saved already.</source>
        <translation>Das Projekt wird bereits gespeichert.</translation>
    </message>
    <message>
        <source>The project is being sent already.</source>
        <translation>Das Projekt wird bereits gesendet.</translation>
    </message>
    <message>
        <source>The project is sent to Final Cut Pro instead of being saved.</source>
        <translation>Das Projekt wird an Final Cut Pro gesendet statt gespeichert.</translation>
    </message>
    <message>
        <source>There is no project to save.</source>
        <translation>Es gibt kein Projekt, das gespeichert werden könnte.</translation>
    </message>
    <message>
        <source>The repaired file was not overwritten.</source>
        <translation>Die reparierte Datei wurde nicht überschrieben.</translation>
    </message>
    <message>
        <source>Saving was cancelled.</source>
        <translation>Das Speichern wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. It was not overwritten.</source>
        <translation>Die Datei wurde seit dem Öffnen von einem anderen Programm geändert. Sie wurde nicht überschrieben.</translation>
    </message>
    <message>
        <source>The project is being saved or sent and was left as it is. Please try again when that is over.</source>
        <translation>Das Projekt wird gerade gespeichert oder gesendet und blieb unverändert. Bitte versuchen Sie es danach noch einmal.</translation>
    </message>
    <message>
        <source>This file was repaired when it was opened</source>
        <translation>Diese Datei wurde beim Öffnen repariert</translation>
    </message>
    <message>
        <source>Saving replaces the damaged file with the repaired project. Do you want to save it?</source>
        <translation>Beim Speichern wird die beschädigte Datei durch das reparierte Projekt ersetzt. Möchten Sie es speichern?</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was changed by another program since it was opened</source>
        <translation>Die Datei „%1“ wurde seit dem Öffnen von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>Overwriting the file loses what the other program saved. Do you want to overwrite it?</source>
        <translation>Beim Überschreiben geht verloren, was das andere Programm gespeichert hat. Möchten Sie die Datei überschreiben?</translation>
    </message>
    <message>
        <source>Content is missing: %1, and %2 left out behind that.</source>
        <translation>Es fehlt Inhalt: %1, dahinter %2 ausgelassen.</translation>
    </message>
    <message>
        <source>Content is missing: %1 in a comment or instruction that does not end where it should.</source>
        <translation>Es fehlt Inhalt: %1 in einem Kommentar oder einer Anweisung ohne richtiges Ende.</translation>
    </message>
    <message>
        <source>Content is missing from its place: the tags do not match, so elements near or behind line %1 may be outside of those that they belong to.</source>
        <translation>Inhalt steht nicht an seiner Stelle: Die Tags passen nicht zusammen, daher können Elemente bei oder nach Zeile %1 außerhalb derer stehen, zu denen sie gehören.</translation>
    </message>
    <message>
        <source>Content is missing: &quot;&amp;&quot; or &quot;&lt;&quot; is no reference or tag in %1, the first on line %2.</source>
        <translation>Es fehlt Inhalt: „&amp;“ oder „&lt;“ ist an %1 keine Referenz und kein Tag, zuerst in Zeile %2.</translation>
    </message>
    <message>
        <source>Content is missing: %1, and what follows is no part of the project.</source>
        <translation>Es fehlt Inhalt: %1, und was folgt, gehört nicht zum Projekt.</translation>
    </message>
    <message>
        <source>Content is missing: the entities that the document type declares are not kept.</source>
        <translation>Es fehlt Inhalt: Die vom Dokumenttyp deklarierten Entitäten bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>Content is missing: %1, but the file ends in the middle of an element.</source>
        <translation>Es fehlt Inhalt: %1, aber die Datei endet mitten in einem Element.</translation>
    </message>
    <message>
        <source>Content is missing: %1.</source>
        <translation>Es fehlt Inhalt: %1.</translation>
    </message>
    <message>
        <source>all %1 bytes could be read</source>
        <translation>alle %1 Bytes konnten gelesen werden</translation>
    </message>
    <message>
        <source>%1 of %2 bytes could be read</source>
        <translation>%1 von %2 Bytes konnten gelesen werden</translation>
    </message>
    <message>
        <source>1 element was</source>
        <translation>wurde 1 Element</translation>
    </message>
    <message>
        <source>%1 elements were</source>
        <translation>wurden %1 Elemente</translation>
    </message>
    <message>
        <source>1 element is</source>
        <translation>1 Element steht</translation>
    </message>
    <message>
        <source>%1 elements are</source>
        <translation>%1 Elemente stehen</translation>
    </message>
    <message>
        <source>1 place</source>
        <translation>1 Stelle</translation>
    </message>
    <message>
        <source>%1 places</source>
        <translation>%1 Stellen</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened as a project: %2</source>
        <translation>Die Datei „%1“ kann nicht als Projekt geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Die Datei „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a project file.</source>
        <translation>„%1“ ist ein Ordner, keine Projektdatei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Die Datei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>there is not enough memory to read it.</source>
        <translation>der Speicher reicht nicht aus, um sie zu lesen.</translation>
    </message>
    <message>
        <source>There is not enough memory to read it.</source>
        <translation>Der Speicher reicht nicht aus, um sie zu lesen.</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation>nichts darin ist lesbar</translation>
    </message>
    <message>
        <source>loading was cancelled.</source>
        <translation>das Laden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>reading it failed before its end.</source>
        <translation>das Lesen brach vor ihrem Ende ab.</translation>
    </message>
    <message>
        <source>its elements are nested more than %1 deep.</source>
        <translation>ihre Elemente sind mehr als %1 Ebenen tief verschachtelt.</translation>
    </message>
    <message>
        <source>its document type lists more values than can be read.</source>
        <translation>ihr Dokumenttyp führt mehr Werte auf, als gelesen werden können.</translation>
    </message>
    <message>
        <source>a comment in it has more double hyphens than can be read.</source>
        <translation>ein Kommentar darin hat mehr doppelte Bindestriche, als gelesen werden können.</translation>
    </message>
    <message>
        <source>it is not well-formed XML (%1).</source>
        <translation>sie ist kein wohlgeformtes XML (%1).</translation>
    </message>
    <message>
        <source>it holds no XML root element (%1).</source>
        <translation>sie enthält kein XML-Wurzelelement (%1).</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>The text is no XML element.</source>
        <translation>Der Text ist kein XML-Element.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>Die Datei „%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read: %2.</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read. %2</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Writing was cancelled.</source>
        <translation>Das Schreiben wurde abgebrochen.</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>The property list is damaged: %1.</source>
        <translation>Die Eigenschaftsliste ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>The property list could not be written.</source>
        <translation>Die Eigenschaftsliste konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: too many open files</source>
        <translation>%1 konnte nicht gestartet werden: zu viele offene Dateien</translation>
    </message>
    <message>
        <source>%1 was given up.</source>
        <translation>%1 wurde aufgegeben.</translation>
    </message>
    <message>
        <source>%1 did not finish within %2 seconds.</source>
        <translation>%1 wurde nicht innerhalb von %2 Sekunden fertig.</translation>
    </message>
    <message>
        <source>%1 ended unexpectedly.</source>
        <translation>%1 wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>A temporary file could not be written: %1.</source>
        <translation>Eine temporäre Datei konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>kein Platz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>das Dateisystem ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ist kein Ordner</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>die Datei existiert bereits</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>zu viele symbolische Verknüpfungen</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>das Speicherkontingent ist ausgeschöpft</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>das Gerät ist belegt</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>Unable to add marker</source>
        <translation>Der Marker kann nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>You need at least one sequence in your project in order to add a marker.</source>
        <translation>Um einen Marker hinzuzufügen, muss das Projekt mindestens eine Sequenz enthalten.</translation>
    </message>
    <message>
        <source>Unable to create marker</source>
        <translation>Der Marker kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>Unable to remove marker</source>
        <translation>Der Marker kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Unable to change setting</source>
        <translation>Die Einstellung kann nicht geändert werden</translation>
    </message>
    <message>
        <source>XML document cannot be found.</source>
        <translation>Das XML-Dokument ist nicht zu finden.</translation>
    </message>
    <message>
        <source>It was removed from the project.</source>
        <translation>Das Element wurde aus dem Projekt entfernt.</translation>
    </message>
    <message>
        <source>An internal error occurred; the log tells more.</source>
        <translation>Ein interner Fehler ist aufgetreten; Näheres steht im Protokoll.</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this marker?</source>
        <translation>Möchten Sie diesen Marker wirklich entfernen?</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove these markers?</source>
        <translation>Möchten Sie diese Marker wirklich entfernen?</translation>
    </message>
    <message>
        <source>The name or comment holds XML markup.</source>
        <translation>Der Name oder Kommentar enthält XML-Auszeichnung.</translation>
    </message>
    <message>
        <source>The title &quot;%1&quot; would give the identifier %2, which the field &quot;%3&quot; has.</source>
        <translation>Der Titel „%1“ ergäbe die Kennung %2, die das Feld „%3“ hat.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; has the identifier %2 already.</source>
        <translation>Das Feld „%1“ hat die Kennung %2 bereits.</translation>
    </message>
    <message>
        <source>%1 of %2 markers is listed under another sequence or clip than their own.</source>
        <translation>%1 von %2 Markern ist unter einer anderen Sequenz oder einem anderen Clip aufgeführt als den eigenen.</translation>
    </message>
    <message>
        <source>%1 of %2 markers are listed under another sequence or clip than their own.</source>
        <translation>%1 von %2 Markern sind unter einer anderen Sequenz oder einem anderen Clip aufgeführt als den eigenen.</translation>
    </message>
    <message>
        <source>No name specified</source>
        <translation>Kein Name angegeben</translation>
    </message>
    <message>
        <source>Please choose a name for this preset.</source>
        <translation>Bitte wählen Sie einen Namen für diese Vorgabe.</translation>
    </message>
    <message>
        <source>Unable to create preset</source>
        <translation>Die Vorgabe kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>Unable to delete preset</source>
        <translation>Die Vorgabe kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>Please ensure your permissions are correct for the directory %1</source>
        <translation>Bitte prüfen Sie Ihre Zugriffsrechte für den Ordner %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; contains a slash, which separates folders.</source>
        <translation>Der Name „%1“ enthält einen Schrägstrich, der Ordner trennt.</translation>
    </message>
    <message>
        <source>The name contains a character that the name of a file cannot contain.</source>
        <translation>Der Name enthält ein Zeichen, das in Dateinamen nicht vorkommen kann.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Vorgabe braucht einen Namen.</translation>
    </message>
    <message>
        <source>There are no presets.</source>
        <translation>Es gibt keine Vorgaben.</translation>
    </message>
    <message>
        <source>There is a preset named &quot;%1&quot; already.</source>
        <translation>Es gibt bereits eine Vorgabe namens „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2.</source>
        <translation>„%1“ konnte nicht umbenannt werden: %2.</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Die Vorgabe „%1“ löschen?</translation>
    </message>
    <message>
        <source>Its labels will be lost. Markers keep their colors.</source>
        <translation>Ihre Bezeichnungen gehen verloren. Die Marker behalten ihre Farben.</translation>
    </message>
    <message>
        <source>This preset already exists</source>
        <translation>Diese Vorgabe existiert bereits</translation>
    </message>
    <message>
        <source>Would you like to overwrite it?</source>
        <translation>Möchten Sie sie überschreiben?</translation>
    </message>
    <message>
        <source>Unable to remove effect</source>
        <translation>Der Effekt kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this effect?</source>
        <translation>Möchten Sie diesen Effekt wirklich entfernen?</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove these effects?</source>
        <translation>Möchten Sie diese Effekte wirklich entfernen?</translation>
    </message>
    <message>
        <source>%1 item</source>
        <translation>%1 Objekt</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Objekte</translation>
    </message>
    <message>
        <source>%1 item (%2 selected)</source>
        <translation>%1 Objekt (%2 ausgewählt)</translation>
    </message>
    <message>
        <source>%1 items (%2 selected)</source>
        <translation>%1 Objekte (%2 ausgewählt)</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Gesamtgröße: %1</translation>
    </message>
    <message>
        <source>Total number of files: %1</source>
        <translation>Gesamtzahl der Dateien: %1</translation>
    </message>
    <message>
        <source>Total size of filtered media: %1</source>
        <translation>Gesamtgröße der gefilterten Medien: %1</translation>
    </message>
    <message>
        <source>Number of filtered media files: %1</source>
        <translation>Anzahl der gefilterten Mediendateien: %1</translation>
    </message>
    <message>
        <source>Largest file: Unknown</source>
        <translation>Größte Datei: unbekannt</translation>
    </message>
    <message>
        <source>Smallest file: Unknown</source>
        <translation>Kleinste Datei: unbekannt</translation>
    </message>
    <message>
        <source>Largest file: %1 (%2)</source>
        <translation>Größte Datei: %1 (%2)</translation>
    </message>
    <message>
        <source>Smallest file: %1 (%2)</source>
        <translation>Kleinste Datei: %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” is on a volume that does not answer. Check its connection</source>
        <translation>„%1“ ist auf einem Volume, das nicht antwortet. Prüfen Sie seine Verbindung</translation>
    </message>
    <message>
        <source>“%1” is missing from “%2”. Media ▸ Relink… finds it in other folders</source>
        <translation>„%1“ fehlt in „%2“. Medien ▸ Neu verknüpfen… sucht in anderen Ordnern danach</translation>
    </message>
    <message>
        <source>No file is selected. Click its row first</source>
        <translation>Keine Datei ist ausgewählt. Klicken Sie zuerst auf ihre Zeile</translation>
    </message>
    <message>
        <source>There is no file browser that could show the file</source>
        <translation>Es gibt keinen Dateimanager, der die Datei zeigen könnte</translation>
    </message>
    <message>
        <source>There is no program that could open the file. The system’s settings tell which program opens files of its kind</source>
        <translation>Es gibt kein Programm, das die Datei öffnen könnte. Die Systemeinstellungen legen fest, welches Programm Dateien dieser Art öffnet</translation>
    </message>
    <message>
        <source>The project names no valid place for this file. Connect it again in the editing application</source>
        <translation>Das Projekt nennt keinen gültigen Ort dieser Datei. Verbinden Sie sie im Schnittprogramm neu</translation>
    </message>
    <message>
        <source>The media files cannot be relinked now.</source>
        <translation>Die Mediendateien können jetzt nicht neu verknüpft werden.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot stand in an XML file.</source>
        <translation>Der Name „%1“ kann nicht in einer XML-Datei stehen.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no media hash list.</source>
        <translation>Die Datei „%1“ ist keine Media-Hash-Liste.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 files read</source>
        <translation>%1 von %2, %3 Dateien gelesen</translation>
    </message>
    <message>
        <source>%1 of %2, %3 files read, %4:%5:%6 left</source>
        <translation>%1 von %2, %3 Dateien gelesen, noch %4:%5:%6</translation>
    </message>
    <message>
        <source>Error saving marker list</source>
        <translation>Fehler beim Speichern der Markerliste</translation>
    </message>
    <message>
        <source>1 row holds a tab or a line break; other systems will not be able to read it</source>
        <translation>1 Zeile enthält einen Tabulator oder Zeilenumbruch; andere Systeme können sie nicht lesen</translation>
    </message>
    <message>
        <source>%1 rows hold a tab or a line break; other systems will not be able to read them</source>
        <translation>%1 Zeilen enthalten einen Tabulator oder Zeilenumbruch; andere Systeme können sie nicht lesen</translation>
    </message>
    <message>
        <source>No markers to import</source>
        <translation>Keine Marker zu importieren</translation>
    </message>
    <message>
        <source>There were no markers in the file or it is an invalid format.</source>
        <translation>Die Datei enthält keine Marker oder hat ein ungültiges Format.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the markers of the file.</source>
        <translation>Der Speicher reicht nicht aus, um die Marker der Datei zu lesen.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the list.</source>
        <translation>Der Speicher reicht nicht aus, um die Liste zu lesen.</translation>
    </message>
    <message>
        <source>%1 of %2 rows could not be added</source>
        <translation>%1 von %2 Zeilen konnten nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>line %1, “%2”: %3</source>
        <translation>Zeile %1, „%2“: %3</translation>
    </message>
    <message>
        <source>marker %1, “%2”: %3</source>
        <translation>Marker %1, „%2“: %3</translation>
    </message>
    <message>
        <source>%1, line %2, “%3”: %4</source>
        <translation>%1, Zeile %2, „%3“: %4</translation>
    </message>
    <message>
        <source>%1, marker %2, “%3”: %4</source>
        <translation>%1, Marker %2, „%3“: %4</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
    <message>
        <source>There is no sequence to add it to.</source>
        <translation>Es gibt keine Sequenz, der er hinzugefügt werden könnte.</translation>
    </message>
    <message>
        <source>Markers are still loading</source>
        <translation>Die Marker werden noch geladen</translation>
    </message>
    <message>
        <source>Please wait for markers to finish loading before attempting this operation.</source>
        <translation>Bitte warten Sie, bis die Marker geladen sind, bevor Sie das versuchen.</translation>
    </message>
    <message>
        <source>The file is not a text.</source>
        <translation>Die Datei ist kein Text.</translation>
    </message>
    <message>
        <source>The JSON is damaged: %1.</source>
        <translation>Das JSON ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>There is no time.</source>
        <translation>Es ist keine Zeit angegeben.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>“%1” is no time.</source>
        <translation>„%1“ ist keine Zeit.</translation>
    </message>
    <message>
        <source>There are %1 fields instead of five to eight.</source>
        <translation>Es sind %1 Felder statt fünf bis acht.</translation>
    </message>
    <message>
        <source>%1 frames a second have no “%2”.</source>
        <translation>Bei %1 Frames pro Sekunde gibt es „%2“ nicht.</translation>
    </message>
    <message>
        <source>A bar was replaced by a slash in %1.</source>
        <translation>In %1 wurde ein senkrechter Strich durch einen Schrägstrich ersetzt.</translation>
    </message>
    <message>
        <source>Times are cut to whole seconds.</source>
        <translation>Zeiten werden auf ganze Sekunden gekürzt.</translation>
    </message>
    <message>
        <source>The duration of %1 is left out.</source>
        <translation>Die Dauer von %1 entfällt.</translation>
    </message>
    <message>
        <source>The colour of %1 is replaced by the nearest.</source>
        <translation>Die Farbe von %1 wird durch die nächstliegende ersetzt.</translation>
    </message>
    <message>
        <source>Tabs and line breaks are blanks in %1.</source>
        <translation>Tabulatoren und Zeilenumbrüche werden in %1 zu Leerzeichen.</translation>
    </message>
    <message>
        <source>The comment of %1 is left out.</source>
        <translation>Der Kommentar von %1 entfällt.</translation>
    </message>
    <message>
        <source>The custom fields of %1 are left out.</source>
        <translation>Die eigenen Felder von %1 entfallen.</translation>
    </message>
    <message>
        <source>Colours are left out.</source>
        <translation>Farben entfallen.</translation>
    </message>
    <message>
        <source>The timecodes of several frame rates stand in one list.</source>
        <translation>Timecodes verschiedener Bildraten stehen in einer Liste.</translation>
    </message>
    <message>
        <source>1 marker</source>
        <translation>1 Marker</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 Marker</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 Text</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 Texten</translation>
    </message>
    <message>
        <source>Sending to Final Cut Pro...</source>
        <translation>Senden an Final Cut Pro…</translation>
    </message>
    <message>
        <source>Sending to Premiere Pro...</source>
        <translation>Senden an Premiere Pro…</translation>
    </message>
    <message>
        <source>No changes to send to Final Cut Pro</source>
        <translation>Keine Änderungen für Final Cut Pro</translation>
    </message>
    <message>
        <source>Vantrell only sends modified sequences to Final Cut Pro and no sequences have been changed yet.</source>
        <translation>Vantrell sendet nur geänderte Sequenzen an Final Cut Pro, und bisher wurde keine Sequenz geändert.</translation>
    </message>
    <message>
        <source>Changes successfully sent to Final Cut Pro</source>
        <translation>Die Änderungen wurden an Final Cut Pro gesendet</translation>
    </message>
    <message>
        <source>Sequences have been duplicated and placed inside the Vantrell bin.</source>
        <translation>Die Sequenzen wurden dupliziert und in den Vantrell-Bin gelegt.</translation>
    </message>
    <message>
        <source>Unable to send to Final Cut Pro</source>
        <translation>Senden an Final Cut Pro nicht möglich</translation>
    </message>
    <message>
        <source>Unable to send to Premiere Pro</source>
        <translation>Senden an Premiere Pro nicht möglich</translation>
    </message>
    <message>
        <source>An error occurred while sending data.</source>
        <translation>Beim Senden der Daten ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Project successfully sent to Premiere Pro</source>
        <translation>Das Projekt wurde an Premiere Pro gesendet</translation>
    </message>
    <message>
        <source>A duplicate project has been created.</source>
        <translation>Eine Kopie des Projekts wurde erstellt.</translation>
    </message>
    <message>
        <source>There is no project to send.</source>
        <translation>Es gibt kein Projekt, das gesendet werden könnte.</translation>
    </message>
    <message>
        <source>Premiere Pro now configured</source>
        <translation>Premiere Pro ist jetzt eingerichtet</translation>
    </message>
    <message>
        <source>Please close and relaunch Adobe Premiere Pro in order to use it with this application.</source>
        <translation>Bitte beenden Sie Adobe Premiere Pro und starten Sie es neu, um es mit diesem Programm zu verwenden.</translation>
    </message>
    <message>
        <source>Critical error: unable to load FCP project loader dialog.</source>
        <translation>Kritischer Fehler: Das Fenster zum Laden von FCP-Projekten kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>You must reinstall the application.</source>
        <translation>Sie müssen das Programm neu installieren.</translation>
    </message>
    <message>
        <source>Error: unable to load About dialog.</source>
        <translation>Fehler: Das Fenster „Über“ kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>Please report this error to Orvandel.</source>
        <translation>Bitte melden Sie diesen Fehler an Orvandel.</translation>
    </message>
    <message>
        <source>There are no rows to report.</source>
        <translation>Es gibt keine Zeilen für den Bericht.</translation>
    </message>
    <message>
        <source>A PDF needs the package &quot;vantrell-print&quot;, which is not installed.</source>
        <translation>Für ein PDF wird das Paket „vantrell-print“ benötigt, das nicht installiert ist.</translation>
    </message>
    <message>
        <source>The PDF could not be made.</source>
        <translation>Das PDF konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The PDF could not be written: %1.</source>
        <translation>Das PDF konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The pages could not be put together: %1.</source>
        <translation>Die Seiten konnten nicht zusammengefügt werden: %1.</translation>
    </message>
    <message>
        <source>The report could not be loaded.</source>
        <translation>Der Bericht konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>The web engine ended too soon.</source>
        <translation>Die Web-Engine wurde zu früh beendet.</translation>
    </message>
    <message>
        <source>The web engine made no pages of the report.</source>
        <translation>Die Web-Engine hat keine Seiten des Berichts erzeugt.</translation>
    </message>
    <message>
        <source>The property list nests more than %1 levels.</source>
        <translation>Die Eigenschaftsliste ist mehr als %1 Ebenen tief verschachtelt.</translation>
    </message>
    <message>
        <source>One of the effects was removed from the project.</source>
        <translation>Einer der Effekte wurde aus dem Projekt entfernt.</translation>
    </message>
    <message>
        <source>%1 of the effects were removed from the project.</source>
        <translation>%1 der Effekte wurden aus dem Projekt entfernt.</translation>
    </message>
    <message>
        <source>Markers of %1 sequences and clips stand in one list.</source>
        <translation>Marker von %1 Sequenzen und Clips stehen in einer Liste.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>The line has %1 fields instead of %2.</source>
        <translation>Die Zeile hat %1 Felder statt %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no media hash list: %2</source>
        <translation>Die Datei „%1“ ist keine Media-Hash-Liste: %2</translation>
    </message>
</context>
<context>
    <name>PrintPlugin</name>
    <message>
        <source>Printing needs the package “vantrell-print”, which is not installed.</source>
        <translation>Zum Drucken wird das Paket „vantrell-print“ benötigt, das nicht installiert ist.</translation>
    </message>
    <message>
        <source>The package “vantrell-print” does not fit this program: %1</source>
        <translation>Das Paket „vantrell-print“ passt nicht zu diesem Programm: %1</translation>
    </message>
</context>
<context>
    <name>ReplaceQuestion</name>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>„%1“ gibt es schon. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>What the file in “%1” contains will be lost.</source>
        <translation>Der Inhalt der Datei in „%1“ geht verloren.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>TimecodeEntry</name>
    <message>
        <source>An empty field</source>
        <translation>Ein leeres Feld</translation>
    </message>
    <message>
        <source>%1 is %2, frame %3</source>
        <translation>%1 ist %2, Frame %3</translation>
    </message>
    <message>
        <source>%1 is %2, frame %3 of %4</source>
        <translation>%1 ist %2, Frame %3 von %4</translation>
    </message>
    <message>
        <source>the sequence</source>
        <translation>der Sequenz</translation>
    </message>
    <message>
        <source>This is before the start of %1 at %2.</source>
        <translation>Das liegt vor dem Anfang von %1 bei %2.</translation>
    </message>
    <message>
        <source>This is after the end of %1 at %2.</source>
        <translation>Das liegt nach dem Ende von %1 bei %2.</translation>
    </message>
    <message>
        <source>%1 is no duration</source>
        <translation>%1 ist keine Dauer</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 Frame</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Frames</translation>
    </message>
    <message>
        <source>%1 is %2, %3, to %4</source>
        <translation>%1 ist %2, %3, bis %4</translation>
    </message>
    <message>
        <source>This ends after the end of %1 at %2.</source>
        <translation>Das endet nach dem Ende von %1 bei %2.</translation>
    </message>
    <message>
        <source>Only digits, colons, points and commas make a timecode.</source>
        <translation>Ein Timecode besteht nur aus Ziffern, Doppelpunkten, Punkten und Kommas.</translation>
    </message>
    <message>
        <source>Digits are missing between two separators; points count as zeros only at the end.</source>
        <translation>Zwischen zwei Trennzeichen fehlen Ziffern; Punkte zählen nur am Ende als Nullen.</translation>
    </message>
    <message>
        <source>A digit is missing: fields after a colon need two.</source>
        <translation>Eine Ziffer fehlt: Felder nach einem Doppelpunkt brauchen zwei.</translation>
    </message>
    <message>
        <source>There are too many digits; only the last eight count.</source>
        <translation>Es sind zu viele Ziffern; nur die letzten acht zählen.</translation>
    </message>
    <message>
        <source>Digits are missing: hours, minutes, seconds and frames are needed.</source>
        <translation>Es fehlen Ziffern: Stunden, Minuten, Sekunden und Frames sind nötig.</translation>
    </message>
    <message>
        <source>There are too many fields; only the first four count.</source>
        <translation>Es sind zu viele Felder; nur die ersten vier zählen.</translation>
    </message>
    <message>
        <source>A digit is missing: each field needs two.</source>
        <translation>Eine Ziffer fehlt: Jedes Feld braucht zwei.</translation>
    </message>
    <message>
        <source>Hours cannot exceed 23.</source>
        <translation>Die Stunden können höchstens 23 sein.</translation>
    </message>
    <message>
        <source>Minutes cannot exceed 59.</source>
        <translation>Die Minuten können höchstens 59 sein.</translation>
    </message>
    <message>
        <source>Seconds cannot exceed 59.</source>
        <translation>Die Sekunden können höchstens 59 sein.</translation>
    </message>
    <message>
        <source>Frames cannot exceed %1 at this rate.</source>
        <translation>Bei dieser Framerate können die Frames höchstens %1 sein.</translation>
    </message>
    <message>
        <source>Drop-frame timecode leaves this number out.</source>
        <translation>Drop-Frame-Timecode lässt diese Nummer aus.</translation>
    </message>
</context>
<context>
    <name>Troubleshooting</name>
    <message>
        <source>Unable to show the log</source>
        <translation>Das Protokoll kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>There are no logs.</source>
        <translation>Es gibt keine Protokolle.</translation>
    </message>
    <message>
        <source>There is no log yet, or no program to show it with.</source>
        <translation>Es gibt noch kein Protokoll oder kein Programm, um es anzuzeigen.</translation>
    </message>
    <message>
        <source>No helper program was run yet, or there is no program to show the log with.</source>
        <translation>Es lief noch kein Hilfsprogramm, oder es gibt kein Programm, um das Protokoll anzuzeigen.</translation>
    </message>
    <message>
        <source>The logs cannot be read.</source>
        <translation>Die Protokolle können nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
</context>
<context>
    <name>UnsavedChanges</name>
    <message>
        <source>1 marker</source>
        <translation>1 Marker</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 Marker</translation>
    </message>
    <message>
        <source>1 effect</source>
        <translation>1 Effekt</translation>
    </message>
    <message>
        <source>%1 effects</source>
        <translation>%1 Effekte</translation>
    </message>
    <message>
        <source>1 media file</source>
        <translation>1 Mediendatei</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 Mediendateien</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 Änderungen</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>rows</comment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>changes to rows</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>changes in sequences</comment>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>1 sequence</source>
        <translation>1 Sequenz</translation>
    </message>
    <message>
        <source>%1 sequences</source>
        <translation>%1 Sequenzen</translation>
    </message>
</context>
<context>
    <name>UserManual</name>
    <message>
        <source>The user manual is not installed: there is no file “%1”</source>
        <translation>Das Benutzerhandbuch ist nicht installiert: Die Datei „%1“ fehlt</translation>
    </message>
    <message>
        <source>There is no program that could show the manual. Open the file “%1” in a web browser</source>
        <translation>Es gibt kein Programm, das das Handbuch anzeigen könnte. Öffnen Sie die Datei „%1“ in einem Webbrowser</translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>Movie Clip</source>
        <translation>Filmclip</translation>
    </message>
    <message>
        <source>Audio Clip</source>
        <translation>Audioclip</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Generator</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Create preset...</source>
        <translation>Vorgabe erstellen…</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>unused</source>
        <translation>unbenutzt</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>doppelt</translation>
    </message>
    <message>
        <source>still</source>
        <translation>Standbild</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Frames</translation>
    </message>
    <message>
        <source>same name</source>
        <translation>gleicher Name</translation>
    </message>
    <message>
        <source>other Unicode form</source>
        <translation>andere Unicode-Form</translation>
    </message>
    <message>
        <source>other case</source>
        <translation>Groß/klein anders</translation>
    </message>
    <message>
        <source>other escapes</source>
        <translation>andere Escape-Folgen</translation>
    </message>
    <message>
        <source>other duration</source>
        <translation>andere Dauer</translation>
    </message>
    <message>
        <source>other timecode</source>
        <translation>anderer Timecode</translation>
    </message>
    <message>
        <source>other reel</source>
        <translation>andere Rolle</translation>
    </message>
    <message>
        <source>other rate</source>
        <translation>andere Framerate</translation>
    </message>
    <message>
        <source>there</source>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>carried</source>
        <translation>übertragen</translation>
    </message>
    <message>
        <source>nearest</source>
        <translation>nächstgelegen</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>entfallen</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Slipped</source>
        <translation>Slip</translation>
    </message>
    <message>
        <source>Trimmed</source>
        <translation>Getrimmt</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>%1 frames (%2 %)</source>
        <translation>%1 Frames (%2 %)</translation>
    </message>
</context>
<context>
    <name>WebEngine</name>
    <message>
        <source>This system keeps the web engine from locking up what it shows (it allows no user name spaces), so nothing is printed.</source>
        <translation>Dieses System verhindert, dass die Web-Engine ihre Inhalte abschottet (es lässt keine User-Namespaces zu); daher wird nichts gedruckt.</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>The page has no valid address</source>
        <translation>Die Seite hat keine gültige Adresse</translation>
    </message>
    <message>
        <source>“%1” is no web address. Edit ▸ Preferences… has the address of each help page.</source>
        <translation>„%1“ ist keine Webadresse. Unter Bearbeiten ▸ Einstellungen… stehen die Adressen der Hilfeseiten.</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>Die Seite kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>There is no browser to show it with: %1</source>
        <translation>Es gibt keinen Browser, um sie anzuzeigen: %1</translation>
    </message>
</context>
<context>
    <name>vantrell::AboutPanel</name>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Media, effects and markers of an editing project.</source>
        <translation>Medien, Effekte und Marker eines Schnittprojekts.</translation>
    </message>
    <message>
        <source>Made by Orvandel.</source>
        <translation>Von Orvandel.</translation>
    </message>
    <message>
        <source>About Vantrell</source>
        <translation>Über Vantrell</translation>
    </message>
</context>
<context>
    <name>vantrell::AppController</name>
    <message>
        <source>Browse for a Final Cut Pro 7 project or XML file</source>
        <translation>Final-Cut-Pro-7-Projekt oder XML-Datei auswählen</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)</source>
        <translation>Final-Cut-Pro-7-Projekte und XML-Dateien (*.fcp *.xml *.FCP *.XML)</translation>
    </message>
    <message>
        <source>The sample project could not be copied: %1</source>
        <translation>Das Beispielprojekt konnte nicht kopiert werden: %1</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Choose a folder for the logs</source>
        <translation>Ordner für die Protokolle auswählen</translation>
    </message>
    <message>
        <source>The logs were gathered</source>
        <translation>Die Protokolle wurden gesammelt</translation>
    </message>
    <message>
        <source>Unable to gather the logs</source>
        <translation>Die Protokolle konnten nicht gesammelt werden</translation>
    </message>
</context>
<context>
    <name>vantrell::CandidateDelegate</name>
    <message>
        <source>File to relink to</source>
        <translation>Datei, mit der neu verknüpft wird</translation>
    </message>
</context>
<context>
    <name>vantrell::CarriedMarkerModel</name>
    <message>
        <source>no place left</source>
        <translation>keine Stelle mehr</translation>
    </message>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>It was added to the new cut.</source>
        <translation>Er wurde der neuen Fassung hinzugefügt.</translation>
    </message>
    <message>
        <source>The new cut has this marker there already. It is not added again.</source>
        <translation>Die neue Fassung hat diesen Marker dort bereits. Er wird nicht noch einmal hinzugefügt.</translation>
    </message>
    <message>
        <source>It goes to where its picture went.</source>
        <translation>Er kommt dorthin, wo sein Bild jetzt ist.</translation>
    </message>
    <message>
        <source>It goes near its picture, or to a place that has to be looked at.</source>
        <translation>Er kommt in die Nähe seines Bildes oder an eine Stelle, die geprüft werden muss.</translation>
    </message>
    <message>
        <source>Its picture is gone. Tick it, or enter a timecode under “New”, to add it nevertheless.</source>
        <translation>Sein Bild ist entfallen. Kreuzen Sie ihn an oder geben Sie unter „Neu“ einen Timecode ein, um ihn trotzdem hinzuzufügen.</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>vantrell::ChangeTableModel</name>
    <message>
        <source>Old: %1, %2 to %3</source>
        <translation>Alt: %1, %2 bis %3</translation>
    </message>
    <message>
        <source>New: %1, %2 to %3</source>
        <translation>Neu: %1, %2 bis %3</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>vantrell::ChangedFileSheet</name>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Someone else has saved it since you opened it. If you overwrite it, those changes are lost; if you reload it, yours are.</source>
        <translation>Die Datei wurde von anderer Seite gespeichert, seit Sie sie geöffnet haben. Wenn Sie sie überschreiben, gehen jene Änderungen verloren; wenn Sie sie neu laden, Ihre eigenen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter…</translation>
    </message>
</context>
<context>
    <name>vantrell::CompareChoiceSheet</name>
    <message>
        <source>A project &amp;file</source>
        <translation>Eine Projekt&amp;datei</translation>
    </message>
    <message>
        <source>An &amp;open project:</source>
        <translation>Ein &amp;geöffnetes Projekt:</translation>
    </message>
    <message>
        <source>Another sequence of &amp;this project</source>
        <translation>Eine andere &amp;Sequenz dieses Projekts</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Compare this project with:</source>
        <translation>Dieses Projekt vergleichen mit:</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Geöffnetes Projekt</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Aus&amp;wählen…</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
</context>
<context>
    <name>vantrell::CompareWindow</name>
    <message>
        <source>Compare Sequences of “%1”</source>
        <translation>Sequenzen von „%1“ vergleichen</translation>
    </message>
    <message>
        <source>Compare “%1” with “%2”</source>
        <translation>„%1“ mit „%2“ vergleichen</translation>
    </message>
    <message>
        <source>Old sequence</source>
        <translation>Alte Sequenz</translation>
    </message>
    <message>
        <source>New sequence</source>
        <translation>Neue Sequenz</translation>
    </message>
    <message>
        <source>&amp;Swap</source>
        <translation>&amp;Tauschen</translation>
    </message>
    <message>
        <source>Make the old cut the new one</source>
        <translation>Die alte Fassung zur neuen machen</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>&amp;Erneut vergleichen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Vergleich läuft…</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show all of both cuts</source>
        <translation>Beide Fassungen ganz anzeigen</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Markers of the old cut</source>
        <translation>Marker der alten Fassung</translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation>&amp;Alle ankreuzen</translation>
    </message>
    <message>
        <source>Tick all markers that have a place</source>
        <translation>Alle Marker ankreuzen, die eine Stelle haben</translation>
    </message>
    <message>
        <source>Tick &amp;None</source>
        <translation>&amp;Keine ankreuzen</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;CSV for Spreadsheets…</source>
        <translation>&amp;CSV für Tabellenkalkulation…</translation>
    </message>
    <message>
        <source>&amp;HTML Page…</source>
        <translation>&amp;HTML-Seite…</translation>
    </message>
    <message>
        <source>&amp;EDL Text…</source>
        <translation>&amp;EDL-Text…</translation>
    </message>
    <message>
        <source>&amp;Add to This Project</source>
        <translation>Diesem &amp;Projekt hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Old cut:</source>
        <translation>Alte Fassung:</translation>
    </message>
    <message>
        <source>Old cut, in “%1”:</source>
        <translation>Alte Fassung, in „%1“:</translation>
    </message>
    <message>
        <source>New cut:</source>
        <translation>Neue Fassung:</translation>
    </message>
    <message>
        <source>New cut, in “%1”:</source>
        <translation>Neue Fassung, in „%1“:</translation>
    </message>
    <message>
        <source>The cuts were not compared.</source>
        <translation>Die Fassungen wurden nicht verglichen.</translation>
    </message>
    <message>
        <source>A project was changed since the cuts were compared.</source>
        <translation>Seit dem Vergleich der Fassungen wurde ein Projekt geändert.</translation>
    </message>
    <message>
        <source>“%1” was closed or loaded again. To add markers or compare again, choose Compare with… once more.</source>
        <translation>„%1“ wurde geschlossen oder neu geladen. Um Marker hinzuzufügen oder erneut zu vergleichen, wählen Sie noch einmal „Vergleichen mit…“.</translation>
    </message>
    <message>
        <source>1 marker added</source>
        <translation>1 Marker hinzugefügt</translation>
    </message>
    <message>
        <source>%1 markers added</source>
        <translation>%1 Marker hinzugefügt</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Nichts hat sich geändert.</translation>
    </message>
    <message>
        <source>1 event has changed.</source>
        <translation>1 Ereignis hat sich geändert.</translation>
    </message>
    <message>
        <source>%1 events have changed.</source>
        <translation>%1 Ereignisse haben sich geändert.</translation>
    </message>
    <message>
        <source>Markers of the old cut: %1 carried, %2 nearest, %3 gone, %4 there; %5 ticked</source>
        <translation>Marker der alten Fassung: %1 übertragen, %2 nächstgelegen, %3 entfallen, %4 vorhanden; %5 angekreuzt</translation>
    </message>
    <message>
        <source>The old cut has no markers.</source>
        <translation>Die alte Fassung hat keine Marker.</translation>
    </message>
    <message>
        <source>Markers are added to the new cut, which is in “%1”. Swap the cuts if it is the old one, or open it and compare it with this project.</source>
        <translation>Marker werden der neuen Fassung hinzugefügt, und die ist in „%1“. Tauschen Sie die Fassungen, wenn es die alte ist, oder öffnen Sie das Projekt und vergleichen Sie es mit diesem.</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>CSV-Dateien</translation>
    </message>
    <message>
        <source>HTML pages</source>
        <translation>HTML-Seiten</translation>
    </message>
    <message>
        <source>Edit decision lists</source>
        <translation>Schnittlisten (EDL)</translation>
    </message>
    <message>
        <source>Export Changes</source>
        <translation>Änderungen exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Changes exported to “%1”</source>
        <translation>Änderungen nach „%1“ exportiert</translation>
    </message>
    <message>
        <source>The changes could not be exported to “%1”.</source>
        <translation>Die Änderungen konnten nicht nach „%1“ exportiert werden.</translation>
    </message>
    <message>
        <source>, %1 added</source>
        <translation>, %1 hinzugefügt</translation>
    </message>
</context>
<context>
    <name>vantrell::ComparedProject</name>
    <message>
        <source>The file is of no type that can be opened.</source>
        <translation>Dateien dieses Typs können nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>vantrell::CutStrips</name>
    <message>
        <source>Old and new cut</source>
        <translation>Alte und neue Fassung</translation>
    </message>
</context>
<context>
    <name>vantrell::DocumentWindow</name>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>Show Each Under Its Own</source>
        <translation>Einzeln auflisten</translation>
    </message>
    <message>
        <source>The file is of no type that can be opened.</source>
        <translation>Dateien dieses Typs können nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown as it was.</source>
        <translation>„%1“ kann nicht im vorherigen Zustand angezeigt werden.</translation>
    </message>
    <message>
        <source>The file is open in another window. Close that window first.</source>
        <translation>Die Datei ist in einem anderen Fenster geöffnet. Schließen Sie zuerst jenes Fenster.</translation>
    </message>
    <message>
        <source>None of the unsaved changes could be restored, as the project was changed since. They are offered again the next time.</source>
        <translation>Keine der ungespeicherten Änderungen konnte wiederhergestellt werden, da das Projekt seither geändert wurde. Sie werden beim nächsten Mal wieder angeboten.</translation>
    </message>
    <message>
        <source>1 unsaved change was restored.</source>
        <translation>1 ungespeicherte Änderung wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>%1 unsaved changes were restored.</source>
        <translation>%1 ungespeicherte Änderungen wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>%1 of %2 unsaved changes were restored; the project was changed where the others belong.</source>
        <translation>%1 von %2 ungespeicherten Änderungen wurden wiederhergestellt; das Projekt wurde dort geändert, wo die übrigen hingehören.</translation>
    </message>
    <message>
        <source>Restored in part: %1.</source>
        <translation>Teilweise wiederhergestellt: %1.</translation>
    </message>
    <message>
        <source>The file is as it was until you save.</source>
        <translation>Die Datei bleibt unverändert, bis Sie speichern.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Project files are read by way of Final Cut Pro 7, which gave no project. An XML export of it opens without.</source>
        <translation>Projektdateien werden über Final Cut Pro 7 gelesen, das kein Projekt geliefert hat. Ein XML-Export davon lässt sich ohne Final Cut Pro öffnen.</translation>
    </message>
    <message>
        <source>%1 in Final Cut Pro</source>
        <translation>%1 in Final Cut Pro</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>file and folder</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>project and program</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Listing markers…</source>
        <translation>Marker werden aufgelistet…</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Vergleich läuft…</translation>
    </message>
    <message>
        <source>Waiting for the volume of “%1”…</source>
        <translation>Auf das Volume von „%1“ wird gewartet…</translation>
    </message>
    <message>
        <source>The project stays open as it is. You can save it to another place.</source>
        <translation>Das Projekt bleibt unverändert geöffnet. Sie können es an einem anderen Ort speichern.</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>File ▸ Import Notes… adds its markers to an open project.</source>
        <translation>Datei ▸ Notizen importieren… fügt ihre Marker zu einem geöffneten Projekt hinzu.</translation>
    </message>
</context>
<context>
    <name>vantrell::EffectsPane</name>
    <message>
        <source>Show &amp;defaults</source>
        <translation>S&amp;tandardeffekte anzeigen</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Entfernen…</translation>
    </message>
    <message>
        <source>All Effects</source>
        <translation>Alle Effekte</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Video Filters</source>
        <translation>Videofilter</translation>
    </message>
    <message>
        <source>Audio Filters</source>
        <translation>Audiofilter</translation>
    </message>
    <message>
        <source>Generators</source>
        <translation>Generatoren</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Übergänge</translation>
    </message>
    <message>
        <source>Type of effects</source>
        <translation>Art der Effekte</translation>
    </message>
    <message>
        <source>Show effects of one type only</source>
        <translation>Nur Effekte einer Art anzeigen</translation>
    </message>
    <message>
        <source>Also show the effects that every clip has, such as Basic Motion and Opacity</source>
        <translation>Auch die Effekte anzeigen, die jeder Clip hat, etwa Basic Motion und Opacity</translation>
    </message>
    <message>
        <source>Remove the selected effects from the project</source>
        <translation>Die ausgewählten Effekte aus dem Projekt entfernen</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Show only effects whose name contains this text</source>
        <translation>Nur Effekte anzeigen, deren Name diesen Text enthält</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>An effect has nothing to open here. Its box switches it on and off, Remove… takes it out, and the editing application changes its settings</source>
        <translation>Ein Effekt lässt sich hier nicht öffnen. Sein Kästchen schaltet ihn ein und aus, „Entfernen…“ nimmt ihn heraus, und das Schnittprogramm ändert seine Einstellungen</translation>
    </message>
    <message>
        <source>1 effect left the list, but is still in the project</source>
        <translation>1 Effekt ist aus der Liste genommen, aber noch im Projekt</translation>
    </message>
    <message>
        <source>%1 effects left the list, but are still in the project</source>
        <translation>%1 Effekte sind aus der Liste genommen, aber noch im Projekt</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>%1 effect</source>
        <translation>%1 Effekt</translation>
    </message>
    <message>
        <source>%1 effects</source>
        <translation>%1 Effekte</translation>
    </message>
    <message>
        <source>Looking for effects…</source>
        <translation>Effekte werden gesucht…</translation>
    </message>
    <message>
        <source>Looking for effects: %1 so far…</source>
        <translation>Effekte werden gesucht: bisher %1…</translation>
    </message>
    <message>
        <source>No effect is of this type.</source>
        <translation>Kein Effekt ist von dieser Art.</translation>
    </message>
    <message>
        <source>No effect of this type has a name with “%1”.</source>
        <translation>Kein Effekt dieser Art hat „%1“ im Namen.</translation>
    </message>
    <message>
        <source>This project has no effects.</source>
        <translation>Dieses Projekt hat keine Effekte.</translation>
    </message>
    <message>
        <source>Show Hidde&amp;n Effects</source>
        <translation>Ausgeble&amp;ndete Effekte anzeigen</translation>
    </message>
    <message>
        <source>The Delete key takes rows off this list only; View ▸ Show Hidden Effects lists them again. Edit ▸ Remove… removes the effects from the project.</source>
        <translation>Die Taste Entf nimmt Zeilen nur aus dieser Liste; Ansicht ▸ Ausgeblendete Effekte anzeigen listet sie wieder auf. Bearbeiten ▸ Entfernen… entfernt die Effekte aus dem Projekt.</translation>
    </message>
    <message>
        <source>List the effects again that the Delete key has taken off the list</source>
        <translation>Die Effekte wieder auflisten, die die Taste Entf aus der Liste genommen hat</translation>
    </message>
    <message>
        <source>All effects were taken off this list. They are still in the project.</source>
        <translation>Alle Effekte sind aus dieser Liste genommen. Sie sind noch im Projekt.</translation>
    </message>
    <message>
        <source>Nothing was removed: no row is selected</source>
        <translation>Nichts entfernt: Keine Zeile ist ausgewählt</translation>
    </message>
    <message>
        <source>No effect left the list: no row is selected</source>
        <translation>Kein Effekt verließ die Liste: Keine Zeile ist ausgewählt</translation>
    </message>
    <message>
        <source>No effect has a name with “%1”.</source>
        <translation>Kein Effekt hat „%1“ im Namen.</translation>
    </message>
    <message>
        <source>All effects of this project are default ones.</source>
        <translation>Alle Effekte dieses Projekts sind Standardeffekte.</translation>
    </message>
    <message>
        <source>“Show defaults” lists default effects as well.</source>
        <translation>„Standardeffekte anzeigen“ listet auch Standardeffekte auf.</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportListSheet</name>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>A table of the files, also the missing ones, for spreadsheet programs.</source>
        <translation>Eine Tabelle der Dateien, auch der fehlenden, für Tabellenkalkulationen.</translation>
    </message>
    <message>
        <source>Lists of paths</source>
        <translation>Pfadlisten</translation>
    </message>
    <message>
        <source>One path a line, for rsync --files-from with the source “/”. Missing files are left out.</source>
        <translation>Ein Pfad je Zeile, für rsync --files-from mit der Quelle „/“. Fehlende Dateien werden ausgelassen.</translation>
    </message>
    <message>
        <source>Paths that a NUL ends, for rsync --from0 --files-from with the source “/”. Missing files are left out.</source>
        <translation>Mit NUL abgeschlossene Pfade, für rsync --from0 --files-from mit der Quelle „/“. Fehlende Dateien werden ausgelassen.</translation>
    </message>
    <message>
        <source>Media hash lists</source>
        <translation>Media-Hash-Listen</translation>
    </message>
    <message>
        <source>Every file is read, which takes as long as copying it. A list that was cancelled goes on where it stopped when it is exported to the same file again. Files in the list’s folder are listed relative to it: keep it beside the media. Missing files are left out.</source>
        <translation>Jede Datei wird gelesen; das dauert so lange wie das Kopieren. Eine abgebrochene Liste wird dort fortgesetzt, wo sie aufgehört hat, wenn sie wieder in dieselbe Datei exportiert wird. Dateien im Ordner der Liste werden relativ zu ihr aufgeführt: Bewahren Sie sie bei den Medien auf. Fehlende Dateien werden ausgelassen.</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tabelle (CSV)</translation>
    </message>
    <message>
        <source>Paths for rsync</source>
        <translation>Pfade für rsync</translation>
    </message>
    <message>
        <source>Paths for rsync, separated by NUL</source>
        <translation>Pfade für rsync, durch NUL getrennt</translation>
    </message>
    <message>
        <source>Checksums (MHL, MD5 and xxHash64)</source>
        <translation>Prüfsummen (MHL, MD5 und xxHash64)</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Files on show</source>
        <translation>Angezeigte Dateien</translation>
    </message>
    <message>
        <source>Files used by “%1”</source>
        <translation>Von „%1“ verwendete Dateien</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>F&amp;iles</source>
        <translation>&amp;Dateien</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportNotesSheet</name>
    <message>
        <source>Export Notes</source>
        <translation>Notizen exportieren</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Markers:</source>
        <translation>&amp;Marker:</translation>
    </message>
    <message>
        <source>Co&amp;lor:</source>
        <translation>F&amp;arbe:</translation>
    </message>
    <message>
        <source>Se&amp;quence:</source>
        <translation>Se&amp;quenz:</translation>
    </message>
    <message>
        <source>Fla&amp;g:</source>
        <translation>&amp;Kennzeichen:</translation>
    </message>
    <message>
        <source>&amp;Containing:</source>
        <translation>&amp;Enthält:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>CSV for spreadsheets</source>
        <translation>CSV für Tabellenkalkulation</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Text, durch Tabulatoren getrennt</translation>
    </message>
    <message>
        <source>Markdown table</source>
        <translation>Markdown-Tabelle</translation>
    </message>
    <message>
        <source>Avid markers, six fields</source>
        <translation>Avid-Marker, sechs Felder</translation>
    </message>
    <message>
        <source>Avid markers with names, eight fields</source>
        <translation>Avid-Marker mit Namen, acht Felder</translation>
    </message>
    <message>
        <source>Resolve markers (EDL)</source>
        <translation>Resolve-Marker (EDL)</translation>
    </message>
    <message>
        <source>EDL with locators</source>
        <translation>EDL mit Locators</translation>
    </message>
    <message>
        <source>Chapters for a video description</source>
        <translation>Kapitel für eine Videobeschreibung</translation>
    </message>
    <message>
        <source>WebVTT</source>
        <translation>WebVTT</translation>
    </message>
    <message>
        <source>JSON for scripts</source>
        <translation>JSON für Skripte</translation>
    </message>
    <message>
        <source>All markers (%1)</source>
        <translation>Alle Marker (%1)</translation>
    </message>
    <message>
        <source>Selected markers (%1)</source>
        <translation>Ausgewählte Marker (%1)</translation>
    </message>
    <message>
        <source>Shown markers (%1)</source>
        <translation>Angezeigte Marker (%1)</translation>
    </message>
    <message>
        <source>All colors</source>
        <translation>Alle Farben</translation>
    </message>
    <message>
        <source>All sequences</source>
        <translation>Alle Sequenzen</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Beliebig</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Scoring</translation>
    </message>
    <message>
        <source>Col&amp;umns, in the order of the list:</source>
        <translation>&amp;Spalten, in der Reihenfolge der Liste:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Drag a column to another place</source>
        <translation>Ziehen Sie eine Spalte an eine andere Stelle</translation>
    </message>
    <message>
        <source>1 marker will be exported.</source>
        <translation>1 Marker wird exportiert.</translation>
    </message>
    <message>
        <source>%1 markers will be exported.</source>
        <translation>%1 Marker werden exportiert.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>custom field</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportReportSheet</name>
    <message>
        <source>Export Report</source>
        <translation>Bericht exportieren</translation>
    </message>
    <message>
        <source>HTML page</source>
        <translation>HTML-Seite</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>CSV for spreadsheets</source>
        <translation>CSV für Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
</context>
<context>
    <name>vantrell::GoToTimecodeSheet</name>
    <message>
        <source>Go to Timecode</source>
        <translation>Gehe zu Timecode</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Los</translation>
    </message>
    <message>
        <source>Digits fill the timecode from the right; a full stop stands for two zeros</source>
        <translation>Ziffern füllen den Timecode von rechts; ein Punkt steht für zwei Nullen</translation>
    </message>
    <message>
        <source>&amp;Timecode:</source>
        <translation>&amp;Timecode:</translation>
    </message>
    <message>
        <source>&amp;Sequence:</source>
        <translation>Se&amp;quenz:</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Keine Sequenz</translation>
    </message>
    <message>
        <source>Goes to the marker that is nearest to the timecode, among those that are shown.</source>
        <translation>Springt zu dem angezeigten Marker, der dem Timecode am nächsten liegt.</translation>
    </message>
    <message>
        <source>Timecode %1.</source>
        <translation>Timecode %1.</translation>
    </message>
    <message>
        <source>Nearest: a marker without a name at %1.</source>
        <translation>Am nächsten: ein Marker ohne Namen bei %1.</translation>
    </message>
    <message>
        <source>Nearest: “%1” at %2.</source>
        <translation>Am nächsten: „%1“ bei %2.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
</context>
<context>
    <name>vantrell::KeyboardHelp</name>
    <message>
        <source>No key does that.</source>
        <translation>Dafür gibt es keine Taste.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastaturkürzel</translation>
    </message>
    <message>
        <source>Search keys and commands</source>
        <translation>Tasten und Befehle durchsuchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastaturkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>vantrell::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Öff&amp;nen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open &amp;Final Cut Pro Project…</source>
        <translation>Final-Cut-Pro-&amp;Projekt öffnen…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Auf &amp;gespeicherte Version zurücksetzen</translation>
    </message>
    <message>
        <source>Co&amp;mpare with…</source>
        <translation>&amp;Vergleichen mit…</translation>
    </message>
    <message>
        <source>Export C&amp;hanged Sequences…</source>
        <translation>Geänderte Se&amp;quenzen exportieren…</translation>
    </message>
    <message>
        <source>Expor&amp;t Report…</source>
        <translation>Be&amp;richt exportieren…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Final Cut Pro Markers…</source>
        <translation>&amp;Final-Cut-Pro-Marker…</translation>
    </message>
    <message>
        <source>&amp;Avid Locators…</source>
        <translation>&amp;Avid-Locators…</translation>
    </message>
    <message>
        <source>Final Cut Pro &amp;X Markers…</source>
        <translation>Final-Cut-Pro-&amp;X-Marker…</translation>
    </message>
    <message>
        <source>Import &amp;Notes…</source>
        <translation>Notizen i&amp;mportieren…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>E&amp;xport Notes…</source>
        <translation>N&amp;otizen exportieren…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
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
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Pa&amp;ste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Go to Timecode…</source>
        <translation>&amp;Gehe zu Timecode…</translation>
    </message>
    <message>
        <source>Ne&amp;xt of Same Color</source>
        <translation>Nä&amp;chster gleicher Farbe</translation>
    </message>
    <message>
        <source>Pre&amp;vious of Same Color</source>
        <translation>&amp;Voriger gleicher Farbe</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation>&amp;Marker hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Move &amp;In, Keep Duration</source>
        <translation>&amp;In verschieben, Dauer behalten</translation>
    </message>
    <message>
        <source>R&amp;emove…</source>
        <translation>En&amp;tfernen…</translation>
    </message>
    <message>
        <source>Mar&amp;ker Fields…</source>
        <translation>Marker&amp;felder…</translation>
    </message>
    <message>
        <source>Create Marker &amp;Preset…</source>
        <translation>Marker-V&amp;orgabe erstellen…</translation>
    </message>
    <message>
        <source>Manage Marker Prese&amp;ts…</source>
        <translation>Marker-Vorga&amp;ben verwalten…</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>Ei&amp;nstellungen…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medien</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>&amp;Effekte</translation>
    </message>
    <message>
        <source>Mar&amp;kers</source>
        <translation>Ma&amp;rker</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>Marker &amp;Overview</source>
        <translation>Mar&amp;kerübersicht</translation>
    </message>
    <message>
        <source>&amp;Relink…</source>
        <translation>Neu &amp;verknüpfen…</translation>
    </message>
    <message>
        <source>&amp;Path Mappings…</source>
        <translation>&amp;Pfadzuordnungen…</translation>
    </message>
    <message>
        <source>&amp;Export List…</source>
        <translation>Liste e&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;Verify List…</source>
        <translation>Liste p&amp;rüfen…</translation>
    </message>
    <message>
        <source>Show &amp;Uses</source>
        <translation>Ver&amp;wendung anzeigen</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimieren</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>No Project Is Open</source>
        <translation>Kein Projekt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>User &amp;Manual</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastaturkürzel</translation>
    </message>
    <message>
        <source>&amp;Halvex Home Page</source>
        <translation>&amp;Halvex-Homepage</translation>
    </message>
    <message>
        <source>&amp;Orvandel Home Page</source>
        <translation>&amp;Orvandel-Homepage</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Support</translation>
    </message>
    <message>
        <source>Report a &amp;Bug</source>
        <translation>&amp;Fehler melden</translation>
    </message>
    <message>
        <source>Suggest a &amp;Feature</source>
        <translation>Funktion &amp;vorschlagen</translation>
    </message>
    <message>
        <source>&amp;Troubleshooting</source>
        <translation>&amp;Problembehandlung</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>&amp;Protokoll anzeigen</translation>
    </message>
    <message>
        <source>View &amp;Task Log</source>
        <translation>&amp;Aufgabenprotokoll anzeigen</translation>
    </message>
    <message>
        <source>&amp;Gather Logs…</source>
        <translation>Protokolle &amp;sammeln…</translation>
    </message>
    <message>
        <source>Log &amp;Quality Control</source>
        <translation>&amp;Qualitätskontrolle protokollieren</translation>
    </message>
    <message>
        <source>About &amp;Vantrell</source>
        <translation>Über V&amp;antrell</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Menü leeren</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>No sequence has been changed since the project was opened.</source>
        <translation>Seit dem Öffnen des Projekts wurde keine Sequenz geändert.</translation>
    </message>
    <message>
        <source>Choose from the projects that are open in Final Cut Pro</source>
        <translation>Unter den in Final Cut Pro geöffneten Projekten auswählen</translation>
    </message>
    <message>
        <source>Final Cut Pro is not running. Start it and open a project in it first.</source>
        <translation>Final Cut Pro läuft nicht. Starten Sie es und öffnen Sie zuerst ein Projekt darin.</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>Show &amp;Hidden Effects</source>
        <translation>Aus&amp;geblendete Effekte anzeigen</translation>
    </message>
    <message>
        <source>&amp;Offset…</source>
        <translation>Verset&amp;zen…</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>file and folder</comment>
        <translation>%1 — %2</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerAddSheet</name>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Marker hinzufügen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>&amp;Sequence:</source>
        <translation>Se&amp;quenz:</translation>
    </message>
    <message>
        <source>&amp;Timecode:</source>
        <translation>&amp;Timecode:</translation>
    </message>
    <message>
        <source>&amp;Duration:</source>
        <translation>&amp;Dauer:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Co&amp;mment:</source>
        <translation>K&amp;ommentar:</translation>
    </message>
    <message>
        <source>C&amp;olor:</source>
        <translation>&amp;Farbe:</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerFieldsSheet</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Marker Fields</source>
        <translation>Markerfelder</translation>
    </message>
    <message>
        <source>Marker fields</source>
        <translation>Markerfelder</translation>
    </message>
    <message>
        <source>Each field is a column of the marker table. What you type there is kept in the marker’s comment, under the identifier.</source>
        <translation>Jedes Feld ist eine Spalte der Markertabelle. Was Sie dort eingeben, wird unter der Kennung im Kommentar des Markers abgelegt.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>⚠ %1 It was left as it was.</source>
        <translation>⚠ %1 Der Eintrag blieb unverändert.</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerOffsetSheet</name>
    <message>
        <source>Offset Markers</source>
        <translation>Marker versetzen</translation>
    </message>
    <message>
        <source>Move the in points of the selected markers &amp;by:</source>
        <translation>In-Punkte der ausgewählten Marker &amp;versetzen um:</translation>
    </message>
    <message>
        <source>Frames, such as 12 or -12, or a timecode, such as 00:00:01:00 or -1:00.</source>
        <translation>Frames, etwa 12 oder -12, oder ein Timecode, etwa 00:00:01:00 oder -1:00.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerOverviewPanel</name>
    <message>
        <source>Sequence of the overview</source>
        <translation>Sequenz der Übersicht</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Keine Sequenz</translation>
    </message>
    <message>
        <source>%1
Choose the sequence of the overview, or let it follow the selected row</source>
        <translation>%1
Sequenz der Übersicht wählen oder der ausgewählten Zeile folgen lassen</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Sequence of the Selected Row</source>
        <translation>Sequenz der ausgewählten Zeile</translation>
    </message>
    <message>
        <source>“%1” is hidden by the filter</source>
        <translation>„%1“ ist durch den Filter ausgeblendet</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerPresetSheet</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Label of %1</source>
        <translation>Bezeichnung von %1</translation>
    </message>
    <message>
        <source>Create Marker Preset</source>
        <translation>Marker-Vorgabe erstellen</translation>
    </message>
    <message>
        <source>Preset &amp;name:</source>
        <translation>&amp;Name der Vorgabe:</translation>
    </message>
    <message>
        <source>Labels of the colors</source>
        <translation>Bezeichnungen der Farben</translation>
    </message>
    <message>
        <source>The labels stand for the colors in the filter and in the table.</source>
        <translation>Die Bezeichnungen stehen im Filter und in der Tabelle für die Farben.</translation>
    </message>
    <message>
        <source>Edit Marker Preset</source>
        <translation>Marker-Vorgabe bearbeiten</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerPresetsSheet</name>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>Marker Presets</source>
        <translation>Marker-Vorgaben</translation>
    </message>
    <message>
        <source>Marker presets</source>
        <translation>Marker-Vorgaben</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>There are no presets yet.
Edit ▸ Create Marker Preset… makes one, as does “%1” in the pop-up “Preset” above the markers.</source>
        <translation>Es gibt noch keine Vorgaben.
Bearbeiten ▸ Marker-Vorgabe erstellen… legt eine an, ebenso „%1“ im Aufklappmenü „Vorgabe“ über den Markern.</translation>
    </message>
    <message>
        <source>Edit &amp;Labels…</source>
        <translation>Be&amp;zeichnungen bearbeiten…</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerStrip</name>
    <message>
        <source>Marker overview</source>
        <translation>Markerübersicht</translation>
    </message>
    <message>
        <source>Left and Right select the previous and the next marker. Plus and minus zoom, 0 shows all.</source>
        <translation>Links und Rechts wählen den vorigen und den nächsten Marker aus. Plus und Minus zoomen, 0 zeigt alles.</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>%1, duration %2</source>
        <translation>%1, Dauer %2</translation>
    </message>
    <message>
        <source>on the clip “%1”</source>
        <translation>auf dem Clip „%1“</translation>
    </message>
    <message>
        <source>outside the sequence</source>
        <translation>außerhalb der Sequenz</translation>
    </message>
    <message>
        <source>hidden by the filter</source>
        <translation>durch den Filter ausgeblendet</translation>
    </message>
    <message>
        <source>and %1 more here</source>
        <translation>und noch %1 hier</translation>
    </message>
    <message>
        <source>%1
%2 – %3</source>
        <translation>%1
%2 – %3</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Keine Sequenz</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerTableModel</name>
    <message>
        <source>%1; the duration is kept</source>
        <translation>%1; die Dauer bleibt erhalten</translation>
    </message>
    <message>
        <source>On the clip “%1”, which is in no sequence</source>
        <translation>Auf dem Clip „%1“, der in keiner Sequenz liegt</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkersPane</name>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation>Hinz&amp;ufügen…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Entfernen…</translation>
    </message>
    <message>
        <source>&amp;Offset…</source>
        <translation>&amp;Versetzen…</translation>
    </message>
    <message>
        <source>Fie&amp;lds…</source>
        <translation>Fe&amp;lder…</translation>
    </message>
    <message>
        <source>Own se&amp;quence and clip</source>
        <translation>Eigene Se&amp;quenz, eigener Clip</translation>
    </message>
    <message>
        <source>All Colors</source>
        <translation>Alle Farben</translation>
    </message>
    <message>
        <source>Color of markers</source>
        <translation>Farbe der Marker</translation>
    </message>
    <message>
        <source>Show markers of one color only</source>
        <translation>Nur Marker einer Farbe anzeigen</translation>
    </message>
    <message>
        <source>Add a marker to the first sequence</source>
        <translation>Der ersten Sequenz einen Marker hinzufügen</translation>
    </message>
    <message>
        <source>Add a marker to a sequence and at a timecode of your choice</source>
        <translation>Einen Marker bei Sequenz und Timecode Ihrer Wahl hinzufügen</translation>
    </message>
    <message>
        <source>Add at a sequence and timecode</source>
        <translation>Bei Sequenz und Timecode hinzufügen</translation>
    </message>
    <message>
        <source>Remove the selected markers from the project</source>
        <translation>Die ausgewählten Marker aus dem Projekt entfernen</translation>
    </message>
    <message>
        <source>Move the in points of the selected markers</source>
        <translation>Die In-Punkte der ausgewählten Marker versetzen</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>V&amp;orgabe:</translation>
    </message>
    <message>
        <source>Marker preset</source>
        <translation>Marker-Vorgabe</translation>
    </message>
    <message>
        <source>Choose labels of your own for the colors</source>
        <translation>Eigene Bezeichnungen für die Farben wählen</translation>
    </message>
    <message>
        <source>Define columns of your own for the markers</source>
        <translation>Eigene Spalten für die Marker festlegen</translation>
    </message>
    <message>
        <source>List each marker under its own sequence and clip. Otherwise sequences at the same position in different bins share one name, and so do the clips of a track</source>
        <translation>Jeden Marker unter seiner eigenen Sequenz und seinem eigenen Clip auflisten. Sonst teilen sich Sequenzen an gleicher Position in verschiedenen Bins einen Namen, ebenso die Clips einer Spur</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Search the markers</source>
        <translation>Marker durchsuchen</translation>
    </message>
    <message>
        <source>Show only markers with this text in their name, comment, custom fields, sequence or clip</source>
        <translation>Nur Marker mit diesem Text in Name, Kommentar, eigenen Feldern, Sequenz oder Clip anzeigen</translation>
    </message>
    <message>
        <source>Sequence of markers</source>
        <translation>Sequenz der Marker</translation>
    </message>
    <message>
        <source>Show markers of one sequence only</source>
        <translation>Nur Marker einer Sequenz anzeigen</translation>
    </message>
    <message>
        <source>All Flags</source>
        <translation>Alle Kennzeichen</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Scoring</translation>
    </message>
    <message>
        <source>Flag of markers</source>
        <translation>Kennzeichen der Marker</translation>
    </message>
    <message>
        <source>Show only markers with this flag</source>
        <translation>Nur Marker mit diesem Kennzeichen anzeigen</translation>
    </message>
    <message>
        <source>All Sequences</source>
        <translation>Alle Sequenzen</translation>
    </message>
    <message>
        <source>%1 marker</source>
        <translation>%1 Marker</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 Marker</translation>
    </message>
    <message>
        <source>There is no marker to go to</source>
        <translation>Es gibt keinen Marker, der angesprungen werden kann</translation>
    </message>
    <message>
        <source>Select a marker first</source>
        <translation>Wählen Sie zuerst einen Marker aus</translation>
    </message>
    <message>
        <source>No further marker of this color below</source>
        <translation>Kein weiterer Marker dieser Farbe darunter</translation>
    </message>
    <message>
        <source>No further marker of this color above</source>
        <translation>Kein weiterer Marker dieser Farbe darüber</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Move &amp;In, Keep Duration</source>
        <translation>&amp;In verschieben, Dauer behalten</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Marker &amp;Fields…</source>
        <translation>Marker&amp;felder…</translation>
    </message>
    <message>
        <source>Create Marker &amp;Preset…</source>
        <translation>Marker-V&amp;orgabe erstellen…</translation>
    </message>
    <message>
        <source>&amp;Manage Marker Presets…</source>
        <translation>Marker-Vorgaben &amp;verwalten…</translation>
    </message>
    <message>
        <source>1 marker duplicated</source>
        <translation>1 Marker dupliziert</translation>
    </message>
    <message>
        <source>%1 markers duplicated</source>
        <translation>%1 Marker dupliziert</translation>
    </message>
    <message>
        <source>1 marker</source>
        <translation>1 Marker</translation>
    </message>
    <message>
        <source>%1 (%2 selected)</source>
        <translation>%1 (%2 ausgewählt)</translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1. %2.</translation>
    </message>
    <message>
        <source>Looking for markers…</source>
        <translation>Marker werden gesucht…</translation>
    </message>
    <message>
        <source>Looking for markers: %1 so far…</source>
        <translation>Marker werden gesucht: bisher %1…</translation>
    </message>
    <message>
        <source>This project has no markers yet.</source>
        <translation>Dieses Projekt hat noch keine Marker.</translation>
    </message>
    <message>
        <source>No marker matches the search.</source>
        <translation>Kein Marker entspricht der Suche.</translation>
    </message>
    <message>
        <source>No marker has this color.</source>
        <translation>Kein Marker hat diese Farbe.</translation>
    </message>
    <message>
        <source>The column In is hidden. View ▸ Columns shows it again</source>
        <translation>Die Spalte In ist ausgeblendet. Ansicht ▸ Spalten zeigt sie wieder</translation>
    </message>
    <message>
        <source>Nothing was duplicated: no row is selected</source>
        <translation>Nichts dupliziert: Keine Zeile ist ausgewählt</translation>
    </message>
    <message>
        <source>Nothing was removed: no row is selected</source>
        <translation>Nichts entfernt: Keine Zeile ist ausgewählt</translation>
    </message>
    <message>
        <source>The space bar sets and clears the box</source>
        <translation>Die Leertaste setzt und löscht das Häkchen</translation>
    </message>
    <message>
        <source>This key removes no markers. Edit ▸ Remove… (Ctrl+Delete) does</source>
        <translation>Diese Taste entfernt keine Marker, das tut Bearbeiten ▸ Entfernen… (Strg+Entf)</translation>
    </message>
    <message>
        <source>There is no clip to choose: the marker is in no sequence</source>
        <translation>Es gibt keinen Clip zur Auswahl: Der Marker gehört zu keiner Sequenz</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaFooter</name>
    <message>
        <source>By kind:</source>
        <translation>Nach Art:</translation>
    </message>
    <message>
        <source>By drive:</source>
        <translation>Nach Laufwerk:</translation>
    </message>
    <message>
        <source>Shares of the media on show by kind</source>
        <translation>Anteile der angezeigten Medien nach Art</translation>
    </message>
    <message>
        <source>Shares of the media on show by drive</source>
        <translation>Anteile der angezeigten Medien nach Laufwerk</translation>
    </message>
    <message>
        <source>Chart of the media on show and the free space of the start-up volume</source>
        <translation>Diagramm der angezeigten Medien und des freien Platzes auf dem Startvolume</translation>
    </message>
    <message>
        <source>Media on show</source>
        <translation>Angezeigte Medien</translation>
    </message>
    <message>
        <source>Free on System Drive</source>
        <translation>Frei auf dem Systemlaufwerk</translation>
    </message>
    <message>
        <source>Media on show: %1 (green)
Free on the start-up volume: %2 (blue)</source>
        <translation>Angezeigte Medien: %1 (grün)
Frei auf dem Startvolume: %2 (blau)</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaPane</name>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Re&amp;link…</source>
        <translation>Neu ver&amp;knüpfen…</translation>
    </message>
    <message>
        <source>E&amp;xport List…</source>
        <translation>Liste e&amp;xportieren…</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Mediendateien</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>No file is selected. Click its row first</source>
        <translation>Keine Datei ist ausgewählt. Klicken Sie zuerst auf ihre Zeile</translation>
    </message>
    <message>
        <source>Reveal in File Browser</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Relink…</source>
        <translation>Neu verknüpfen…</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Movie Clips</source>
        <translation>Filmclips</translation>
    </message>
    <message>
        <source>Audio Clips</source>
        <translation>Audioclips</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Kind of files</source>
        <translation>Art der Dateien</translation>
    </message>
    <message>
        <source>Show files of one kind only</source>
        <translation>Nur Dateien einer Art anzeigen</translation>
    </message>
    <message>
        <source>All Drives</source>
        <translation>Alle Laufwerke</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Show the files of one drive only</source>
        <translation>Nur Dateien eines Laufwerks anzeigen</translation>
    </message>
    <message>
        <source>Show the selected file in the file browser</source>
        <translation>Die ausgewählte Datei im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Find the missing files in other folders</source>
        <translation>Die fehlenden Dateien in anderen Ordnern suchen</translation>
    </message>
    <message>
        <source>Write a list of the files to be sent, with checksums if wanted</source>
        <translation>Eine Liste der zu versendenden Dateien schreiben, auf Wunsch mit Prüfsummen</translation>
    </message>
    <message>
        <source>Search the media files</source>
        <translation>Mediendateien durchsuchen</translation>
    </message>
    <message>
        <source>Show only files with this text in their name or folder</source>
        <translation>Nur Dateien mit diesem Text in Name oder Ordner anzeigen</translation>
    </message>
    <message>
        <source>Any State</source>
        <translation>Jeder Status</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <source>Unknown Kind</source>
        <translation>Unbekannte Art</translation>
    </message>
    <message>
        <source>State of files</source>
        <translation>Status der Dateien</translation>
    </message>
    <message>
        <source>Show only files that are missing, that no sequence uses, or of an unknown kind</source>
        <translation>Nur Dateien anzeigen, die fehlen, die keine Sequenz verwendet oder deren Art unbekannt ist</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>System Drive</source>
        <translation>Systemlaufwerk</translation>
    </message>
    <message>
        <source>Looking for media…</source>
        <translation>Medien werden gesucht…</translation>
    </message>
    <message>
        <source>Looking for media: %1 so far…</source>
        <translation>Medien werden gesucht: bisher %1…</translation>
    </message>
    <message>
        <source>This project uses no media files.</source>
        <translation>Dieses Projekt verwendet keine Mediendateien.</translation>
    </message>
    <message>
        <source>Looking for what the sequences use…</source>
        <translation>Es wird gesucht, was die Sequenzen verwenden…</translation>
    </message>
    <message>
        <source>No media file matches the search.</source>
        <translation>Keine Mediendatei entspricht der Suche.</translation>
    </message>
    <message>
        <source>No media file is of this kind and on this drive.</source>
        <translation>Keine Mediendatei dieser Art ist auf diesem Laufwerk.</translation>
    </message>
    <message>
        <source>Unknown Drive</source>
        <translation>Unbekanntes Laufwerk</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>sizes</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The size of the files on show</source>
        <translation>Die Größe der angezeigten Dateien</translation>
    </message>
    <message>
        <source>Files cannot be removed here: the list shows what the project uses</source>
        <translation>Dateien lassen sich hier nicht entfernen: Die Liste zeigt, was das Projekt verwendet</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaTableModel</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Missing: the project has no usable address of this file</source>
        <translation>Fehlt: Das Projekt hat keine brauchbare Adresse dieser Datei</translation>
    </message>
    <message>
        <source>Missing: the drive “%1” is not connected</source>
        <translation>Fehlt: Das Laufwerk „%1“ ist nicht verbunden</translation>
    </message>
    <message>
        <source>Missing: there is no such file. Relink… finds it in other folders</source>
        <translation>Fehlt: Es gibt keine solche Datei. Neu verknüpfen… sucht in anderen Ordnern danach</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>%1
looked for at %2
%3</source>
        <translation>%1
gesucht unter %2
%3</translation>
    </message>
</context>
<context>
    <name>vantrell::MessageLine</name>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
</context>
<context>
    <name>vantrell::NoteColorStrip</name>
    <message>
        <source>Colors of the list</source>
        <translation>Farben der Liste</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Color for “%1”</source>
        <translation>Farbe für „%1“</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>vantrell::NoteColumnStrip</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Custom field</source>
        <translation>Eigenes Feld</translation>
    </message>
    <message>
        <source>Ignored</source>
        <translation>Ignoriert</translation>
    </message>
    <message>
        <source>Columns of the list</source>
        <translation>Spalten der Liste</translation>
    </message>
    <message>
        <source>Role of the column “%1”</source>
        <translation>Rolle der Spalte „%1“</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreview</name>
    <message>
        <source>Avid markers</source>
        <translation>Avid-Marker</translation>
    </message>
    <message>
        <source>Avid markers (XML)</source>
        <translation>Avid-Marker (XML)</translation>
    </message>
    <message>
        <source>Premiere Pro markers</source>
        <translation>Premiere-Pro-Marker</translation>
    </message>
    <message>
        <source>Audition markers</source>
        <translation>Audition-Marker</translation>
    </message>
    <message>
        <source>Resolve markers (EDL)</source>
        <translation>Resolve-Marker (EDL)</translation>
    </message>
    <message>
        <source>EDL with locators</source>
        <translation>EDL mit Locators</translation>
    </message>
    <message>
        <source>Pro Tools session text</source>
        <translation>Pro-Tools-Sessiontext</translation>
    </message>
    <message>
        <source>review notes</source>
        <translation>Review-Notizen</translation>
    </message>
    <message>
        <source>chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Final Cut Pro X XML</source>
        <translation>Final-Cut-Pro-X-XML</translation>
    </message>
    <message>
        <source>Final Cut Pro marker list</source>
        <translation>Final-Cut-Pro-Markerliste</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>separated by tabs</source>
        <translation>durch Tabulatoren getrennt</translation>
    </message>
    <message>
        <source>separated by commas</source>
        <translation>durch Kommas getrennt</translation>
    </message>
    <message>
        <source>separated by semicolons</source>
        <translation>durch Semikolons getrennt</translation>
    </message>
    <message>
        <source>%1 drop frame</source>
        <translation>%1 Drop-Frame</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>Recognized as %1</source>
        <translation>Erkannt als %1</translation>
    </message>
    <message>
        <source>“%1” is no timecode</source>
        <translation>„%1“ ist kein Timecode</translation>
    </message>
    <message>
        <source>Outside the sequence: before its first frame</source>
        <translation>Außerhalb der Sequenz: vor ihrem ersten Frame</translation>
    </message>
    <message>
        <source>Outside the sequence: after its last frame</source>
        <translation>Außerhalb der Sequenz: nach ihrem letzten Frame</translation>
    </message>
    <message>
        <source>Already there; will be added again</source>
        <translation>Bereits vorhanden; wird noch einmal hinzugefügt</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Bereits vorhanden</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>%1 of 1 note will be added</source>
        <translation>%1 von 1 Notiz wird hinzugefügt</translation>
    </message>
    <message>
        <source>%1 of %2 notes will be added</source>
        <translation>%1 von %2 Notizen werden hinzugefügt</translation>
    </message>
    <message>
        <source>1 is already there</source>
        <translation>1 ist bereits vorhanden</translation>
    </message>
    <message>
        <source>%1 are already there</source>
        <translation>%1 sind bereits vorhanden</translation>
    </message>
    <message>
        <source>1 is outside the sequence</source>
        <translation>1 liegt außerhalb der Sequenz</translation>
    </message>
    <message>
        <source>%1 are outside the sequence</source>
        <translation>%1 liegen außerhalb der Sequenz</translation>
    </message>
    <message>
        <source>1 is unreadable</source>
        <translation>1 ist unlesbar</translation>
    </message>
    <message>
        <source>%1 are unreadable</source>
        <translation>%1 sind unlesbar</translation>
    </message>
    <message>
        <source>1 is not checked</source>
        <translation>1 ist nicht angekreuzt</translation>
    </message>
    <message>
        <source>%1 are not checked</source>
        <translation>%1 sind nicht angekreuzt</translation>
    </message>
    <message>
        <source>Shown as %1</source>
        <translation>Angezeigt als %1</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreviewModel</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Sequenz</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreviewSheet</name>
    <message>
        <source>A&amp;ll</source>
        <translation>A&amp;lle</translation>
    </message>
    <message>
        <source>Paste Notes</source>
        <translation>Notizen einfügen</translation>
    </message>
    <message>
        <source>Import Notes from “%1”</source>
        <translation>Notizen aus „%1“ importieren</translation>
    </message>
    <message>
        <source>Timecode</source>
        <translation>Timecode</translation>
    </message>
    <message>
        <source>A timecode or its last digits; a point stands for two zeros: 100 or 1. is one second</source>
        <translation>Ein Timecode oder seine letzten Ziffern; ein Punkt steht für zwei Nullen: 100 oder 1. ist eine Sekunde</translation>
    </message>
    <message>
        <source>Add &amp;to:</source>
        <translation>Hinzufügen &amp;zu:</translation>
    </message>
    <message>
        <source>Times &amp;are:</source>
        <translation>Zeiten &amp;sind:</translation>
    </message>
    <message>
        <source>Frame &amp;rate:</source>
        <translation>F&amp;ramerate:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Farben:</translation>
    </message>
    <message>
        <source>Timecodes of the sequence</source>
        <translation>Timecodes der Sequenz</translation>
    </message>
    <message>
        <source>Elapsed from the start</source>
        <translation>Ab Anfang verstrichen</translation>
    </message>
    <message>
        <source>Timecodes, with this added</source>
        <translation>Timecodes, zuzüglich</translation>
    </message>
    <message>
        <source>First note is at</source>
        <translation>Erste Notiz liegt bei</translation>
    </message>
    <message>
        <source>As in the list (%1)</source>
        <translation>Wie in der Liste (%1)</translation>
    </message>
    <message>
        <source>As in the sequence (%1)</source>
        <translation>Wie in der Sequenz (%1)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Check all rows that are not there yet, or none</source>
        <translation>Alle noch nicht vorhandenen Zeilen ankreuzen oder keine</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
</context>
<context>
    <name>vantrell::NoticeBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Dismiss notice</source>
        <translation>Hinweis ausblenden</translation>
    </message>
</context>
<context>
    <name>vantrell::PathMappingsSheet</name>
    <message>
        <source>Folder in Projects</source>
        <translation>Ordner in Projekten</translation>
    </message>
    <message>
        <source>Folder on This Machine</source>
        <translation>Ordner auf diesem Rechner</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Choose Folder…</source>
        <translation>&amp;Ordner auswählen…</translation>
    </message>
    <message>
        <source>Path Mappings</source>
        <translation>Pfadzuordnungen</translation>
    </message>
    <message>
        <source>Path mappings</source>
        <translation>Pfadzuordnungen</translation>
    </message>
    <message>
        <source>Files of the first folder are looked for in the second one, in all projects. Projects stay as they are. The first folder may also be a path with a drive letter, such as C:\Show, a share, such as //server/share, or a URL.</source>
        <translation>Dateien des ersten Ordners werden in allen Projekten im zweiten gesucht. Die Projekte bleiben unverändert. Der erste Ordner kann auch ein Pfad mit Laufwerksbuchstaben sein, etwa C:\Show, eine Freigabe, etwa //server/share, oder eine URL.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>A mapping needs both folders.</source>
        <translation>Eine Zuordnung braucht beide Ordner.</translation>
    </message>
    <message>
        <source>“%1” is no absolute path: it must begin with a slash.</source>
        <translation>„%1“ ist kein absoluter Pfad: Er muss mit einem Schrägstrich beginnen.</translation>
    </message>
</context>
<context>
    <name>vantrell::PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tabellen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Standard&amp;werte wiederherstellen</translation>
    </message>
    <message>
        <source>Set everything in this window as it is at first</source>
        <translation>Alles in diesem Fenster auf den Anfangszustand setzen</translation>
    </message>
    <message>
        <source>Start-up:</source>
        <translation>Programmstart:</translation>
    </message>
    <message>
        <source>Show the &amp;open dialog</source>
        <translation>Ö&amp;ffnen-Dialog anzeigen</translation>
    </message>
    <message>
        <source>It opens over the start window, unless a project is open by then.</source>
        <translation>Er öffnet sich über dem Startfenster, sofern dann noch kein Projekt geöffnet ist.</translation>
    </message>
    <message>
        <source>Markers:</source>
        <translation>Marker:</translation>
    </message>
    <message>
        <source>&amp;List each marker under its own sequence and clip</source>
        <translation>Unter eigener Sequenz und eigenem Clip auf&amp;listen</translation>
    </message>
    <message>
        <source>Otherwise sequences at the same position in different bins share one name, and so do the clips of a track. All open projects are listed anew.</source>
        <translation>Sonst teilen sich Sequenzen an gleicher Position in verschiedenen Bins einen Namen, ebenso die Clips einer Spur. Alle geöffneten Projekte werden neu aufgelistet.</translation>
    </message>
    <message>
        <source>Unsaved changes:</source>
        <translation>Ungespeicherte Änderungen:</translation>
    </message>
    <message>
        <source>&amp;Keep them in a journal</source>
        <translation>In einem &amp;Journal aufbewahren</translation>
    </message>
    <message>
        <source>After a crash the journal offers to restore them. A project that has unsaved changes now follows this setting once they are saved or undone. Journals that a crash has left are kept, and offered, in any case.</source>
        <translation>Nach einem Absturz bietet das Journal an, sie wiederherzustellen. Ein Projekt, das jetzt ungespeicherte Änderungen hat, folgt dieser Einstellung, sobald sie gespeichert oder rückgängig gemacht sind. Journale, die ein Absturz hinterlassen hat, werden in jedem Fall aufbewahrt und angeboten.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Holds from the next start on. Reports, exported lists, logs and the command line are in English.</source>
        <translation>Gilt ab dem nächsten Start. Berichte, exportierte Listen, Protokolle und die Befehlszeile sind auf Englisch.</translation>
    </message>
    <message>
        <source>Use the &amp;font of the other controls</source>
        <translation>&amp;Schrift der übrigen Bedienelemente verwenden</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Schrift:</translation>
    </message>
    <message>
        <source>Fa&amp;mily:</source>
        <translation>Fa&amp;milie:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>As the system’s settings have it: %1</source>
        <translation>Wie in den Systemeinstellungen: %1</translation>
    </message>
    <message>
        <source>Year, month, day: %1</source>
        <translation>Jahr, Monat, Tag: %1</translation>
    </message>
    <message>
        <source>Month by name: %1</source>
        <translation>Monat als Name: %1</translation>
    </message>
    <message>
        <source>D&amp;ates:</source>
        <translation>&amp;Datumsangaben:</translation>
    </message>
    <message>
        <source>These are for the tables of all windows. Reports, exported lists and the command line stay as they are.</source>
        <translation>Dies gilt für die Tabellen aller Fenster. Berichte, exportierte Listen und die Befehlszeile bleiben unverändert.</translation>
    </message>
    <message>
        <source>The addresses of the pages that the Help menu opens, for a site with pages of its own. An empty field stands for the standard address. The first %@ in an address becomes “halvex”, the second “vantrell”.</source>
        <translation>Die Adressen der Seiten, die das Menü „Hilfe“ öffnet, für Betriebe mit eigenen Seiten. Ein leeres Feld steht für die Standardadresse. Das erste %@ in einer Adresse wird zu „halvex“, das zweite zu „vantrell“.</translation>
    </message>
    <message>
        <source>Halve&amp;x home page:</source>
        <translation>Halve&amp;x-Homepage:</translation>
    </message>
    <message>
        <source>&amp;Orvandel home page:</source>
        <translation>&amp;Orvandel-Homepage:</translation>
    </message>
    <message>
        <source>&amp;Support:</source>
        <translation>&amp;Support:</translation>
    </message>
    <message>
        <source>Report a &amp;bug:</source>
        <translation>&amp;Fehler melden:</translation>
    </message>
    <message>
        <source>Suggest a &amp;feature:</source>
        <translation>Funktion &amp;vorschlagen:</translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation>S&amp;prache:</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintOperation</name>
    <message>
        <source>The printing system cannot be reached; the package “cups-client” has its program “lp”. %1</source>
        <translation>Das Drucksystem ist nicht erreichbar; sein Programm „lp“ ist im Paket „cups-client“ enthalten. %1</translation>
    </message>
    <message>
        <source>The printer “%1” did not take the report. %2</source>
        <translation>Der Drucker „%1“ hat den Bericht nicht angenommen. %2</translation>
    </message>
    <message>
        <source>Making the pages…</source>
        <translation>Seiten werden erstellt…</translation>
    </message>
    <message>
        <source>Making the pages for “%1”…</source>
        <translation>Seiten für „%1“ werden erstellt…</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintPanel</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
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
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>Sp&amp;eichern…</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>PDF files (*.pdf *.PDF)</source>
        <translation>PDF-Dateien (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>E&amp;xemplare:</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>&amp;Ausrichtung:</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>Rä&amp;nder:</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>vantrell::ProgressSheet</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>vantrell::QVFCPProjectLoader</name>
    <message>
        <source>Open Final Cut Pro Project</source>
        <translation>Final-Cut-Pro-Projekt öffnen</translation>
    </message>
    <message>
        <source>&amp;Projects that are open in Final Cut Pro:</source>
        <translation>In Final Cut Pro geöffnete &amp;Projekte:</translation>
    </message>
    <message>
        <source>Projects that are open in Final Cut Pro</source>
        <translation>In Final Cut Pro geöffnete Projekte</translation>
    </message>
    <message>
        <source>Asking Final Cut Pro</source>
        <translation>Final Cut Pro wird abgefragt</translation>
    </message>
    <message>
        <source>Asking Final Cut Pro for its open projects…</source>
        <translation>Final Cut Pro wird nach geöffneten Projekten abgefragt…</translation>
    </message>
    <message>
        <source>No project is open in Final Cut Pro.</source>
        <translation>In Final Cut Pro ist kein Projekt geöffnet.</translation>
    </message>
    <message>
        <source>Final Cut Pro does not answer.</source>
        <translation>Final Cut Pro antwortet nicht.</translation>
    </message>
    <message>
        <source>Final Cut Pro is not running.</source>
        <translation>Final Cut Pro läuft nicht.</translation>
    </message>
    <message>
        <source>Error loading project</source>
        <translation>Fehler beim Laden des Projekts</translation>
    </message>
</context>
<context>
    <name>vantrell::QuitSequence</name>
    <message>
        <source>Do you want to save the changes made to %1 projects before quitting?</source>
        <translation>Möchten Sie die Änderungen an %1 Projekten vor dem Beenden speichern?</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Einzeln prüfen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>Alle verwerfen</translation>
    </message>
</context>
<context>
    <name>vantrell::Recovery</name>
    <message>
        <source>The unsaved changes to “%1” could not be restored.</source>
        <translation>Die ungespeicherten Änderungen an „%1“ konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The project is in use. The changes are kept and offered again the next time.</source>
        <translation>Das Projekt wird gerade verwendet. Die Änderungen werden aufbewahrt und beim nächsten Mal wieder angeboten.</translation>
    </message>
</context>
<context>
    <name>vantrell::RecoveryPanel</name>
    <message>
        <source>Changed since</source>
        <translation>Seither geändert</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlend</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>The project was saved by someone else since. Changes that still apply are restored.</source>
        <translation>Das Projekt wurde seither von anderer Seite gespeichert. Änderungen, die noch anwendbar sind, werden wiederhergestellt.</translation>
    </message>
    <message>
        <source>The project is not where it was. Its changes are kept until it is back.</source>
        <translation>Das Projekt ist nicht mehr am alten Ort. Seine Änderungen werden aufbewahrt, bis es wieder da ist.</translation>
    </message>
    <message>
        <source>All changes can be restored.</source>
        <translation>Alle Änderungen können wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>The program ended before the changes to this project were saved.</source>
        <translation>Das Programm wurde beendet, bevor die Änderungen an diesem Projekt gespeichert waren.</translation>
    </message>
    <message>
        <source>The program ended before the changes to these projects were saved.</source>
        <translation>Das Programm wurde beendet, bevor die Änderungen an diesen Projekten gespeichert waren.</translation>
    </message>
    <message>
        <source>Projects with unsaved changes</source>
        <translation>Projekte mit ungespeicherten Änderungen</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Letzte Änderung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard…</source>
        <translation>&amp;Verwerfen…</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Do you want to discard the unsaved changes to this project?</source>
        <translation>Möchten Sie die ungespeicherten Änderungen an diesem Projekt verwerfen?</translation>
    </message>
    <message>
        <source>Do you want to discard the unsaved changes to %1 projects?</source>
        <translation>Möchten Sie die ungespeicherten Änderungen an %1 Projekten verwerfen?</translation>
    </message>
    <message>
        <source>They cannot be restored after that.</source>
        <translation>Danach können sie nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>A restored project opens with its changes, which are not saved yet. Those left for later are offered again.</source>
        <translation>Ein wiederhergestelltes Projekt wird mit seinen Änderungen geöffnet, die noch nicht gespeichert sind. Was auf später verschoben wird, wird erneut angeboten.</translation>
    </message>
</context>
<context>
    <name>vantrell::RelinkSheet</name>
    <message>
        <source> So it is with %1 other folders.</source>
        <translation> Ebenso weitere Ordner: %1.</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Neu verknüpfen</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>Fehlende Dateien</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>&amp;Use Mapping Instead</source>
        <translation>&amp;Zuordnung verwenden</translation>
    </message>
    <message>
        <source>Look for the files there, and leave the project as it is</source>
        <translation>Die Dateien dort suchen und das Projekt unverändert lassen</translation>
    </message>
    <message>
        <source>1 file is missing.</source>
        <translation>1 Datei fehlt.</translation>
    </message>
    <message>
        <source>%1 files are missing.</source>
        <translation>%1 Dateien fehlen.</translation>
    </message>
    <message>
        <source>&amp;Look in these folders, and all that is below them:</source>
        <translation>In diesen &amp;Ordnern und allem darunter suchen:</translation>
    </message>
    <message>
        <source>Folders to look in</source>
        <translation>Zu durchsuchende Ordner</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>Ordner &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Relink</source>
        <translation>&amp;Neu verknüpfen</translation>
    </message>
    <message>
        <source>Path &amp;Mappings…</source>
        <translation>&amp;Pfadzuordnungen…</translation>
    </message>
    <message>
        <source>Add a Folder to Look In</source>
        <translation>Zu durchsuchenden Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>The search was stopped.</source>
        <translation>Die Suche wurde gestoppt.</translation>
    </message>
    <message>
        <source>%1 folders, %2 files seen, %3 found…</source>
        <translation>%1 Ordner, %2 Dateien durchsucht, %3 gefunden…</translation>
    </message>
    <message>
        <source>%1 of %2 missing files found</source>
        <translation>%1 von %2 fehlenden Dateien gefunden</translation>
    </message>
    <message>
        <source>, %1 of them several times: choose one of each</source>
        <translation>, %1 davon mehrfach: Wählen Sie jeweils eine aus</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” does not answer.</source>
        <translation>„%1“ antwortet nicht.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>S&amp;toppen</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>All of them are found where “%1” is “%2”. A path mapping leaves the project as it is.</source>
        <translation>Alle werden gefunden, wenn „%1“ für „%2“ steht. Eine Pfadzuordnung lässt das Projekt unverändert.</translation>
    </message>
</context>
<context>
    <name>vantrell::RelinkTableModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Folder in the Project</source>
        <translation>Ordner im Projekt</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>, %1 files</source>
        <translation>, %1 Dateien</translation>
    </message>
    <message>
        <source>Choose one of %1…</source>
        <translation>Eine von %1 auswählen…</translation>
    </message>
</context>
<context>
    <name>vantrell::ReportOptions</name>
    <message>
        <source>Color &amp;labels behind marker names</source>
        <translation>Farb&amp;bezeichnungen hinter Markernamen</translation>
    </message>
    <message>
        <source>Columns of the report</source>
        <translation>Spalten des Berichts</translation>
    </message>
    <message>
        <source>Report &amp;title:</source>
        <translation>&amp;Titel des Berichts:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>All rows on show are included: %1.</source>
        <translation>Alle angezeigten Zeilen sind enthalten: %1.</translation>
    </message>
    <message>
        <source>Only the selected row of %1 is included.</source>
        <translation>Nur die ausgewählte von %1 Zeilen ist enthalten.</translation>
    </message>
    <message>
        <source>Only the %1 selected rows of %2 are included.</source>
        <translation>Nur die %1 ausgewählten von %2 Zeilen sind enthalten.</translation>
    </message>
    <message>
        <source>To have all of them, select all (Ctrl+A) first.</source>
        <translation>Für alle wählen Sie vorher alle aus (Strg+A).</translation>
    </message>
    <message>
        <source>No row is on show: the report is empty.</source>
        <translation>Keine Zeile wird angezeigt: Der Bericht ist leer.</translation>
    </message>
</context>
<context>
    <name>vantrell::ReportView</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>vantrell::SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>vantrell::SharesBar</name>
    <message>
        <source>&lt;1 %</source>
        <translation>&lt;1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %2 (%3)</source>
        <comment>name, size, percentage</comment>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>+%1</source>
        <comment>further shares</comment>
        <translation>+%1</translation>
    </message>
</context>
<context>
    <name>vantrell::StartWindow</name>
    <message>
        <source>Media, effects and markers
of an editing project</source>
        <translation>Medien, Effekte und Marker
eines Schnittprojekts</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Öff&amp;nen…</translation>
    </message>
    <message>
        <source>Choose a project or an XML file</source>
        <translation>Ein Projekt oder eine XML-Datei auswählen</translation>
    </message>
    <message>
        <source>Try the program with a copy of a small project that has something of everything</source>
        <translation>Das Programm mit der Kopie eines kleinen Projekts ausprobieren, das von allem etwas enthält</translation>
    </message>
    <message>
        <source>Drop a project or
an XML file here</source>
        <translation>Projekt oder XML-Datei
hier ablegen</translation>
    </message>
    <message>
        <source>&amp;Recent projects</source>
        <translation>&amp;Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>&amp;Show the open dialog at start-up</source>
        <translation>Öffnen-Dialog beim Start anzei&amp;gen</translation>
    </message>
    <message>
        <source>%1, in Final Cut Pro</source>
        <translation>%1, in Final Cut Pro</translation>
    </message>
    <message>
        <source>Projects that you open are listed here.</source>
        <translation>Hier werden Projekte aufgelistet, die Sie öffnen.</translation>
    </message>
    <message>
        <source>Open Sam&amp;ple Project</source>
        <translation>B&amp;eispielprojekt öffnen</translation>
    </message>
</context>
<context>
    <name>vantrell::TabPane</name>
    <message>
        <source>Reading the project</source>
        <translation>Projekt wird gelesen</translation>
    </message>
    <message>
        <source>Nothing was copied: no row is selected</source>
        <translation>Nichts kopiert: Keine Zeile ist ausgewählt</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>count and total</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>shown and selected</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <translation>bisher %1</translation>
    </message>
    <message>
        <source>No project is loaded.</source>
        <translation>Kein Projekt ist geladen.</translation>
    </message>
    <message>
        <source>Nothing can be edited yet, as the project is still being read</source>
        <translation>Noch ist keine Bearbeitung möglich, da das Projekt noch gelesen wird</translation>
    </message>
    <message>
        <source>Nothing can be edited until the operation that is going on has ended</source>
        <translation>Bis der laufende Vorgang beendet ist, ist keine Bearbeitung möglich</translation>
    </message>
    <message>
        <source>Fi&amp;t Column</source>
        <translation>Spalte an&amp;passen</translation>
    </message>
    <message>
        <source>Fit &amp;All Columns</source>
        <translation>&amp;Alle Spalten anpassen</translation>
    </message>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>Spalten &amp;zurücksetzen</translation>
    </message>
</context>
<context>
    <name>vantrell::TableDelegate</name>
    <message>
        <source>%1, in all %2 selected rows</source>
        <translation>%1, in allen %2 ausgewählten Zeilen</translation>
    </message>
</context>
<context>
    <name>vantrell::TableModel</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>vantrell::VerificationSheet</name>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>unlesbar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>File in the List</source>
        <translation>Datei in der Liste</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Verify List</source>
        <translation>Liste prüfen</translation>
    </message>
    <message>
        <source>All files are as listed in “%1”.</source>
        <translation>Alle Dateien stimmen mit „%1“ überein.</translation>
    </message>
    <message>
        <source>Not all files are as listed in “%1”.</source>
        <translation>Nicht alle Dateien stimmen mit „%1“ überein.</translation>
    </message>
    <message>
        <source>Verified files</source>
        <translation>Geprüfte Dateien</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>Die Tabelle in die Zwischenablage kopieren</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowComparison</name>
    <message>
        <source>Compare with</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)</source>
        <translation>Final-Cut-Pro-7-Projekte und XML-Dateien (*.fcp *.xml *.FCP *.XML)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <translation>„%1“ wird geöffnet…</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The project “%1” is not ready.</source>
        <translation>Das Projekt „%1“ ist nicht bereit.</translation>
    </message>
    <message>
        <source>Wait until it is loaded.</source>
        <translation>Warten Sie, bis es geladen ist.</translation>
    </message>
    <message>
        <source>“%1” has no two sequences to compare.</source>
        <translation>„%1“ hat keine zwei Sequenzen zum Vergleichen.</translation>
    </message>
    <message>
        <source>“%1” has no sequence to compare.</source>
        <translation>„%1“ hat keine Sequenz zum Vergleichen.</translation>
    </message>
    <message>
        <source>“%1” is busy. Try again when that is done.</source>
        <translation>„%1“ ist beschäftigt. Versuchen Sie es danach noch einmal.</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Vergleich läuft…</translation>
    </message>
    <message>
        <source>The cuts could not be compared; the log tells why.</source>
        <translation>Die Fassungen konnten nicht verglichen werden; das Protokoll nennt den Grund.</translation>
    </message>
    <message>
        <source>The sequences have changed. Compare again first.</source>
        <translation>Die Sequenzen haben sich geändert. Vergleichen Sie zuerst erneut.</translation>
    </message>
    <message>
        <source>The markers could not be added.</source>
        <translation>Die Marker konnten nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Adding markers…</source>
        <translation>Marker werden hinzugefügt…</translation>
    </message>
    <message>
        <source>1 marker added from the old cut</source>
        <translation>1 Marker aus der alten Fassung hinzugefügt</translation>
    </message>
    <message>
        <source>%1 markers added from the old cut</source>
        <translation>%1 Marker aus der alten Fassung hinzugefügt</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowMarkerLists</name>
    <message>
        <source>The project is still loading</source>
        <translation>Das Projekt wird noch geladen</translation>
    </message>
    <message>
        <source>Please wait for the project to finish loading before attempting this operation.</source>
        <translation>Bitte warten Sie mit diesem Vorgang, bis das Projekt vollständig geladen ist.</translation>
    </message>
    <message>
        <source>Adding markers…</source>
        <translation>Marker werden hinzugefügt…</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>„%1“ wird gelesen…</translation>
    </message>
    <message>
        <source>Reading %1 marker lists…</source>
        <translation>%1 Markerlisten werden gelesen…</translation>
    </message>
    <message>
        <source>%1 of %2 markers imported</source>
        <translation>%1 von %2 Markern importiert</translation>
    </message>
    <message>
        <source>%1 markers imported from %2 files</source>
        <translation>%1 Marker aus %2 Dateien importiert</translation>
    </message>
    <message>
        <source>1 marker imported from “%1”</source>
        <translation>1 Marker aus „%1“ importiert</translation>
    </message>
    <message>
        <source>%1 markers imported from “%2”</source>
        <translation>%1 Marker aus „%2“ importiert</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben…</translation>
    </message>
    <message>
        <source>1 marker exported to “%1”</source>
        <translation>1 Marker nach „%1“ exportiert</translation>
    </message>
    <message>
        <source>%1 markers exported to “%2”</source>
        <translation>%1 Marker nach „%2“ exportiert</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowMedia</name>
    <message>
        <source>No file is missing</source>
        <translation>Keine Datei fehlt</translation>
    </message>
    <message>
        <source>Relinking…</source>
        <translation>Dateien werden neu verknüpft…</translation>
    </message>
    <message>
        <source>1 file relinked</source>
        <translation>1 Datei neu verknüpft</translation>
    </message>
    <message>
        <source>%1 files relinked</source>
        <translation>%1 Dateien neu verknüpft</translation>
    </message>
    <message>
        <source>; 1 is still missing</source>
        <translation>; 1 fehlt noch</translation>
    </message>
    <message>
        <source>; %1 are still missing</source>
        <translation>; %1 fehlen noch</translation>
    </message>
    <message>
        <source>Files of “%1” are looked for in “%2”</source>
        <translation>Dateien aus „%1“ werden in „%2“ gesucht</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben…</translation>
    </message>
    <message>
        <source>The list could not be exported to “%1”.</source>
        <translation>Die Liste konnte nicht nach „%1“ exportiert werden.</translation>
    </message>
    <message>
        <source>1 file listed in “%1”</source>
        <translation>1 Datei in „%1“ aufgelistet</translation>
    </message>
    <message>
        <source>%1 files listed in “%2”</source>
        <translation>%1 Dateien in „%2“ aufgelistet</translation>
    </message>
    <message>
        <source>; %1 missing left out</source>
        <translation>; fehlende ausgelassen: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Some files could not be read, and are not in the list.</source>
        <translation>Einige Dateien konnten nicht gelesen werden und stehen nicht in der Liste.</translation>
    </message>
    <message>
        <source>Some paths hold a line break, and are not in the list.</source>
        <translation>Einige Pfade enthalten einen Zeilenumbruch und stehen nicht in der Liste.</translation>
    </message>
    <message>
        <source>Verify List</source>
        <translation>Liste prüfen</translation>
    </message>
    <message>
        <source>Media hash lists</source>
        <translation>Media-Hash-Listen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Verifying the files of “%1”…</source>
        <translation>Dateien von „%1“ werden geprüft…</translation>
    </message>
    <message>
        <source>There is no file in it.</source>
        <translation>Sie enthält keine Datei.</translation>
    </message>
    <message>
        <source>The list “%1” cannot be verified.</source>
        <translation>Die Liste „%1“ kann nicht geprüft werden.</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowNotes</name>
    <message>
        <source>There is no sequence</source>
        <translation>Es gibt keine Sequenz</translation>
    </message>
    <message>
        <source>The project has no sequence that notes could be added to.</source>
        <translation>Das Projekt hat keine Sequenz, der Notizen hinzugefügt werden könnten.</translation>
    </message>
    <message>
        <source>Import Notes</source>
        <translation>Notizen importieren</translation>
    </message>
    <message>
        <source>Lists of notes (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md *.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)</source>
        <translation>Notizlisten (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md *.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Reading the notes…</source>
        <translation>Notizen werden gelesen…</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>„%1“ wird gelesen…</translation>
    </message>
    <message>
        <source>The clipboard holds no list of notes</source>
        <translation>Die Zwischenablage enthält keine Notizliste</translation>
    </message>
    <message>
        <source>There are no notes in “%1”</source>
        <translation>„%1“ enthält keine Notizen</translation>
    </message>
    <message>
        <source>No line of the file has a timecode, a frame number or a time.</source>
        <translation>Keine Zeile der Datei hat einen Timecode, eine Framenummer oder eine Zeit.</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>„%1“ konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unable to add the notes</source>
        <translation>Die Notizen konnten nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>Adding notes…</source>
        <translation>Notizen werden hinzugefügt…</translation>
    </message>
    <message>
        <source>1 note added</source>
        <translation>1 Notiz hinzugefügt</translation>
    </message>
    <message>
        <source>%1 notes added</source>
        <translation>%1 Notizen hinzugefügt</translation>
    </message>
    <message>
        <source>Line %1, “%2”: %3</source>
        <translation>Zeile %1, „%2“: %3</translation>
    </message>
    <message>
        <source>1 note could not be added</source>
        <translation>1 Notiz konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>%1 notes could not be added</source>
        <translation>%1 Notizen konnten nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… und %1 weitere</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben…</translation>
    </message>
    <message>
        <source>The notes could not be exported to “%1”.</source>
        <translation>Die Notizen konnten nicht nach „%1“ exportiert werden.</translation>
    </message>
    <message>
        <source>1 marker exported to “%1”</source>
        <translation>1 Marker nach „%1“ exportiert</translation>
    </message>
    <message>
        <source>%1 markers exported to “%2”</source>
        <translation>%1 Marker nach „%2“ exportiert</translation>
    </message>
    <message>
        <source>“%1” cannot hold everything</source>
        <translation>„%1“ kann nicht alles aufnehmen</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowReports</name>
    <message>
        <source>The report could not be printed.</source>
        <translation>Der Bericht konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Another report is being printed.</source>
        <translation>Ein anderer Bericht wird gerade gedruckt.</translation>
    </message>
    <message>
        <source>Close its print panel first.</source>
        <translation>Schließen Sie zuerst dessen Druckdialog.</translation>
    </message>
    <message>
        <source>Preparing the report…</source>
        <translation>Bericht wird vorbereitet…</translation>
    </message>
    <message>
        <source>Report saved to “%1”</source>
        <translation>Bericht in „%1“ gespeichert</translation>
    </message>
    <message>
        <source>Report handed to the printer “%1”</source>
        <translation>Bericht an den Drucker „%1“ übergeben</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben…</translation>
    </message>
    <message>
        <source>Report exported to “%1”</source>
        <translation>Bericht nach „%1“ exportiert</translation>
    </message>
    <message>
        <source>The report could not be exported to “%1”.</source>
        <translation>Der Bericht konnte nicht nach „%1“ exportiert werden.</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowSaving</name>
    <message>
        <source>The document “%1” could not be saved.</source>
        <translation>Das Dokument „%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The file is open in another window. Close that window first, or choose another name.</source>
        <translation>Die Datei ist in einem anderen Fenster geöffnet. Schließen Sie zuerst jenes Fenster oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>„%1“ wird gespeichert…</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>XML files (*.xml *.XML)</source>
        <translation>XML-Dateien (*.xml *.XML)</translation>
    </message>
    <message>
        <source>Your changes since it was last saved will be lost.</source>
        <translation>Ihre Änderungen seit dem letzten Speichern gehen verloren.</translation>
    </message>
    <message>
        <source>%1 will be lost.</source>
        <translation>Verloren gehen: %1.</translation>
    </message>
    <message>
        <source>Do you want to revert to the saved version of “%1”?</source>
        <translation>Möchten Sie „%1“ auf die gespeicherte Version zurücksetzen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Edit ▸ Undo Revert brings the project back as it is now, until you save, revert again or close the window.</source>
        <translation>Bearbeiten ▸ Rückgängig Zurücksetzen holt das Projekt zurück, wie es jetzt ist, bis Sie sichern, wieder zurücksetzen oder das Fenster schließen.</translation>
    </message>
    <message>
        <source>Waiting for the question in another window…</source>
        <translation>Die Frage in einem anderen Fenster wird abgewartet…</translation>
    </message>
    <message>
        <source>Waiting for the volume of “%1”…</source>
        <translation>Auf das Volume von „%1“ wird gewartet…</translation>
    </message>
    <message>
        <source>“%1” cannot be read any more.</source>
        <translation>„%1“ kann nicht mehr gelesen werden.</translation>
    </message>
    <message>
        <source>The project stays open as it is. You can save it to another place.</source>
        <translation>Das Projekt bleibt unverändert geöffnet. Sie können es an einem anderen Ort speichern.</translation>
    </message>
    <message>
        <source>Do you want to save the changes made to “%1”?</source>
        <translation>Möchten Sie die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don’t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>They are being sent. Your changes may be lost if you don’t wait for that.</source>
        <translation>Sie werden gerade gesendet. Wenn Sie das nicht abwarten, können Ihre Änderungen verloren gehen.</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don’t save them.</source>
        <translation>Wenn Sie Ihre Änderungen nicht speichern, gehen sie verloren.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter…</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowSending</name>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>The changes are still being sent.</source>
        <translation>Die Änderungen werden noch gesendet.</translation>
    </message>
    <message>
        <source>Export Changed Sequences</source>
        <translation>Geänderte Sequenzen exportieren</translation>
    </message>
    <message>
        <source>XML files (*.xml *.XML)</source>
        <translation>XML-Dateien (*.xml *.XML)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>The changed sequences could not be exported.</source>
        <translation>Die geänderten Sequenzen konnten nicht exportiert werden.</translation>
    </message>
    <message>
        <source>“%1” is open in a window. Choose another name.</source>
        <translation>„%1“ ist in einem Fenster geöffnet. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>„%1“ wird geschrieben…</translation>
    </message>
    <message>
        <source>Changed sequences exported to “%1”</source>
        <translation>Geänderte Sequenzen nach „%1“ exportiert</translation>
    </message>
    <message>
        <source>The changed sequences could not be exported to “%1”.</source>
        <translation>Die geänderten Sequenzen konnten nicht nach „%1“ exportiert werden.</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowWork</name>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
</context>
</TS>
