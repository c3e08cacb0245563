# A second clean build costs a third where ccache is installed; -DCMAKE_CXX_COMPILER_LAUNCHER= does without it.
find_program(VORBEL_CCACHE ccache)
mark_as_advanced(VORBEL_CCACHE)
if(VORBEL_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    # Without leave to be sloppy about these two it keeps nothing that uses precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros ${VORBEL_CCACHE})
endif()
