# vorbel_group_sources(TARGET): names the groups in which a unity build compiles the target's own
# sources together, in the order in which they are listed.
function(vorbel_group_sources target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources EXCLUDE REGEX "^${CMAKE_CURRENT_BINARY_DIR}/")
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    set(place 0)
    foreach(source IN LISTS sources)
        math(EXPR unit "${place} / ${CMAKE_UNITY_BUILD_BATCH_SIZE}")
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP own${unit})
        math(EXPR place "${place} + 1")
    endforeach()
endfunction()
