# vorbel_generated_sources(TARGET): what Qt's tools generated for the target is not held to our warnings, and the texts
# of the QML compiler, which each read the same headers for a little code, are compiled together. Call it in the
# target's folder after the last source was added.
function(vorbel_generated_sources target)
    get_target_property(generated ${target} SOURCES)
    list(FILTER generated INCLUDE REGEX "^${CMAKE_CURRENT_BINARY_DIR}/")
    set(compiled_qml ${generated})
    list(FILTER compiled_qml INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$")
    list(REMOVE_ITEM generated ${compiled_qml})
    set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS -w)

    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    set(units 2) # to read the headers seldom: what is compiled is little
    set(unit 0)
    foreach(source IN LISTS compiled_qml)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP qml${unit})
        set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${target}.dir/Unity/unity_qml${unit}_cxx.cxx
            PROPERTIES COMPILE_OPTIONS -w)
        math(EXPR unit "(${unit} + 1) % ${units}")
    endforeach()
    if(CMAKE_UNITY_BUILD) # a target has one mode, and groups have to be named
        vorbel_group_sources(${target})
    endif()
endfunction()
