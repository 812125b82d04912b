# One static library a folder. A logic library never sees Qt's headers; CheckLayers.cmake refuses an include
# that looks up to a higher floor.

add_library(ondrilo_options INTERFACE)
target_compile_options(ondrilo_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
target_include_directories(ondrilo_options INTERFACE ${CMAKE_SOURCE_DIR})
if(ONDRILO_SANITIZE)
    target_compile_options(ondrilo_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
    target_link_options(ondrilo_options INTERFACE -fsanitize=address,undefined)
endif()
if(ONDRILO_FUZZ)
    target_compile_options(ondrilo_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# ondrilo_library(NAME [DEPENDS ondrilo libraries...] [DESKTOP] [LIBRARIES outside libraries...])
# Takes all sources of the calling folder but a main.cpp, which belongs to a program. DESKTOP marks an adapter
# or widgets: only such a library may name outside libraries or another desktop library.
function(ondrilo_library name)
    cmake_parse_arguments(ARG "DESKTOP" "" "DEPENDS;LIBRARIES" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${name} STATIC ${sources})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(${name} PUBLIC ondrilo_options ${ARG_DEPENDS} ${ARG_LIBRARIES})
    if(ARG_DESKTOP)
        set_target_properties(${name} PROPERTIES ONDRILO_DESKTOP_LIBRARY ON AUTOMOC ON)
    else()
        if(ARG_LIBRARIES)
            message(FATAL_ERROR "${name} is logic and may not link ${ARG_LIBRARIES}")
        endif()
        foreach(dependency ${ARG_DEPENDS})
            get_target_property(desktop ${dependency} ONDRILO_DESKTOP_LIBRARY)
            if(desktop)
                message(FATAL_ERROR "${name} is logic and may not link the desktop library ${dependency}")
            endif()
        endforeach()
    endif()
endfunction()

add_custom_target(layers ALL
    COMMAND ${CMAKE_COMMAND} -D ROOT=${CMAKE_SOURCE_DIR} -P ${CMAKE_SOURCE_DIR}/cmake/CheckLayers.cmake
    COMMENT "Checking that no include looks up" VERBATIM)
