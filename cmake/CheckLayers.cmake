# Fails if a source includes a header of a floor above its own, or, below the desktop floor, a header of Qt
# or X11.

set(floors
    "text=1" "platform=2"
    "profiles=3" "targets=3" "logging=3" "speech=3"
    "prediction=4" "keyboards=4" "context=4"
    "profiles/store=5" "pictograms=5" "cooperation=5" "simulators=5"
    "app=6"
    "hook=7" "platform/qt=7" "platform/x11=7" "platform/linux=7" "targets/ui=7" "keyboards/ui=7" "app/ui=7"
    "dialogs=7" "dialogs/options=7")

# The floor of the folder of `file` (relative to ROOT); 8 where it is in no floor.
function(floor_of file result)
    get_filename_component(folder ${file} DIRECTORY)
    set(floor 8)
    foreach(entry ${floors})
        string(REPLACE "=" ";" pair ${entry})
        list(GET pair 0 name)
        if(folder STREQUAL name)
            list(GET pair 1 floor)
        endif()
    endforeach()
    set(${result} ${floor} PARENT_SCOPE)
endfunction()

set(failed FALSE)
foreach(entry ${floors})
    string(REPLACE "=" ";" pair ${entry})
    list(GET pair 0 folder)
    list(GET pair 1 floor)
    file(GLOB sources RELATIVE ${ROOT} ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp ${ROOT}/${folder}/*.def)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$") # wiring: it may know everything
    foreach(source ${sources})
        file(STRINGS ${ROOT}/${source} includes REGEX "^#include [\"<]")
        foreach(include ${includes})
            if(include MATCHES "^#include \"(.*)\"")
                floor_of(${CMAKE_MATCH_1} target)
                if(target GREATER floor)
                    message(SEND_ERROR "${source} looks up: ${include}")
                    set(failed TRUE)
                endif()
            elseif(floor LESS 7 AND include MATCHES "<(Q[A-Z]|Qt|X11|xcb|xkbcommon)")
                message(SEND_ERROR "${source} is logic: ${include}")
                set(failed TRUE)
            endif()
        endforeach()
    endforeach()
endforeach()
if(failed)
    message(FATAL_ERROR "the layers are broken")
endif()
