# Options that hold for every target of the project.

# The same bits everywhere: no fused multiply-add behind the formula's back.
add_compile_options(-ffp-contract=off)

if(POLYPROPS_SANITIZE)
    add_compile_options(-fsanitize=${POLYPROPS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${POLYPROPS_SANITIZE})
endif()
if(POLYPROPS_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()
