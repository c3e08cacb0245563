# The same seed gives the same match on every machine. The compiler may fuse a·b + c into one instruction that rounds
# once instead of twice; whether it does depends on compiler, level and processor, and a match is chaotic enough to end
# with another score. With -ffp-contract=off, gcc at -O0 and at -O3 -march=native and clang all play the same matches;
# without it they part. tools/check-signature says whether they still agree.
add_compile_options(-ffp-contract=off)
