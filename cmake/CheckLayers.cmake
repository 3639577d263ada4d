# Fails when a folder of base/ includes a folder above it, when base/ or tessaly/
# includes a plugin, or when a plugin or an application includes a header of base/ marked
# "Internal to the host library". Run as a script:
#   cmake -DSOURCE_DIR=... -DSTAMP=... -P CheckLayers.cmake
#
# The layers of base/, lowest first. A folder may include its own layer and those below.
cmake_minimum_required(VERSION 3.25)

set(LAYERS util log error task plugin data parse graph run script verify host)

function(layer_of path result)
    string(REGEX MATCH "^base/([a-z]+)/" match "${path}")
    if(NOT match)
        set(${result} -1 PARENT_SCOPE)
        return()
    endif()
    list(FIND LAYERS "${CMAKE_MATCH_1}" index)
    if(index EQUAL -1)
        message(FATAL_ERROR "${path}: the folder base/${CMAKE_MATCH_1} is not a known layer; "
                            "add it to the layer list of ${CMAKE_CURRENT_LIST_FILE}.")
    endif()
    set(${result} ${index} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE sources RELATIVE "${SOURCE_DIR}"
     "${SOURCE_DIR}/base/*.h" "${SOURCE_DIR}/base/*.cpp"
     "${SOURCE_DIR}/tessaly/*.h" "${SOURCE_DIR}/tessaly/*.cpp")
set(violations "")
foreach(source IN LISTS sources)
    layer_of("${source}" own)
    file(STRINGS "${SOURCE_DIR}/${source}" includes REGEX "^#include \"")
    foreach(line IN LISTS includes)
        string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
        if(included MATCHES "^plugins/")
            string(APPEND violations "\n  ${source} includes ${included}: "
                                     "the host and its libraries never include a plugin.")
            continue()
        endif()
        if(own EQUAL -1 OR NOT included MATCHES "^base/")
            continue()
        endif()
        layer_of("${included}" theirs)
        if(theirs GREATER own)
            list(GET LAYERS ${own} ownName)
            list(GET LAYERS ${theirs} theirName)
            string(APPEND violations "\n  ${source} includes ${included}: "
                                     "the ${ownName} layer sits below the ${theirName} layer.")
        endif()
    endforeach()
endforeach()

# Headers that only the host library itself may include.
set(internal "")
foreach(source IN LISTS sources)
    if(source MATCHES "^base/.*\\.h$")
        file(STRINGS "${SOURCE_DIR}/${source}" marker REGEX "^// Internal to the host library")
        if(marker)
            list(APPEND internal "${source}")
        endif()
    endif()
endforeach()
file(GLOB_RECURSE clients RELATIVE "${SOURCE_DIR}"
     "${SOURCE_DIR}/plugins/*.h" "${SOURCE_DIR}/plugins/*.cpp"
     "${SOURCE_DIR}/apps/*.h" "${SOURCE_DIR}/apps/*.cpp")
foreach(client IN LISTS clients)
    file(STRINGS "${SOURCE_DIR}/${client}" includes REGEX "^#include \"base/")
    foreach(line IN LISTS includes)
        string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
        if(included IN_LIST internal)
            string(APPEND violations "\n  ${client} includes ${included}, "
                                     "which is internal to the host library.")
        endif()
    endforeach()
endforeach()

if(violations)
    string(REPLACE ";" ", " order "${LAYERS}")
    message(FATAL_ERROR "Includes against the direction of the layers (lowest first: "
                        "${order}):${violations}")
endif()
file(TOUCH "${STAMP}")
