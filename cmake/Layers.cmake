# Folders are layers: a file may include only its own folder and the folders that stand before it. Each folder has an
# include root of its own that holds nothing but a link to it or to its headers, so that any other include fails to
# compile.

# ondara_layer(FOLDER [ROOT DIRECTORY] [DEPENDS FOLDER...] [LIBRARIES TARGET...]): all sources of DIRECTORY/FOLDER, src/
# by default, as an object library.
function(ondara_layer folder)
    cmake_parse_arguments(LAYER "" "ROOT" "DEPENDS;LIBRARIES" ${ARGN})
    if(NOT LAYER_ROOT)
        set(LAYER_ROOT ${PROJECT_SOURCE_DIR}/src)
    endif()
    string(REPLACE "/" "_" target ${folder})
    file(GLOB sources CONFIGURE_DEPENDS ${LAYER_ROOT}/${folder}/*.cpp
                                        ${LAYER_ROOT}/${folder}/*.h)
    set(root ${PROJECT_BINARY_DIR}/layers/${target})
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(GLOB headers CONFIGURE_DEPENDS ${LAYER_ROOT}/${folder}/*.h)
    file(GLOB nested ${LAYER_ROOT}/${folder}/*/*.h)
    if(nested)
        # A folder inside is a layer of its own, so that only the headers beside it are linked.
        if(IS_SYMLINK ${root}/${folder})
            file(REMOVE ${root}/${folder})
        endif()
        file(MAKE_DIRECTORY ${root}/${folder})
        foreach(header IN LISTS headers)
            get_filename_component(name ${header} NAME)
            file(CREATE_LINK ${header} ${root}/${folder}/${name} SYMBOLIC)
        endforeach()
    else()
        file(CREATE_LINK ${LAYER_ROOT}/${folder} ${root}/${folder} SYMBOLIC)
    endif()

    add_library(${target} OBJECT ${sources})
    # A new header makes a meta object file too.
    set_target_properties(${target} PROPERTIES AUTOGEN_TARGET_DEPENDS "${headers}")
    target_include_directories(${target} PUBLIC ${root})
    target_link_libraries(${target} PRIVATE ondara_options PUBLIC ${LAYER_LIBRARIES})
    foreach(lower IN LISTS LAYER_DEPENDS)
        string(REPLACE "/" "_" lower ${lower})
        # Not linked but seen: the objects go into one library, below.
        target_include_directories(${target} PUBLIC $<TARGET_PROPERTY:${lower},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
endfunction()

# ondara_library(NAME FOLDER...): the layers of the folders as one static library.
function(ondara_library name)
    add_library(${name} STATIC)
    foreach(folder IN LISTS ARGN)
        string(REPLACE "/" "_" target ${folder})
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:${target}>)
        target_include_directories(${name} PUBLIC $<TARGET_PROPERTY:${target},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_link_libraries(${name} PRIVATE ondara_options)
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()
