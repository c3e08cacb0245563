# All warnings for everything that is compiled here. They are errors in the developers' presets and in CI; for a player
# with a compiler that is newer than ours a new warning is no reason to have no game.
option(VORBEL_WERROR "Warnings are errors" OFF)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
                    -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion)
if(VORBEL_WERROR)
    add_compile_options(-Werror)
endif()
