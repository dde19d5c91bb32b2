# Compiler warnings, sanitizers and the compiler cache, applied to every target.

add_compile_options(-Wall -Wextra)
if(CIRRO_WERROR)
    add_compile_options(-Werror)
endif()

if(CIRRO_SANITIZE)
    add_compile_options(-fsanitize=${CIRRO_SANITIZE} -fno-omit-frame-pointer -g)
    add_link_options(-fsanitize=${CIRRO_SANITIZE})
    if(CIRRO_SANITIZE MATCHES "undefined")
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
endif()

find_program(CIRRO_CCACHE ccache)
if(CIRRO_CCACHE)
    set(CMAKE_C_COMPILER_LAUNCHER ${CIRRO_CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CIRRO_CCACHE})
endif()

set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# Adds a static library for one subsystem folder: cirro_add_subsystem(name SOURCES ... LIBS ...)
function(cirro_add_subsystem name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LIBS})
endfunction()
