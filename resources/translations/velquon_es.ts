<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ChamberWindow</name>
    <message>
        <source>Particle Chamber: Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Energy range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range of the energy slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1000 to 10000 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 to 1000 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 to 100 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 to 10 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.1 to 1 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0.01 to 0.1 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 to 0.01 MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic field along z for the next event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chamber side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side of the cubic chamber for the next event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinetic energy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinetic energy of the incoming particle for the next event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation A&amp;xis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation &amp;Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window in Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scree&amp;n Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Event…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import PC Event…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Event…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport Points…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;Record…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print &amp;Worksheets…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make an event of the chosen kind with the values of the sliders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the event that was made or opened before this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the event that was made or opened after this one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the event again, point by point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ro&amp;tate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the chamber about its rotation axis; a click in the chamber stops it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;verse Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset &amp;Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring the chamber back to its resting position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Negative Pion π⁻</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Positive Pion π⁺</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral P&amp;ion π⁰</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative &amp;Muon μ⁻</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive M&amp;uon μ⁺</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lambda Λ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset &amp;Orientation for Each Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Slow Motion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Chamber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Inject Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Electron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Positron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left to Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right to Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;v</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;2v</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;3v</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Event Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon &amp;Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Velquon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectorWindow</name>
    <message>
        <source>Projector: Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project onto the xy plane, seen along z (Z)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>xy plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project onto the xz plane, seen along y (Y)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>xz plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project onto the yz plane, seen along x (X)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yz plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole chamber (1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enlarge two times (2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enlarge three times (3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure a distance: drag from one end to the other (T)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the picture about (G)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure a circle: set three points or more along a track (C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure an angle: set its vertex, then a point of each arm (A)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the points of curve and angle onto a near point of the event (S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put what is measured into the list of measurements (Ctrl+Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>About Velquon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Particle decays in a detector chamber in a magnetic field, made by chance and shown in space and in projection.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>track_panel</name>
    <message>
        <source>Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The particle&apos;s track. Drag with the mouse to measure it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength of the magnetic field; below zero it points the other way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field that the particle moves in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length measured by dragging in the picture; ten points of the picture are 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a particle into the field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the track; a particle that moves goes on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::AnswerKey</name>
    <message>
        <source>Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>p</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>p trans.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>p trans. is the momentum across the field: 0.3 B R for B in kG and the radius R in cm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lengths and angles are given in space and on the paper; the angle is that to the parent at the vertex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fates: decayed, left the chamber, or full: the track is cut where the event holds no more points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>straight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answers to the worksheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seed %1, events 1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no track is visible</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::Application</name>
    <message>
        <source>Nothing is measured: lay out a tool of the projector first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::ChamberController</name>
    <message>
        <source>Particle Chamber: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projector: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::ChamberView</name>
    <message>
        <source>The graphics driver did not hand the picture over.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::ChamberWindow</name>
    <message>
        <source>Kind of the next event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle chamber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the chamber that is seen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::EventDocuments</name>
    <message>
        <source>It is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event files (*.cwd)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import PC Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PC event files (*.cwd *.CWD *.txt *.TXT)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry, Velquon can&apos;t read this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You should know...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The event was created with the chamber&apos;s magnetic field set to a negative value.  The controls and display will show the absolute value of the field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t open the file it was started with: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no event file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::EventExports</name>
    <message>
        <source>Export Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables of points (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables of particles (*.csv);;HepMC3 records (*.hepmc3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::EventMaker</name>
    <message>
        <source>line %1 of its output can&apos;t be understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was ended before it was done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it ended with the status %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::GuideWindow</name>
    <message>
        <source>Velquon Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of this language; names the folder of its guide</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::HistogramPanel</name>
    <message>
        <source>The library that draws histograms is not installed. The bins are in the table behind the other tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The measured quantity that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of bins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of bins; at 0 it goes by the values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The curve that is fitted to the values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bins of the histogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;istogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;ins as a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no measurements yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One value, %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values. Mean %2, spread %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracks that left the chamber, not in the bars: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exponential: decay length %1. Tracks that left count with their lengths so far.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The longest possible lengths are allowed for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The chamber&apos;s walls are not allowed for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaussian: mean %1, standard deviation %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No exponential fits these values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A Gaussian needs two different values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number in a bin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 bins from %3 to %4; most values, %5, from %6 to %7. %8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve in the middle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::MakeEventsDialog</name>
    <message>
        <source> kG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> MeV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Random seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>velquon-events made no events: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decay length of the primary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Momentum of the primary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transverse momentum of the primary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Momentum of the first charged product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transverse momentum of the first charged product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of visible tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other events each time; the seed is noted with them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Number of events:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ide of the chamber:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kinetic energy:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Seed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quantity to note:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program velquon-events, which makes them, is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementColumns</name>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field (kG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most (cm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the track decayed or left the chamber. One that left counts in the exponential with its length so far. Double-click or F2 to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The longest length that could have been seen in the chamber. Double-click or F2 to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your own words. Double-click or F2 to edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>decayed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementFiles</name>
    <message>
        <source>it is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables of measurements (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are measurements that are not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1, line %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementsWindow</name>
    <message>
        <source>What became of the track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note what the projector&apos;s tool reads (Ctrl+Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;pen Measurements…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Append the rows of files, such as those of a class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Measurements…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make Events…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Have many events made and note one quantity of each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save P&amp;lot…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the rows to delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events made: %1. Rows noted: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;PDF documents (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::Model</name>
    <message>
        <source>Negative Pion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive Pion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral Pion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative Muon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive Muon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lambda</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive pion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative pion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral pion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative muon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positive muon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutrino</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Antineutrino</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutrino and antineutrino</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proton</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>decayed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>converted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>escaped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>undetected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are too many fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a carriage return stands alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something follows a closing quotation mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quotation mark stands inside a field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not text in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>converted to a pair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left the chamber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut: the event holds no more points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left unseen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 fields instead of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row&apos;s number is none: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no quantity has the name &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no plane has the name &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value is no finite number: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the error is no finite number above or at 0: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the quantity has another unit than &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field is no finite number: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no ending of a track has the name &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the longest length is no finite number above 0: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>these are not the names of a table of measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>transverse momentum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sagitta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>chord</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>decay length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>momentum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a finite field in kG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a finite side in cm above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a finite energy in MeV above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled Type %1 Decay</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::PrintPanel</name>
    <message>
        <source>Looking for printers… The page can be saved as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page can be printed or saved as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is set up on this computer. The page can be saved as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No print server answers. The page can be saved as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printers cannot be looked for, because the command lpstat is not installed (package cups-client). The page can be saved as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 did not take the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::ProjectorWindow</name>
    <message>
        <source>Projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the projection that is seen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::Readings</name>
    <message>
        <source>Set three points or more along a track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set two more points along the track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set one more point along the track.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The points have to lie apart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the vertex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set a point of the first arm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set a point of the second arm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set both ends of the tape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take hold of the picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>straight</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::RecordTree</name>
    <message>
        <source>Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>p (MeV/c)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transverse p (MeV/c)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius (cm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinetic energy (MeV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flight (cm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean decay length (cm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::RecordWindow</name>
    <message>
        <source>H&amp;ide answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;veal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particles of the event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only what is seen of an event, to measure it first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what happened in this event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This event comes from a file, which does not tell what happened in it. These are its tracks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These tracks are seen. Reveal tells what happened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made with %1. Choose rows to mark their tracks in the other windows.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::TrackController</name>
    <message>
        <source>De&amp;activate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::TrackStatus</name>
    <message>
        <source>The Track window is active: Track &gt; Deactivate gives the menus back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::TrackWindow</name>
    <message>
        <source>Track</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::ValueEditor</name>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::ValueLabel</name>
    <message>
        <source>Double click, or Return, to type a value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::Worksheet</name>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Worksheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worksheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worksheet Answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The worksheets and their answers need files of two names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making worksheets…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Worksheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worksheet %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seed %1, event %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No magnetic field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, out of the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, into the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No track is visible in this event.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MeV/c</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle at its vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ruler in cm of the chamber. Printed at full size, 1 mm on the paper is %1 cm.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velquon::WorksheetPanel</name>
    <message>
        <source>Print Worksheets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With an &amp;answer key in a file of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnetic &amp;field, kG:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Side of the chamber, cm:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kinetic energy, MeV:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Number of worksheets:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See&amp;d:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from 0 to 4294967295.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
