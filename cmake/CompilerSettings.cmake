# Compiler settings that every target of the project shares, as the interface library gradix::options.

add_library(gradix_options INTERFACE)
add_library(gradix::options ALIAS gradix_options)

target_compile_options(gradix_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(GRADIX_WERROR)
  target_compile_options(gradix_options INTERFACE -Werror)
endif()

if(GRADIX_SANITIZE)
  # Everything linked into one process has to agree, so these are set for the whole tree.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(GRADIX_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
