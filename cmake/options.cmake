# Options that hold for every target of the project.

# The same bits everywhere: no fused multiply-add behind the formula's back.
add_compile_options(-ffp-contract=off)

# Clang divides before it knows whether the quotient is needed, unless told that a host may trap.
add_compile_options($<$<COMPILE_LANG_AND_ID:CXX,Clang>:-ffp-exception-behavior=maytrap>)

# GCC 12 sees overlaps that are not there in `"text" + std::string`.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()

if(POLYPROPS_SANITIZE)
    add_compile_options(-fsanitize=${POLYPROPS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(POLYPROPS_SANITIZE MATCHES "float-divide-by-zero")
        # Reported by every test; only tests of arbitrary values go on, where the divisor is what a host or a case gives.
        add_compile_options(-fsanitize-recover=float-divide-by-zero)
    endif()
    add_link_options(-fsanitize=${POLYPROPS_SANITIZE})
endif()
if(POLYPROPS_COVERAGE)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "POLYPROPS_COVERAGE needs clang, seen ${CMAKE_CXX_COMPILER_ID}; use the preset coverage")
    endif()
    # Counts the conditions of the source, not the jumps that clean up behind an exception.
    add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-fprofile-instr-generate> $<$<COMPILE_LANGUAGE:C,CXX>:-fcoverage-mapping>)
    add_link_options($<$<LINK_LANGUAGE:C,CXX>:-fprofile-instr-generate>)
    # A process that ends by _exit, as the workers of a sweep do, writes its counts too.
    add_library(coverage_exit STATIC ${CMAKE_CURRENT_LIST_DIR}/coverage_exit.c)
    add_link_options(LINKER:--wrap=_exit)
    link_libraries(coverage_exit)
endif()
