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

if(CIRRO_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "CIRRO_FUZZ needs clang: configure with CC=clang CXX=clang++")
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

# Stops the configuration when a logic target names Qt Widgets or a widgets
# library among its libraries: the command-line tool and the logic tests must
# link without them.
function(cirro_require_no_widgets name)
    foreach(lib IN LISTS ARGN)
        if(lib STREQUAL "Qt5::Widgets" OR lib MATCHES "_widgets$")
            message(FATAL_ERROR "${name} is a logic target and must not link ${lib}; "
                                "widgets belong in a widgets/ library")
        endif()
    endforeach()
endfunction()

# Adds a static library for one subsystem folder:
#   cirro_add_subsystem(cirro_<subsystem> SOURCES ... LIBS ...)                the logic
#   cirro_add_subsystem(cirro_<subsystem>_widgets WIDGETS SOURCES ... LIBS ...) its widgets
function(cirro_add_subsystem name)
    cmake_parse_arguments(ARG "WIDGETS" "" "SOURCES;LIBS" ${ARGN})
    if(ARG_WIDGETS AND NOT name MATCHES "_widgets$")
        message(FATAL_ERROR "${name}: a widgets library's name ends in _widgets")
    endif()
    if(NOT ARG_WIDGETS)
        cirro_require_no_widgets(${name} ${ARG_LIBS})
        set_property(GLOBAL APPEND PROPERTY CIRRO_LOGIC_LIBRARIES ${name})
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LIBS})
endfunction()
