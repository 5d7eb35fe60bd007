#include "Host/App/HostTexts.h"

#include <iterator>

namespace host {

namespace {

struct TextRow {
  TextID id;
  const char* english;
  const char* spanish;
};

// In the order of TextID.
// clang-format off
constexpr TextRow kTexts[] = {
    {TextID::kProgram, "Gradix", "Gradix"},
    {TextID::kDescription, "Shows a class and exports its results to a gradebook file.",
     "Muestra una clase y exporta sus resultados a un archivo de calificaciones."},
    {TextID::kClassFileArgument, "Class file to open (XML).", "Archivo de clase que se abrirá (XML)."},

    {TextID::kFileMenu, "&File", "&Archivo"},
    {TextID::kOpen, "&Open Class…", "A&brir clase…"},
    {TextID::kRecentMenu, "Open &Recent", "Abrir &recientes"},
    {TextID::kNoRecentFiles, "No recent classes", "No hay clases recientes"},
    {TextID::kQuit, "&Quit", "&Salir"},
    {TextID::kExportMenu, "&Export", "&Exportar"},
    {TextID::kExport, "Export", "Exportar"},
    {TextID::kNoFormats, "No formats available", "No hay formatos disponibles"},
    {TextID::kCheck, "&Check…", "&Comprobar…"},
    {TextID::kLanguageMenu, "&Language", "&Idioma"},
    {TextID::kEnglish, "English", "English"},
    {TextID::kSpanish, "Español", "Español"},
    {TextID::kHelpMenu, "&Help", "A&yuda"},
    {TextID::kAbout, "&About Gradix", "&Acerca de Gradix"},
    {TextID::kAboutTitle, "About Gradix", "Acerca de Gradix"},
    {TextID::kAboutText, "Gradix %1\n\nShows a class and exports its results to the gradebooks of learning systems.",
     "Gradix %1\n\nMuestra una clase y exporta sus resultados a los libros de calificaciones de plataformas de "
     "aprendizaje."},
    {TextID::kToolBar, "Tools", "Herramientas"},

    {TextID::kEmptyHint, "Open a class file to see its students and results.\nYou can also drop one on this window.",
     "Abra un archivo de clase para ver sus estudiantes y resultados.\n"
     "También puede arrastrarlo a esta ventana."},
    {TextID::kEmptyButton, "Open a class file…", "Abrir un archivo de clase…"},
    {TextID::kOpenTitle, "Open Class", "Abrir clase"},
    {TextID::kOpenButton, "Open", "Abrir"},
    {TextID::kClassFiles, "Class files (*.xml)", "Archivos de clase (*.xml)"},
    {TextID::kAllFiles, "All files (*)", "Todos los archivos (*)"},
    {TextID::kReading, "Reading “%1”…", "Leyendo «%1»…"},
    {TextID::kBusyReading, "Another class is being read. Please wait a moment.",
     "Se está leyendo otra clase. Espere un momento."},
    {TextID::kClassTable, "Students and their points", "Estudiantes y sus puntos"},
    {TextID::kStudentName, "Name", "Nombre"},
    {TextID::kStudentID, "Student ID", "ID de estudiante"},
    {TextID::kNoResult, "No result", "Sin resultado"},
    {TextID::kPointsPossibleTip, "Points possible: %1", "Puntos posibles: %1"},
    {TextID::kDateTip, "Date: %1", "Fecha: %1"},
    {TextID::kClassSummary, "Students: %1   Assignments: %2", "Estudiantes: %1   Tareas: %2"},

    {TextID::kPanel, "Assignment", "Tarea"},
    {TextID::kAssignment, "&Assignment:", "&Tarea:"},
    {TextID::kNoAssignments, "This class has no assignments yet.", "Esta clase aún no tiene tareas."},
    {TextID::kStatistics, "Statistics", "Estadísticas"},
    {TextID::kStudents, "Students", "Estudiantes"},
    {TextID::kResults, "Results", "Resultados"},
    {TextID::kMissing, "Missing", "Faltan"},
    {TextID::kMean, "Mean", "Media"},
    {TextID::kMedian, "Median", "Mediana"},
    {TextID::kMinimum, "Minimum", "Mínimo"},
    {TextID::kMaximum, "Maximum", "Máximo"},
    {TextID::kStandardDeviation, "Standard deviation", "Desviación estándar"},
    {TextID::kPointsPossible, "Points possible", "Puntos posibles"},
    {TextID::kHistogram, "Score distribution", "Distribución de puntos"},
    {TextID::kHistogramPoints, "Points", "Puntos"},
    {TextID::kHistogramStudents, "Students", "Estudiantes"},
    {TextID::kHistogramEmpty, "No results yet", "Aún no hay resultados"},
    {TextID::kHistogramBin, "%1 to %2: %3", "%1 a %2: %3"},

    {TextID::kCheckTitle, "Check – %1", "Comprobar: %1"},
    {TextID::kCheckSystem, "&System:", "&Plataforma:"},
    {TextID::kCheckField, "Student &field:", "Campo del &estudiante:"},
    {TextID::kCheckFile, "Fi&le:", "Archi&vo:"},
    {TextID::kClassicFile, "Classic file", "Archivo clásico"},
    {TextID::kCurrentFile, "Current file", "Archivo actual"},
    {TextID::kClassicHint, "The file that the Export menu writes.", "El archivo que escribe el menú Exportar."},
    {TextID::kCurrentHint,
     "The file for today's %1. The program gxexport writes it, with the option --dialect current.",
     "El archivo para %1 en su versión de hoy. Lo escribe el programa gxexport, con la opción --dialect current."},
    {TextID::kAllAssignments, "&All assignments", "&Todas las tareas"},
    {TextID::kAssignments, "Assignments", "Tareas"},
    {TextID::kFindings, "What will happen", "Qué ocurrirá"},
    {TextID::kWhatToDo, "What to do: %1", "Qué hacer: %1"},
    {TextID::kProblems, "Problems: %1", "Problemas: %1"},
    {TextID::kNoProblems, "No problems were found.", "No se encontraron problemas."},
    {TextID::kNotes, "Good to know: %1", "Conviene saber: %1"},
    {TextID::kNothingFound, "As far as this class tells, its results will arrive in %1.",
     "Por lo que indica esta clase, sus resultados llegarán a %1."},
    {TextID::kAndMore, "and %1 more", "y %1 más"},

    {TextID::kCannotOpen, "The class file “%1” could not be opened.", "No se pudo abrir el archivo de clase «%1»."},
    {TextID::kCannotOpenAdvice, "%1\n\nCheck that the file is still there and that you may read it.",
     "%1\n\nCompruebe que el archivo siga ahí y que tenga permiso para leerlo."},
    {TextID::kCannotRead, "The class file “%1” could not be read to its end.",
     "No se pudo leer hasta el final el archivo de clase «%1»."},
    {TextID::kMalformed, "The class file “%1” is damaged: line %2, column %3.",
     "El archivo de clase «%1» está dañado: línea %2, columna %3."},
    {TextID::kMalformedReason, "The reader says: %1.\n\n", "El lector indica: %1.\n\n"},
    {TextID::kMalformedAdvice, "Save the class again in the class manager, or open a copy from a backup.",
     "Guarde de nuevo la clase en el gestor de clases o abra una copia de seguridad."},
    {TextID::kNotAClass, "“%1” is not a class file.", "«%1» no es un archivo de clase."},
    {TextID::kNotAClassAdvice, "Choose a file that the class manager saved. Its name usually ends in .xml.",
     "Elija un archivo guardado por el gestor de clases. Su nombre suele terminar en .xml."},
    {TextID::kUnsupportedEncoding, "The class file “%1” is written in an encoding that cannot be read.",
     "El archivo de clase «%1» está escrito en una codificación que no se puede leer."},
    {TextID::kUnsupportedEncodingAdvice, "The reader says: %1.\n\nSave it as UTF-8 with a text editor.",
     "El lector indica: %1.\n\nGuárdelo como UTF-8 con un editor de texto."},
    {TextID::kOutOfMemory, "There is not enough memory to open “%1”.", "No hay memoria suficiente para abrir «%1»."},
    {TextID::kOutOfMemoryAdvice, "Close other programs and try again.", "Cierre otros programas e inténtelo de nuevo."},
    {TextID::kRecentGone, "The class file “%1” is no longer there.", "El archivo de clase «%1» ya no está."},
    {TextID::kRecentGoneAdvice, "It was taken off the list of recent classes. If it was moved, open it from its new place.",
     "Se quitó de la lista de clases recientes. Si se movió, ábralo desde su nuevo lugar."},

    {TextID::kFilterNotFound, "The export filter was not found. Classes can be viewed, but not exported.",
     "No se encontró el filtro de exportación. Las clases se pueden ver, pero no exportar."},
    {TextID::kFilterNotFoundAdvice, "It was looked for here:\n%1\n\nInstall Gradix again.",
     "Se buscó aquí:\n%1\n\nVuelva a instalar Gradix."},
    {TextID::kFilterNotLoadable, "The export filter could not be loaded.", "No se pudo cargar el filtro de exportación."},
    {TextID::kFilterMissingSymbol, "The export filter does not fit this program.",
     "El filtro de exportación no corresponde a este programa."},
    {TextID::kFilterReinstall, "%1\n\nInstall Gradix again, so that both come from the same version.",
     "%1\n\nVuelva a instalar Gradix para que ambos sean de la misma versión."},
    {TextID::kFilterWithoutFormats, "The export filter offers no formats. Classes can be viewed, but not exported.",
     "El filtro de exportación no ofrece ningún formato. Las clases se pueden ver, pero no exportar."},
    {TextID::kFilterWithoutFormatsAdvice, "Its resource file is probably missing. Install Gradix again.",
     "Probablemente falta su archivo de recursos. Vuelva a instalar Gradix."},
    {TextID::kBeginFailed, "The export could not be started: the filter does not know the format “%1”.",
     "No se pudo iniciar la exportación: el filtro no conoce el formato «%1»."},
    {TextID::kExportFileFailed, "The filter could not read the class file or its own resource file.",
     "El filtro no pudo leer el archivo de clase o su propio archivo de recursos."},
    {TextID::kExportFileFailedAdvice, "Check that “%1” is still there and open it again. If it opens, install Gradix again.",
     "Compruebe que «%1» siga ahí y ábralo de nuevo. Si se abre, vuelva a instalar Gradix."},
    {TextID::kSessionUnknown, "The export failed: the filter has lost its session.",
     "La exportación falló: el filtro perdió su sesión."},
    {TextID::kTryAgain, "Try again. If it fails again, quit Gradix and open the class again.",
     "Inténtelo de nuevo. Si vuelve a fallar, salga de Gradix y abra la clase de nuevo."},
    {TextID::kExportUnderWay, "An export is under way", "Hay una exportación en curso"},
    {TextID::kExportCanceled, "Nothing was exported", "No se exportó nada"},
    {TextID::kExported, "Exported to %1", "Exportado a %1"},
    {TextID::kExportFailed, "The export failed", "La exportación falló"},
    {TextID::kExportEnded, "The export has ended", "La exportación terminó"},
    {TextID::kCloseDialogFirst, "Close the export dialog first", "Cierre primero el diálogo de exportación"},

    {TextID::kSaveTitle, "Export To", "Exportar a"},
    {TextID::kCsvFiles, "Gradebook files (*.%1)", "Archivos de calificaciones (*.%1)"},
    {TextID::kSave, "Save", "Guardar"},
    {TextID::kCancel, "Cancel", "Cancelar"},
    {TextID::kFileNameLabel, "File &name:", "&Nombre de archivo:"},
    {TextID::kFileTypeLabel, "Files of type:", "Tipo de archivo:"},
    {TextID::kLookInLabel, "Look in:", "Buscar en:"},
    {TextID::kReplaceTitle, "Replace File", "Reemplazar archivo"},
    {TextID::kReplaceQuestion, "“%1” already exists. Do you want to replace it?",
     "«%1» ya existe. ¿Desea reemplazarlo?"},
    {TextID::kReplace, "Replace", "Reemplazar"},
    {TextID::kPathTooLong, "The name of the file with all its folders is too long.",
     "El nombre del archivo con todas sus carpetas es demasiado largo."},
    {TextID::kPathTooLongAdvice, "It may have at most %1 bytes. Choose a shorter name or another folder.",
     "Puede tener como máximo %1 bytes. Elija un nombre más corto u otra carpeta."},
    {TextID::kIsTheClass, "“%1” is the open class. Exporting to it would destroy the class.",
     "«%1» es la clase abierta. Exportar a ese archivo destruiría la clase."},
    {TextID::kIsTheClassAdvice, "Choose another name or another folder.", "Elija otro nombre u otra carpeta."},
    {TextID::kNotWritten, "The file “%1” could not be written.", "No se pudo escribir el archivo «%1»."},
    {TextID::kIncomplete,
     "Only a part of the file “%1” could be written. It took the place of the earlier one; do not use it.",
     "Solo se pudo escribir una parte del archivo «%1». Ocupa el lugar del anterior; no lo use."},
    {TextID::kDiskFullAdvice,
     "The disk is full (%1).\n\nMake room on it, or choose a folder on another disk, and export again.",
     "El disco está lleno (%1).\n\nLibere espacio o elija una carpeta en otro disco y exporte de nuevo."},
    {TextID::kNotWrittenAdvice,
     "%1\n\nCheck that the folder exists, that you may write to it and that the disk is not full. Then export again, "
     "perhaps to another folder.",
     "%1\n\nCompruebe que la carpeta exista, que tenga permiso de escritura y que el disco no esté lleno. Después "
     "exporte de nuevo, quizás a otra carpeta."},
    {TextID::kOutcomeUnknown, "The export filter does not tell whether “%1” was written.",
     "El filtro de exportación no indica si se escribió «%1»."},
    {TextID::kOutcomeUnknownAdvice,
     "It is older than this program. Open the file and check that it is complete before you use it.",
     "Es más antiguo que este programa. Abra el archivo y compruebe que esté completo antes de usarlo."},

    {TextID::kResultTitle, "Exported file: %1", "Archivo exportado: %1"},
    {TextID::kResultTable, "Table", "Tabla"},
    {TextID::kResultText, "Text", "Texto"},
    {TextID::kResultPath, "File:", "Archivo:"},
    {TextID::kResultSize, "Size:", "Tamaño:"},
    {TextID::kResultTooLarge, "The file is too large to be shown here completely; this is its beginning.",
     "El archivo es demasiado grande para mostrarse completo; este es su comienzo."},
    {TextID::kReplacedCharacters, "Characters of the class that became “?” because the file cannot hold them: %1",
     "Caracteres de la clase que se convirtieron en «?» porque el archivo no los admite: %1"},
    {TextID::kWithoutIdentifier, "Students without an identifier: %1", "Estudiantes sin identificador: %1"},
    {TextID::kOpenFolder, "Open &folder", "Abrir &carpeta"},
    {TextID::kClose, "&Close", "&Cerrar"},
    {TextID::kOk, "OK", "Aceptar"},
};
// clang-format on

constexpr bool _IsInOrder() {
  for (size_t i = 0; i < std::size(kTexts); ++i) {
    if (static_cast<size_t>(kTexts[i].id) != i) return false;
  }
  return std::size(kTexts) == static_cast<size_t>(TextID::kCount);
}
static_assert(_IsInOrder());

HostLanguage gLanguage = HostLanguage::kEnglish;

}  // namespace

QString TextIn(HostLanguage language, TextID id) {
  const TextRow& row = kTexts[static_cast<size_t>(id)];
  return QString::fromUtf8(language == HostLanguage::kSpanish ? row.spanish : row.english);
}

QString Text(TextID id) {
  return TextIn(gLanguage, id);
}

HostLanguage CurrentLanguage() {
  return gLanguage;
}

void SetCurrentLanguage(HostLanguage language) {
  gLanguage = language;
}

}  // namespace host
