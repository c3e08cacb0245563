# A second clean build costs a third where ccache is installed; -DCMAKE_CXX_COMPILER_LAUNCHER= does without it.
find_program(VORBEL_CCACHE ccache)
mark_as_advanced(VORBEL_CCACHE)
if(VORBEL_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${VORBEL_CCACHE})
endif()
