# All warnings, as errors, for everything that is compiled here.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
                    -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion -Werror)
# The same seed must give the same match on every machine: no fused multiply-add, no reordering.
add_compile_options(-ffp-contract=off)
