<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ArrangementFolder</name>
    <message>
        <source>There is already one called &quot;%1&quot;.</source>
        <translation>Es gibt schon eine mit dem Namen „%1“.</translation>
    </message>
</context>
<context>
    <name>ArrangementName</name>
    <message>
        <source>Name of the arrangement:</source>
        <translation>Name der Anordnung:</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--frame needs a layout with a size, and a file.</source>
        <translation>--frame braucht ein Format mit Größe und eine Datei.</translation>
    </message>
    <message>
        <source>--language needs a code, such as de.</source>
        <translation>--language braucht ein Kürzel wie de.</translation>
    </message>
    <message>
        <source>--layout needs a file.</source>
        <translation>--layout braucht eine Datei.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;. There are %2.</source>
        <translation>Es gibt keine Sprache „%1“. Es gibt %2.</translation>
    </message>
    <message>
        <source>--script needs a file.</source>
        <translation>--script braucht eine Datei.</translation>
    </message>
    <message>
        <source>Usage: norvane-host [OPTION...] [PICTURE...]
Looks at pictures in panels that can be arranged freely.

  --frame LAYOUT:WIDTHxHEIGHT[:MATRIX] FILE
                 open the raw samples of a frame, such as
                 --frame v210:1920x1080 FILE; may be given again
  --layout FILE  restore the arrangement from FILE and save it there
                 on quitting, instead of that of the last session
  --fresh        start with the default arrangement
  --dark         use the dark palette
  --script FILE  run the Python script FILE in a Script panel
  --language CODE
                 show all texts in this language, such as de or en,
                 instead of the user&apos;s
  -h, --help     show this text
  -v, --version  show the version
</source>
        <translation>Aufruf: norvane-host [OPTION...] [BILD...]
Zeigt Bilder in Panels, die sich frei anordnen lassen.

  --frame FORMAT:BREITExHÖHE[:MATRIX] DATEI
                 die rohen Abtastwerte eines Bildes öffnen, etwa
                 --frame v210:1920x1080 DATEI; auch mehrmals
  --layout DATEI die Anordnung aus DATEI wiederherstellen und beim
                 Beenden dort speichern, statt der der letzten Sitzung
  --fresh        mit der Anordnung beginnen, die vorgegeben ist
  --dark         die dunkle Palette benutzen
  --script DATEI das Python-Skript DATEI in einem Skript-Panel ausführen
  --language KÜRZEL
                 alle Texte in dieser Sprache zeigen, etwa de oder en,
                 statt in der des Benutzers
  -h, --help     diesen Text zeigen
  -v, --version  die Version zeigen
</translation>
    </message>
</context>
<context>
    <name>DisplayOptions</name>
    <message>
        <source>&amp;Hide Single Tabs</source>
        <translation>Einzelne Reiter &amp;verbergen</translation>
    </message>
    <message>
        <source>Panel &amp;Menu</source>
        <translation>Panel&amp;menü</translation>
    </message>
    <message>
        <source>&amp;Split by Dragging</source>
        <translation>Durch &amp;Ziehen teilen</translation>
    </message>
    <message>
        <source>Highlight &amp;Current Tab</source>
        <translation>&amp;Aktuellen Reiter hervorheben</translation>
    </message>
    <message>
        <source>Closable &amp;Tabs</source>
        <translation>Schließbare &amp;Reiter</translation>
    </message>
</context>
<context>
    <name>FileReplacement</name>
    <message>
        <source>The file cannot be replaced.</source>
        <translation>Die Datei kann nicht ersetzt werden.</translation>
    </message>
</context>
<context>
    <name>FrameFormat</name>
    <message>
        <source>&quot;%1&quot; is not a layout and a size, such as v210:1920x1080.</source>
        <translation>„%1“ ist kein Format mit Größe wie v210:1920x1080.</translation>
    </message>
    <message>
        <source>There is no layout &quot;%1&quot;. There are %2.</source>
        <translation>Es gibt kein Format „%1“. Es gibt %2.</translation>
    </message>
    <message>
        <source>Frames in %1 can be written, but not read.</source>
        <translation>Bilder im Format %1 können geschrieben, aber nicht gelesen werden.</translation>
    </message>
    <message>
        <source>There is no matrix &quot;%1&quot;.</source>
        <translation>Es gibt keine Matrix „%1“.</translation>
    </message>
</context>
<context>
    <name>LayoutStore</name>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ArrangementManager</name>
    <message>
        <source>Manage Arrangements</source>
        <translation>Anordnungen verwalten</translation>
    </message>
    <message>
        <source>Arrangements</source>
        <translation>Anordnungen</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Rename Arrangement</source>
        <translation>Anordnung umbenennen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed.

%2</source>
        <translation>„%1“ kann nicht umbenannt werden.

%2</translation>
    </message>
    <message>
        <source>Delete Arrangement</source>
        <translation>Anordnung löschen</translation>
    </message>
    <message>
        <source>Delete the arrangement &quot;%1&quot;?</source>
        <translation>Die Anordnung „%1“ löschen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted.

%2</source>
        <translation>„%1“ kann nicht gelöscht werden.

%2</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ArrangementMenu</name>
    <message>
        <source>&amp;Arrangement</source>
        <translation>&amp;Anordnung</translation>
    </message>
    <message>
        <source>Sa&amp;ve Arrangement...</source>
        <translation>Anordnung &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;Manage Arrangements...</source>
        <translation>Anordnungen &amp;verwalten...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Z</source>
        <translation>Ctrl+Alt+Z</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Shift+Z</source>
        <translation>Ctrl+Alt+Shift+Z</translation>
    </message>
    <message>
        <source>&amp;Single</source>
        <translation>&amp;Einzeln</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Side &amp;by Side</source>
        <translation>&amp;Nebeneinander</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>&amp;Review</source>
        <translation>Ver&amp;gleich</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Ctrl+%1</source>
        <translation>Ctrl+%1</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>The arrangement &quot;%1&quot; cannot be read.

%2</source>
        <translation>Die Anordnung „%1“ kann nicht gelesen werden.

%2</translation>
    </message>
    <message>
        <source>Save Arrangement</source>
        <translation>Anordnung speichern</translation>
    </message>
    <message>
        <source>The arrangement &quot;%1&quot; cannot be saved.

%2</source>
        <translation>Die Anordnung „%1“ kann nicht gespeichert werden.

%2</translation>
    </message>
    <message>
        <source>There is already an arrangement called &quot;%1&quot;. Replace it?</source>
        <translation>Es gibt schon eine Anordnung „%1“. Soll sie ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ColourPanel</name>
    <message>
        <source>%1. With Control: back to the default.</source>
        <translation>%1. Mit Strg: zurück zur Vorgabe.</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>V</source>
        <comment>value</comment>
        <translation>V</translation>
    </message>
    <message>
        <source>T</source>
        <comment>temperature</comment>
        <translation>T</translation>
    </message>
    <message>
        <source>M</source>
        <comment>magenta-green</comment>
        <translation>M</translation>
    </message>
    <message>
        <source>I</source>
        <comment>intensity</comment>
        <translation>I</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Scheibe</translation>
    </message>
    <message>
        <source>Value ring</source>
        <translation>Ring für den Hellwert</translation>
    </message>
    <message>
        <source>What the wheel looks like</source>
        <translation>Wie das Farbrad aussieht</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ControlHelp</name>
    <message>
        <source>There is nothing to tell about this.</source>
        <translation>Hierzu gibt es nichts zu sagen.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ControlsPanel</name>
    <message>
        <source>Controls %1</source>
        <translation>Regler %1</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Show the picture as it is</source>
        <translation>Zeigt das Bild, wie es ist</translation>
    </message>
    <message>
        <source>&amp;Exposure</source>
        <translation>&amp;Belichtung</translation>
    </message>
    <message>
        <source>&amp;Frame</source>
        <translation>&amp;Einzelbild</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::FilesPanel</name>
    <message>
        <source>Files %1</source>
        <translation>Dateien %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>A folder or a picture</source>
        <translation>Ein Ordner oder ein Bild</translation>
    </message>
    <message>
        <source>Type or choose a folder to see its pictures below, or type the name of a picture to open it.</source>
        <translation>Einen Ordner eingeben oder auswählen, um unten seine Bilder zu sehen, oder den Namen eines Bildes eingeben, um es zu öffnen.</translation>
    </message>
    <message>
        <source>Pictures of the folder</source>
        <translation>Bilder des Ordners</translation>
    </message>
    <message>
        <source>The pictures of the folder. A double click opens one; pictures and folders can be dropped here from a file manager.</source>
        <translation>Die Bilder des Ordners. Ein Doppelklick öffnet eines; Bilder und Ordner können aus einer Dateiverwaltung hierher gezogen werden.</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>There are no pictures in this folder.</source>
        <translation>In diesem Ordner sind keine Bilder.</translation>
    </message>
    <message>
        <source>Choose a folder, or drop pictures here.</source>
        <translation>Einen Ordner auswählen oder Bilder hierher ziehen.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::FrameDialog</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Open Frame</source>
        <translation>Einzelbild öffnen</translation>
    </message>
    <message>
        <source>A file with the samples of one frame</source>
        <translation>Eine Datei mit den Abtastwerten eines Bildes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>&amp;Matrix</source>
        <translation>&amp;Matrix</translation>
    </message>
    <message>
        <source>The usual one: %1</source>
        <translation>Die übliche: %1</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Eine Datei auswählen.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::FrameInspector</name>
    <message>
        <source>The matrix that the colours of the frame are made with. It is not written in the file: the right one is the one that the frame was encoded with.</source>
        <translation>Die Matrix, mit der die Farben des Bildes berechnet werden. In der Datei steht sie nicht: Richtig ist die, mit der das Bild kodiert wurde.</translation>
    </message>
    <message>
        <source>&amp;Matrix</source>
        <translation>&amp;Matrix</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::FrameSaveDialog</name>
    <message>
        <source>%1 samples (*.%2)</source>
        <translation>%1-Abtastwerte (*.%2)</translation>
    </message>
    <message>
        <source>Save Frame</source>
        <translation>Einzelbild speichern</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::FrameWriting</name>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogram</translation>
    </message>
    <message>
        <source>The histogram of the picture: how many of its pixels have which level, black on the left. The two ends may rise above the field.</source>
        <translation>Das Histogramm des Bildes: wie viele seiner Pixel welchen Pegel haben, Schwarz links. Die beiden Enden dürfen über das Feld hinausragen.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::HostWindow</name>
    <message>
        <source>The arrangement &quot;%1&quot;</source>
        <translation>Die Anordnung „%1“</translation>
    </message>
    <message>
        <source>The arrangement</source>
        <translation>Die Anordnung</translation>
    </message>
    <message>
        <source>Save Frame</source>
        <translation>Einzelbild speichern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.

%2</source>
        <translation>„%1“ kann nicht geschrieben werden.

%2</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;What Is This?</source>
        <translation>&amp;Was ist das?</translation>
    </message>
    <message>
        <source>Shift+F1</source>
        <translation>Shift+F1</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber norvane-host</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Picture...</source>
        <translation>Bild ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save &amp;Frame...</source>
        <translation>Einzelbild spei&amp;chern...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Open &amp;Layout...</source>
        <translation>&amp;Layout öffnen...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
    <message>
        <source>&amp;Save Layout...</source>
        <translation>Layout &amp;speichern...</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panels</translation>
    </message>
    <message>
        <source>New &amp;Viewer</source>
        <translation>Neuer Be&amp;trachter</translation>
    </message>
    <message>
        <source>New &amp;Pictures</source>
        <translation>Neue &amp;Bilder</translation>
    </message>
    <message>
        <source>New &amp;Notes</source>
        <translation>Neue &amp;Notizen</translation>
    </message>
    <message>
        <source>New &amp;Files</source>
        <translation>Neue &amp;Dateien</translation>
    </message>
    <message>
        <source>New &amp;Inspector</source>
        <translation>Neuer &amp;Inspector</translation>
    </message>
    <message>
        <source>New Contro&amp;ls</source>
        <translation>Neue &amp;Regler</translation>
    </message>
    <message>
        <source>New C&amp;olour</source>
        <translation>Neue &amp;Farbe</translation>
    </message>
    <message>
        <source>New &amp;Script</source>
        <translation>Neues &amp;Skript</translation>
    </message>
    <message>
        <source>New Scop&amp;es</source>
        <translation>Neue &amp;Messanzeigen</translation>
    </message>
    <message>
        <source>&amp;Closed Notes</source>
        <translation>&amp;Geschlossene Notizen</translation>
    </message>
    <message>
        <source>&amp;Tasks</source>
        <translation>A&amp;ufgaben</translation>
    </message>
    <message>
        <source>&amp;Analyse Pictures</source>
        <translation>Bilder &amp;analysieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>An&amp;sicht</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>About norvane-host</source>
        <translation>Über norvane-host</translation>
    </message>
    <message>
        <source>&lt;h3&gt;norvane-host %1&lt;/h3&gt;&lt;p&gt;A small media workstation, built to show how a program uses the panels, panes and layouts of the library.&lt;/p&gt;&lt;p&gt;In a viewer the wheel zooms, dragging pans, and the keys +, -, 0 and F zoom in, zoom out, show one to one and fit.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;norvane-host %1&lt;/h3&gt;&lt;p&gt;Ein kleiner Medien-Arbeitsplatz, der zeigt, wie ein Programm die Panels, Bereiche und Layouts der Bibliothek benutzt.&lt;/p&gt;&lt;p&gt;In einem Betrachter zoomt das Mausrad, Ziehen verschiebt, und die Tasten +, -, 0 und F vergrößern, verkleinern, zeigen eins zu eins und passen ein.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Layouts (*.layout);;All files (*)</source>
        <translation>Layouts (*.layout);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The closed notes cannot be written.</source>
        <translation>Die geschlossenen Notizen können nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The arrangement cannot be saved in &quot;%1&quot;.
%2

Quit all the same?</source>
        <translation>Die Anordnung kann nicht in „%1“ gespeichert werden.
%2

Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Save Layout</source>
        <translation>Layout speichern</translation>
    </message>
    <message>
        <source>Open Layout</source>
        <translation>Layout öffnen</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>%1 cannot be read.

%2</source>
        <translation>%1 kann nicht gelesen werden.

%2</translation>
    </message>
    <message>
        <source>%1 cannot be restored. Nothing has been changed.

%2</source>
        <translation>%1 kann nicht wiederhergestellt werden. Nichts wurde verändert.

%2</translation>
    </message>
    <message>
        <source>%1 could not be restored. The former arrangement is back.</source>
        <translation>%1 konnte nicht wiederhergestellt werden. Die vorige Anordnung ist wieder da.</translation>
    </message>
    <message>
        <source>A pane. It holds panels as tabs, which can be dragged to other places of this pane, to another one, or out of the window.</source>
        <translation>Ein Bereich. Er enthält Panels als Reiter, die an andere Stellen dieses Bereichs, in einen anderen oder aus dem Fenster gezogen werden können.</translation>
    </message>
    <message>
        <source>%1 - norvane-host</source>
        <translation>%1 - norvane-host</translation>
    </message>
    <message>
        <source>norvane-host</source>
        <translation>norvane-host</translation>
    </message>
    <message>
        <source>Open Pictures</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>Open F&amp;rame...</source>
        <translation>Einz&amp;elbild öffnen...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <source>&amp;Show Tasks</source>
        <translation>Aufgaben &amp;zeigen</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::InspectorPanel</name>
    <message>
        <source>Inspector %1</source>
        <translation>Inspector %1</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Where the picture comes from.</source>
        <translation>Woher das Bild kommt.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>What the file holds.</source>
        <translation>Was die Datei enthält.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>The mean colour of the picture and its extremes.</source>
        <translation>Die mittlere Farbe des Bildes und seine Extreme.</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Einzelbild</translation>
    </message>
    <message>
        <source>How the samples of a frame of video are understood.</source>
        <translation>Wie die Abtastwerte eines Videobildes verstanden werden.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::NotesPanel</name>
    <message>
        <source>Notes %1</source>
        <translation>Notizen %1</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Notes of yours. They are kept with the arrangement.</source>
        <translation>Eigene Notizen. Sie werden mit der Anordnung aufbewahrt.</translation>
    </message>
    <message>
        <source>%1...</source>
        <translation>%1...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Type your notes here.</source>
        <translation>Hier Notizen eingeben.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::PictureAnalysis</name>
    <message>
        <source>Analysing pictures</source>
        <translation>Bilder werden analysiert</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Waveform of %1 x %2 pixels</source>
        <translation>Wellenform aus %1 x %2 Pixeln</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::PictureLoader</name>
    <message>
        <source>Loading %1</source>
        <translation>%1 wird geladen</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Das Laden wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::PicturesPanel</name>
    <message>
        <source>Pictures %1</source>
        <translation>Bilder %1</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the opened pictures</source>
        <translation>Die geöffneten Bilder durchsuchen</translation>
    </message>
    <message>
        <source>Shows only the pictures whose name has what you type here.</source>
        <translation>Zeigt nur die Bilder, deren Name enthält, was hier steht.</translation>
    </message>
    <message>
        <source>Opened pictures</source>
        <translation>Geöffnete Bilder</translation>
    </message>
    <message>
        <source>The pictures opened so far. A double click shows one, the Delete key takes it off the list.</source>
        <translation>Die bisher geöffneten Bilder. Ein Doppelklick zeigt eines, die Entf-Taste nimmt es aus der Liste.</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der Liste &amp;nehmen</translation>
    </message>
    <message>
        <source>No opened picture has this in its name.</source>
        <translation>Kein geöffnetes Bild hat dies in seinem Namen.</translation>
    </message>
    <message>
        <source>Drop or open pictures: they are listed here.</source>
        <translation>Bilder hierher ziehen oder öffnen: Sie werden hier aufgelistet.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ScopeView</name>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ScopesPanel</name>
    <message>
        <source>Scopes %1</source>
        <translation>Messanzeigen %1</translation>
    </message>
    <message>
        <source>Scopes</source>
        <translation>Messanzeigen</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Measure red, green and blue instead of the luma</source>
        <translation>Rot, Grün und Blau statt Luma messen</translation>
    </message>
    <message>
        <source>Measures red, green and blue, each in its colour, instead of the luma.</source>
        <translation>Misst Rot, Grün und Blau, jedes in seiner Farbe, statt Luma.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ScriptInterpreter</name>
    <message>
        <source>This program was built without Python.</source>
        <translation>Dieses Programm wurde ohne Python gebaut.</translation>
    </message>
    <message>
        <source>Python %1. The module norvane has pictures(), run_in_main_thread(), run_in_main_thread_with_result() and ProgressTask.</source>
        <translation>Python %1. Das Modul norvane hat pictures(), run_in_main_thread(), run_in_main_thread_with_result() und ProgressTask.</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ScriptPanel</name>
    <message>
        <source>A Task with Progress</source>
        <translation>Eine Aufgabe mit Fortschritt</translation>
    </message>
    <message>
        <source>A Thread That Asks for the Pictures</source>
        <translation>Ein Thread, der nach den Bildern fragt</translation>
    </message>
    <message>
        <source>An Exception That Comes Back</source>
        <translation>Eine Ausnahme, die zurückkommt</translation>
    </message>
    <message>
        <source>Script %1</source>
        <translation>Skript %1</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Output of scripts</source>
        <translation>Ausgabe der Skripte</translation>
    </message>
    <message>
        <source>Run...</source>
        <translation>Ausführen...</translation>
    </message>
    <message>
        <source>Runs a script from a file.</source>
        <translation>Führt ein Skript aus einer Datei aus.</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Runs a script that comes with the program.</source>
        <translation>Führt ein mitgeliefertes Skript aus.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stops the script that keeps the program busy.</source>
        <translation>Hält das Skript an, mit dem das Programm beschäftigt ist.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empties the output.</source>
        <translation>Leert die Ausgabe.</translation>
    </message>
    <message>
        <source>Python prompt</source>
        <translation>Python-Eingabe</translation>
    </message>
    <message>
        <source>Type a line of Python. The up and down keys bring earlier lines back.</source>
        <translation>Eine Zeile Python eingeben. Die Pfeiltasten nach oben und unten holen frühere Zeilen zurück.</translation>
    </message>
    <message>
        <source>Run Script</source>
        <translation>Skript ausführen</translation>
    </message>
    <message>
        <source>Python scripts (*.py)</source>
        <translation>Python-Skripte (*.py)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Running %1</source>
        <translation>%1 wird ausgeführt</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::StatusLine</name>
    <message>
        <source>Picture information</source>
        <translation>Bildinformationen</translation>
    </message>
    <message>
        <source>%1; %2; %3</source>
        <translation>%1; %2; %3</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::ViewerPanel</name>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fit the picture into the panel (F)</source>
        <translation>Das Bild in das Panel einpassen (F)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>One pixel of the picture to one of the screen (0)</source>
        <translation>Ein Pixel des Bildes auf eines des Bildschirms (0)</translation>
    </message>
    <message>
        <source>The picture. The wheel zooms, dragging moves it; the keys + and - zoom, 0 shows one to one and F fits it.</source>
        <translation>Das Bild. Das Mausrad zoomt, Ziehen verschiebt; die Tasten + und - zoomen, 0 zeigt eins zu eins und F passt ein.</translation>
    </message>
    <message>
        <source>Makes the picture as large as the panel and keeps it so.</source>
        <translation>Macht das Bild so groß wie das Panel und hält es so.</translation>
    </message>
    <message>
        <source>Shows every pixel of the picture as one of the screen.</source>
        <translation>Zeigt jedes Pixel des Bildes als eines des Bildschirms.</translation>
    </message>
    <message>
        <source>The name and size of the picture, the pixel under the mouse, and the zoom.</source>
        <translation>Name und Größe des Bildes, das Pixel unter der Maus und der Zoom.</translation>
    </message>
    <message>
        <source>Drop or open a picture</source>
        <translation>Ein Bild hierher ziehen oder öffnen</translation>
    </message>
    <message>
        <source>A double click here chooses a file.</source>
        <translation>Ein Doppelklick hier wählt eine Datei aus.</translation>
    </message>
    <message>
        <source>%1 cannot be shown</source>
        <translation>%1 kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Viewer %1</source>
        <translation>Betrachter %1</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>Betrachter</translation>
    </message>
    <message>
        <source>%1, %2 x %3</source>
        <translation>%1, %2 x %3</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>(%1, %2)</source>
        <translation>(%1, %2)</translation>
    </message>
    <message>
        <source>R %1  G %2  B %3</source>
        <translation>R %1  G %2  B %3</translation>
    </message>
    <message>
        <source>%1  %2  A %3</source>
        <translation>%1  %2  A %3</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>%1, loading...</source>
        <translation>%1, wird geladen...</translation>
    </message>
</context>
<context>
    <name>Norvane::Host::WaveformView</name>
    <message>
        <source>Waveform</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>The waveform of the picture: for each of its columns, the levels of its pixels, white at the top.</source>
        <translation>Die Wellenform des Bildes: für jede seiner Spalten die Pegel ihrer Pixel, Weiß oben.</translation>
    </message>
</context>
<context>
    <name>PictureFacts</name>
    <message>
        <source>R %1  G %2  B %3</source>
        <translation>R %1  G %2  B %3</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>%1 bits</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Darkest</source>
        <translation>Dunkelstes</translation>
    </message>
    <message>
        <source>Lightest</source>
        <translation>Hellstes</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>There is no such file.</source>
        <translation>Eine solche Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>The file is no picture that can be read.</source>
        <translation>Die Datei ist kein Bild, das gelesen werden kann.</translation>
    </message>
    <message>
        <source>Pictures (%1);;All files (*)</source>
        <translation>Bilder (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>VideoFrames</name>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The file has %1 bytes; a frame of %2 x %3 pixels in %4 has %5.</source>
        <translation>Die Datei hat %1 Byte; ein Bild von %2 x %3 Pixeln in %4 hat %5.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Die Datei endet zu früh.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>There is not enough memory for the frame.</source>
        <translation>Der Speicher reicht für das Bild nicht aus.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Legal luma</source>
        <translation>Zulässiges Luma</translation>
    </message>
    <message>
        <source>Luma here</source>
        <translation>Luma hier</translation>
    </message>
    <message>
        <source>Legal chroma</source>
        <translation>Zulässiges Chroma</translation>
    </message>
    <message>
        <source>Chroma here</source>
        <translation>Chroma hier</translation>
    </message>
</context>
</TS>
