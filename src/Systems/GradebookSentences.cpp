#include "Systems/FindingSentences.h"

namespace {

using enum Consequence;

// clang-format off
constexpr FindingSentences kGradebookSentences[] = {
    {.code = "gradebook-erased",
     .english = {"<One score that is in {system} would be|{count} scores that are in {system} would be> erased, "
                 "because the class has no result there.",
                 "Fill the results into the gradebook downloaded from {system}; that erases nothing."},
     .spanish = {"<Se borraría una puntuación que está|Se borrarían {count} puntuaciones que están> en {system}, "
                 "porque la clase no tiene resultado ahí.",
                 "Rellene el libro de calificaciones descargado de {system}; así no se borra nada."}},
    {.code = "gradebook-unknown-student", .consequence = kRefused,
     .english = {"<One student is|{count} students are> not in the course, and {system} refuses the whole file for "
                 "that.",
                 "Correct the {id} in the class, or fill the results into the gradebook downloaded from {system}; "
                 "that leaves <the student|them> out."},
     .spanish = {"<Un estudiante no está|{count} estudiantes no están> en el curso, y {system} rechaza todo el archivo "
                 "por eso.",
                 "Corrija el identificador en la clase o rellene el libro de calificaciones descargado de {system}; "
                 "así <se omite al estudiante|se los omite>."}},
    {.code = "gradebook-unknown-student",
     .english = {"<One student is not in the course; the|{count} students are not in the course; their> results do "
                 "not arrive.",
                 "Correct the {id} in the class, or enrol <the student|them> in {system} first."},
     .spanish = {"<Un estudiante no está en el curso; sus|{count} estudiantes no están en el curso; sus> resultados no "
                 "llegan.",
                 "Corrija el identificador en la clase, o inscriba antes <al estudiante|a los estudiantes> en "
                 "{system}."}},
    {.code = "gradebook-no-result",
     .english = {"<One student of the course gets|{count} students of the course get> no result from this class."},
     .spanish = {"<Un estudiante del curso no recibe|{count} estudiantes del curso no reciben> ningún resultado de esta "
                 "clase."}},
    {.code = "gradebook-id-case", .consequence = kLost,
     .english = {"{system} writes the {id} of <one student|{count} students> with other capital letters and does not "
                 "find <the student|them>; the results do not arrive.",
                 "Write the {id} in the class as it is in {system}."},
     .spanish = {"{system} escribe el identificador de <un estudiante|{count} estudiantes> con otras mayúsculas y no "
                 "<lo|los> encuentra; los resultados no llegan.",
                 "Escriba el identificador en la clase como está en {system}."}},
    {.code = "gradebook-id-case",
     .english = {"{system} writes the {id} of <one student|{count} students> with other capital letters.",
                 "If {system} does not find <the student|them>, write the {id} in the class as it is there."},
     .spanish = {"{system} escribe el identificador de <un estudiante|{count} estudiantes> con otras mayúsculas.",
                 "Si {system} no <lo|los> encuentra, escriba el identificador en la clase como está allí."}},
    {.code = "gradebook-id-of-other",
     .english = {"{system} reads the {id} of <one student|{count} students> as the number of another user of the "
                 "course, who then gets the results.",
                 "Make the current file instead, or fill the results into the gradebook downloaded from {system}."},
     .spanish = {"{system} lee el identificador de <un estudiante|{count} estudiantes> como el número de otro usuario "
                 "del curso, que entonces recibe los resultados.",
                 "Cree el archivo actual en su lugar o rellene el libro de calificaciones descargado de {system}."}},
    {.code = "gradebook-no-ids",
     .english = {"No value of the field “{field}” is in the gradebook, so it does not show who is in the course.",
                 "Choose the field that holds the {id}, or download the gradebook with the ids of the students."},
     .spanish = {"Ningún valor del campo «{field}» está en el libro de calificaciones, así que este no muestra quién "
                 "está en el curso.",
                 "Elija el campo que contiene el identificador, o descargue el libro de calificaciones con los "
                 "identificadores de los estudiantes."}},
    {.code = "gradebook-second-column",
     .english = {"<One title is|{count} titles are> written differently in {system}, which makes <a second column|"
                 "second columns> beside its own.",
                 "Write <the title|the titles> in the class as in {system}, or fill the results into the gradebook "
                 "downloaded from it."},
     .spanish = {"<Un título está escrito|{count} títulos están escritos> de otra manera en {system}, que crea <una "
                 "segunda columna junto a la suya|segundas columnas junto a las suyas>.",
                 "Escriba <el título|los títulos> en la clase como en {system}, o rellene el libro de calificaciones "
                 "descargado de allí."}},
    {.code = "gradebook-several-columns",
     .english = {"<One title stands|{count} titles stand> above several columns in {system}, which takes the first "
                 "of them.",
                 "Fill the results into the gradebook downloaded from {system}, and name the column there."},
     .spanish = {"<Un título está|{count} títulos están> sobre varias columnas en {system}, que toma la primera.",
                 "Rellene el libro de calificaciones descargado de {system} e indique allí la columna."}},
    {.code = "gradebook-score-above-points",
     .english = {"<One score is|{count} scores are> above the points possible in {system}, which cuts <it|them> down.",
                 "Raise the points possible in {system} first."},
     .spanish = {"<Una puntuación supera|{count} puntuaciones superan> la puntuación posible en {system}, que <la|las> "
                 "recorta.",
                 "Aumente antes la puntuación posible en {system}."}},
    {.code = "gradebook-points", .consequence = kChanged,
     .english = {"The points possible of <one column|{count} columns> in {system} become those of the class.",
                 "Check which are right: the first are those of the class, the second those in {system}."},
     .spanish = {"La puntuación posible de <una columna|{count} columnas> de {system} pasa a ser la de la clase.",
                 "Compruebe cuál es la correcta: la primera es la de la clase, la segunda la de {system}."}},
    {.code = "gradebook-points",
     .english = {"The points possible of <one column|{count} columns> in {system} are not those of the class; {system} "
                 "keeps its own.",
                 "Check which are right: the first are those of the class, the second those in {system}."},
     .spanish = {"La puntuación posible de <una columna|{count} columnas> de {system} no es la de la clase; {system} "
                 "conserva la suya.",
                 "Compruebe cuál es la correcta: la primera es la de la clase, la segunda la de {system}."}},
};
// clang-format on

}  // namespace

std::span<const FindingSentences> GradebookSentences() {
  return kGradebookSentences;
}
