<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ChamberWindow</name>
    <message>
        <source>Particle Chamber: Empty</source>
        <translation>Cámara de partículas: Vacía</translation>
    </message>
    <message>
        <source>Ran&amp;ge:</source>
        <translation>&amp;Rango:</translation>
    </message>
    <message>
        <source>Energy range</source>
        <translation>Rango de energía</translation>
    </message>
    <message>
        <source>Range of the energy slider</source>
        <translation>Rango del regulador de energía</translation>
    </message>
    <message>
        <source>1000 to 10000 MeV</source>
        <translation>1000 a 10000 MeV</translation>
    </message>
    <message>
        <source>100 to 1000 MeV</source>
        <translation>100 a 1000 MeV</translation>
    </message>
    <message>
        <source>10 to 100 MeV</source>
        <translation>10 a 100 MeV</translation>
    </message>
    <message>
        <source>1 to 10 MeV</source>
        <translation>1 a 10 MeV</translation>
    </message>
    <message>
        <source>0.1 to 1 MeV</source>
        <translation>0.1 a 1 MeV</translation>
    </message>
    <message>
        <source>0.01 to 0.1 MeV</source>
        <translation>0.01 a 0.1 MeV</translation>
    </message>
    <message>
        <source>0 to 0.01 MeV</source>
        <translation>0 a 0.01 MeV</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Campo magnético</translation>
    </message>
    <message>
        <source>Magnetic field along z for the next event</source>
        <translation>Campo magnético según z para el próximo suceso</translation>
    </message>
    <message>
        <source>Chamber side</source>
        <translation>Lado de la cámara</translation>
    </message>
    <message>
        <source>Side of the cubic chamber for the next event</source>
        <translation>Lado de la cámara cúbica para el próximo suceso</translation>
    </message>
    <message>
        <source>Kinetic energy</source>
        <translation>Energía cinética</translation>
    </message>
    <message>
        <source>Kinetic energy of the incoming particle for the next event</source>
        <translation>Energía cinética de la partícula incidente para el próximo suceso</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>A&amp;cción</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Suceso</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>A&amp;justes</translation>
    </message>
    <message>
        <source>Rotation A&amp;xis</source>
        <translation>Eje de &amp;giro</translation>
    </message>
    <message>
        <source>Rotation &amp;Rate</source>
        <translation>Veloci&amp;dad de giro</translation>
    </message>
    <message>
        <source>&amp;Window in Front</source>
        <translation>Ventana al &amp;frente</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Traza</translation>
    </message>
    <message>
        <source>&amp;Particle</source>
        <translation>&amp;Partícula</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Sentido</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Velocidad</translation>
    </message>
    <message>
        <source>Scree&amp;n Speed</source>
        <translation>Velocidad de la panta&amp;lla</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Open Event…</source>
        <translation>A&amp;brir suceso…</translation>
    </message>
    <message>
        <source>&amp;Import PC Event…</source>
        <translation>&amp;Importar suceso de PC…</translation>
    </message>
    <message>
        <source>&amp;Save Event…</source>
        <translation>&amp;Guardar suceso…</translation>
    </message>
    <message>
        <source>E&amp;xport Points…</source>
        <translation>Exportar &amp;puntos…</translation>
    </message>
    <message>
        <source>Export &amp;Record…</source>
        <translation>Exportar &amp;registro…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>I&amp;mprimir…</translation>
    </message>
    <message>
        <source>Print &amp;Worksheets…</source>
        <translation>Imprimir &amp;hojas de trabajo…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;New Event</source>
        <translation>&amp;Nuevo suceso</translation>
    </message>
    <message>
        <source>Make an event of the chosen kind with the values of the sliders</source>
        <translation>Crear un suceso del tipo elegido con los valores de los reguladores</translation>
    </message>
    <message>
        <source>&amp;Previous Event</source>
        <translation>Suceso &amp;anterior</translation>
    </message>
    <message>
        <source>Show the event that was made or opened before this one</source>
        <translation>Mostrar el suceso creado o abierto antes de este</translation>
    </message>
    <message>
        <source>Ne&amp;xt Event</source>
        <translation>Suceso &amp;siguiente</translation>
    </message>
    <message>
        <source>Show the event that was made or opened after this one</source>
        <translation>Mostrar el suceso creado o abierto después de este</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>Show the event again, point by point</source>
        <translation>Mostrar otra vez el suceso, punto por punto</translation>
    </message>
    <message>
        <source>Ro&amp;tate</source>
        <translation>&amp;Girar</translation>
    </message>
    <message>
        <source>Turn the chamber about its rotation axis; a click in the chamber stops it</source>
        <translation>Girar la cámara alrededor de su eje; un clic en la cámara la detiene</translation>
    </message>
    <message>
        <source>Re&amp;verse Rotation</source>
        <translation>Girar al re&amp;vés</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation</source>
        <translation>&amp;Orientación inicial</translation>
    </message>
    <message>
        <source>Bring the chamber back to its resting position</source>
        <translation>Devolver la cámara a su posición de reposo</translation>
    </message>
    <message>
        <source>&amp;Negative Pion π⁻</source>
        <translation>Pion &amp;negativo π⁻</translation>
    </message>
    <message>
        <source>&amp;Positive Pion π⁺</source>
        <translation>Pion &amp;positivo π⁺</translation>
    </message>
    <message>
        <source>Neutral P&amp;ion π⁰</source>
        <translation>P&amp;ion neutro π⁰</translation>
    </message>
    <message>
        <source>Negative &amp;Muon μ⁻</source>
        <translation>&amp;Muon negativo μ⁻</translation>
    </message>
    <message>
        <source>Positive M&amp;uon μ⁺</source>
        <translation>M&amp;uon positivo μ⁺</translation>
    </message>
    <message>
        <source>&amp;Lambda Λ</source>
        <translation>&amp;Lambda Λ</translation>
    </message>
    <message>
        <source>Kind of the next event</source>
        <translation>Tipo del próximo suceso</translation>
    </message>
    <message>
        <source>Show &amp;Axes</source>
        <translation>Mostrar los &amp;ejes</translation>
    </message>
    <message>
        <source>Show &amp;Values</source>
        <translation>Mostrar los &amp;valores</translation>
    </message>
    <message>
        <source>Reset &amp;Orientation for Each Event</source>
        <translation>&amp;Orientación inicial en cada suceso</translation>
    </message>
    <message>
        <source>&amp;Slow Motion</source>
        <translation>Cámara &amp;lenta</translation>
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
        <translation>Más &amp;rápida</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Más &amp;lenta</translation>
    </message>
    <message>
        <source>&amp;Chamber</source>
        <translation>&amp;Cámara</translation>
    </message>
    <message>
        <source>&amp;Projector</source>
        <translation>&amp;Proyector</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Activar</translation>
    </message>
    <message>
        <source>&amp;Inject Particle</source>
        <translation>&amp;Inyectar partícula</translation>
    </message>
    <message>
        <source>&amp;Clear Screen</source>
        <translation>&amp;Borrar la pantalla</translation>
    </message>
    <message>
        <source>&amp;Electron</source>
        <translation>&amp;Electrón</translation>
    </message>
    <message>
        <source>&amp;Positron</source>
        <translation>&amp;Positrón</translation>
    </message>
    <message>
        <source>&amp;Left to Right</source>
        <translation>De &amp;izquierda a derecha</translation>
    </message>
    <message>
        <source>&amp;Right to Left</source>
        <translation>De &amp;derecha a izquierda</translation>
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
        <translation>&amp;Registro del suceso</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Mediciones</translation>
    </message>
    <message>
        <source>Velquon &amp;Guide</source>
        <translation>&amp;Guía de Velquon</translation>
    </message>
    <message>
        <source>&amp;About Velquon</source>
        <translation>&amp;Acerca de Velquon</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>Atajos de &amp;teclado</translation>
    </message>
    <message>
        <source>Save Pic&amp;ture…</source>
        <translation>Guardar im&amp;agen…</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>&amp;Copiar imagen</translation>
    </message>
    <message>
        <source>Prese&amp;ntation</source>
        <translation>Pre&amp;sentación</translation>
    </message>
    <message>
        <source>Show the view in front over the whole screen; Escape ends it</source>
        <translation>Mostrar la vista del frente en toda la pantalla; Escape termina</translation>
    </message>
    <message>
        <source>Show &amp;Legend</source>
        <translation>Mostrar la le&amp;yenda</translation>
    </message>
    <message>
        <source>Axis L&amp;etters</source>
        <translation>Letras de los e&amp;jes</translation>
    </message>
    <message>
        <source>&amp;Field Arrow</source>
        <translation>Flecha del &amp;campo</translation>
    </message>
    <message>
        <source>&amp;Colored Tracks in Projector</source>
        <translation>&amp;Trazas de color en el proyector</translation>
    </message>
</context>
<context>
    <name>ProjectorWindow</name>
    <message>
        <source>Projector: Empty</source>
        <translation>Proyector: Vacía</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Project onto the xy plane, seen along z (Z)</source>
        <translation>Proyectar sobre el plano xy, visto según z (Z)</translation>
    </message>
    <message>
        <source>xy plane</source>
        <translation>plano xy</translation>
    </message>
    <message>
        <source>Project onto the xz plane, seen along y (Y)</source>
        <translation>Proyectar sobre el plano xz, visto según y (Y)</translation>
    </message>
    <message>
        <source>xz plane</source>
        <translation>plano xz</translation>
    </message>
    <message>
        <source>Project onto the yz plane, seen along x (X)</source>
        <translation>Proyectar sobre el plano yz, visto según x (X)</translation>
    </message>
    <message>
        <source>yz plane</source>
        <translation>plano yz</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show the whole chamber (1)</source>
        <translation>Mostrar toda la cámara (1)</translation>
    </message>
    <message>
        <source>Zoom 1</source>
        <translation>Zoom 1</translation>
    </message>
    <message>
        <source>Enlarge two times (2)</source>
        <translation>Ampliar dos veces (2)</translation>
    </message>
    <message>
        <source>Zoom 2</source>
        <translation>Zoom 2</translation>
    </message>
    <message>
        <source>Enlarge three times (3)</source>
        <translation>Ampliar tres veces (3)</translation>
    </message>
    <message>
        <source>Zoom 3</source>
        <translation>Zoom 3</translation>
    </message>
    <message>
        <source>Measure a distance: drag from one end to the other (T)</source>
        <translation>Medir una distancia: arrastre de un extremo al otro (T)</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Cinta</translation>
    </message>
    <message>
        <source>Drag the picture about (G)</source>
        <translation>Desplazar la imagen (G)</translation>
    </message>
    <message>
        <source>Grab</source>
        <translation>Agarrar</translation>
    </message>
    <message>
        <source>Measure a circle: set three points or more along a track (C)</source>
        <translation>Medir un círculo: ponga tres puntos o más a lo largo de una traza (C)</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Measure an angle: set its vertex, then a point of each arm (A)</source>
        <translation>Medir un ángulo: ponga su vértice y luego un punto de cada lado (A)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Set the points of curve and angle onto a near point of the event (S)</source>
        <translation>Poner los puntos de la curva y del ángulo sobre un punto cercano del suceso (S)</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Put what is measured into the list of measurements (Ctrl+Return)</source>
        <translation>Poner lo medido en la lista de mediciones (Ctrl+Retorno)</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Anotar</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>About Velquon</source>
        <translation>Acerca de Velquon</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Particle decays in a detector chamber in a magnetic field, made by chance and shown in space and in projection.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Velquon %1&lt;/h3&gt;&lt;p&gt;Desintegraciones de partículas en una cámara detectora dentro de un campo magnético, hechas al azar y mostradas en el espacio y en proyección.&lt;/p&gt;</translation>
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
        <translation>Intensidad del campo magnético; por debajo de cero apunta en sentido contrario</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Campo magnético</translation>
    </message>
    <message>
        <source>field</source>
        <translation>campo</translation>
    </message>
    <message>
        <source>The field that the particle moves in</source>
        <translation>El campo en el que se mueve la partícula</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Cinta</translation>
    </message>
    <message>
        <source>Send a particle into the field</source>
        <translation>Enviar una partícula al campo</translation>
    </message>
    <message>
        <source>Inject</source>
        <translation>Inyectar</translation>
    </message>
    <message>
        <source>Clear the track; a particle that moves goes on</source>
        <translation>Borrar la traza; una partícula en vuelo sigue adelante</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>In the field B₀ a particle of speed v runs on a circle with a radius of 2 units of the tape</source>
        <translation>En el campo B₀ una partícula de velocidad v recorre un círculo con un radio de 2 unidades de la cinta</translation>
    </message>
    <message>
        <source>Length measured by dragging in the picture</source>
        <translation>Longitud medida arrastrando en la imagen</translation>
    </message>
    <message>
        <source>A unit is ten points of the picture</source>
        <translation>Una unidad son diez puntos de la imagen</translation>
    </message>
    <message>
        <source>Particle:</source>
        <translation>Partícula:</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Partícula</translation>
    </message>
    <message>
        <source>The particle that is sent into the field</source>
        <translation>La partícula que se envía al campo</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Electrón</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positrón</translation>
    </message>
    <message>
        <source>Direction:</source>
        <translation>Sentido:</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>The way that the particle comes</source>
        <translation>El sentido en que viene la partícula</translation>
    </message>
    <message>
        <source>Left to Right</source>
        <translation>Hacia la derecha</translation>
    </message>
    <message>
        <source>Right to Left</source>
        <translation>Hacia la izquierda</translation>
    </message>
    <message>
        <source>Speed:</source>
        <translation>Velocidad:</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>With v a particle goes one unit of the tape in ten steps</source>
        <translation>Con v una partícula recorre una unidad de la cinta en diez pasos</translation>
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
        <translation>Hoja</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Partícula</translation>
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
        <translation>Radio</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>on paper</source>
        <translation>en papel</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>p trans. is the momentum across the field: 0.3 B R for B in kG and the radius R in cm.</source>
        <translation>p trans. es la cantidad de movimiento transversal al campo: 0.3 B R con B en kG y el radio R en cm.</translation>
    </message>
    <message>
        <source>Lengths and angles are given in space and on the paper; the angle is that to the parent at the vertex.</source>
        <translation>Longitudes y ángulos en el espacio y en el papel; el ángulo es con la partícula madre en el vértice.</translation>
    </message>
    <message>
        <source>Fates: decayed, left the chamber, or full: the track is cut where the event holds no more points.</source>
        <translation>Destino: desintegrada, salió (de la cámara) o lleno: traza cortada, el suceso no admite más puntos.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>recta</translation>
    </message>
    <message>
        <source>Answers to the worksheets</source>
        <translation>Soluciones de las hojas de trabajo</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Partícula incidente: %1</translation>
    </message>
    <message>
        <source>Seed %1, events 1 to %2</source>
        <translation>Semilla %1, sucesos 1 a %2</translation>
    </message>
    <message>
        <source>no track is visible</source>
        <translation>no se ve ninguna traza</translation>
    </message>
</context>
<context>
    <name>velquon::Application</name>
    <message>
        <source>Nothing is measured: lay out a tool of the projector first.</source>
        <translation>No hay nada medido: coloque antes una herramienta del proyector.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberController</name>
    <message>
        <source>Particle Chamber: %1</source>
        <translation>Cámara de partículas: %1</translation>
    </message>
    <message>
        <source>Projector: %1</source>
        <translation>Proyector: %1</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberView</name>
    <message>
        <source>The graphics driver did not hand the picture over.</source>
        <translation>El controlador gráfico no entregó la imagen.</translation>
    </message>
</context>
<context>
    <name>velquon::ChamberWindow</name>
    <message>
        <source>Particle chamber</source>
        <translation>Cámara de partículas</translation>
    </message>
    <message>
        <source>Part of the chamber that is seen</source>
        <translation>Parte visible de la cámara</translation>
    </message>
</context>
<context>
    <name>velquon::EventDocuments</name>
    <message>
        <source>It is a folder</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>It is no regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>Save Event</source>
        <translation>Guardar suceso</translation>
    </message>
    <message>
        <source>Event files (*.cwd)</source>
        <translation>Archivos de sucesos (*.cwd)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon no puede escribir el archivo %1: %2.</translation>
    </message>
    <message>
        <source>Import PC Event</source>
        <translation>Importar suceso de PC</translation>
    </message>
    <message>
        <source>PC event files (*.cwd *.CWD *.txt *.TXT)</source>
        <translation>Archivos de sucesos de PC (*.cwd *.CWD *.txt *.TXT)</translation>
    </message>
    <message>
        <source>Open Event</source>
        <translation>Abrir suceso</translation>
    </message>
    <message>
        <source>Bad data</source>
        <translation>Datos erróneos</translation>
    </message>
    <message>
        <source>Wrong format</source>
        <translation>Formato incorrecto</translation>
    </message>
    <message>
        <source>Sorry, Velquon can&apos;t read this file.</source>
        <translation>Lo sentimos, Velquon no puede leer este archivo.</translation>
    </message>
    <message>
        <source>You should know...</source>
        <translation>Conviene saber...</translation>
    </message>
    <message>
        <source>The event was created with the chamber&apos;s magnetic field set to a negative value.  The controls and display will show the absolute value of the field.</source>
        <translation>El suceso se creó con un valor negativo del campo magnético de la cámara. Los controles y la pantalla mostrarán el valor absoluto del campo.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>No abierto</translation>
    </message>
    <message>
        <source>Velquon can&apos;t open the file it was started with: %1.</source>
        <translation>Velquon no puede abrir el archivo con el que se inició: %1.</translation>
    </message>
    <message>
        <source>It is no event file</source>
        <translation>No es un archivo de suceso</translation>
    </message>
</context>
<context>
    <name>velquon::EventExports</name>
    <message>
        <source>Export Points</source>
        <translation>Exportar puntos</translation>
    </message>
    <message>
        <source>Tables of points (*.csv)</source>
        <translation>Tablas de puntos (*.csv)</translation>
    </message>
    <message>
        <source>Export Record</source>
        <translation>Exportar registro</translation>
    </message>
    <message>
        <source>Tables of particles (*.csv);;HepMC3 records (*.hepmc3)</source>
        <translation>Tablas de partículas (*.csv);;Registros HepMC3 (*.hepmc3)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon no puede escribir el archivo %1: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::EventMaker</name>
    <message>
        <source>line %1 of its output can&apos;t be understood</source>
        <translation>la línea %1 de su salida no se entiende</translation>
    </message>
    <message>
        <source>it was ended before it was done</source>
        <translation>fue terminado antes de acabar</translation>
    </message>
    <message>
        <source>it ended with the status %1</source>
        <translation>terminó con el código %1</translation>
    </message>
</context>
<context>
    <name>velquon::EventTelling</name>
    <message>
        <source>Choose an event and press New Event (%1).</source>
        <translation>Elija un suceso y pulse Nuevo suceso (%1).</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Todavía no hay ningún suceso.</translation>
    </message>
</context>
<context>
    <name>velquon::EventText</name>
    <message>
        <source>the %1 decayed</source>
        <comment>symbol of a particle</comment>
        <translation>el %1 se desintegró</translation>
    </message>
    <message>
        <source>the %1 converted to a pair</source>
        <comment>symbol of a particle</comment>
        <translation>el %1 se convirtió en un par</translation>
    </message>
    <message>
        <source>the %1 left the chamber at once</source>
        <comment>symbol of a particle</comment>
        <translation>el %1 salió enseguida de la cámara</translation>
    </message>
    <message>
        <source>the event holds no points of the %1</source>
        <comment>symbol of a particle</comment>
        <translation>el suceso no contiene puntos del %1</translation>
    </message>
    <message>
        <source>the %1 left the chamber</source>
        <comment>symbol of a particle</comment>
        <translation>el %1 salió de la cámara</translation>
    </message>
    <message>
        <source>the %1 is not detected</source>
        <comment>symbol of a particle</comment>
        <translation>el %1 no se detecta</translation>
    </message>
    <message numerus="yes">
        <source>%n %1 decayed</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 se desintegró</numerusform>
            <numerusform>%n %1 se desintegraron</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 converted to pairs</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 se convirtió en un par</numerusform>
            <numerusform>%n %1 se convirtieron en pares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber at once</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 salió enseguida de la cámara</numerusform>
            <numerusform>%n %1 salieron enseguida de la cámara</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the event holds no points of %n %1</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>el suceso no contiene puntos de %n %1</numerusform>
            <numerusform>el suceso no contiene puntos de %n %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 left the chamber</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 salió de la cámara</numerusform>
            <numerusform>%n %1 salieron de la cámara</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n %1 are not detected</source>
        <comment>symbol of particles</comment>
        <translation>
            <numerusform>%n %1 no se detecta</numerusform>
            <numerusform>%n %1 no se detectan</numerusform>
        </translation>
    </message>
    <message>
        <source>No visible track</source>
        <translation>Ninguna traza visible</translation>
    </message>
    <message>
        <source>No visible track: %1</source>
        <translation>Ninguna traza visible: %1</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>recta</translation>
    </message>
    <message>
        <source>turns clockwise</source>
        <translation>gira en sentido horario</translation>
    </message>
    <message>
        <source>turns anticlockwise</source>
        <translation>gira en sentido antihorario</translation>
    </message>
    <message>
        <source>too short to tell which way it turns</source>
        <translation>demasiado corta para saber hacia dónde gira</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Traza %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>particle, colour</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>suceso %1</translation>
    </message>
    <message>
        <source>seed %1</source>
        <translation>semilla %1</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n punto</numerusform>
            <numerusform>%n puntos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks</source>
        <translation>
            <numerusform>%n traza</numerusform>
            <numerusform>%n trazas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tracks on the xy plane</source>
        <translation>
            <numerusform>%n traza en el plano xy</numerusform>
            <numerusform>%n trazas en el plano xy</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <comment>track: length, which way it turns</comment>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Not seen: %1</source>
        <translation>No se ve: %1</translation>
    </message>
</context>
<context>
    <name>velquon::GuideContents</name>
    <message>
        <source>Contents of the guide</source>
        <translation>Índice de la guía</translation>
    </message>
</context>
<context>
    <name>velquon::GuideWindow</name>
    <message>
        <source>Velquon Guide</source>
        <translation>Guía de Velquon</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of this language; names the folder of its guide</comment>
        <translation>es</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>La página anterior</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>The page that was left by Back</source>
        <translation>La página que se dejó con Atrás</translation>
    </message>
    <message>
        <source>A−</source>
        <translation>A−</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Texto más pequeño</translation>
    </message>
    <message>
        <source>A+</source>
        <translation>A+</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Texto más grande</translation>
    </message>
    <message>
        <source>Ctrl+=</source>
        <translation>Ctrl+=</translation>
    </message>
    <message>
        <source>Find in the guide (Ctrl+F)</source>
        <translation>Buscar en la guía (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Buscar en la guía</translation>
    </message>
    <message>
        <source>▲</source>
        <translation>▲</translation>
    </message>
    <message>
        <source>The place before</source>
        <translation>El lugar anterior</translation>
    </message>
    <message>
        <source>▼</source>
        <translation>▼</translation>
    </message>
    <message>
        <source>The next place</source>
        <translation>El lugar siguiente</translation>
    </message>
    <message>
        <source>  %1 of %2  </source>
        <translation>  %1 de %2  </translation>
    </message>
    <message>
        <source>  not found  </source>
        <translation>  no encontrado  </translation>
    </message>
</context>
<context>
    <name>velquon::HistogramPanel</name>
    <message>
        <source>The library that draws histograms is not installed. The bins are in the table behind the other tab.</source>
        <translation>La biblioteca que dibuja los histogramas no está instalada. Las clases están en la tabla tras la otra pestaña.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>The measured quantity that is shown</source>
        <translation>La magnitud medida que se muestra</translation>
    </message>
    <message>
        <source>Number of bins</source>
        <translation>Número de clases</translation>
    </message>
    <message>
        <source>Number of bins; at 0 it goes by the values</source>
        <translation>Número de clases; con 0 depende de los valores</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>The curve that is fitted to the values</source>
        <translation>La curva que se ajusta a los valores</translation>
    </message>
    <message>
        <source>No curve</source>
        <translation>Sin curva</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponencial</translation>
    </message>
    <message>
        <source>Gaussian</source>
        <translation>Gaussiana</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histograma</translation>
    </message>
    <message>
        <source>Bins of the histogram</source>
        <translation>Clases del histograma</translation>
    </message>
    <message>
        <source>&amp;Bins:</source>
        <translation>&amp;Clases:</translation>
    </message>
    <message>
        <source>H&amp;istogram</source>
        <translation>H&amp;istograma</translation>
    </message>
    <message>
        <source>B&amp;ins as a table</source>
        <translation>Clases en una &amp;tabla</translation>
    </message>
    <message>
        <source>There are no measurements yet.</source>
        <translation>Todavía no hay mediciones.</translation>
    </message>
    <message>
        <source>No values.</source>
        <translation>Ningún valor.</translation>
    </message>
    <message>
        <source>One value, %1.</source>
        <translation>Un valor, %1.</translation>
    </message>
    <message>
        <source>%1 values. Mean %2, spread %3.</source>
        <translation>%1 valores. Media %2, dispersión %3.</translation>
    </message>
    <message>
        <source>Tracks that left the chamber, not in the bars: %1.</source>
        <translation>Trazas que salieron de la cámara, fuera de las barras: %1.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. Tracks that left count with their lengths so far.</source>
        <translation>Exponencial: longitud de desintegración %1. Las trazas que salieron cuentan con su longitud hasta ahí.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The longest possible lengths are allowed for.</source>
        <translation>Exponencial: longitud de desintegración %1. Se tienen en cuenta las mayores longitudes posibles.</translation>
    </message>
    <message>
        <source>Exponential: decay length %1. The chamber&apos;s walls are not allowed for.</source>
        <translation>Exponencial: longitud de desintegración %1. No se tienen en cuenta las paredes de la cámara.</translation>
    </message>
    <message>
        <source>Gaussian: mean %1, standard deviation %2.</source>
        <translation>Gaussiana: media %1, desviación típica %2.</translation>
    </message>
    <message>
        <source>No exponential fits these values.</source>
        <translation>Ninguna exponencial se ajusta a estos valores.</translation>
    </message>
    <message>
        <source>A Gaussian needs two different values.</source>
        <translation>Una gaussiana necesita dos valores distintos.</translation>
    </message>
    <message>
        <source>Number in a bin</source>
        <translation>Número por clase</translation>
    </message>
    <message>
        <source>%1, %2 bins from %3 to %4; most values, %5, from %6 to %7. %8</source>
        <translation>%1, %2 clases de %3 a %4; la mayoría de los valores, %5, de %6 a %7. %8</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Curve in the middle</source>
        <translation>Curva en el centro</translation>
    </message>
</context>
<context>
    <name>velquon::Legend</name>
    <message>
        <source>Decay of %1</source>
        <translation>Desintegración de %1</translation>
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
        <translation>Leyenda</translation>
    </message>
    <message>
        <source>Legend: %1</source>
        <translation>Leyenda: %1</translation>
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
        <translation>Semilla al a&amp;zar</translation>
    </message>
    <message>
        <source>&amp;Make</source>
        <translation>C&amp;rear</translation>
    </message>
    <message>
        <source>Make Events</source>
        <translation>Crear sucesos</translation>
    </message>
    <message>
        <source>No events</source>
        <translation>Ningún suceso</translation>
    </message>
    <message>
        <source>velquon-events made no events: %1.</source>
        <translation>velquon-events no creó ningún suceso: %1.</translation>
    </message>
    <message>
        <source>Decay length of the primary</source>
        <translation>Longitud de desintegración de la primaria</translation>
    </message>
    <message>
        <source>Momentum of the primary</source>
        <translation>Cantidad de movimiento de la primaria</translation>
    </message>
    <message>
        <source>Transverse momentum of the primary</source>
        <translation>Cantidad de movimiento transversal de la primaria</translation>
    </message>
    <message>
        <source>Momentum of the first charged product</source>
        <translation>Cantidad de movimiento del primer producto cargado</translation>
    </message>
    <message>
        <source>Transverse momentum of the first charged product</source>
        <translation>Cantidad de movimiento transversal del primer producto cargado</translation>
    </message>
    <message>
        <source>Number of visible tracks</source>
        <translation>Número de trazas visibles</translation>
    </message>
    <message>
        <source>Other events each time; the seed is noted with them</source>
        <translation>Otros sucesos cada vez; la semilla se anota con ellos</translation>
    </message>
    <message>
        <source>Events made</source>
        <translation>Sucesos creados</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>&amp;Suceso:</translation>
    </message>
    <message>
        <source>&amp;Number of events:</source>
        <translation>&amp;Número de sucesos:</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>&amp;Campo:</translation>
    </message>
    <message>
        <source>S&amp;ide of the chamber:</source>
        <translation>&amp;Lado de la cámara:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy:</source>
        <translation>&amp;Energía cinética:</translation>
    </message>
    <message>
        <source>&amp;Seed:</source>
        <translation>Se&amp;milla:</translation>
    </message>
    <message>
        <source>&amp;Quantity to note:</source>
        <translation>Ma&amp;gnitud que anotar:</translation>
    </message>
    <message>
        <source>The program velquon-events, which makes them, is not installed.</source>
        <translation>El programa velquon-events, que los crea, no está instalado.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementColumns</name>
    <message>
        <source>Event</source>
        <translation>Suceso</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Field (kG)</source>
        <translation>Campo (kG)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>At most (cm)</source>
        <translation>Máximo (cm)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>One standard deviation</source>
        <translation>Una desviación típica</translation>
    </message>
    <message>
        <source>Whether the track decayed or left the chamber. One that left counts in the exponential with its length so far. Double-click or F2 to edit</source>
        <translation>Si la partícula se desintegró o salió de la cámara. Una traza que salió cuenta en la exponencial con su longitud hasta ahí. Doble clic o F2 para cambiarlo</translation>
    </message>
    <message>
        <source>The longest length that could have been seen in the chamber. Double-click or F2 to edit</source>
        <translation>La mayor longitud que se habría podido ver en la cámara. Doble clic o F2 para cambiarla</translation>
    </message>
    <message>
        <source>Your own words. Double-click or F2 to edit</source>
        <translation>Sus propias palabras. Doble clic o F2 para cambiarlas</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>desintegrada</translation>
    </message>
    <message>
        <source>left</source>
        <translation>salió</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementFiles</name>
    <message>
        <source>it is no regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon no puede escribir el archivo %1: %2.</translation>
    </message>
    <message>
        <source>Save Measurements</source>
        <translation>Guardar mediciones</translation>
    </message>
    <message>
        <source>Tables of measurements (*.csv)</source>
        <translation>Tablas de mediciones (*.csv)</translation>
    </message>
    <message>
        <source>Open Measurements</source>
        <translation>Abrir mediciones</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mediciones</translation>
    </message>
    <message>
        <source>There are measurements that are not saved.</source>
        <translation>Hay mediciones sin guardar.</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>No abierto</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1: %2.</source>
        <translation>Velquon no puede leer el archivo %1: %2.</translation>
    </message>
    <message>
        <source>Velquon can&apos;t read the file %1, line %2: %3.</source>
        <translation>Velquon no puede leer el archivo %1, línea %2: %3.</translation>
    </message>
</context>
<context>
    <name>velquon::MeasurementsWindow</name>
    <message>
        <source>What became of the track</source>
        <translation>Qué fue de la traza</translation>
    </message>
    <message>
        <source>&amp;Measurements</source>
        <translation>&amp;Mediciones</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Mediciones</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Anotar</translation>
    </message>
    <message>
        <source>Note what the projector&apos;s tool reads (Ctrl+Return)</source>
        <translation>Anotar lo que mide la herramienta del proyector (Ctrl+Retorno)</translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation>&amp;Eliminar filas</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>O&amp;pen Measurements…</source>
        <translation>A&amp;brir mediciones…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Añadir archi&amp;vos…</translation>
    </message>
    <message>
        <source>Append the rows of files, such as those of a class</source>
        <translation>Añadir al final las filas de archivos, por ejemplo los de una clase</translation>
    </message>
    <message>
        <source>&amp;Save Measurements…</source>
        <translation>&amp;Guardar mediciones…</translation>
    </message>
    <message>
        <source>&amp;Make Events…</source>
        <translation>&amp;Crear sucesos…</translation>
    </message>
    <message>
        <source>Have many events made and note one quantity of each</source>
        <translation>Hacer crear muchos sucesos y anotar una magnitud de cada uno</translation>
    </message>
    <message>
        <source>Save P&amp;lot…</source>
        <translation>Guardar grá&amp;fico…</translation>
    </message>
    <message>
        <source>Choose the rows to delete.</source>
        <translation>Elija las filas que eliminar.</translation>
    </message>
    <message>
        <source>Events made: %1. Rows noted: %2.</source>
        <translation>Sucesos creados: %1. Filas anotadas: %2.</translation>
    </message>
    <message>
        <source>Save Plot</source>
        <translation>Guardar gráfico</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;PDF documents (*.pdf)</source>
        <translation>Imágenes PNG (*.png);;Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>C&amp;opiar filas</translation>
    </message>
    <message>
        <source>Choose the rows to copy.</source>
        <translation>Elija las filas que copiar.</translation>
    </message>
</context>
<context>
    <name>velquon::Model</name>
    <message>
        <source>Negative Pion</source>
        <translation>Pion negativo</translation>
    </message>
    <message>
        <source>Positive Pion</source>
        <translation>Pion positivo</translation>
    </message>
    <message>
        <source>Neutral Pion</source>
        <translation>Pion neutro</translation>
    </message>
    <message>
        <source>Negative Muon</source>
        <translation>Muon negativo</translation>
    </message>
    <message>
        <source>Positive Muon</source>
        <translation>Muon positivo</translation>
    </message>
    <message>
        <source>Lambda</source>
        <translation>Lambda</translation>
    </message>
    <message>
        <source>Positive pion</source>
        <translation>Pion positivo</translation>
    </message>
    <message>
        <source>Negative pion</source>
        <translation>Pion negativo</translation>
    </message>
    <message>
        <source>Neutral pion</source>
        <translation>Pion neutro</translation>
    </message>
    <message>
        <source>Negative muon</source>
        <translation>Muon negativo</translation>
    </message>
    <message>
        <source>Positive muon</source>
        <translation>Muon positivo</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Electrón</translation>
    </message>
    <message>
        <source>Positron</source>
        <translation>Positrón</translation>
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
        <translation>Neutrino y antineutrino</translation>
    </message>
    <message>
        <source>Photon</source>
        <translation>Fotón</translation>
    </message>
    <message>
        <source>Proton</source>
        <translation>Protón</translation>
    </message>
    <message>
        <source>Neutron</source>
        <translation>Neutrón</translation>
    </message>
    <message>
        <source>decayed</source>
        <translation>desintegrada</translation>
    </message>
    <message>
        <source>converted</source>
        <translation>par</translation>
    </message>
    <message>
        <source>left</source>
        <translation>salió</translation>
    </message>
    <message>
        <source>full</source>
        <translation>lleno</translation>
    </message>
    <message>
        <source>escaped</source>
        <translation>escapó</translation>
    </message>
    <message>
        <source>undetected</source>
        <translation>no detectada</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la línea es demasiado larga</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>hay demasiadas líneas</translation>
    </message>
    <message>
        <source>there are too many fields</source>
        <translation>hay demasiados campos</translation>
    </message>
    <message>
        <source>a carriage return stands alone</source>
        <translation>un retorno de carro está solo</translation>
    </message>
    <message>
        <source>something follows a closing quotation mark</source>
        <translation>algo sigue a unas comillas de cierre</translation>
    </message>
    <message>
        <source>a quotation mark stands inside a field</source>
        <translation>hay comillas dentro de un campo</translation>
    </message>
    <message>
        <source>a quotation mark is not closed</source>
        <translation>unas comillas no se cierran</translation>
    </message>
    <message>
        <source>it is not text in UTF-8</source>
        <translation>no es texto en UTF-8</translation>
    </message>
    <message>
        <source>it holds a zero byte</source>
        <translation>contiene un byte nulo</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>converted to a pair</source>
        <translation>convertido en un par</translation>
    </message>
    <message>
        <source>left the chamber</source>
        <translation>salió de la cámara</translation>
    </message>
    <message>
        <source>cut: the event holds no more points</source>
        <translation>cortada: el suceso no admite más puntos</translation>
    </message>
    <message>
        <source>left unseen</source>
        <translation>salió sin ser vista</translation>
    </message>
    <message>
        <source>not detected</source>
        <translation>no detectada</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Azul claro</translation>
    </message>
    <message>
        <source>it has %1 fields instead of %2</source>
        <translation>tiene %1 campos en vez de %2</translation>
    </message>
    <message>
        <source>the row&apos;s number is none: &quot;%1&quot;</source>
        <translation>el número de la fila no es un número: «%1»</translation>
    </message>
    <message>
        <source>no quantity has the name &quot;%1&quot;</source>
        <translation>ninguna magnitud se llama «%1»</translation>
    </message>
    <message>
        <source>no plane has the name &quot;%1&quot;</source>
        <translation>ningún plano se llama «%1»</translation>
    </message>
    <message>
        <source>the value is no finite number: &quot;%1&quot;</source>
        <translation>el valor no es un número finito: «%1»</translation>
    </message>
    <message>
        <source>the error is no finite number above or at 0: &quot;%1&quot;</source>
        <translation>el error no es un número finito mayor o igual que 0: «%1»</translation>
    </message>
    <message>
        <source>the quantity has another unit than &quot;%1&quot;</source>
        <translation>la magnitud tiene otra unidad que «%1»</translation>
    </message>
    <message>
        <source>the field is no finite number: &quot;%1&quot;</source>
        <translation>el campo no es un número finito: «%1»</translation>
    </message>
    <message>
        <source>no ending of a track has the name &quot;%1&quot;</source>
        <translation>ningún final de traza se llama «%1»</translation>
    </message>
    <message>
        <source>the longest length is no finite number above 0: &quot;%1&quot;</source>
        <translation>la mayor longitud no es un número finito mayor que 0: «%1»</translation>
    </message>
    <message>
        <source>these are not the names of a table of measurements</source>
        <translation>estos no son los nombres de una tabla de mediciones</translation>
    </message>
    <message>
        <source>length</source>
        <translation>longitud</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>radio</translation>
    </message>
    <message>
        <source>transverse momentum</source>
        <translation>cantidad de movimiento transversal</translation>
    </message>
    <message>
        <source>sagitta</source>
        <translation>sagita</translation>
    </message>
    <message>
        <source>chord</source>
        <translation>cuerda</translation>
    </message>
    <message>
        <source>angle</source>
        <translation>ángulo</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>grados</translation>
    </message>
    <message>
        <source>decay length</source>
        <translation>longitud de desintegración</translation>
    </message>
    <message>
        <source>momentum</source>
        <translation>cantidad de movimiento</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>trazas</translation>
    </message>
    <message>
        <source>a finite field in kG</source>
        <translation>un campo finito en kG</translation>
    </message>
    <message>
        <source>a finite side in cm above 0</source>
        <translation>un lado finito en cm mayor que 0</translation>
    </message>
    <message>
        <source>a finite energy in MeV above 0</source>
        <translation>una energía finita en MeV mayor que 0</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vacía</translation>
    </message>
    <message>
        <source>Untitled Type %1 Decay</source>
        <translation>Desintegración sin título de tipo %1</translation>
    </message>
</context>
<context>
    <name>velquon::PictureFiles</name>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon no puede escribir el archivo %1: %2.</translation>
    </message>
    <message>
        <source>%1 Chamber</source>
        <translation>%1 Cámara</translation>
    </message>
    <message>
        <source>%1 Projector</source>
        <translation>%1 Proyector</translation>
    </message>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Archivos %1 (*.%2)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>The graphics driver makes no picture of %1 × %2 pixels. Choose a smaller size.</source>
        <translation>El controlador gráfico no hace una imagen de %1 × %2 píxeles. Elija un tamaño menor.</translation>
    </message>
</context>
<context>
    <name>velquon::PicturePanel</name>
    <message>
        <source>PNG: pixels, as on the screen</source>
        <translation>PNG: píxeles, como en la pantalla</translation>
    </message>
    <message>
        <source>SVG: lines, black on white</source>
        <translation>SVG: líneas, negro sobre blanco</translation>
    </message>
    <message>
        <source>PDF: lines, black on white</source>
        <translation>PDF: líneas, negro sobre blanco</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>With the &amp;values of the event</source>
        <translation>Con los &amp;valores del suceso</translation>
    </message>
    <message>
        <source>With a &amp;legend below the picture</source>
        <translation>Con una &amp;leyenda bajo la imagen</translation>
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
        <translation>&amp;Tamaño:</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
    <message>
        <source>%1 × %2 points</source>
        <translation>%1 × %2 puntos</translation>
    </message>
</context>
<context>
    <name>velquon::PrintPanel</name>
    <message>
        <source>Looking for printers… The page can be saved as a PDF file.</source>
        <translation>Buscando impresoras… La página se puede guardar como archivo PDF.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vista previa de la página</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pel:</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Guardar como P&amp;DF…</translation>
    </message>
    <message>
        <source>P&amp;rint…</source>
        <translation>Imp&amp;rimir…</translation>
    </message>
    <message>
        <source>The page can be printed or saved as a PDF file.</source>
        <translation>La página se puede imprimir o guardar como archivo PDF.</translation>
    </message>
    <message>
        <source>No printer is set up on this computer. The page can be saved as a PDF file.</source>
        <translation>No hay ninguna impresora configurada en este equipo. La página se puede guardar como archivo PDF.</translation>
    </message>
    <message>
        <source>No print server answers. The page can be saved as a PDF file.</source>
        <translation>Ningún servidor de impresión responde. La página se puede guardar como archivo PDF.</translation>
    </message>
    <message>
        <source>Printers cannot be looked for, because the command lpstat is not installed (package cups-client). The page can be saved as a PDF file.</source>
        <translation>No se pueden buscar impresoras porque la orden lpstat no está instalada (paquete cups-client). La página se puede guardar como archivo PDF.</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>No impreso</translation>
    </message>
    <message>
        <source>The printer %1 did not take the page.</source>
        <translation>La impresora %1 no aceptó la página.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>the page cannot be drawn</source>
        <translation>la página no se puede dibujar</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon no puede escribir el archivo %1: %2.</translation>
    </message>
</context>
<context>
    <name>velquon::ProjectionFoot</name>
    <message>
        <source>%1 plane, zoom %2</source>
        <translation>plano %1, zoom %2</translation>
    </message>
    <message>
        <source>tape %1</source>
        <translation>cinta %1</translation>
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
        <translation>Proyección</translation>
    </message>
    <message>
        <source>Part of the projection that is seen</source>
        <translation>Parte visible de la proyección</translation>
    </message>
</context>
<context>
    <name>velquon::Readings</name>
    <message>
        <source>Set three points or more along a track.</source>
        <translation>Ponga tres puntos o más a lo largo de una traza.</translation>
    </message>
    <message>
        <source>Set two more points along the track.</source>
        <translation>Ponga dos puntos más a lo largo de la traza.</translation>
    </message>
    <message>
        <source>Set one more point along the track.</source>
        <translation>Ponga un punto más a lo largo de la traza.</translation>
    </message>
    <message>
        <source>The points have to lie apart.</source>
        <translation>Los puntos tienen que estar separados.</translation>
    </message>
    <message>
        <source>Set the vertex.</source>
        <translation>Ponga el vértice.</translation>
    </message>
    <message>
        <source>Set a point of the first arm.</source>
        <translation>Ponga un punto del primer lado.</translation>
    </message>
    <message>
        <source>Set a point of the second arm.</source>
        <translation>Ponga un punto del segundo lado.</translation>
    </message>
    <message>
        <source>Set both ends of the tape.</source>
        <translation>Ponga los dos extremos de la cinta.</translation>
    </message>
    <message>
        <source>Take hold of the picture.</source>
        <translation>Agarre la imagen.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>recta</translation>
    </message>
</context>
<context>
    <name>velquon::RecordTree</name>
    <message>
        <source>Particle</source>
        <translation>Partícula</translation>
    </message>
    <message>
        <source>Fate</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>p (MeV/c)</source>
        <translation>p (MeV/c)</translation>
    </message>
    <message>
        <source>Transverse p (MeV/c)</source>
        <translation>p transversal (MeV/c)</translation>
    </message>
    <message>
        <source>Radius (cm)</source>
        <translation>Radio (cm)</translation>
    </message>
    <message>
        <source>Kinetic energy (MeV)</source>
        <translation>Energía cinética (MeV)</translation>
    </message>
    <message>
        <source>Flight (cm)</source>
        <translation>Recorrido (cm)</translation>
    </message>
    <message>
        <source>Mean decay length (cm)</source>
        <translation>Long. de desint. media (cm)</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
</context>
<context>
    <name>velquon::RecordWindow</name>
    <message>
        <source>H&amp;ide answers</source>
        <translation>Ocultar las &amp;soluciones</translation>
    </message>
    <message>
        <source>Re&amp;veal</source>
        <translation>&amp;Revelar</translation>
    </message>
    <message>
        <source>Event Record</source>
        <translation>Registro del suceso</translation>
    </message>
    <message>
        <source>Particles of the event</source>
        <translation>Partículas del suceso</translation>
    </message>
    <message>
        <source>Show only what is seen of an event, to measure it first</source>
        <translation>Mostrar solo lo que se ve de un suceso, para medirlo antes</translation>
    </message>
    <message>
        <source>Show what happened in this event</source>
        <translation>Mostrar lo que ocurrió en este suceso</translation>
    </message>
    <message>
        <source>There is no event yet.</source>
        <translation>Todavía no hay ningún suceso.</translation>
    </message>
    <message>
        <source>This event comes from a file, which does not tell what happened in it. These are its tracks.</source>
        <translation>Este suceso viene de un archivo, que no dice lo que ocurrió en él. Estas son sus trazas.</translation>
    </message>
    <message>
        <source>These tracks are seen. Reveal tells what happened.</source>
        <translation>Estas trazas se ven. Revelar dice lo que ocurrió.</translation>
    </message>
    <message>
        <source>Made with %1. Choose rows to mark their tracks in the other windows.</source>
        <translation>Creado con %1. Elija filas para marcar sus trazas en las otras ventanas.</translation>
    </message>
</context>
<context>
    <name>velquon::ShortcutsWindow</name>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Mayús+Tab</translation>
    </message>
    <message>
        <source>To the next control, to the one before</source>
        <translation>Al control siguiente, al anterior</translation>
    </message>
    <message>
        <source>Alt with an underlined letter</source>
        <translation>Alt con una letra subrayada</translation>
    </message>
    <message>
        <source>Open the menu, press the button</source>
        <translation>Abrir el menú, pulsar el botón</translation>
    </message>
    <message>
        <source>Chamber</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Escape, Space</source>
        <translation>Escape, Espacio</translation>
    </message>
    <message>
        <source>Stop the turntable</source>
        <translation>Detener el giro</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>End a replay</source>
        <translation>Terminar una repetición</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Reguladores</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>By a tenth of a tick</source>
        <translation>Una décima de división</translation>
    </message>
    <message>
        <source>Page Up, Page Down</source>
        <translation>RePág, AvPág</translation>
    </message>
    <message>
        <source>To the next tick</source>
        <translation>A la división siguiente</translation>
    </message>
    <message>
        <source>Return on the label</source>
        <translation>Retorno sobre la etiqueta</translation>
    </message>
    <message>
        <source>Type a value</source>
        <translation>Escribir un valor</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Proyector</translation>
    </message>
    <message>
        <source>T, G, C, A</source>
        <translation>T, G, C, A</translation>
    </message>
    <message>
        <source>The tools Tape, Grab, Curve, Angle</source>
        <translation>Las herramientas Cinta, Agarrar, Curva, Ángulo</translation>
    </message>
    <message>
        <source>Z, Y, X</source>
        <translation>Z, Y, X</translation>
    </message>
    <message>
        <source>The planes xy, xz, yz</source>
        <translation>Los planos xy, xz, yz</translation>
    </message>
    <message>
        <source>1, 2, 3</source>
        <translation>1, 2, 3</translation>
    </message>
    <message>
        <source>The zooms</source>
        <translation>Los zooms</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Snap on and off</source>
        <translation>Ajustar sí o no</translation>
    </message>
    <message>
        <source>Projector&apos;s picture</source>
        <translation>Imagen del proyector</translation>
    </message>
    <message>
        <source>Arrow keys, with Shift</source>
        <translation>Flechas, con Mayús</translation>
    </message>
    <message>
        <source>Move the cross by one pixel, by ten</source>
        <translation>Mover la cruz un píxel, diez</translation>
    </message>
    <message>
        <source>Return, Space</source>
        <translation>Retorno, Espacio</translation>
    </message>
    <message>
        <source>Set a point, take hold, let go</source>
        <translation>Poner un punto, agarrar, soltar</translation>
    </message>
    <message>
        <source>Delete, Backspace</source>
        <translation>Supr, Retroceso</translation>
    </message>
    <message>
        <source>Take the last point away</source>
        <translation>Quitar el último punto</translation>
    </message>
    <message>
        <source>Give up, clear the points, hide the cross</source>
        <translation>Desistir, borrar los puntos, ocultar la cruz</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Retorno</translation>
    </message>
    <message>
        <source>Record what is measured</source>
        <translation>Anotar lo medido</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>Ctrl+F, F3, Shift+F3</source>
        <translation>Ctrl+F, F3, Mayús+F3</translation>
    </message>
    <message>
        <source>Find, the next place, the place before</source>
        <translation>Buscar, lugar siguiente, lugar anterior</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+0</source>
        <translation>Ctrl++, Ctrl+-, Ctrl+0</translation>
    </message>
    <message>
        <source>Larger, smaller, usual text</source>
        <translation>Texto mayor, menor, habitual</translation>
    </message>
    <message>
        <source>Alt+Left, Alt+Right</source>
        <translation>Alt+Izquierda, Alt+Derecha</translation>
    </message>
    <message>
        <source>A page back, a page forward</source>
        <translation>Una página atrás, una página adelante</translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>Menú %1</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Qué hace</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>velquon::TrackController</name>
    <message>
        <source>De&amp;activate</source>
        <translation>Des&amp;activar</translation>
    </message>
    <message>
        <source>&amp;Activate</source>
        <translation>&amp;Activar</translation>
    </message>
</context>
<context>
    <name>velquon::TrackPanel</name>
    <message>
        <source>Track</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>The particle&apos;s track. Drag with the mouse to measure it.</source>
        <translation>La traza de la partícula. Arrastre con el ratón para medirla.</translation>
    </message>
    <message>
        <source>Part of the track that is seen</source>
        <translation>Parte visible de la traza</translation>
    </message>
    <message>
        <source>units</source>
        <translation>unidades</translation>
    </message>
</context>
<context>
    <name>velquon::TrackStatus</name>
    <message>
        <source>The Track window is active: Track &gt; Deactivate gives the menus back.</source>
        <translation>La ventana Traza está activa: Traza &gt; Desactivar devuelve los menús.</translation>
    </message>
</context>
<context>
    <name>velquon::TrackWindow</name>
    <message>
        <source>Live Track</source>
        <translation>Traza en vivo</translation>
    </message>
</context>
<context>
    <name>velquon::ValueEditor</name>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 a %2 %3</translation>
    </message>
</context>
<context>
    <name>velquon::ValueLabel</name>
    <message>
        <source>Double click, or Return, to type a value</source>
        <translation>Doble clic, o Retorno, para escribir un valor</translation>
    </message>
</context>
<context>
    <name>velquon::Worksheet</name>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save Worksheets</source>
        <translation>Guardar hojas de trabajo</translation>
    </message>
    <message>
        <source>Worksheets</source>
        <translation>Hojas de trabajo</translation>
    </message>
    <message>
        <source>Save Answers</source>
        <translation>Guardar soluciones</translation>
    </message>
    <message>
        <source>Worksheet Answers</source>
        <translation>Soluciones de las hojas</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>The worksheets and their answers need files of two names.</source>
        <translation>Las hojas de trabajo y sus soluciones necesitan dos archivos de nombre distinto.</translation>
    </message>
    <message>
        <source>Making worksheets…</source>
        <translation>Creando hojas de trabajo…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print Worksheets</source>
        <translation>Imprimir hojas de trabajo</translation>
    </message>
    <message>
        <source>Velquon can&apos;t write the file %1: %2.</source>
        <translation>Velquon no puede escribir el archivo %1: %2.</translation>
    </message>
    <message>
        <source>Worksheet %1</source>
        <translation>Hoja de trabajo %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Incoming particle: %1</source>
        <translation>Partícula incidente: %1</translation>
    </message>
    <message>
        <source>Seed %1, event %2</source>
        <translation>Semilla %1, suceso %2</translation>
    </message>
    <message>
        <source>No magnetic field</source>
        <translation>Sin campo magnético</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, out of the paper</source>
        <translation>Campo magnético de %1 kG, hacia fuera del papel</translation>
    </message>
    <message>
        <source>Magnetic field of %1 kG, into the paper</source>
        <translation>Campo magnético de %1 kG, hacia dentro del papel</translation>
    </message>
    <message>
        <source>No track is visible in this event.</source>
        <translation>No se ve ninguna traza en este suceso.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation>Cant. de movimiento</translation>
    </message>
    <message>
        <source>MeV/c</source>
        <translation>MeV/c</translation>
    </message>
    <message>
        <source>Angle at its vertex</source>
        <translation>Ángulo en el vértice</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>grados</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Ruler in cm of the chamber. Printed at full size, 1 mm on the paper is %1 cm.</source>
        <translation>Regla en cm de la cámara. Impreso a tamaño real, 1 mm en el papel son %1 cm.</translation>
    </message>
</context>
<context>
    <name>velquon::WorksheetPanel</name>
    <message>
        <source>Print Worksheets</source>
        <translation>Imprimir hojas de trabajo</translation>
    </message>
    <message>
        <source>With an &amp;answer key in a file of its own</source>
        <translation>Con las &amp;soluciones en un archivo propio</translation>
    </message>
    <message>
        <source>&amp;Event:</source>
        <translation>&amp;Suceso:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>Magnetic &amp;field, kG:</source>
        <translation>&amp;Campo magnético, kG:</translation>
    </message>
    <message>
        <source>&amp;Side of the chamber, cm:</source>
        <translation>&amp;Lado de la cámara, cm:</translation>
    </message>
    <message>
        <source>&amp;Kinetic energy, MeV:</source>
        <translation>&amp;Energía cinética, MeV:</translation>
    </message>
    <message>
        <source>&amp;Number of worksheets:</source>
        <translation>&amp;Número de hojas:</translation>
    </message>
    <message>
        <source>See&amp;d:</source>
        <translation>Se&amp;milla:</translation>
    </message>
    <message>
        <source>Sa&amp;ve as PDF…</source>
        <translation>&amp;Guardar como PDF…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2.</source>
        <translation>«%1» no es %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number from 0 to 4294967295.</source>
        <translation>«%1» no es un número entero de 0 a 4294967295.</translation>
    </message>
</context>
</TS>
