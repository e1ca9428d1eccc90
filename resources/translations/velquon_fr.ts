<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ChamberWindow</name>
    <message>
        <source>Particle Chamber: Empty</source>
        <translation>Chambre à particules&#xa0;: Vide</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>P&amp;lage&#xa0;:</translation>
    </message>
    <message>
        <source>Energy range</source>
        <translation>Plage d’énergie</translation>
    </message>
    <message>
        <source>Range of the energy slider</source>
        <translation>Plage du curseur d’énergie</translation>
    </message>
    <message>
        <source>1000 to 10000 MeV</source>
        <translation>1000 à 10000 MeV</translation>
    </message>
    <message>
        <source>100 to 1000 MeV</source>
        <translation>100 à 1000 MeV</translation>
    </message>
    <message>
        <source>10 to 100 MeV</source>
        <translation>10 à 100 MeV</translation>
    </message>
    <message>
        <source>1 to 10 MeV</source>
        <translation>1 à 10 MeV</translation>
    </message>
    <message>
        <source>0.1 to 1 MeV</source>
        <translation>0.1 à 1 MeV</translation>
    </message>
    <message>
        <source>0.01 to 0.1 MeV</source>
        <translation>0.01 à 0.1 MeV</translation>
    </message>
    <message>
        <source>0 to 0.01 MeV</source>
        <translation>0 à 0.01 MeV</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Champ magnétique</translation>
    </message>
    <message>
        <source>Magnetic field along z for the next event</source>
        <translation>Champ magnétique selon z pour le prochain événement</translation>
    </message>
    <message>
        <source>Chamber side</source>
        <translation>Côté de la chambre</translation>
    </message>
    <message>
        <source>Side of the cubic chamber for the next event</source>
        <translation>Côté de la chambre cubique pour le prochain événement</translation>
    </message>
    <message>
        <source>Kinetic energy</source>
        <translation>Énergie cinétique</translation>
    </message>
    <message>
        <source>Kinetic energy of the incoming particle for the next event</source>
        <translation>Énergie cinétique de la particule incidente pour le prochain événement</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d’outils</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Action</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>É&amp;vénement</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>Rotation A&amp;xis</source>
        <translation>A&amp;xe de rotation</translation>
    </message>
    <message>
        <source>Rotation &amp;Rate</source>
        <translation>V&amp;itesse de rotation</translation>
    </message>
    <message>
        <source>&amp;Window in Front</source>
        <translation>&amp;Fenêtre au premier plan</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Trace</translation>
    </message>
    <message>
        <source>&amp;Particle</source>
        <translation>&amp;Particule</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Sens</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Vitesse</translation>
    </message>
    <message>
        <source>Scree&amp;n Speed</source>
        <translation>Vitesse de l’a&amp;ffichage</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Open Event…</source>
        <translation>&amp;Ouvrir un événement…</translation>
    </message>
    <message>
        <source>&amp;Import PC Event…</source>
        <translation>&amp;Importer un événement PC…</translation>
    </message>
    <message>
        <source>&amp;Save Event…</source>
        <translation>&amp;Enregistrer l’événement…</translation>
    </message>
    <message>
        <source>E&amp;xport Points…</source>
        <translation>Exporter les &amp;points…</translation>
    </message>
    <message>
        <source>Export &amp;Record…</source>
        <translation>Exporter le &amp;compte rendu…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>I&amp;mprimer…</translation>
    </message>
    <message>
        <source>Print &amp;Worksheets…</source>
        <translation>Imprimer des &amp;fiches…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;New Event</source>
        <translation>&amp;Nouvel événement</translation>
    </message>
    <message>
        <source>Make an event of the chosen kind with the values of the sliders</source>
        <translation>Créer un événement du type choisi avec les valeurs des curseurs</translation>
    </message>
    <message>
        <source>&amp;Previous Event</source>
        <translation>Événement &amp;précédent</translation>
    </message>
    <message>
        <source>Show the event that was made or opened before this one</source>
        <translation>Montrer l’événement créé ou ouvert avant celui-ci</translation>
    </message>
    <message>
        <source>Ne&amp;xt Event</source>
        <translation>Événement &amp;suivant</translation>
    </message>
    <message>
        <source>Show the event that was made or opened after this one</source>
        <translation>Montrer l’événement créé ou ouvert après celui-ci</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Rejouer</translation>
    </message>
    <message>
        <source>Show the event again, point by point</source>
        <translation>Montrer encore l’événement, point par point</translation>
    </message>
    <message>
        <source>Ro&amp;tate</source>
        <translation>&amp;Tourner</translation>
    </message>
    <message>
        <source>Turn the chamber about its rotation axis; a click in the chamber stops it</source>
        <translation>Faire tourner la chambre autour de son axe&#xa0;; un clic dans la chambre l’arrête</translation>
    </message>
    <message>
        <source>Re&amp;verse Rotation</source>
        <translation>Tourner à l’&amp;envers</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation</source>
        <translation>&amp;Orientation initiale</translation>
    </message>
    <message>
        <source>Bring the chamber back to its resting position</source>
        <translation>Ramener la chambre à sa position de repos</translation>
    </message>
    <message>
        <source>&amp;Negative Pion π⁻</source>
        <translation>Pion &amp;négatif π⁻</translation>
    </message>
    <message>
        <source>&amp;Positive Pion π⁺</source>
        <translation>Pion &amp;positif π⁺</translation>
    </message>
    <message>
        <source>Neutral P&amp;ion π⁰</source>
        <translation>P&amp;ion neutre π⁰</translation>
    </message>
    <message>
        <source>Negative &amp;Muon μ⁻</source>
        <translation>&amp;Muon négatif μ⁻</translation>
    </message>
    <message>
        <source>Positive M&amp;uon μ⁺</source>
        <translation>M&amp;uon positif μ⁺</translation>
    </message>
    <message>
        <source>&amp;Lambda Λ</source>
        <translation>&amp;Lambda Λ</translation>
    </message>
    <message>
        <source>Kind of the next event</source>
        <translation>Type du prochain événement</translation>
    </message>
    <message>
        <source>Show &amp;Axes</source>
        <translation>Afficher les &amp;axes</translation>
    </message>
    <message>
        <source>Show &amp;Values</source>
        <translation>Afficher les &amp;valeurs</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation for Each Event</source>
        <translation>&amp;Orientation initiale à chaque événement</translation>
    </message>
    <message>
        <source>&amp;Slow Motion</source>
        <translation>&amp;Ralenti</translation>
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
        <translation>Plus &amp;rapide</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Normale</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Plus &amp;lente</translation>
    </message>
    <message>
        <source>&amp;Chamber</source>
        <translation>&amp;Chambre</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Projecteur</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <source>&amp;Inject Particle</source>
        <translation>&amp;Injecter une particule</translation>
    </message>
    <message>
        <source>&amp;Clear Screen</source>
        <translation>&amp;Effacer l’écran</translation>
    </message>
    <message>
        <source>&amp;Electron</source>
        <translation>&amp;Électron</translation>
    </message>
    <message>
        <source>&amp;Positron</source>
        <translation>&amp;Positron</translation>
    </message>
    <message>
        <source>&amp;Left to Right</source>
        <translation>De &amp;gauche à droite</translation>
    </message>
    <message>
        <source>&amp;Right to Left</source>
        <translation>De &amp;droite à gauche</translation>
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
        <translation>Compte rendu de l’&amp;événement</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Mesures</translation>
    </message>
    <message>
        <source>Velquon &amp;Guide</source>
        <translation>&amp;Guide de Velquon</translation>
    </message>
    <message>
        <source>&amp;About Velquon</source>
        <translation>À &amp;propos de Velquon</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>Save Pic&amp;ture…</source>
        <translation>Enregistrer l’im&amp;age…</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>Copier l’ima&amp;ge</translation>
    </message>
    <message>
        <source>Prese&amp;ntation</source>
        <translation>P&amp;résentation</translation>
    </message>
    <message>
        <source>Show the view in front over the whole screen; Escape ends it</source>
        <translation>Montrer la vue au premier plan sur tout l’écran&#xa0;; Échap y met fin</translation>
    </message>
    <message>
        <source>Show &amp;Legend</source>
        <translation>Afficher la &amp;légende</translation>
    </message>
    <message>
        <source>Axis L&amp;etters</source>
        <translation>L&amp;ettres des axes</translation>
    </message>
    <message>
        <source>&amp;Field Arrow</source>
        <translation>Flèche du &amp;champ</translation>
    </message>
    <message>
        <source>&amp;Colored Tracks in Projector</source>
        <translation>Traces en couleurs dans le &amp;projecteur</translation>
    </message>
</context>
<context>
    <name>ProjectorWindow</name>
    <message>
        <source>Projector: Empty</source>
        <translation>Projecteur&#xa0;: Vide</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Project onto the xy plane, seen along z (Z)</source>
        <translation>Projeter sur le plan xy, vu selon z (Z)</translation>
    </message>
    <message>
        <source>xy plane</source>
        <translation>plan xy</translation>
    </message>
    <message>
        <source>Project onto the xz plane, seen along y (Y)</source>
        <translation>Projeter sur le plan xz, vu selon y (Y)</translation>
    </message>
    <message>
        <source>xz plane</source>
        <translation>plan xz</translation>
    </message>
    <message>
        <source>Project onto the yz plane, seen along x (X)</source>
        <translation>Projeter sur le plan yz, vu selon x (X)</translation>
    </message>
    <message>
        <source>yz plane</source>
        <translation>plan yz</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show the whole chamber (1)</source>
        <translation>Montrer toute la chambre (1)</translation>
    </message>
    <message>
        <source>Zoom 1</source>
        <translation>Zoom 1</translation>
    </message>
    <message>
        <source>Enlarge two times (2)</source>
        <translation>Agrandir deux fois (2)</translation>
    </message>
    <message>
        <source>Zoom 2</source>
        <translation>Zoom 2</translation>
    </message>
    <message>
        <source>Enlarge three times (3)</source>
        <translation>Agrandir trois fois (3)</translation>
    </message>
    <message>
        <source>Zoom 3</source>
        <translation>Zoom 3</translation>
    </message>
    <message>
        <source>Measure a distance: drag from one end to the other (T)</source>
        <translation>Mesurer une distance&#xa0;: faire glisser d’un bout à l’autre (T)</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Ruban</translation>
    </message>
    <message>
        <source>Drag the picture about (G)</source>
        <translation>Déplacer l’image (G)</translation>
    </message>
    <message>
        <source>Grab</source>
        <translation>Saisir</translation>
    </message>
    <message>
        <source>Measure a circle: set three points or more along a track (C)</source>
        <translation>Mesurer un cercle&#xa0;: placer au moins trois points le long d’une trace (C)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Measure an angle: set its vertex, then a point of each arm (A)</source>
        <translation>Mesurer un angle&#xa0;: placer le sommet, puis un point de chaque côté (A)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Set the points of curve and angle onto a near point of the event (S)</source>
        <translation>Placer les points de la courbe et de l’angle sur un point voisin de l’événement (S)</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Aimanter</translation>
    </message>
    <message>
        <source>Put what is measured into the list of measurements (Ctrl+Return)</source>
        <translation>Mettre ce qui est mesuré dans la liste des mesures (Ctrl+Retour)</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Noter</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>About Velquon</source>
        <translation>À propos de Velquon</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Particle decays in a detector chamber in a magnetic field, made by chance and shown in space and in projection.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Désintégrations de particules dans une chambre de détection placée dans un champ magnétique, tirées au hasard et montrées dans l’espace et en projection.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>track_panel</name>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Strength of the magnetic field; below zero it points the other way</source>
        <translation>Intensité du champ magnétique&#xa0;; au-dessous de zéro, il pointe dans l’autre sens</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Champ magnétique</translation>
    </message>
    <message>
        <source>field</source>
        <translation>champ</translation>
    </message>
    <message>
        <source>The field that the particle moves in</source>
        <translation>Le champ dans lequel se déplace la particule</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Ruban</translation>
    </message>
    <message>
        <source>Send a particle into the field</source>
        <translation>Envoyer une particule dans le champ</translation>
    </message>
    <message>
        <source>Inject</source>
        <translation>Injecter</translation>
    </message>
    <message>
        <source>Clear the track; a particle that moves goes on</source>
        <translation>Effacer la trace&#xa0;; une particule en vol continue</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>In the field B₀ a particle of speed v runs on a circle with a radius of 2 units of the tape</source>
        <translation>Dans le champ B₀, une particule de vitesse v parcourt un cercle d’un rayon de 2 unités du ruban</translation>
    </message>
    <message>
        <source>Length measured by dragging in the picture</source>
        <translation>Longueur mesurée en faisant glisser dans l’image</translation>
    </message>
    <message>
        <source>A unit is ten points of the picture</source>
        <translation>Une unité vaut dix points de l’image</translation>
    </message>
    <message>
        <source>Particle:</source>
        <translation>Particule&#xa0;:</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Particule</translation>
    </message>
    <message>
        <source>The particle that is sent into the field</source>
        <translation>La particule envoyée dans le champ</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Électron</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positron</translation>
    </message>
    <message>
        <source>Direction:</source>
        <translation>Sens&#xa0;:</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>The way that the particle comes</source>
        <translation>Le sens dans lequel vient la particule</translation>
    </message>
    <message>
        <source>Left to Right</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <source>Right to Left</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Vitesse&#xa0;:</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>With v a particle goes one unit of the tape in ten steps</source>
        <translation>Avec v, une particule parcourt une unité du ruban en dix pas</translation>
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
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Particule</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>p</source>
        <translation>p</translation>
    </message>
    <message>
        <source>p trans.</source>
        <translation>p trans.</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>on paper</source>
        <translation>sur papier</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Devenir</translation>
    </message>
    <message>
        <source>p trans. is the momentum across the field: 0.3 B R for B in kG and the radius R in cm.</source>
        <translation>p trans. est la quantité de mouvement transverse au champ&#xa0;: 0.3 B R avec B en kG et le rayon R en cm.</translation>
    </message>
    <message>
        <source>Lengths and angles are given in space and on the paper; the angle is that to the parent at the vertex.</source>
        <translation>Longueurs et angles dans l’espace et sur le papier&#xa0;; l’angle est celui avec la particule mère au vertex.</translation>
    </message>
    <message>
        <source>Fates: decayed, left the chamber, or full: the track is cut where the event holds no more points.</source>
        <translation>Devenir&#xa0;: désintégrée, sortie (de la chambre) ou plein&#xa0;: trace coupée, l’événement n’a plus de place.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>Answers to the worksheets</source>
        <translation>Réponses aux fiches de travail</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Particule incidente&#xa0;: %1</translation>
    </message>
    <message>
        <source>Seed %1, events 1 to %2</source>
        <translation>Graine %1, événements 1 à %2</translation>
    </message>
    <message>
        <source>no track is visible</source>
        <translation>aucune trace n’est visible</translation>
    </message>
</context>
<context>
    <name>velquon::Application</name>
    <message>
        <source>Nothing is measured: lay out a tool of the projector first.</source>
        <translation>Rien n’est mesuré&#xa0;: posez d’abord un outil du projecteur.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberController</name>
    <message>
        <source>Particle Chamber: %1</source>
        <translation>Chambre à particules&#xa0;: %1</translation>
    </message>
    <message>
        <source>Projector: %1</source>
        <translation>Projecteur&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberView</name>
    <message>
        <source>The graphics driver did not hand the picture over.</source>
        <translation>Le pilote graphique n’a pas transmis l’image.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberWindow</name>
    <message>
        <source>Particle chamber</source>
        <translation>Chambre à particules</translation>
    </message>
    <message>
        <source>Part of the chamber that is seen</source>
        <translation>Partie visible de la chambre</translation>
    </message>
</context>
<context>
    <name>velquon::EventDocuments</name>
    <message>
        <source>It is a folder</source>
        <translation>C’est un dossier</translation>
    </message>
    <message>
        <source>It is no regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Save Event</source>
        <translation>Enregistrer l’événement</translation>
    </message>
    <message>
        <source>Event files (*.cwd)</source>
        <translation>Fichiers d’événements (*.cwd)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon ne peut pas écrire le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Import PC Event</source>
        <translation>Importer un événement PC</translation>
    </message>
    <message>
        <source>PC event files (*.cwd *.CWD *.txt *.TXT)</source>
        <translation>Fichiers d’événements PC (*.cwd *.CWD *.txt *.TXT)</translation>
    </message>
    <message>
        <source>Open Event</source>
        <translation>Ouvrir un événement</translation>
    </message>
    <message>
        <source>Bad data</source>
        <translation>Données erronées</translation>
    </message>
    <message>
        <source>Wrong format</source>
        <translation>Mauvais format</translation>
    </message>
    <message>
        <source>Sorry, Velquon can&apos;t read this file.</source>
        <translation>Désolé, Velquon ne peut pas lire ce fichier.</translation>
    </message>
    <message>
        <source>You should know...</source>
        <translation>Bon à savoir...</translation>
    </message>
    <message>
        <source>The event was created with the chamber&apos;s magnetic field set to a negative value.  The controls and display will show the absolute value of the field.</source>
        <translation>L’événement a été créé avec une valeur négative du champ magnétique de la chambre. Les réglages et l’affichage montreront la valeur absolue du champ.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Non ouvert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t open the file it was started with: %1.</source>
        <translation>Velquon ne peut pas ouvrir le fichier avec lequel il a été lancé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>It is no event file</source>
        <translation>Ce n’est pas un fichier d’événement</translation>
    </message>
</context>
<context>
    <name>velquon::EventExports</name>
    <message>
        <source>Export Points</source>
        <translation>Exporter les points</translation>
    </message>
    <message>
        <source>Tables of points (*.csv)</source>
        <translation>Tableaux de points (*.csv)</translation>
    </message>
    <message>
        <source>Export Record</source>
        <translation>Exporter le compte rendu</translation>
    </message>
    <message>
        <source>Tables of particles (*.csv);;HepMC3 records (*.hepmc3)</source>
        <translation>Tableaux de particules (*.csv);;Comptes rendus HepMC3 (*.hepmc3)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon ne peut pas écrire le fichier %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::EventMaker</name>
    <message>
        <source>line %1 of its output can&apos;t be understood</source>
        <translation>la ligne %1 de sa sortie est incompréhensible</translation>
    </message>
    <message>
        <source>it was ended before it was done</source>
        <translation>il a été arrêté avant d’avoir fini</translation>
    </message>
    <message>
        <source>it ended with the status %1</source>
        <translation>il s’est terminé avec le code %1</translation>
    </message>
</context>
<context>
    <name>velquon::EventTelling</name>
    <message>
        <source>Choose an event and press New Event (%1).</source>
        <translation>Choisissez un événement et pressez Nouvel événement (%1).</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Il n’y a pas encore d’événement.</translation>
    </message>
</context>
<context>
    <name>velquon::EventText</name>
    <message>
        <source>the %1 decayed</source>
        <comment>symbol of a particle</comment>
        <translation>le %1 s’est désintégré</translation>
    </message>
    <message>
        <source>the %1 converted to a pair</source>
        <comment>symbol of a particle</comment>
        <translation>le %1 s’est converti en paire</translation>
    </message>
    <message>
        <source>the %1 left the chamber at once</source>
        <comment>symbol of a particle</comment>
        <translation>le %1 est sorti aussitôt de la chambre</translation>
    </message>
    <message>
        <source>the event holds no points of the %1</source>
        <comment>symbol of a particle</comment>
        <translation>l’événement ne contient aucun point du %1</translation>
    </message>
    <message>
        <source>the %1 left the chamber</source>
        <comment>symbol of a particle</comment>
        <translation>le %1 est sorti de la chambre</translation>
    </message>
    <message>
        <source>the %1 is not detected</source>
        <comment>symbol of a particle</comment>
        <translation>le %1 n’est pas détecté</translation>
    </message>
    <message numerus="yes">
        <source>%n %1 decayed</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 s’est désintégré</numerusform>
            <numerusform>%n %1 se sont désintégrés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 converted to pairs</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 s’est converti en paire</numerusform>
            <numerusform>%n %1 se sont convertis en paires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber at once</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 est sorti aussitôt de la chambre</numerusform>
            <numerusform>%n %1 sont sortis aussitôt de la chambre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the event holds no points of %n %1</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>l’événement ne contient aucun point de %n %1</numerusform>
            <numerusform>l’événement ne contient aucun point de %n %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 est sorti de la chambre</numerusform>
            <numerusform>%n %1 sont sortis de la chambre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 are not detected</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 n’est pas détecté</numerusform>
            <numerusform>%n %1 ne sont pas détectés</numerusform>
        </translation>
    </message>
    <message>
        <source>No visible track</source>
        <translation>Aucune trace visible</translation>
    </message>
    <message>
        <source>No visible track: %1</source>
        <translation>Aucune trace visible&#xa0;: %1</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>turns clockwise</source>
        <translation>tourne dans le sens horaire</translation>
    </message>
    <message>
        <source>turns anticlockwise</source>
        <translation>tourne dans le sens antihoraire</translation>
    </message>
    <message>
        <source>too short to tell which way it turns</source>
        <translation>trop courte pour dire son sens</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Trace %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>particle, colour</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>événement %1</translation>
    </message>
    <message>
        <source>seed %1</source>
        <translation>graine %1</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks</source>
        <translation>
            <numerusform>%n trace</numerusform>
            <numerusform>%n traces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks on the xy plane</source>
        <translation>
            <numerusform>%n trace sur le plan xy</numerusform>
            <numerusform>%n traces sur le plan xy</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <comment>track: length, which way it turns</comment>
        <translation>%1&#xa0;: %2, %3</translation>
    </message>
    <message>
        <source>Not seen: %1</source>
        <translation>Invisible&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>velquon::GuideContents</name>
    <message>
        <source>Contents of the guide</source>
        <translation>Sommaire du guide</translation>
    </message>
</context>
<context>
    <name>velquon::GuideWindow</name>
    <message>
        <source>Velquon Guide</source>
        <translation>Guide de Velquon</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of this language; names the folder of its guide</comment>
        <translation>fr</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>La page précédente</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>The page that was left by Back</source>
        <translation>La page quittée par Retour</translation>
    </message>
    <message>
        <source>A−</source>
        <translation>A−</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texte plus petit</translation>
    </message>
    <message>
        <source>A+</source>
        <translation>A+</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texte plus grand</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Find in the guide (Ctrl+F)</source>
        <translation>Chercher dans le guide (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Chercher dans le guide</translation>
    </message>
    <message>
        <source>▲</source>
        <translation>▲</translation>
    </message>
    <message>
        <source>The place before</source>
        <translation>L’endroit précédent</translation>
    </message>
    <message>
        <source>▼</source>
        <translation>▼</translation>
    </message>
    <message>
        <source>The next place</source>
        <translation>L’endroit suivant</translation>
    </message>
    <message>
        <source>  %1 of %2  </source>
        <translation>  %1 sur %2  </translation>
    </message>
    <message>
        <source>  not found  </source>
        <translation>  introuvable  </translation>
    </message>
</context>
<context>
    <name>velquon::HistogramPanel</name>
    <message>
        <source>The library that draws histograms is not installed. The bins are in the table behind the other tab.</source>
        <translation>La bibliothèque qui dessine les histogrammes n’est pas installée. Les classes sont dans le tableau derrière l’autre onglet.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>The measured quantity that is shown</source>
        <translation>La grandeur mesurée qui est montrée</translation>
    </message>
    <message>
        <source>Number of bins</source>
        <translation>Nombre de classes</translation>
    </message>
    <message>
        <source>Number of bins; at 0 it goes by the values</source>
        <translation>Nombre de classes&#xa0;; à 0, il dépend des valeurs</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>The curve that is fitted to the values</source>
        <translation>La courbe ajustée aux valeurs</translation>
    </message>
    <message>
        <source>No curve</source>
        <translation>Pas de courbe</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentielle</translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation>Gaussienne</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>Bins of the histogram</source>
        <translation>Classes de l’histogramme</translation>
    </message>
    <message>
        <source>&amp;Bins:</source>
        <translation>&amp;Classes&#xa0;:</translation>
    </message>
    <message>
        <source>H&amp;istogram</source>
        <translation>H&amp;istogramme</translation>
    </message>
    <message>
        <source>B&amp;ins as a table</source>
        <translation>Classes en &amp;tableau</translation>
    </message>
    <message>
        <source>There are no measurements yet.</source>
        <translation>Il n’y a pas encore de mesures.</translation>
    </message>
    <message>
        <source>No values.</source>
        <translation>Aucune valeur.</translation>
    </message>
    <message>
        <source>One value, %1.</source>
        <translation>Une valeur, %1.</translation>
    </message>
    <message>
        <source>%1 values. Mean %2, spread %3.</source>
        <translation>%1 valeurs. Moyenne %2, dispersion %3.</translation>
    </message>
    <message>
        <source>Tracks that left the chamber, not in the bars: %1.</source>
        <translation>Traces sorties de la chambre, hors des barres&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. Tracks that left count with their lengths so far.</source>
        <translation>Exponentielle&#xa0;: longueur de désintégration %1. Les traces sorties comptent avec leur longueur jusque-là.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The longest possible lengths are allowed for.</source>
        <translation>Exponentielle&#xa0;: longueur de désintégration %1. Les plus grandes longueurs possibles sont prises en compte.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The chamber&apos;s walls are not allowed for.</source>
        <translation>Exponentielle&#xa0;: longueur de désintégration %1. Les parois de la chambre ne sont pas prises en compte.</translation>
    </message>
    <message>
        <source>Gaussian: mean %1, standard deviation %2.</source>
        <translation>Gaussienne&#xa0;: moyenne %1, écart-type %2.</translation>
    </message>
    <message>
        <source>No exponential fits these values.</source>
        <translation>Aucune exponentielle ne s’ajuste à ces valeurs.</translation>
    </message>
    <message>
        <source>A Gaussian needs two different values.</source>
        <translation>Une gaussienne demande deux valeurs différentes.</translation>
    </message>
    <message>
        <source>Number in a bin</source>
        <translation>Nombre par classe</translation>
    </message>
    <message>
        <source>%1, %2 bins from %3 to %4; most values, %5, from %6 to %7. %8</source>
        <translation>%1, %2 classes de %3 à %4&#xa0;; le plus de valeurs, %5, de %6 à %7. %8</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Curve in the middle</source>
        <translation>Courbe au milieu</translation>
    </message>
</context>
<context>
    <name>velquon::Legend</name>
    <message>
        <source>Decay of %1</source>
        <translation>Désintégration de %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>velquon::LegendStrip</name>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Legend: %1</source>
        <translation>Légende&#xa0;: %1</translation>
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
        <translation>Graine au &amp;hasard</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Make Events</source>
        <translation>Créer des événements</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Aucun événement</translation>
    </message>
    <message>
        <source>velquon-events made no events: %1.</source>
        <translation>velquon-events n’a créé aucun événement&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Decay length of the primary</source>
        <translation>Longueur de désintégration de la particule primaire</translation>
    </message>
    <message>
        <source>Momentum of the primary</source>
        <translation>Quantité de mouvement de la particule primaire</translation>
    </message>
    <message>
        <source>Transverse momentum of the primary</source>
        <translation>Quantité de mouvement transverse de la particule primaire</translation>
    </message>
    <message>
        <source>Momentum of the first charged product</source>
        <translation>Quantité de mouvement du premier produit chargé</translation>
    </message>
    <message>
        <source>Transverse momentum of the first charged product</source>
        <translation>Quantité de mouvement transverse du premier produit chargé</translation>
    </message>
    <message>
        <source>Number of visible tracks</source>
        <translation>Nombre de traces visibles</translation>
    </message>
    <message>
        <source>Other events each time; the seed is noted with them</source>
        <translation>D’autres événements à chaque fois&#xa0;; la graine est notée avec eux</translation>
    </message>
    <message>
        <source>Events made</source>
        <translation>Événements créés</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>É&amp;vénement&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Number of events:</source>
        <translation>&amp;Nombre d’événements&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>C&amp;hamp&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;ide of the chamber:</source>
        <translation>&amp;Côté de la chambre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy:</source>
        <translation>Énergie c&amp;inétique&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Seed:</source>
        <translation>&amp;Graine&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Quantity to note:</source>
        <translation>Gran&amp;deur à noter&#xa0;:</translation>
    </message>
    <message>
        <source>The program velquon-events, which makes them, is not installed.</source>
        <translation>Le programme velquon-events, qui les crée, n’est pas installé.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementColumns</name>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Field (kG)</source>
        <translation>Champ (kG)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>At most (cm)</source>
        <translation>Au plus (cm)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Un écart-type</translation>
    </message>
    <message>
        <source>Whether the track decayed or left the chamber. One that left counts in the exponential with its length so far. Double-click or F2 to edit</source>
        <translation>Si la particule s’est désintégrée ou a quitté la chambre. Une trace sortie compte dans l’exponentielle avec sa longueur jusque-là. Double-clic ou F2 pour modifier</translation>
    </message>
    <message>
        <source>The longest length that could have been seen in the chamber. Double-click or F2 to edit</source>
        <translation>La plus grande longueur qu’on aurait pu voir dans la chambre. Double-clic ou F2 pour modifier</translation>
    </message>
    <message>
        <source>Your own words. Double-click or F2 to edit</source>
        <translation>Vos propres mots. Double-clic ou F2 pour modifier</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>désintégrée</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sortie</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementFiles</name>
    <message>
        <source>it is no regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon ne peut pas écrire le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Save Measurements</source>
        <translation>Enregistrer les mesures</translation>
    </message>
    <message>
        <source>Tables of measurements (*.csv)</source>
        <translation>Tableaux de mesures (*.csv)</translation>
    </message>
    <message>
        <source>Open Measurements</source>
        <translation>Ouvrir des mesures</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>There are measurements that are not saved.</source>
        <translation>Des mesures ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Non ouvert</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1: %2.</source>
        <translation>Velquon ne peut pas lire le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1, line %2: %3.</source>
        <translation>Velquon ne peut pas lire le fichier %1, ligne %2&#xa0;: %3.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementsWindow</name>
    <message>
        <source>What became of the track</source>
        <translation>Ce que la trace est devenue</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Mesures</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Noter</translation>
    </message>
    <message>
        <source>Note what the projector&apos;s tool reads (Ctrl+Return)</source>
        <translation>Noter ce que mesure l’outil du projecteur (Ctrl+Retour)</translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation>&amp;Supprimer des lignes</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>O&amp;pen Measurements…</source>
        <translation>&amp;Ouvrir des mesures…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>A&amp;jouter des fichiers…</translation>
    </message>
    <message>
        <source>Append the rows of files, such as those of a class</source>
        <translation>Ajouter à la suite les lignes de fichiers, ceux d’une classe par exemple</translation>
    </message>
    <message>
        <source>&amp;Save Measurements…</source>
        <translation>&amp;Enregistrer les mesures…</translation>
    </message>
    <message>
        <source>&amp;Make Events…</source>
        <translation>&amp;Créer des événements…</translation>
    </message>
    <message>
        <source>Have many events made and note one quantity of each</source>
        <translation>Faire créer beaucoup d’événements et noter une grandeur de chacun</translation>
    </message>
    <message>
        <source>Save P&amp;lot…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>Choose the rows to delete.</source>
        <translation>Choisissez les lignes à supprimer.</translation>
    </message>
    <message>
        <source>Events made: %1. Rows noted: %2.</source>
        <translation>Événements créés&#xa0;: %1. Lignes notées&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Save Plot</source>
        <translation>Enregistrer le graphique</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;PDF documents (*.pdf)</source>
        <translation>Images PNG (*.png);;Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>Co&amp;pier des lignes</translation>
    </message>
    <message>
        <source>Choose the rows to copy.</source>
        <translation>Choisissez les lignes à copier.</translation>
    </message>
</context>
<context>
    <name>velquon::Model</name>
    <message>
        <source>Negative Pion</source>
        <translation>Pion négatif</translation>
    </message>
    <message>
        <source>Positive Pion</source>
        <translation>Pion positif</translation>
    </message>
    <message>
        <source>Neutral Pion</source>
        <translation>Pion neutre</translation>
    </message>
    <message>
        <source>Negative Muon</source>
        <translation>Muon négatif</translation>
    </message>
    <message>
        <source>Positive Muon</source>
        <translation>Muon positif</translation>
    </message>
    <message>
        <source>Lambda</source>
        <translation>Lambda</translation>
    </message>
    <message>
        <source>Positive pion</source>
        <translation>Pion positif</translation>
    </message>
    <message>
        <source>Negative pion</source>
        <translation>Pion négatif</translation>
    </message>
    <message>
        <source>Neutral pion</source>
        <translation>Pion neutre</translation>
    </message>
    <message>
        <source>Negative muon</source>
        <translation>Muon négatif</translation>
    </message>
    <message>
        <source>Positive muon</source>
        <translation>Muon positif</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Électron</translation>
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
        <translation>Neutrino et antineutrino</translation>
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
        <translation>désintégrée</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>paire</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sortie</translation>
    </message>
    <message>
        <source>full</source>
        <translation>plein</translation>
    </message>
    <message>
        <source>escaped</source>
        <translation>échappée</translation>
    </message>
    <message>
        <source>undetected</source>
        <translation>non détectée</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la ligne est trop longue</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>il y a trop de lignes</translation>
    </message>
    <message>
        <source>there are too many fields</source>
        <translation>il y a trop de champs</translation>
    </message>
    <message>
        <source>a carriage return stands alone</source>
        <translation>un retour chariot est seul</translation>
    </message>
    <message>
        <source>something follows a closing quotation mark</source>
        <translation>quelque chose suit un guillemet fermant</translation>
    </message>
    <message>
        <source>a quotation mark stands inside a field</source>
        <translation>un guillemet se trouve dans un champ</translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>un guillemet n’est pas fermé</translation>
    </message>
    <message>
        <source>it is not text in UTF-8</source>
        <translation>ce n’est pas du texte en UTF-8</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>il contient un octet nul</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
    <message>
        <source>converted to a pair</source>
        <translation>converti en paire</translation>
    </message>
    <message>
        <source>left the chamber</source>
        <translation>sortie de la chambre</translation>
    </message>
    <message>
        <source>cut: the event holds no more points</source>
        <translation>coupée&#xa0;: l’événement n’a plus de place pour des points</translation>
    </message>
    <message>
        <source>left unseen</source>
        <translation>sortie sans être vue</translation>
    </message>
    <message>
        <source>not detected</source>
        <translation>non détectée</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Bleu clair</translation>
    </message>
    <message>
        <source>it has %1 fields instead of %2</source>
        <translation>elle a %1 champs au lieu de %2</translation>
    </message>
    <message>
        <source>the row&apos;s number is none: &quot;%1&quot;</source>
        <translation>le numéro de la ligne n’en est pas un&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>no quantity has the name &quot;%1&quot;</source>
        <translation>aucune grandeur ne s’appelle «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>no plane has the name &quot;%1&quot;</source>
        <translation>aucun plan ne s’appelle «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the value is no finite number: &quot;%1&quot;</source>
        <translation>la valeur n’est pas un nombre fini&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the error is no finite number above or at 0: &quot;%1&quot;</source>
        <translation>l’erreur n’est pas un nombre fini positif ou nul&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the quantity has another unit than &quot;%1&quot;</source>
        <translation>la grandeur a une autre unité que «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the field is no finite number: &quot;%1&quot;</source>
        <translation>le champ n’est pas un nombre fini&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>no ending of a track has the name &quot;%1&quot;</source>
        <translation>aucune fin de trace ne s’appelle «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the longest length is no finite number above 0: &quot;%1&quot;</source>
        <translation>la plus grande longueur n’est pas un nombre fini supérieur à 0&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>these are not the names of a table of measurements</source>
        <translation>ce ne sont pas les noms d’un tableau de mesures</translation>
    </message>
    <message>
        <source>length</source>
        <translation>longueur</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>rayon</translation>
    </message>
    <message>
        <source>transverse momentum</source>
        <translation>quantité de mouvement transverse</translation>
    </message>
    <message>
        <source>sagitta</source>
        <translation>flèche</translation>
    </message>
    <message>
        <source>chord</source>
        <translation>corde</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>angle</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>degrés</translation>
    </message>
    <message>
        <source>decay length</source>
        <translation>longueur de désintégration</translation>
    </message>
    <message>
        <source>momentum</source>
        <translation>quantité de mouvement</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>traces</translation>
    </message>
    <message>
        <source>a finite field in kG</source>
        <translation>un champ fini en kG</translation>
    </message>
    <message>
        <source>a finite side in cm above 0</source>
        <translation>un côté fini en cm, supérieur à 0</translation>
    </message>
    <message>
        <source>a finite energy in MeV above 0</source>
        <translation>une énergie finie en MeV, supérieure à 0</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>Untitled Type %1 Decay</source>
        <translation>Désintégration sans titre de type %1</translation>
    </message>
</context>
<context>
    <name>velquon::PictureFiles</name>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon ne peut pas écrire le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 Chamber</source>
        <translation>%1 Chambre</translation>
    </message>
    <message>
        <source>%1 Projector</source>
        <translation>%1 Projecteur</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Fichiers %1 (*.%2)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>The graphics driver makes no picture of %1 × %2 pixels. Choose a smaller size.</source>
        <translation>Le pilote graphique ne fait pas d’image de %1 × %2 pixels. Choisissez une taille plus petite.</translation>
    </message>
</context>
<context>
    <name>velquon::PicturePanel</name>
    <message>
        <source>PNG: pixels, as on the screen</source>
        <translation>PNG&#xa0;: pixels, comme à l’écran</translation>
    </message>
    <message>
        <source>SVG: lines, black on white</source>
        <translation>SVG&#xa0;: lignes, noir sur blanc</translation>
    </message>
    <message>
        <source>PDF: lines, black on white</source>
        <translation>PDF&#xa0;: lignes, noir sur blanc</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>With the &amp;values of the event</source>
        <translation>Avec les &amp;valeurs de l’événement</translation>
    </message>
    <message>
        <source>With a &amp;legend below the picture</source>
        <translation>Avec une &amp;légende sous l’image</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>times the size on the screen</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Taille&#xa0;:</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>%1 × %2 points</source>
        <translation>%1 × %2 points</translation>
    </message>
</context>
<context>
    <name>velquon::PrintPanel</name>
    <message>
        <source>Looking for printers… The page can be saved as a PDF file.</source>
        <translation>Recherche d’imprimantes… La page peut être enregistrée en fichier PDF.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Aperçu de la page</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pier&#xa0;:</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Enregistrer en P&amp;DF…</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>Imp&amp;rimer…</translation>
    </message>
    <message>
        <source>The page can be printed or saved as a PDF file.</source>
        <translation>La page peut être imprimée ou enregistrée en fichier PDF.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. The page can be saved as a PDF file.</source>
        <translation>Aucune imprimante n’est installée sur cet ordinateur. La page peut être enregistrée en fichier PDF.</translation>
    </message>
    <message>
        <source>No print server answers. The page can be saved as a PDF file.</source>
        <translation>Aucun serveur d’impression ne répond. La page peut être enregistrée en fichier PDF.</translation>
    </message>
    <message>
        <source>Printers cannot be looked for, because the command lpstat is not installed (package cups-client). The page can be saved as a PDF file.</source>
        <translation>Les imprimantes ne peuvent pas être recherchées, car la commande lpstat n’est pas installée (paquet cups-client). La page peut être enregistrée en fichier PDF.</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Non imprimé</translation>
    </message>
    <message>
        <source>The printer %1 did not take the page.</source>
        <translation>L’imprimante %1 n’a pas accepté la page.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation>la page ne peut pas être dessinée</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon ne peut pas écrire le fichier %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::ProjectionFoot</name>
    <message>
        <source>%1 plane, zoom %2</source>
        <translation>plan %1, zoom %2</translation>
    </message>
    <message>
        <source>tape %1</source>
        <translation>ruban %1</translation>
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
        <translation>Projection</translation>
    </message>
    <message>
        <source>Part of the projection that is seen</source>
        <translation>Partie visible de la projection</translation>
    </message>
</context>
<context>
    <name>velquon::Readings</name>
    <message>
        <source>Set three points or more along a track.</source>
        <translation>Placez au moins trois points le long d’une trace.</translation>
    </message>
    <message>
        <source>Set two more points along the track.</source>
        <translation>Placez encore deux points le long de la trace.</translation>
    </message>
    <message>
        <source>Set one more point along the track.</source>
        <translation>Placez encore un point le long de la trace.</translation>
    </message>
    <message>
        <source>The points have to lie apart.</source>
        <translation>Les points doivent être distincts.</translation>
    </message>
    <message>
        <source>Set the vertex.</source>
        <translation>Placez le sommet.</translation>
    </message>
    <message>
        <source>Set a point of the first arm.</source>
        <translation>Placez un point du premier côté.</translation>
    </message>
    <message>
        <source>Set a point of the second arm.</source>
        <translation>Placez un point du second côté.</translation>
    </message>
    <message>
        <source>Set both ends of the tape.</source>
        <translation>Placez les deux bouts du ruban.</translation>
    </message>
    <message>
        <source>Take hold of the picture.</source>
        <translation>Saisissez l’image.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>droite</translation>
    </message>
</context>
<context>
    <name>velquon::RecordTree</name>
    <message>
        <source>Particle</source>
        <translation>Particule</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Devenir</translation>
    </message>
    <message>
        <source>p (MeV/c)</source>
        <translation>p (MeV/c)</translation>
    </message>
    <message>
        <source>Transverse p (MeV/c)</source>
        <translation>p transverse (MeV/c)</translation>
    </message>
    <message>
        <source>Radius (cm)</source>
        <translation>Rayon (cm)</translation>
    </message>
    <message>
        <source>Kinetic energy (MeV)</source>
        <translation>Énergie cinétique (MeV)</translation>
    </message>
    <message>
        <source>Flight (cm)</source>
        <translation>Parcours (cm)</translation>
    </message>
    <message>
        <source>Mean decay length (cm)</source>
        <translation>Longueur de désint. moyenne (cm)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
</context>
<context>
    <name>velquon::RecordWindow</name>
    <message>
        <source>H&amp;ide answers</source>
        <translation>Cac&amp;her les réponses</translation>
    </message>
    <message>
        <source>Re&amp;veal</source>
        <translation>&amp;Révéler</translation>
    </message>
    <message>
        <source>Event Record</source>
        <translation>Compte rendu de l’événement</translation>
    </message>
    <message>
        <source>Particles of the event</source>
        <translation>Particules de l’événement</translation>
    </message>
    <message>
        <source>Show only what is seen of an event, to measure it first</source>
        <translation>Ne montrer que ce qui se voit d’un événement, pour mesurer d’abord</translation>
    </message>
    <message>
        <source>Show what happened in this event</source>
        <translation>Montrer ce qui s’est passé dans cet événement</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Il n’y a pas encore d’événement.</translation>
    </message>
    <message>
        <source>This event comes from a file, which does not tell what happened in it. These are its tracks.</source>
        <translation>Cet événement vient d’un fichier, qui ne dit pas ce qui s’y est passé. Voici ses traces.</translation>
    </message>
    <message>
        <source>These tracks are seen. Reveal tells what happened.</source>
        <translation>Ces traces se voient. Révéler dit ce qui s’est passé.</translation>
    </message>
    <message>
        <source>Made with %1. Choose rows to mark their tracks in the other windows.</source>
        <translation>Créé avec %1. Choisissez des lignes pour marquer leurs traces dans les autres fenêtres.</translation>
    </message>
</context>
<context>
    <name>velquon::ShortcutsWindow</name>
    <message>
        <source>Everywhere</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Maj+Tab</translation>
    </message>
    <message>
        <source>To the next control, to the one before</source>
        <translation>À la commande suivante, à la précédente</translation>
    </message>
    <message>
        <source>Alt with an underlined letter</source>
        <translation>Alt avec une lettre soulignée</translation>
    </message>
    <message>
        <source>Open the menu, press the button</source>
        <translation>Ouvrir le menu, presser le bouton</translation>
    </message>
    <message>
        <source>Chamber</source>
        <translation>Chambre</translation>
    </message>
    <message>
        <source>Escape, Space</source>
        <translation>Échap, Espace</translation>
    </message>
    <message>
        <source>Stop the turntable</source>
        <translation>Arrêter la rotation</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>End a replay</source>
        <translation>Terminer une relecture</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Curseurs</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>By a tenth of a tick</source>
        <translation>D’un dixième de graduation</translation>
    </message>
    <message>
        <source>Page Up, Page Down</source>
        <translation>Page préc., Page suiv.</translation>
    </message>
    <message>
        <source>To the next tick</source>
        <translation>À la graduation suivante</translation>
    </message>
    <message>
        <source>Return on the label</source>
        <translation>Retour sur l’étiquette</translation>
    </message>
    <message>
        <source>Type a value</source>
        <translation>Taper une valeur</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>T, G, C, A</source>
        <translation>T, G, C, A</translation>
    </message>
    <message>
        <source>The tools Tape, Grab, Curve, Angle</source>
        <translation>Les outils Ruban, Saisir, Courbe, Angle</translation>
    </message>
    <message>
        <source>Z, Y, X</source>
        <translation>Z, Y, X</translation>
    </message>
    <message>
        <source>The planes xy, xz, yz</source>
        <translation>Les plans xy, xz, yz</translation>
    </message>
    <message>
        <source>1, 2, 3</source>
        <translation>1, 2, 3</translation>
    </message>
    <message>
        <source>The zooms</source>
        <translation>Les zooms</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Snap on and off</source>
        <translation>Aimanter&#xa0;: oui ou non</translation>
    </message>
    <message>
        <source>Projector&apos;s picture</source>
        <translation>Image du projecteur</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Flèches, avec Maj</translation>
    </message>
    <message>
        <source>Move the cross by one pixel, by ten</source>
        <translation>Déplacer la croix d’un pixel, de dix</translation>
    </message>
    <message>
        <source>Return, Space</source>
        <translation>Retour, Espace</translation>
    </message>
    <message>
        <source>Set a point, take hold, let go</source>
        <translation>Placer un point, saisir, lâcher</translation>
    </message>
    <message>
        <source>Delete, Backspace</source>
        <translation>Suppr, Retour arrière</translation>
    </message>
    <message>
        <source>Take the last point away</source>
        <translation>Enlever le dernier point</translation>
    </message>
    <message>
        <source>Give up, clear the points, hide the cross</source>
        <translation>Renoncer, effacer les points, cacher la croix</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Retour</translation>
    </message>
    <message>
        <source>Record what is measured</source>
        <translation>Noter ce qui est mesuré</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>Ctrl+F, F3, Shift+F3</source>
        <translation>Ctrl+F, F3, Maj+F3</translation>
    </message>
    <message>
        <source>Find, the next place, the place before</source>
        <translation>Chercher, endroit suivant, endroit précédent</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+0</source>
        <translation>Ctrl++, Ctrl+-, Ctrl+0</translation>
    </message>
    <message>
        <source>Larger, smaller, usual text</source>
        <translation>Texte plus grand, plus petit, habituel</translation>
    </message>
    <message>
        <source>Alt+Left, Alt+Right</source>
        <translation>Alt+Gauche, Alt+Droite</translation>
    </message>
    <message>
        <source>A page back, a page forward</source>
        <translation>Une page en arrière, une page en avant</translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>Menu %1</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Ce que cela fait</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>velquon::TrackController</name>
    <message>
        <source>De&amp;activate</source>
        <translation>&amp;Désactiver</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Activer</translation>
    </message>
</context>
<context>
    <name>velquon::TrackPanel</name>
    <message>
        <source>Track</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>The particle&apos;s track. Drag with the mouse to measure it.</source>
        <translation>La trace de la particule. Faites glisser la souris pour la mesurer.</translation>
    </message>
    <message>
        <source>Part of the track that is seen</source>
        <translation>Partie visible de la trace</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unités</translation>
    </message>
</context>
<context>
    <name>velquon::TrackStatus</name>
    <message>
        <source>The Track window is active: Track &gt; Deactivate gives the menus back.</source>
        <translation>La fenêtre Trace est active&#xa0;: Trace &gt; Désactiver rend les menus.</translation>
    </message>
</context>
<context>
    <name>velquon::TrackWindow</name>
    <message>
        <source>Live Track</source>
        <translation>Trace en direct</translation>
    </message>
</context>
<context>
    <name>velquon::ValueEditor</name>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 à %2 %3</translation>
    </message>
</context>
<context>
    <name>velquon::ValueLabel</name>
    <message>
        <source>Double click, or Return, to type a value</source>
        <translation>Double-clic, ou Retour, pour taper une valeur</translation>
    </message>
</context>
<context>
    <name>velquon::Worksheet</name>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save Worksheets</source>
        <translation>Enregistrer les fiches</translation>
    </message>
    <message>
        <source>Worksheets</source>
        <translation>Fiches de travail</translation>
    </message>
    <message>
        <source>Save Answers</source>
        <translation>Enregistrer les réponses</translation>
    </message>
    <message>
        <source>Worksheet Answers</source>
        <translation>Réponses aux fiches de travail</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>The worksheets and their answers need files of two names.</source>
        <translation>Les fiches et leurs réponses demandent deux fichiers de noms différents.</translation>
    </message>
    <message>
        <source>Making worksheets…</source>
        <translation>Création des fiches…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Print Worksheets</source>
        <translation>Imprimer des fiches de travail</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon ne peut pas écrire le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Worksheet %1</source>
        <translation>Fiche de travail %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Particule incidente&#xa0;: %1</translation>
    </message>
    <message>
        <source>Seed %1, event %2</source>
        <translation>Graine %1, événement %2</translation>
    </message>
    <message>
        <source>No magnetic field</source>
        <translation>Pas de champ magnétique</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, out of the paper</source>
        <translation>Champ magnétique de %1 kG, sortant du papier</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, into the paper</source>
        <translation>Champ magnétique de %1 kG, entrant dans le papier</translation>
    </message>
    <message>
        <source>No track is visible in this event.</source>
        <translation>Aucune trace n’est visible dans cet événement.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation>Qté de mouvement</translation>
    </message>
    <message>
        <source>MeV/c</source>
        <translation>MeV/c</translation>
    </message>
    <message>
        <source>Angle at its vertex</source>
        <translation>Angle au vertex</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>degrés</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Ruler in cm of the chamber. Printed at full size, 1 mm on the paper is %1 cm.</source>
        <translation>Règle en cm de la chambre. Imprimé à taille réelle, 1 mm sur le papier vaut %1 cm.</translation>
    </message>
</context>
<context>
    <name>velquon::WorksheetPanel</name>
    <message>
        <source>Print Worksheets</source>
        <translation>Imprimer des fiches de travail</translation>
    </message>
    <message>
        <source>With an &amp;answer key in a file of its own</source>
        <translation>Avec les &amp;réponses dans un fichier à part</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>É&amp;vénement&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>Magnetic &amp;field, kG:</source>
        <translation>C&amp;hamp magnétique, kG&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Side of the chamber, cm:</source>
        <translation>&amp;Côté de la chambre, cm&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy, MeV:</source>
        <translation>Énergie c&amp;inétique, MeV&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Number of worksheets:</source>
        <translation>&amp;Nombre de fiches&#xa0;:</translation>
    </message>
    <message>
        <source>See&amp;d:</source>
        <translation>&amp;Graine&#xa0;:</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF…</source>
        <translation>&amp;Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from 0 to 4294967295.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier de 0 à 4294967295.</translation>
    </message>
</context>
</TS>
