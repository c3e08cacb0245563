# A forbidden include does not compile: a target can include its own folder and the folders of the targets it links,
# and no other.

# vorbel_expose(TARGET PUBLIC|PRIVATE|INTERFACE PATH…): who links the target includes these files, or what lies in
# these folders, by their path from the root. Its include directory holds nothing but links to them.
function(vorbel_expose target visibility)
    set(includes ${PROJECT_BINARY_DIR}/include/${target})
    foreach(path IN LISTS ARGN)
        cmake_path(GET path PARENT_PATH parent)
        file(MAKE_DIRECTORY ${includes}/${parent})
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${path} ${includes}/${path} SYMBOLIC)
    endforeach()
    target_include_directories(${target} ${visibility} ${includes})
endfunction()

# vorbel_library(NAME SOURCES … LINKS … WRAPS …): the library of the folder whose CMakeLists.txt calls this. LINKS are
# the arrows that its headers need too; WRAPS are libraries that nobody above it gets to see.
function(vorbel_library name)
    cmake_parse_arguments(PARSE_ARGV 1 LIBRARY "" "" "SOURCES;LINKS;WRAPS")
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE folder)
    add_library(${name} STATIC ${LIBRARY_SOURCES})
    vorbel_expose(${name} PUBLIC ${folder})
    target_link_libraries(${name} PUBLIC ${LIBRARY_LINKS} PRIVATE ${LIBRARY_WRAPS})
    if(NOT "${LIBRARY_LINKS};${LIBRARY_WRAPS}" MATCHES Qt6::)
        target_precompile_headers(${name} REUSE_FROM vorbel_precompiled)
    endif()
endfunction()
