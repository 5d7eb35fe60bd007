# With GRADIX_UNITY several sources of a target are compiled as one, which reads the headers that they share once.
# A source still includes whatever it needs: the build without GRADIX_UNITY, as of the packages, shows what is missing.

# gradix_unite(target...): what is local to a source has a name that is local to no other of its target.
function(gradix_unite)
  if(GRADIX_UNITY)
    set_target_properties(${ARGN} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
  endif()
endfunction()

# gradix_compile_alone(target source...): but for these sources of the folder, which share names with others.
function(gradix_compile_alone target)
  set_source_files_properties(${ARGN} TARGET_DIRECTORY ${target} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
