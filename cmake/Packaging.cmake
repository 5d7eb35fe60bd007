# The Debian package; scripts/package makes it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gradix-export)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Gradix project <gradix@gradix.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "export class results to gradebooks of learning systems")
set(CPACK_PACKAGE_DESCRIPTION
    "Turns a class file with students, quizzes and results into the file that a
learning management system's gradebook imports: WebCT Vista, Blackboard, ANGEL,
Canvas, Brightspace by D2L, Moodle, Schoology and Sakai, or into a detailed
report of every answer to a quiz.
.
The package has a command line (gxexport), a desktop program (gxhost), and the
export filter itself as a module that other programs can load.")
set(CPACK_STRIP_FILES ON)
# Independent of the prefix that the build was configured with.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The help opens in a browser; Qt's own texts in Spanish.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, www-browser, qt6-translations-l10n")

include(CPack)
