#include "Systems/FindingSentences.h"

namespace {

using enum Consequence;

// clang-format off
constexpr FindingSentences kSentences[] = {
    // The whole file.
    {.code = "no-assignments", .consequence = kRefused,
     .english = {"No assignment is selected, and {system} refuses a file without assignments.",
                 "Select at least one assignment."},
     .spanish = {"No hay ninguna tarea seleccionada, y {system} rechaza un archivo sin tareas.",
                 "Seleccione al menos una tarea."}},
    {.code = "no-assignments",
     .english = {"No assignment is selected, so there are no results in the file.",
                 "Select at least one assignment."},
     .spanish = {"No hay ninguna tarea seleccionada, así que el archivo no tiene resultados.",
                 "Seleccione al menos una tarea."}},
    {.code = "no-students",
     .english = {"The class has no students, so there are no results in the file.",
                 "Enter the students in the class first."},
     .spanish = {"La clase no tiene estudiantes, así que el archivo no tiene resultados.",
                 "Introduzca primero los estudiantes en la clase."}},
    {.code = "accents", .consequence = kRefused,
     .english = {"{system} refuses the whole file because of letters with accents or signs such as dashes in "
                 "<this text|these {count} texts>.",
                 "Make the current file instead; it keeps every letter."},
     .spanish = {"{system} rechaza todo el archivo por las letras con acento o los signos como rayas que hay en "
                 "<este texto|estos {count} textos>.",
                 "Cree el archivo actual en su lugar; conserva todas las letras."}},
    {.code = "accents",
     .english = {"<This text has|These {count} texts have> letters with accents or signs such as dashes, which "
                 "the file holds in the encoding Mac OS Roman.",
                 "{current?Make the current file, which is in UTF-8, or choose:else:Choose} “Mac OS Roman” or "
                 "“Macintosh” where the file is opened, if it asks for an encoding."},
     .spanish = {"<Este texto tiene|Estos {count} textos tienen> letras con acento o signos como rayas, que el "
                 "archivo guarda en la codificación Mac OS Roman.",
                 "{current?Cree el archivo actual, que está en UTF-8, o elija:else:Elija} «Mac OS Roman» o "
                 "«Macintosh» al abrir el archivo, si se pregunta por la codificación."}},
    {.code = "formula",
     .english = {"<This text begins|These {count} texts begin> with =, +, - or @, which a spreadsheet program "
                 "takes for a formula.",
                 "Do not open and save the file in a spreadsheet program before you upload it."},
     .spanish = {"<Este texto empieza|Estos {count} textos empiezan> por =, +, - o @, lo que una hoja de cálculo "
                 "toma por una fórmula.",
                 "No abra ni guarde el archivo en una hoja de cálculo antes de subirlo."}},

    // Identifiers.
    {.code = "id-missing", .consequence = kRefused, .system = "moodle",
     .english = {"<One student has|{count} students have> no {id}. Moodle 4.1 and later refuses the whole file; "
                 "an earlier one puts <this student's|these students'> results over those of the student before.",
                 "Fill in the field “{field}”, choose another field, or make the current file, which leaves "
                 "<the student|these students> out."},
     .spanish = {"<Un estudiante no tiene|{count} estudiantes no tienen> {id}. Moodle 4.1 o posterior rechaza "
                 "todo el archivo; uno anterior pone sus resultados sobre los del estudiante que va delante.",
                 "Rellene el campo «{field}», elija otro campo o cree el archivo actual, que <lo|los> omite."}},
    {.code = "id-missing", .consequence = kRefused,
     .english = {"<One student has|{count} students have> no {id}, and {system} refuses the whole file for that.",
                 "Fill in the field “{field}” of <this student|these students>, or choose another field."},
     .spanish = {"<Un estudiante no tiene|{count} estudiantes no tienen> {id}, y {system} rechaza todo el archivo "
                 "por eso.",
                 "Rellene el campo «{field}» de <este estudiante|estos estudiantes> o elija otro campo."}},
    {.code = "id-missing", .consequence = kLost,
     .english = {"<One student has|{count} students have> no {id}. <This student's|Their> results will not arrive "
                 "in {system}.",
                 "Fill in the field “{field}” of <this student|these students>, or choose another field."},
     .spanish = {"<Un estudiante no tiene|{count} estudiantes no tienen> {id}. Sus resultados no llegarán a "
                 "{system}.",
                 "Rellene el campo «{field}» de <este estudiante|estos estudiantes> o elija otro campo."}},
    {.code = "id-missing", .consequence = kNote,
     .english = {"<One student has|{count} students have> no {id}; no result is lost by that."},
     .spanish = {"<Un estudiante no tiene|{count} estudiantes no tienen> {id}; no se pierde ningún resultado por "
                 "ello."}},
    {.code = "id-duplicate", .consequence = kWrong,
     .english = {"{count} students share their {id} with another one. {system} cannot tell them apart, so "
                 "results go to the wrong student.",
                 "Correct the field “{field}” of these students, or choose another field."},
     .spanish = {"{count} estudiantes comparten su {id} con otro. {system} no puede distinguirlos, así que hay "
                 "resultados que van al estudiante equivocado.",
                 "Corrija el campo «{field}» de estos estudiantes o elija otro campo."}},
    {.code = "id-duplicate", .consequence = kNote,
     .english = {"{count} students share their {id} with another one; no result goes astray by that.",
                 "Correct the field “{field}” of these students."},
     .spanish = {"{count} estudiantes comparten su {id} con otro; ningún resultado se extravía por ello.",
                 "Corrija el campo «{field}» de estos estudiantes."}},
    {.code = "student-id-duplicate",
     .english = {"{count} students share their Student ID with another one. The file has that field, too, and "
                 "{system} goes by it first, so results go to the wrong student.",
                 "Correct the field “Student ID” of these students."},
     .spanish = {"{count} estudiantes comparten su Id. de estudiante con otro. El archivo tiene también ese "
                 "campo y {system} se guía primero por él, así que hay resultados que van al estudiante "
                 "equivocado.",
                 "Corrija el campo «Id. de estudiante» de estos estudiantes."}},
    {.code = "id-near-duplicate",
     .english = {"The {id} of these {count} students is nearly that of another one: only capitals, blanks or "
                 "leading zeros differ.",
                 "Check that they are right in the field “{field}”."},
     .spanish = {"Estos {count} estudiantes tienen un {id} casi igual al de otro: solo difieren en mayúsculas, "
                 "espacios o ceros iniciales.",
                 "Compruebe que son correctos en el campo «{field}»."}},
    {.code = "id-replaced", .consequence = kRefused,
     .english = {"In <one|{count}> {id} the file has “?” for a letter. {system} does not find "
                 "<the student|these students> and refuses the whole file.",
                 "{current?Make the current file, or choose:else:Choose} a field without such letters."},
     .spanish = {"En <un|{count}> {id} el archivo tiene «?» en lugar de una letra. {system} no encuentra "
                 "<al estudiante|a estos estudiantes> y rechaza todo el archivo.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin tales letras."}},
    {.code = "id-replaced", .consequence = kWrong,
     .english = {"In <one|{count}> {id} the file has “?” for a letter, so it is not "
                 "<this student's|these students'> any more.",
                 "{current?Make the current file, or choose:else:Choose} a field without such letters."},
     .spanish = {"En <un|{count}> {id} el archivo tiene «?» en lugar de una letra, así que ya no es el de "
                 "<este estudiante|estos estudiantes>.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin tales letras."}},
    {.code = "id-replaced", .consequence = kLost,
     .english = {"In <one|{count}> {id} the file has “?” for a letter. {system} does not find "
                 "<the student, whose|these students, and their> results are left out.",
                 "{current?Make the current file, or choose:else:Choose} a field without such letters."},
     .spanish = {"En <un|{count}> {id} el archivo tiene «?» en lugar de una letra. {system} no encuentra "
                 "<al estudiante|a estos estudiantes>, y sus resultados se quedan fuera.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin tales letras."}},
    {.code = "id-replaced", .consequence = kNote,
     .english = {"In <one|{count}> {id} the file has “?” for a letter; no result goes astray by that."},
     .spanish = {"En <un|{count}> {id} el archivo tiene «?» en lugar de una letra; ningún resultado se extravía "
                 "por ello."}},
    {.code = "id-quote", .consequence = kRefused,
     .english = {"In <one|{count}> {id} the file has an apostrophe for a double quote. {system} does not find "
                 "<the student|these students> and refuses the whole file.",
                 "{current?Make the current file, or choose:else:Choose} a field without double quotes."},
     .spanish = {"En <un|{count}> {id} el archivo tiene un apóstrofo en lugar de una comilla doble. {system} no "
                 "encuentra <al estudiante|a estos estudiantes> y rechaza todo el archivo.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin comillas dobles."}},
    {.code = "id-quote", .consequence = kWrong,
     .english = {"In <one|{count}> {id} the file has an apostrophe for a double quote, so it is not "
                 "<this student's|these students'> any more.",
                 "{current?Make the current file, or choose:else:Choose} a field without double quotes."},
     .spanish = {"En <un|{count}> {id} el archivo tiene un apóstrofo en lugar de una comilla doble, así que ya no "
                 "es el de <este estudiante|estos estudiantes>.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin comillas dobles."}},
    {.code = "id-quote", .consequence = kLost,
     .english = {"In <one|{count}> {id} the file has an apostrophe for a double quote. {system} does not find "
                 "<the student, whose|these students, and their> results are left out.",
                 "{current?Make the current file, or choose:else:Choose} a field without double quotes."},
     .spanish = {"En <un|{count}> {id} el archivo tiene un apóstrofo en lugar de una comilla doble. {system} no "
                 "encuentra <al estudiante|a estos estudiantes>, y sus resultados se quedan fuera.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin comillas dobles."}},
    {.code = "id-quote", .consequence = kNote,
     .english = {"In <one|{count}> {id} the file has an apostrophe for a double quote; no result goes astray by "
                 "that."},
     .spanish = {"En <un|{count}> {id} el archivo tiene un apóstrofo en lugar de una comilla doble; ningún "
                 "resultado se extravía por ello."}},
    {.code = "id-comma", .consequence = kRefused,
     .english = {"There is a comma in <one|{count}> {id}. {system} takes it for the next column and refuses the "
                 "whole file.",
                 "{current?Make the current file, or choose:else:Choose} a field without commas."},
     .spanish = {"Hay una coma en <un|{count}> {id}. {system} la toma por la columna siguiente y rechaza todo el "
                 "archivo.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin comas."}},
    {.code = "id-comma",
     .english = {"There is a comma in <one|{count}> {id}. {system} takes it for the next column, so the results in "
                 "<this row|these rows> end up in the wrong columns.",
                 "{current?Make the current file, or choose:else:Choose} a field without commas."},
     .spanish = {"Hay una coma en <un|{count}> {id}. {system} la toma por la columna siguiente, y los resultados "
                 "de <esa fila|esas filas> acaban en columnas equivocadas.",
                 "{current?Cree el archivo actual o elija:else:Elija} un campo sin comas."}},
    {.code = "id-accents", .consequence = kRefused,
     .english = {"<One|{count}> {id} <has|have> letters with accents, which {system} cannot read. It does not find "
                 "<the student|these students> and refuses the whole file.",
                 "Make the current file, which keeps every letter, or choose another field."},
     .spanish = {"<Un|{count}> {id} <tiene|tienen> letras con acento, que {system} no puede leer. No encuentra "
                 "<al estudiante|a estos estudiantes> y rechaza todo el archivo.",
                 "Cree el archivo actual, que conserva todas las letras, o elija otro campo."}},
    {.code = "id-accents", .consequence = kLost,
     .english = {"<One|{count}> {id} <has|have> letters with accents, which {system} reads as others. It does not "
                 "find <the student, whose|these students, and their> results are left out.",
                 "Make the current file, which keeps these letters, or choose another field."},
     .spanish = {"<Un|{count}> {id} <tiene|tienen> letras con acento, que {system} lee como otras. No encuentra "
                 "<al estudiante|a estos estudiantes>, y sus resultados se quedan fuera.",
                 "Cree el archivo actual, que conserva esas letras, o elija otro campo."}},
    {.code = "id-accents", .consequence = kNote,
     .english = {"<One|{count}> {id} <has|have> letters with accents, which {system} reads as others; no result is "
                 "lost by that."},
     .spanish = {"<Un|{count}> {id} <tiene|tienen> letras con acento, que {system} lee como otras; no se pierde "
                 "ningún resultado por ello."}},
    {.code = "id-as-user-number",
     .english = {"The {id} in the file begins with a digit (“{1}”). {system} takes it for its own number of a user; "
                 "if a user of your course has that number, this user gets the results.",
                 "Make the current file, or fill the results into the gradebook downloaded from {system}."},
     .spanish = {"El {id} del archivo empieza por un dígito («{1}»). {system} lo toma por su propio número de "
                 "usuario; si un usuario de su curso tiene ese número, recibe los resultados.",
                 "Cree el archivo actual o rellene el libro de calificaciones descargado de {system}."}},
    {.code = "id-capitals",
     .english = {"<One|{count}> {id} <has|have> capital letters. User names in {system} have none.",
                 "If the import identifies students by their user name, choose another field."},
     .spanish = {"<Un|{count}> {id} <tiene|tienen> letras mayúsculas. Los nombres de usuario de {system} no las "
                 "tienen.",
                 "Si la importación identifica a los estudiantes por el nombre de usuario, elija otro campo."}},
    {.code = "id-digits",
     .english = {"The {id} consists of digits only (“{1}”). A spreadsheet program takes it for a number and drops "
                 "zeros in front.",
                 "Do not open and save the file in a spreadsheet program, or make the current file, which protects "
                 "it."},
     .spanish = {"El {id} consta solo de dígitos («{1}»). Una hoja de cálculo lo toma por un número y quita los "
                 "ceros iniciales.",
                 "No abra ni guarde el archivo en una hoja de cálculo, o cree el archivo actual, que lo protege."}},

    // Names and answers.
    {.code = "name-comma",
     .english = {"There is a comma in what the file says of <one student|{count} students>. {system} takes it for "
                 "the next column, so the results in <this row|these rows> end up in the wrong columns.",
                 "Choose the file with quotes{current? or the current file:else:}."},
     .spanish = {"Hay una coma en lo que el archivo dice de <un estudiante|{count} estudiantes>. {system} la toma "
                 "por la columna siguiente, y los resultados de <esa fila|esas filas> acaban en columnas "
                 "equivocadas.",
                 "Elija el archivo con comillas{current? o el archivo actual:else:}."}},
    {.code = "name-equal", .consequence = kWrong,
     .english = {"{count} students have the name of another one. {system} goes by the name in this file, so the "
                 "first of them gets the results of the last.",
                 "Make the current file, which goes by the id, or fill the results into the gradebook downloaded "
                 "from {system}."},
     .spanish = {"{count} estudiantes tienen el nombre de otro. {system} se guía por el nombre en este archivo, así "
                 "que el primero recibe los resultados del último.",
                 "Cree el archivo actual, que se guía por el identificador, o rellene el libro de calificaciones "
                 "descargado de {system}."}},
    {.code = "name-equal", .consequence = kNote,
     .english = {"{count} students have the name of another one; no result goes astray by that."},
     .spanish = {"{count} estudiantes tienen el nombre de otro; ningún resultado se extravía por ello."}},
    {.code = "name-missing", .consequence = kLost,
     .english = {"<One student has|{count} students have> no name. {system} goes by the name in this file and asks "
                 "you who it is; without an answer the results are lost.",
                 "Enter the name, or make the current file, which goes by the id."},
     .spanish = {"<Un estudiante no tiene|{count} estudiantes no tienen> nombre. {system} se guía por el nombre en "
                 "este archivo y pregunta quién es; sin respuesta los resultados se pierden.",
                 "Introduzca el nombre o cree el archivo actual, que se guía por el identificador."}},
    {.code = "name-missing", .consequence = kNote,
     .english = {"<One student has|{count} students have> no name; no result is lost by that."},
     .spanish = {"<Un estudiante no tiene|{count} estudiantes no tienen> nombre; no se pierde ningún resultado por "
                 "ello."}},
    {.code = "name-replaced", .consequence = kLost,
     .english = {"In <one name|{count} names> the file has “?” for a letter. {system} does not find "
                 "<the student|these students> and asks you who <it is|they are>; without an answer the results "
                 "are lost.",
                 "Make the current file, which keeps every letter, or answer the question."},
     .spanish = {"En <un nombre|{count} nombres> el archivo tiene «?» en lugar de una letra. {system} no encuentra "
                 "<al estudiante|a estos estudiantes> y pregunta quién <es|son>; sin respuesta los resultados se "
                 "pierden.",
                 "Cree el archivo actual, que conserva todas las letras, o responda a la pregunta."}},
    {.code = "name-replaced",
     .english = {"In what the file says of <one student|{count} students> it has “?” for a letter.",
                 "{current?Make the current file, which keeps every letter.:else:}"},
     .spanish = {"En lo que el archivo dice de <un estudiante|{count} estudiantes> tiene «?» en lugar de una letra.",
                 "{current?Cree el archivo actual, que conserva todas las letras.:else:}"}},
    {.code = "name-quote", .consequence = kLost,
     .english = {"In <one name|{count} names> the file has an apostrophe for a double quote. {system} does not find "
                 "<the student|these students> and asks you who <it is|they are>; without an answer the results "
                 "are lost.",
                 "Make the current file, which keeps the quotes, or answer the question."},
     .spanish = {"En <un nombre|{count} nombres> el archivo tiene un apóstrofo en lugar de una comilla doble. "
                 "{system} no encuentra <al estudiante|a estos estudiantes> y pregunta quién <es|son>; sin respuesta "
                 "los resultados se pierden.",
                 "Cree el archivo actual, que conserva las comillas, o responda a la pregunta."}},
    {.code = "name-quote",
     .english = {"In what the file says of <one student|{count} students> it has an apostrophe for a double quote."},
     .spanish = {"En lo que el archivo dice de <un estudiante|{count} estudiantes> tiene un apóstrofo en lugar de "
                 "una comilla doble."}},
    {.code = "answer-replaced",
     .english = {"In the answers of <one student|{count} students> the file has “?” for a letter.",
                 "{current?Make the current file, which keeps every letter.:else:}"},
     .spanish = {"En las respuestas de <un estudiante|{count} estudiantes> el archivo tiene «?» en lugar de una "
                 "letra.",
                 "{current?Cree el archivo actual, que conserva todas las letras.:else:}"}},
    {.code = "answer-quote",
     .english = {"In the answers of <one student|{count} students> the file has an apostrophe for a double quote."},
     .spanish = {"En las respuestas de <un estudiante|{count} estudiantes> el archivo tiene un apóstrofo en lugar "
                 "de una comilla doble."}},

    // Titles.
    {.code = "title-comma", .consequence = kRefused,
     .english = {"There is a comma in <one title|{count} titles>. {system} takes it for the next column and refuses "
                 "the whole file.",
                 "{current?Make the current file, or take:else:Take} the comma out of the title."},
     .spanish = {"Hay una coma en <un título|{count} títulos>. {system} la toma por la columna siguiente y rechaza "
                 "todo el archivo.",
                 "{current?Cree el archivo actual o quite:else:Quite} la coma del título."}},
    {.code = "title-comma",
     .english = {"There is a comma in <one title|{count} titles>. {system} takes it for the next column, so results "
                 "end up in the wrong columns.",
                 "{current?Make the current file, or take:else:Take} the comma out of the title."},
     .spanish = {"Hay una coma en <un título|{count} títulos>. {system} la toma por la columna siguiente, y hay "
                 "resultados que acaban en columnas equivocadas.",
                 "{current?Cree el archivo actual o quite:else:Quite} la coma del título."}},
    {.code = "title-replaced",
     .english = {"In <one title|{count} titles> the file has “?” for a letter, and so will {system}.",
                 "{current?Make the current file, or rename:else:Rename} the assignment."},
     .spanish = {"En <un título|{count} títulos> el archivo tiene «?» en lugar de una letra, y {system} también la "
                 "tendrá.",
                 "{current?Cree el archivo actual o cambie:else:Cambie} el título de la tarea."}},
    {.code = "title-quote",
     .english = {"In <one title|{count} titles> the file has an apostrophe for a double quote.",
                 "{current?Make the current file if the title has to keep it.:else:}"},
     .spanish = {"En <un título|{count} títulos> el archivo tiene un apóstrofo en lugar de una comilla doble.",
                 "{current?Cree el archivo actual si el título debe conservarla.:else:}"}},
    {.code = "title-accents", .consequence = kChanged, .system = "moodle",
     .english = {"The letters with accents vanish from <one title|{count} titles> in {system}.",
                 "Make the current file, which keeps every letter."},
     .spanish = {"Las letras con acento desaparecen de <un título|{count} títulos> en {system}.",
                 "Cree el archivo actual, que conserva todas las letras."}},
    {.code = "title-accents", .consequence = kChanged,
     .english = {"{system} reads the letters with accents in <one title|{count} titles> as others and makes "
                 "<a new column|new columns> under the garbled <title|titles>.",
                 "Make the current file, which keeps these letters."},
     .spanish = {"{system} lee como otras las letras con acento de <un título|{count} títulos> y crea "
                 "<una columna nueva|columnas nuevas> con el título estropeado.",
                 "Cree el archivo actual, que conserva esas letras."}},
    {.code = "title-equal", .consequence = kRefused,
     .english = {"{count} assignments have the title of another one, and {system} refuses the whole file for that.",
                 "Rename the assignments, or export one of them only."},
     .spanish = {"{count} tareas tienen el título de otra, y {system} rechaza todo el archivo por eso.",
                 "Cambie el título de las tareas o exporte solo una de ellas."}},
    {.code = "title-equal", .consequence = kWrong,
     .english = {"{count} assignments are the same column to {system}, so the results of one end up in another.",
                 "Rename the assignments, or export one of them only."},
     .spanish = {"{count} tareas son la misma columna para {system}, así que los resultados de una acaban en otra.",
                 "Cambie el título de las tareas o exporte solo una de ellas."}},
    {.code = "title-equal", .consequence = kNote,
     .english = {"{count} assignments have the title of another one.",
                 "Rename the assignments if you have to tell them apart in {system}."},
     .spanish = {"{count} tareas tienen el título de otra.",
                 "Cambie el título de las tareas si debe distinguirlas en {system}."}},
    {.code = "title-empty", .consequence = kRefused,
     .english = {"<One assignment has|{count} assignments have> no title, and {system} refuses the whole file for "
                 "that.",
                 "Give every assignment a title."},
     .spanish = {"<Una tarea no tiene|{count} tareas no tienen> título, y {system} rechaza todo el archivo por eso.",
                 "Dé un título a cada tarea."}},
    {.code = "title-empty", .consequence = kNote,
     .english = {"<One assignment has|{count} assignments have> no title.", "Give every assignment a title."},
     .spanish = {"<Una tarea no tiene|{count} tareas no tienen> título.", "Dé un título a cada tarea."}},
    {.code = "title-heading", .consequence = kWrong,
     .english = {"<One assignment has|{count} assignments have> the title of a column that {system} uses for "
                 "something else.",
                 "Rename the assignment."},
     .spanish = {"<Una tarea tiene|{count} tareas tienen> el título de una columna que {system} usa para otra cosa.",
                 "Cambie el título de la tarea."}},
    {.code = "title-heading", .consequence = kNote,
     .english = {"<One assignment has|{count} assignments have> the title of another column of the file.",
                 "Take care which column is which when you import the file."},
     .spanish = {"<Una tarea tiene|{count} tareas tienen> el título de otra columna del archivo.",
                 "Fíjese en cuál es cada columna al importar el archivo."}},
    {.code = "title-number",
     .english = {"<One title ends|{count} titles end> in a number in parentheses. {system} takes the number for the "
                 "one of its own column, or cuts it off.",
                 "Rename the assignment."},
     .spanish = {"<Un título termina|{count} títulos terminan> en un número entre paréntesis. {system} lo toma por "
                 "el de una columna suya o lo quita.",
                 "Cambie el título de la tarea."}},
    {.code = "title-total",
     .english = {"<One title has|{count} titles have> words that {system} keeps for its totals, such as “Final "
                 "Score”. It leaves the <column|columns> out.",
                 "Rename the assignment."},
     .spanish = {"<Un título tiene|{count} títulos tienen> palabras que {system} reserva para sus totales, como "
                 "«Final Score». No importa <esa columna|esas columnas>.",
                 "Cambie el título de la tarea."}},
    {.code = "title-notes",
     .english = {"If your course shows the column “Notes”, {system} leaves out the assignment of that title.",
                 "Rename the assignment."},
     .spanish = {"Si su curso muestra la columna «Notes», {system} no importa la tarea de ese título.",
                 "Cambie el título de la tarea."}},
    {.code = "title-backslash", .consequence = kRefused,
     .english = {"<One title ends|{count} titles end> in a backslash, and {system} refuses the whole file for that.",
                 "Rename the assignment."},
     .spanish = {"<Un título termina|{count} títulos terminan> en una barra inversa, y {system} rechaza todo el "
                 "archivo por eso.",
                 "Cambie el título de la tarea."}},
    {.code = "title-backslash", .consequence = kLost,
     .english = {"<One title ends|{count} titles end> in a backslash. {system} then imports nothing, and says that "
                 "it did.",
                 "Rename the assignment."},
     .spanish = {"<Un título termina|{count} títulos terminan> en una barra inversa. {system} no importa entonces "
                 "nada, aunque dice que sí.",
                 "Cambie el título de la tarea."}},
    {.code = "title-backslash", .consequence = kChanged,
     .english = {"<One title has|{count} titles have> a backslash, which {system} drops.", "Rename the assignment."},
     .spanish = {"<Un título tiene|{count} títulos tienen> una barra inversa, que {system} quita.",
                 "Cambie el título de la tarea."}},
    {.code = "title-bracket",
     .english = {"<One title has|{count} titles have> a square bracket, and {system} refuses the whole file for "
                 "that.",
                 "Rename the assignment."},
     .spanish = {"<Un título tiene|{count} títulos tienen> un corchete, y {system} rechaza todo el archivo por eso.",
                 "Cambie el título de la tarea."}},
    {.code = "title-asterisk",
     .english = {"<One title begins|{count} titles begin> with an asterisk and a blank, by which {system} knows "
                 "comments. It refuses the whole file.",
                 "Rename the assignment."},
     .spanish = {"<Un título empieza|{count} títulos empiezan> por un asterisco y un espacio, con lo que {system} "
                 "marca los comentarios. Rechaza todo el archivo.",
                 "Cambie el título de la tarea."}},
    {.code = "title-hash",
     .english = {"<One title begins|{count} titles begin> with #. {system} leaves the <column|columns> out.",
                 "Rename the assignment."},
     .spanish = {"<Un título empieza|{count} títulos empiezan> por #. {system} no importa <esa columna|esas "
                 "columnas>.",
                 "Cambie el título de la tarea."}},
    {.code = "dialog-title-length",
     .english = {"<One title has|{count} titles have> exactly 30 characters. The export window cannot show such a "
                 "class, so no export is possible there.",
                 "Make the <title|titles> longer or shorter by one character."},
     .spanish = {"<Un título tiene|{count} títulos tienen> exactamente 30 caracteres. La ventana de exportación no "
                 "puede mostrar una clase así, de modo que allí no es posible exportar.",
                 "Alargue o acorte <el título|los títulos> en un carácter."}},
    {.code = "dialog-title-equal",
     .english = {"The export window cuts titles to 31 characters, and {count} titles become equal by that.",
                 "Rename the assignments so that their beginnings differ."},
     .spanish = {"La ventana de exportación corta los títulos a 31 caracteres, y así {count} títulos se vuelven "
                 "iguales.",
                 "Cambie los títulos de modo que se distingan por su comienzo."}},
    {.code = "dialog-title-cut",
     .english = {"The export window cuts <one title|{count} titles> to 31 characters.",
                 "Shorten the <title|titles> if {system} has to have <it|them> whole."},
     .spanish = {"La ventana de exportación corta <un título|{count} títulos> a 31 caracteres.",
                 "Acorte <el título|los títulos> si {system} debe tener<lo entero|los enteros>."}},

    // Scores and points.
    {.code = "score-above-points", .consequence = kChanged, .system = "moodle",
     .english = {"<One result is|{count} results are> above the points possible. {system} cuts <it|them> down to "
                 "the maximum without a word.",
                 "Raise the points possible, in the class and in {system}, or correct the results."},
     .spanish = {"<Un resultado supera|{count} resultados superan> la puntuación posible. {system} <lo|los> reduce "
                 "al máximo sin avisar.",
                 "Aumente la puntuación posible, en la clase y en {system}, o corrija los resultados."}},
    {.code = "score-above-points", .consequence = kChanged,
     .english = {"<One result is|{count} results are> above the points possible. {system} cuts <it|them> down to "
                 "the maximum unless the grade item can exceed it.",
                 "Allow the grade item in {system} to exceed its points before you import the file."},
     .spanish = {"<Un resultado supera|{count} resultados superan> la puntuación posible. {system} <lo|los> reduce "
                 "al máximo si el elemento de calificación no permite superarlo.",
                 "Permita en {system} que el elemento de calificación supere su puntuación antes de importar el "
                 "archivo."}},
    {.code = "score-above-points", .consequence = kNote,
     .english = {"<One result is|{count} results are> above the points possible.",
                 "Check that this is meant so."},
     .spanish = {"<Un resultado supera|{count} resultados superan> la puntuación posible.",
                 "Compruebe que es lo que desea."}},
    {.code = "score-above-100",
     .english = {"<One result is|{count} results are> above 100, and {system} refuses the whole file for that unless "
                 "your site allows unlimited grades.",
                 "Ask whether your site allows unlimited grades, or lower the points of the assignment."},
     .spanish = {"<Un resultado es superior|{count} resultados son superiores> a 100, y {system} rechaza todo el "
                 "archivo por eso, salvo que su sitio admita calificaciones ilimitadas.",
                 "Pregunte si su sitio admite calificaciones ilimitadas o reduzca la puntuación de la tarea."}},
    {.code = "score-negative", .consequence = kRefused,
     .english = {"<One result is|{count} results are> below 0, and {system} refuses the whole file for that.",
                 "Correct the <result|results> in the class."},
     .spanish = {"<Un resultado es inferior|{count} resultados son inferiores> a 0, y {system} rechaza todo el "
                 "archivo por eso.",
                 "Corrija <el resultado|los resultados> en la clase."}},
    {.code = "score-negative", .consequence = kChanged,
     .english = {"<One result is|{count} results are> below 0 and will be 0 in {system}.",
                 "Correct the <result|results> in the class."},
     .spanish = {"<Un resultado es inferior|{count} resultados son inferiores> a 0 y en {system} <será|serán> 0.",
                 "Corrija <el resultado|los resultados> en la clase."}},
    {.code = "score-form",
     .english = {"<One result has|{count} results have> more than two decimals or too many digits, and {system} "
                 "refuses the whole file for that.",
                 "{current?Make the current file, which rounds to two decimals, or correct:else:Correct} the "
                 "<result|results>."},
     .spanish = {"<Un resultado tiene|{count} resultados tienen> más de dos decimales o demasiados dígitos, y "
                 "{system} rechaza todo el archivo por eso.",
                 "{current?Cree el archivo actual, que redondea a dos decimales, o corrija:else:Corrija} <el "
                 "resultado|los resultados>."}},
    {.code = "score-rounded",
     .english = {"<One result is|{count} results are> rounded to two decimals, since {system} takes no more."},
     .spanish = {"<Un resultado se redondea|{count} resultados se redondean> a dos decimales, porque {system} no "
                 "admite más."}},
    {.code = "score-no-number", .consequence = kRefused,
     .english = {"<One result is|{count} results are> no number, and {system} refuses the whole file for that.",
                 "Correct the <result|results> in the class."},
     .spanish = {"<Un resultado no es un número|{count} resultados no son números>, y {system} rechaza todo el "
                 "archivo por eso.",
                 "Corrija <el resultado|los resultados> en la clase."}},
    {.code = "score-no-number",
     .english = {"<One result is|{count} results are> no number and cannot be a score.",
                 "Correct the <result|results> in the class."},
     .spanish = {"<Un resultado no es un número y no puede|{count} resultados no son números y no pueden> ser una "
                 "puntuación.",
                 "Corrija <el resultado|los resultados> en la clase."}},
    {.code = "result-missing",
     .english = {"There are students without a result. Where the file has none, the import may erase a score that "
                 "is in {system} already.",
                 "If there are scores in {system} for them, fill the results into the gradebook downloaded from "
                 "{system}."},
     .spanish = {"Hay estudiantes sin resultado. Donde el archivo no tiene ninguno, la importación puede borrar "
                 "una puntuación que ya esté en {system}.",
                 "Si ya hay puntuaciones suyas en {system}, rellene el libro de calificaciones descargado de "
                 "{system}."}},
    {.code = "results-off-roster",
     .english = {"There <is one result|are {count} results> of students who are not in the class; <it is|they are> "
                 "not in the file."},
     .spanish = {"Hay <un resultado|{count} resultados> de estudiantes que no están en la clase; no <está|están> en "
                 "el archivo."}},
    {.code = "points-zero",
     .english = {"<One assignment has|{count} assignments have> no points possible. {system} does not create "
                 "<a column|columns> for <it|them>.",
                 "Enter the points possible in the class, or create the <column|columns> in {system} first."},
     .spanish = {"<Una tarea no tiene|{count} tareas no tienen> puntuación posible. {system} no crea <una columna "
                 "para ella|columnas para ellas>.",
                 "Introduzca la puntuación posible en la clase o cree antes <la columna|las columnas> en {system}."}},

    // What has to be known in any case.
    {.code = "new-columns",
     .english = {"A column that {system} makes from the file has a maximum of 100, and versions 4.1 to 4.4 take one "
                 "new column per import.",
                 "Create the grade items with their points in {system} before you import the file."},
     .spanish = {"Una columna que {system} crea a partir del archivo tiene un máximo de 100, y las versiones 4.1 a "
                 "4.4 admiten una columna nueva por importación.",
                 "Cree en {system} los elementos de calificación con su puntuación antes de importar el archivo."}},
    {.code = "points-replaced",
     .english = {"The points possible of a column in {system} become those of the class.",
                 "Check that they are the same."},
     .spanish = {"La puntuación posible de una columna de {system} pasa a ser la de la clase.",
                 "Compruebe que es la misma."}},
    {.code = "decimal-comma",
     .english = {"A {system} in a language that writes decimal commas, such as Spanish, German or French, wants "
                 "semicolons between the cells.",
                 "With such a language, make the current file with semicolons."},
     .spanish = {"Un {system} en un idioma que escribe comas decimales, como español, alemán o francés, quiere punto "
                 "y coma entre las celdas.",
                 "Con un idioma así, cree el archivo actual con punto y coma."}},
    {.code = "semicolons",
     .english = {"This file has semicolons and decimal commas. Only a {system} in a language that writes decimal "
                 "commas, such as Spanish, German or French, takes it.",
                 "With another language, make the file with commas."},
     .spanish = {"Este archivo tiene punto y coma y comas decimales. Solo lo admite un {system} en un idioma que "
                 "escribe comas decimales, como español, alemán o francés.",
                 "Con otro idioma, cree el archivo con comas."}},
    {.code = "text-columns",
     .english = {"{system} makes every column of the file a new text column with 0 points, which no total counts.",
                 "Fill the results into the gradebook downloaded from {system}; then they go into its own columns."},
     .spanish = {"{system} convierte cada columna del archivo en una columna de texto nueva con 0 puntos, que ningún "
                 "total cuenta.",
                 "Rellene el libro de calificaciones descargado de {system}; así van a sus propias columnas."}},
    {.code = "totals-offered",
     .english = {"{system} offers “Weighted Total” and “Running Total” of the file as columns, too.",
                 "Untick both when you import the file."},
     .spanish = {"{system} ofrece también como columnas «Weighted Total» y «Running Total» del archivo.",
                 "Desmarque ambas al importar el archivo."}},
};
// clang-format on

}  // namespace

std::span<const FindingSentences> CheckSentences() {
  return kSentences;
}

const FindingSentences* FindSentences(const Finding& finding, std::string_view system) {
  for (const auto rows : {CheckSentences(), GradebookSentences()}) {
    for (const FindingSentences& row : rows) {
      if (std::string_view(row.code) == finding.code &&
          (!row.consequence || *row.consequence == finding.consequence) &&
          (row.system == nullptr || row.system == system)) {
        return &row;
      }
    }
  }
  return nullptr;
}
