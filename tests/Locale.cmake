# Makes the German locale in the build folder, for the tests that run in it. LOCPATH leads to it.
find_program(LOCALEDEF localedef)
set(test_locale_path ${CMAKE_CURRENT_BINARY_DIR}/locale)
if(LOCALEDEF AND EXISTS /usr/share/i18n/locales/de_DE AND NOT EXISTS ${test_locale_path}/de_DE.UTF-8)
  file(MAKE_DIRECTORY ${test_locale_path})
  execute_process(COMMAND ${LOCALEDEF} -i de_DE -f UTF-8 ${test_locale_path}/de_DE.UTF-8 RESULT_VARIABLE ignored
                  OUTPUT_QUIET ERROR_QUIET)
endif()
