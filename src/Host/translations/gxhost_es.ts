<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Texts</name>
    <message>
        <source>Gradix</source>
        <translation>Gradix</translation>
    </message>
    <message>
        <source>Shows a class and exports its results to a gradebook file.</source>
        <translation>Muestra una clase y exporta sus resultados a un archivo de calificaciones.</translation>
    </message>
    <message>
        <source>Class file to open (XML).</source>
        <translation>Archivo de clase que se abrirá (XML).</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open Class…</source>
        <translation>A&amp;brir clase…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;recientes</translation>
    </message>
    <message>
        <source>No recent classes</source>
        <translation>No hay clases recientes</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Gradix</source>
        <translation>&amp;Acerca de Gradix</translation>
    </message>
    <message>
        <source>About Gradix</source>
        <translation>Acerca de Gradix</translation>
    </message>
    <message>
        <source>Gradix %1

Shows a class and exports its results to the gradebooks of learning systems.</source>
        <translation>Gradix %1

Muestra una clase y exporta sus resultados a los libros de calificaciones de plataformas de aprendizaje.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Open a class file to see its students and results.
You can also drop one on this window.</source>
        <translation>Abra un archivo de clase para ver sus estudiantes y resultados.
También puede arrastrarlo a esta ventana.</translation>
    </message>
    <message>
        <source>Open a class file…</source>
        <translation>Abrir un archivo de clase…</translation>
    </message>
    <message>
        <source>Open Class</source>
        <translation>Abrir clase</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Class files (*.xml)</source>
        <translation>Archivos de clase (*.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Leyendo «%1»…</translation>
    </message>
    <message>
        <source>Another class is being read. Please wait a moment.</source>
        <translation>Se está leyendo otra clase. Espere un momento.</translation>
    </message>
    <message>
        <source>Students and their points</source>
        <translation>Estudiantes y sus puntos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>No result</source>
        <translation>Sin resultado</translation>
    </message>
    <message>
        <source>Points possible: %1</source>
        <translation>Puntos posibles: %1</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Fecha: %1</translation>
    </message>
    <message>
        <source>&amp;Assignment:</source>
        <translation>T&amp;area:</translation>
    </message>
    <message>
        <source>This class has no assignments yet.</source>
        <translation>Esta clase aún no tiene tareas.</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Students</source>
        <translation>Estudiantes</translation>
    </message>
    <message>
        <source>Score distribution</source>
        <translation>Distribución de puntos</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>No results yet</source>
        <translation>Aún no hay resultados</translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 a %2: %3</translation>
    </message>
    <message>
        <source>&amp;System:</source>
        <translation>P&amp;lataforma:</translation>
    </message>
    <message>
        <source>Classic file</source>
        <translation>Archivo clásico</translation>
    </message>
    <message>
        <source>Current file</source>
        <translation>Archivo actual</translation>
    </message>
    <message>
        <source>&amp;All assignments</source>
        <translation>&amp;Todas las tareas</translation>
    </message>
    <message>
        <source>Assignments</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Qué ocurrirá</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Qué hacer: %1</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>Good to know: %1</source>
        <translation>Conviene saber: %1</translation>
    </message>
    <message>
        <source>As far as this class tells, its results will arrive in %1.</source>
        <translation>Por lo que indica esta clase, sus resultados llegarán a %1.</translation>
    </message>
    <message>
        <source>The class file “%1” could not be opened.</source>
        <translation>No se pudo abrir el archivo de clase «%1».</translation>
    </message>
    <message>
        <source>%1

Check that the file is still there and that you may read it.</source>
        <translation>%1

Compruebe que el archivo siga ahí y que tenga permiso para leerlo.</translation>
    </message>
    <message>
        <source>The class file “%1” could not be read to its end.</source>
        <translation>No se pudo leer hasta el final el archivo de clase «%1».</translation>
    </message>
    <message>
        <source>The class file “%1” is damaged: line %2, column %3.</source>
        <translation>El archivo de clase «%1» está dañado: línea %2, columna %3.</translation>
    </message>
    <message>
        <source>The reader says: %1.

</source>
        <translation>El lector indica: %1.

</translation>
    </message>
    <message>
        <source>Save the class again in the class manager, or open a copy from a backup.</source>
        <translation>Guarde de nuevo la clase en el gestor de clases o abra una copia de seguridad.</translation>
    </message>
    <message>
        <source>“%1” is not a class file.</source>
        <translation>«%1» no es un archivo de clase.</translation>
    </message>
    <message>
        <source>Choose a file that the class manager saved. Its name usually ends in .xml.</source>
        <translation>Elija un archivo guardado por el gestor de clases. Su nombre suele terminar en .xml.</translation>
    </message>
    <message>
        <source>The class file “%1” is written in an encoding that cannot be read.</source>
        <translation>El archivo de clase «%1» está escrito en una codificación que no se puede leer.</translation>
    </message>
    <message>
        <source>The reader says: %1.

Save it as UTF-8 with a text editor.</source>
        <translation>El lector indica: %1.

Guárdelo como UTF-8 con un editor de texto.</translation>
    </message>
    <message>
        <source>There is not enough memory to open “%1”.</source>
        <translation>No hay memoria suficiente para abrir «%1».</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The class file “%1” is no longer there.</source>
        <translation>El archivo de clase «%1» ya no está.</translation>
    </message>
    <message>
        <source>It was taken off the list of recent classes. If it was moved, open it from its new place.</source>
        <translation>Se quitó de la lista de clases recientes. Si se movió, ábralo desde su nuevo lugar.</translation>
    </message>
    <message>
        <source>The export filter could not be loaded.</source>
        <translation>No se pudo cargar el filtro de exportación.</translation>
    </message>
    <message>
        <source>The export filter does not fit this program.</source>
        <translation>El filtro de exportación no corresponde a este programa.</translation>
    </message>
    <message>
        <source>%1

Install Gradix again, so that both come from the same version.</source>
        <translation>%1

Vuelva a instalar Gradix para que ambos sean de la misma versión.</translation>
    </message>
    <message>
        <source>The export could not be started: the filter does not know the format “%1”.</source>
        <translation>No se pudo iniciar la exportación: el filtro no conoce el formato «%1».</translation>
    </message>
    <message>
        <source>The filter could not read the class file or its own resource file.</source>
        <translation>El filtro no pudo leer el archivo de clase o su propio archivo de recursos.</translation>
    </message>
    <message>
        <source>Check that “%1” is still there and open it again. If it opens, install Gradix again.</source>
        <translation>Compruebe que «%1» siga ahí y ábralo de nuevo. Si se abre, vuelva a instalar Gradix.</translation>
    </message>
    <message>
        <source>The export failed: the filter has lost its session.</source>
        <translation>La exportación falló: el filtro perdió su sesión.</translation>
    </message>
    <message>
        <source>Try again. If it fails again, quit Gradix and open the class again.</source>
        <translation>Inténtelo de nuevo. Si vuelve a fallar, salga de Gradix y abra la clase de nuevo.</translation>
    </message>
    <message>
        <source>An export is under way</source>
        <translation>Hay una exportación en curso</translation>
    </message>
    <message>
        <source>Nothing was exported</source>
        <translation>No se exportó nada</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>Exportado a %1</translation>
    </message>
    <message>
        <source>The export failed</source>
        <translation>La exportación falló</translation>
    </message>
    <message>
        <source>The export has ended</source>
        <translation>La exportación terminó</translation>
    </message>
    <message>
        <source>Export To</source>
        <translation>Exportar a</translation>
    </message>
    <message>
        <source>Gradebook files (*.%1)</source>
        <translation>Archivos de calificaciones (*.%1)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tipo de archivo:</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>Reemplazar archivo</translation>
    </message>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>The name of the file with all its folders is too long.</source>
        <translation>El nombre del archivo con todas sus carpetas es demasiado largo.</translation>
    </message>
    <message>
        <source>It may have at most %1 bytes. Choose a shorter name or another folder.</source>
        <translation>Puede tener como máximo %1 bytes. Elija un nombre más corto u otra carpeta.</translation>
    </message>
    <message>
        <source>“%1” is the open class. Exporting to it would destroy the class.</source>
        <translation>«%1» es la clase abierta. Exportar a ese archivo destruiría la clase.</translation>
    </message>
    <message>
        <source>Choose another name or another folder.</source>
        <translation>Elija otro nombre u otra carpeta.</translation>
    </message>
    <message>
        <source>The file “%1” could not be written.</source>
        <translation>No se pudo escribir el archivo «%1».</translation>
    </message>
    <message>
        <source>Only a part of the file “%1” could be written. It took the place of the earlier one; do not use it.</source>
        <translation>Solo se pudo escribir una parte del archivo «%1». Ocupa el lugar del anterior; no lo use.</translation>
    </message>
    <message>
        <source>The disk is full (%1).

Make room on it, or choose a folder on another disk, and export again.</source>
        <translation>El disco está lleno (%1).

Libere espacio o elija una carpeta en otro disco y exporte de nuevo.</translation>
    </message>
    <message>
        <source>%1

Check that the folder exists, that you may write to it and that the disk is not full. Then export again, perhaps to another folder.</source>
        <translation>%1

Compruebe que la carpeta exista, que tenga permiso de escritura y que el disco no esté lleno. Después exporte de nuevo, quizás a otra carpeta.</translation>
    </message>
    <message>
        <source>The export filter does not tell whether “%1” was written.</source>
        <translation>El filtro de exportación no indica si se escribió «%1».</translation>
    </message>
    <message>
        <source>It is older than this program. Open the file and check that it is complete before you use it.</source>
        <translation>Es más antiguo que este programa. Abra el archivo y compruebe que esté completo antes de usarlo.</translation>
    </message>
    <message>
        <source>Exported file: %1</source>
        <translation>Archivo exportado: %1</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>The file is too large to be shown here completely; this is its beginning.</source>
        <translation>El archivo es demasiado grande para mostrarse completo; este es su comienzo.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The help book is not installed.</source>
        <translation>El libro de ayuda no está instalado.</translation>
    </message>
    <message>
        <source>This page was looked for:
%1

Install Gradix again.</source>
        <translation>Se buscó esta página:
%1

Vuelva a instalar Gradix.</translation>
    </message>
    <message>
        <source>No browser could be opened for the help page.</source>
        <translation>No se pudo abrir ningún navegador para la página de ayuda.</translation>
    </message>
    <message>
        <source>The page is this file:
%1

Open it by hand in a browser, here or on another computer.</source>
        <translation>La página es este archivo:
%1

Ábralo usted mismo en un navegador, en este ordenador o en otro.</translation>
    </message>
    <message>
        <source>no line ends</source>
        <translation>sin finales de línea</translation>
    </message>
    <message>
        <source>line ends LF</source>
        <translation>finales de línea LF</translation>
    </message>
    <message>
        <source>line ends CR LF</source>
        <translation>finales de línea CR LF</translation>
    </message>
    <message>
        <source>line ends CR</source>
        <translation>finales de línea CR</translation>
    </message>
    <message>
        <source>different line ends</source>
        <translation>finales de línea distintos</translation>
    </message>
    <message>
        <source>UTF-8 with a byte-order mark</source>
        <translation>UTF-8 con marca de orden de bytes</translation>
    </message>
    <message numerus="yes">
        <source>%n rows below the headings</source>
        <translation>
            <numerusform>%n fila bajo los encabezados</numerusform>
            <numerusform>%n filas bajo los encabezados</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>Ta&amp;bla</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xto</translation>
    </message>
    <message>
        <source>For today&apos;s %1. This program writes it, without the export window.</source>
        <translation>Para el %1 de hoy. Lo escribe este programa, sin la ventana de exportación.</translation>
    </message>
    <message>
        <source>The file that the export window writes.</source>
        <translation>El archivo que escribe la ventana de exportación.</translation>
    </message>
    <message>
        <source>Student fiel&amp;d:</source>
        <translation>Ca&amp;mpo del estudiante:</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>Tipo &amp;de archivo:</translation>
    </message>
    <message>
        <source>Se&amp;parator:</source>
        <translation>&amp;Separador:</translation>
    </message>
    <message>
        <source>Commas</source>
        <translation>Comas</translation>
    </message>
    <message>
        <source>Semicolons</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Students:</source>
        <translation>Estudiantes:</translation>
    </message>
    <message>
        <source>Results:</source>
        <translation>Resultados:</translation>
    </message>
    <message>
        <source>Missing:</source>
        <translation>Faltan:</translation>
    </message>
    <message>
        <source>Mean:</source>
        <translation>Media:</translation>
    </message>
    <message>
        <source>Median:</source>
        <translation>Mediana:</translation>
    </message>
    <message>
        <source>Minimum:</source>
        <translation>Mínimo:</translation>
    </message>
    <message>
        <source>Maximum:</source>
        <translation>Máximo:</translation>
    </message>
    <message>
        <source>Standard deviation:</source>
        <translation>Desviación estándar:</translation>
    </message>
    <message>
        <source>Points possible:</source>
        <translation>Puntos posibles:</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of %1 points</source>
        <translation>
            <numerusform>%n resultado de %1 puntos</numerusform>
            <numerusform>%n resultados de %1 puntos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) from %1 to %2 points; most, %3, from %4 to %5</source>
        <translation>
            <numerusform>%n resultado de %1 a %2 puntos; la mayoría, %3, de %4 a %5</numerusform>
            <numerusform>%n resultados de %1 a %2 puntos; la mayoría, %3, de %4 a %5</numerusform>
        </translation>
    </message>
    <message>
        <source>It looks like a picture.</source>
        <translation>Parece una imagen.</translation>
    </message>
    <message>
        <source>It looks like a PDF document.</source>
        <translation>Parece un documento PDF.</translation>
    </message>
    <message>
        <source>It looks like a document of an office program.</source>
        <translation>Parece un documento de un programa de oficina.</translation>
    </message>
    <message>
        <source>It looks like a compressed archive. If your class is in it, unpack it first.</source>
        <translation>Parece un archivo comprimido. Si contiene su clase, descomprímalo antes.</translation>
    </message>
    <message>
        <source>It looks like a web page.</source>
        <translation>Parece una página web.</translation>
    </message>
    <message>
        <source>It looks like a table (CSV).</source>
        <translation>Parece una tabla (CSV).</translation>
    </message>
    <message>
        <source>It looks like a gradebook downloaded from a learning system. Open your class first, then this gradebook, to fill in your results.</source>
        <translation>Parece un libro de calificaciones descargado de una plataforma de aprendizaje. Abra primero su clase y después este libro para rellenarlo con sus resultados.</translation>
    </message>
    <message>
        <source>No problems were found: ready for %1.</source>
        <translation>No se encontraron problemas: lista para %1.</translation>
    </message>
    <message>
        <source>The same in the field “%1”: %2.</source>
        <translation>Lo mismo en el campo «%1»: %2.</translation>
    </message>
    <message>
        <source>Nearly the same in the field “%1”, but for capitals, blanks or leading zeros: %2.</source>
        <translation>Casi lo mismo en el campo «%1», salvo mayúsculas, espacios o ceros iniciales: %2.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Preparing the export…</source>
        <translation>Preparando la exportación…</translation>
    </message>
    <message>
        <source>The earlier file of this name is still there, unchanged.</source>
        <translation>El archivo anterior de este nombre sigue ahí, sin cambios.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>%1, current file</source>
        <translation>%1, archivo actual</translation>
    </message>
    <message>
        <source>%1, its own gradebook with your results filled in</source>
        <translation>%1, su propio libro de calificaciones con los resultados de usted</translation>
    </message>
    <message>
        <source>%1, classic file</source>
        <translation>%1, archivo clásico</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Para:</translation>
    </message>
    <message>
        <source>Download:</source>
        <translation>Descarga:</translation>
    </message>
    <message>
        <source>Cells filled:</source>
        <translation>Celdas completadas:</translation>
    </message>
    <message>
        <source>Assignments:</source>
        <translation>Tareas:</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Student field:</source>
        <translation>Campo del estudiante:</translation>
    </message>
    <message>
        <source>Without an identifier:</source>
        <translation>Sin identificador:</translation>
    </message>
    <message>
        <source>Without any result:</source>
        <translation>Sin ningún resultado:</translation>
    </message>
    <message>
        <source>Replaced characters:</source>
        <translation>Caracteres reemplazados:</translation>
    </message>
    <message>
        <source>%1 of the class became “?”, because the file cannot hold them</source>
        <translation>%1 de la clase se convirtieron en «?», porque el archivo no puede contenerlos</translation>
    </message>
    <message>
        <source>Separator:</source>
        <translation>Separador:</translation>
    </message>
    <message>
        <source>semicolon</source>
        <translation>punto y coma</translation>
    </message>
    <message>
        <source>Quotation marks:</source>
        <translation>Comillas:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Detailed results</source>
        <translation>Resultados detallados</translation>
    </message>
    <message>
        <source>Drag the file from here into the browser or into a folder.</source>
        <translation>Arrastre el archivo desde aquí al navegador o a una carpeta.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>The file was saved</source>
        <translation>El archivo se guardó</translation>
    </message>
    <message>
        <source>How to read it</source>
        <translation>Cómo leerlo</translation>
    </message>
    <message>
        <source>What to click in %1</source>
        <translation>Dónde hacer clic en %1</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>No se pudo abrir la carpeta.</translation>
    </message>
    <message>
        <source>The path was copied.</source>
        <translation>La ruta se copió.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Resultado</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Abrir car&amp;peta</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copiar r&amp;uta</translation>
    </message>
    <message>
        <source>Save the Current File as &amp;Well…</source>
        <translation>&amp;Guardar también el archivo actual…</translation>
    </message>
    <message>
        <source>H&amp;elp</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>H&amp;elp on %1</source>
        <translation>A&amp;yuda sobre %1</translation>
    </message>
    <message>
        <source>In Canvas, open the course and “Grades”.</source>
        <translation>En Canvas, abra el curso y «Calificaciones» (Grades).</translation>
    </message>
    <message>
        <source>Choose “Import” and then this file.</source>
        <translation>Elija «Importar» (Import) y luego este archivo.</translation>
    </message>
    <message>
        <source>If you chose new columns, Canvas asks about each of them.</source>
        <translation>Si eligió columnas nuevas, Canvas pregunta por cada una.</translation>
    </message>
    <message>
        <source>Compare the old and the new scores, then save the changes.</source>
        <translation>Compare las puntuaciones antiguas con las nuevas y guarde los cambios.</translation>
    </message>
    <message>
        <source>Canvas asks about each title that it does not know: choose an assignment of the course, or make a new one with the points shown.</source>
        <translation>Canvas pregunta por cada título que no conoce: elija una tarea del curso o cree una nueva con los puntos indicados.</translation>
    </message>
    <message>
        <source>In Moodle, open the course and “Grades”.</source>
        <translation>En Moodle, abra el curso y «Calificaciones» (Grades).</translation>
    </message>
    <message>
        <source>Choose “Import”, then “CSV file”.</source>
        <translation>Elija «Importar» (Import) y luego «Archivo CSV» (CSV file).</translation>
    </message>
    <message>
        <source>Choose this file, with the separator that the download has, and upload it.</source>
        <translation>Elija este archivo, con el separador que tiene la descarga, y súbalo.</translation>
    </message>
    <message>
        <source>Under the identification of users, map the column that identifies the students, such as “Email address”, to the same field of Moodle.</source>
        <translation>En la identificación de usuarios, asigne la columna que identifica a los estudiantes, como «Dirección de correo» (Email address), al mismo campo de Moodle.</translation>
    </message>
    <message>
        <source>Choose this file, with a {separator} as the separator, and upload it.</source>
        <translation>Elija este archivo, con {separator} como separador, y súbalo.</translation>
    </message>
    <message>
        <source>Under the identification of users, map “User ID” of the file to what the field holds: e-mail address, user name or ID number.</source>
        <translation>En la identificación de usuarios, asigne «User ID» del archivo a lo que contiene el campo: la dirección de correo, el nombre de usuario o el número de ID.</translation>
    </message>
    <message>
        <source>Map each assignment to a grade item of the course or to a new one, and import.</source>
        <translation>Asigne cada tarea a un elemento de calificación del curso o a uno nuevo, e importe.</translation>
    </message>
    <message>
        <source>In Sakai, open the site and its “Gradebook”.</source>
        <translation>En Sakai, abra el sitio y su «Libro de calificaciones» (Gradebook).</translation>
    </message>
    <message>
        <source>Choose the assignments to import.</source>
        <translation>Elija las tareas que desea importar.</translation>
    </message>
    <message>
        <source>Read the preview and finish the import.</source>
        <translation>Lea la vista previa y termine la importación.</translation>
    </message>
    <message>
        <source>Choose the assignments to import. Those that Sakai does not know are made new, with the points in brackets.</source>
        <translation>Elija las tareas que desea importar. Las que Sakai no conoce se crean nuevas, con los puntos entre corchetes.</translation>
    </message>
    <message>
        <source>In Blackboard, open the course and turn editing on.</source>
        <translation>En Blackboard, abra el curso y active el modo de edición.</translation>
    </message>
    <message>
        <source>Open “Full Grade Center” in the control panel.</source>
        <translation>Abra el «Centro de calificaciones completo» (Full Grade Center) en el panel de control.</translation>
    </message>
    <message>
        <source>Choose “Work Offline”, then “Upload”.</source>
        <translation>Elija «Trabajar sin conexión» (Work Offline) y luego «Cargar» (Upload).</translation>
    </message>
    <message>
        <source>Choose this file, with the delimiter that the download has, and submit it.</source>
        <translation>Elija este archivo, con el delimitador que tiene la descarga, y envíelo.</translation>
    </message>
    <message>
        <source>Blackboard lists the columns that it would change. Look through them, and submit.</source>
        <translation>Blackboard muestra las columnas que cambiaría. Revíselas y envíe de nuevo.</translation>
    </message>
    <message>
        <source>Open the “Gradebook” and its upload page.</source>
        <translation>Abra el «Libro de calificaciones» (Gradebook) y su página de carga.</translation>
    </message>
    <message>
        <source>Choose this file, with a comma as the delimiter, and submit it.</source>
        <translation>Elija este archivo, con la coma como delimitador, y envíelo.</translation>
    </message>
    <message>
        <source>Blackboard lists the columns that it would change. Clear the marks of the totals, such as “Running Total”, and submit.</source>
        <translation>Blackboard muestra las columnas que cambiaría. Quite la marca de los totales, como «Running Total», y envíe de nuevo.</translation>
    </message>
    <message>
        <source>In Brightspace, open the course and “Grades”.</source>
        <translation>En Brightspace, abra el curso y «Calificaciones» (Grades).</translation>
    </message>
    <message>
        <source>Open “Enter Grades” and choose “Import”.</source>
        <translation>Abra «Introducir calificaciones» (Enter Grades) y elija «Importar» (Import).</translation>
    </message>
    <message>
        <source>Choose this file.</source>
        <translation>Elija este archivo.</translation>
    </message>
    <message>
        <source>Read the preview, with its list of errors, and finish the import.</source>
        <translation>Lea la vista previa, con su lista de errores, y termine la importación.</translation>
    </message>
    <message>
        <source>Choose this file. Allow new grade items if the assignments do not exist in Brightspace yet.</source>
        <translation>Elija este archivo. Permita crear elementos de calificación nuevos si las tareas aún no existen en Brightspace.</translation>
    </message>
    <message>
        <source>In Schoology, open the course and its “Gradebook”.</source>
        <translation>En Schoology, abra el curso y su «Libro de calificaciones» (Gradebook).</translation>
    </message>
    <message>
        <source>Open the menu of the gradebook and choose “Import”.</source>
        <translation>Abra el menú del libro de calificaciones y elija «Importar» (Import).</translation>
    </message>
    <message>
        <source>Choose this file. Take “User Unique ID” as the identifier.</source>
        <translation>Elija este archivo. Tome «User Unique ID» como identificador.</translation>
    </message>
    <message>
        <source>Assign each column to a grade item of the course, and import.</source>
        <translation>Asigne cada columna a un elemento de calificación del curso e importe.</translation>
    </message>
    <message>
        <source>In WebCT Vista, open the course and its “Teach” tab.</source>
        <translation>En WebCT Vista, abra el curso y su pestaña «Enseñar» (Teach).</translation>
    </message>
    <message>
        <source>Open “Grade Book”.</source>
        <translation>Abra el «Libro de calificaciones» (Grade Book).</translation>
    </message>
    <message>
        <source>Choose “Import from spreadsheet” and then this file, with a comma as the separator.</source>
        <translation>Elija «Importar desde hoja de cálculo» (Import from spreadsheet) y luego este archivo, con la coma como separador.</translation>
    </message>
    <message>
        <source>Check which column of the file goes to which column of the grade book, and import.</source>
        <translation>Compruebe qué columna del archivo corresponde a qué columna del libro de calificaciones, e importe.</translation>
    </message>
    <message>
        <source>In ANGEL, open the course and its “Manage” tab.</source>
        <translation>En ANGEL, abra el curso y su pestaña «Administrar» (Manage).</translation>
    </message>
    <message>
        <source>Open “Gradebook” and choose “Import”.</source>
        <translation>Abra el «Libro de calificaciones» (Gradebook) y elija «Importar» (Import).</translation>
    </message>
    <message>
        <source>Choose this file, comma-separated, with the titles in the first line.</source>
        <translation>Elija este archivo, separado por comas y con los títulos en la primera línea.</translation>
    </message>
    <message>
        <source>Match the columns: “User ID” identifies the student; each remaining column goes to an assignment, as a percentage.</source>
        <translation>Asigne las columnas: «User ID» identifica al estudiante; cada una de las demás corresponde a una tarea, como porcentaje.</translation>
    </message>
    <message>
        <source>Open the file in a spreadsheet program, or import it as comma-separated text if the program asks.</source>
        <translation>Abra el archivo en un programa de hojas de cálculo, o impórtelo como texto separado por comas si el programa pregunta.</translation>
    </message>
    <message>
        <source>Read student IDs and dates as text, so that leading zeros stay.</source>
        <translation>Lea los ID de estudiante y las fechas como texto, para que se conserven los ceros iniciales.</translation>
    </message>
    <message>
        <source>Choose Mac OS Roman (“Macintosh”) as the encoding, so that accents are right.</source>
        <translation>Elija Mac OS Roman («Macintosh») como codificación, para que los acentos se vean bien.</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>coma</translation>
    </message>
    <message>
        <source>The name of the file is too long.</source>
        <translation>El nombre del archivo es demasiado largo.</translation>
    </message>
    <message>
        <source>Choose a shorter name.</source>
        <translation>Elija un nombre más corto.</translation>
    </message>
    <message>
        <source>“%1” is the gradebook that you downloaded. It has to stay as it is.</source>
        <translation>«%1» es el libro de calificaciones que usted descargó. Debe quedar como está.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <translation>La carpeta «%1» no existe.</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder.</source>
        <translation>«%1» es un archivo, no una carpeta.</translation>
    </message>
    <message>
        <source>“%1” is a folder.</source>
        <translation>«%1» es una carpeta.</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Elija otro nombre.</translation>
    </message>
    <message>
        <source>You may not change the file “%1”: it is protected.</source>
        <translation>No puede cambiar el archivo «%1»: está protegido.</translation>
    </message>
    <message>
        <source>You may not save in the folder “%1”.</source>
        <translation>No tiene permiso para guardar en la carpeta «%1».</translation>
    </message>
    <message>
        <source>A&amp;ll (%1)</source>
        <translation>&amp;Todos (%1)</translation>
    </message>
    <message>
        <source>C&amp;hanges only (%1)</source>
        <translation>&amp;Cambios (%1)</translation>
    </message>
    <message>
        <source>&amp;Problems only (%1)</source>
        <translation>&amp;Problemas (%1)</translation>
    </message>
    <message>
        <source>Loo&amp;k for:</source>
        <translation>Busc&amp;ar:</translation>
    </message>
    <message>
        <source>Student or assignment</source>
        <translation>Estudiante o tarea</translation>
    </message>
    <message>
        <source>%1: %2 found</source>
        <translation>%1: halla %2</translation>
    </message>
    <message>
        <source>In this field nobody has an identifier that stands in the gradebook.</source>
        <translation>En este campo nadie tiene un identificador que figure en el libro de calificaciones.</translation>
    </message>
    <message>
        <source>%1 finds nobody in this gradebook, %2 finds the most.</source>
        <translation>%1 no encuentra a nadie en este libro de calificaciones; %2 encuentra a más estudiantes.</translation>
    </message>
    <message>
        <source>Student &amp;field:</source>
        <translation>&amp;Campo del estudiante:</translation>
    </message>
    <message>
        <source>Only fill &amp;empty cells</source>
        <translation>Rellenar solo celdas &amp;vacías</translation>
    </message>
    <message>
        <source>Match by &amp;name where
the identifier fails</source>
        <translation>Buscar por &amp;nombre cuando
falla el identificador</translation>
    </message>
    <message>
        <source>Gradebooks downloaded from %1 cannot be filled in.</source>
        <translation>Los libros de calificaciones descargados de %1 no se pueden rellenar.</translation>
    </message>
    <message>
        <source>You can also drop the file on this window.</source>
        <translation>También puede arrastrar el archivo a esta ventana.</translation>
    </message>
    <message>
        <source>C&amp;hoose a Download…</source>
        <translation>&amp;Elegir una descarga…</translation>
    </message>
    <message>
        <source>&amp;Back to the Earlier Download</source>
        <translation>&amp;Volver a la descarga anterior</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>%1, with a problem</source>
        <translation>%1, con un problema</translation>
    </message>
    <message>
        <source>a new column</source>
        <translation>una columna nueva</translation>
    </message>
    <message>
        <source>column “%1”</source>
        <translation>columna «%1»</translation>
    </message>
    <message>
        <source>Student</source>
        <translation>Estudiante</translation>
    </message>
    <message>
        <source>Assignment</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>In the gradebook</source>
        <translation>En el libro</translation>
    </message>
    <message>
        <source>Afterwards</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Qué ocurre</translation>
    </message>
    <message>
        <source>a quote begins here and does not end</source>
        <translation>aquí empieza una comilla que no termina</translation>
    </message>
    <message>
        <source>a quote (&quot;) stands where none may stand</source>
        <translation>hay una comilla (&quot;) donde no puede haberla</translation>
    </message>
    <message>
        <source>a zero byte stands in the text</source>
        <translation>hay un byte cero en el texto</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the file is larger than 256 MB</source>
        <translation>el archivo ocupa más de 256 MB</translation>
    </message>
    <message>
        <source>the gradebook has headings, but no students</source>
        <translation>el libro de calificaciones tiene encabezados, pero no estudiantes</translation>
    </message>
    <message>
        <source>no column has points; download the gradebook with grades of the type &quot;Real&quot;</source>
        <translation>ninguna columna tiene puntos; descargue el libro de calificaciones con calificaciones de tipo «Real»</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>“%1” is a gradebook of no system that Gradix knows.</source>
        <translation>«%1» no es un libro de calificaciones de ninguna plataforma que Gradix conozca.</translation>
    </message>
    <message>
        <source>Choose the file that you downloaded from %1, just as it was downloaded.</source>
        <translation>Elija el archivo que descargó de %1, tal como se descargó.</translation>
    </message>
    <message>
        <source>“%1” is no gradebook of %2.</source>
        <translation>«%1» no es un libro de calificaciones de %2.</translation>
    </message>
    <message>
        <source>“%1” is no gradebook of %2, but one of %3.</source>
        <translation>«%1» no es un libro de calificaciones de %2, sino de %3.</translation>
    </message>
    <message>
        <source>The gradebook “%1” cannot be used.</source>
        <translation>El libro de calificaciones «%1» no se puede usar.</translation>
    </message>
    <message>
        <source>The gradebook “%1” is damaged: line %2.</source>
        <translation>El libro de calificaciones «%1» está dañado: línea %2.</translation>
    </message>
    <message>
        <source>The gradebook “%1” is damaged: line %2, column %3.</source>
        <translation>El libro de calificaciones «%1» está dañado: línea %2, columna %3.</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuevo</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiado</translation>
    </message>
    <message>
        <source>same</source>
        <translation>igual</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>conservado</translation>
    </message>
    <message>
        <source>left out (no number)</source>
        <translation>omitido (no es número)</translation>
    </message>
    <message>
        <source>The gradebook has no result there yet.</source>
        <translation>El libro de calificaciones aún no tiene ningún resultado ahí.</translation>
    </message>
    <message>
        <source>The gradebook has another result there, which is replaced.</source>
        <translation>El libro de calificaciones tiene ahí otro resultado, que se sustituye.</translation>
    </message>
    <message>
        <source>The gradebook has this result already.</source>
        <translation>El libro de calificaciones ya tiene este resultado.</translation>
    </message>
    <message>
        <source>The gradebook has another result there, and only empty cells are filled.</source>
        <translation>El libro de calificaciones tiene ahí otro resultado, y solo se rellenan celdas vacías.</translation>
    </message>
    <message>
        <source>The class has no result there, so the gradebook keeps its own.</source>
        <translation>La clase no tiene ahí ningún resultado, así que el libro de calificaciones conserva el suyo.</translation>
    </message>
    <message>
        <source>The result of the class is no number that can be written; the gradebook keeps its own.</source>
        <translation>El resultado de la clase no es un número que se pueda escribir; el libro de calificaciones conserva el suyo.</translation>
    </message>
    <message>
        <source>has no identifier in the class</source>
        <translation>no tiene identificador en la clase</translation>
    </message>
    <message>
        <source>the identifier differs in upper and lower case</source>
        <translation>el identificador se distingue en mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>another student of the class has the same identifier</source>
        <translation>otro estudiante de la clase tiene el mismo identificador</translation>
    </message>
    <message>
        <source>several students in the gradebook have the identifier</source>
        <translation>varios estudiantes del libro de calificaciones tienen el identificador</translation>
    </message>
    <message>
        <source>another student was joined with the one who has the identifier</source>
        <translation>quien tiene el identificador se unió con otro estudiante</translation>
    </message>
    <message>
        <source>the identifier is not in the gradebook</source>
        <translation>el identificador no está en el libro de calificaciones</translation>
    </message>
    <message>
        <source>the column with this title cannot be filled</source>
        <translation>la columna con este título no se puede rellenar</translation>
    </message>
    <message>
        <source>another assignment of the class has this title</source>
        <translation>otra tarea de la clase tiene este título</translation>
    </message>
    <message>
        <source>several columns have this title</source>
        <translation>varias columnas tienen este título</translation>
    </message>
    <message>
        <source>no column has this title</source>
        <translation>ninguna columna tiene este título</translation>
    </message>
    <message>
        <source>Two assignments of the class have the same number, so it is not clear which one is meant.</source>
        <translation>Dos tareas de la clase tienen el mismo número, así que no está claro a cuál se refiere.</translation>
    </message>
    <message>
        <source>Several columns of the gradebook have this heading, so it is not clear which one is meant.</source>
        <translation>Varias columnas del libro de calificaciones tienen este encabezado, así que no está claro a cuál se refiere.</translation>
    </message>
    <message>
        <source>This column of the gradebook cannot be filled.</source>
        <translation>Esta columna del libro de calificaciones no se puede rellenar.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>In Canvas, open the course’s grades and choose Export, then the entire gradebook. Canvas gives you a CSV file.</source>
        <translation>En Canvas, abra las calificaciones del curso y elija exportar el libro de calificaciones completo. Canvas le da un archivo CSV.</translation>
    </message>
    <message>
        <source>In Moodle, open the course’s grades and choose Export, then the plain text file with grades of the type Real.</source>
        <translation>En Moodle, abra las calificaciones del curso y elija exportar un archivo de texto plano con calificaciones de tipo Real.</translation>
    </message>
    <message>
        <source>In Sakai, open the site’s gradebook, choose Import / Export and export it as a CSV file with the students’ ids.</source>
        <translation>En Sakai, abra el libro de calificaciones del sitio, elija importar y exportar, y expórtelo como archivo CSV con los identificadores de los estudiantes.</translation>
    </message>
    <message>
        <source>In Blackboard, open the course’s grades and choose Work Offline, then Download. Tab-delimited and CSV files are both right.</source>
        <translation>En Blackboard, abra las calificaciones del curso y elija trabajar sin conexión y descargar. Sirven tanto los archivos separados por tabulaciones como los CSV.</translation>
    </message>
    <message>
        <source>In Brightspace, open the course’s grades and choose Export, with the points grades, the user names and the end-of-line column as CSV.</source>
        <translation>En Brightspace, abra las calificaciones del curso y elija exportar, como CSV, con las calificaciones en puntos, los nombres de usuario y la columna de fin de línea.</translation>
    </message>
    <message>
        <source>Download the gradebook from your course, as a file for spreadsheets. It can come from %1.</source>
        <translation>Descargue el libro de calificaciones de su curso, como archivo para hojas de cálculo. Puede venir de %1.</translation>
    </message>
    <message>
        <source>The file “%1” could not be opened.</source>
        <translation>No se pudo abrir el archivo «%1».</translation>
    </message>
    <message>
        <source>“%1” is a class file, no gradebook.</source>
        <translation>«%1» es un archivo de clase, no un libro de calificaciones.</translation>
    </message>
    <message>
        <source>Choose the gradebook that you downloaded from your course.</source>
        <translation>Elija el libro de calificaciones que descargó de su curso.</translation>
    </message>
    <message>
        <source>“%1” is no gradebook.</source>
        <translation>«%1» no es un libro de calificaciones.</translation>
    </message>
    <message>
        <source>The reader says: %1.

Download the gradebook once more, and do not save it from a spreadsheet in between.</source>
        <translation>El lector indica: %1.

Descargue otra vez el libro de calificaciones y no lo guarde antes con una hoja de cálculo.</translation>
    </message>
    <message>
        <source>Choose a Download</source>
        <translation>Elegir una descarga</translation>
    </message>
    <message>
        <source>Gradebooks (*.csv *.xls *.txt *.tsv)</source>
        <translation>Libros de calificaciones (*.csv *.xls *.txt *.tsv)</translation>
    </message>
    <message>
        <source>%1 filled</source>
        <translation>%1 con resultados</translation>
    </message>
    <message>
        <source>Fill In a Gradebook – %1</source>
        <translation>Rellenar un libro de calificaciones – %1</translation>
    </message>
    <message>
        <source>&amp;Save for Upload…</source>
        <translation>&amp;Guardar para subir…</translation>
    </message>
    <message>
        <source>%1 refused</source>
        <translation>%1 de rechazo</translation>
    </message>
    <message>
        <source>%1 wrong</source>
        <translation>%1 de error</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1 de pérdida</translation>
    </message>
    <message>
        <source>%1 altered</source>
        <translation>%1 de cambio</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n aviso</numerusform>
            <numerusform>%n avisos</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” cannot be joined with this column.</source>
        <translation>«%1» no se puede unir con esta columna.</translation>
    </message>
    <message>
        <source>Choose Another &amp;Download…</source>
        <translation>Elegir otra &amp;descarga…</translation>
    </message>
    <message>
        <source>%1 gradebook “%2”. Students: %3, columns to fill: %4.</source>
        <translation>Libro de calificaciones de %1 «%2». Estudiantes: %3, columnas: %4.</translation>
    </message>
    <message>
        <source>Found of the class: %1 of %2 students, %3 of %4 assignments.</source>
        <translation>Hallados de la clase: %1 de %2 estudiantes, %3 de %4 tareas.</translation>
    </message>
    <message>
        <source>&amp;Results (%1)</source>
        <translation>&amp;Resultados (%1)</translation>
    </message>
    <message>
        <source>Not &amp;matched (%1)</source>
        <translation>Sin parej&amp;a (%1)</translation>
    </message>
    <message>
        <source>F&amp;indings</source>
        <translation>&amp;Hallazgos</translation>
    </message>
    <message>
        <source>F&amp;indings (%1)</source>
        <translation>&amp;Hallazgos (%1)</translation>
    </message>
    <message>
        <source>%1 ↔ %2, joined by hand</source>
        <translation>%1 ↔ %2, unidos a mano</translation>
    </message>
    <message>
        <source>S&amp;tudents with results, not found in the gradebook:</source>
        <translation>&amp;Estudiantes con resultados que no están en el libro:</translation>
    </message>
    <message>
        <source>Students of the &amp;gradebook, not in the class:</source>
        <translation>Estudiantes del &amp;libro que no están en la clase:</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Unir</translation>
    </message>
    <message>
        <source>&amp;Undo the Join</source>
        <translation>&amp;Deshacer la unión</translation>
    </message>
    <message>
        <source>Assignments without a co&amp;lumn:</source>
        <translation>Tareas sin c&amp;olumna:</translation>
    </message>
    <message>
        <source>Columns that get not&amp;hing:</source>
        <translation>Columnas que no reciben &amp;nada:</translation>
    </message>
    <message>
        <source>J&amp;oin</source>
        <translation>Un&amp;ir</translation>
    </message>
    <message>
        <source>Undo the Join</source>
        <translation>Deshacer la unión</translation>
    </message>
    <message>
        <source>%1, sorted ascending</source>
        <translation>%1, orden ascendente</translation>
    </message>
    <message>
        <source>%1, sorted descending</source>
        <translation>%1, orden descendente</translation>
    </message>
    <message>
        <source>This class has no students yet.</source>
        <translation>Esta clase aún no tiene estudiantes.</translation>
    </message>
    <message>
        <source>Sort &amp;Ascending</source>
        <translation>Orden &amp;ascendente</translation>
    </message>
    <message>
        <source>Sort &amp;Descending</source>
        <translation>Orden &amp;descendente</translation>
    </message>
    <message>
        <source>&amp;Class’s Own Order</source>
        <translation>Orden de la &amp;clase</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encontró</translation>
    </message>
    <message>
        <source>Name, identifier or title</source>
        <translation>Nombre, identificador o título</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>Cerrar la búsqueda</translation>
    </message>
    <message>
        <source>Add columns for assignments
&amp;without one</source>
        <translation>Añadir columnas para las tareas
&amp;que no tienen</translation>
    </message>
    <message>
        <source>Map each column with results to the grade item of the same name, and import.</source>
        <translation>Asigne cada columna con resultados al elemento de calificación del mismo nombre, e importe.</translation>
    </message>
    <message>
        <source>Detailed Results as Text</source>
        <translation>Resultados detallados como texto</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>An export from here takes titles of any length.</source>
        <translation>Una exportación desde aquí admite títulos de cualquier longitud.</translation>
    </message>
    <message>
        <source>Without: %1</source>
        <translation>Sin él: %1</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«%1»: %2</translation>
    </message>
    <message>
        <source>Choose it there.</source>
        <translation>Elíjalo allí.</translation>
    </message>
    <message>
        <source>The export window will not export anything.</source>
        <translation>La ventana de exportación no exportará nada.</translation>
    </message>
    <message>
        <source>The class has no students.</source>
        <translation>La clase no tiene estudiantes.</translation>
    </message>
    <message>
        <source>It will propose “%1”, which nobody has.</source>
        <translation>Propondrá «%1», que nadie tiene.</translation>
    </message>
    <message>
        <source>It will propose “%1”, which does not tell everybody apart.</source>
        <translation>Propondrá «%1», que no distingue a todos.</translation>
    </message>
    <message>
        <source>and %L1 more</source>
        <translation>y %L1 más</translation>
    </message>
    <message>
        <source>OK in the export window will do nothing.</source>
        <translation>Aceptar en la ventana de exportación no hará nada.</translation>
    </message>
    <message>
        <source>The export window cannot open.</source>
        <translation>La ventana de exportación no puede abrirse.</translation>
    </message>
    <message>
        <source>The export window will cut titles so that they become equal.</source>
        <translation>La ventana de exportación cortará títulos de modo que se vuelven iguales.</translation>
    </message>
    <message>
        <source>Before the Export</source>
        <translation>Antes de exportar</translation>
    </message>
    <message>
        <source>Export from &amp;Here…</source>
        <translation>Exportar &amp;desde aquí…</translation>
    </message>
    <message>
        <source>&amp;Open Anyway</source>
        <translation>&amp;Abrir de todos modos</translation>
    </message>
    <message>
        <source>Nobody has one.</source>
        <translation>Nadie tiene uno.</translation>
    </message>
    <message>
        <source>It tells everybody apart.</source>
        <translation>Distingue a todos.</translation>
    </message>
    <message>
        <source>It is filled in for %L1 of %L2 students, all different.</source>
        <translation>Lo tienen %L1 de %L2 estudiantes, todos distintos.</translation>
    </message>
    <message>
        <source>It is filled in for %L1 of %L2 students, and %L3 share theirs with another one.</source>
        <translation>Lo tienen %L1 de %L2 estudiantes, y %L3 lo comparten con otro.</translation>
    </message>
    <message>
        <source>It is filled in for %L1 of %L2 students, and %L3 share “%4”.</source>
        <translation>Lo tienen %L1 de %L2 estudiantes, y %L3 comparten «%4».</translation>
    </message>
    <message>
        <source>“%1” tells everybody apart.</source>
        <translation>«%1» distingue a todos.</translation>
    </message>
    <message>
        <source>“%1” is better.</source>
        <translation>«%1» es mejor.</translation>
    </message>
    <message>
        <source>The export window for %1 will propose “%2”.</source>
        <translation>La ventana de exportación para %1 propondrá «%2».</translation>
    </message>
    <message>
        <source>It is right if %1 knows these identifiers.</source>
        <translation>Es correcto si %1 conoce estos identificadores.</translation>
    </message>
    <message>
        <source>No other field is better.</source>
        <translation>Ningún otro campo es mejor.</translation>
    </message>
    <message>
        <source>Nobody has one</source>
        <translation>Nadie tiene uno</translation>
    </message>
    <message>
        <source>%L1 of %L2 filled in</source>
        <translation>%L1 de %L2 rellenos</translation>
    </message>
    <message>
        <source>all different</source>
        <translation>todos distintos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln shared value(s)</source>
        <translation>
            <numerusform>%Ln valor compartido</numerusform>
            <numerusform>%Ln valores compartidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln nearly the same</source>
        <translation>
            <numerusform>%Ln casi igual</numerusform>
            <numerusform>%Ln casi iguales</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (proposed, chosen)</source>
        <translation>%1 (propuesto, elegido)</translation>
    </message>
    <message>
        <source>%1 (proposed)</source>
        <translation>%1 (propuesto)</translation>
    </message>
    <message>
        <source>%1 (chosen)</source>
        <translation>%1 (elegido)</translation>
    </message>
    <message>
        <source>Nearly the same: %1</source>
        <translation>Casi iguales: %1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Ejemplo: %1</translation>
    </message>
    <message>
        <source>Student fields</source>
        <translation>Campos del estudiante</translation>
    </message>
    <message>
        <source>&amp;Use This Field</source>
        <translation>&amp;Usar este campo</translation>
    </message>
    <message>
        <source>&amp;Readiness</source>
        <translation>&amp;Preparación</translation>
    </message>
    <message>
        <source>&amp;Id Fields</source>
        <translation>Ca&amp;mpos de id</translation>
    </message>
    <message>
        <source>Assi&amp;gnment</source>
        <translation>&amp;Tarea</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message numerus="yes">
        <source>%n student(s)</source>
        <translation>
            <numerusform>%n estudiante</numerusform>
            <numerusform>%n estudiantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n assignment(s)</source>
        <translation>
            <numerusform>%n tarea</numerusform>
            <numerusform>%n tareas</numerusform>
        </translation>
    </message>
    <message>
        <source>Properties – %1</source>
        <translation>Propiedades: %1</translation>
    </message>
    <message>
        <source>Class:</source>
        <translation>Clase:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Saved:</source>
        <translation>Guardado:</translation>
    </message>
    <message>
        <source>&amp;Current File…</source>
        <translation>Archivo &amp;actual…</translation>
    </message>
    <message>
        <source>&amp;Classic File…</source>
        <translation>Archivo &amp;clásico…</translation>
    </message>
    <message>
        <source>Fill In a &amp;Downloaded Gradebook…</source>
        <translation>&amp;Rellenar un libro descargado…</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Reca&amp;rgar</translation>
    </message>
    <message>
        <source>&amp;Properties…</source>
        <translation>&amp;Propiedades…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>&amp;Sort by This Column</source>
        <translation>&amp;Ordenar por esta columna</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Help on This Window</source>
        <translation>A&amp;yuda sobre esta ventana</translation>
    </message>
    <message>
        <source>&amp;Help on %1</source>
        <translation>A&amp;yuda sobre %1</translation>
    </message>
    <message>
        <source>Nothing was opened</source>
        <translation>No se abrió nada</translation>
    </message>
    <message>
        <source>The class file was deleted or renamed. What you see is how it was.</source>
        <translation>El archivo de clase se eliminó o cambió de nombre. Lo que ve es como estaba.</translation>
    </message>
    <message>
        <source>The class file has changed since it was opened.</source>
        <translation>El archivo de clase ha cambiado desde que se abrió.</translation>
    </message>
    <message>
        <source>Put it back, or open the class from its new place. Then export again.</source>
        <translation>Devuélvalo a su lugar o abra la clase desde su nuevo lugar. Después exporte de nuevo.</translation>
    </message>
    <message>
        <source>Reload it first, so that what you see is what is exported.</source>
        <translation>Recárguelo primero, para que se exporte lo que ve.</translation>
    </message>
    <message>
        <source>&amp;Reload and Go On</source>
        <translation>&amp;Recargar y continuar</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
    <message>
        <source>With the &amp;Export Window…</source>
        <translation>Con la ventana de &amp;exportación…</translation>
    </message>
    <message>
        <source>Close the export window first</source>
        <translation>Cierre primero la ventana de exportación</translation>
    </message>
    <message>
        <source>The identifier is in “%1”.</source>
        <translation>El identificador está en «%1».</translation>
    </message>
    <message>
        <source>Problems:</source>
        <translation>Problemas:</translation>
    </message>
    <message>
        <source>%1, left out</source>
        <translation>%1, omitidos</translation>
    </message>
    <message>
        <source>Take the file as it is: a spreadsheet program that saves it may change it.</source>
        <translation>Tome el archivo tal como está: un programa de hojas de cálculo que lo guarde puede cambiarlo.</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Previ&amp;ous</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Si&amp;guiente</translation>
    </message>
    <message>
        <source>For today&apos;s spreadsheets.</source>
        <translation>Para las hojas de cálculo de hoy.</translation>
    </message>
    <message>
        <source>For today&apos;s %1.</source>
        <translation>Para %1 tal como es hoy.</translation>
    </message>
    <message>
        <source>Choose at least one assignment.</source>
        <translation>Elija al menos una tarea.</translation>
    </message>
    <message>
        <source>No student has an identifier in the chosen field.</source>
        <translation>Ningún estudiante tiene un identificador en el campo elegido.</translation>
    </message>
    <message>
        <source>Students share an identifier in the chosen field.</source>
        <translation>Hay estudiantes que comparten un identificador en el campo elegido.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export.</source>
        <translation>No hay memoria suficiente para esta exportación.</translation>
    </message>
    <message>
        <source>Save asks whether you want that file.</source>
        <translation>Al guardar se le preguntará si quiere ese archivo.</translation>
    </message>
    <message>
        <source>There is no file to show.</source>
        <translation>No hay ningún archivo que mostrar.</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Save All the Same…</source>
        <translation>Guardar de todos modos…</translation>
    </message>
    <message>
        <source>Export – %1</source>
        <translation>Exportar – %1</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>The export filter offers no formats, so there is no export window.</source>
        <translation>El filtro de exportación no ofrece ningún formato, así que no hay ventana de exportación.</translation>
    </message>
    <message>
        <source>Its resource file is probably missing. Install Gradix again. Current files can be saved, and downloaded gradebooks filled in, all the same.</source>
        <translation>Probablemente falta su archivo de recursos. Vuelva a instalar Gradix. De todos modos se pueden guardar archivos actuales y rellenar libros descargados.</translation>
    </message>
    <message>
        <source>The export filter was not found, so there is no export window.</source>
        <translation>No se encontró el filtro de exportación, así que no hay ventana de exportación.</translation>
    </message>
    <message>
        <source>It was looked for here:
%1

Install Gradix again. Current files can be saved, and downloaded gradebooks filled in, all the same.</source>
        <translation>Se buscó aquí:
%1

Vuelva a instalar Gradix. De todos modos se pueden guardar archivos actuales y rellenar libros descargados.</translation>
    </message>
    <message>
        <source>The report has the students&apos; first and last names, their IDs and their responses. The export window offers more.</source>
        <translation>El informe tiene nombre, apellido e id. de los estudiantes y sus respuestas. La ventana de exportación ofrece más.</translation>
    </message>
    <message>
        <source>What will &amp;happen</source>
        <translation>Qué oc&amp;urrirá</translation>
    </message>
</context>
</TS>
