<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>LayoutInspector</name>
    <message>
        <source>The file is not a Norvane panel layout version 1.0 file.</source>
        <translation>Die Datei ist keine Norvane-Panel-Layout-Datei der Version 1.0.</translation>
    </message>
    <message>
        <source>The element is not known in this place and is skipped.</source>
        <translation>Das Element ist an dieser Stelle nicht bekannt und wird übergangen.</translation>
    </message>
    <message>
        <source>The layout is nested too deeply.</source>
        <translation>Das Layout ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The layout has no window.</source>
        <translation>Das Layout hat kein Fenster.</translation>
    </message>
    <message>
        <source>The active page &quot;%1&quot; is none of the pane&apos;s pages.</source>
        <translation>Die aktive Seite „%1“ ist keine Seite dieses Bereichs.</translation>
    </message>
    <message>
        <source>The splitter has %1 &quot;split&quot; elements for %2 children.</source>
        <translation>Der Teiler hat %1 „split“-Elemente für %2 Kinder.</translation>
    </message>
    <message>
        <source>The pane belongs to no window.</source>
        <translation>Der Bereich gehört zu keinem Fenster.</translation>
    </message>
    <message>
        <source>The window has another splitter already.</source>
        <translation>Das Fenster hat schon einen anderen Teiler.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>Das Attribut „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is not a whole number.</source>
        <translation>Das Attribut „%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is not between %2 and %3.</source>
        <translation>Das Attribut „%1“ liegt nicht zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is less than %2.</source>
        <translation>Das Attribut „%1“ ist kleiner als %2.</translation>
    </message>
    <message>
        <source>There is another page &quot;%1&quot;.</source>
        <translation>Es gibt noch eine Seite „%1“.</translation>
    </message>
    <message>
        <source>The layout cannot be read.</source>
        <translation>Das Layout kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::ColorSlider</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hellwert</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Farbtemperatur</translation>
    </message>
    <message>
        <source>Magenta-green</source>
        <translation>Magenta-Grün</translation>
    </message>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::ColorWheel</name>
    <message>
        <source>Colour wheel</source>
        <translation>Farbrad</translation>
    </message>
    <message>
        <source>Hue %1 degrees, saturation %2%, value %3%</source>
        <translation>Farbton %1 Grad, Sättigung %2 %, Hellwert %3 %</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::Dock</name>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Split Vertical</source>
        <translation>Senkrecht teilen</translation>
    </message>
    <message>
        <source>Split Horizontal</source>
        <translation>Waagerecht teilen</translation>
    </message>
    <message>
        <source>Float Pane</source>
        <translation>Bereich lösen</translation>
    </message>
    <message>
        <source>Close Pane</source>
        <translation>Bereich schließen</translation>
    </message>
    <message>
        <source>Float Tab</source>
        <translation>Reiter lösen</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Reiter schließen</translation>
    </message>
    <message>
        <source>Solo Tab</source>
        <translation>Nur diesen Reiter zeigen</translation>
    </message>
    <message>
        <source>Show Tabs</source>
        <translation>Reiter zeigen</translation>
    </message>
    <message>
        <source>Panel menu</source>
        <translation>Panelmenü</translation>
    </message>
    <message>
        <source>Float the current tab</source>
        <translation>Den aktuellen Reiter lösen</translation>
    </message>
    <message>
        <source>Close the current tab</source>
        <translation>Den aktuellen Reiter schließen</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::DockMainWindow</name>
    <message>
        <source>Next Pane</source>
        <translation>Nächster Bereich</translation>
    </message>
    <message>
        <source>Previous Pane</source>
        <translation>Voriger Bereich</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nächster Reiter</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Voriger Reiter</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::FilenameField</name>
    <message>
        <source>Choose...</source>
        <translation>Auswählen...</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::ProgressDialog</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::ProgressWidget</name>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Resume </source>
        <translation>Fortsetzen </translation>
    </message>
    <message>
        <source>Pause </source>
        <translation>Anhalten </translation>
    </message>
    <message>
        <source>Completed.</source>
        <translation>Fertig.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>Norvane::UI::SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>ProgressWidget</name>
    <message>
        <source>Time to go: %1 minute %2 seconds.</source>
        <translation>Noch %1 Minute %2 Sekunden.</translation>
    </message>
    <message>
        <source>Time to go: %1 minutes %2 seconds.</source>
        <translation>Noch %1 Minuten %2 Sekunden.</translation>
    </message>
    <message>
        <source>Time to go: %1 hours %2 minutes.</source>
        <translation>Noch %1 Stunden %2 Minuten.</translation>
    </message>
    <message>
        <source>Time to go: %1 hours %2 minute.</source>
        <translation>Noch %1 Stunden %2 Minute.</translation>
    </message>
    <message>
        <source>Time to go: %1 hour %2 minutes.</source>
        <translation>Noch %1 Stunde %2 Minuten.</translation>
    </message>
    <message>
        <source>Time to go: %1 hour %2 minute.</source>
        <translation>Noch %1 Stunde %2 Minute.</translation>
    </message>
    <message>
        <source>Time to go: ?</source>
        <translation>Restzeit: ?</translation>
    </message>
    <message>
        <source>Time to go: %1 seconds.</source>
        <translation>Noch %1 Sekunden.</translation>
    </message>
    <message>
        <source>Time to go: %1 minutes.</source>
        <translation>Noch %1 Minuten.</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Wird abgebrochen</translation>
    </message>
    <message>
        <source>Time to go: Awaiting Task</source>
        <translation>Restzeit: warte auf die Aufgabe</translation>
    </message>
    <message>
        <source>Time to go: Calculating</source>
        <translation>Restzeit: wird berechnet</translation>
    </message>
</context>
<context>
    <name>QCoreApplication</name>
    <message>
        <source>Dock Layout</source>
        <translation>Panel-Layout</translation>
    </message>
    <message>
        <source>Parse error at line %2, column %3:
%4</source>
        <translation>Fehler in Zeile %2, Spalte %3:
%4</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The file is not a Norvane panel layout version 1.0 file.</source>
        <translation>Die Datei ist keine Norvane-Panel-Layout-Datei der Version 1.0.</translation>
    </message>
    <message>
        <source>The layout is nested too deeply.</source>
        <translation>Das Layout ist zu tief verschachtelt.</translation>
    </message>
</context>
</TS>
