<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ChamberWindow</name>
    <message>
        <source>Particle Chamber: Empty</source>
        <translation>Camera a particelle: Vuota</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>&amp;Intervallo:</translation>
    </message>
    <message>
        <source>Energy range</source>
        <translation>Intervallo di energia</translation>
    </message>
    <message>
        <source>Range of the energy slider</source>
        <translation>Intervallo del cursore dell’energia</translation>
    </message>
    <message>
        <source>1000 to 10000 MeV</source>
        <translation>da 1000 a 10000 MeV</translation>
    </message>
    <message>
        <source>100 to 1000 MeV</source>
        <translation>da 100 a 1000 MeV</translation>
    </message>
    <message>
        <source>10 to 100 MeV</source>
        <translation>da 10 a 100 MeV</translation>
    </message>
    <message>
        <source>1 to 10 MeV</source>
        <translation>da 1 a 10 MeV</translation>
    </message>
    <message>
        <source>0.1 to 1 MeV</source>
        <translation>da 0.1 a 1 MeV</translation>
    </message>
    <message>
        <source>0.01 to 0.1 MeV</source>
        <translation>da 0.01 a 0.1 MeV</translation>
    </message>
    <message>
        <source>0 to 0.01 MeV</source>
        <translation>da 0 a 0.01 MeV</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Campo magnetico</translation>
    </message>
    <message>
        <source>Magnetic field along z for the next event</source>
        <translation>Campo magnetico lungo z per il prossimo evento</translation>
    </message>
    <message>
        <source>Chamber side</source>
        <translation>Lato della camera</translation>
    </message>
    <message>
        <source>Side of the cubic chamber for the next event</source>
        <translation>Lato della camera cubica per il prossimo evento</translation>
    </message>
    <message>
        <source>Kinetic energy</source>
        <translation>Energia cinetica</translation>
    </message>
    <message>
        <source>Kinetic energy of the incoming particle for the next event</source>
        <translation>Energia cinetica della particella incidente per il prossimo evento</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra degli strumenti</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Azione</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Evento</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Impostazioni</translation>
    </message>
    <message>
        <source>Rotation A&amp;xis</source>
        <translation>Asse di rota&amp;zione</translation>
    </message>
    <message>
        <source>Rotation &amp;Rate</source>
        <translation>V&amp;elocità di rotazione</translation>
    </message>
    <message>
        <source>&amp;Window in Front</source>
        <translation>&amp;Finestra davanti</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Traccia</translation>
    </message>
    <message>
        <source>&amp;Particle</source>
        <translation>&amp;Particella</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Verso</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>Veloci&amp;tà</translation>
    </message>
    <message>
        <source>Scree&amp;n Speed</source>
        <translation>Velocità dello &amp;schermo</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fi&amp;nestra</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;uto</translation>
    </message>
    <message>
        <source>&amp;Open Event…</source>
        <translation>&amp;Apri evento…</translation>
    </message>
    <message>
        <source>&amp;Import PC Event…</source>
        <translation>&amp;Importa evento PC…</translation>
    </message>
    <message>
        <source>&amp;Save Event…</source>
        <translation>&amp;Salva evento…</translation>
    </message>
    <message>
        <source>E&amp;xport Points…</source>
        <translation>Esporta &amp;punti…</translation>
    </message>
    <message>
        <source>Export &amp;Record…</source>
        <translation>Esporta &amp;resoconto…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>S&amp;tampa…</translation>
    </message>
    <message>
        <source>Print &amp;Worksheets…</source>
        <translation>Stampa sc&amp;hede…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;New Event</source>
        <translation>&amp;Nuovo evento</translation>
    </message>
    <message>
        <source>Make an event of the chosen kind with the values of the sliders</source>
        <translation>Crea un evento del tipo scelto con i valori dei cursori</translation>
    </message>
    <message>
        <source>&amp;Previous Event</source>
        <translation>Evento &amp;precedente</translation>
    </message>
    <message>
        <source>Show the event that was made or opened before this one</source>
        <translation>Mostra l’evento creato o aperto prima di questo</translation>
    </message>
    <message>
        <source>Ne&amp;xt Event</source>
        <translation>Evento &amp;successivo</translation>
    </message>
    <message>
        <source>Show the event that was made or opened after this one</source>
        <translation>Mostra l’evento creato o aperto dopo questo</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Show the event again, point by point</source>
        <translation>Mostra di nuovo l’evento, punto per punto</translation>
    </message>
    <message>
        <source>Ro&amp;tate</source>
        <translation>Ruo&amp;ta</translation>
    </message>
    <message>
        <source>Turn the chamber about its rotation axis; a click in the chamber stops it</source>
        <translation>Ruota la camera intorno al suo asse; un clic nella camera la ferma</translation>
    </message>
    <message>
        <source>Re&amp;verse Rotation</source>
        <translation>Ruota al &amp;contrario</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation</source>
        <translation>&amp;Orientamento iniziale</translation>
    </message>
    <message>
        <source>Bring the chamber back to its resting position</source>
        <translation>Riporta la camera alla posizione di riposo</translation>
    </message>
    <message>
        <source>&amp;Negative Pion π⁻</source>
        <translation>Pione &amp;negativo π⁻</translation>
    </message>
    <message>
        <source>&amp;Positive Pion π⁺</source>
        <translation>Pione &amp;positivo π⁺</translation>
    </message>
    <message>
        <source>Neutral P&amp;ion π⁰</source>
        <translation>P&amp;ione neutro π⁰</translation>
    </message>
    <message>
        <source>Negative &amp;Muon μ⁻</source>
        <translation>&amp;Muone negativo μ⁻</translation>
    </message>
    <message>
        <source>Positive M&amp;uon μ⁺</source>
        <translation>M&amp;uone positivo μ⁺</translation>
    </message>
    <message>
        <source>&amp;Lambda Λ</source>
        <translation>&amp;Lambda Λ</translation>
    </message>
    <message>
        <source>Kind of the next event</source>
        <translation>Tipo del prossimo evento</translation>
    </message>
    <message>
        <source>Show &amp;Axes</source>
        <translation>Mostra gli &amp;assi</translation>
    </message>
    <message>
        <source>Show &amp;Values</source>
        <translation>Mostra i &amp;valori</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation for Each Event</source>
        <translation>&amp;Orientamento iniziale a ogni evento</translation>
    </message>
    <message>
        <source>&amp;Slow Motion</source>
        <translation>&amp;Rallentatore</translation>
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
        <translation>Più &amp;veloce</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Normale</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Più &amp;lenta</translation>
    </message>
    <message>
        <source>&amp;Chamber</source>
        <translation>&amp;Camera</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Proiettore</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Attiva</translation>
    </message>
    <message>
        <source>&amp;Inject Particle</source>
        <translation>&amp;Inietta particella</translation>
    </message>
    <message>
        <source>&amp;Clear Screen</source>
        <translation>&amp;Cancella schermo</translation>
    </message>
    <message>
        <source>&amp;Electron</source>
        <translation>&amp;Elettrone</translation>
    </message>
    <message>
        <source>&amp;Positron</source>
        <translation>&amp;Positrone</translation>
    </message>
    <message>
        <source>&amp;Left to Right</source>
        <translation>Da &amp;sinistra a destra</translation>
    </message>
    <message>
        <source>&amp;Right to Left</source>
        <translation>Da &amp;destra a sinistra</translation>
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
        <translation>&amp;Resoconto dell’evento</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Misure</translation>
    </message>
    <message>
        <source>Velquon &amp;Guide</source>
        <translation>&amp;Guida di Velquon</translation>
    </message>
    <message>
        <source>&amp;About Velquon</source>
        <translation>&amp;Informazioni su Velquon</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Save Pic&amp;ture…</source>
        <translation>Salva imma&amp;gine…</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>&amp;Copia immagine</translation>
    </message>
    <message>
        <source>Prese&amp;ntation</source>
        <translation>Pre&amp;sentazione</translation>
    </message>
    <message>
        <source>Show the view in front over the whole screen; Escape ends it</source>
        <translation>Mostra la vista davanti su tutto lo schermo; Esc termina</translation>
    </message>
    <message>
        <source>Show &amp;Legend</source>
        <translation>Mostra la &amp;legenda</translation>
    </message>
    <message>
        <source>Axis L&amp;etters</source>
        <translation>Lettere de&amp;gli assi</translation>
    </message>
    <message>
        <source>&amp;Field Arrow</source>
        <translation>Freccia del &amp;campo</translation>
    </message>
    <message>
        <source>&amp;Colored Tracks in Projector</source>
        <translation>&amp;Tracce colorate nel proiettore</translation>
    </message>
</context>
<context>
    <name>ProjectorWindow</name>
    <message>
        <source>Projector: Empty</source>
        <translation>Proiettore: Vuota</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Piano</translation>
    </message>
    <message>
        <source>Project onto the xy plane, seen along z (Z)</source>
        <translation>Proietta sul piano xy, visto lungo z (Z)</translation>
    </message>
    <message>
        <source>xy plane</source>
        <translation>piano xy</translation>
    </message>
    <message>
        <source>Project onto the xz plane, seen along y (Y)</source>
        <translation>Proietta sul piano xz, visto lungo y (Y)</translation>
    </message>
    <message>
        <source>xz plane</source>
        <translation>piano xz</translation>
    </message>
    <message>
        <source>Project onto the yz plane, seen along x (X)</source>
        <translation>Proietta sul piano yz, visto lungo x (X)</translation>
    </message>
    <message>
        <source>yz plane</source>
        <translation>piano yz</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show the whole chamber (1)</source>
        <translation>Mostra tutta la camera (1)</translation>
    </message>
    <message>
        <source>Zoom 1</source>
        <translation>Zoom 1</translation>
    </message>
    <message>
        <source>Enlarge two times (2)</source>
        <translation>Ingrandisci due volte (2)</translation>
    </message>
    <message>
        <source>Zoom 2</source>
        <translation>Zoom 2</translation>
    </message>
    <message>
        <source>Enlarge three times (3)</source>
        <translation>Ingrandisci tre volte (3)</translation>
    </message>
    <message>
        <source>Zoom 3</source>
        <translation>Zoom 3</translation>
    </message>
    <message>
        <source>Measure a distance: drag from one end to the other (T)</source>
        <translation>Misura una distanza: trascina da un estremo all’altro (T)</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Metro</translation>
    </message>
    <message>
        <source>Drag the picture about (G)</source>
        <translation>Sposta l’immagine (G)</translation>
    </message>
    <message>
        <source>Grab</source>
        <translation>Afferra</translation>
    </message>
    <message>
        <source>Measure a circle: set three points or more along a track (C)</source>
        <translation>Misura un cerchio: metti tre o più punti lungo una traccia (C)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Measure an angle: set its vertex, then a point of each arm (A)</source>
        <translation>Misura un angolo: metti il vertice, poi un punto di ogni lato (A)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Set the points of curve and angle onto a near point of the event (S)</source>
        <translation>Metti i punti di curva e angolo su un punto vicino dell’evento (S)</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Aggancia</translation>
    </message>
    <message>
        <source>Put what is measured into the list of measurements (Ctrl+Return)</source>
        <translation>Metti ciò che è misurato nell’elenco delle misure (Ctrl+Invio)</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Annota</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 esiste già.
Vuoi sostituirlo?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Cartella</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>About Velquon</source>
        <translation>Informazioni su Velquon</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Particle decays in a detector chamber in a magnetic field, made by chance and shown in space and in projection.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Decadimenti di particelle in una camera rivelatrice in un campo magnetico, creati a caso e mostrati nello spazio e in proiezione.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>track_panel</name>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Strength of the magnetic field; below zero it points the other way</source>
        <translation>Intensità del campo magnetico; sotto lo zero punta dall’altra parte</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Campo magnetico</translation>
    </message>
    <message>
        <source>field</source>
        <translation>campo</translation>
    </message>
    <message>
        <source>The field that the particle moves in</source>
        <translation>Il campo in cui si muove la particella</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Metro</translation>
    </message>
    <message>
        <source>Send a particle into the field</source>
        <translation>Invia una particella nel campo</translation>
    </message>
    <message>
        <source>Inject</source>
        <translation>Inietta</translation>
    </message>
    <message>
        <source>Clear the track; a particle that moves goes on</source>
        <translation>Cancella la traccia; una particella in volo prosegue</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>In the field B₀ a particle of speed v runs on a circle with a radius of 2 units of the tape</source>
        <translation>Nel campo B₀ una particella di velocità v percorre un cerchio con un raggio di 2 unità del metro</translation>
    </message>
    <message>
        <source>Length measured by dragging in the picture</source>
        <translation>Lunghezza misurata trascinando nell’immagine</translation>
    </message>
    <message>
        <source>A unit is ten points of the picture</source>
        <translation>Un’unità è dieci punti dell’immagine</translation>
    </message>
    <message>
        <source>Particle:</source>
        <translation>Particella:</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Particella</translation>
    </message>
    <message>
        <source>The particle that is sent into the field</source>
        <translation>La particella inviata nel campo</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Elettrone</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positrone</translation>
    </message>
    <message>
        <source>Direction:</source>
        <translation>Verso:</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Verso</translation>
    </message>
    <message>
        <source>The way that the particle comes</source>
        <translation>Il verso in cui arriva la particella</translation>
    </message>
    <message>
        <source>Left to Right</source>
        <translation>Verso destra</translation>
    </message>
    <message>
        <source>Right to Left</source>
        <translation>Verso sinistra</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Velocità:</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>With v a particle goes one unit of the tape in ten steps</source>
        <translation>Con v una particella percorre un’unità del metro in dieci passi</translation>
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
        <translation>Foglio</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Particella</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>p</source>
        <translation>p</translation>
    </message>
    <message>
        <source>p trans.</source>
        <translation>p trasv.</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lungh.</translation>
    </message>
    <message>
        <source>on paper</source>
        <translation>su carta</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Sorte</translation>
    </message>
    <message>
        <source>p trans. is the momentum across the field: 0.3 B R for B in kG and the radius R in cm.</source>
        <translation>p trasv. è la quantità di moto trasversale al campo: 0.3 B R con B in kG e il raggio R in cm.</translation>
    </message>
    <message>
        <source>Lengths and angles are given in space and on the paper; the angle is that to the parent at the vertex.</source>
        <translation>Lunghezze e angoli nello spazio e sulla carta; l’angolo è quello con la particella madre al vertice.</translation>
    </message>
    <message>
        <source>Fates: decayed, left the chamber, or full: the track is cut where the event holds no more points.</source>
        <translation>Sorte: decaduta, uscita (dalla camera) o pieno: traccia tagliata, l’evento non contiene altri punti.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>diritta</translation>
    </message>
    <message>
        <source>Answers to the worksheets</source>
        <translation>Soluzioni delle schede di lavoro</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Particella incidente: %1</translation>
    </message>
    <message>
        <source>Seed %1, events 1 to %2</source>
        <translation>Seme %1, eventi da 1 a %2</translation>
    </message>
    <message>
        <source>no track is visible</source>
        <translation>nessuna traccia visibile</translation>
    </message>
</context>
<context>
    <name>velquon::Application</name>
    <message>
        <source>Nothing is measured: lay out a tool of the projector first.</source>
        <translation>Non c’è nulla di misurato: appoggia prima uno strumento del proiettore.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberController</name>
    <message>
        <source>Particle Chamber: %1</source>
        <translation>Camera a particelle: %1</translation>
    </message>
    <message>
        <source>Projector: %1</source>
        <translation>Proiettore: %1</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberView</name>
    <message>
        <source>The graphics driver did not hand the picture over.</source>
        <translation>Il driver grafico non ha consegnato l’immagine.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberWindow</name>
    <message>
        <source>Particle chamber</source>
        <translation>Camera a particelle</translation>
    </message>
    <message>
        <source>Part of the chamber that is seen</source>
        <translation>Parte visibile della camera</translation>
    </message>
</context>
<context>
    <name>velquon::EventDocuments</name>
    <message>
        <source>It is a folder</source>
        <translation>È una cartella</translation>
    </message>
    <message>
        <source>It is no regular file</source>
        <translation>Non è un file normale</translation>
    </message>
    <message>
        <source>Save Event</source>
        <translation>Salva evento</translation>
    </message>
    <message>
        <source>Event files (*.cwd)</source>
        <translation>File di eventi (*.cwd)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon non può scrivere il file %1: %2.</translation>
    </message>
    <message>
        <source>Import PC Event</source>
        <translation>Importa evento PC</translation>
    </message>
    <message>
        <source>PC event files (*.cwd *.CWD *.txt *.TXT)</source>
        <translation>File di eventi PC (*.cwd *.CWD *.txt *.TXT)</translation>
    </message>
    <message>
        <source>Open Event</source>
        <translation>Apri evento</translation>
    </message>
    <message>
        <source>Bad data</source>
        <translation>Dati errati</translation>
    </message>
    <message>
        <source>Wrong format</source>
        <translation>Formato sbagliato</translation>
    </message>
    <message>
        <source>Sorry, Velquon can&apos;t read this file.</source>
        <translation>Spiacenti, Velquon non può leggere questo file.</translation>
    </message>
    <message>
        <source>You should know...</source>
        <translation>Buono a sapersi...</translation>
    </message>
    <message>
        <source>The event was created with the chamber&apos;s magnetic field set to a negative value.  The controls and display will show the absolute value of the field.</source>
        <translation>L’evento è stato creato con un valore negativo del campo magnetico della camera. I comandi e lo schermo mostreranno il valore assoluto del campo.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Non aperto</translation>
    </message>
    <message>
        <source>Velquon can&apos;t open the file it was started with: %1.</source>
        <translation>Velquon non può aprire il file con cui è stato avviato: %1.</translation>
    </message>
    <message>
        <source>It is no event file</source>
        <translation>Non è un file di evento</translation>
    </message>
</context>
<context>
    <name>velquon::EventExports</name>
    <message>
        <source>Export Points</source>
        <translation>Esporta punti</translation>
    </message>
    <message>
        <source>Tables of points (*.csv)</source>
        <translation>Tabelle di punti (*.csv)</translation>
    </message>
    <message>
        <source>Export Record</source>
        <translation>Esporta resoconto</translation>
    </message>
    <message>
        <source>Tables of particles (*.csv);;HepMC3 records (*.hepmc3)</source>
        <translation>Tabelle di particelle (*.csv);;Resoconti HepMC3 (*.hepmc3)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon non può scrivere il file %1: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::EventMaker</name>
    <message>
        <source>line %1 of its output can&apos;t be understood</source>
        <translation>la riga %1 del suo risultato non si capisce</translation>
    </message>
    <message>
        <source>it was ended before it was done</source>
        <translation>è stato interrotto prima della fine</translation>
    </message>
    <message>
        <source>it ended with the status %1</source>
        <translation>è terminato con il codice %1</translation>
    </message>
</context>
<context>
    <name>velquon::EventTelling</name>
    <message>
        <source>Choose an event and press New Event (%1).</source>
        <translation>Scegli un evento e premi Nuovo evento (%1).</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Non c’è ancora nessun evento.</translation>
    </message>
</context>
<context>
    <name>velquon::EventText</name>
    <message>
        <source>the %1 decayed</source>
        <comment>symbol of a particle</comment>
        <translation>%1 decaduta</translation>
    </message>
    <message>
        <source>the %1 converted to a pair</source>
        <comment>symbol of a particle</comment>
        <translation>%1 convertita in una coppia</translation>
    </message>
    <message>
        <source>the %1 left the chamber at once</source>
        <comment>symbol of a particle</comment>
        <translation>%1 uscita subito dalla camera</translation>
    </message>
    <message>
        <source>the event holds no points of the %1</source>
        <comment>symbol of a particle</comment>
        <translation>l’evento non contiene punti di %1</translation>
    </message>
    <message>
        <source>the %1 left the chamber</source>
        <comment>symbol of a particle</comment>
        <translation>%1 uscita dalla camera</translation>
    </message>
    <message>
        <source>the %1 is not detected</source>
        <comment>symbol of a particle</comment>
        <translation>%1 non rivelata</translation>
    </message>
    <message numerus="yes">
        <source>%n %1 decayed</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 decaduta</numerusform>
            <numerusform>%n %1 decadute</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 converted to pairs</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 convertita in una coppia</numerusform>
            <numerusform>%n %1 convertite in coppie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber at once</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 uscita subito dalla camera</numerusform>
            <numerusform>%n %1 uscite subito dalla camera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the event holds no points of %n %1</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>l’evento non contiene punti di %n %1</numerusform>
            <numerusform>l’evento non contiene punti di %n %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 uscita dalla camera</numerusform>
            <numerusform>%n %1 uscite dalla camera</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 are not detected</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 non rivelata</numerusform>
            <numerusform>%n %1 non rivelate</numerusform>
        </translation>
    </message>
    <message>
        <source>No visible track</source>
        <translation>Nessuna traccia visibile</translation>
    </message>
    <message>
        <source>No visible track: %1</source>
        <translation>Nessuna traccia visibile: %1</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>diritta</translation>
    </message>
    <message>
        <source>turns clockwise</source>
        <translation>gira in senso orario</translation>
    </message>
    <message>
        <source>turns anticlockwise</source>
        <translation>gira in senso antiorario</translation>
    </message>
    <message>
        <source>too short to tell which way it turns</source>
        <translation>troppo corta per dire da che parte gira</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Traccia %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>particle, colour</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>evento %1</translation>
    </message>
    <message>
        <source>seed %1</source>
        <translation>seme %1</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n punto</numerusform>
            <numerusform>%n punti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks</source>
        <translation>
            <numerusform>%n traccia</numerusform>
            <numerusform>%n tracce</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks on the xy plane</source>
        <translation>
            <numerusform>%n traccia sul piano xy</numerusform>
            <numerusform>%n tracce sul piano xy</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <comment>track: length, which way it turns</comment>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Not seen: %1</source>
        <translation>Non si vede: %1</translation>
    </message>
</context>
<context>
    <name>velquon::GuideContents</name>
    <message>
        <source>Contents of the guide</source>
        <translation>Indice della guida</translation>
    </message>
</context>
<context>
    <name>velquon::GuideWindow</name>
    <message>
        <source>Velquon Guide</source>
        <translation>Guida di Velquon</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of this language; names the folder of its guide</comment>
        <translation>it</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>La pagina precedente</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>The page that was left by Back</source>
        <translation>La pagina lasciata con Indietro</translation>
    </message>
    <message>
        <source>A−</source>
        <translation>A−</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Testo più piccolo</translation>
    </message>
    <message>
        <source>A+</source>
        <translation>A+</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Testo più grande</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Find in the guide (Ctrl+F)</source>
        <translation>Cerca nella guida (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Cerca nella guida</translation>
    </message>
    <message>
        <source>▲</source>
        <translation>▲</translation>
    </message>
    <message>
        <source>The place before</source>
        <translation>Il punto precedente</translation>
    </message>
    <message>
        <source>▼</source>
        <translation>▼</translation>
    </message>
    <message>
        <source>The next place</source>
        <translation>Il punto successivo</translation>
    </message>
    <message>
        <source>  %1 of %2  </source>
        <translation>  %1 di %2  </translation>
    </message>
    <message>
        <source>  not found  </source>
        <translation>  non trovato  </translation>
    </message>
</context>
<context>
    <name>velquon::HistogramPanel</name>
    <message>
        <source>The library that draws histograms is not installed. The bins are in the table behind the other tab.</source>
        <translation>La libreria che disegna gli istogrammi non è installata. Le classi sono nella tabella dietro l’altra scheda.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandezza</translation>
    </message>
    <message>
        <source>The measured quantity that is shown</source>
        <translation>La grandezza misurata che viene mostrata</translation>
    </message>
    <message>
        <source>Number of bins</source>
        <translation>Numero di classi</translation>
    </message>
    <message>
        <source>Number of bins; at 0 it goes by the values</source>
        <translation>Numero di classi; con 0 dipende dai valori</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>The curve that is fitted to the values</source>
        <translation>La curva adattata ai valori</translation>
    </message>
    <message>
        <source>No curve</source>
        <translation>Nessuna curva</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Esponenziale</translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation>Gaussiana</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Istogramma</translation>
    </message>
    <message>
        <source>Bins of the histogram</source>
        <translation>Classi dell’istogramma</translation>
    </message>
    <message>
        <source>&amp;Bins:</source>
        <translation>&amp;Classi:</translation>
    </message>
    <message>
        <source>H&amp;istogram</source>
        <translation>&amp;Istogramma</translation>
    </message>
    <message>
        <source>B&amp;ins as a table</source>
        <translation>Classi in &amp;tabella</translation>
    </message>
    <message>
        <source>There are no measurements yet.</source>
        <translation>Non ci sono ancora misure.</translation>
    </message>
    <message>
        <source>No values.</source>
        <translation>Nessun valore.</translation>
    </message>
    <message>
        <source>One value, %1.</source>
        <translation>Un valore, %1.</translation>
    </message>
    <message>
        <source>%1 values. Mean %2, spread %3.</source>
        <translation>%1 valori. Media %2, dispersione %3.</translation>
    </message>
    <message>
        <source>Tracks that left the chamber, not in the bars: %1.</source>
        <translation>Tracce uscite dalla camera, fuori dalle barre: %1.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. Tracks that left count with their lengths so far.</source>
        <translation>Esponenziale: lunghezza di decadimento %1. Le tracce uscite contano con la loro lunghezza fin lì.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The longest possible lengths are allowed for.</source>
        <translation>Esponenziale: lunghezza di decadimento %1. Si tiene conto delle massime lunghezze possibili.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The chamber&apos;s walls are not allowed for.</source>
        <translation>Esponenziale: lunghezza di decadimento %1. Non si tiene conto delle pareti della camera.</translation>
    </message>
    <message>
        <source>Gaussian: mean %1, standard deviation %2.</source>
        <translation>Gaussiana: media %1, deviazione standard %2.</translation>
    </message>
    <message>
        <source>No exponential fits these values.</source>
        <translation>Nessuna esponenziale si adatta a questi valori.</translation>
    </message>
    <message>
        <source>A Gaussian needs two different values.</source>
        <translation>Una gaussiana richiede due valori diversi.</translation>
    </message>
    <message>
        <source>Number in a bin</source>
        <translation>Numero per classe</translation>
    </message>
    <message>
        <source>%1, %2 bins from %3 to %4; most values, %5, from %6 to %7. %8</source>
        <translation>%1, %2 classi da %3 a %4; il maggior numero di valori, %5, da %6 a %7. %8</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Curve in the middle</source>
        <translation>Curva al centro</translation>
    </message>
</context>
<context>
    <name>velquon::Legend</name>
    <message>
        <source>Decay of %1</source>
        <translation>Decadimento di %1</translation>
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
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Legend: %1</source>
        <translation>Legenda: %1</translation>
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
        <translation>Seme a &amp;caso</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>C&amp;rea</translation>
    </message>
    <message>
        <source>Make Events</source>
        <translation>Crea eventi</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Nessun evento</translation>
    </message>
    <message>
        <source>velquon-events made no events: %1.</source>
        <translation>velquon-events non ha creato eventi: %1.</translation>
    </message>
    <message>
        <source>Decay length of the primary</source>
        <translation>Lunghezza di decadimento della particella primaria</translation>
    </message>
    <message>
        <source>Momentum of the primary</source>
        <translation>Quantità di moto della particella primaria</translation>
    </message>
    <message>
        <source>Transverse momentum of the primary</source>
        <translation>Quantità di moto trasversale della particella primaria</translation>
    </message>
    <message>
        <source>Momentum of the first charged product</source>
        <translation>Quantità di moto del primo prodotto carico</translation>
    </message>
    <message>
        <source>Transverse momentum of the first charged product</source>
        <translation>Quantità di moto trasversale del primo prodotto carico</translation>
    </message>
    <message>
        <source>Number of visible tracks</source>
        <translation>Numero di tracce visibili</translation>
    </message>
    <message>
        <source>Other events each time; the seed is noted with them</source>
        <translation>Ogni volta altri eventi; il seme viene annotato con loro</translation>
    </message>
    <message>
        <source>Events made</source>
        <translation>Eventi creati</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>&amp;Evento:</translation>
    </message>
    <message>
        <source>&amp;Number of events:</source>
        <translation>&amp;Numero di eventi:</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>Cam&amp;po:</translation>
    </message>
    <message>
        <source>S&amp;ide of the chamber:</source>
        <translation>&amp;Lato della camera:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy:</source>
        <translation>Energia c&amp;inetica:</translation>
    </message>
    <message>
        <source>&amp;Seed:</source>
        <translation>&amp;Seme:</translation>
    </message>
    <message>
        <source>&amp;Quantity to note:</source>
        <translation>&amp;Grandezza da annotare:</translation>
    </message>
    <message>
        <source>The program velquon-events, which makes them, is not installed.</source>
        <translation>Il programma velquon-events, che li crea, non è installato.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementColumns</name>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandezza</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Piano</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Field (kG)</source>
        <translation>Campo (kG)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>At most (cm)</source>
        <translation>Al più (cm)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Una deviazione standard</translation>
    </message>
    <message>
        <source>Whether the track decayed or left the chamber. One that left counts in the exponential with its length so far. Double-click or F2 to edit</source>
        <translation>Se la particella è decaduta o è uscita dalla camera. Una traccia uscita conta nell’esponenziale con la sua lunghezza fin lì. Doppio clic o F2 per modificare</translation>
    </message>
    <message>
        <source>The longest length that could have been seen in the chamber. Double-click or F2 to edit</source>
        <translation>La massima lunghezza che si sarebbe potuta vedere nella camera. Doppio clic o F2 per modificare</translation>
    </message>
    <message>
        <source>Your own words. Double-click or F2 to edit</source>
        <translation>Le tue parole. Doppio clic o F2 per modificare</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>decaduta</translation>
    </message>
    <message>
        <source>left</source>
        <translation>uscita</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementFiles</name>
    <message>
        <source>it is no regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon non può scrivere il file %1: %2.</translation>
    </message>
    <message>
        <source>Save Measurements</source>
        <translation>Salva misure</translation>
    </message>
    <message>
        <source>Tables of measurements (*.csv)</source>
        <translation>Tabelle di misure (*.csv)</translation>
    </message>
    <message>
        <source>Open Measurements</source>
        <translation>Apri misure</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Aggiungi file</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Misure</translation>
    </message>
    <message>
        <source>There are measurements that are not saved.</source>
        <translation>Ci sono misure non salvate.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Non aperto</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1: %2.</source>
        <translation>Velquon non può leggere il file %1: %2.</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1, line %2: %3.</source>
        <translation>Velquon non può leggere il file %1, riga %2: %3.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementsWindow</name>
    <message>
        <source>What became of the track</source>
        <translation>Che cosa è stato della traccia</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Misure</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Misure</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Annota</translation>
    </message>
    <message>
        <source>Note what the projector&apos;s tool reads (Ctrl+Return)</source>
        <translation>Annota ciò che misura lo strumento del proiettore (Ctrl+Invio)</translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation>E&amp;limina righe</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;ulla</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>O&amp;pen Measurements…</source>
        <translation>A&amp;pri misure…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Aggiungi &amp;file…</translation>
    </message>
    <message>
        <source>Append the rows of files, such as those of a class</source>
        <translation>Accoda le righe di file, per esempio quelli di una classe</translation>
    </message>
    <message>
        <source>&amp;Save Measurements…</source>
        <translation>&amp;Salva misure…</translation>
    </message>
    <message>
        <source>&amp;Make Events…</source>
        <translation>&amp;Crea eventi…</translation>
    </message>
    <message>
        <source>Have many events made and note one quantity of each</source>
        <translation>Fa creare molti eventi e annota una grandezza di ciascuno</translation>
    </message>
    <message>
        <source>Save P&amp;lot…</source>
        <translation>Salva &amp;grafico…</translation>
    </message>
    <message>
        <source>Choose the rows to delete.</source>
        <translation>Scegli le righe da eliminare.</translation>
    </message>
    <message>
        <source>Events made: %1. Rows noted: %2.</source>
        <translation>Eventi creati: %1. Righe annotate: %2.</translation>
    </message>
    <message>
        <source>Save Plot</source>
        <translation>Salva grafico</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;PDF documents (*.pdf)</source>
        <translation>Immagini PNG (*.png);;Documenti PDF (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>C&amp;opia righe</translation>
    </message>
    <message>
        <source>Choose the rows to copy.</source>
        <translation>Scegli le righe da copiare.</translation>
    </message>
</context>
<context>
    <name>velquon::Model</name>
    <message>
        <source>Negative Pion</source>
        <translation>Pione negativo</translation>
    </message>
    <message>
        <source>Positive Pion</source>
        <translation>Pione positivo</translation>
    </message>
    <message>
        <source>Neutral Pion</source>
        <translation>Pione neutro</translation>
    </message>
    <message>
        <source>Negative Muon</source>
        <translation>Muone negativo</translation>
    </message>
    <message>
        <source>Positive Muon</source>
        <translation>Muone positivo</translation>
    </message>
    <message>
        <source>Lambda</source>
        <translation>Lambda</translation>
    </message>
    <message>
        <source>Positive pion</source>
        <translation>Pione positivo</translation>
    </message>
    <message>
        <source>Negative pion</source>
        <translation>Pione negativo</translation>
    </message>
    <message>
        <source>Neutral pion</source>
        <translation>Pione neutro</translation>
    </message>
    <message>
        <source>Negative muon</source>
        <translation>Muone negativo</translation>
    </message>
    <message>
        <source>Positive muon</source>
        <translation>Muone positivo</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Elettrone</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positrone</translation>
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
        <translation>Neutrino e antineutrino</translation>
    </message>
    <message>
        <source>Photon</source>
        <translation>Fotone</translation>
    </message>
    <message>
        <source>Proton</source>
        <translation>Protone</translation>
    </message>
    <message>
        <source>Neutron</source>
        <translation>Neutrone</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>decaduta</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>coppia</translation>
    </message>
    <message>
        <source>left</source>
        <translation>uscita</translation>
    </message>
    <message>
        <source>full</source>
        <translation>pieno</translation>
    </message>
    <message>
        <source>escaped</source>
        <translation>sfuggita</translation>
    </message>
    <message>
        <source>undetected</source>
        <translation>non rivelata</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la riga è troppo lunga</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>ci sono troppe righe</translation>
    </message>
    <message>
        <source>there are too many fields</source>
        <translation>ci sono troppi campi</translation>
    </message>
    <message>
        <source>a carriage return stands alone</source>
        <translation>un ritorno a capo è da solo</translation>
    </message>
    <message>
        <source>something follows a closing quotation mark</source>
        <translation>qualcosa segue una virgoletta di chiusura</translation>
    </message>
    <message>
        <source>a quotation mark stands inside a field</source>
        <translation>in un campo c’è una virgoletta</translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>una virgoletta non è chiusa</translation>
    </message>
    <message>
        <source>it is not text in UTF-8</source>
        <translation>non è testo in UTF-8</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>contiene un byte nullo</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>il file è troppo grande</translation>
    </message>
    <message>
        <source>converted to a pair</source>
        <translation>convertito in una coppia</translation>
    </message>
    <message>
        <source>left the chamber</source>
        <translation>uscita dalla camera</translation>
    </message>
    <message>
        <source>cut: the event holds no more points</source>
        <translation>tagliata: l’evento non contiene altri punti</translation>
    </message>
    <message>
        <source>left unseen</source>
        <translation>uscita senza essere vista</translation>
    </message>
    <message>
        <source>not detected</source>
        <translation>non rivelata</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Azzurro</translation>
    </message>
    <message>
        <source>it has %1 fields instead of %2</source>
        <translation>ha %1 campi invece di %2</translation>
    </message>
    <message>
        <source>the row&apos;s number is none: &quot;%1&quot;</source>
        <translation>il numero della riga non è un numero: «%1»</translation>
    </message>
    <message>
        <source>no quantity has the name &quot;%1&quot;</source>
        <translation>nessuna grandezza si chiama «%1»</translation>
    </message>
    <message>
        <source>no plane has the name &quot;%1&quot;</source>
        <translation>nessun piano si chiama «%1»</translation>
    </message>
    <message>
        <source>the value is no finite number: &quot;%1&quot;</source>
        <translation>il valore non è un numero finito: «%1»</translation>
    </message>
    <message>
        <source>the error is no finite number above or at 0: &quot;%1&quot;</source>
        <translation>l’errore non è un numero finito maggiore o uguale a 0: «%1»</translation>
    </message>
    <message>
        <source>the quantity has another unit than &quot;%1&quot;</source>
        <translation>la grandezza ha un’altra unità rispetto a «%1»</translation>
    </message>
    <message>
        <source>the field is no finite number: &quot;%1&quot;</source>
        <translation>il campo non è un numero finito: «%1»</translation>
    </message>
    <message>
        <source>no ending of a track has the name &quot;%1&quot;</source>
        <translation>nessuna fine di traccia si chiama «%1»</translation>
    </message>
    <message>
        <source>the longest length is no finite number above 0: &quot;%1&quot;</source>
        <translation>la lunghezza massima non è un numero finito maggiore di 0: «%1»</translation>
    </message>
    <message>
        <source>these are not the names of a table of measurements</source>
        <translation>questi non sono i nomi di una tabella di misure</translation>
    </message>
    <message>
        <source>length</source>
        <translation>lunghezza</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>raggio</translation>
    </message>
    <message>
        <source>transverse momentum</source>
        <translation>quantità di moto trasversale</translation>
    </message>
    <message>
        <source>sagitta</source>
        <translation>sagitta</translation>
    </message>
    <message>
        <source>chord</source>
        <translation>corda</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>angolo</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>gradi</translation>
    </message>
    <message>
        <source>decay length</source>
        <translation>lunghezza di decadimento</translation>
    </message>
    <message>
        <source>momentum</source>
        <translation>quantità di moto</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>tracce</translation>
    </message>
    <message>
        <source>a finite field in kG</source>
        <translation>un campo finito in kG</translation>
    </message>
    <message>
        <source>a finite side in cm above 0</source>
        <translation>un lato finito in cm maggiore di 0</translation>
    </message>
    <message>
        <source>a finite energy in MeV above 0</source>
        <translation>un’energia finita in MeV maggiore di 0</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vuota</translation>
    </message>
    <message>
        <source>Untitled Type %1 Decay</source>
        <translation>Decadimento senza titolo di tipo %1</translation>
    </message>
</context>
<context>
    <name>velquon::PictureFiles</name>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon non può scrivere il file %1: %2.</translation>
    </message>
    <message>
        <source>%1 Chamber</source>
        <translation>%1 Camera</translation>
    </message>
    <message>
        <source>%1 Projector</source>
        <translation>%1 Proiettore</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>File %1 (*.%2)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Salva immagine</translation>
    </message>
    <message>
        <source>The graphics driver makes no picture of %1 × %2 pixels. Choose a smaller size.</source>
        <translation>Il driver grafico non fa un’immagine di %1 × %2 pixel. Scegli una dimensione minore.</translation>
    </message>
</context>
<context>
    <name>velquon::PicturePanel</name>
    <message>
        <source>PNG: pixels, as on the screen</source>
        <translation>PNG: pixel, come sullo schermo</translation>
    </message>
    <message>
        <source>SVG: lines, black on white</source>
        <translation>SVG: linee, nero su bianco</translation>
    </message>
    <message>
        <source>PDF: lines, black on white</source>
        <translation>PDF: linee, nero su bianco</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Salva immagine</translation>
    </message>
    <message>
        <source>With the &amp;values of the event</source>
        <translation>Con i &amp;valori dell’evento</translation>
    </message>
    <message>
        <source>With a &amp;legend below the picture</source>
        <translation>Con una &amp;legenda sotto l’immagine</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>times the size on the screen</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Dimensione:</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Salva…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixel</translation>
    </message>
    <message>
        <source>%1 × %2 points</source>
        <translation>%1 × %2 punti</translation>
    </message>
</context>
<context>
    <name>velquon::PrintPanel</name>
    <message>
        <source>Looking for printers… The page can be saved as a PDF file.</source>
        <translation>Ricerca di stampanti… La pagina può essere salvata come file PDF.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Anteprima della pagina</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>&amp;Carta:</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Salva come P&amp;DF…</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>Stam&amp;pa…</translation>
    </message>
    <message>
        <source>The page can be printed or saved as a PDF file.</source>
        <translation>La pagina può essere stampata o salvata come file PDF.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. The page can be saved as a PDF file.</source>
        <translation>Su questo computer non c’è nessuna stampante. La pagina può essere salvata come file PDF.</translation>
    </message>
    <message>
        <source>No print server answers. The page can be saved as a PDF file.</source>
        <translation>Nessun server di stampa risponde. La pagina può essere salvata come file PDF.</translation>
    </message>
    <message>
        <source>Printers cannot be looked for, because the command lpstat is not installed (package cups-client). The page can be saved as a PDF file.</source>
        <translation>Non si possono cercare stampanti, perché il comando lpstat non è installato (pacchetto cups-client). La pagina può essere salvata come file PDF.</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non stampato</translation>
    </message>
    <message>
        <source>The printer %1 did not take the page.</source>
        <translation>La stampante %1 non ha accettato la pagina.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salva come PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>File PDF (*.pdf)</translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation>la pagina non può essere disegnata</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon non può scrivere il file %1: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::ProjectionFoot</name>
    <message>
        <source>%1 plane, zoom %2</source>
        <translation>piano %1, zoom %2</translation>
    </message>
    <message>
        <source>tape %1</source>
        <translation>metro %1</translation>
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
        <translation>Proiezione</translation>
    </message>
    <message>
        <source>Part of the projection that is seen</source>
        <translation>Parte visibile della proiezione</translation>
    </message>
</context>
<context>
    <name>velquon::Readings</name>
    <message>
        <source>Set three points or more along a track.</source>
        <translation>Metti tre o più punti lungo una traccia.</translation>
    </message>
    <message>
        <source>Set two more points along the track.</source>
        <translation>Metti altri due punti lungo la traccia.</translation>
    </message>
    <message>
        <source>Set one more point along the track.</source>
        <translation>Metti un altro punto lungo la traccia.</translation>
    </message>
    <message>
        <source>The points have to lie apart.</source>
        <translation>I punti devono essere distinti.</translation>
    </message>
    <message>
        <source>Set the vertex.</source>
        <translation>Metti il vertice.</translation>
    </message>
    <message>
        <source>Set a point of the first arm.</source>
        <translation>Metti un punto del primo lato.</translation>
    </message>
    <message>
        <source>Set a point of the second arm.</source>
        <translation>Metti un punto del secondo lato.</translation>
    </message>
    <message>
        <source>Set both ends of the tape.</source>
        <translation>Metti i due estremi del metro.</translation>
    </message>
    <message>
        <source>Take hold of the picture.</source>
        <translation>Afferra l’immagine.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>diritta</translation>
    </message>
</context>
<context>
    <name>velquon::RecordTree</name>
    <message>
        <source>Particle</source>
        <translation>Particella</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Sorte</translation>
    </message>
    <message>
        <source>p (MeV/c)</source>
        <translation>p (MeV/c)</translation>
    </message>
    <message>
        <source>Transverse p (MeV/c)</source>
        <translation>p trasversale (MeV/c)</translation>
    </message>
    <message>
        <source>Radius (cm)</source>
        <translation>Raggio (cm)</translation>
    </message>
    <message>
        <source>Kinetic energy (MeV)</source>
        <translation>Energia cinetica (MeV)</translation>
    </message>
    <message>
        <source>Flight (cm)</source>
        <translation>Percorso (cm)</translation>
    </message>
    <message>
        <source>Mean decay length (cm)</source>
        <translation>Lungh. di decad. media (cm)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punti</translation>
    </message>
</context>
<context>
    <name>velquon::RecordWindow</name>
    <message>
        <source>H&amp;ide answers</source>
        <translation>&amp;Nascondi le soluzioni</translation>
    </message>
    <message>
        <source>Re&amp;veal</source>
        <translation>&amp;Rivela</translation>
    </message>
    <message>
        <source>Event Record</source>
        <translation>Resoconto dell’evento</translation>
    </message>
    <message>
        <source>Particles of the event</source>
        <translation>Particelle dell’evento</translation>
    </message>
    <message>
        <source>Show only what is seen of an event, to measure it first</source>
        <translation>Mostra solo ciò che si vede di un evento, per misurarlo prima</translation>
    </message>
    <message>
        <source>Show what happened in this event</source>
        <translation>Mostra che cosa è successo in questo evento</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Non c’è ancora nessun evento.</translation>
    </message>
    <message>
        <source>This event comes from a file, which does not tell what happened in it. These are its tracks.</source>
        <translation>Questo evento viene da un file, che non dice che cosa vi è successo. Queste sono le sue tracce.</translation>
    </message>
    <message>
        <source>These tracks are seen. Reveal tells what happened.</source>
        <translation>Queste tracce si vedono. Rivela dice che cosa è successo.</translation>
    </message>
    <message>
        <source>Made with %1. Choose rows to mark their tracks in the other windows.</source>
        <translation>Creato con %1. Scegli delle righe per evidenziarne le tracce nelle altre finestre.</translation>
    </message>
</context>
<context>
    <name>velquon::ShortcutsWindow</name>
    <message>
        <source>Everywhere</source>
        <translation>Ovunque</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Maiusc+Tab</translation>
    </message>
    <message>
        <source>To the next control, to the one before</source>
        <translation>Al comando successivo, al precedente</translation>
    </message>
    <message>
        <source>Alt with an underlined letter</source>
        <translation>Alt con una lettera sottolineata</translation>
    </message>
    <message>
        <source>Open the menu, press the button</source>
        <translation>Apri il menu, premi il pulsante</translation>
    </message>
    <message>
        <source>Chamber</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Escape, Space</source>
        <translation>Esc, Spazio</translation>
    </message>
    <message>
        <source>Stop the turntable</source>
        <translation>Ferma la rotazione</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>End a replay</source>
        <translation>Termina una ripetizione</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Cursori</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Frecce</translation>
    </message>
    <message>
        <source>By a tenth of a tick</source>
        <translation>Di un decimo di tacca</translation>
    </message>
    <message>
        <source>Page Up, Page Down</source>
        <translation>Pag su, Pag giù</translation>
    </message>
    <message>
        <source>To the next tick</source>
        <translation>Alla tacca successiva</translation>
    </message>
    <message>
        <source>Return on the label</source>
        <translation>Invio sull’etichetta</translation>
    </message>
    <message>
        <source>Type a value</source>
        <translation>Scrivi un valore</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Proiettore</translation>
    </message>
    <message>
        <source>T, G, C, A</source>
        <translation>T, G, C, A</translation>
    </message>
    <message>
        <source>The tools Tape, Grab, Curve, Angle</source>
        <translation>Gli strumenti Metro, Afferra, Curva, Angolo</translation>
    </message>
    <message>
        <source>Z, Y, X</source>
        <translation>Z, Y, X</translation>
    </message>
    <message>
        <source>The planes xy, xz, yz</source>
        <translation>I piani xy, xz, yz</translation>
    </message>
    <message>
        <source>1, 2, 3</source>
        <translation>1, 2, 3</translation>
    </message>
    <message>
        <source>The zooms</source>
        <translation>Gli zoom</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Snap on and off</source>
        <translation>Aggancia sì o no</translation>
    </message>
    <message>
        <source>Projector&apos;s picture</source>
        <translation>Immagine del proiettore</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Frecce, con Maiusc</translation>
    </message>
    <message>
        <source>Move the cross by one pixel, by ten</source>
        <translation>Sposta la croce di un pixel, di dieci</translation>
    </message>
    <message>
        <source>Return, Space</source>
        <translation>Invio, Spazio</translation>
    </message>
    <message>
        <source>Set a point, take hold, let go</source>
        <translation>Metti un punto, afferra, lascia</translation>
    </message>
    <message>
        <source>Delete, Backspace</source>
        <translation>Canc, Backspace</translation>
    </message>
    <message>
        <source>Take the last point away</source>
        <translation>Togli l’ultimo punto</translation>
    </message>
    <message>
        <source>Give up, clear the points, hide the cross</source>
        <translation>Rinuncia, cancella i punti, nascondi la croce</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Invio</translation>
    </message>
    <message>
        <source>Record what is measured</source>
        <translation>Annota ciò che è misurato</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Ctrl+F, F3, Shift+F3</source>
        <translation>Ctrl+F, F3, Maiusc+F3</translation>
    </message>
    <message>
        <source>Find, the next place, the place before</source>
        <translation>Cerca, punto successivo, punto precedente</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+0</source>
        <translation>Ctrl++, Ctrl+-, Ctrl+0</translation>
    </message>
    <message>
        <source>Larger, smaller, usual text</source>
        <translation>Testo più grande, più piccolo, normale</translation>
    </message>
    <message>
        <source>Alt+Left, Alt+Right</source>
        <translation>Alt+Sinistra, Alt+Destra</translation>
    </message>
    <message>
        <source>A page back, a page forward</source>
        <translation>Una pagina indietro, una pagina avanti</translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>Menu %1</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Che cosa fa</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
</context>
<context>
    <name>velquon::TrackController</name>
    <message>
        <source>De&amp;activate</source>
        <translation>&amp;Disattiva</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Attiva</translation>
    </message>
</context>
<context>
    <name>velquon::TrackPanel</name>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>The particle&apos;s track. Drag with the mouse to measure it.</source>
        <translation>La traccia della particella. Trascina con il mouse per misurarla.</translation>
    </message>
    <message>
        <source>Part of the track that is seen</source>
        <translation>Parte visibile della traccia</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unità</translation>
    </message>
</context>
<context>
    <name>velquon::TrackStatus</name>
    <message>
        <source>The Track window is active: Track &gt; Deactivate gives the menus back.</source>
        <translation>La finestra Traccia è attiva: Traccia &gt; Disattiva ridà i menu.</translation>
    </message>
</context>
<context>
    <name>velquon::TrackWindow</name>
    <message>
        <source>Live Track</source>
        <translation>Traccia dal vivo</translation>
    </message>
</context>
<context>
    <name>velquon::ValueEditor</name>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>da %1 a %2 %3</translation>
    </message>
</context>
<context>
    <name>velquon::ValueLabel</name>
    <message>
        <source>Double click, or Return, to type a value</source>
        <translation>Doppio clic, o Invio, per scrivere un valore</translation>
    </message>
</context>
<context>
    <name>velquon::Worksheet</name>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>File PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save Worksheets</source>
        <translation>Salva schede di lavoro</translation>
    </message>
    <message>
        <source>Worksheets</source>
        <translation>Schede di lavoro</translation>
    </message>
    <message>
        <source>Save Answers</source>
        <translation>Salva soluzioni</translation>
    </message>
    <message>
        <source>Worksheet Answers</source>
        <translation>Soluzioni delle schede</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>The worksheets and their answers need files of two names.</source>
        <translation>Le schede di lavoro e le soluzioni richiedono due file di nome diverso.</translation>
    </message>
    <message>
        <source>Making worksheets…</source>
        <translation>Creazione delle schede…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Print Worksheets</source>
        <translation>Stampa schede di lavoro</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon non può scrivere il file %1: %2.</translation>
    </message>
    <message>
        <source>Worksheet %1</source>
        <translation>Scheda di lavoro %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Particella incidente: %1</translation>
    </message>
    <message>
        <source>Seed %1, event %2</source>
        <translation>Seme %1, evento %2</translation>
    </message>
    <message>
        <source>No magnetic field</source>
        <translation>Nessun campo magnetico</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, out of the paper</source>
        <translation>Campo magnetico di %1 kG, uscente dalla carta</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, into the paper</source>
        <translation>Campo magnetico di %1 kG, entrante nella carta</translation>
    </message>
    <message>
        <source>No track is visible in this event.</source>
        <translation>In questo evento non si vede nessuna traccia.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation>Quantità di moto</translation>
    </message>
    <message>
        <source>MeV/c</source>
        <translation>MeV/c</translation>
    </message>
    <message>
        <source>Angle at its vertex</source>
        <translation>Angolo al vertice</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>gradi</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lungh.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Ruler in cm of the chamber. Printed at full size, 1 mm on the paper is %1 cm.</source>
        <translation>Righello in cm della camera. Stampato a grandezza naturale, 1 mm sulla carta è %1 cm.</translation>
    </message>
</context>
<context>
    <name>velquon::WorksheetPanel</name>
    <message>
        <source>Print Worksheets</source>
        <translation>Stampa schede di lavoro</translation>
    </message>
    <message>
        <source>With an &amp;answer key in a file of its own</source>
        <translation>Con le &amp;soluzioni in un file a parte</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>&amp;Evento:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>C&amp;arta:</translation>
    </message>
    <message>
        <source>Magnetic &amp;field, kG:</source>
        <translation>&amp;Campo magnetico, kG:</translation>
    </message>
    <message>
        <source>&amp;Side of the chamber, cm:</source>
        <translation>&amp;Lato della camera, cm:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy, MeV:</source>
        <translation>Energia c&amp;inetica, MeV:</translation>
    </message>
    <message>
        <source>&amp;Number of worksheets:</source>
        <translation>&amp;Numero di schede:</translation>
    </message>
    <message>
        <source>See&amp;d:</source>
        <translation>Se&amp;me:</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF…</source>
        <translation>Sal&amp;va come PDF…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2.</source>
        <translation>«%1» non è %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from 0 to 4294967295.</source>
        <translation>«%1» non è un numero intero da 0 a 4294967295.</translation>
    </message>
</context>
</TS>
