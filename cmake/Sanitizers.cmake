# -DVORBEL_SANITIZE=address,undefined (or thread) instruments the whole tree.
set(VORBEL_SANITIZE "" CACHE STRING "Sanitizers to build with, comma separated")
if(VORBEL_SANITIZE)
    add_compile_options(-fsanitize=${VORBEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VORBEL_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        add_compile_options(-Wno-maybe-uninitialized) # GCC 12 sees ghosts in instrumented standard headers
        if(VORBEL_SANITIZE MATCHES thread)
            add_compile_options(-Wno-tsan) # the toolkit's headers have fences, which the sanitizer does not follow
        endif()
    endif()
endif()
