# What nearly every file reads is compiled once. A file still includes what it uses: clang-tidy reads each without this.

# vorbel_precompile(NAME HEADERS … LINKS … OPTIONS …): a target whose compiled headers others reuse. They must be
# compiled with the same options.
function(vorbel_precompile name)
    cmake_parse_arguments(PARSE_ARGV 1 PRECOMPILE "" "" "HEADERS;LINKS;OPTIONS")
    file(TOUCH ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_compile_options(${name} PRIVATE ${PRECOMPILE_OPTIONS})
    target_link_libraries(${name} PRIVATE ${PRECOMPILE_LINKS})
    target_precompile_headers(${name} PRIVATE ${PRECOMPILE_HEADERS})
endfunction()

set(VORBEL_STANDARD_HEADERS <algorithm> <array> <cmath> <cstdint> <functional> <map> <memory> <numbers> <optional>
                            <span> <string> <string_view> <utility> <vector>)

# For every library without Qt, whose options differ.
vorbel_precompile(vorbel_precompiled HEADERS ${VORBEL_STANDARD_HEADERS} <glm/gtc/matrix_transform.hpp>)
