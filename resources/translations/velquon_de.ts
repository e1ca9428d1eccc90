<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ChamberWindow</name>
    <message>
        <source>Particle Chamber: Empty</source>
        <translation>Teilchenkammer: Leer</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>&amp;Bereich:</translation>
    </message>
    <message>
        <source>Energy range</source>
        <translation>Energiebereich</translation>
    </message>
    <message>
        <source>Range of the energy slider</source>
        <translation>Bereich des Energiereglers</translation>
    </message>
    <message>
        <source>1000 to 10000 MeV</source>
        <translation>1000 bis 10000 MeV</translation>
    </message>
    <message>
        <source>100 to 1000 MeV</source>
        <translation>100 bis 1000 MeV</translation>
    </message>
    <message>
        <source>10 to 100 MeV</source>
        <translation>10 bis 100 MeV</translation>
    </message>
    <message>
        <source>1 to 10 MeV</source>
        <translation>1 bis 10 MeV</translation>
    </message>
    <message>
        <source>0.1 to 1 MeV</source>
        <translation>0.1 bis 1 MeV</translation>
    </message>
    <message>
        <source>0.01 to 0.1 MeV</source>
        <translation>0.01 bis 0.1 MeV</translation>
    </message>
    <message>
        <source>0 to 0.01 MeV</source>
        <translation>0 bis 0.01 MeV</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Magnetfeld</translation>
    </message>
    <message>
        <source>Magnetic field along z for the next event</source>
        <translation>Magnetfeld in z-Richtung für das nächste Ereignis</translation>
    </message>
    <message>
        <source>Chamber side</source>
        <translation>Kammerseite</translation>
    </message>
    <message>
        <source>Side of the cubic chamber for the next event</source>
        <translation>Seite der würfelförmigen Kammer für das nächste Ereignis</translation>
    </message>
    <message>
        <source>Kinetic energy</source>
        <translation>Kinetische Energie</translation>
    </message>
    <message>
        <source>Kinetic energy of the incoming particle for the next event</source>
        <translation>Kinetische Energie des einlaufenden Teilchens für das nächste Ereignis</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Aktion</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Ereignis</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>Ei&amp;nstellungen</translation>
    </message>
    <message>
        <source>Rotation A&amp;xis</source>
        <translation>&amp;Drehachse</translation>
    </message>
    <message>
        <source>Rotation &amp;Rate</source>
        <translation>&amp;Tempo der Drehung</translation>
    </message>
    <message>
        <source>&amp;Window in Front</source>
        <translation>&amp;Vorderes Fenster</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Spur</translation>
    </message>
    <message>
        <source>&amp;Particle</source>
        <translation>&amp;Teilchen</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Richtung</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Geschwindigkeit</translation>
    </message>
    <message>
        <source>Scree&amp;n Speed</source>
        <translation>Tempo des &amp;Bildes</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Open Event…</source>
        <translation>Ereignis ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Import PC Event…</source>
        <translation>PC-Ereignis &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Save Event…</source>
        <translation>Ereignis &amp;speichern…</translation>
    </message>
    <message>
        <source>E&amp;xport Points…</source>
        <translation>Pu&amp;nkte exportieren…</translation>
    </message>
    <message>
        <source>Export &amp;Record…</source>
        <translation>Pr&amp;otokoll exportieren…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>Print &amp;Worksheets…</source>
        <translation>&amp;Arbeitsblätter drucken…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;New Event</source>
        <translation>&amp;Neues Ereignis</translation>
    </message>
    <message>
        <source>Make an event of the chosen kind with the values of the sliders</source>
        <translation>Ein Ereignis der gewählten Art mit den Werten der Regler erzeugen</translation>
    </message>
    <message>
        <source>&amp;Previous Event</source>
        <translation>&amp;Vorheriges Ereignis</translation>
    </message>
    <message>
        <source>Show the event that was made or opened before this one</source>
        <translation>Das Ereignis zeigen, das vor diesem erzeugt oder geöffnet wurde</translation>
    </message>
    <message>
        <source>Ne&amp;xt Event</source>
        <translation>Nä&amp;chstes Ereignis</translation>
    </message>
    <message>
        <source>Show the event that was made or opened after this one</source>
        <translation>Das Ereignis zeigen, das nach diesem erzeugt oder geöffnet wurde</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Show the event again, point by point</source>
        <translation>Das Ereignis noch einmal zeigen, Punkt für Punkt</translation>
    </message>
    <message>
        <source>Ro&amp;tate</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>Turn the chamber about its rotation axis; a click in the chamber stops it</source>
        <translation>Die Kammer um ihre Drehachse drehen; ein Klick in die Kammer hält sie an</translation>
    </message>
    <message>
        <source>Re&amp;verse Rotation</source>
        <translation>Andersherum d&amp;rehen</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation</source>
        <translation>&amp;Grundstellung</translation>
    </message>
    <message>
        <source>Bring the chamber back to its resting position</source>
        <translation>Die Kammer in ihre Ruhelage zurückbringen</translation>
    </message>
    <message>
        <source>&amp;Negative Pion π⁻</source>
        <translation>&amp;Negatives Pion π⁻</translation>
    </message>
    <message>
        <source>&amp;Positive Pion π⁺</source>
        <translation>&amp;Positives Pion π⁺</translation>
    </message>
    <message>
        <source>Neutral P&amp;ion π⁰</source>
        <translation>Neutrales P&amp;ion π⁰</translation>
    </message>
    <message>
        <source>Negative &amp;Muon μ⁻</source>
        <translation>Negatives &amp;Myon μ⁻</translation>
    </message>
    <message>
        <source>Positive M&amp;uon μ⁺</source>
        <translation>Positives M&amp;yon μ⁺</translation>
    </message>
    <message>
        <source>&amp;Lambda Λ</source>
        <translation>&amp;Lambda Λ</translation>
    </message>
    <message>
        <source>Kind of the next event</source>
        <translation>Art des nächsten Ereignisses</translation>
    </message>
    <message>
        <source>Show &amp;Axes</source>
        <translation>&amp;Achsen zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Values</source>
        <translation>&amp;Werte zeigen</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation for Each Event</source>
        <translation>&amp;Grundstellung bei jedem Ereignis</translation>
    </message>
    <message>
        <source>&amp;Slow Motion</source>
        <translation>&amp;Zeitlupe</translation>
    </message>
    <message>
        <source>&amp;x</source>
        <translation>&amp;x</translation>
    </message>
    <message>
        <source>&amp;y</source>
        <translation>&amp;y</translation>
    </message>
    <message>
        <source>&amp;z</source>
        <translation>&amp;z</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Schneller</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Langsamer</translation>
    </message>
    <message>
        <source>&amp;Chamber</source>
        <translation>&amp;Kammer</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projektor</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Aktivieren</translation>
    </message>
    <message>
        <source>&amp;Inject Particle</source>
        <translation>Teilchen &amp;einschießen</translation>
    </message>
    <message>
        <source>&amp;Clear Screen</source>
        <translation>Bild &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Electron</source>
        <translation>&amp;Elektron</translation>
    </message>
    <message>
        <source>&amp;Positron</source>
        <translation>&amp;Positron</translation>
    </message>
    <message>
        <source>&amp;Left to Right</source>
        <translation>Von &amp;links nach rechts</translation>
    </message>
    <message>
        <source>&amp;Right to Left</source>
        <translation>Von &amp;rechts nach links</translation>
    </message>
    <message>
        <source>&amp;v</source>
        <translation>&amp;v</translation>
    </message>
    <message>
        <source>&amp;2v</source>
        <translation>&amp;2v</translation>
    </message>
    <message>
        <source>&amp;3v</source>
        <translation>&amp;3v</translation>
    </message>
    <message>
        <source>&amp;Event Record</source>
        <translation>&amp;Ereignisprotokoll</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Messungen</translation>
    </message>
    <message>
        <source>Velquon &amp;Guide</source>
        <translation>Velquon-&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;About Velquon</source>
        <translation>Ü&amp;ber Velquon</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Save Pic&amp;ture…</source>
        <translation>Bi&amp;ld speichern…</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>Prese&amp;ntation</source>
        <translation>P&amp;räsentation</translation>
    </message>
    <message>
        <source>Show the view in front over the whole screen; Escape ends it</source>
        <translation>Die vordere Ansicht über den ganzen Bildschirm zeigen; Escape beendet das</translation>
    </message>
    <message>
        <source>Show &amp;Legend</source>
        <translation>&amp;Legende zeigen</translation>
    </message>
    <message>
        <source>Axis L&amp;etters</source>
        <translation>Achsen&amp;buchstaben</translation>
    </message>
    <message>
        <source>&amp;Field Arrow</source>
        <translation>&amp;Feldpfeil</translation>
    </message>
    <message>
        <source>&amp;Colored Tracks in Projector</source>
        <translation>Farbige &amp;Spuren im Projektor</translation>
    </message>
</context>
<context>
    <name>ProjectorWindow</name>
    <message>
        <source>Projector: Empty</source>
        <translation>Projektor: Leer</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Project onto the xy plane, seen along z (Z)</source>
        <translation>Auf die xy-Ebene projizieren, entlang z gesehen (Z)</translation>
    </message>
    <message>
        <source>xy plane</source>
        <translation>xy-Ebene</translation>
    </message>
    <message>
        <source>Project onto the xz plane, seen along y (Y)</source>
        <translation>Auf die xz-Ebene projizieren, entlang y gesehen (Y)</translation>
    </message>
    <message>
        <source>xz plane</source>
        <translation>xz-Ebene</translation>
    </message>
    <message>
        <source>Project onto the yz plane, seen along x (X)</source>
        <translation>Auf die yz-Ebene projizieren, entlang x gesehen (X)</translation>
    </message>
    <message>
        <source>yz plane</source>
        <translation>yz-Ebene</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show the whole chamber (1)</source>
        <translation>Die ganze Kammer zeigen (1)</translation>
    </message>
    <message>
        <source>Zoom 1</source>
        <translation>Zoom 1</translation>
    </message>
    <message>
        <source>Enlarge two times (2)</source>
        <translation>Zweifach vergrößern (2)</translation>
    </message>
    <message>
        <source>Zoom 2</source>
        <translation>Zoom 2</translation>
    </message>
    <message>
        <source>Enlarge three times (3)</source>
        <translation>Dreifach vergrößern (3)</translation>
    </message>
    <message>
        <source>Zoom 3</source>
        <translation>Zoom 3</translation>
    </message>
    <message>
        <source>Measure a distance: drag from one end to the other (T)</source>
        <translation>Einen Abstand messen: von einem Ende zum anderen ziehen (T)</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Maßband</translation>
    </message>
    <message>
        <source>Drag the picture about (G)</source>
        <translation>Das Bild verschieben (G)</translation>
    </message>
    <message>
        <source>Grab</source>
        <translation>Greifen</translation>
    </message>
    <message>
        <source>Measure a circle: set three points or more along a track (C)</source>
        <translation>Einen Kreis messen: drei oder mehr Punkte entlang einer Spur setzen (C)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Measure an angle: set its vertex, then a point of each arm (A)</source>
        <translation>Einen Winkel messen: erst den Scheitel setzen, dann einen Punkt jedes Schenkels (A)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Set the points of curve and angle onto a near point of the event (S)</source>
        <translation>Die Punkte von Kurve und Winkel auf einen nahen Punkt des Ereignisses setzen (S)</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Put what is measured into the list of measurements (Ctrl+Return)</source>
        <translation>Das Gemessene in die Liste der Messungen aufnehmen (Strg+Return)</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Notieren</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 gibt es schon.
Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>About Velquon</source>
        <translation>Über Velquon</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Particle decays in a detector chamber in a magnetic field, made by chance and shown in space and in projection.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Teilchenzerfälle in einer Detektorkammer im Magnetfeld, vom Zufall bestimmt und räumlich und als Projektion gezeigt.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>track_panel</name>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Strength of the magnetic field; below zero it points the other way</source>
        <translation>Stärke des Magnetfelds; unter null zeigt es in die andere Richtung</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Magnetfeld</translation>
    </message>
    <message>
        <source>field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>The field that the particle moves in</source>
        <translation>Das Feld, in dem sich das Teilchen bewegt</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Maßband</translation>
    </message>
    <message>
        <source>Send a particle into the field</source>
        <translation>Ein Teilchen in das Feld schießen</translation>
    </message>
    <message>
        <source>Inject</source>
        <translation>Einschießen</translation>
    </message>
    <message>
        <source>Clear the track; a particle that moves goes on</source>
        <translation>Die Spur löschen; ein fliegendes Teilchen fliegt weiter</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>In the field B₀ a particle of speed v runs on a circle with a radius of 2 units of the tape</source>
        <translation>Im Feld B₀ läuft ein Teilchen der Geschwindigkeit v auf einem Kreis mit einem Radius von 2 Einheiten des Maßbands</translation>
    </message>
    <message>
        <source>Length measured by dragging in the picture</source>
        <translation>Durch Ziehen im Bild gemessene Länge</translation>
    </message>
    <message>
        <source>A unit is ten points of the picture</source>
        <translation>Eine Einheit sind zehn Bildpunkte</translation>
    </message>
    <message>
        <source>Particle:</source>
        <translation>Teilchen:</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Teilchen</translation>
    </message>
    <message>
        <source>The particle that is sent into the field</source>
        <translation>Das Teilchen, das in das Feld geschossen wird</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Elektron</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positron</translation>
    </message>
    <message>
        <source>Direction:</source>
        <translation>Richtung:</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>The way that the particle comes</source>
        <translation>Der Weg, auf dem das Teilchen kommt</translation>
    </message>
    <message>
        <source>Left to Right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Right to Left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Geschwindigkeit:</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>With v a particle goes one unit of the tape in ten steps</source>
        <translation>Mit v legt ein Teilchen in zehn Schritten eine Einheit des Maßbands zurück</translation>
    </message>
    <message>
        <source>v</source>
        <translation>v</translation>
    </message>
    <message>
        <source>2v</source>
        <translation>2v</translation>
    </message>
    <message>
        <source>3v</source>
        <translation>3v</translation>
    </message>
</context>
<context>
    <name>velquon::AnswerKey</name>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Teilchen</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>p</source>
        <translation>p</translation>
    </message>
    <message>
        <source>p trans.</source>
        <translation>p quer</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>on paper</source>
        <translation>auf Papier</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Verbleib</translation>
    </message>
    <message>
        <source>p trans. is the momentum across the field: 0.3 B R for B in kG and the radius R in cm.</source>
        <translation>p quer ist der Impuls quer zum Feld: 0.3 B R mit B in kG und dem Radius R in cm.</translation>
    </message>
    <message>
        <source>Lengths and angles are given in space and on the paper; the angle is that to the parent at the vertex.</source>
        <translation>Längen und Winkel gelten im Raum und auf dem Papier; der Winkel ist der zum Mutterteilchen am Vertex.</translation>
    </message>
    <message>
        <source>Fates: decayed, left the chamber, or full: the track is cut where the event holds no more points.</source>
        <translation>Verbleib: zerfallen, hinaus aus der Kammer oder voll: die Spur endet, wo das Ereignis keine Punkte mehr fasst.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>gerade</translation>
    </message>
    <message>
        <source>Answers to the worksheets</source>
        <translation>Lösungen zu den Arbeitsblättern</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Einlaufendes Teilchen: %1</translation>
    </message>
    <message>
        <source>Seed %1, events 1 to %2</source>
        <translation>Startwert %1, Ereignisse 1 bis %2</translation>
    </message>
    <message>
        <source>no track is visible</source>
        <translation>keine Spur zu sehen</translation>
    </message>
</context>
<context>
    <name>velquon::Application</name>
    <message>
        <source>Nothing is measured: lay out a tool of the projector first.</source>
        <translation>Nichts ist gemessen: Legen Sie erst ein Werkzeug des Projektors an.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberController</name>
    <message>
        <source>Particle Chamber: %1</source>
        <translation>Teilchenkammer: %1</translation>
    </message>
    <message>
        <source>Projector: %1</source>
        <translation>Projektor: %1</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberView</name>
    <message>
        <source>The graphics driver did not hand the picture over.</source>
        <translation>Der Grafiktreiber hat das Bild nicht übergeben.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberWindow</name>
    <message>
        <source>Particle chamber</source>
        <translation>Teilchenkammer</translation>
    </message>
    <message>
        <source>Part of the chamber that is seen</source>
        <translation>Sichtbarer Teil der Kammer</translation>
    </message>
</context>
<context>
    <name>velquon::EventDocuments</name>
    <message>
        <source>It is a folder</source>
        <translation>Es ist ein Ordner</translation>
    </message>
    <message>
        <source>It is no regular file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Save Event</source>
        <translation>Ereignis speichern</translation>
    </message>
    <message>
        <source>Event files (*.cwd)</source>
        <translation>Ereignisdateien (*.cwd)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>Import PC Event</source>
        <translation>PC-Ereignis importieren</translation>
    </message>
    <message>
        <source>PC event files (*.cwd *.CWD *.txt *.TXT)</source>
        <translation>PC-Ereignisdateien (*.cwd *.CWD *.txt *.TXT)</translation>
    </message>
    <message>
        <source>Open Event</source>
        <translation>Ereignis öffnen</translation>
    </message>
    <message>
        <source>Bad data</source>
        <translation>Fehlerhafte Daten</translation>
    </message>
    <message>
        <source>Wrong format</source>
        <translation>Falsches Format</translation>
    </message>
    <message>
        <source>Sorry, Velquon can&apos;t read this file.</source>
        <translation>Velquon kann diese Datei leider nicht lesen.</translation>
    </message>
    <message>
        <source>You should know...</source>
        <translation>Das sollten Sie wissen...</translation>
    </message>
    <message>
        <source>The event was created with the chamber&apos;s magnetic field set to a negative value.  The controls and display will show the absolute value of the field.</source>
        <translation>Das Ereignis wurde mit einem negativen Wert des Magnetfelds der Kammer erzeugt. Regler und Anzeige zeigen den Betrag des Feldes.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Nicht geöffnet</translation>
    </message>
    <message>
        <source>Velquon can&apos;t open the file it was started with: %1.</source>
        <translation>Velquon kann die Datei nicht öffnen, mit der es gestartet wurde: %1.</translation>
    </message>
    <message>
        <source>It is no event file</source>
        <translation>Es ist keine Ereignisdatei</translation>
    </message>
</context>
<context>
    <name>velquon::EventExports</name>
    <message>
        <source>Export Points</source>
        <translation>Punkte exportieren</translation>
    </message>
    <message>
        <source>Tables of points (*.csv)</source>
        <translation>Punkttabellen (*.csv)</translation>
    </message>
    <message>
        <source>Export Record</source>
        <translation>Protokoll exportieren</translation>
    </message>
    <message>
        <source>Tables of particles (*.csv);;HepMC3 records (*.hepmc3)</source>
        <translation>Teilchentabellen (*.csv);;HepMC3-Protokolle (*.hepmc3)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht schreiben: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::EventMaker</name>
    <message>
        <source>line %1 of its output can&apos;t be understood</source>
        <translation>Zeile %1 seiner Ausgabe ist nicht zu verstehen</translation>
    </message>
    <message>
        <source>it was ended before it was done</source>
        <translation>es wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>it ended with the status %1</source>
        <translation>es endete mit dem Status %1</translation>
    </message>
</context>
<context>
    <name>velquon::EventTelling</name>
    <message>
        <source>Choose an event and press New Event (%1).</source>
        <translation>Wählen Sie ein Ereignis und drücken Sie Neues Ereignis (%1).</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Es gibt noch kein Ereignis.</translation>
    </message>
</context>
<context>
    <name>velquon::EventText</name>
    <message>
        <source>the %1 decayed</source>
        <comment>symbol of a particle</comment>
        <translation>das %1 zerfiel</translation>
    </message>
    <message>
        <source>the %1 converted to a pair</source>
        <comment>symbol of a particle</comment>
        <translation>das %1 wurde zu einem Paar</translation>
    </message>
    <message>
        <source>the %1 left the chamber at once</source>
        <comment>symbol of a particle</comment>
        <translation>das %1 verließ gleich die Kammer</translation>
    </message>
    <message>
        <source>the event holds no points of the %1</source>
        <comment>symbol of a particle</comment>
        <translation>das Ereignis enthält keine Punkte des %1</translation>
    </message>
    <message>
        <source>the %1 left the chamber</source>
        <comment>symbol of a particle</comment>
        <translation>das %1 verließ die Kammer</translation>
    </message>
    <message>
        <source>the %1 is not detected</source>
        <comment>symbol of a particle</comment>
        <translation>das %1 wird nicht nachgewiesen</translation>
    </message>
    <message numerus="yes">
        <source>%n %1 decayed</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 zerfiel</numerusform>
            <numerusform>%n %1 zerfielen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 converted to pairs</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 wurde zu einem Paar</numerusform>
            <numerusform>%n %1 wurden zu Paaren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber at once</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 verließ gleich die Kammer</numerusform>
            <numerusform>%n %1 verließen gleich die Kammer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the event holds no points of %n %1</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>das Ereignis enthält keine Punkte von %n %1</numerusform>
            <numerusform>das Ereignis enthält keine Punkte von %n %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 verließ die Kammer</numerusform>
            <numerusform>%n %1 verließen die Kammer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 are not detected</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 wird nicht nachgewiesen</numerusform>
            <numerusform>%n %1 werden nicht nachgewiesen</numerusform>
        </translation>
    </message>
    <message>
        <source>No visible track</source>
        <translation>Keine Spur zu sehen</translation>
    </message>
    <message>
        <source>No visible track: %1</source>
        <translation>Keine Spur zu sehen: %1</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>gerade</translation>
    </message>
    <message>
        <source>turns clockwise</source>
        <translation>dreht sich im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>turns anticlockwise</source>
        <translation>dreht sich gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>too short to tell which way it turns</source>
        <translation>zu kurz, um den Drehsinn zu erkennen</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>particle, colour</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>Ereignis %1</translation>
    </message>
    <message>
        <source>seed %1</source>
        <translation>Startwert %1</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n Punkt</numerusform>
            <numerusform>%n Punkte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks</source>
        <translation>
            <numerusform>%n Spur</numerusform>
            <numerusform>%n Spuren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks on the xy plane</source>
        <translation>
            <numerusform>%n Spur auf der xy-Ebene</numerusform>
            <numerusform>%n Spuren auf der xy-Ebene</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <comment>track: length, which way it turns</comment>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Not seen: %1</source>
        <translation>Nicht zu sehen: %1</translation>
    </message>
</context>
<context>
    <name>velquon::GuideContents</name>
    <message>
        <source>Contents of the guide</source>
        <translation>Inhalt der Anleitung</translation>
    </message>
</context>
<context>
    <name>velquon::GuideWindow</name>
    <message>
        <source>Velquon Guide</source>
        <translation>Velquon-Anleitung</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of this language; names the folder of its guide</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>Die vorige Seite</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>The page that was left by Back</source>
        <translation>Die Seite, die mit Zurück verlassen wurde</translation>
    </message>
    <message>
        <source>A−</source>
        <translation>A−</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinerer Text</translation>
    </message>
    <message>
        <source>A+</source>
        <translation>A+</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größerer Text</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Find in the guide (Ctrl+F)</source>
        <translation>In der Anleitung suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>In der Anleitung suchen</translation>
    </message>
    <message>
        <source>▲</source>
        <translation>▲</translation>
    </message>
    <message>
        <source>The place before</source>
        <translation>Die vorige Stelle</translation>
    </message>
    <message>
        <source>▼</source>
        <translation>▼</translation>
    </message>
    <message>
        <source>The next place</source>
        <translation>Die nächste Stelle</translation>
    </message>
    <message>
        <source>  %1 of %2  </source>
        <translation>  %1 von %2  </translation>
    </message>
    <message>
        <source>  not found  </source>
        <translation>  nicht gefunden  </translation>
    </message>
</context>
<context>
    <name>velquon::HistogramPanel</name>
    <message>
        <source>The library that draws histograms is not installed. The bins are in the table behind the other tab.</source>
        <translation>Die Bibliothek, die Histogramme zeichnet, ist nicht installiert. Die Klassen stehen in der Tabelle hinter dem anderen Reiter.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The measured quantity that is shown</source>
        <translation>Die gemessene Größe, die gezeigt wird</translation>
    </message>
    <message>
        <source>Number of bins</source>
        <translation>Anzahl der Klassen</translation>
    </message>
    <message>
        <source>Number of bins; at 0 it goes by the values</source>
        <translation>Anzahl der Klassen; bei 0 richtet sie sich nach den Werten</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>The curve that is fitted to the values</source>
        <translation>Die Kurve, die den Werten angepasst wird</translation>
    </message>
    <message>
        <source>No curve</source>
        <translation>Keine Kurve</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentiell</translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation>Gauß</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>Bins of the histogram</source>
        <translation>Klassen des Histogramms</translation>
    </message>
    <message>
        <source>&amp;Bins:</source>
        <translation>&amp;Klassen:</translation>
    </message>
    <message>
        <source>H&amp;istogram</source>
        <translation>H&amp;istogramm</translation>
    </message>
    <message>
        <source>B&amp;ins as a table</source>
        <translation>Klassen als &amp;Tabelle</translation>
    </message>
    <message>
        <source>There are no measurements yet.</source>
        <translation>Es gibt noch keine Messungen.</translation>
    </message>
    <message>
        <source>No values.</source>
        <translation>Keine Werte.</translation>
    </message>
    <message>
        <source>One value, %1.</source>
        <translation>Ein Wert, %1.</translation>
    </message>
    <message>
        <source>%1 values. Mean %2, spread %3.</source>
        <translation>%1 Werte. Mittelwert %2, Streuung %3.</translation>
    </message>
    <message>
        <source>Tracks that left the chamber, not in the bars: %1.</source>
        <translation>Spuren, die die Kammer verließen, nicht in den Balken: %1.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. Tracks that left count with their lengths so far.</source>
        <translation>Exponentiell: Zerfallslänge %1. Spuren, die hinausliefen, zählen mit ihrer bisherigen Länge.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The longest possible lengths are allowed for.</source>
        <translation>Exponentiell: Zerfallslänge %1. Die größtmöglichen Längen sind berücksichtigt.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The chamber&apos;s walls are not allowed for.</source>
        <translation>Exponentiell: Zerfallslänge %1. Die Wände der Kammer sind nicht berücksichtigt.</translation>
    </message>
    <message>
        <source>Gaussian: mean %1, standard deviation %2.</source>
        <translation>Gauß: Mittelwert %1, Standardabweichung %2.</translation>
    </message>
    <message>
        <source>No exponential fits these values.</source>
        <translation>Zu diesen Werten passt keine Exponentialfunktion.</translation>
    </message>
    <message>
        <source>A Gaussian needs two different values.</source>
        <translation>Eine Gaußkurve braucht zwei verschiedene Werte.</translation>
    </message>
    <message>
        <source>Number in a bin</source>
        <translation>Anzahl in einer Klasse</translation>
    </message>
    <message>
        <source>%1, %2 bins from %3 to %4; most values, %5, from %6 to %7. %8</source>
        <translation>%1, %2 Klassen von %3 bis %4; die meisten Werte, %5, von %6 bis %7. %8</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Curve in the middle</source>
        <translation>Kurve in der Mitte</translation>
    </message>
</context>
<context>
    <name>velquon::Legend</name>
    <message>
        <source>Decay of %1</source>
        <translation>Zerfall von %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>velquon::LegendStrip</name>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Legend: %1</source>
        <translation>Legende: %1</translation>
    </message>
</context>
<context>
    <name>velquon::MakeEventsDialog</name>
    <message>
        <source> kG</source>
        <translation> kG</translation>
    </message>
    <message>
        <source> cm</source>
        <translation> cm</translation>
    </message>
    <message>
        <source> MeV</source>
        <translation> MeV</translation>
    </message>
    <message>
        <source>&amp;Random seed</source>
        <translation>&amp;Zufälliger Startwert</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>E&amp;rzeugen</translation>
    </message>
    <message>
        <source>Make Events</source>
        <translation>Ereignisse erzeugen</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Keine Ereignisse</translation>
    </message>
    <message>
        <source>velquon-events made no events: %1.</source>
        <translation>velquon-events hat keine Ereignisse erzeugt: %1.</translation>
    </message>
    <message>
        <source>Decay length of the primary</source>
        <translation>Zerfallslänge des Primärteilchens</translation>
    </message>
    <message>
        <source>Momentum of the primary</source>
        <translation>Impuls des Primärteilchens</translation>
    </message>
    <message>
        <source>Transverse momentum of the primary</source>
        <translation>Transversalimpuls des Primärteilchens</translation>
    </message>
    <message>
        <source>Momentum of the first charged product</source>
        <translation>Impuls des ersten geladenen Zerfallsprodukts</translation>
    </message>
    <message>
        <source>Transverse momentum of the first charged product</source>
        <translation>Transversalimpuls des ersten geladenen Zerfallsprodukts</translation>
    </message>
    <message>
        <source>Number of visible tracks</source>
        <translation>Anzahl der sichtbaren Spuren</translation>
    </message>
    <message>
        <source>Other events each time; the seed is noted with them</source>
        <translation>Jedes Mal andere Ereignisse; der Startwert wird mit ihnen notiert</translation>
    </message>
    <message>
        <source>Events made</source>
        <translation>Erzeugte Ereignisse</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>&amp;Ereignis:</translation>
    </message>
    <message>
        <source>&amp;Number of events:</source>
        <translation>Anzahl der Ereig&amp;nisse:</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>&amp;Feld:</translation>
    </message>
    <message>
        <source>S&amp;ide of the chamber:</source>
        <translation>&amp;Seite der Kammer:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy:</source>
        <translation>&amp;Kinetische Energie:</translation>
    </message>
    <message>
        <source>&amp;Seed:</source>
        <translation>Start&amp;wert:</translation>
    </message>
    <message>
        <source>&amp;Quantity to note:</source>
        <translation>Zu notierende &amp;Größe:</translation>
    </message>
    <message>
        <source>The program velquon-events, which makes them, is not installed.</source>
        <translation>Das Programm velquon-events, das sie erzeugt, ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementColumns</name>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Field (kG)</source>
        <translation>Feld (kG)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>At most (cm)</source>
        <translation>Höchstens (cm)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Eine Standardabweichung</translation>
    </message>
    <message>
        <source>Whether the track decayed or left the chamber. One that left counts in the exponential with its length so far. Double-click or F2 to edit</source>
        <translation>Ob das Teilchen zerfiel oder die Kammer verließ. Eine Spur, die hinauslief, zählt in der Exponentialfunktion mit ihrer bisherigen Länge. Doppelklick oder F2 zum Ändern</translation>
    </message>
    <message>
        <source>The longest length that could have been seen in the chamber. Double-click or F2 to edit</source>
        <translation>Die größte Länge, die in der Kammer zu sehen gewesen wäre. Doppelklick oder F2 zum Ändern</translation>
    </message>
    <message>
        <source>Your own words. Double-click or F2 to edit</source>
        <translation>Ihre eigenen Worte. Doppelklick oder F2 zum Ändern</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>zerfallen</translation>
    </message>
    <message>
        <source>left</source>
        <translation>hinaus</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementFiles</name>
    <message>
        <source>it is no regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>Save Measurements</source>
        <translation>Messungen speichern</translation>
    </message>
    <message>
        <source>Tables of measurements (*.csv)</source>
        <translation>Messtabellen (*.csv)</translation>
    </message>
    <message>
        <source>Open Measurements</source>
        <translation>Messungen öffnen</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>There are measurements that are not saved.</source>
        <translation>Es gibt Messungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Nicht geöffnet</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht lesen: %2.</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1, line %2: %3.</source>
        <translation>Velquon kann die Datei %1 nicht lesen, Zeile %2: %3.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementsWindow</name>
    <message>
        <source>What became of the track</source>
        <translation>Was aus der Spur wurde</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Messungen</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Notieren</translation>
    </message>
    <message>
        <source>Note what the projector&apos;s tool reads (Ctrl+Return)</source>
        <translation>Notieren, was das Werkzeug des Projektors misst (Strg+Return)</translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation>Zeilen &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>O&amp;pen Measurements…</source>
        <translation>Messungen ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Dateien hinzufügen…</translation>
    </message>
    <message>
        <source>Append the rows of files, such as those of a class</source>
        <translation>Die Zeilen von Dateien anhängen, etwa die einer Klasse</translation>
    </message>
    <message>
        <source>&amp;Save Measurements…</source>
        <translation>Messungen &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Make Events…</source>
        <translation>&amp;Ereignisse erzeugen…</translation>
    </message>
    <message>
        <source>Have many events made and note one quantity of each</source>
        <translation>Viele Ereignisse erzeugen lassen und von jedem eine Größe notieren</translation>
    </message>
    <message>
        <source>Save P&amp;lot…</source>
        <translation>&amp;Grafik speichern…</translation>
    </message>
    <message>
        <source>Choose the rows to delete.</source>
        <translation>Wählen Sie die Zeilen, die gelöscht werden sollen.</translation>
    </message>
    <message>
        <source>Events made: %1. Rows noted: %2.</source>
        <translation>Erzeugte Ereignisse: %1. Notierte Zeilen: %2.</translation>
    </message>
    <message>
        <source>Save Plot</source>
        <translation>Grafik speichern</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;PDF documents (*.pdf)</source>
        <translation>PNG-Bilder (*.png);;PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>Choose the rows to copy.</source>
        <translation>Wählen Sie die Zeilen, die kopiert werden sollen.</translation>
    </message>
</context>
<context>
    <name>velquon::Model</name>
    <message>
        <source>Negative Pion</source>
        <translation>Negatives Pion</translation>
    </message>
    <message>
        <source>Positive Pion</source>
        <translation>Positives Pion</translation>
    </message>
    <message>
        <source>Neutral Pion</source>
        <translation>Neutrales Pion</translation>
    </message>
    <message>
        <source>Negative Muon</source>
        <translation>Negatives Myon</translation>
    </message>
    <message>
        <source>Positive Muon</source>
        <translation>Positives Myon</translation>
    </message>
    <message>
        <source>Lambda</source>
        <translation>Lambda</translation>
    </message>
    <message>
        <source>Positive pion</source>
        <translation>Positives Pion</translation>
    </message>
    <message>
        <source>Negative pion</source>
        <translation>Negatives Pion</translation>
    </message>
    <message>
        <source>Neutral pion</source>
        <translation>Neutrales Pion</translation>
    </message>
    <message>
        <source>Negative muon</source>
        <translation>Negatives Myon</translation>
    </message>
    <message>
        <source>Positive muon</source>
        <translation>Positives Myon</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Elektron</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positron</translation>
    </message>
    <message>
        <source>Neutrino</source>
        <translation>Neutrino</translation>
    </message>
    <message>
        <source>Antineutrino</source>
        <translation>Antineutrino</translation>
    </message>
    <message>
        <source>Neutrino and antineutrino</source>
        <translation>Neutrino und Antineutrino</translation>
    </message>
    <message>
        <source>Photon</source>
        <translation>Photon</translation>
    </message>
    <message>
        <source>Proton</source>
        <translation>Proton</translation>
    </message>
    <message>
        <source>Neutron</source>
        <translation>Neutron</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>zerfallen</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>Paar</translation>
    </message>
    <message>
        <source>left</source>
        <translation>hinaus</translation>
    </message>
    <message>
        <source>full</source>
        <translation>voll</translation>
    </message>
    <message>
        <source>escaped</source>
        <translation>entkommen</translation>
    </message>
    <message>
        <source>undetected</source>
        <translation>unbemerkt</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>die Zeile ist zu lang</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>es sind zu viele Zeilen</translation>
    </message>
    <message>
        <source>there are too many fields</source>
        <translation>es sind zu viele Felder</translation>
    </message>
    <message>
        <source>a carriage return stands alone</source>
        <translation>ein Wagenrücklauf steht allein</translation>
    </message>
    <message>
        <source>something follows a closing quotation mark</source>
        <translation>auf ein schließendes Anführungszeichen folgt noch etwas</translation>
    </message>
    <message>
        <source>a quotation mark stands inside a field</source>
        <translation>in einem Feld steht ein Anführungszeichen</translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>ein Anführungszeichen ist nicht geschlossen</translation>
    </message>
    <message>
        <source>it is not text in UTF-8</source>
        <translation>es ist kein Text in UTF-8</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>sie enthält ein Nullbyte</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>converted to a pair</source>
        <translation>in ein Paar umgewandelt</translation>
    </message>
    <message>
        <source>left the chamber</source>
        <translation>hat die Kammer verlassen</translation>
    </message>
    <message>
        <source>cut: the event holds no more points</source>
        <translation>abgeschnitten: das Ereignis fasst keine Punkte mehr</translation>
    </message>
    <message>
        <source>left unseen</source>
        <translation>ungesehen hinaus</translation>
    </message>
    <message>
        <source>not detected</source>
        <translation>nicht nachgewiesen</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
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
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>it has %1 fields instead of %2</source>
        <translation>sie hat %1 Felder statt %2</translation>
    </message>
    <message>
        <source>the row&apos;s number is none: &quot;%1&quot;</source>
        <translation>die Nummer der Zeile ist keine: „%1“</translation>
    </message>
    <message>
        <source>no quantity has the name &quot;%1&quot;</source>
        <translation>keine Größe heißt „%1“</translation>
    </message>
    <message>
        <source>no plane has the name &quot;%1&quot;</source>
        <translation>keine Ebene heißt „%1“</translation>
    </message>
    <message>
        <source>the value is no finite number: &quot;%1&quot;</source>
        <translation>der Wert ist keine endliche Zahl: „%1“</translation>
    </message>
    <message>
        <source>the error is no finite number above or at 0: &quot;%1&quot;</source>
        <translation>der Fehler ist keine endliche Zahl ab 0: „%1“</translation>
    </message>
    <message>
        <source>the quantity has another unit than &quot;%1&quot;</source>
        <translation>die Größe hat eine andere Einheit als „%1“</translation>
    </message>
    <message>
        <source>the field is no finite number: &quot;%1&quot;</source>
        <translation>das Feld ist keine endliche Zahl: „%1“</translation>
    </message>
    <message>
        <source>no ending of a track has the name &quot;%1&quot;</source>
        <translation>kein Ende einer Spur heißt „%1“</translation>
    </message>
    <message>
        <source>the longest length is no finite number above 0: &quot;%1&quot;</source>
        <translation>die größte Länge ist keine endliche Zahl über 0: „%1“</translation>
    </message>
    <message>
        <source>these are not the names of a table of measurements</source>
        <translation>das sind nicht die Spaltennamen einer Messtabelle</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>transverse momentum</source>
        <translation>Transversalimpuls</translation>
    </message>
    <message>
        <source>sagitta</source>
        <translation>Pfeilhöhe</translation>
    </message>
    <message>
        <source>chord</source>
        <translation>Sehne</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>decay length</source>
        <translation>Zerfallslänge</translation>
    </message>
    <message>
        <source>momentum</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>a finite field in kG</source>
        <translation>ein endliches Feld in kG</translation>
    </message>
    <message>
        <source>a finite side in cm above 0</source>
        <translation>eine endliche Seite in cm über 0</translation>
    </message>
    <message>
        <source>a finite energy in MeV above 0</source>
        <translation>eine endliche Energie in MeV über 0</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Untitled Type %1 Decay</source>
        <translation>Unbenannter Zerfall Typ %1</translation>
    </message>
</context>
<context>
    <name>velquon::PictureFiles</name>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>%1 Chamber</source>
        <translation>%1 Kammer</translation>
    </message>
    <message>
        <source>%1 Projector</source>
        <translation>%1 Projektor</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>%1-Dateien (*.%2)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>The graphics driver makes no picture of %1 × %2 pixels. Choose a smaller size.</source>
        <translation>Der Grafiktreiber macht kein Bild von %1 × %2 Pixeln. Wählen Sie eine kleinere Größe.</translation>
    </message>
</context>
<context>
    <name>velquon::PicturePanel</name>
    <message>
        <source>PNG: pixels, as on the screen</source>
        <translation>PNG: Pixel, wie auf dem Bildschirm</translation>
    </message>
    <message>
        <source>SVG: lines, black on white</source>
        <translation>SVG: Linien, schwarz auf weiß</translation>
    </message>
    <message>
        <source>PDF: lines, black on white</source>
        <translation>PDF: Linien, schwarz auf weiß</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>With the &amp;values of the event</source>
        <translation>Mit den &amp;Werten des Ereignisses</translation>
    </message>
    <message>
        <source>With a &amp;legend below the picture</source>
        <translation>Mit &amp;Legende unter dem Bild</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>times the size on the screen</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>%1 × %2 points</source>
        <translation>%1 × %2 Punkte</translation>
    </message>
</context>
<context>
    <name>velquon::PrintPanel</name>
    <message>
        <source>Looking for printers… The page can be saved as a PDF file.</source>
        <translation>Drucker werden gesucht… Die Seite kann als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pier:</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Als P&amp;DF speichern…</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>D&amp;rucken…</translation>
    </message>
    <message>
        <source>The page can be printed or saved as a PDF file.</source>
        <translation>Die Seite kann gedruckt oder als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. The page can be saved as a PDF file.</source>
        <translation>Auf diesem Rechner ist kein Drucker eingerichtet. Die Seite kann als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>No print server answers. The page can be saved as a PDF file.</source>
        <translation>Kein Druckserver antwortet. Die Seite kann als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>Printers cannot be looked for, because the command lpstat is not installed (package cups-client). The page can be saved as a PDF file.</source>
        <translation>Drucker können nicht gesucht werden, weil der Befehl lpstat nicht installiert ist (Paket cups-client). Die Seite kann als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nicht gedruckt</translation>
    </message>
    <message>
        <source>The printer %1 did not take the page.</source>
        <translation>Der Drucker %1 hat die Seite nicht angenommen.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation>die Seite kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht schreiben: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::ProjectionFoot</name>
    <message>
        <source>%1 plane, zoom %2</source>
        <translation>%1-Ebene, Zoom %2</translation>
    </message>
    <message>
        <source>tape %1</source>
        <translation>Maßband %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
<context>
    <name>velquon::ProjectorWindow</name>
    <message>
        <source>Projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>Part of the projection that is seen</source>
        <translation>Sichtbarer Teil der Projektion</translation>
    </message>
</context>
<context>
    <name>velquon::Readings</name>
    <message>
        <source>Set three points or more along a track.</source>
        <translation>Drei oder mehr Punkte entlang einer Spur setzen.</translation>
    </message>
    <message>
        <source>Set two more points along the track.</source>
        <translation>Noch zwei Punkte entlang der Spur setzen.</translation>
    </message>
    <message>
        <source>Set one more point along the track.</source>
        <translation>Noch einen Punkt entlang der Spur setzen.</translation>
    </message>
    <message>
        <source>The points have to lie apart.</source>
        <translation>Die Punkte müssen auseinanderliegen.</translation>
    </message>
    <message>
        <source>Set the vertex.</source>
        <translation>Den Scheitel setzen.</translation>
    </message>
    <message>
        <source>Set a point of the first arm.</source>
        <translation>Einen Punkt des ersten Schenkels setzen.</translation>
    </message>
    <message>
        <source>Set a point of the second arm.</source>
        <translation>Einen Punkt des zweiten Schenkels setzen.</translation>
    </message>
    <message>
        <source>Set both ends of the tape.</source>
        <translation>Beide Enden des Maßbands setzen.</translation>
    </message>
    <message>
        <source>Take hold of the picture.</source>
        <translation>Das Bild greifen.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>gerade</translation>
    </message>
</context>
<context>
    <name>velquon::RecordTree</name>
    <message>
        <source>Particle</source>
        <translation>Teilchen</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Verbleib</translation>
    </message>
    <message>
        <source>p (MeV/c)</source>
        <translation>p (MeV/c)</translation>
    </message>
    <message>
        <source>Transverse p (MeV/c)</source>
        <translation>p quer (MeV/c)</translation>
    </message>
    <message>
        <source>Radius (cm)</source>
        <translation>Radius (cm)</translation>
    </message>
    <message>
        <source>Kinetic energy (MeV)</source>
        <translation>Kinetische Energie (MeV)</translation>
    </message>
    <message>
        <source>Flight (cm)</source>
        <translation>Flugstrecke (cm)</translation>
    </message>
    <message>
        <source>Mean decay length (cm)</source>
        <translation>Mittlere Zerfallslänge (cm)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
</context>
<context>
    <name>velquon::RecordWindow</name>
    <message>
        <source>H&amp;ide answers</source>
        <translation>&amp;Lösungen verbergen</translation>
    </message>
    <message>
        <source>Re&amp;veal</source>
        <translation>&amp;Aufdecken</translation>
    </message>
    <message>
        <source>Event Record</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <source>Particles of the event</source>
        <translation>Teilchen des Ereignisses</translation>
    </message>
    <message>
        <source>Show only what is seen of an event, to measure it first</source>
        <translation>Nur zeigen, was von einem Ereignis zu sehen ist, um erst zu messen</translation>
    </message>
    <message>
        <source>Show what happened in this event</source>
        <translation>Zeigen, was in diesem Ereignis geschah</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Es gibt noch kein Ereignis.</translation>
    </message>
    <message>
        <source>This event comes from a file, which does not tell what happened in it. These are its tracks.</source>
        <translation>Dieses Ereignis stammt aus einer Datei, die nicht sagt, was darin geschah. Das sind seine Spuren.</translation>
    </message>
    <message>
        <source>These tracks are seen. Reveal tells what happened.</source>
        <translation>Diese Spuren sind zu sehen. Aufdecken sagt, was geschah.</translation>
    </message>
    <message>
        <source>Made with %1. Choose rows to mark their tracks in the other windows.</source>
        <translation>Erzeugt mit %1. Wählen Sie Zeilen, um ihre Spuren in den anderen Fenstern hervorzuheben.</translation>
    </message>
</context>
<context>
    <name>velquon::ShortcutsWindow</name>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>To the next control, to the one before</source>
        <translation>Zum nächsten, zum vorigen Bedienelement</translation>
    </message>
    <message>
        <source>Alt with an underlined letter</source>
        <translation>Alt mit einem unterstrichenen Buchstaben</translation>
    </message>
    <message>
        <source>Open the menu, press the button</source>
        <translation>Das Menü öffnen, den Knopf drücken</translation>
    </message>
    <message>
        <source>Chamber</source>
        <translation>Kammer</translation>
    </message>
    <message>
        <source>Escape, Space</source>
        <translation>Escape, Leertaste</translation>
    </message>
    <message>
        <source>Stop the turntable</source>
        <translation>Die Drehung anhalten</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>End a replay</source>
        <translation>Eine Wiedergabe beenden</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>By a tenth of a tick</source>
        <translation>Um ein Zehntel eines Teilstrichs</translation>
    </message>
    <message>
        <source>Page Up, Page Down</source>
        <translation>Bild auf, Bild ab</translation>
    </message>
    <message>
        <source>To the next tick</source>
        <translation>Zum nächsten Teilstrich</translation>
    </message>
    <message>
        <source>Return on the label</source>
        <translation>Return auf der Beschriftung</translation>
    </message>
    <message>
        <source>Type a value</source>
        <translation>Einen Wert eingeben</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>T, G, C, A</source>
        <translation>T, G, C, A</translation>
    </message>
    <message>
        <source>The tools Tape, Grab, Curve, Angle</source>
        <translation>Die Werkzeuge Maßband, Greifen, Kurve, Winkel</translation>
    </message>
    <message>
        <source>Z, Y, X</source>
        <translation>Z, Y, X</translation>
    </message>
    <message>
        <source>The planes xy, xz, yz</source>
        <translation>Die Ebenen xy, xz, yz</translation>
    </message>
    <message>
        <source>1, 2, 3</source>
        <translation>1, 2, 3</translation>
    </message>
    <message>
        <source>The zooms</source>
        <translation>Die Zoomstufen</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Snap on and off</source>
        <translation>Einrasten ein und aus</translation>
    </message>
    <message>
        <source>Projector&apos;s picture</source>
        <translation>Bild des Projektors</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Pfeiltasten, mit Umschalt</translation>
    </message>
    <message>
        <source>Move the cross by one pixel, by ten</source>
        <translation>Das Kreuz um ein Pixel, um zehn bewegen</translation>
    </message>
    <message>
        <source>Return, Space</source>
        <translation>Return, Leertaste</translation>
    </message>
    <message>
        <source>Set a point, take hold, let go</source>
        <translation>Einen Punkt setzen, anfassen, loslassen</translation>
    </message>
    <message>
        <source>Delete, Backspace</source>
        <translation>Entf, Rücktaste</translation>
    </message>
    <message>
        <source>Take the last point away</source>
        <translation>Den letzten Punkt wegnehmen</translation>
    </message>
    <message>
        <source>Give up, clear the points, hide the cross</source>
        <translation>Aufgeben, die Punkte löschen, das Kreuz verbergen</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Strg+Return</translation>
    </message>
    <message>
        <source>Record what is measured</source>
        <translation>Das Gemessene notieren</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Ctrl+F, F3, Shift+F3</source>
        <translation>Strg+F, F3, Umschalt+F3</translation>
    </message>
    <message>
        <source>Find, the next place, the place before</source>
        <translation>Suchen, nächste Stelle, vorige Stelle</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+0</source>
        <translation>Strg++, Strg+-, Strg+0</translation>
    </message>
    <message>
        <source>Larger, smaller, usual text</source>
        <translation>Größerer, kleinerer, üblicher Text</translation>
    </message>
    <message>
        <source>Alt+Left, Alt+Right</source>
        <translation>Alt+Links, Alt+Rechts</translation>
    </message>
    <message>
        <source>A page back, a page forward</source>
        <translation>Eine Seite zurück, eine Seite vor</translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>Menü %1</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was es tut</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>velquon::TrackController</name>
    <message>
        <source>De&amp;activate</source>
        <translation>De&amp;aktivieren</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Aktivieren</translation>
    </message>
</context>
<context>
    <name>velquon::TrackPanel</name>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>The particle&apos;s track. Drag with the mouse to measure it.</source>
        <translation>Die Spur des Teilchens. Zum Messen mit der Maus ziehen.</translation>
    </message>
    <message>
        <source>Part of the track that is seen</source>
        <translation>Sichtbarer Teil der Spur</translation>
    </message>
    <message>
        <source>units</source>
        <translation>Einheiten</translation>
    </message>
</context>
<context>
    <name>velquon::TrackStatus</name>
    <message>
        <source>The Track window is active: Track &gt; Deactivate gives the menus back.</source>
        <translation>Das Spurfenster ist aktiv: Spur &gt; Deaktivieren gibt die Menüs zurück.</translation>
    </message>
</context>
<context>
    <name>velquon::TrackWindow</name>
    <message>
        <source>Live Track</source>
        <translation>Live-Spur</translation>
    </message>
</context>
<context>
    <name>velquon::ValueEditor</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 bis %2 %3</translation>
    </message>
</context>
<context>
    <name>velquon::ValueLabel</name>
    <message>
        <source>Double click, or Return, to type a value</source>
        <translation>Doppelklick oder Return, um einen Wert einzugeben</translation>
    </message>
</context>
<context>
    <name>velquon::Worksheet</name>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Save Worksheets</source>
        <translation>Arbeitsblätter speichern</translation>
    </message>
    <message>
        <source>Worksheets</source>
        <translation>Arbeitsblätter</translation>
    </message>
    <message>
        <source>Save Answers</source>
        <translation>Lösungen speichern</translation>
    </message>
    <message>
        <source>Worksheet Answers</source>
        <translation>Lösungen der Arbeitsblätter</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>The worksheets and their answers need files of two names.</source>
        <translation>Die Arbeitsblätter und ihre Lösungen brauchen Dateien mit zwei Namen.</translation>
    </message>
    <message>
        <source>Making worksheets…</source>
        <translation>Arbeitsblätter werden erzeugt…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print Worksheets</source>
        <translation>Arbeitsblätter drucken</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon kann die Datei %1 nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>Worksheet %1</source>
        <translation>Arbeitsblatt %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Einlaufendes Teilchen: %1</translation>
    </message>
    <message>
        <source>Seed %1, event %2</source>
        <translation>Startwert %1, Ereignis %2</translation>
    </message>
    <message>
        <source>No magnetic field</source>
        <translation>Kein Magnetfeld</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, out of the paper</source>
        <translation>Magnetfeld von %1 kG, aus dem Papier heraus</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, into the paper</source>
        <translation>Magnetfeld von %1 kG, in das Papier hinein</translation>
    </message>
    <message>
        <source>No track is visible in this event.</source>
        <translation>In diesem Ereignis ist keine Spur zu sehen.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>MeV/c</source>
        <translation>MeV/c</translation>
    </message>
    <message>
        <source>Angle at its vertex</source>
        <translation>Winkel am Vertex</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Ruler in cm of the chamber. Printed at full size, 1 mm on the paper is %1 cm.</source>
        <translation>Lineal in cm der Kammer. In Originalgröße gedruckt ist 1 mm auf dem Papier %1 cm.</translation>
    </message>
</context>
<context>
    <name>velquon::WorksheetPanel</name>
    <message>
        <source>Print Worksheets</source>
        <translation>Arbeitsblätter drucken</translation>
    </message>
    <message>
        <source>With an &amp;answer key in a file of its own</source>
        <translation>Mit &amp;Lösungen in einer eigenen Datei</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>&amp;Ereignis:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Magnetic &amp;field, kG:</source>
        <translation>Magnet&amp;feld, kG:</translation>
    </message>
    <message>
        <source>&amp;Side of the chamber, cm:</source>
        <translation>&amp;Seite der Kammer, cm:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy, MeV:</source>
        <translation>&amp;Kinetische Energie, MeV:</translation>
    </message>
    <message>
        <source>&amp;Number of worksheets:</source>
        <translation>A&amp;nzahl der Arbeitsblätter:</translation>
    </message>
    <message>
        <source>See&amp;d:</source>
        <translation>Start&amp;wert:</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF…</source>
        <translation>Als PDF spei&amp;chern…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2.</source>
        <translation>„%1“ ist ungültig; nötig ist %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from 0 to 4294967295.</source>
        <translation>„%1“ ist keine ganze Zahl von 0 bis 4294967295.</translation>
    </message>
</context>
</TS>
