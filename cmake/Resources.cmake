# gradix_resource_file(OUTPUT SOURCES source.json...)
#
# Makes the resource file OUTPUT from JSON sources while building. Messages name a source by its path from the
# top of the project. A target of the same folder has to depend on OUTPUT.
function(gradix_resource_file output)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES")
  if(NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "gradix_resource_file(OUTPUT SOURCES source.json...)")
  endif()
  cmake_path(ABSOLUTE_PATH output BASE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR} NORMALIZE)
  cmake_path(GET output PARENT_PATH folder)
  set(sources "")
  set(names "")
  foreach(source IN LISTS arg_SOURCES)
    cmake_path(ABSOLUTE_PATH source NORMALIZE)
    list(APPEND sources ${source})
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
    list(APPEND names ${source})
  endforeach()
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND gxrescomp ${names} -o ${output}
    DEPENDS gxrescomp ${sources}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    VERBATIM)
endfunction()
